#pragma once

#include "shell/exercise_screen.h"
#include "written/division_board.h"
#include "written/long_division.h"

namespace written {

/// Long division on squared paper: the dividend with the work under it, the bracket, the
/// divisor and, under that, the quotient.
class Form6 : public shell::DrillScreen<LongDivision> {
public:
    static QString screenName();

    explicit Form6(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.spokenExercise(); }

protected:
    void Form_Load() override;
    void newExercise() override { NuevaDivision(); }
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeMenu();
    void makeSettings(QMenu* options);
    void connectBoard();
    void makeTexts();

    void saySquare();
    void writeNear(const QPoint& point);
    ui::KeyResult Text1_KeyDown(int KeyCode);
    ui::KeyResult Text1_KeyPress(QChar KeyAscii);
    void Text1_GotFocus();
    void Text2_GotFocus();
    void Text3_GotFocus();
    void MnuOpcDivLis_Click(int Index);
    void MnuOpcDisLis_Click(int Index);
    void MnuOpcDecLis_Click(int Index);
    void MnuOpcRes_Click();
    void MnuOpcFor_Click();

    void NuevaDivision();
    void IntroduceDividendo();
    void IntroduceDivisor();
    void showExercise();
    void showWork();
    void clearWork();
    void showOperation();
    void fitSheet();

    ui::MenuList MnuOpcDivLis; ///< digits of the dividend
    ui::MenuList MnuOpcDisLis; ///< digits of the divisor
    ui::MenuList MnuOpcDecLis; ///< decimals of the quotient
    QAction* MnuOpcRes = nullptr; ///< the solution writes the products too
    QAction* MnuOpcFor = nullptr; ///< the quotient must contain a zero
    DivisionBoard m_board;
    ui::VerdictBox* Text4 = nullptr; ///< the operation, the verdict, or the box being typed into
    ui::TextBox* tbResultados = nullptr; ///< the counters
};

} // namespace written
