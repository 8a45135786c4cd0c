#pragma once

#include "shell/exercise_screen.h"
#include "written/combined_operations.h"

namespace ui {
class QuietText;
}

namespace written {

class ScratchArea;

/// Combined operations: an expression to solve by precedence, with room to work in.
class FRMCombi : public shell::DrillScreen<CombinedOperations> {
public:
    static QString screenName() { return QStringLiteral("FRMCombi"); }

    explicit FRMCombi(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.spokenExercise(); }

protected:
    void Form_Load() override;
    void newExercise() override;
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeExpression();
    void makeAnswer();
    void showAnswerAsPast(bool past);

    ui::TextBox* TBOperacion = nullptr; ///< the expression
    ScratchArea* TBCalculos = nullptr; ///< the pupil's own sums, judged by nobody
    ui::TextBox* TBResultado = nullptr; ///< the answer
    ui::QuietText* m_past = nullptr; ///< while the answer is that to an expression that has gone
    ui::VerdictBox* Text1 = nullptr; ///< the verdict
};

} // namespace written
