#pragma once

#include "problems/problem_session.h"
#include "shell/exercise_screen.h"

namespace problems {

class StatementBox;

/// The practice of word problems: one problem of the bank at a time, drawn with fresh data.
class FormProblemas : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit FormProblemas(ui::Screens& screens);

    /// Restricts what is drawn from now on: Selección is 0 for all problems, 1 for those with
    /// any of the operations of MaskOpera, 2 for those with all of them.
    void CargaDatos(core::Int16 Selección, OperationMask MaskOpera);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeMenu();
    void makeBoxes();

    void MnuOpcGes_Click();
    void MnuOpcSel_Click();
    void MnuOpcSal_Click();

    void NuevoProblema();
    void showNextProblem();

    ProblemSession m_session;
    QString m_loadFailure; ///< to be told once the screen has come up
    StatementBox* TBEnunciado = nullptr;
    ui::TextBox* TBRespuesta = nullptr;
    QLabel* LBUnidad = nullptr;
    ui::VerdictBox* TBCorrecto = nullptr;
    QLabel* LBEstado = nullptr;
};

} // namespace problems
