#include "ui/glide.h"

#include "support/animation_clock.h"
#include "support/screen_bench.h"
#include "support/still_style.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto Step = 200ms;
constexpr int Trip = 190; // milliseconds: nearly the whole step

} // namespace

/// Motion of controls. Places are pixels here: the glide only hands them to its mover.
class GlideTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        QApplication::setStyle(new ui::Style);
        clock = std::make_unique<AnimationClock>();
        window = std::make_unique<QWidget>();
        window->resize(400, 400);
        control = new QWidget(window.get());
        other = new QWidget(window.get());
        places.clear();
        glide = std::make_unique<ui::Glide>(
            [this](QWidget* moved, double left, double top) {
                moved->move(qRound(left), qRound(top));
                if (moved == control)
                    places << QPointF(left, top);
            },
            nullptr);
    }
    void cleanup()
    {
        glide.reset();
        window.reset();
        clock.reset();
    }

    void movesStepByStepAndEndsExactly()
    {
        glide->send(control, {10, 20}, {50, 120}, Step);
        QVERIFY(glide->isMoving());
        QVERIFY(places.isEmpty()); // the first step comes with the first frame
        clock->pass(Trip / 2);
        QCOMPARE(places.last(), QPointF(30, 70));
        clock->pass(Trip / 2 - 1);
        QVERIFY(places.last().y() > 119 && places.last().y() < 120);
        QVERIFY(glide->isMoving());
        clock->pass(1);
        QVERIFY(!glide->isMoving());
        QCOMPARE(places.last(), QPointF(50, 120));
    }

    void aLateFrameEndsExactlyToo()
    {
        glide->send(control, {10, 20}, {50, 120}, Step);
        clock->pass(10 * Trip);
        QVERIFY(!glide->isMoving());
        QCOMPARE(places.last(), QPointF(50, 120));
    }

    void aNewGoalIsReachedFromWhereTheControlIs()
    {
        glide->send(control, {0, 0}, {0, 100}, Step);
        clock->pass(Trip / 2);
        QCOMPARE(places.last(), QPointF(0, 50));
        glide->send(control, places.last(), {0, 200}, Step);
        clock->pass(Trip / 2);
        QCOMPARE(places.last(), QPointF(0, 125)); // in the whole time again
        clock->pass(Trip / 2);
        QCOMPARE(control->pos(), QPoint(0, 200));
        QVERIFY(!glide->isMoving());
        QVERIFY(std::ranges::is_sorted(places, {}, &QPointF::y));
    }

    void theSameGoalAgainDoesNotSlowAControlDown()
    {
        glide->send(control, {0, 0}, {0, 100}, Step);
        for (int part = 1; part < 5; ++part) {
            clock->pass(Trip / 5);
            QCOMPARE(places.last(), QPointF(0, 20 * part));
            glide->send(control, places.last(), {0, 100}, Step);
        }
        clock->pass(Trip / 5);
        QVERIFY(!glide->isMoving());
        QCOMPARE(control->pos(), QPoint(0, 100));
    }

    void aNudgeEndsWhereTheControlWas()
    {
        glide->nudge(control, {50, 20}, {10, 0}, 100ms);
        clock->pass(25);
        QCOMPARE(places.last(), QPointF(60, 20));
        clock->pass(35);
        QCOMPARE(places.last(), QPointF(45, 20));
        clock->pass(40);
        QVERIFY(!glide->isMoving());
        QCOMPARE(places.last(), QPointF(50, 20));
    }

    void aNudgeOnTheWayEndsAtTheGoal()
    {
        glide->send(control, {0, 0}, {100, 0}, Step);
        clock->pass(Trip / 2);
        glide->nudge(control, places.last(), {10, 0}, 100ms);
        clock->pass(100);
        QVERIFY(!glide->isMoving());
        QCOMPARE(control->pos(), QPoint(100, 0));
    }

    void controlsMoveIndependently()
    {
        glide->send(control, {0, 0}, {0, 100}, Step);
        glide->send(other, {0, 0}, {100, 0}, Step);
        glide->put(control, {7, 9});
        QCOMPARE(control->pos(), QPoint(7, 9));
        QVERIFY(glide->isMoving());
        clock->pass(Trip);
        QVERIFY(!glide->isMoving());
        QCOMPARE(control->pos(), QPoint(7, 9)); // the glide was called off
        QCOMPARE(other->pos(), QPoint(100, 0));
    }

    void aVeryLargeWindowIsPaintedEverySecondFrame()
    {
        const auto frames = [this](QSize size) {
            window->resize(size);
            places.clear();
            glide->send(control, {0, 0}, {0, 100}, Step);
            for (int time = 0; time < Trip; time += 10)
                clock->pass(10);
            return places.size();
        };
        QCOMPARE(frames({400, 400}), Trip / 10);
        QCOMPARE(places.last(), QPointF(0, 100));
        QVERIFY(frames({3000, 2000}) < Trip / 20);
        QCOMPARE(places.last(), QPointF(0, 100));
    }

    void goesOnByItself()
    {
        clock.reset();
        glide->send(control, {0, 0}, {0, 100}, Step);
        QTRY_VERIFY(!glide->isMoving());
        QCOMPARE(control->pos(), QPoint(0, 100));
    }

    void stillStyleJumps()
    {
        QApplication::setStyle(new StillStyle);
        glide->send(control, {0, 0}, {30, 40}, Step);
        QVERIFY(!glide->isMoving());
        QCOMPARE(control->pos(), QPoint(30, 40));
        glide->nudge(control, {30, 40}, {10, 0}, 100ms);
        QVERIFY(!glide->isMoving());
        QCOMPARE(control->pos(), QPoint(30, 40));
    }

    void aControlMayGoOnItsWay()
    {
        glide->send(control, {0, 0}, {0, 100}, Step);
        glide->send(other, {0, 0}, {100, 0}, Step);
        delete control;
        control = nullptr;
        clock->pass(Trip);
        QVERIFY(!glide->isMoving());
        QCOMPARE(other->pos(), QPoint(100, 0));
    }

private:
    std::unique_ptr<AnimationClock> clock;
    std::unique_ptr<QWidget> window;
    QWidget* control = nullptr;
    QWidget* other = nullptr;
    QList<QPointF> places; ///< of control, in order
    std::unique_ptr<ui::Glide> glide;
};

PIZARRIN_SCREEN_TEST_MAIN(GlideTest)
#include "glide_test.moc"
