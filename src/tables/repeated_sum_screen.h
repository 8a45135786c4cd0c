#pragma once

#include "shell/exercise_screen.h"
#include "tables/repeated_sum.h"

namespace tables {

class BoardText;

/// The repeated sum: a sum of equal addends, to be written as a multiplication.
class Form4 : public shell::DrillScreen<RepeatedSum> {
public:
    static QString screenName() { return QStringLiteral("Form4"); }

    explicit Form4(ui::Screens& screens);

    QString spokenExercise() const override;

protected:
    void Form_Load() override;
    void newExercise() override { NuevaSuma(); }
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeBoxes();
    void makeButtons();

    void NuevaSuma();
    void emptyFactors();

    BoardText* TbSuma = nullptr; ///< the sum
    std::array<ui::TextBox*, 3> Text3{}; ///< the first factor, the sign between, the second
    ui::VerdictBox* Text1 = nullptr; ///< the verdict
    ui::TextBox* tbResultados = nullptr; ///< the counters
};

} // namespace tables
