#include "games/number_rain_screen.h"

#include "games/night_sky.h"
#include "games/rain_drop.h"
#include "ui/glide.h"
#include "ui/screens.h"

#include <QMenu>

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of number rain: where they are and what they are connected to.

namespace games {

namespace {

// Columns 1 to 20 between equal margins, and seventeen rows. With seventeen no number of any
// class can escape in a tick that launches one: a lost life leaves the start button alone on
// the screen and with the focus.
constexpr double Width = 11010;
constexpr double Height = 9270;

constexpr QRgb Amber = 0xFFFFC83D;
constexpr QRgb Ring = 0xFF8BE9FF; // neither a drop's colour nor the start button's
constexpr QRgb Moonlight = 0xFFF3F5FF; // texts on the sky
constexpr QRgb Panel = 0xFF10172C;

constexpr ui::look::Font ScoreFont{Family::CourierNew, 16, true};
constexpr ui::look::Font InstructionFont{Family::CourierNew, 15};
constexpr ui::look::Font StartFont{Family::Arial, 30, true};

QPalette textOn(QPalette palette, QRgb fill, QRgb text)
{
    palette.setColor(QPalette::Base, QColor(fill));
    palette.setColor(QPalette::Text, QColor(text));
    return palette;
}

} // namespace

Form5::Form5(ui::Screens& screens)
    : Screen(screens, screenName(), u"Lluvia de números - Fase 1"_s, Width, Height)
    , m_model(screens.random(), static_cast<int>(Height))
    , m_sky(new NightSky(this))
    , m_glide(new ui::Glide(
          [this](QWidget* control, double left, double top) { moveTo(control, left, top); },
          this))
{
    m_sky->lower();
    QPalette night = canvas()->palette();
    night.setColor(QPalette::Highlight, QColor(Ring));
    canvas()->setPalette(night);

    makeMenu();
    makeScoreboard();
    PbFoco = add(new QWidget(canvas()), u"PbFoco"_s, {-300, 0, 150, 150});
    PbFoco->setFocusPolicy(Qt::ClickFocus);
    PbFoco->setAccessibleName(u"Cielo"_s);
    CbEmpezar = button(u"CbEmpezar"_s, u"&EMPEZAR"_s, {3705, 3750, 3600, 1050}, Amber, StartFont);
    on(CbEmpezar, &QPushButton::clicked, &Form5::CbEmpezar_Click);
    makeNumber(0);
    Timer1 = timer(u"Timer1"_s, m_model.interval());
    Timer1->setTimerType(Qt::PreciseTimer);
    on(Timer1, &QTimer::timeout, &Form5::Timer1_Timer);
    Timer2 = timer(u"Timer2"_s, 10000);
    on(Timer2, &QTimer::timeout, &Form5::Timer2_Timer);
}

void Form5::makeMenu()
{
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    MnuOpcMod = menuList(options, u"MnuOpcMod"_s, {u"&Fácil"_s, u"&Normal"_s, u"&Difícil"_s});
    onList(MnuOpcMod, &Form5::MnuOpcMod_Click);
    on(item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form5::makeScoreboard()
{
    Text2[0] =
        displayBox(u"Text2(0)"_s, {500, 45, 2000, 375}, ScoreFont, u"Puntos"_s, u"100 puntos"_s);
    Text2[1] =
        displayBox(u"Text2(1)"_s, {8500, 45, 2000, 375}, ScoreFont, u"Vidas"_s, u"Vidas: 3"_s);
    for (ui::TextBox* box : Text2) {
        box->setFrame(true);
        box->setAlignment(Qt::AlignCenter);
        box->setPalette(textOn(ui::look::displayed(), Panel, Amber));
    }
    Text1 = displayBox(u"Text1"_s, {500, 435, 10000, 330}, InstructionFont, u"Instrucción"_s,
        u"Elimina 15 números impares "_s);
    Text1->setAlignment(Qt::AlignCenter);
    Text1->setPalette(textOn(ui::look::displayed(), 0, Moonlight));
}

void Form5::makeNumber(int slot)
{
    auto* drop = add(new RainDrop(canvas()), u"CbNave(%1)"_s.arg(slot),
        {0, 0, RainDrop::Width, RainDrop::Height});
    drop->hide();
    drop->setEnabled(false);
    on(drop, &QPushButton::clicked, &Form5::CbNave_Click, slot);
    onKeyDown(
        drop, [this](int keyCode, Qt::KeyboardModifiers) { return CbNave_KeyDown(keyCode); });
    CbNave[static_cast<std::size_t>(slot)] = drop;
}

} // namespace games
