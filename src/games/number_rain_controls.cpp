#include "games/number_rain_screen.h"

#include "games/night_sky.h"
#include "games/rain_field.h"
#include "games/rain_grid.h"
#include "games/token_row.h"
#include "ui/screens.h"

#include <QMenu>

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of number rain: where they are and what they are connected to.

namespace games {

namespace {

// Twips. Wide enough for a number that starts in the last column and always drifts to the
// right. High enough for thirteen rows: with thirteen no number of any class can escape in a
// tick that launches one, so a lost life leaves the start button alone on the screen and with
// the focus.
constexpr double Width = 17040;
constexpr double Height = 7260;

constexpr double Margin = 500;
constexpr double ScoreTop = 30;
constexpr double ScoreHeight = 375;
constexpr double PointsWidth = 2400;
constexpr double LivesWidth = 2100;
constexpr double StarPitch = 390;
constexpr double HeartPitch = 390;
constexpr double InstructionTop = 420;
constexpr double InstructionHeight = 345;
constexpr double StartWidth = 3600;
constexpr double StartHeight = 1050;

constexpr QRgb Amber = 0xFFFFC83D;
constexpr QRgb Ring = 0xFF8BE9FF; // neither a drop's colour nor the start button's
constexpr QRgb Moonlight = 0xFFF3F5FF; // texts on the sky
constexpr QRgb Panel = 0xFF10172C;

constexpr int MenuType = 17; // this screen opens small
constexpr ui::look::Font ScoreFont{Family::CourierNew, 17, true};
constexpr ui::look::Font InstructionFont{Family::CourierNew, 17, true};
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
    , m_model(screens.random(), RainGrid::lastRow(static_cast<int>(Height)))
    , m_sky(new NightSky(this))
    , m_field(new RainField(*this, this))
{
    m_sky->stackUnder(canvas());
    QPalette night = canvas()->palette();
    night.setColor(QPalette::Highlight, QColor(Ring));
    canvas()->setPalette(night);
    canvas()->setAutoFillBackground(false); // the sky is its surface

    makeMenu();
    makeScoreboard();
    makeStart();
    makeNumber(0);
    makeClocks();
}

void Form5::makeMenu()
{
    setMenuType(MenuType);
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    MnuOpcMod = menuList(options, u"MnuOpcMod"_s, {u"&Fácil"_s, u"&Normal"_s, u"&Difícil"_s});
    onList(MnuOpcMod, &Form5::MnuOpcMod_Click);
    on(item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form5::makeScoreboard()
{
    constexpr double LivesLeft = Width - Margin - LivesWidth;
    constexpr double HeartsWidth = RainState::FullLives * HeartPitch;
    constexpr double StarsWidth = RainScore::HitsToPass * StarPitch;
    Text2[0] = displayBox(u"Text2(0)"_s, {Margin, ScoreTop, PointsWidth, ScoreHeight}, ScoreFont,
        u"Puntos"_s, u"100 puntos"_s);
    Text2[1] = displayBox(u"Text2(1)"_s, {LivesLeft, ScoreTop, LivesWidth, ScoreHeight},
        ScoreFont, u"Vidas"_s, u"Vidas: 3"_s);
    for (ui::TextBox* box : Text2) {
        box->setFrame(true);
        box->setAlignment(Qt::AlignCenter);
        box->setPalette(textOn(ui::look::displayed(), Panel, Amber));
    }
    m_stars = add(new TokenRow(TokenRow::Shape::Star, RainScore::HitsToPass, canvas()),
        u"rainHits"_s, {(Width - StarsWidth) / 2, ScoreTop, StarsWidth, ScoreHeight});
    m_hearts = add(new TokenRow(TokenRow::Shape::Heart, RainState::FullLives, canvas()),
        u"rainLives"_s, {LivesLeft - HeartsWidth - 150, ScoreTop, HeartsWidth, ScoreHeight});
    Text1 =
        displayBox(u"Text1"_s, {Margin, InstructionTop, Width - 2 * Margin, InstructionHeight},
            InstructionFont, u"Instrucción"_s, u"Elimina 15 números impares "_s); // never seen
    Text1->setAlignment(Qt::AlignCenter);
    Text1->setPalette(textOn(ui::look::displayed(), 0, Moonlight));
}

void Form5::makeStart()
{
    PbFoco = add(new QWidget(canvas()), u"PbFoco"_s, {-300, 0, 150, 150});
    PbFoco->setFocusPolicy(Qt::ClickFocus);
    CbEmpezar = button(u"CbEmpezar"_s, u"&EMPEZAR"_s,
        {(Width - StartWidth) / 2, (Height - StartHeight) / 2, StartWidth, StartHeight}, Amber,
        StartFont);
    on(CbEmpezar, &QPushButton::clicked, &Form5::CbEmpezar_Click);
    m_field->watch(PbFoco);
    m_field->watch(CbEmpezar);
    on(m_field, &RainField::pressedNear, &Form5::CbNave_Click);
}

void Form5::makeClocks()
{
    Timer1 = timer(u"Timer1"_s, m_model.interval());
    Timer1->setTimerType(Qt::PreciseTimer);
    on(Timer1, &QTimer::timeout, &Form5::Timer1_Timer);
    Timer2 = timer(u"Timer2"_s, 10000); // nothing starts it: meant
    on(Timer2, &QTimer::timeout, &Form5::Timer2_Timer);
}

void Form5::makeNumber(int slot)
{
    RainDrop* drop = m_field->make(slot);
    on(drop, &QPushButton::clicked, &Form5::CbNave_Click, slot);
    onKeyDown(
        drop, [this](int keyCode, Qt::KeyboardModifiers) { return CbNave_KeyDown(keyCode); });
}

} // namespace games
