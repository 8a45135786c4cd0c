#include "core/errors.h"
#include "core/random.h"
#include "tables/fill_the_gap.h"

#include "support/scripted_random.h"

#include <QtTest>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;
using shell::Verdict;
using tables::FillTheGap;

class FillTheGapTest : public QObject {
    Q_OBJECT

private:
    using Factors = std::pair<int, int>;

    ScriptedRandom random;
    std::unique_ptr<FillTheGap> gap;

    Factors factors() const { return {gap->shownFactor(), gap->hiddenFactor()}; }

    void appendFactors(int a, int b)
    {
        random.appendInteger(a, 9, 2);
        random.appendInteger(b, 9, 2);
    }

    Verdict check(double answer) { return gap->judge(answer); }

private slots:
    void init()
    {
        random = {};
        appendFactors(4, 7);
        gap = std::make_unique<FillTheGap>(random);
        gap->newExercise();
    }

    void startsWithNothingCounted()
    {
        QCOMPARE(gap->counters().Ejercicios.value(), 0);
        QCOMPARE(gap->counters().Errores.value(), 0);
        QVERIFY(!gap->Contado());
    }

    void saysTheExerciseAndItsSolution()
    {
        QCOMPARE(gap->spokenExercise(), u"hueco: 4 por … igual a 28"_s);
        QCOMPARE(gap->spokenSolution(), u"4 por 7 igual a 28"_s);
    }

    void drawsTwoFactorsAndHidesTheLarger_data()
    {
        QTest::addColumn<float>("first");
        QTest::addColumn<float>("second");
        QTest::addColumn<Factors>("drawn");
        QTest::addColumn<int>("product");

        const float highest = std::nextafter(1.0f, 0.0f);
        QTest::newRow("lowest draws") << 0.0f << 0.0f << Factors(2, 2) << 4;
        QTest::newRow("highest draws") << highest << highest << Factors(10, 10) << 100;
        QTest::newRow("in order") << 0.0f << highest << Factors(2, 10) << 20;
        QTest::newRow("swapped") << highest << 0.0f << Factors(2, 10) << 20;
        QTest::newRow("nine steps") << 0.1112f << 0.1111f << Factors(2, 3) << 6;
    }
    void drawsTwoFactorsAndHidesTheLarger()
    {
        QFETCH(float, first);
        QFETCH(float, second);
        ScriptedRandom draws{first, second};
        FillTheGap fresh(draws); // the first exercise is never drawn again
        fresh.newExercise();
        QTEST(Factors(fresh.shownFactor(), fresh.hiddenFactor()), "drawn");
        QTEST(fresh.product(), "product");
        QCOMPARE(draws.left(), 0u);
    }

    void drawsAgainWhileAFactorStandsWhereItStood_data()
    {
        QTest::addColumn<Factors>("refused");

        QTest::newRow("same exercise") << Factors(4, 7);
        QTest::newRow("same first factor") << Factors(4, 9);
        QTest::newRow("same second factor") << Factors(2, 7);
        QTest::newRow("same once swapped") << Factors(7, 2);
        QTest::newRow("twice the first factor") << Factors(4, 4);
    }
    void drawsAgainWhileAFactorStandsWhereItStood()
    {
        QFETCH(Factors, refused);
        appendFactors(refused.first, refused.second);
        appendFactors(refused.first, refused.second);
        appendFactors(5, 8);
        gap->newExercise();
        QCOMPARE(factors(), Factors(5, 8));
        QCOMPARE(gap->product(), 40);
        QCOMPARE(random.left(), 0u);
    }

    void aFactorMayComeBackInTheOtherPlace()
    {
        appendFactors(7, 9);
        gap->newExercise();
        QCOMPARE(factors(), Factors(7, 9));
        appendFactors(3, 7);
        gap->newExercise();
        QCOMPARE(factors(), Factors(3, 7));
        QCOMPARE(random.left(), 0u);
    }

    void theRedrawnExerciseIsNotThePreviousOne()
    {
        // 4 × 9 was refused for its 4: its 9 must not count as shown.
        appendFactors(4, 9);
        appendFactors(5, 9);
        gap->newExercise();
        QCOMPARE(factors(), Factors(5, 9));
        QCOMPARE(random.left(), 0u);
    }

    void firstExercisesHaveTheChancesOfTwoDraws()
    {
        core::SeededRandom seeded;
        seeded.seed(11);
        std::map<Factors, int> counts;
        for (int i = 0; i < 81'000; ++i) {
            FillTheGap fresh(seeded);
            fresh.newExercise();
            ++counts[{fresh.shownFactor(), fresh.hiddenFactor()}];
        }
        QCOMPARE(counts.size(), 45u);
        for (const auto& [drawn, count] : counts) {
            const int expected = drawn.first == drawn.second ? 1000 : 2000;
            QVERIFY2(std::abs(count - expected) < 240,
                qPrintable(u"%1 × %2: %3"_s.arg(drawn.first).arg(drawn.second).arg(count)));
        }
    }

    void neverSharesAFactorWithTheExerciseBefore()
    {
        core::SeededRandom seeded;
        seeded.seed(13);
        FillTheGap many(seeded);
        std::map<Factors, int> counts;
        Factors before;
        for (int i = 0; i < 50'000; ++i) {
            many.newExercise();
            const Factors now(many.shownFactor(), many.hiddenFactor());
            QVERIFY(now.first >= 2 && now.first <= now.second && now.second <= 10);
            QCOMPARE(many.product(), now.first * now.second);
            QVERIFY(now.first != before.first);
            QVERIFY(now.second != before.second);
            ++counts[now];
            before = now;
        }
        QCOMPARE(counts.size(), 45u); // every one still comes
    }

    void judgesByTheHiddenFactor_data()
    {
        QTest::addColumn<double>("answer");
        QTest::addColumn<bool>("right");

        QTest::newRow("hidden factor") << 7.0 << true;
        QTest::newRow("shown factor") << 4.0 << false;
        QTest::newRow("product") << 28.0 << false;
        QTest::newRow("nothing") << 0.0 << false;
        QTest::newRow("not whole") << 7.2 << false;
        QTest::newRow("sign") << -7.0 << false;
    }
    void judgesByTheHiddenFactor()
    {
        QFETCH(double, answer);
        QFETCH(bool, right);
        QCOMPARE(check(answer), right ? Verdict::Right : Verdict::Wrong);
        QCOMPARE(gap->counters().Ejercicios.value(), 1);
        QCOMPARE(gap->counters().Errores.value(), right ? 0 : 1);
        QCOMPARE(gap->Contado(), right);
    }

    void countsARightAnswerOnce()
    {
        check(7);
        check(7);
        check(7);
        QCOMPARE(gap->counters().Ejercicios.value(), 1);
        QCOMPARE(gap->counters().Errores.value(), 0);
    }

    void countsEveryWrongAnswerAndTheRightOneAfterThem()
    {
        check(6);
        check(0);
        check(7);
        QCOMPARE(gap->counters().Ejercicios.value(), 3);
        QCOMPARE(gap->counters().Errores.value(), 2);
    }

    void countsWrongAnswersAfterARightOneToo()
    {
        check(7);
        check(6);
        QCOMPARE(gap->counters().Ejercicios.value(), 2);
        QCOMPARE(gap->counters().Errores.value(), 1);
        QVERIFY(gap->Contado());
        check(7);
        QCOMPARE(gap->counters().Ejercicios.value(), 2);
    }

    void theNextExerciseCountsAgain()
    {
        check(7);
        appendFactors(5, 8);
        gap->newExercise();
        QVERIFY(!gap->Contado());
        check(8);
        QCOMPARE(gap->counters().Ejercicios.value(), 2);
    }

    void writesTheVerdictOverTheStandingOne()
    {
        const auto textOf = [this](double answer) {
            check(answer);
            return gap->verdict().text();
        };
        QCOMPARE(textOf(6), u"Respuesta incorrecta"_s);
        QCOMPARE(textOf(6), u" Respuesta incorrecta"_s);
        QCOMPARE(textOf(6), u" Respuesta incorrecta"_s);
        QCOMPARE(textOf(7), u"Respuesta correcta "_s);
        QCOMPARE(textOf(7), u"Respuesta correcta "_s);
        QCOMPARE(textOf(6), u" Respuesta incorrecta"_s);
        QCOMPARE(gap->verdict().verdict(), Verdict::Wrong);
        appendFactors(5, 8);
        gap->newExercise();
        QCOMPARE(gap->verdict().text(), QString());
        QCOMPARE(textOf(6), u"Respuesta incorrecta"_s);
    }

    void theSolutionStillCounts()
    {
        QCOMPARE(gap->showSolution(), 7);
        check(7);
        QCOMPARE(gap->counters().Ejercicios.value(), 1);
    }

    void countsUpTo32767AndNoFurther()
    {
        check(7);
        for (int i = 1; i < 32767; ++i)
            check(0);
        QCOMPARE(check(0), Verdict::Wrong); // full counters stay, without a word
        QCOMPARE(gap->counters().Ejercicios.value(), 32767);
        QCOMPARE(gap->counters().Errores.value(), 32766);
        appendFactors(5, 8);
        gap->newExercise();
        QCOMPARE(check(8), Verdict::Right);
        QVERIFY(!gap->Contado());
        QCOMPARE(gap->counters().Ejercicios.value(), 32767);
    }
};

QTEST_GUILESS_MAIN(FillTheGapTest)
#include "fill_the_gap_test.moc"
