#pragma once

#include "shell/exercise_screen.h"
#include "support/digit_sum.h"

/// The screen of the smallest activity.
class FrmSuma : public shell::DrillScreen<DigitSum> {
public:
    static QString screenName() { return QStringLiteral("FrmSuma"); }

    explicit FrmSuma(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.spokenExercise(); }

protected:
    void Form_Load() override;
    void newExercise() override;
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    ui::TextBox* TbSuma = nullptr; ///< the exercise
    ui::TextBox* TbRespuesta = nullptr; ///< the answer
    ui::VerdictBox* TbResultado = nullptr; ///< the verdict
    ui::TextBox* TbEjercicios = nullptr; ///< the counters
};
