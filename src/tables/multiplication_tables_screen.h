#pragma once

#include "shell/exercise_screen.h"
#include "tables/multiplication_tables.h"
#include "tables/tables_board.h"

namespace tables {

/// The multiplication tables: study a table, review it in order, review it shuffled.
class Form2 : public shell::DrillScreen<MultiplicationTables> {
public:
    static QString screenName() { return QStringLiteral("Form2"); }

    explicit Form2(ui::Screens& screens);

    QString spokenExercise() const override;

protected:
    void Form_Load() override;
    void newExercise() override { EmpiezaRepaso(); }
    void check() override;
    void nextExercise() override;
    void clearAnswer() override;
    void showSolution() override;

private:
    void makeMenu();
    void makeWayOn();

    void Command3_Click(int Index);
    void MnuOpcTabLis_Click(int Index);
    void MnuOpcActLis_Click(int Index);
    ui::KeyResult TbOperacion_KeyDown(int KeyCode);

    void EscribeTabla();
    void EmpiezaRepaso();
    void SiguientePregunta();
    void showQuestion();
    void takeUpActivity();

    ui::MenuList MnuOpcTabLis; ///< the ten tables
    TablesBoard m_board;
    std::array<ui::Button*, 2> Command3{}; ///< next activity, next table
};

} // namespace tables
