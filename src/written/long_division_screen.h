#pragma once

#include "shell/exercise_screen.h"
#include "written/division_board.h"
#include "written/division_column.h"
#include "written/division_menu.h"
#include "written/long_division.h"

namespace written {

/// Long division on squared paper: the dividend with the work under it, the bracket, the
/// divisor and, under that, the quotient.
class Form6 : public shell::DrillScreen<LongDivision> {
public:
    static QString screenName() { return QStringLiteral("Form6"); }

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
    DivisionMenu::Callbacks menuCallbacks();
    void connectBoard();

    void saySquare();
    void writeNear(const QPoint& point);
    ui::KeyResult Text1_KeyDown(int KeyCode);
    ui::KeyResult Text1_KeyPress(QChar KeyAscii);
    void Text1_GotFocus();
    void Text2_GotFocus();
    void Text3_GotFocus();

    void NuevaDivision();
    void showExercise();
    void showDivisor();
    void showWork();
    void clearWork();
    void showOperation();
    void fitSheet();

    DivisionMenu m_menu;
    DivisionBoard m_board;
    DivisionColumn m_column;
};

} // namespace written
