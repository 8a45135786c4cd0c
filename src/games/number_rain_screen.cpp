#include "games/number_rain_screen.h"

#include "core/clock.h"
#include "games/night_sky.h"
#include "games/rain_drop.h"
#include "ui/announcement.h"
#include "ui/glide.h"
#include "ui/screens.h"

#include <QApplication>
#include <QMenu>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace games {

namespace {

// Columns 1 to 20 between equal margins, and seventeen rows. With seventeen no number of any
// class can escape in a tick that launches one: a lost life leaves the start button alone on
// the screen and with the focus.
constexpr double Width = 11010;
constexpr double Height = 9270;

constexpr std::array<QRgb, 5> Colores{
    0xFFFF0000, 0xFFFFFF00, 0xFFFFA500, 0xFF00FF00, 0xFF0000FF}; // classes 1 to 5

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

QString Form5::screenName()
{
    return u"Form5"_s;
}

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
    CbNave[static_cast<std::size_t>(slot)] = drop;
}

void Form5::Form_Load()
{
    for (int slot = 1; slot < RainState::Slots; ++slot)
        makeNumber(slot);
    CbEmpezar->raise(); // above numbers that wait with it
    MnuOpcMod_Click(0);
    core::seedByClock(screens().random(), screens().clock());
}

void Form5::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    m_sky->setGeometry(rect());
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
    Text1->setSelection(0, 1);
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
    Text2[0]->setText(m_model.pointsText());
    Text2[1]->setText(m_model.livesText());
    if (step.phasePrepared) {
        Text1->setText(m_model.instruction());
        Text1->showSelected();
        ui::announce(*Text1, m_model.instruction());
    }
    for (int slot = 0; slot < RainState::Slots; ++slot)
        showNumber(slot, step.launched == slot);
    if (!m_model.waiting())
        leaveWithFocus(CbEmpezar);
    CbEmpezar->setEnabled(m_model.waiting());
    CbEmpezar->setVisible(m_model.waiting());
    if (step.focus)
        giveFocus(*step.focus, step.launched);
    for (int beeps = step.beeps; beeps > 0; --beeps)
        beep();
}

void Form5::showNumber(int slot, bool launched)
{
    const auto index = static_cast<std::size_t>(slot);
    RainDrop* drop = CbNave[index];
    if (m_model.state().Libre[index]) {
        leaveWithFocus(drop);
        drop->hide();
        drop->setEnabled(false);
        return;
    }
    const Gota& gota = m_model.state().Gotas[index];
    const QPointF place(gota.left(), gota.top());
    if (!launched) {
        const ui::TwipRect from = placeOf(drop);
        m_glide->send(drop, {from.left, from.top}, place);
        return;
    }
    drop->setText(QString::number(gota.Valor.value()));
    drop->setFill(Colores[static_cast<std::size_t>(gota.Velocidad.value() - 1)]);
    setControlFont(drop, {Family::CourierNew, RainDrop::digitPixels(drop->text()), true});
    m_glide->put(drop, place);
    drop->setEnabled(true);
    drop->show();
}

void Form5::giveFocus(RainFocus focus, std::optional<int> launched)
{
    switch (focus) {
    case RainFocus::CbEmpezar:
        CbEmpezar->setFocus();
        break;
    case RainFocus::PbFoco:
        PbFoco->setFocus();
        break;
    case RainFocus::CbNave:
        CbNave[static_cast<std::size_t>(launched.value())]->setFocus();
        break;
    }
}

// The toolkit would hand the focus of a control that goes to the next one, and a pupil's
// space bar would then hit another number.
void Form5::leaveWithFocus(QWidget* control)
{
    if (focusWidget() == control)
        PbFoco->setFocus();
}

void Form5::beep()
{
    QApplication::beep();
}

} // namespace games
