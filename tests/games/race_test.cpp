#include "games/race_course.h"

#include "support/scripted_random.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using games::Race;
using shell::Verdict;
using RivalStep = Race::RivalStep;

class RaceTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        random = ScriptedRandom();
        race = std::make_unique<Race>(random);
    }

    // --- operations

    void operationsOfEveryType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QList<int>>("draws"); // factors, then term and sign where drawn
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("result");
        QTest::newRow("product") << 0 << QList<int>{7, 5} << u"7 × 5 ="_s << 35;
        QTest::newRow("equal factors") << 0 << QList<int>{9, 9} << u"9 × 9 ="_s << 81;
        QTest::newRow("smallest product") << 0 << QList<int>{2, 2} << u"2 × 2 ="_s << 4;
        QTest::newRow("largest product") << 0 << QList<int>{10, 10} << u"10 × 10 ="_s << 100;
        QTest::newRow("quotient") << 1 << QList<int>{7, 5} << u"35 ÷ 7 ="_s << 5;
        QTest::newRow("largest quotient") << 1 << QList<int>{10, 10} << u"100 ÷ 10 ="_s << 10;
        QTest::newRow("product plus") << 2 << QList<int>{7, 5, 8, 1} << u"7 × 5 + 8 ="_s << 43;
        QTest::newRow("product minus") << 2 << QList<int>{7, 5, 8, 2} << u"7 × 5 - 8 ="_s << 27;
        QTest::newRow("product of 10, large term")
            << 2 << QList<int>{2, 5, 10, 2} << u"2 × 5 - 10 ="_s << 0;
        QTest::newRow("quotient plus") << 3 << QList<int>{7, 5, 3, 1} << u"35 ÷ 7 + 3 ="_s << 8;
        QTest::newRow("quotient minus") << 3 << QList<int>{7, 5, 5, 2} << u"35 ÷ 7 - 5 ="_s << 0;
        QTest::newRow("quotient of 10, large term")
            << 3 << QList<int>{4, 10, 10, 2} << u"40 ÷ 4 - 10 ="_s << 0;
    }
    void operationsOfEveryType()
    {
        QFETCH(int, type);
        QFETCH(QList<int>, draws);
        const int value = type == 2 ? draws.at(0) * draws.at(1) : draws.at(1);
        scriptFactors(draws.at(0), draws.at(1));
        if (draws.size() > 2) {
            if (value >= 10)
                random.appendInteger(draws.at(2), 9, 2);
            else
                random.appendInteger(draws.at(2), value, 1);
            random.appendInteger(draws.at(3), 2, 1);
        }
        race->PreparaCarrera({0, 0, type});
        QTEST(race->operation(), "operation");
        QTEST(race->result(), "result");
        QCOMPARE(random.left(), 0u);
    }

    void termKeepsTheResultFromBeingNegative_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("factor1");
        QTest::addColumn<int>("factor2");
        QTest::addColumn<float>("draw");
        QTest::addColumn<QString>("operation");
        const float highest = std::nextafter(1.0f, 0.0f);
        QTest::newRow("2 × 3, lowest") << 2 << 2 << 3 << 0.0f << u"2 × 3 - 1 ="_s;
        QTest::newRow("2 × 3, highest") << 2 << 2 << 3 << highest << u"2 × 3 - 6 ="_s;
        QTest::newRow("3 × 3, highest") << 2 << 3 << 3 << highest << u"3 × 3 - 9 ="_s;
        QTest::newRow("2 × 5, lowest") << 2 << 2 << 5 << 0.0f << u"2 × 5 - 2 ="_s;
        QTest::newRow("2 × 5, highest") << 2 << 2 << 5 << highest << u"2 × 5 - 10 ="_s;
        QTest::newRow("4 ÷ 2, lowest") << 3 << 2 << 2 << 0.0f << u"4 ÷ 2 - 1 ="_s;
        QTest::newRow("4 ÷ 2, highest") << 3 << 2 << 2 << highest << u"4 ÷ 2 - 2 ="_s;
        QTest::newRow("27 ÷ 3, highest") << 3 << 3 << 9 << highest << u"27 ÷ 3 - 9 ="_s;
        QTest::newRow("30 ÷ 3, lowest") << 3 << 3 << 10 << 0.0f << u"30 ÷ 3 - 2 ="_s;
    }
    void termKeepsTheResultFromBeingNegative()
    {
        QFETCH(int, type);
        QFETCH(int, factor1);
        QFETCH(int, factor2);
        QFETCH(float, draw);
        scriptFactors(factor1, factor2);
        random.append({draw, 0.5f}); // 0.5 is the lowest draw that subtracts
        race->PreparaCarrera({0, 0, type});
        QTEST(race->operation(), "operation");
        QVERIFY(race->result() >= 0);
    }

    void drawBelowAHalfAdds()
    {
        scriptFactors(4, 6);
        random.appendInteger(3, 9, 2);
        random.append({std::nextafter(0.5f, 0.0f)});
        race->PreparaCarrera({0, 0, 2});
        QCOMPARE(race->operation(), u"4 × 6 + 3 ="_s);
    }

    void factorsAreDrawnFrom2To10_data()
    {
        QTest::addColumn<float>("draw");
        QTest::addColumn<QString>("operation");
        QTest::newRow("lowest") << 0.0f << u"2 × 2 ="_s;
        QTest::newRow("below a step") << 0.111f << u"2 × 2 ="_s;
        QTest::newRow("on a step") << 0.1112f << u"3 × 3 ="_s;
        QTest::newRow("highest") << std::nextafter(1.0f, 0.0f) << u"10 × 10 ="_s;
    }
    void factorsAreDrawnFrom2To10()
    {
        QFETCH(float, draw);
        random.append({draw, draw});
        race->PreparaCarrera({0, 0, 0});
        QTEST(race->operation(), "operation");
    }

    void noFactorIsRepeatedInItsPlace()
    {
        prepare(7, 5);
        for (int factor : {7, 7, 3, 5, 5, 7}) // 7 and 5 are drawn again until they differ
            random.appendInteger(factor, 9, 2);
        QCOMPARE(race->judge(35), Verdict::Right);
        QCOMPARE(race->operation(), u"3 × 7 ="_s); // 7 was the other factor: allowed
        QCOMPARE(random.left(), 0u);
    }

    void noFactorIsRepeatedAcrossRaces()
    {
        prepare(7, 5);
        race->reset();
        for (int factor : {7, 2, 5, 4})
            random.appendInteger(factor, 9, 2);
        race->PreparaCarrera({});
        QCOMPARE(race->operation(), u"2 × 4 ="_s);
        QCOMPARE(random.left(), 0u);
    }

    void thousandsOfOperationsObeyTheRules_data()
    {
        QTest::addColumn<int>("type");
        for (int type = 0; type < 4; ++type)
            QTest::addRow("type %d", type) << type;
    }
    void thousandsOfOperationsObeyTheRules()
    {
        QFETCH(int, type);
        core::SeededRandom seeded;
        seeded.seed(type + 1);
        Race seededRace(seeded);
        QString previous;
        QSet<int> firstFactors;
        for (int i = 0; i < 5000; ++i) {
            seededRace.reset();
            seededRace.PreparaCarrera({0, 0, type});
            const QStringList parts = seededRace.operation().split(u' ');
            QCOMPARE(parts.size(), type < 2 ? 4 : 6);
            QCOMPARE(parts.last(), u"="_s);
            QCOMPARE(valueOf(parts), seededRace.result());
            QVERIFY2(seededRace.result() >= 0, qPrintable(seededRace.operation()));
            QVERIFY(factorsOf(seededRace.operation()).first != factorsOf(previous).first);
            QVERIFY(factorsOf(seededRace.operation()).second != factorsOf(previous).second);
            firstFactors << factorsOf(seededRace.operation()).first;
            previous = seededRace.operation();
        }
        QCOMPARE(firstFactors, (QSet<int>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
    }

    // --- checking

    void rightAnswerMovesTheCarAndStartsTheClocks()
    {
        QVERIFY(!race->isOver());
        prepare(7, 5);
        QVERIFY(!race->clocksRun());
        scriptFactors(2, 8);
        QCOMPARE(race->judge(35), Verdict::Right);
        QVERIFY(race->clocksRun());
        QCOMPARE(race->solved(), 1);
        QCOMPARE(race->operation(), u"2 × 8 ="_s);
        QCOMPARE(race->verdict().text(), u"Correcto "_s);
        QCOMPARE(course.playerLeft(race->solved()), 9500.0 - 9500.0 / 15);
        QCOMPARE(course.rivalLeft(race->rivalSteps()), 9500.0);
    }

    void wrongAnswerKeepsTheOperationAndStartsNothing_data()
    {
        QTest::addColumn<double>("answer");
        QTest::newRow("near") << 36.0;
        QTest::newRow("empty box") << 0.0;
        QTest::newRow("fraction") << 35.5;
        QTest::newRow("huge") << 1e300;
    }
    void wrongAnswerKeepsTheOperationAndStartsNothing()
    {
        QFETCH(double, answer);
        prepare(7, 5);
        QCOMPARE(race->judge(answer), Verdict::Wrong);
        QCOMPARE(race->operation(), u"7 × 5 ="_s);
        QCOMPARE(race->verdict().text(), u"Error"_s);
        QCOMPARE(race->solved(), 0);
        QVERIFY(!race->clocksRun());
        QCOMPARE(course.playerLeft(race->solved()), 9500.0);
        QCOMPARE(random.left(), 0u);
    }

    void wrongAnswerLeavesTheClocksRunning()
    {
        prepare(7, 5);
        scriptFactors(2, 8);
        race->judge(35);
        race->judge(0);
        QVERIFY(race->clocksRun());
    }

    void zeroCanBeTheRightAnswer()
    {
        scriptFactors(2, 3);
        random.appendInteger(6, 6, 1);
        random.appendInteger(2, 2, 1);
        race->PreparaCarrera({0, 0, 2});
        scriptFactors(4, 4);
        random.append({0.0f, 0.0f});
        QCOMPARE(race->judge(0), Verdict::Right);
    }

    void everySecondFeedbackHasABlankInFront()
    {
        prepare(7, 5);
        QStringList shown;
        for (double answer : {0.0, 0.0, 35.0, 16.0, 1.0}) {
            if (answer == 35.0)
                scriptFactors(2, 8);
            if (answer == 16.0)
                scriptFactors(7, 5);
            race->judge(answer);
            shown << race->verdict().text();
        }
        QCOMPARE(shown,
            (QStringList{u"Error"_s, u" Error"_s, u"Correcto "_s, u" Correcto "_s, u"Error"_s}));
    }

    void everyRaceStartsWithoutTheBlank()
    {
        prepare(7, 5);
        race->judge(0);
        race->reset();
        prepare(2, 8);
        race->judge(0);
        QCOMPARE(race->verdict().text(), u"Error"_s);
    }

    void secondRowCountsButKeepsTheOperation()
    {
        prepare(7, 5);
        QCOMPARE(race->judgeRow(36), Verdict::Wrong);
        QCOMPARE(race->verdict().text(), u"ERROR"_s);
        QVERIFY(!race->clocksRun());
        QCOMPARE(race->judgeRow(35), Verdict::Right);
        QCOMPARE(race->verdict().text(), u"CORRECTO"_s);
        QVERIFY(race->clocksRun());
        QCOMPARE(race->solved(), 1);
        QCOMPARE(race->operation(), u"7 × 5 ="_s);
        race->judge(0);
        QCOMPARE(race->verdict().text(), u"Error"_s); // the row does not flip the blank
        for (int step = 2; step < 15; ++step)
            QCOMPARE(race->judgeRow(35), Verdict::Right);
        QVERIFY(!race->isOver());
        QCOMPARE(race->judgeRow(35), Verdict::Right);
        QVERIFY(race->isOver());
        QCOMPARE(race->judgeRow(35), Verdict::NotJudged);
    }

    // --- aloud

    void operationsAreSaidInWords_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<float>("sign");
        QTest::addColumn<QString>("words");
        QTest::newRow("product") << 0 << -1.0f << u"7 por 5"_s;
        QTest::newRow("quotient") << 1 << -1.0f << u"35 entre 7"_s;
        QTest::newRow("plus") << 2 << 0.0f << u"7 por 5 más 2"_s;
        QTest::newRow("minus") << 3 << 0.5f << u"35 entre 7 menos 1"_s;
    }
    void operationsAreSaidInWords()
    {
        QFETCH(float, sign);
        QFETCH(int, type);
        QCOMPARE(race->spokenOperation(), QString());
        scriptFactors(7, 5);
        if (sign >= 0)
            random.append({0.0f, sign});
        race->PreparaCarrera({0, 0, type});
        QTEST(race->spokenOperation(), "words");
    }

    void standingsAreSaidEveryFiveAnswers()
    {
        prepare(7, 5);
        QStringList said{race->spokenStandings()};
        for (int answers = 1; answers <= 10; ++answers) {
            if (answers == 3)
                race->judgeRow(-1); // a wrong one is an answer too
            else
                solve();
            for (int step = 0; step < 3; ++step)
                race->rivalStep();
            said << race->spokenStandings();
        }
        QStringList expected(11);
        expected[5] = u"Tú: 4 de 15. Rival: 3 de 15."_s;
        expected[10] = u"Tú: 9 de 15. Rival: 7 de 15."_s;
        QCOMPARE(said, expected);
        race->reset();
        QCOMPARE(race->spokenStandings(), QString());
        prepare(7, 5);
        for (int answer = 1; answer < 5; ++answer) {
            race->judge(0);
            QCOMPARE(race->spokenStandings(), QString());
        }
        race->judge(0);
        QCOMPARE(race->spokenStandings(), u"Tú: 0 de 15. Rival: 0 de 15."_s);
    }

    // --- the two ends

    void fifteenRightAnswersWin()
    {
        prepare(7, 5);
        for (int step = 1; step < 15; ++step) {
            QCOMPARE(solve(), Verdict::Right);
            QCOMPARE(course.playerLeft(race->solved()), 9500.0 - 9500.0 / 15 * step);
            race->secondPassed();
        }
        QVERIFY(!race->isOver());
        QCOMPARE(solve(), Verdict::Right);
        QCOMPARE(race->solved(), 15);
        QVERIFY(race->isOver());
        QVERIFY(!race->clocksRun());
        QVERIFY(std::abs(course.playerLeft(race->solved())) < 1e-9);
        QCOMPARE(race->wonText(), u"Has ganado la carrera. Has tardado 14 segundos."_s);
    }

    void sixtyTicksOfTheRivalLose()
    {
        prepare(7, 5);
        solve();
        for (int step = 1; step < 60; ++step) {
            QCOMPARE(race->rivalStep(), RivalStep::Moved);
            QCOMPARE(course.rivalLeft(race->rivalSteps()), 9500.0 - 9500.0 / 60 * step);
        }
        race->secondPassed();
        QCOMPARE(race->rivalStep(), RivalStep::Won);
        QCOMPARE(race->rivalSteps(), 60);
        QVERIFY(race->isOver());
        QVERIFY(!race->clocksRun());
        QVERIFY(std::abs(course.rivalLeft(race->rivalSteps())) < 1e-9);
        QCOMPARE(
            race->lostText(), u"tu adversario ha ganado la carrera. Ha tardado 1 segundos."_s);
    }

    void afterTheEndNothingCounts()
    {
        prepare(7, 5);
        for (int step = 0; step < 15; ++step)
            solve();
        const QString operation = race->operation();
        const QString feedback = race->verdict().text();
        QCOMPARE(race->judge(race->result()), Verdict::NotJudged);
        QCOMPARE(race->judge(-1), Verdict::NotJudged);
        QCOMPARE(race->rivalStep(), RivalStep::Ignored);
        race->secondPassed();
        QCOMPARE(race->operation(), operation);
        QCOMPARE(race->verdict().text(), feedback);
        QCOMPARE(race->solved(), 15);
        QCOMPARE(race->rivalSteps(), 0);
        QCOMPARE(race->seconds(), 0);
        QVERIFY(!race->clocksRun());
    }

    void beforeTheFirstRaceNothingCounts()
    {
        QCOMPARE(race->judge(0), Verdict::NotJudged);
        QCOMPARE(race->rivalStep(), RivalStep::Ignored);
        race->secondPassed();
        QCOMPARE(race->seconds(), 0);
        QVERIFY(!race->clocksRun());
        QCOMPARE(race->operation(), QString());
    }

    void noTickCountsBeforeTheFirstRightAnswer()
    {
        prepare(7, 5);
        race->secondPassed();
        QCOMPARE(race->rivalStep(), RivalStep::Ignored);
        QCOMPARE(race->seconds(), 0);
        QCOMPARE(race->rivalSteps(), 0);
    }

    void newRaceStartsFromTheLine()
    {
        prepare(7, 5);
        solve();
        race->secondPassed();
        race->rivalStep();
        race->reset();
        QVERIFY(!race->clocksRun());
        QVERIFY(!race->isOver());
        QCOMPARE(race->judge(race->result()), Verdict::NotJudged); // not set up yet
        scriptFactors(2, 2);
        race->PreparaCarrera({3, 4, 1});
        QCOMPARE(race->solved(), 0);
        QCOMPARE(race->seconds(), 0);
        QCOMPARE(race->rivalSteps(), 0);
        QCOMPARE(course.playerLeft(race->solved()), 9500.0);
        QCOMPARE(course.rivalLeft(race->rivalSteps()), 9500.0);
        QVERIFY(!race->isOver());
        QCOMPARE(race->operation(), u"4 ÷ 2 ="_s);
    }

    void endedRaceCanBeRunAgain()
    {
        prepare(7, 5);
        for (int step = 0; step < 15; ++step)
            solve();
        race->reset();
        scriptFactors(2, 2);
        race->PreparaCarrera({});
        QVERIFY(!race->isOver());
        scriptFactors(3, 3);
        QCOMPARE(race->judge(4), Verdict::Right);
        QCOMPARE(race->solved(), 1);
    }

    // --- the rival

    void laterCarsAreSlowerRivals_data()
    {
        QTest::addColumn<int>("rival");
        QTest::addColumn<int>("interval");
        QTest::newRow("Swift rojo") << 0 << 450;
        QTest::newRow("Coche blanco") << 1 << 470;
        QTest::newRow("Alfa romeo") << 7 << 590;
        QTest::newRow("Fórmula 1") << 9 << 630;
    }
    void laterCarsAreSlowerRivals()
    {
        QFETCH(int, rival);
        scriptFactors(2, 2);
        race->PreparaCarrera({9 - rival, rival, 0});
        QTEST(race->rivalInterval(), "interval");
    }

    /// A pupil who solves an operation every so many milliseconds, against a rival: who wins,
    /// and in how many seconds of the race clock.
    void raceAgainstTheClock_data()
    {
        QTest::addColumn<int>("rival");
        QTest::addColumn<int>("pause");
        QTest::addColumn<bool>("won");
        QTest::addColumn<int>("seconds");
        QTest::newRow("just fast enough") << 0 << 1928 << true << 26; // 14 pauses: 26.992 s
        QTest::newRow("just too slow") << 0 << 1929 << false << 27; // 27.006 s
        QTest::newRow("slowest rival") << 9 << 2699 << true << 37; // 37.786 s
        QTest::newRow("too slow for it") << 9 << 2701 << false << 37; // 37.814 s
        QTest::newRow("like lightning") << 0 << 10 << true << 0;
    }
    void raceAgainstTheClock()
    {
        QFETCH(int, rival);
        QFETCH(int, pause);
        scriptFactors(2, 2);
        race->PreparaCarrera({0, rival, 0});
        solve(); // the clocks start
        bool won = false;
        for (int now = 1; !race->isOver(); ++now) {
            if (now % 1000 == 0)
                race->secondPassed();
            if (now % race->rivalInterval() == 0)
                race->rivalStep();
            else if (now % pause == 0)
                won = solve() == Verdict::Right && race->isOver();
        }
        QTEST(won, "won");
        QTEST(race->seconds(), "seconds");
    }

private:
    void scriptFactors(int factor1, int factor2)
    {
        random.appendInteger(factor1, 9, 2);
        random.appendInteger(factor2, 9, 2);
    }

    void prepare(int factor1, int factor2)
    {
        scriptFactors(factor1, factor2);
        race->PreparaCarrera({});
    }

    /// Answers right; the next factors differ from the current ones.
    Verdict solve()
    {
        if (race->operation() == u"9 × 9 ="_s)
            scriptFactors(8, 8);
        else
            scriptFactors(9, 9);
        return race->judge(race->result());
    }

    static std::pair<int, int> factorsOf(const QString& operation)
    {
        const QStringList parts = operation.split(u' ');
        if (parts.size() < 3)
            return {0, 0};
        const int a = parts.at(0).toInt();
        const int b = parts.at(2).toInt();
        return parts.at(1) == u"×"_s ? std::pair(a, b) : std::pair(b, a / b);
    }

    static int valueOf(const QStringList& parts)
    {
        const int a = parts.at(0).toInt();
        const int b = parts.at(2).toInt();
        const int value = parts.at(1) == u"×"_s ? a * b : a / b;
        if (parts.size() == 4)
            return value;
        const int term = parts.at(4).toInt();
        return parts.at(3) == u"+"_s ? value + term : value - term;
    }

    ScriptedRandom random;
    std::unique_ptr<Race> race;
    const games::RaceCourse course{};
};

QTEST_GUILESS_MAIN(RaceTest)
#include "race_test.moc"
