#include "core/errors.h"
#include "core/int16.h"

#include <QtTest>

using core::Int16;

class Int16Test : public QObject {
    Q_OBJECT

private slots:
    void holdsTheWholeRange()
    {
        QCOMPARE(Int16(32767).value(), 32767);
        QCOMPARE(Int16(-32768).value(), -32768);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, Int16(32768));
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, Int16(-32769));
    }

    void arithmeticStaysInTheRange()
    {
        QCOMPARE((Int16(7) + 5).value(), 12);
        QCOMPARE((Int16(7) - 12).value(), -5);
        QCOMPARE((Int16(181) * 181).value(), 32761);
        QCOMPARE((Int16(-7) / 2).value(), -3);
        QCOMPARE((Int16(-7) % 2).value(), -1);
        QCOMPARE((-Int16(5)).value(), -5);
    }

    void startsAtNothingAndCounts()
    {
        Int16 number;
        QCOMPARE(number.value(), 0);
        QCOMPARE((++number).value(), 1);
        QCOMPARE((number += 6).value(), 7);
        QCOMPARE((number *= 3).value(), 21);
        QCOMPARE((number -= 9).value(), 12);
        QCOMPARE((--number).value(), 11);
        QCOMPARE(number.value(), 11);
    }

    void leavingTheRangeThrowsAndChangesNothing()
    {
        Int16 top = 32767;
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, ++top);
        QCOMPARE(top.value(), 32767);
        Int16 bottom = -32768;
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, --bottom);
        QCOMPARE(bottom.value(), -32768);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, Int16(182) * 182);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, -bottom);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, bottom / -1);
    }

    void dividingByZeroThrows()
    {
        QVERIFY_THROWS_EXCEPTION(core::DivisionByZeroError, Int16(1) / 0);
        QVERIFY_THROWS_EXCEPTION(core::DivisionByZeroError, Int16(1) % 0);
    }

    void overflowNamesTheValue()
    {
        try {
            Int16(40000);
            QFAIL("no error");
        } catch (const core::OverflowError& error) {
            QVERIFY(error.text().contains(QStringLiteral("40000")));
        }
    }
};

QTEST_GUILESS_MAIN(Int16Test)
#include "int16_test.moc"
