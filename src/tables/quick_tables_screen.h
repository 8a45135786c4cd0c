#pragma once

#include "tables/quick_tables.h"
#include "ui/screen.h"

#include <array>

class QGroupBox;
class QRadioButton;

namespace tables {

class CountdownBar;
class VerdictPatch;

/// The quick tables: products against the clock, until a limit or "&Salir".
class Form8 : public ui::Screen {
public:
    static QString screenName();

    explicit Form8(ui::Screens& screens);

protected:
    void Form_Load() override;

private:
    void makeOptions();
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
    void showVerdict(QuickTables::Verdict verdict);
    void showOperation();
    void showTime();
    void showRemaining();
    void finish();

    QuickTables m_model;
    QGroupBox* Frame1 = nullptr;
    std::array<QRadioButton*, 4> Option1{};
    QLabel* Label1 = nullptr;
    ui::TextBox* Text1 = nullptr;
    ui::Button* Command1 = nullptr;
    std::array<ui::TextBox*, 5> TbDatos{};
    QLabel* LBOperación = nullptr;
    QLabel* LBTiempo = nullptr;
    CountdownBar* m_bar = nullptr;
    VerdictPatch* TBResul = nullptr;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;
};

} // namespace tables
