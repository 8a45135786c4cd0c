#include "games/number_rain_screen.h"

#include "core/clock.h"
#include "core/defect.h"
#include "games/night_sky.h"
#include "games/rain_field.h"
#include "games/rain_grid.h"
#include "games/token_row.h"
#include "ui/screens.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace games {

namespace {

/// A key pressed so soon after a launch has taken the focus was meant for the number before.
constexpr std::chrono::milliseconds TimeToNotice{250};

} // namespace

QString Form5::screenName()
{
    return u"Form5"_s;
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
    Text1->setSelection(0, 1); // not even the first letter goes: meant
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
    showScore();
    if (step.phasePrepared) {
        Text1->setText(m_model.instruction());
        Text1->showSelected();
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
        leaveWithFocus(CbEmpezar);
    CbEmpezar->setEnabled(m_model.waiting());
    CbEmpezar->setVisible(m_model.waiting());
    giveFocus(step);
    for (int beeps = step.beeps; beeps > 0; --beeps)
        beep();
}

void Form5::showScore()
{
    // Only what has changed: a screen reader looks into every text that is set, and would fall
    // behind the numbers.
    const std::array texts{m_model.pointsText(), m_model.livesText()};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (Text2.at(i)->text() != texts.at(i))
            Text2.at(i)->setText(texts.at(i));
    }
    m_stars->setLit(m_model.state().Aciertos.value());
    m_hearts->setLit(m_model.state().Vidas.value());
}

void Form5::showNumber(int slot, bool launched)
{
    const Gota& gota = core::at(m_model.fall().Gotas(), slot);
    if (core::at(m_model.fall().Libre(), slot)) {
        leaveWithFocus(m_field->drop(slot));
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
        PbFoco->setFocus();
    if (step.waits)
        CbEmpezar->setFocus();
    if (step.launched)
        focusNew(*step.launched);
}

void Form5::focusNew(int slot)
{
    m_focusTaken.reset();
    if (dynamic_cast<RainDrop*>(focusWidget()) != nullptr)
        m_focusTaken = clock().elapsed();
    m_field->drop(slot)->setFocus();
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
