#pragma once

#include "shell/exercise_screen.h"
#include "written/long_multiplication.h"
#include "written/multiplication_board.h"
#include "written/multiplication_column.h"
#include "written/multiplication_menu.h"
#include "written/units_first.h"

namespace written {

/// Written multiplication on squared paper, typed from the units leftwards.
class Form3 : public shell::DrillScreen<LongMultiplication> {
public:
    static QString screenName() { return QStringLiteral("Form3"); }

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
    MultiplicationMenu::Callbacks menuCallbacks();
    void connectFactors();
    void connectRow(ui::SquaredBox* row, int fila);
    void connectResult();

    ui::KeyResult TbFactor_KeyPress();
    void TbParcial_KeyDown(int Index, int KeyCode);
    void TbParcial_Change(int Index);
    void TBResultado_Change();

    void NuevaMultiplicacion();
    void showExercise();
    void PreparaFilas();
    void IndicaProducto(int posicion, int fila);
    void placeWindow();
    void fitSquares();
    void chainTabs();

    MultiplicationMenu m_menu;
    UnitsFirst m_unitsFirst;
    MultiplicationBoard m_board;
    std::optional<MultiplicationColumn> m_column;
};

} // namespace written
