#pragma once

#include "shell/exercise_screen.h"
#include "tables/fill_the_gap.h"

namespace tables {

/// The gap: a multiplication whose second factor is missing.
class FrmMultHuecos : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit FrmMultHuecos(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeRow();
    void makeButtons();
    ui::TextBox* onBoard(
        const QString& name, const ui::TwipRect& place, const QString& accessibleName);

    void NuevoHueco();

    FillTheGap m_model;
    std::array<ui::TextBox*, 3> TbTermin{};
    std::array<ui::TextBox*, 2> TbSignos{};
    ui::VerdictBox* TbResultado = nullptr;
    ui::TextBox* TbEjercicios = nullptr;
};

} // namespace tables
