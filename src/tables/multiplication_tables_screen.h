#pragma once

#include "shell/exercise_screen.h"
#include "tables/multiplication_tables.h"

namespace tables {

class Poster;
class PosterHalf;

/// The multiplication tables: study a table, review it in order, review it shuffled.
class Form2 : public shell::DrillScreen<MultiplicationTables> {
public:
    static QString screenName();

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
    void makeTables();
    void makeQuestion();
    void makeVerdict();
    void makeWayOn();

    void Command3_Click(int Index);
    void MnuOpcTabLis_Click(int Index);
    void MnuOpcActLis_Click(int Index);
    ui::KeyResult TbOperacion_KeyDown(int KeyCode);

    void EscribeTabla();
    void EmpiezaRepaso();
    void SiguientePregunta();
    void showQuestion();
    void showSigns();
    void takeUpActivity();
    void placeForActivity();

    ui::MenuList MnuOpcTabLis; ///< the ten tables
    Poster* m_poster = nullptr; ///< behind both
    PosterHalf* TbTabla1 = nullptr; ///< rows 1 to 5
    PosterHalf* TbTabla2 = nullptr; ///< rows 6 to 10
    std::array<ui::TextBox*, 5> TbOperacion{}; ///< table, sign, multiplier, sign, answer
    ui::VerdictBox* Text1 = nullptr; ///< the verdict
    std::array<ui::Button*, 2> Command3{}; ///< next activity, next table
};

} // namespace tables
