#include "core/errors.h"
#include "shell/exercise.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using shell::ExerciseCounters;

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
