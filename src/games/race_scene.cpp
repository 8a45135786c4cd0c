#include "games/race_scene.h"

#include "games/race_course.h"
#include "games/race_podium.h"
#include "ui/control_factory.h"

using namespace Qt::StringLiterals;

namespace games {

namespace {

// Twips.
constexpr double CarHeight = 1000; // the pictures differ in size, the cars do not
constexpr double Lane = RaceTrack::Height / 2;
constexpr double NudgeBack = 90; // towards the start
constexpr std::chrono::milliseconds NudgeTime{320};

} // namespace

RaceScene::RaceScene(ui::ControlFactory& factory, QPointF corner, QSizeF canvas, QObject* parent)
    : QObject(parent)
    , m_factory(factory)
    , m_verge(factory.add(new RaceVerge(factory.canvas()), u"raceVerge"_s,
          {corner.x(), corner.y(), Width, Height}))
    , Picture1(factory.add(new RaceTrack(factory.canvas()), u"Picture1"_s,
          {corner.x(), corner.y() + RaceVerge::Above, Width, RaceTrack::Height}))
    , m_podium(factory.add(new RacePodium(factory.canvas()), u"racePodium"_s,
          {0, 0, canvas.width(), canvas.height()}))
    , m_glide(new ui::Glide(
          [&factory](QWidget* control, double x, double y) { factory.moveTo(control, x, y); },
          this))
{
    Picture1->setAccessibleName(u"Pista"_s);
    const std::array<QString, 2> names{u"Tu coche"_s, u"El coche de tu rival"_s};
    for (std::size_t i = 0; i < Image1.size(); ++i) {
        Image1[i] = factory.add(
            new QLabel(Picture1), u"Image1(%1)"_s.arg(i), {RaceCourse::StartLeft, 0, 0, 0});
        Image1[i]->setAccessibleName(names[i]);
        Image1[i]->setScaledContents(true);
    }
}

void RaceScene::lineUp(const QImage& pupil, const QImage& rival)
{
    lineUp(Pupil, pupil);
    lineUp(Rival, rival);
    setSolved(0);
}

void RaceScene::lineUp(Car car, const QImage& picture)
{
    QLabel* image = Image1[car];
    const double width = CarHeight * picture.width() / picture.height();
    const double top = (Lane - CarHeight) / 2 + (car == Pupil ? 0 : Lane);
    m_glide->put(image, {RaceCourse::StartLeft, top});
    m_factory.place(image, {RaceCourse::StartLeft, top, width, CarHeight});
    image->setPixmap(QPixmap::fromImage(picture));
}

void RaceScene::drive(Car car, double left, std::chrono::milliseconds time)
{
    const ui::TwipRect from = m_factory.placeOf(Image1[car]);
    m_glide->send(Image1[car], {from.left, from.top}, {left, from.top}, time);
}

void RaceScene::nudge()
{
    const ui::TwipRect at = m_factory.placeOf(Image1[Pupil]);
    m_glide->nudge(Image1[Pupil], {at.left, at.top}, {NudgeBack, 0}, NudgeTime);
}

void RaceScene::setRunning(bool running)
{
    m_verge->setRunning(running);
}

void RaceScene::setSolved(int steps)
{
    Picture1->setPassedMarks(steps);
}

void RaceScene::celebrate(bool celebrating)
{
    m_podium->setVisible(celebrating);
    m_podium->raise();
}

} // namespace games
