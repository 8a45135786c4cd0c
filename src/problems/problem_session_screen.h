#pragma once

#include "problems/problem_session.h"
#include "shell/exercise_screen.h"

namespace problems {

class StatementBox;

/// The practice of word problems: one problem of the bank at a time, drawn with fresh data.
class FormProblemas : public shell::DrillScreen<ProblemSession> {
public:
    static QString screenName() { return QStringLiteral("FormProblemas"); }

    explicit FormProblemas(ui::Screens& screens);

    /// Restricts what is drawn from now on, as ProblemSession::CargaDatos.
    void CargaDatos(core::Int16 Seleccion, OperationMask MaskOpera);

    QString spokenExercise() const override;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void newExercise() override { NuevoProblema(); }
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeMenu();
    void makeBoxes();

    void MnuOpcGes_Click();
    void MnuOpcSel_Click();
    void MnuOpcSal_Click();

    void NuevoProblema();

    QString m_loadFailure; ///< to be told once the screen has come up
    StatementBox* TBEnunciado = nullptr; ///< the statement
    ui::TextBox* TBRespuesta = nullptr; ///< the answer
    QLabel* LBUnidad = nullptr; ///< the unit behind the answer
    ui::VerdictBox* TBCorrecto = nullptr; ///< the verdict
    QLabel* LBEstado = nullptr; ///< the counters
};

} // namespace problems
