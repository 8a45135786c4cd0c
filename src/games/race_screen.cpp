#include "games/race_screen.h"

#include "core/clock.h"
#include "core/defect.h"
#include "core/numbers.h"
#include "games/car_picture.h"
#include "games/race_options_screen.h"
#include "shell/exercise_screen.h"
#include "ui/picture.h"
#include "ui/screens.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;

namespace games {

namespace {

// Twips.
constexpr double Margin = 240;
constexpr double Width = RaceScene::Width + 2 * Margin;
constexpr double PanelTop = 120;
constexpr double KeypadTop = 45; // it ends above the sky
constexpr double SceneTop = 2055;
constexpr double TrayMargin = 180; // around the buttons
constexpr double TrayGap = 100; // above and below the tray
constexpr double CommandTop = SceneTop + RaceScene::Height + TrayGap + TrayMargin;
constexpr double CommandWidth = 2520;
constexpr double CommandHeight = 560;
constexpr double Height = CommandTop + CommandHeight + TrayMargin + TrayGap;

constexpr int Second = 1000; // milliseconds

/// What a step of the pupil's car takes: it has no clock, and the next answer comes later.
constexpr std::chrono::milliseconds PupilStep{700};

constexpr int LastOfRow = RacePanel::RowBoxes - 1;

} // namespace

FrmCarrera::FrmCarrera(ui::Screens& screens)
    : Screen(screens, screenName(), u"La gran carrera"_s, Width, Height)
    , m_race(screens.random())
    , m_scene(new RaceScene(*this, {Margin, SceneTop}, {Width, Height}, this))
    , m_panel(*this, {Margin, PanelTop})
    , m_keypad(*this, *this, {Width - Margin, KeypadTop}, *m_panel.TBResultado,
          {.enter = [this] { TBResultado_KeyPress(QChar(ui::key::Enter)); },
              .letGoOfFocus = [this] { focusNoButton(); }})
{
    connectPanel();
    makeCommands();
    makeTimers();
    onKeyDown(this, [this](int keyCode, Qt::KeyboardModifiers) { return Form_KeyDown(keyCode); });
}

void FrmCarrera::connectPanel()
{
    onKeyPress(
        m_panel.TBResultado, [this](QChar character) { return TBResultado_KeyPress(character); });
    for (int i = 0; i < RacePanel::RowBoxes; ++i)
        onKeyPress(core::at(m_panel.Text2, i),
            [this, i](QChar character) { return Text2_KeyPress(i, character); });
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

void FrmCarrera::makeTimers()
{
    Timer1 = timer(u"Timer1"_s, Second);
    Timer2 = timer(u"Timer2"_s, m_race.rivalInterval());
    for (QTimer* timer : {Timer1, Timer2})
        timer->setTimerType(Qt::PreciseTimer);
    on(Timer1, &QTimer::timeout, &FrmCarrera::Timer1_Timer);
    on(Timer2, &QTimer::timeout, &FrmCarrera::Timer2_Timer);
}

void FrmCarrera::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    Command1[0]->setFill(ui::look::Yellow);
    Command1[1]->setFill(ui::look::Cyan);
    NombresImagen = pictureNames();
    m_keypad.CreaTeclado();
    m_panel.TBResultado->setFocus();
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
    m_panel.TBOperacion->clear(); // what stays when a picture cannot be read: no race
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
    m_panel.TBOperacion->setText(m_race.operation());
    m_panel.TBResultado->clear();
    m_panel.TBResultado->setFocus();
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
    const auto verdict = m_race.judge(core::readNumber(m_panel.TBResultado->text()));
    if (verdict == shell::Verdict::Wrong) {
        m_panel.TBResultado->clear();
        showWrongAnswer();
        beep();
    } else if (verdict == shell::Verdict::Right) {
        showVerdict();
        NuevaOperacion();
        showRightAnswer();
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
    const auto verdict = m_race.judgeRow(core::readNumber(m_panel.Text2[LastOfRow]->text()));
    if (verdict == shell::Verdict::Wrong) {
        showWrongAnswer();
        m_panel.Text2[LastOfRow]->clear();
    } else if (verdict == shell::Verdict::Right) {
        showVerdict();
        showRightAnswer();
    }
    return ui::KeyResult::Swallow;
}

void FrmCarrera::showVerdict()
{
    shell::showVerdict(*m_panel.Text4, m_race.verdict());
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
    m_panel.Text4->setVerdict({}, ui::VerdictBox::Mark::None);
    m_scene->track()->setFocus(); // no button: the next Enter must not press it
    m_panel.TBResultado->setEnabled(false);
}

// To where Enter starts no race: a button that hides would hand the focus on to the next one.
void FrmCarrera::focusNoButton()
{
    if (m_panel.TBResultado->isEnabled())
        m_panel.TBResultado->setFocus();
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
    m_panel.showTime(m_race.seconds());
}

void FrmCarrera::Command1_Click(int Index)
{
    stopTimers();
    m_race.reset();
    showTime();
    m_panel.TBResultado->setEnabled(true);
    m_panel.TBResultado->setFocus();
    if (Index == 0)
        chooseOptions();
    else
        PreparaCarrera();
}

// Meant, odd as it is: the blank in front changes how the operation stands and nothing else.
ui::KeyResult FrmCarrera::Form_KeyDown(int KeyCode)
{
    if (KeyCode == ui::key::Control)
        m_panel.shiftOperation();
    return ui::KeyResult::Pass;
}

} // namespace games
