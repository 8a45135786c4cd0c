#pragma once

#include "shell/exercise_screen.h"
#include "written/combined_operations.h"

namespace written {

class ScratchArea;

/// Combined operations: an expression to solve by precedence, with room to work in.
class FRMCombi : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit FRMCombi(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeExpression();
    void makeAnswer();

    void newExpression();

    CombinedOperations m_model;
    ui::TextBox* TBOperación = nullptr;
    ScratchArea* TBCálculos = nullptr;
    ui::TextBox* TBResultado = nullptr;
    ui::VerdictBox* Text1 = nullptr;
};

} // namespace written
