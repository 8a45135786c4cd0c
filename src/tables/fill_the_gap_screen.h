#pragma once

#include "shell/exercise_screen.h"
#include "tables/fill_the_gap.h"

namespace tables {

/// The gap: a multiplication whose second factor is missing.
class FrmMultHuecos : public shell::DrillScreen<FillTheGap> {
public:
    static QString screenName() { return QStringLiteral("FrmMultHuecos"); }

    explicit FrmMultHuecos(ui::Screens& screens);

    QString spokenExercise() const override;

protected:
    void Form_Load() override;
    void newExercise() override { NuevoHueco(); }
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeRow();
    void alignRow();
    void makeButtons();
    ui::TextBox* onBoard(
        const QString& name, const ui::TwipRect& place, const QString& accessibleName);

    void NuevoHueco();

    std::array<ui::TextBox*, 3> TbTermin{}; ///< the shown factor, the gap, the product
    std::array<ui::TextBox*, 2> TbSignos{}; ///< the times and the equals sign
    ui::VerdictBox* TbResultado = nullptr; ///< the verdict
    ui::TextBox* TbEjercicios = nullptr; ///< the counters
};

} // namespace tables
