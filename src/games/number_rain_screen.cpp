#include "games/number_rain_screen.h"

#include "core/clock.h"
#include "games/night_sky.h"
#include "games/rain_drop.h"
#include "ui/announcement.h"
#include "ui/glide.h"
#include "ui/screens.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace games {

namespace {

constexpr std::array<QRgb, 5> Colores{
    0xFFFF0000, 0xFFFFFF00, 0xFFFFA500, 0xFF00FF00, 0xFF0000FF}; // classes 1 to 5

/// A key pressed so soon after a launch has taken the focus was meant for the number before.
constexpr std::chrono::milliseconds TimeToNotice{250};

} // namespace

QString Form5::screenName()
{
    return u"Form5"_s;
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
    m_sky->setFactor(factor());
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
        m_focusTaken.reset();
        if (dynamic_cast<RainDrop*>(focusWidget()) != nullptr)
            m_focusTaken = clock().elapsed();
        CbNave[static_cast<std::size_t>(launched.value())]->setFocus();
        break;
    }
}

ui::KeyResult Form5::CbNave_KeyDown(int KeyCode) const
{
    const bool hits = KeyCode == ui::key::Space || KeyCode == ui::key::Enter;
    const bool misses = m_focusTaken && clock().elapsed() - *m_focusTaken < TimeToNotice;
    return hits && misses ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
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
