#pragma once

#include "ui/screen.h"

#include <array>

namespace shell {

/// What the drill screens share: the four buttons in their colours, Enter as "&Hecho" in an
/// answer box, and the question at the end of a series.
class ExerciseScreen : public ui::Screen {
protected:
    using ui::Screen::Screen;

    /// Where the buttons stand, in twips.
    struct CommandPlaces {
        ui::TwipRect check;
        ui::TwipRect next;
        ui::TwipRect clear;
        ui::TwipRect solution;
    };
    /// solutionCaption: some screens spell it their own way.
    void makeCommands(
        const CommandPlaces& places, const QString& solutionCaption = defaultSolutionCaption());

    /// Enter in this box does what "&Hecho" does.
    void enterChecks(QWidget* answerBox);

    /// For the screens that show no box, whatever fails: full counters stay as they are.
    static void countSilently(const std::function<void()>& count);

    /// "Actividad terminada": true when the pupil wants to repeat the series.
    bool askToRepeat();

    virtual void Command1_Click() = 0;
    virtual void Command2_Click(int Index) = 0;

    ui::Button* Command1 = nullptr; ///< "&Hecho"
    std::array<ui::Button*, 3> Command2{}; ///< "&Continuar", "&Borrar", "&Ver solución"

private:
    static QString defaultSolutionCaption();
};

} // namespace shell
