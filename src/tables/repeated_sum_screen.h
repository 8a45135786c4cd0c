#pragma once

#include "shell/exercise_screen.h"
#include "tables/repeated_sum.h"

namespace tables {

class BoardText;

/// The repeated sum: a sum of equal addends, to be written as a multiplication.
class Form4 : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit Form4(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeBoxes();
    void makeButtons();

    void NuevaSuma();
    void clearAnswer();
    void showSolution();

    RepeatedSum m_model;
    BoardText* TbSuma = nullptr;
    std::array<ui::TextBox*, 3> Text3{};
    ui::VerdictBox* Text1 = nullptr;
    ui::TextBox* tbResultados = nullptr;
};

} // namespace tables
