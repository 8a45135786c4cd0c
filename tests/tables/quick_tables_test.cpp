#include "core/errors.h"
#include "core/random.h"
#include "tables/quick_tables.h"

#include "support/scripted_random.h"

#include <QtTest>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;
using tables::QuickTables;
using End = QuickTables::End;
using Events = QuickTables::Events;
using LimitVerdict = QuickTables::LimitVerdict;
using shell::Verdict;

class QuickTablesTest : public QObject {
    Q_OBJECT

private:
    using Factors = std::pair<int, int>;

    ScriptedRandom random;
    std::unique_ptr<QuickTables> drill;

    Factors factors() const
    {
        return {drill->state().FactorA.value(), drill->state().FactorB.value()};
    }

    void appendOperation(int a, int b)
    {
        random.appendInteger(a, 10, 1);
        random.appendInteger(b, 10, 1);
    }

    /// Draws for any number of operations, each another than the one before.
    void appendOperations(int count)
    {
        for (int i = 0; i < count; ++i)
            appendOperation(i % 2 == 0 ? 9 : 3, 8);
    }

    LimitVerdict startWith(End end, int limit)
    {
        drill->endBy(end);
        drill->start(limit);
        return drill->setLimit(limit);
    }

    Events answerRight() { return drill->judge(drill->state().Producto.value()); }

    Events timeOut()
    {
        for (int second = 1; second < QuickTables::SecondsPerOperation; ++second)
            drill->tickOperation();
        return drill->tickOperation();
    }

    QStringList reportLines() const { return drill->report(QLocale::c()).split(u"\r\n"_s); }

private slots:
    void init()
    {
        random = {};
        drill = std::make_unique<QuickTables>(random);
    }

    void startsWithEverythingAtZero()
    {
        const QuickTables::State& state = drill->state();
        QCOMPARE(factors(), Factors(0, 0));
        for (const core::Int16 field : {state.Producto, state.Restantes, state.Operaciones,
                 state.ErroresTotales, state.ErroresTiempo, state.Limite, state.Progreso})
            QCOMPARE(field.value(), 0);
        QCOMPARE(state.Segundos, 0);
        QCOMPARE(state.FinActividad, End::Button);
        QVERIFY(!drill->isRunning());
        QVERIFY(!drill->ended());
    }

    void ignoresAnswersAndTicksBeforeTheStart()
    {
        drill->judge(0);
        drill->tickOperation();
        drill->tickMinute();
        drill->end();
        QCOMPARE(drill->state().Operaciones.value(), 0);
        QCOMPARE(drill->state().Restantes.value(), 0);
        QCOMPARE(drill->state().Segundos, 0);
        QVERIFY(!drill->ended());
    }

    void startDrawsTheFirstOperation()
    {
        appendOperation(7, 8);
        const Events events = drill->start(0);
        QVERIFY(drill->isRunning());
        QCOMPARE(factors(), Factors(7, 8));
        QCOMPARE(drill->state().Producto.value(), 56);
        QCOMPARE(drill->state().Restantes.value(), 10);
        QCOMPARE(drill->operationText(), u"7 x 8 = "_s);
        QCOMPARE(drill->spokenOperation(), u"7 por 8"_s);
        QCOMPARE(drill->timeText(), u"10/"_s);
        QVERIFY(events.newOperation && !events.ended && !events.verdict);
        QCOMPARE(random.left(), 0u);
    }

    void drawsFactorsFrom1To10_data()
    {
        QTest::addColumn<float>("first");
        QTest::addColumn<float>("second");
        QTest::addColumn<Factors>("drawn");

        const float highest = std::nextafter(1.0f, 0.0f);
        QTest::newRow("highest draws") << highest << highest << Factors(10, 10);
        QTest::newRow("lowest first draw") << 0.0f << highest << Factors(1, 10);
        QTest::newRow("lowest second draw") << highest << 0.0f << Factors(10, 1);
        QTest::newRow("around a step") << 0.6999f << 0.7001f << Factors(7, 8);
    }
    void drawsFactorsFrom1To10()
    {
        QFETCH(float, first);
        QFETCH(float, second);
        random.append({first, second});
        drill->start(0);
        QTEST(factors(), "drawn");
    }

    void neverAsksEasyProducts()
    {
        appendOperation(2, 5);
        appendOperation(1, 6);
        appendOperation(1, 1);
        appendOperation(1, 7);
        drill->start(0);
        QCOMPARE(factors(), Factors(1, 7)); // a sum of 8 is the first that will do
        QCOMPARE(random.left(), 0u);
    }

    void neverAsksTheSameTwiceRunningButItsMirror()
    {
        appendOperation(3, 5);
        drill->start(0);
        appendOperation(3, 5);
        appendOperation(2, 4);
        appendOperation(3, 5);
        appendOperation(5, 3);
        answerRight();
        QCOMPARE(factors(), Factors(5, 3));
        appendOperation(5, 4);
        answerRight();
        QCOMPARE(factors(), Factors(5, 4));
        appendOperation(3, 5); // not the one just before
        answerRight();
        QCOMPARE(factors(), Factors(3, 5));
        QCOMPARE(random.left(), 0u);
    }

    void everyAllowedOperationHasTheSameChance()
    {
        core::SeededRandom seeded;
        seeded.seed(17);
        std::map<Factors, int> counts;
        for (int round = 0; round < 4; ++round) {
            QuickTables many(seeded);
            many.start(0);
            for (int i = 0; i < 19'750; ++i) {
                const Factors drawn(many.state().FactorA.value(), many.state().FactorB.value());
                ++counts[drawn];
                many.judge(many.state().Producto.value());
                QVERIFY(
                    drawn != Factors(many.state().FactorA.value(), many.state().FactorB.value()));
            }
        }
        QCOMPARE(counts.size(), 79u);
        for (const auto& [drawn, count] : counts) {
            QVERIFY(drawn.first + drawn.second >= 8);
            QVERIFY2(std::abs(count - 1000) < 160,
                qPrintable(u"%1 x %2: %3"_s.arg(drawn.first).arg(drawn.second).arg(count)));
        }
    }

    void aRightAnswerCountsForBothFactors()
    {
        appendOperation(7, 8);
        appendOperation(6, 9);
        drill->start(0);
        drill->tickOperation();
        const Events events = drill->judge(56);
        QCOMPARE(events.verdict, std::optional(Verdict::Right));
        QVERIFY(events.newOperation && !events.ended);
        QCOMPARE(factors(), Factors(6, 9));
        QCOMPARE(drill->state().Restantes.value(), 10);
        QCOMPARE(drill->state().Operaciones.value(), 1);
        QCOMPARE(drill->state().ErroresTotales.value(), 0);
        QCOMPARE(drill->state().Usos[6][0].value(), 1);
        QCOMPARE(drill->state().Usos[7][0].value(), 1);
        QCOMPARE(drill->state().Usos[6][1].value(), 0);
        QCOMPARE(drill->state().Usos[7][1].value(), 0);
    }

    void aWrongAnswerCountsForBothFactorsAndBringsAnotherOperation()
    {
        appendOperation(7, 8);
        appendOperation(6, 9);
        drill->start(0);
        const Events events = drill->judge(55);
        QCOMPARE(events.verdict, std::optional(Verdict::Wrong));
        QVERIFY(events.newOperation && !events.ended);
        QCOMPARE(factors(), Factors(6, 9));
        QCOMPARE(drill->state().Operaciones.value(), 1);
        QCOMPARE(drill->state().ErroresTotales.value(), 1);
        QCOMPARE(drill->state().ErroresTiempo.value(), 0);
        QCOMPARE(drill->state().Usos[6][0].value(), 0);
        QCOMPARE(drill->state().Usos[6][1].value(), 1);
        QCOMPARE(drill->state().Usos[7][1].value(), 1);
    }

    void aSquareCountsTwice()
    {
        appendOperation(7, 7);
        appendOperation(8, 8);
        appendOperation(6, 9);
        drill->start(0);
        drill->judge(0);
        answerRight();
        QCOMPARE(drill->state().Usos[6][1].value(), 2);
        QCOMPARE(drill->state().Usos[7][0].value(), 2);
    }

    void answersAreComparedAsNumbers()
    {
        appendOperation(7, 8);
        appendOperations(1);
        drill->start(0);
        QCOMPARE(drill->judge(56.4).verdict, std::optional(Verdict::Wrong));
    }

    void aTickTakesASecond()
    {
        appendOperation(7, 8);
        drill->start(0);
        const Events events = drill->tickOperation();
        QVERIFY(!events.verdict && !events.newOperation && !events.ended);
        QCOMPARE(drill->state().Restantes.value(), 9);
        QCOMPARE(drill->timeText(), u"9/"_s);
        QCOMPARE(factors(), Factors(7, 8));
    }

    void aTimeOutCountsAnErrorAndDrawsTwice()
    {
        appendOperation(7, 8);
        appendOperation(6, 9);
        appendOperation(5, 4);
        drill->start(0);
        for (int second = 1; second <= 9; ++second)
            QVERIFY(!drill->tickOperation().verdict);
        QCOMPARE(drill->timeText(), u"1/"_s);
        const Events events = drill->tickOperation();
        QCOMPARE(events.verdict, std::optional(Verdict::Wrong));
        QVERIFY(events.newOperation && !events.ended);
        QCOMPARE(factors(), Factors(5, 4));
        QCOMPARE(random.left(), 0u);
        QCOMPARE(drill->timeText(), u"10/"_s);
        QCOMPARE(drill->state().Operaciones.value(), 0);
        QCOMPARE(drill->state().ErroresTotales.value(), 1);
        QCOMPARE(drill->state().ErroresTiempo.value(), 1);
        QCOMPARE(drill->state().Usos[6][1].value(), 1);
        QCOMPARE(drill->state().Usos[7][1].value(), 1);
        QCOMPARE(drill->state().Usos[5][1].value(), 0); // 6 x 9 was never shown
    }

    void theSecondOperationOfATimeOutIsNotTheFirst()
    {
        appendOperation(7, 8);
        appendOperation(6, 9);
        appendOperation(6, 9);
        appendOperation(7, 8); // the one before the time-out may come back
        drill->start(0);
        timeOut();
        QCOMPARE(factors(), Factors(7, 8));
        QCOMPARE(random.left(), 0u);
    }

    void judgesTheLimit_data()
    {
        QTest::addColumn<End>("end");
        QTest::addColumn<int>("limit");
        QTest::addColumn<LimitVerdict>("verdict");

        const auto row = [](const char* name, End end, int limit, LimitVerdict verdict) {
            QTest::newRow(name) << end << limit << verdict;
        };
        row("no limit asked for", End::Button, 0, LimitVerdict::Fine);
        row("no limit asked for, large", End::Button, 32767, LimitVerdict::Fine);
        row("0 minutes", End::Minutes, 0, LimitVerdict::TooSmall);
        row("-1 minutes", End::Minutes, -1, LimitVerdict::TooSmall);
        row("1 minute", End::Minutes, 1, LimitVerdict::Fine);
        row("60 minutes", End::Minutes, 60, LimitVerdict::Fine);
        row("61 minutes", End::Minutes, 61, LimitVerdict::TooLarge);
        row("0 operations", End::Operations, 0, LimitVerdict::TooSmall);
        row("-32768 operations", End::Operations, -32768, LimitVerdict::TooSmall);
        row("2 operations", End::Operations, 2, LimitVerdict::Fine);
        row("500 operations", End::Operations, 500, LimitVerdict::Fine);
        row("501 operations", End::Operations, 501, LimitVerdict::TooLarge);
        row("0 errors", End::Errors, 0, LimitVerdict::TooSmall);
        row("1 error", End::Errors, 1, LimitVerdict::Fine);
        row("100 errors", End::Errors, 100, LimitVerdict::Fine);
        row("101 errors", End::Errors, 101, LimitVerdict::TooLarge);
    }
    void judgesTheLimit()
    {
        QFETCH(End, end);
        QFETCH(int, limit);
        QFETCH(LimitVerdict, verdict);
        appendOperations(1);
        QCOMPARE(startWith(end, limit), verdict);
        QCOMPARE(drill->state().Limite.value(), limit);
        QCOMPARE(drill->state().FinActividad, verdict == LimitVerdict::Fine ? end : End::Button);
        QVERIFY(!drill->ended());
        QCOMPARE(random.left(), 0u); // the first operation is drawn in every case
    }

    void aLimitOutOfRangeLeavesAnEndlessDrill_data()
    {
        QTest::addColumn<End>("end");
        QTest::addColumn<int>("limit");

        QTest::newRow("0 operations") << End::Operations << 0;
        QTest::newRow("501 operations") << End::Operations << 501;
        QTest::newRow("0 errors") << End::Errors << 0;
        QTest::newRow("101 errors") << End::Errors << 101;
    }
    void aLimitOutOfRangeLeavesAnEndlessDrill()
    {
        QFETCH(End, end);
        QFETCH(int, limit);
        appendOperations(601);
        startWith(end, limit);
        for (int i = 0; i < 600; ++i)
            QVERIFY(!drill->judge(0).ended);
        QCOMPARE(drill->state().Operaciones.value(), 600);
    }

    void aLimitOfFiveOperationsLeavesFourToAnswer()
    {
        appendOperations(4);
        startWith(End::Operations, 5);
        QCOMPARE(drill->state().Progreso.value(), 1); // the first one counts
        for (int i = 0; i < 3; ++i)
            QVERIFY(!answerRight().ended);
        const Factors last = factors();
        const Events events = answerRight();
        QCOMPARE(events.verdict, std::optional(Verdict::Right));
        QVERIFY(events.ended && !events.newOperation);
        QVERIFY(drill->ended());
        QCOMPARE(factors(), last);
        QCOMPARE(drill->state().Operaciones.value(), 4);
        QCOMPARE(random.left(), 0u); // the fifth is not even drawn
    }

    void aLimitOfOneOperationEndsAtOnce()
    {
        drill->endBy(End::Operations);
        const Events events = drill->start(1);
        QVERIFY(events.ended && !events.newOperation && !events.verdict);
        QVERIFY(drill->ended());
        QCOMPARE(
            reportLines().first(), u"Número de operaciones: 0. Número total de errores: 0."_s);
    }

    void theEndIsChosenBeforeTheStart()
    {
        appendOperations(3);
        startWith(End::Errors, 2);
        drill->endBy(End::Operations);
        QCOMPARE(drill->state().FinActividad, End::Errors);
    }

    void aLimitAfterTheEndIsNotJudged()
    {
        drill->endBy(End::Operations);
        drill->start(1);
        QCOMPARE(drill->setLimit(0), LimitVerdict::Fine);
        QCOMPARE(drill->state().Limite.value(), 1);
    }

    void aTimeOutCountsTwoOperationsOfTheLimit()
    {
        appendOperations(5);
        startWith(End::Operations, 6);
        timeOut();
        QCOMPARE(drill->state().Progreso.value(), 3);
        timeOut();
        QCOMPARE(drill->state().Progreso.value(), 5);
        QVERIFY(!drill->ended());
        QCOMPARE(drill->state().Operaciones.value(), 0);
    }

    void aTimeOutThatReachesTheOperationsIsNotInItsReport()
    {
        appendOperations(1);
        startWith(End::Operations, 2);
        const Events events = timeOut();
        QCOMPARE(events.verdict, std::optional(Verdict::Wrong));
        QVERIFY(events.ended && !events.newOperation);
        QCOMPARE(drill->state().ErroresTotales.value(), 1);
        QCOMPARE(reportLines().last(), u"Errores por tiempo: 0."_s);
    }

    void aTimeOutWhoseSecondOperationReachesTheLimitIsInItsReport()
    {
        appendOperations(2);
        startWith(End::Operations, 3);
        const Events events = timeOut();
        QVERIFY(events.ended && events.newOperation); // the first of the two was drawn
        QCOMPARE(reportLines().last(), u"Errores por tiempo: 1."_s);
        QCOMPARE(random.left(), 0u);
    }

    void aLimitOfErrorsEndsWithTheLastOne()
    {
        appendOperations(3);
        startWith(End::Errors, 2);
        QVERIFY(!drill->judge(0).ended);
        QVERIFY(!answerRight().ended); // right ones do not count
        const Events events = drill->judge(0);
        QCOMPARE(events.verdict, std::optional(Verdict::Wrong));
        QVERIFY(events.ended && !events.newOperation);
        QCOMPARE(drill->state().Operaciones.value(), 3);
        QCOMPARE(drill->state().ErroresTotales.value(), 2);
        QCOMPARE(random.left(), 0u);
    }

    void aTimeOutThatReachesTheErrorsIsNotInItsReport()
    {
        appendOperations(3);
        startWith(End::Errors, 2);
        timeOut();
        QCOMPARE(drill->state().ErroresTiempo.value(), 1);
        const Events events = timeOut();
        QVERIFY(events.ended && !events.newOperation);
        QCOMPARE(
            reportLines().first(), u"Número de operaciones: 0. Número total de errores: 2."_s);
        QCOMPARE(reportLines().last(), u"Errores por tiempo: 1."_s);
    }

    void aLimitOfMinutesEndsAfterItsSeconds()
    {
        appendOperations(1);
        startWith(End::Minutes, 2);
        for (int second = 1; second < 60; ++second)
            drill->tickMinute();
        QCOMPARE(drill->state().Segundos, 59);
        QCOMPARE(drill->state().Progreso.value(), 0);
        drill->tickMinute();
        QCOMPARE(drill->state().Segundos, 0);
        QCOMPARE(drill->state().Progreso.value(), 1);
        for (int second = 1; second < 60; ++second)
            QVERIFY(!drill->tickMinute().ended);
        const Events events = drill->tickMinute();
        QVERIFY(events.ended && !events.verdict && !events.newOperation);
    }

    void theButtonEndsTheDrill()
    {
        appendOperations(1);
        startWith(End::Button, 0);
        drill->end();
        QVERIFY(drill->ended());
    }

    void nothingChangesTheReportOnceEnded()
    {
        appendOperations(2);
        startWith(End::Button, 0);
        drill->judge(0);
        drill->end();
        const QString report = drill->report(QLocale::c());
        const Factors last = factors();
        QVERIFY(!drill->judge(0).verdict);
        QVERIFY(!timeOut().verdict);
        QVERIFY(!drill->tickMinute().ended); // it does not end a second time
        QVERIFY(!drill->start(5).newOperation);
        QCOMPARE(drill->setLimit(0), LimitVerdict::Fine);
        QCOMPARE(drill->report(QLocale::c()), report);
        QCOMPARE(factors(), last);
        QCOMPARE(drill->state().Restantes.value(), 10);
        QCOMPARE(drill->state().Segundos, 0);
    }

    void reportsLineByLine()
    {
        appendOperation(7, 7);
        appendOperation(7, 9);
        appendOperation(10, 9);
        appendOperation(5, 4);
        appendOperation(5, 3);
        appendOperation(3, 8);
        drill->start(0);
        answerRight(); // 7 x 7
        drill->judge(0); // 7 x 9
        answerRight(); // 10 x 9
        timeOut(); // 5 x 4, and 5 x 3 is never shown
        drill->end();
        const QString report = drill->report(QLocale(QLocale::Spanish, QLocale::Spain));
        QCOMPARE(report,
            u"Número de operaciones: 3. Número total de errores: 2.\r\n"
            u"Errores cometidos al usar cada número y porcentaje: \r\n"
            u"número 1: 0 errores.\r\n"
            u"número 2: 0 errores.\r\n"
            u"número 3: 0 errores.\r\n"
            u"número 4: 1 errores. (100 %)\r\n"
            u"número 5: 1 errores. (100 %)\r\n"
            u"número 6: 0 errores.\r\n"
            u"número 7: 1 errores. (33,3333333333333 %)\r\n"
            u"número 8: 0 errores.\r\n"
            u"número 9: 1 errores. (50 %)\r\n"
            u"número 10: 0 errores. (0 %)\r\n"
            u"Errores por tiempo: 1."_s);
    }

    void percentagesFollowTheLocale()
    {
        appendOperation(7, 7);
        appendOperation(7, 9);
        appendOperations(1);
        drill->start(0);
        answerRight();
        drill->judge(0);
        QVERIFY(drill->report(QLocale(QLocale::English, QLocale::UnitedStates))
                    .contains(u"número 7: 1 errores. (33.3333333333333 %)\r\n"_s));
    }

    void countersDoNotWrap()
    {
        appendOperations(32768);
        startWith(End::Button, 0);
        for (int i = 0; i < 32767; ++i)
            answerRight();
        const Factors last = factors();
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, answerRight());
        QCOMPARE(drill->state().Operaciones.value(), 32767);
        QCOMPARE(factors(), last);
        QVERIFY(!drill->ended());
    }

    void anOverflowTakesTheWholeAnswerBack()
    {
        // 10 x 10 and 10 x 9 in turn: three errors with 10 in two answers.
        constexpr int Answers = 21844;
        for (int i = 0; i <= Answers; ++i)
            appendOperation(10, i % 2 == 0 ? 10 : 9);
        startWith(End::Button, 0);
        for (int i = 0; i < Answers; ++i)
            drill->judge(0);
        QCOMPARE(drill->state().Usos[9][1].value(), 32766);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill->judge(0));
        QCOMPARE(drill->state().Usos[9][1].value(), 32766); // not one of the two either
        QCOMPARE(drill->state().Operaciones.value(), Answers);
        QCOMPARE(drill->state().ErroresTotales.value(), Answers);
        QCOMPARE(factors(), Factors(10, 10));
    }

    void theTimeFadesFromGreenToRed_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<int>("red");
        QTest::addColumn<int>("green");

        QTest::newRow("10") << 10 << 0 << 255;
        QTest::newRow("9") << 9 << 26 << 230; // 25.5 and 229.5
        QTest::newRow("8") << 8 << 51 << 204;
        QTest::newRow("7") << 7 << 76 << 178; // 76.5 and 178.5
        QTest::newRow("6") << 6 << 102 << 153;
        QTest::newRow("5") << 5 << 128 << 128; // 127.5
        QTest::newRow("4") << 4 << 153 << 102;
        QTest::newRow("3") << 3 << 178 << 76;
        QTest::newRow("2") << 2 << 204 << 51;
        QTest::newRow("1") << 1 << 230 << 26;
    }
    void theTimeFadesFromGreenToRed()
    {
        QFETCH(int, seconds);
        const tables::TimeColour colour = tables::timeColour(seconds);
        QTEST(colour.red, "red");
        QTEST(colour.green, "green");
    }

    void decidesItsTexts()
    {
        QCOMPARE(QuickTables::verdictText(Verdict::Right), u"BIEN"_s);
        QCOMPARE(QuickTables::verdictText(Verdict::Wrong), u"MAL"_s);
        QCOMPARE(QuickTables::limitWarning(LimitVerdict::TooSmall),
            u"Ha especificado un valor demasiado pequeño. La actividad continuará hasta   que se "
            "pulse  el botón salir"_s);
        QCOMPARE(QuickTables::limitWarning(LimitVerdict::TooLarge),
            u"Ha especificado un valor demasiado grande. La actividad continuará hasta   que se "
            "pulse  el botón salir"_s);
    }

    void tellsOfALimitThatNoCounterHolds_data()
    {
        QTest::addColumn<End>("end");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("told");

        QTest::newRow("nothing typed") << End::Button << QString() << QString();
        QTest::newRow("out of range only") << End::Errors << u"32767"_s << QString();
        QTest::newRow("rounded down to the largest") << End::Errors << u"32767,4"_s << QString();
        QTest::newRow("rounded up beyond it")
            << End::Errors << u"32767,5"_s
            << u"«32767,5» es demasiado grande. Escribe un número del 1 al 100 y vuelve a empezar."_s;
        QTest::newRow("too large")
            << End::Operations << u" 40000 "_s
            << u"«40000» es demasiado grande. Escribe un número del 1 al 500 y vuelve a empezar."_s;
        QTest::newRow("too large, ended by the button")
            << End::Button << u"32768"_s
            << u"«32768» es demasiado grande. Escribe un número del 1 al 32767 y vuelve a empezar."_s;
        QTest::newRow("smallest") << End::Minutes << u"-32768"_s << QString();
        QTest::newRow("too small")
            << End::Minutes << u"-32769"_s
            << u"«-32769» es demasiado pequeño. Escribe un número del 1 al 60 y vuelve a empezar."_s;
    }
    void tellsOfALimitThatNoCounterHolds()
    {
        QFETCH(End, end);
        QFETCH(QString, typed);
        drill->endBy(end);
        QTEST(drill->limitFault(typed).value_or(QString()), "told");
    }
};

QTEST_GUILESS_MAIN(QuickTablesTest)
#include "quick_tables_test.moc"
