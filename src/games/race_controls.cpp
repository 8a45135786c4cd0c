#include "games/race_screen.h"

#include "core/defect.h"
#include "games/race_keypad.h"
#include "ui/screens.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of the race: where they are and what they are connected to.

namespace games {

namespace {

// Twips.
constexpr double Margin = 240;
constexpr double Width = RaceScene::Width + 2 * Margin;
constexpr double Top = 120;
constexpr double KeypadTop = 45; // it ends above the sky
constexpr double OperationTop = 525;
constexpr double OperationHeight = 840;
constexpr double AnswerLeft = 6450;
constexpr double VerdictTop = 1455;
constexpr double VerdictHeight = 540; // of the disc
constexpr double SceneTop = 2055;
constexpr double TrayMargin = 180; // around the buttons
constexpr double TrayGap = 100; // above and below the tray
constexpr double CommandTop = SceneTop + RaceScene::Height + TrayGap + TrayMargin;
constexpr double CommandWidth = 2520;
constexpr double CommandHeight = 560;
constexpr double Height = CommandTop + CommandHeight + TrayMargin + TrayGap;

constexpr int Second = 1000; // milliseconds

constexpr ui::look::Font OperationFont{Family::CourierNew, 40, true};
constexpr ui::look::Font TimeFont{Family::Arial, 17, true};

} // namespace

FrmCarrera::FrmCarrera(ui::Screens& screens)
    : Screen(screens, screenName(), u"La gran carrera"_s, Width, Height)
    , m_race(screens.random())
    , m_scene(new RaceScene(*this, {Margin, SceneTop}, {Width, Height}, this))
{
    makeBoxes();
    makeRow();
    makeKeypad();
    makeCommands();
    Timer1 = timer(u"Timer1"_s, Second);
    Timer2 = timer(u"Timer2"_s, m_race.rivalInterval());
    for (QTimer* timer : {Timer1, Timer2})
        timer->setTimerType(Qt::PreciseTimer);
    on(Timer1, &QTimer::timeout, &FrmCarrera::Timer1_Timer);
    on(Timer2, &QTimer::timeout, &FrmCarrera::Timer2_Timer);
    onKeyDown(this, [this](int keyCode, Qt::KeyboardModifiers) { return Form_KeyDown(keyCode); });
}

void FrmCarrera::makeBoxes()
{
    displayBox(u"Text1"_s, {Margin, Top, 6000, 360}, ui::look::Instruction, u"Instrucción"_s,
        u"Resuelve la operación para avanzar"_s);
    TBOperacion = displayBox(u"TBOperación"_s, {Margin, OperationTop, 6000, OperationHeight},
        OperationFont, u"Operación"_s, u"7 x 5 + 8 ="_s);
    TBOperacion->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    TBResultado = entryBox(u"TBResultado"_s, {AnswerLeft, OperationTop, 1740, OperationHeight},
        OperationFont, u"Respuesta"_s);
    onKeyPress(TBResultado, [this](QChar character) { return TBResultado_KeyPress(character); });
    Text4 =
        verdictBox(u"Text4"_s, {AnswerLeft, VerdictTop, 2700, VerdictHeight}, u"Comprobación"_s);
    Text4->setJudged({TBResultado});
    m_time = displayBox(u"raceTime"_s, {8430, Top, 2400, 360}, TimeFont, u"Tiempo"_s);
    showTime();
}

// No race type fills this row with an operation, so it does not show: meant.
void FrmCarrera::makeRow()
{
    const std::array<QString, 5> texts{u"888"_s, {}, u"888"_s, {}, u"888"_s};
    for (int i = 0; i < 5; ++i) {
        auto*& box = core::at(Text2, i);
        box = entryBox(u"Text2(%1)"_s.arg(i), {Margin + 1200 * i, VerdictTop, 1140, 450},
            ui::look::Instruction, u"Casilla %1"_s.arg(i + 1));
        box->setText(core::at(texts, i));
        box->hide();
        onKeyPress(box, [this, i](QChar character) { return Text2_KeyPress(i, character); });
    }
}

void FrmCarrera::makeKeypad()
{
    m_keypad = new RaceKeypad(*this, {Width - Margin, KeypadTop}, this);
    on(m_keypad, &RaceKeypad::pressed, &FrmCarrera::CBCalcu_Click);
    on(m_keypad, &RaceKeypad::showPressed, &FrmCarrera::CBConmutar_Click);
}

void FrmCarrera::makeCommands()
{
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    Command1 = {
        button(u"Command1(0)"_s, u"&Opciones"_s,
            {Width / 2 - CommandWidth - 120, CommandTop, CommandWidth, CommandHeight}, neutral),
        button(u"Command1(1)"_s, u"&Repetir carrera"_s,
            {Width / 2 + 120, CommandTop, CommandWidth, CommandHeight}, neutral)};
    for (int i = 0; i < 2; ++i)
        on(core::at(Command1, i), &QPushButton::clicked, &FrmCarrera::Command1_Click, i);
    new ui::Tray({Command1[0], Command1[1]});
}

} // namespace games
