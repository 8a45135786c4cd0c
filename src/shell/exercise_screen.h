#pragma once

#include "shell/drill.h"
#include "ui/screen.h"
#include "ui/screens.h"

#include <array>

namespace shell {

/// Shows the verdict line of a model, with a tick or a cross where it tells a verdict.
void showVerdict(ui::VerdictBox& box, const VerdictLine& line);

/// What the drill screens share: the four buttons in their colours, Enter as "&Hecho" in an
/// answer box, the verdict, and the question at the end of a series.
class ExerciseScreen : public ui::Screen {
protected:
    using ui::Screen::Screen;

    /// "&Hecho", and Enter in an answer box.
    virtual void check() = 0;
    /// "&Continuar".
    virtual void nextExercise() = 0;
    /// "&Borrar".
    virtual void clearAnswer() = 0;
    /// "&Ver solución".
    virtual void showSolution() = 0;

    /// Draws an exercise and shows it.
    virtual void newExercise() = 0;

    /// Where the buttons stand, in twips.
    struct CommandPlaces {
        ui::TwipRect check;
        ui::TwipRect next;
        ui::TwipRect clear;
        ui::TwipRect solution;
    };
    /// The same of buttons that stand in the order "&Hecho", "&Borrar", "&Continuar", "&Ver
    /// solución"; placeOf says where one of them does, by its position from 0.
    static CommandPlaces inOrder(ui::TwipRect (*placeOf)(int position));
    /// solutionCaption: some screens spell it their own way.
    void makeCommands(
        const CommandPlaces& places, const QString& solutionCaption = defaultSolutionCaption());

    /// Enter in this box does what "&Hecho" does.
    void enterChecks(QWidget* answerBox);

    /// Takes the focus to where an exercise that a menu has brought is worked out, from
    /// "&Continuar", where the next key would be lost or bring another one.
    void leaveContinue(QWidget* work);

    /// "Actividad terminada": true when the pupil wants to repeat the series.
    bool askToRepeat();

    ui::Button* Command1 = nullptr; ///< "&Hecho"
    std::array<ui::Button*, 3> Command2{}; ///< "&Continuar", "&Borrar", "&Ver solución"

private:
    void Command1_Click();
    void Command2_Click(int Index);
    static QString defaultSolutionCaption();
};

/// The screen of one drill, with its model.
template <Drill Model> class DrillScreen : public ExerciseScreen {
protected:
    DrillScreen(ui::Screens& screens, const QString& name, const QString& caption, double width,
        double height)
        : ExerciseScreen(screens, name, caption, width, height)
        , m_model(screens.random())
    {
    }

    Model m_model;
};

} // namespace shell
