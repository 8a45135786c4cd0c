#pragma once

#include "shell/exercise_screen.h"
#include "written/multiples_divisors.h"

namespace written {

/// Multiples and divisors: three of either, of a given number.
class FrmMultidivi : public shell::DrillScreen<MultiplesDivisors> {
public:
    static QString screenName() { return QStringLiteral("FrmMultidivi"); }

    explicit FrmMultidivi(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.spokenExercise(); }

protected:
    void Form_Load() override;
    void newExercise() override;
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeBoxes();
    void edgeWrongAnswers();

    ui::Memo* Text1 = nullptr; ///< the instruction
    ui::TextBox* Text2 = nullptr; ///< the given number
    std::array<ui::TextBox*, MultiplesDivisors::Answers> Text3{}; ///< the answers
    ui::VerdictBox* TBMensajes = nullptr; ///< the verdict
};

} // namespace written
