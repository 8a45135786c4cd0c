#include "games/number_rain_screen.h"

#include "core/clock.h"
#include "core/defect.h"
#include "games/night_sky.h"
#include "games/rain_field.h"
#include "games/rain_grid.h"
#include "ui/screens.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace games {

namespace {

// Twips. Wide enough for a number that starts in the last column and always drifts to the
// right. High enough for thirteen rows: with thirteen no number of any class can escape in a
// tick that launches one, so a lost life leaves the start button alone on the screen and with
// the focus.
constexpr double Width = 17040;
constexpr double Height = 7260;
constexpr double StartWidth = 3600;
constexpr double StartHeight = 1050;

constexpr QRgb Ring = 0xFF8BE9FF; // neither a drop's colour nor the start button's

constexpr int MenuType = 17; // this screen opens small
constexpr ui::look::Font StartFont{ui::look::Family::Arial, 30, true};

} // namespace

Form5::Form5(ui::Screens& screens)
    : Screen(screens, screenName(), u"Lluvia de números - Fase 1"_s, Width, Height)
    , m_model(screens.random(), RainGrid::lastRow(static_cast<int>(Height)))
    , m_sky(new NightSky(this))
    , m_field(new RainField(*this, this))
    , m_scoreboard(*this, Width)
    , m_focus(*this, screens.clock())
{
    m_sky->stackUnder(canvas());
    QPalette night = canvas()->palette();
    night.setColor(QPalette::Highlight, QColor(Ring));
    canvas()->setPalette(night);
    canvas()->setAutoFillBackground(false); // the sky is its surface

    makeMenu();
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

void Form5::makeStart()
{
    CbEmpezar = button(u"CbEmpezar"_s, u"&EMPEZAR"_s,
        {(Width - StartWidth) / 2, (Height - StartHeight) / 2, StartWidth, StartHeight},
        RainScoreboard::Amber, StartFont);
    on(CbEmpezar, &QPushButton::clicked, &Form5::CbEmpezar_Click);
    m_field->watch(m_focus.place());
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

void Form5::Form_Load()
{
    for (int slot = 1; slot < RainFall::Slots; ++slot)
        makeNumber(slot);
    CbEmpezar->raise(); // above numbers that wait with it
    MnuOpcMod_Click(0);
    core::seedByClock(screens().random(), screens().clock());
}

void Form5::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    constexpr double CloudEnd = RainGrid::Pitch * (RainFall::Columns + 1) + RainDrop::Width;
    m_sky->setFactor(factor());
    m_sky->cover(canvas()->geometry(), CloudEnd * factor() / ui::TwipsPerPixel);
}

void Form5::MnuOpcMod_Click(int Index)
{
    MnuOpcMod.check(Index);
    const RainStep step = m_model.chooseDifficulty(static_cast<Difficulty>(Index));
    Timer1->setInterval(m_model.interval());
    play(step);
}

void Form5::CbEmpezar_Click()
{
    m_scoreboard.pretendToTakeInstruction();
    play(m_model.start());
    Timer1->start();
}

void Form5::CbNave_Click(int Index)
{
    play(m_model.click(Index));
}

void Form5::Timer1_Timer()
{
    play(m_model.tick());
}

void Form5::Timer2_Timer()
{
    m_model.enableClock();
    Timer1->start();
    Timer2->stop();
}

void Form5::play(RainStep step)
{
    show(step);
    while (step.box) {
        step = m_model.answer(ask(*step.box));
        show(step);
    }
    if (m_model.over())
        unload();
}

bool Form5::ask(const RainBox& box)
{
    if (box.kind == RainBox::Kind::GameOver)
        return ui::MessageBox::ask(*this, box.text, box.title);
    ui::MessageBox::show(*this, box.text, box.title);
    return true;
}

void Form5::show(const RainStep& step)
{
    if (!m_model.running())
        Timer1->stop();
    setWindowTitle(m_model.caption());
    m_scoreboard.showScore(m_model);
    if (step.phasePrepared) {
        m_scoreboard.showInstruction(m_model.instruction());
        sayExercise();
    }
    for (const RainEvent& event : step.events) {
        m_field->splash(event);
        tell(event);
    }
    tellLives();
    for (int slot = 0; slot < RainFall::Slots; ++slot)
        showNumber(slot, step.launched == slot);
    if (!m_model.waiting())
        m_focus.leave(CbEmpezar);
    CbEmpezar->setEnabled(m_model.waiting());
    CbEmpezar->setVisible(m_model.waiting());
    giveFocus(step);
    for (int beeps = step.beeps; beeps > 0; --beeps)
        beep();
}

void Form5::showNumber(int slot, bool launched)
{
    const Gota& gota = core::at(m_model.fall().Gotas(), slot);
    if (core::at(m_model.fall().Libre(), slot)) {
        m_focus.leave(m_field->drop(slot));
        m_field->clear(slot);
    } else if (launched) {
        m_field->launch(slot, gota);
    } else {
        m_field->flow(slot, gota, std::chrono::milliseconds(m_model.interval()));
    }
}

void Form5::giveFocus(const RainStep& step)
{
    if (step.cleared)
        m_focus.rest();
    if (step.waits)
        CbEmpezar->setFocus();
    if (step.launched)
        m_focus.take(m_field->drop(*step.launched));
}

/// A new number is read aloud by its focus; this says what became of one.
void Form5::tell(const RainEvent& event)
{
    switch (event.kind) {
    case RainEvent::Kind::Hit:
        say(u"Acierto %1"_s.arg(m_model.state().Aciertos.value()));
        break;
    case RainEvent::Kind::Miss:
        say(u"Error"_s);
        break;
    case RainEvent::Kind::Escape:
        break; // the beep tells
    }
}

void Form5::tellLives()
{
    if (m_model.state().Vidas == m_toldLives)
        return;
    m_toldLives = m_model.state().Vidas;
    say(u"Vidas: %1"_s.arg(m_toldLives.value()));
}

ui::KeyResult Form5::CbNave_KeyDown(int KeyCode) const
{
    const bool hits = KeyCode == ui::key::Space || KeyCode == ui::key::Enter;
    return hits && m_focus.isUnnoticed() ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
}

} // namespace games
