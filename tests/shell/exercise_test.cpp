#include "core/errors.h"
#include "shell/exercise.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using shell::ExerciseCounters;
using shell::Verdict;

namespace {

class Drill : public shell::Exercise {
public:
    using Exercise::countEveryWrong;
    using Exercise::countWhilePending;

    QString line() const { return counters().FormatoSimple(); }
};

} // namespace

class ExerciseTest : public QObject {
    Q_OBJECT

private slots:
    void alignedFormatKeepsItsWidth_data()
    {
        QTest::addColumn<int>("exercises");
        QTest::addColumn<int>("errors");
        QTest::addColumn<QString>("line");
        QTest::newRow("start") << 0 << 0 << u"Ejercicios:  0; Errores:  0"_s;
        QTest::newRow("one digit") << 7 << 3 << u"Ejercicios:  7; Errores:  3"_s;
        QTest::newRow("two digits") << 12 << 10 << u"Ejercicios: 12; Errores: 10"_s;
        QTest::newRow("three digits") << 999 << 100 << u"Ejercicios:999; Errores:100"_s;
        QTest::newRow("four digits") << 1000 << 5 << u"Ejercicios:1000; Errores:  5"_s;
    }
    void alignedFormatKeepsItsWidth()
    {
        QFETCH(int, exercises);
        QFETCH(int, errors);
        QTEST((ExerciseCounters{exercises, errors}.FormatoAlineado()), "line");
    }

    void simpleFormatHasNoPadding()
    {
        QCOMPARE(ExerciseCounters().FormatoSimple(), u"Ejercicios: 0 Errores: 0"_s);
        QCOMPARE((ExerciseCounters{12, 3}.FormatoSimple()), u"Ejercicios: 12 Errores: 3"_s);
    }

    void wrongCountsBothAndRightOnlyTheExercise()
    {
        ExerciseCounters counters;
        counters.countWrong();
        QCOMPARE(counters.FormatoSimple(), u"Ejercicios: 1 Errores: 1"_s);
        counters.countRight();
        QCOMPARE(counters.FormatoSimple(), u"Ejercicios: 2 Errores: 1"_s);
    }

    void whilePendingEachAnswerCountsUpToTheRightOne()
    {
        Drill drill;
        drill.countWhilePending(Verdict::Wrong);
        drill.countWhilePending(Verdict::Wrong);
        QVERIFY(drill.isPending());
        drill.countWhilePending(Verdict::NotJudged);
        QCOMPARE(drill.line(), u"Ejercicios: 2 Errores: 2"_s);
        QVERIFY(drill.isPending());
        drill.countWhilePending(Verdict::Right);
        QVERIFY(!drill.isPending());
        drill.countWhilePending(Verdict::Wrong);
        drill.countWhilePending(Verdict::Right);
        QCOMPARE(drill.line(), u"Ejercicios: 3 Errores: 2"_s);
        QVERIFY(!drill.isPending());
    }

    void everyWrongAnswerCountsAlsoBehindTheRightOne()
    {
        Drill drill;
        drill.countEveryWrong(Verdict::Wrong);
        drill.countEveryWrong(Verdict::NotJudged);
        QVERIFY(drill.isPending());
        drill.countEveryWrong(Verdict::Right);
        QVERIFY(!drill.isPending());
        QCOMPARE(drill.line(), u"Ejercicios: 2 Errores: 1"_s);
        drill.countEveryWrong(Verdict::Right);
        QCOMPARE(drill.line(), u"Ejercicios: 2 Errores: 1"_s);
        drill.countEveryWrong(Verdict::Wrong);
        QCOMPARE(drill.line(), u"Ejercicios: 3 Errores: 2"_s);
        QVERIFY(!drill.isPending());
    }

    void overflowIsReportedAndChangesNothing()
    {
        ExerciseCounters full{32767, 12};
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, full.countRight());
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, full.countWrong());
        QCOMPARE(full.FormatoSimple(), u"Ejercicios: 32767 Errores: 12"_s);
        ExerciseCounters errors{12, 32767};
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, errors.countWrong());
        QCOMPARE(errors.FormatoSimple(), u"Ejercicios: 12 Errores: 32767"_s);
    }
};

QTEST_GUILESS_MAIN(ExerciseTest)
#include "exercise_test.moc"
