#include "core/defect.h"
#include "core/random.h"

#include "support/scripted_random.h"

#include <QtTest>

#include <cmath>

class RandomTest : public QObject {
    Q_OBJECT

private slots:
    void highestBitsStayBelowOne()
    {
        QVERIFY(core::fractionOf(0xFFFFFFFF) == std::nextafter(1.0f, 0.0f)); // not fuzzily
        QCOMPARE(core::fractionOf(0), 0.0f);
        QCOMPARE(core::fractionOf(0x80000000), 0.5f);
    }

    void drawsStayBelowOne()
    {
        core::SeededRandom random;
        random.seed(7);
        for (int i = 0; i < 1'000'000; ++i) {
            const float r = random.next();
            QVERIFY(r >= 0.0f && r < 1.0f);
        }
    }

    void sameSeedGivesTheSameDraws()
    {
        core::SeededRandom first;
        core::SeededRandom second;
        first.seed(46330.25);
        second.seed(46330.25);
        for (int i = 0; i < 100; ++i)
            QCOMPARE(first.next(), second.next());
        second.seed(46330.26);
        int same = 0;
        for (int i = 0; i < 100; ++i)
            same += first.next() == second.next();
        QVERIFY(same < 10);
    }

    void integerDrawIsFloorOfTheProduct()
    {
        const float highest = std::nextafter(1.0f, 0.0f);
        ScriptedRandom random{0.0f, 0.0999f, 0.1f, highest, highest};
        QCOMPARE(core::randomInteger(random, 10, 1).value(), 1);
        QCOMPARE(core::randomInteger(random, 10, 1).value(), 1);
        QCOMPARE(core::randomInteger(random, 10, 1).value(), 2);
        QCOMPARE(core::randomInteger(random, 10, 1).value(), 10);
        QCOMPARE(core::randomInteger(random, 32767, 0).value(), 32766);
        QCOMPARE(random.left(), 0u);
    }

    void integerDrawsAreUniform()
    {
        core::SeededRandom random;
        random.seed(1);
        std::array<int, 9> counts{};
        for (int i = 0; i < 90'000; ++i)
            ++core::at(counts, core::randomInteger(random, 9, 2).value() - 2);
        for (int count : counts)
            QVERIFY2(std::abs(count - 10'000) < 500, qPrintable(QString::number(count)));
    }
};

QTEST_GUILESS_MAIN(RandomTest)
#include "random_test.moc"
