#pragma once

#include "tables/quick_tables.h"
#include "ui/screen.h"

#include <array>

namespace tables {

class CountdownBar;
class LimitOptions;
class TimeLabel;
class VerdictPatch;

/// The quick tables: products against the clock, until a limit or "&Salir".
class Form8 : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("Form8"); }

    explicit Form8(ui::Screens& screens);

    QString spokenExercise() const override;

protected:
    void Form_Load() override;

private:
    void makeRow();
    void makeTime();

    void Option1_Click(int Index);
    void Command1_Click();
    void TbDatos_KeyPress();
    void Timer1_Timer();
    void Timer2_Timer();

    void start();
    void warnOfLimit(QuickTables::LimitVerdict verdict);
    void play(const QuickTables::Events& events);
    void showVerdict(shell::Verdict verdict);
    void showOperation();
    void showTime();
    void showRemaining();
    void finish();

    QuickTables m_model;
    LimitOptions* m_limits = nullptr; ///< what ends the drill
    ui::Button* Command1 = nullptr; ///< starts and ends the drill
    std::array<ui::TextBox*, 5> TbDatos{}; ///< factor, sign, factor, sign, answer
    ui::TextBox* TBInstruc = nullptr; ///< what to do
    QLabel* LBOperacion = nullptr; ///< the operation as one line
    TimeLabel* LBTiempo = nullptr; ///< the seconds left
    CountdownBar* m_bar = nullptr;
    VerdictPatch* TBResul = nullptr; ///< the verdict as a patch of colour
    QTimer* Timer1 = nullptr; ///< a tick a second for the operation
    QTimer* Timer2 = nullptr; ///< a tick a second for the limit of minutes
};

} // namespace tables
