#include "games/race_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "games/car_picture.h"
#include "games/race_options_screen.h"
#include "games/race_track.h"
#include "ui/announcement.h"
#include "ui/glide.h"
#include "ui/picture.h"
#include "ui/screens.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr double CarHeight = 1000;
constexpr double Lane = RaceTrack::Height / 2;

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
    CreaTeclado();
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
        if (!options.isUnloaded()) // else all are being closed
            PreparaCarrera();
    });
}

void FrmCarrera::PreparaCarrera()
{
    TBOperacion->clear(); // what stays when a picture cannot be read: no race
    const auto& options = screens().load<DlgCarrera>();
    const QImage player = carPicture(options.Personaje());
    const QImage rival = carPicture(options.Rival());
    m_race.PreparaCarrera({options.Personaje(), options.Rival(), options.Tipo()});
    putCar(0, player);
    putCar(1, rival);
    Timer2->setInterval(m_race.rivalInterval());
    m_verge->setRunning(false);
    showTime();
    NuevaOperacion();
}

QImage FrmCarrera::carPicture(core::Int16 position) const
{
    return withoutRoad(
        ui::loadPicture(screens().resources(), pictureName(NombresImagen, position)));
}

void FrmCarrera::putCar(std::size_t index, const QImage& picture)
{
    QLabel* car = Image1.at(index);
    const double width = CarHeight * picture.width() / picture.height();
    const double top = (Lane - CarHeight) / 2 + static_cast<double>(index) * Lane;
    m_glide->put(car, {Race::StartLine, top});
    place(car, {Race::StartLine, top, width, CarHeight});
    car->setPixmap(QPixmap::fromImage(picture));
}

void FrmCarrera::moveCar(std::size_t index, double left)
{
    const ui::TwipRect from = placeOf(Image1.at(index));
    m_glide->send(Image1.at(index), {from.left, from.top}, {left, from.top});
}

void FrmCarrera::NuevaOperacion()
{
    TBOperacion->setText(m_race.operation());
    ui::announce(*TBOperacion, m_race.operation());
    TBResultado->clear();
    TBResultado->setFocus();
}

ui::KeyResult FrmCarrera::TBResultado_KeyPress(QChar character)
{
    if (character != QChar(ui::key::Enter))
        return ui::KeyResult::Pass;
    const auto verdict = m_race.answer(core::readNumber(TBResultado->text()));
    switch (verdict) {
    case Race::Verdict::Ignored:
        break;
    case Race::Verdict::Wrong:
        TBResultado->clear();
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Wrong);
        beep();
        break;
    case Race::Verdict::Right:
    case Race::Verdict::Won:
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Right);
        NuevaOperacion();
        showRightAnswer(verdict);
        break;
    }
    return ui::KeyResult::Swallow;
}

ui::KeyResult FrmCarrera::Text2_KeyPress(int Index, QChar character)
{
    if (m_race.isOver()) {
        ui::MessageBox::show(
            *this, u"La carrera ha terminado. Pulsa en uno de los botones inferiores."_s);
        return ui::KeyResult::Swallow;
    }
    if (Index != 4 || character != QChar(ui::key::Enter))
        return ui::KeyResult::Pass;
    const auto verdict = m_race.answerInRow(core::readNumber(Text2[4]->text()));
    if (verdict == Race::Verdict::Wrong) {
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Wrong);
        Text2[4]->clear();
    } else if (verdict != Race::Verdict::Ignored) {
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Right);
        showRightAnswer(verdict);
    }
    return ui::KeyResult::Swallow;
}

void FrmCarrera::showRightAnswer(Race::Verdict verdict)
{
    for (QTimer* timer : {Timer1, Timer2}) {
        if (!timer->isActive())
            timer->start();
    }
    moveCar(0, m_race.playerLeft());
    m_verge->setRunning(true);
    if (verdict == Race::Verdict::Won)
        endRace(m_race.wonText());
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
    moveCar(1, m_race.rivalLeft());
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
    Picture1->setFocus(); // no button: the next Enter must not press it
    TBResultado->setEnabled(false);
}

void FrmCarrera::stopTimers()
{
    Timer1->stop();
    Timer2->stop();
    m_verge->setRunning(false);
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

ui::KeyResult FrmCarrera::Form_KeyDown(int KeyCode)
{
    if (KeyCode != ui::key::Control)
        return ui::KeyResult::Pass;
    const QString text = TBOperacion->text();
    TBOperacion->setText(text.startsWith(u' ') ? text.mid(1) : u' ' + text);
    return ui::KeyResult::Pass;
}

void FrmCarrera::beep()
{
    QApplication::beep();
}

} // namespace games
