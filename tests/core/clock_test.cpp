#include "core/clock.h"

#include "support/fake_clock.h"
#include "support/scripted_random.h"

#include <QtTest>

class ClockTest : public QObject {
    Q_OBJECT

private slots:
    void seedByClockReadsSecondsMinutesHoursSeparately()
    {
        FakeClock clock;
        clock.readings = {QTime(1, 2, 59), QTime(1, 3, 0), QTime(4, 0, 0)};
        ScriptedRandom random;
        core::seedByClock(random, clock);
        QCOMPARE(random.seeds, std::vector<double>{60.0 * 4 * 5});
        QVERIFY(clock.readings.empty());
    }

    void largestClockSeedDoesNotOverflow()
    {
        FakeClock clock(QTime(23, 59, 59));
        ScriptedRandom random;
        core::seedByClock(random, clock);
        QCOMPARE(random.seeds, std::vector<double>{86400.0});
    }

    void seedBySecondsTwiceReadsNoHours()
    {
        FakeClock clock;
        clock.readings = {QTime(1, 2, 59), QTime(1, 3, 0), QTime(4, 5, 6)};
        ScriptedRandom random;
        core::seedBySecondsTwice(random, clock);
        QCOMPARE(random.seeds, std::vector<double>{60.0 * 4 * 7});
        QVERIFY(clock.readings.empty());
    }

    void theSystemsClockTellsTheTimeAndGoesOn()
    {
        const core::SystemClock clock;
        const auto since = [](QTime from, QTime to) { // also past midnight
            constexpr int Day = 24 * 60 * 60 * 1000;
            return (from.msecsTo(to) + Day) % Day;
        };
        const QTime before = QTime::currentTime();
        const QTime told = clock.timeOfDay();
        const QTime after = QTime::currentTime();
        QVERIFY(since(before, told) <= since(before, after));
        const auto steadily = [] { return std::chrono::steady_clock::now().time_since_epoch(); };
        const auto first = std::chrono::floor<std::chrono::milliseconds>(steadily());
        const std::chrono::milliseconds passed = clock.elapsed();
        QVERIFY(first <= passed && passed <= steadily());
    }

    void seedBySecondsOfDayKeepsTheFraction()
    {
        FakeClock clock(QTime(0, 1, 1, 250));
        ScriptedRandom random;
        core::seedBySecondsOfDay(random, clock);
        QCOMPARE(random.seeds, std::vector<double>{61.25});
    }
};

QTEST_GUILESS_MAIN(ClockTest)
#include "clock_test.moc"
