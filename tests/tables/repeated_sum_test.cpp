#include "core/defect.h"
#include "core/errors.h"
#include "core/random.h"
#include "tables/repeated_sum.h"

#include "support/scripted_random.h"

#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;
using shell::Verdict;
using tables::RepeatedSum;

namespace {

void appendSum(ScriptedRandom& random, int addend, int times)
{
    random.appendInteger(addend, 10, 1);
    random.appendInteger(times, 9, 2);
}

} // namespace

class RepeatedSumTest : public QObject {
    Q_OBJECT

private:
    ScriptedRandom random;
    std::unique_ptr<RepeatedSum> sum;

    Verdict check(double a, double b) { return sum->judge({a, b}); }

private slots:
    void init()
    {
        random = {};
        appendSum(random, 3, 5);
        sum = std::make_unique<RepeatedSum>(random);
        sum->newExercise();
    }

    void startsWithNothingCounted()
    {
        QCOMPARE(sum->counters().Ejercicios.value(), 0);
        QCOMPARE(sum->counters().Errores.value(), 0);
        QVERIFY(sum->isPending());
        QVERIFY(sum->canContinue());
    }

    void drawsTheAddendThenTheTimes_data()
    {
        QTest::addColumn<float>("first");
        QTest::addColumn<float>("second");
        QTest::addColumn<int>("addend");
        QTest::addColumn<int>("times");

        const float highest = std::nextafter(1.0f, 0.0f);
        QTest::newRow("lowest draws") << 0.0f << 0.0f << 1 << 2;
        QTest::newRow("highest draws") << highest << highest << 10 << 10;
        QTest::newRow("addend first") << 0.05f << 0.95f << 1 << 10;
        QTest::newRow("times second") << 0.95f << 0.05f << 10 << 2;
        QTest::newRow("nine steps for the times") << 0.0f << 0.1112f << 1 << 3;
        QTest::newRow("ten steps for the addend") << 0.1001f << 0.1111f << 2 << 2;
    }
    void drawsTheAddendThenTheTimes()
    {
        QFETCH(float, first);
        QFETCH(float, second);
        random.append({first, second});
        sum->newExercise();
        QTEST(sum->addend(), "addend");
        QTEST(sum->times(), "times");
        QCOMPARE(random.left(), 0u);
    }

    void theSameExerciseMayComeTwice()
    {
        appendSum(random, 3, 5);
        sum->newExercise();
        QCOMPARE(sum->addend(), 3);
        QCOMPARE(sum->times(), 5);
    }

    void everyExerciseHasTheSameChance()
    {
        core::SeededRandom seeded;
        seeded.seed(7);
        RepeatedSum many(seeded);
        std::array<std::array<int, 11>, 11> counts{};
        for (int i = 0; i < 90'000; ++i) {
            many.newExercise();
            ++core::at(core::at(counts, many.addend()), many.times());
        }
        for (std::size_t addend = 1; addend <= 10; ++addend)
            for (std::size_t times = 2; times <= 10; ++times)
                QVERIFY2(std::abs(counts[addend][times] - 1000) < 160,
                    qPrintable(
                        u"%1 × %2: %3"_s.arg(addend).arg(times).arg(counts[addend][times])));
    }

    void writesTheSum_data()
    {
        QTest::addColumn<int>("addend");
        QTest::addColumn<int>("times");
        QTest::addColumn<QString>("text");

        QTest::newRow("two terms") << 4 << 2 << u"4 + 4"_s;
        QTest::newRow("four terms") << 10 << 4 << u"10 + 10 + 10 + 10"_s;
        QTest::newRow("five terms") << 3 << 5 << u"3 + 3 + 3 + 3 + 3\r\n"_s;
        QTest::newRow("six terms") << 3 << 6 << u"3 + 3 + 3 + 3 + 3\r\n + 3"_s;
        QTest::newRow("seven terms") << 3 << 7 << u"3 + 3 + 3 + 3 + 3\r\n + 3 + 3"_s;
        QTest::newRow("ten terms")
            << 10 << 10 << u"10 + 10 + 10 + 10 + 10\r\n + 10 + 10 + 10 + 10 + 10"_s;
    }
    void writesTheSum()
    {
        QFETCH(int, addend);
        QFETCH(int, times);
        appendSum(random, addend, times);
        sum->newExercise();
        QTEST(sum->sumText(), "text");
    }

    void judgesTheFactorsInEitherOrder_data()
    {
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<bool>("right");

        QTest::newRow("addend and times") << 3.0 << 5.0 << true;
        QTest::newRow("times and addend") << 5.0 << 3.0 << true;
        QTest::newRow("addend twice") << 3.0 << 3.0 << false;
        QTest::newRow("times twice") << 5.0 << 5.0 << false;
        QTest::newRow("same product") << 15.0 << 1.0 << false;
        QTest::newRow("addend alone") << 3.0 << 0.0 << false;
        QTest::newRow("times alone") << 0.0 << 5.0 << false;
        QTest::newRow("nothing") << 0.0 << 0.0 << false;
        QTest::newRow("not whole") << 3.4 << 5.0 << false;
        QTest::newRow("signs") << -3.0 << -5.0 << false;
    }
    void judgesTheFactorsInEitherOrder()
    {
        QFETCH(double, a);
        QFETCH(double, b);
        QFETCH(bool, right);
        QCOMPARE(check(a, b), right ? Verdict::Right : Verdict::Wrong);
        QCOMPARE(sum->verdict().verdict(), right ? Verdict::Right : Verdict::Wrong);
        QCOMPARE(
            sum->verdict().text(), right ? u"Respuesta correcta"_s : u"Respuesta incorrecta"_s);
        QCOMPARE(sum->counters().Ejercicios.value(), 1);
        QCOMPARE(sum->counters().Errores.value(), right ? 0 : 1);
    }

    void countsARightAnswerOnce()
    {
        check(3, 5);
        QCOMPARE(sum->counters().Ejercicios.value(), 1);
        QVERIFY(!sum->isPending());
        check(5, 3);
        QCOMPARE(sum->counters().Ejercicios.value(), 1);
        QCOMPARE(sum->counters().Errores.value(), 0);
        QVERIFY(sum->canContinue());
    }

    void countsEveryWrongAnswerAndTheRightOneAfterThem()
    {
        check(3, 4);
        QCOMPARE(sum->counters().Ejercicios.value(), 1);
        QCOMPARE(sum->counters().Errores.value(), 1);
        QVERIFY(sum->isPending());
        check(0, 0);
        QCOMPARE(sum->counters().Ejercicios.value(), 2);
        QCOMPARE(sum->counters().Errores.value(), 2);
        check(3, 5);
        QCOMPARE(sum->counters().Ejercicios.value(), 3);
        QCOMPARE(sum->counters().Errores.value(), 2);
        QVERIFY(!sum->isPending());
    }

    void countsNoWrongAnswerAfterARightOne()
    {
        check(3, 5);
        check(3, 4);
        QCOMPARE(sum->counters().Ejercicios.value(), 1);
        QCOMPARE(sum->counters().Errores.value(), 0);
        QVERIFY(!sum->canContinue()); // yet it has to be put right
    }

    void aWrongAnswerHoldsThePupilUntilTheSolutionIsShown()
    {
        check(3, 4);
        QVERIFY(!sum->canContinue());
        check(3, 5);
        QVERIFY(!sum->canContinue());
        sum->showSolution();
        QVERIFY(sum->canContinue());
    }

    void theSolutionEndsTheCounting()
    {
        sum->showSolution();
        QCOMPARE(check(3, 5), Verdict::Right);
        QCOMPARE(check(3, 4), Verdict::Wrong);
        QCOMPARE(sum->counters().Ejercicios.value(), 0);
        QCOMPARE(sum->counters().Errores.value(), 0);
        sum->showSolution();
        QCOMPARE(sum->verdict().text(), u"3 por 5"_s);
        QVERIFY(!sum->verdict().verdict());
    }

    void theNextExerciseIsPendingAgain()
    {
        check(3, 4);
        sum->showSolution();
        appendSum(random, 2, 10);
        sum->newExercise();
        QVERIFY(sum->isPending());
        QVERIFY(sum->canContinue());
        QCOMPARE(sum->counters().Ejercicios.value(), 1); // of the session
        check(2, 10);
        QCOMPARE(sum->counters().Ejercicios.value(), 2);
        QCOMPARE(sum->counters().Errores.value(), 1);
    }

    void aNewExerciseEmptiesTheVerdictLine()
    {
        check(3, 4);
        appendSum(random, 2, 10);
        sum->newExercise();
        QCOMPARE(sum->verdict().text(), QString());
    }

    void countsUpTo32767AndNoFurther()
    {
        check(3, 5);
        appendSum(random, 3, 5);
        sum->newExercise();
        for (int i = 1; i < 32767; ++i)
            check(0, 0);
        QCOMPARE(check(0, 0), Verdict::Wrong); // full counters stay, without a word
        QCOMPARE(check(3, 5), Verdict::Right);
        QCOMPARE(sum->verdict().text(), u"Respuesta correcta"_s);
        QCOMPARE(sum->counters().Ejercicios.value(), 32767);
        QCOMPARE(sum->counters().Errores.value(), 32766);
        QVERIFY(sum->isPending());
    }
};

QTEST_GUILESS_MAIN(RepeatedSumTest)
#include "repeated_sum_test.moc"
