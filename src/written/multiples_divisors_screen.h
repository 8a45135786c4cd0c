#pragma once

#include "shell/exercise_screen.h"
#include "written/multiples_divisors.h"

namespace written {

/// Multiples and divisors: three of either, of a given number.
class FrmMultidivi : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit FrmMultidivi(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeBoxes();
    void newExercise();
    void clearAnswers();
    void showSolution();

    MultiplesDivisors m_model;
    ui::Memo* Text1 = nullptr;
    ui::TextBox* Text2 = nullptr;
    std::array<ui::TextBox*, MultiplesDivisors::Answers> Text3{};
    ui::VerdictBox* TBMensajes = nullptr;
};

} // namespace written
