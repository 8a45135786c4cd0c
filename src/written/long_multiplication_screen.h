#pragma once

#include "shell/exercise_screen.h"
#include "written/long_multiplication.h"

#include <vector>

namespace ui {
class Rule;
class SquaredBox;
class SquaredPaper;
} // namespace ui

namespace written {

class Dialog;

/// Written multiplication on squared paper, typed from the units leftwards.
class Form3 : public shell::DrillScreen<LongMultiplication> {
public:
    static QString screenName();

    explicit Form3(ui::Screens& screens);

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
    void makeSheet();
    void makeFactors();
    void makeTexts();
    ui::SquaredBox* makeRow(int fila);
    void connectResult();
    void connectRow(ui::SquaredBox* row, int fila);

    ui::KeyResult TbFactor_KeyPress();
    void TbParcial_KeyUp(int Index, int KeyCode);
    void TbParcial_KeyDown(int Index, int KeyCode);
    void TbParcial_Change(int Index);
    void TBResultado_KeyUp(int KeyCode);
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
    void setRowCount(int rows);
    void placeRows();
    void chooseSquares();
    qsizetype columnsNeeded() const;
    void chainTabs();
    void showFactors();
    void emptyRows();
    void takeChosenDigits(const Dialog& dialog);
    void showChoiceOfDigits();
    bool acceptFactor(TypedFactor outcome);
    std::vector<ui::SquaredBox*> answerBoxes() const;

    ui::MenuList MnuOpcCi1Lis; ///< digits of factor 1
    ui::MenuList MnuOpcCi2Lis; ///< digits of factor 2
    ui::MenuList MnuOpcSelLis; ///< any digit, or chosen ones
    QAction* MnuOpcOcu = nullptr; ///< leaves out the rows of zeros
    ui::SquaredPaper* m_paper = nullptr;
    std::array<ui::SquaredBox*, 2> TbFactor{}; ///< the factors
    QLabel* LabX = nullptr; ///< the times sign beside factor 2
    std::vector<ui::SquaredBox*> TbParcial; ///< the partial products, row 0 at the top
    ui::Rule* Line2 = nullptr; ///< the rule under the last row
    ui::SquaredBox* TBResultado = nullptr; ///< the result
    QLabel* labIgual = nullptr; ///< the equals sign beside the result
    ui::VerdictBox* Text1 = nullptr; ///< the verdict, or the hint of a product of digits
    ui::TextBox* Text2 = nullptr; ///< the counters
};

} // namespace written
