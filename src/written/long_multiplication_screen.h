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

/// Written multiplication on squared paper, typed from the units leftwards.
class Form3 : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit Form3(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

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
    void showMessage(const QString& text);
    void takeChosenDigits();
    void showChoiceOfDigits();
    bool acceptFactor(TypedFactor outcome);
    void Borra();
    void showSolution();
    std::vector<ui::SquaredBox*> answerBoxes() const;

    LongMultiplication m_model;
    ui::MenuList MnuOpcCi1Lis;
    ui::MenuList MnuOpcCi2Lis;
    ui::MenuList MnuOpcSelLis;
    QAction* MnuOpcOcu = nullptr;
    ui::SquaredPaper* m_paper = nullptr;
    std::array<ui::SquaredBox*, 2> TbFactor{};
    QLabel* LabX = nullptr;
    std::vector<ui::SquaredBox*> TbParcial;
    ui::Rule* Line2 = nullptr;
    ui::SquaredBox* TBResultado = nullptr;
    QLabel* labIgual = nullptr;
    ui::VerdictBox* Text1 = nullptr;
    ui::TextBox* Text2 = nullptr;
};

} // namespace written
