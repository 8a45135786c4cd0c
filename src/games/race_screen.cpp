#include "games/race_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "games/car_picture.h"
#include "games/race_keypad.h"
#include "games/race_options_screen.h"
#include "shell/exercise_screen.h"
#include "ui/picture.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;

namespace games {

namespace {

/// What a step of the pupil's car takes: it has no clock, and the next answer comes later.
constexpr std::chrono::milliseconds PupilStep{700};

constexpr std::size_t LastOfRow = 4;

} // namespace

QString FrmCarrera::screenName()
{
    return u"FrmCarrera"_s;
}

void FrmCarrera::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    Command1[0]->setFill(ui::look::Yellow);
    Command1[1]->setFill(ui::look::Cyan);
    NombresImagen = pictureNames();
    m_keypad->CreaTeclado();
    TBResultado->setFocus();
}

void FrmCarrera::Form_Activate()
{
    chooseOptions();
}

void FrmCarrera::Form_QueryUnload()
{
    screens().unload(DlgCarrera::screenName());
}

void FrmCarrera::chooseOptions()
{
    screens().showModal<DlgCarrera>(*this, [this](const DlgCarrera& options) {
        if (options.isUnloaded()) // all are being closed
            return;
        m_options = {options.Personaje(), options.Rival(), options.Tipo()};
        PreparaCarrera();
    });
}

void FrmCarrera::PreparaCarrera()
{
    TBOperacion->clear(); // what stays when a picture cannot be read: no race
    const QImage player = carPicture(m_options.Personaje);
    const QImage rival = carPicture(m_options.Rival);
    m_race.PreparaCarrera(m_options);
    m_scene->lineUp(player, rival);
    m_scene->setRunning(false);
    Timer2->setInterval(m_race.rivalInterval());
    showTime();
    NuevaOperacion();
}

QImage FrmCarrera::carPicture(core::Int16 position) const
{
    return withoutRoad(
        ui::loadPicture(screens().resources(), pictureName(NombresImagen, position)));
}

void FrmCarrera::NuevaOperacion()
{
    TBOperacion->setText(m_race.operation());
    TBResultado->clear();
    TBResultado->setFocus();
    if (!m_race.isOver())
        sayExercise();
}

QString FrmCarrera::spokenExercise() const
{
    return m_race.isOver() ? Race::overText() : m_race.spokenOperation();
}

ui::KeyResult FrmCarrera::TBResultado_KeyPress(QChar character)
{
    if (character != QChar(ui::key::Enter))
        return ui::KeyResult::Pass;
    switch (m_race.judge(core::readNumber(TBResultado->text()))) {
    case shell::Verdict::NotJudged:
        break;
    case shell::Verdict::Wrong:
        TBResultado->clear();
        showWrongAnswer();
        beep();
        break;
    case shell::Verdict::Right:
        showVerdict();
        NuevaOperacion();
        showRightAnswer();
        break;
    }
    return ui::KeyResult::Swallow;
}

ui::KeyResult FrmCarrera::Text2_KeyPress(int Index, QChar character)
{
    if (m_race.isOver()) {
        ui::MessageBox::show(*this, Race::overText());
        return ui::KeyResult::Swallow;
    }
    if (Index != LastOfRow || character != QChar(ui::key::Enter))
        return ui::KeyResult::Pass;
    switch (m_race.judgeRow(core::readNumber(Text2[LastOfRow]->text()))) {
    case shell::Verdict::NotJudged:
        break;
    case shell::Verdict::Wrong:
        showWrongAnswer();
        Text2[LastOfRow]->clear();
        break;
    case shell::Verdict::Right:
        showVerdict();
        showRightAnswer();
        break;
    }
    return ui::KeyResult::Swallow;
}

void FrmCarrera::showVerdict()
{
    shell::showVerdict(*Text4, m_race.verdict());
    say(m_race.spokenStandings());
}

void FrmCarrera::showWrongAnswer()
{
    showVerdict();
    m_scene->nudge();
}

void FrmCarrera::showRightAnswer()
{
    for (QTimer* timer : {Timer1, Timer2}) {
        if (!timer->isActive())
            timer->start();
    }
    m_scene->setRunning(true);
    m_scene->setSolved(m_race.solved());
    m_scene->drive(RaceScene::Pupil, m_course.playerLeft(m_race.solved()), PupilStep);
    if (!m_race.isOver())
        return;
    m_scene->celebrate(true);
    endRace(m_race.wonText());
    m_scene->celebrate(false);
}

void FrmCarrera::Timer1_Timer()
{
    m_race.secondPassed();
    showTime();
}

void FrmCarrera::Timer2_Timer()
{
    const auto step = m_race.rivalStep();
    if (step == Race::RivalStep::Ignored)
        return;
    m_scene->drive(
        RaceScene::Rival, m_course.rivalLeft(m_race.rivalSteps()), Timer2->intervalAsDuration());
    if (step == Race::RivalStep::Won)
        endRace(m_race.lostText());
}

void FrmCarrera::endRace(const QString& text)
{
    stopTimers();
    ui::MessageBox::show(*this, text, windowTitle());
    for (ui::Button* command : Command1)
        command->setEnabled(true);
    Text4->setVerdict({}, ui::VerdictBox::Mark::None);
    m_scene->track()->setFocus(); // no button: the next Enter must not press it
    TBResultado->setEnabled(false);
}

// To where Enter starts no race: a button that hides would hand the focus on to the next one.
void FrmCarrera::focusNoButton()
{
    if (TBResultado->isEnabled())
        TBResultado->setFocus();
    else
        m_scene->track()->setFocus();
}

void FrmCarrera::stopTimers()
{
    Timer1->stop();
    Timer2->stop();
    m_scene->setRunning(false);
}

void FrmCarrera::showTime()
{
    m_time->setText(u"Tiempo: %1 s"_s.arg(m_race.seconds()));
}

void FrmCarrera::Command1_Click(int Index)
{
    stopTimers();
    m_race.reset();
    showTime();
    TBResultado->setEnabled(true);
    TBResultado->setFocus();
    if (Index == 0)
        chooseOptions();
    else
        PreparaCarrera();
}

void FrmCarrera::CBConmutar_Click()
{
    focusNoButton();
    m_keypad->show();
}

void FrmCarrera::CBCalcu_Click(int Index)
{
    if (Index == RaceKeypad::HideKey) {
        focusNoButton();
        m_keypad->hide();
        return;
    }
    if (Index == RaceKeypad::EnterKey) {
        TBResultado_KeyPress(QChar(ui::key::Enter));
        return;
    }
    TBResultado->setEdge({}); // as when it is typed into
    if (Index == RaceKeypad::ClearKey)
        TBResultado->clear();
    else
        TBResultado->setText(TBResultado->text() + RaceKeypad::digit(Index));
}

// Meant, odd as it is: the blank in front changes how the operation stands and nothing else.
ui::KeyResult FrmCarrera::Form_KeyDown(int KeyCode)
{
    if (KeyCode != ui::key::Control)
        return ui::KeyResult::Pass;
    const QString text = TBOperacion->text();
    TBOperacion->setText(text.startsWith(u' ') ? text.mid(1) : u' ' + text);
    return ui::KeyResult::Pass;
}

} // namespace games
