#include "problems/problem_session.h"

#include "support/scripted_random.h"

#include <QtTest>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;
using problems::Bank;
using problems::ProblemSession;
using shell::Verdict;

namespace {

/// Lines "P0|10|unidades|operations", "P1|11|…", one for each operations field.
Bank bankOf(const QStringList& operations)
{
    Bank bank;
    for (qsizetype i = 0; i < operations.size(); ++i)
        bank.lines << u"P%1|%2|unidades|%3"_s.arg(i).arg(10 + i).arg(operations[i]);
    bank.used.resize(static_cast<std::size_t>(bank.lines.size()), false);
    return bank;
}

Bank bankOfSize(int size, const QString& operations = u"*"_s)
{
    return bankOf(QStringList(size, operations));
}

} // namespace

class ProblemSessionTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        random = std::make_unique<ScriptedRandom>();
        session = std::make_unique<ProblemSession>(*random);
        calls = 0;
    }

    // --- drawing

    void drawsFromTheSecondLineToTheLast_data()
    {
        QTest::addColumn<float>("draw");
        QTest::addColumn<QString>("statement");
        QTest::newRow("lowest draw") << 0.0f << u"P1"_s;
        QTest::newRow("below a step") << 0.2499f << u"P1"_s;
        QTest::newRow("on a step") << 0.25f << u"P2"_s;
        QTest::newRow("highest draw") << std::nextafter(1.0f, 0.0f) << u"P4"_s;
    }
    void drawsFromTheSecondLineToTheLast()
    {
        QFETCH(float, draw);
        session->setBank(bankOfSize(5));
        random->append({draw});
        QTEST(next(), "statement");
        QCOMPARE(random->left(), 0u);
    }

    void theHighestDrawStaysInTheLargestBank()
    {
        session->setBank(bankOfSize(problems::MostBankLines));
        random->append({std::nextafter(1.0f, 0.0f)});
        QCOMPARE(next(), u"P32766"_s);
    }

    void preparesTheWholeProblem()
    {
        session->setBank({{u"x|0||*"_s, u"Hay [2_9] y [3_8].|{&1*&2}|manzanas|*"_s}, {}});
        random->append({0.0f, 0.0f, 0.999f});
        session->newExercise([] {});
        QCOMPARE(session->problem().statement, u"Hay 2 y 8."_s);
        QCOMPARE(session->problem().answer, 16);
        QCOMPARE(session->problem().unit, u"manzanas"_s);
        QCOMPARE(session->problem().data[0], 2);
        QCOMPARE(session->problem().data[1], 8);
    }

    void saysTheProblemWithItsUnit()
    {
        QCOMPARE(session->spokenExercise(), QString());
        session->setBank({{u"x|0||*"_s, u"¿2 por 8?|16|manzanas|*"_s}, {}});
        random->append({0.0f});
        next();
        QCOMPARE(session->spokenExercise(), u"¿2 por 8? Respuesta en manzanas"_s);
        QCOMPARE(session->spokenSolution(), u"16 manzanas"_s);
    }

    void saysNoUnitWhereThereIsNone()
    {
        session->setBank({{u"x|0||*"_s, u"¿2 por 8?|16||*"_s}, {}});
        random->append({0.0f});
        next();
        QCOMPARE(session->spokenExercise(), u"¿2 por 8?"_s);
        QCOMPARE(session->spokenSolution(), u"16"_s);
    }

    void callsBackBeforeEachDraw()
    {
        session->setBank(bankOfSize(5));
        script({1, 1, 1, 2}, 5);
        QCOMPARE(next(), u"P1"_s);
        std::vector<std::size_t> drawsLeft;
        session->newExercise([&] { drawsLeft.push_back(random->left()); });
        QCOMPARE(session->problem().statement, u"P2"_s);
        QCOMPARE(drawsLeft, (std::vector<std::size_t>{3, 2, 1}));
    }

    void aCallBackThatThrowsLeavesEverythingAsItWas()
    {
        session->setBank(bankOfSize(5));
        script({3, 3}, 5);
        QCOMPARE(next(), u"P3"_s);
        session->showSolution();
        QVERIFY_THROWS_EXCEPTION(int, session->newExercise([] { throw 1; }));
        QCOMPARE(session->problem().statement, u"P3"_s);
        QCOMPARE(random->left(), 1u);
        QCOMPARE(session->judge(13), Verdict::Right);
        QCOMPARE(session->counters().Ejercicios, core::Int16(0));
    }

    void aProblemComesOnceInACycle()
    {
        session->setBank(bankOfSize(5));
        script({4, 4, 2, 2, 4, 1, 3}, 5);
        QCOMPARE(next(), u"P4"_s);
        QCOMPARE(next(), u"P2"_s);
        QCOMPARE(next(), u"P1"_s);
        QCOMPARE(next(), u"P3"_s);
        QCOMPARE(random->left(), 0u);
    }

    // --- cycles

    void oneOfTenLeftIsNoNewCycle()
    {
        exhaustMultiplications();
        script({3, 8, 9}, 10); // 3 and 8 have been shown
        QCOMPARE(next(), u"P9"_s);
        QCOMPARE(random->left(), 0u);
    }

    void noNewCycleWhereItWouldNotHelp()
    {
        session->setBank(bankOf({u"*"_s, u"/"_s, u"/"_s, u"/"_s, u"/"_s}));
        script({1}, 5);
        QCOMPARE(next(), u"P1"_s);
        session->CargaDatos(1, 1); // only the first line, which is never drawn
        QVERIFY(!failure().isEmpty());
        session->CargaDatos(0, 0);
        script({1, 2}, 5); // P1 has still been shown
        QCOMPARE(next(), u"P2"_s);
        QCOMPARE(random->left(), 0u);
    }

    void noneOfTenLeftIsANewCycle()
    {
        exhaustMultiplications();
        script({9, 3}, 10);
        QCOMPARE(next(), u"P9"_s);
        QCOMPARE(next(), u"P3"_s);
        QCOMPARE(random->left(), 0u);
    }

    void fewerThanATenthOfTheBankIsANewCycle()
    {
        // The first line is counted with those that are left: one of eleven after ten.
        session->setBank(bankOfSize(11));
        for (int i = 1; i <= 10; ++i)
            script({i}, 11);
        for (int i = 1; i <= 10; ++i)
            QCOMPARE(next(), u"P%1"_s.arg(i));
        script({7}, 11);
        QCOMPARE(next(), u"P7"_s);
    }

    void theFirstLineCountsAsLeft()
    {
        session->setBank(bankOfSize(20));
        for (int i = 1; i <= 18; ++i) {
            script({i}, 20);
            QCOMPARE(next(), u"P%1"_s.arg(i));
        }
        script({4, 19}, 20); // two of twenty are left, with the first
        QCOMPARE(next(), u"P19"_s);
    }

    void lessThanATenthIsLessThanATenth_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("left");
        QTest::addColumn<bool>("isNewCycle");
        QTest::newRow("2 of 30") << 30 << 2 << true;
        QTest::newRow("3 of 30") << 30 << 3 << false;
        QTest::newRow("3 of 31") << 31 << 3 << true;
        QTest::newRow("4 of 31") << 31 << 4 << false;
    }
    void lessThanATenthIsLessThanATenth()
    {
        QFETCH(int, lines);
        QFETCH(int, left);
        QFETCH(bool, isNewCycle);
        session->setBank(bankOfSize(lines));
        for (int i = 1; i <= lines - left; ++i) {
            script({i}, lines);
            QCOMPARE(next(), u"P%1"_s.arg(i));
        }
        script({1, lines - 1}, lines); // P1 has been shown in this cycle
        QCOMPARE(next(), isNewCycle ? u"P1"_s : u"P%1"_s.arg(lines - 1));
    }

    void twoLinesDoNotRunDry()
    {
        session->setBank(bankOf({u"/"_s, u"*"_s}));
        for (int times = 0; times < 3; ++times) {
            script({1}, 2);
            QCOMPARE(next(), u"P1"_s);
        }
    }

    void theTenthIsOfTheWholeBankNotOfTheSelection()
    {
        QStringList operations(20, u"/"_s);
        operations[5] = u"*"_s;
        session->setBank(bankOf(operations));
        session->CargaDatos(1, 1);
        script({5, 4, 5, 5}, 20);
        QCOMPARE(next(), u"P5"_s);
        QCOMPARE(next(), u"P5"_s); // 1 of 20: each draw begins a cycle
        QCOMPARE(next(), u"P5"_s);
        QCOMPARE(random->left(), 0u);
    }

    void tenLinesDoNotRunDry()
    {
        session->setBank(bankOfSize(10));
        for (int i = 1; i <= 9; ++i)
            script({i}, 10);
        for (int i = 1; i <= 9; ++i)
            QCOMPARE(next(), u"P%1"_s.arg(i));
        // The first line, which is never drawn, keeps a tenth of the bank left.
        script({6}, 10);
        QCOMPARE(next(), u"P6"_s);
        script({6, 2}, 10); // and the new cycle remembers what it has shown
        QCOMPARE(next(), u"P2"_s);
        QCOMPARE(random->left(), 0u);
    }

    void aNewBankIsUnused()
    {
        session->setBank(bankOfSize(3));
        script({1, 1}, 3);
        QCOMPARE(next(), u"P1"_s);
        Bank edited = bankOfSize(3);
        edited.used[1] = true; // not to be trusted
        session->setBank(edited);
        QCOMPARE(session->problem().statement, u"P1"_s);
        QCOMPARE(next(), u"P1"_s);
    }

    // --- nothing to draw

    void anEmptyBankIsToldByItsOwnSentence()
    {
        session->setBank({});
        session->CargaDatos(2, 1);
        QCOMPARE(failure(),
            u"El banco de problemas está vacío o falta su archivo, «Problemas3.dat». "
            "Añada problemas en «Gestión de problemas...»."_s);
        QCOMPARE(calls, 0);
    }

    void noProblemOfTheSelection_data()
    {
        QTest::addColumn<QStringList>("operations");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("mask");
        const QStringList all{u"*"_s, u"/"_s, u"+"_s, u"-"_s};
        QTest::newRow("any: subtraction") << all << 1 << 8;
        QTest::newRow("any: only the first line") << all << 1 << 1;
        QTest::newRow("any of none") << all << 1 << 0;
        QTest::newRow("all: nowhere together") << all << 2 << 3;
        QTest::newRow("unknown mode") << all << 3 << 15;
    }
    void noProblemOfTheSelection()
    {
        QFETCH(QStringList, operations);
        QFETCH(int, mode);
        QFETCH(int, mask);
        session->setBank(bankOfSize(3));
        script({2}, 3);
        QCOMPARE(next(), u"P2"_s);
        session->setBank(bankOf(operations));
        session->CargaDatos(mode, static_cast<problems::OperationMask>(mask));
        QCOMPARE(failure(), u"No hay ningún problema que cumpla la selección."_s);
        QCOMPARE(calls, 1); // no draw but that of P2
        QCOMPARE(session->problem().statement, u"P2"_s);
        QCOMPARE(session->judge(12), Verdict::Right);
        QCOMPARE(session->counters().Ejercicios, core::Int16(1));
    }

    void theSessionGoesOnWhenTheSelectionIsTakenBack()
    {
        session->setBank(bankOfSize(4));
        session->CargaDatos(1, 8);
        QVERIFY(!failure().isEmpty());
        session->CargaDatos(0, 0);
        script({3}, 4);
        QCOMPARE(next(), u"P3"_s);
    }

    void aBankOfOneLineIsReported()
    {
        session->setBank(bankOfSize(1));
        QVERIFY2(failure().contains(u"línea 1,"_s), qPrintable(failure()));
        QCOMPARE(session->problem().statement, QString());
        QCOMPARE(session->judge(0), Verdict::Right);
    }

    void aLineThatCannotBePreparedIsReportedWithItsNumber()
    {
        Bank bank = bankOfSize(3);
        bank.lines[2] = u"Un 100 %1 mal|{&0}|%2|*"_s;
        session->setBank(bank);
        script({1, 2}, 3);
        QCOMPARE(next(), u"P1"_s);
        session->showSolution();
        const QString text = failure();
        QVERIFY2(text.startsWith(u"El problema de la línea 3 del banco no se puede preparar."_s),
            qPrintable(text));
        QVERIFY2(text.contains(u"{&0}"_s), qPrintable(text));
        QCOMPARE(session->problem().statement, u"P1"_s);
        QCOMPARE(session->judge(11), Verdict::Right);
        QCOMPARE(session->counters().Ejercicios, core::Int16(0)); // its solution was shown
    }

    void aLineThatCannotBePreparedDoesNotComeAgainInTheCycle()
    {
        Bank bank = bankOfSize(3);
        bank.lines[2] = u"mal|{1/0}||*"_s;
        session->setBank(bank);
        script({2, 2, 1}, 3);
        QVERIFY(!failure().isEmpty());
        QCOMPARE(next(), u"P1"_s);
        QCOMPARE(random->left(), 0u);
    }

    // --- the selection

    void selection_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("mask");
        QTest::addColumn<QString>("operations");
        QTest::addColumn<bool>("admitted");
        QTest::newRow("all problems") << 0 << 0 << u""_s << true;
        QTest::newRow("all problems, whatever the mask") << 0 << 15 << u"-"_s << true;
        QTest::newRow("any: multiplication") << 1 << 1 << u"*"_s << true;
        QTest::newRow("any: division") << 1 << 2 << u"/"_s << true;
        QTest::newRow("any: addition") << 1 << 4 << u"+"_s << true;
        QTest::newRow("any: subtraction never") << 1 << 8 << u"-"_s << false;
        QTest::newRow("any: subtraction beside another") << 1 << 8 << u"*-"_s << false;
        QTest::newRow("any of all: subtraction never") << 1 << 15 << u"-"_s << false;
        QTest::newRow("any of all: by its addition") << 1 << 15 << u"+-"_s << true;
        QTest::newRow("any: not selected") << 1 << 1 << u"/+-"_s << false;
        QTest::newRow("any: one of two") << 1 << 6 << u"+"_s << true;
        QTest::newRow("any of none") << 1 << 0 << u"*/+-"_s << false;
        QTest::newRow("any: a line of no operation") << 1 << 15 << u""_s << false;
        QTest::newRow("all: both") << 2 << 3 << u"*/"_s << true;
        QTest::newRow("all: both and more") << 2 << 3 << u"*/-"_s << true;
        QTest::newRow("all: one missing") << 2 << 3 << u"*"_s << false;
        QTest::newRow("all: the other missing") << 2 << 3 << u"/+"_s << false;
        QTest::newRow("all: subtraction") << 2 << 8 << u"-"_s << true;
        QTest::newRow("all: subtraction missing") << 2 << 8 << u"+"_s << false;
        QTest::newRow("all of none") << 2 << 0 << u""_s << true;
        QTest::newRow("another mode") << 3 << 15 << u"*/+-"_s << false;
        QTest::newRow("a negative mode") << -1 << 15 << u"*/+-"_s << false;
    }
    void selection()
    {
        QFETCH(int, mode);
        QFETCH(int, mask);
        QFETCH(QString, operations);
        session->CargaDatos(mode, static_cast<problems::OperationMask>(mask));
        QTEST(session->CumpleSeleccion(u"2*3/4+5-6|7|u|%1"_s.arg(operations)), "admitted");
    }

    void theSelectionDecidesWhatIsDrawn()
    {
        session->setBank(bankOf({u"*"_s, u"/"_s, u"*+"_s, u"-"_s, u"*/"_s}));
        session->CargaDatos(2, 3);
        script({1, 2, 3, 4}, 5);
        QCOMPARE(next(), u"P4"_s);
        QCOMPARE(random->left(), 0u);
    }

    void aSelectionReplacesTheOneBefore()
    {
        session->CargaDatos(2, 15);
        session->CargaDatos(2, 4);
        QVERIFY(session->CumpleSeleccion(u"a|1||+"_s));
        QVERIFY(!session->CumpleSeleccion(u"a|1||*"_s));
    }

    // --- answers

    void wrongThenRightCountsTwoAndOneError()
    {
        show(1);
        QCOMPARE(session->judge(99), Verdict::Wrong);
        QCOMPARE(session->judge(11), Verdict::Right);
        verifyCounters(2, 1);
    }

    void everyWrongAnswerCountsAnExercise()
    {
        show(1);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(session->judge(0), Verdict::Wrong);
        verifyCounters(3, 3);
    }

    void aRightAnswerCountsOnce()
    {
        show(1);
        QCOMPARE(session->judge(11), Verdict::Right);
        QCOMPARE(session->judge(11), Verdict::Right);
        verifyCounters(1, 0);
    }

    void wrongAfterRightStillCounts()
    {
        show(1);
        session->judge(11);
        session->judge(5);
        session->judge(11);
        verifyCounters(2, 1);
    }

    void afterTheSolutionARightAnswerDoesNotCount()
    {
        show(1);
        QCOMPARE(session->showSolution(), 11);
        QCOMPARE(session->judge(11), Verdict::Right);
        verifyCounters(0, 0);
        session->judge(12);
        verifyCounters(1, 1);
    }

    void theNextProblemCountsAgain()
    {
        show(1);
        session->showSolution();
        show(2);
        QCOMPARE(session->judge(12), Verdict::Right);
        verifyCounters(1, 0);
    }

    void answersAreComparedAsNumbers()
    {
        show(1);
        QCOMPARE(session->judge(11.5), Verdict::Wrong);
        QCOMPARE(session->judge(10.9999), Verdict::Wrong);
        QCOMPARE(session->judge(11.0), Verdict::Right);
    }

    void withoutAProblemTheAnswerIs0()
    {
        QCOMPARE(session->problem().statement, QString());
        QCOMPARE(session->problem().unit, QString());
        QCOMPARE(session->showSolution(), 0);
        QCOMPARE(session->judge(0), Verdict::Right);
        QCOMPARE(session->judge(1), Verdict::Wrong);
    }

    void countingPast32767IsAnError()
    {
        show(1);
        for (int i = 0; i < 32767; ++i)
            session->judge(0);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, session->judge(0));
        verifyCounters(32767, 32767);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, session->judge(11));
        verifyCounters(32767, 32767);
    }

    // --- in the long run

    void everyLineButTheFirstComesUpAlike()
    {
        core::SeededRandom seeded;
        seeded.seed(42);
        ProblemSession lasting(seeded);
        lasting.setBank(bankOfSize(20));
        std::map<QString, int> shown;
        constexpr int Problems = 19 * 500;
        for (int i = 0; i < Problems; ++i) {
            lasting.newExercise([] {});
            ++shown[lasting.problem().statement];
        }
        QCOMPARE(shown.size(), 19u);
        QCOMPARE(shown.count(u"P0"_s), 0u);
        for (const auto& [statement, times] : shown)
            QVERIFY2(times > 430 && times < 570, qPrintable(statement));
    }

private:
    /// Draws that fall on these lines of a bank of this size.
    void script(std::initializer_list<int> indexes, int size)
    {
        for (const int index : indexes)
            random->appendInteger(index, size - 1, 1);
    }

    QString next()
    {
        session->newExercise([this] { ++calls; });
        return session->problem().statement;
    }

    /// What newExercise fails with; empty when it does not.
    QString failure()
    {
        try {
            next();
        } catch (const core::Error& error) {
            return error.text();
        }
        return {};
    }

    void show(int index)
    {
        session->setBank(bankOfSize(5));
        script({index}, 5);
        QCOMPARE(next(), u"P%1"_s.arg(index));
    }

    /// Ten lines of which the first is not selected, with P9 alone not shown yet.
    void exhaustMultiplications()
    {
        QStringList operations(10, u"*"_s);
        operations[0] = u"/"_s;
        session->setBank(bankOf(operations));
        session->CargaDatos(1, 1);
        for (int i = 1; i <= 8; ++i) {
            script({i}, 10);
            QCOMPARE(next(), u"P%1"_s.arg(i));
        }
    }

    void verifyCounters(int exercises, int errors) const
    {
        QCOMPARE(session->counters().Ejercicios, core::Int16(exercises));
        QCOMPARE(session->counters().Errores, core::Int16(errors));
    }

    std::unique_ptr<ScriptedRandom> random;
    std::unique_ptr<ProblemSession> session;
    int calls = 0;
};

QTEST_GUILESS_MAIN(ProblemSessionTest)
#include "problem_session_test.moc"
