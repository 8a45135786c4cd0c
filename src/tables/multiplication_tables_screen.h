#pragma once

#include "shell/exercise_screen.h"
#include "tables/multiplication_tables.h"

namespace tables {

/// The multiplication tables: study a table, review it in order, review it shuffled.
class Form2 : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit Form2(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeMenu();
    void makeTables();
    void makeQuestion();

    void Command3_Click(int Index);
    void MnuOpcTabLis_Click(int Index);
    void MnuOpcActLis_Click(int Index);
    ui::KeyResult TbOperación_KeyDown(int KeyCode);

    void EscribeTabla();
    void EmpiezaRepaso();
    void SiguientePregunta(bool seriesOver);
    void showQuestion();
    void showSigns();
    void takeUpActivity();
    void placeForActivity();

    MultiplicationTables m_model;
    ui::MenuList MnuOpcTabLis;
    ui::Memo* TbTabla1 = nullptr;
    ui::Memo* TbTabla2 = nullptr;
    std::array<ui::TextBox*, 5> TbOperación{};
    ui::VerdictBox* Text1 = nullptr;
    std::array<ui::Button*, 2> Command3{};
};

} // namespace tables
