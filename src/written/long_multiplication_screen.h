#pragma once

#include "shell/exercise_screen.h"
#include "written/long_multiplication.h"
#include "written/multiplication_board.h"
#include "written/units_first.h"

namespace written {

class Dialog;

/// Written multiplication on squared paper, typed from the units leftwards.
class Form3 : public shell::DrillScreen<LongMultiplication> {
public:
    static QString screenName();

    explicit Form3(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.spokenExercise(); }

protected:
    void Form_Load() override;
    void newExercise() override { NuevaMultiplicacion(); }
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeMenu();
    void makeSettings(QMenu* options);
    void makeTexts();
    void connectFactors();
    void connectRow(ui::SquaredBox* row, int fila);
    void connectResult();

    ui::KeyResult TbFactor_KeyPress();
    void TbParcial_KeyDown(int Index, int KeyCode);
    void TbParcial_Change(int Index);
    void TBResultado_Change();
    void MnuOpcCi1Lis_Click(int Index);
    void MnuOpcCi2Lis_Click(int Index);
    void MnuOpcSelLis_Click(int Index);
    void MnuOpcOcu_Click();
    void MnuOpcIn1_Click();
    void MnuOpcIn2_Click();

    void NuevaMultiplicacion();
    void PreparaFilas();
    void IndicaProducto(int posicion, int fila);
    void placeWindow();
    void fitSquares();
    void chainTabs();
    void showFactors();
    void takeChosenDigits(const Dialog& dialog);
    void showChoiceOfDigits();
    bool acceptFactor(TypedFactor outcome);

    ui::MenuList MnuOpcCi1Lis; ///< digits of factor 1
    ui::MenuList MnuOpcCi2Lis; ///< digits of factor 2
    ui::MenuList MnuOpcSelLis; ///< any digit, or chosen ones
    QAction* MnuOpcOcu = nullptr; ///< leaves out the rows of zeros
    UnitsFirst m_unitsFirst;
    MultiplicationBoard m_board;
    ui::VerdictBox* Text1 = nullptr; ///< the verdict, or the hint of a product of digits
    ui::TextBox* Text2 = nullptr; ///< the counters
};

} // namespace written
