#pragma once

#include "shell/exercise_screen.h"
#include "written/long_division.h"

namespace ui {
class SquaredBox;
class SquaredPaper;
} // namespace ui

namespace written {

class WorkArea;

/// Long division on squared paper: the dividend with the work under it, the bracket, the
/// divisor and, under that, the quotient.
class Form6 : public shell::ExerciseScreen {
public:
    static QString screenName();

    explicit Form6(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Command1_Click() override;
    void Command2_Click(int Index) override;

private:
    void makeMenu();
    void makeSheet();
    void makeWork();
    void makeNumbers();
    void makeLines();
    void makeTexts();
    ui::SquaredBox* squaredBox(const QString& name, ui::TextBox::Kind kind,
        const QString& accessibleName, const ui::TwipRect& place);

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
    void placeOperation();

    LongDivision m_model;
    ui::MenuList MnuOpcDivLis;
    ui::MenuList MnuOpcDisLis;
    ui::MenuList MnuOpcDecLis;
    QAction* MnuOpcRes = nullptr;
    QAction* MnuOpcFor = nullptr;
    ui::SquaredPaper* m_sheet = nullptr;
    WorkArea* Text1 = nullptr;
    ui::SquaredBox* Text2 = nullptr;
    ui::SquaredBox* Text3 = nullptr;
    QWidget* Line1 = nullptr;
    QWidget* Line2 = nullptr;
    ui::VerdictBox* Text4 = nullptr;
    ui::TextBox* tbResultados = nullptr;
};

} // namespace written
