#include "written/spoken.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class SpokenTest : public QObject {
    Q_OBJECT

private slots:
    void operationsAreReadInWords_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("spoken");
        QTest::newRow("every sign and brackets")
            << u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s
            << u"abre paréntesis 5 más 3 cierra paréntesis más 4 por 2 menos 18 entre 3"_s;
        QTest::newRow("the times sign of a hint") << u"7 × 3"_s << u"7 por 3"_s;
        QTest::newRow("no blanks") << u"-12÷3"_s << u"menos 12 entre 3"_s;
        QTest::newRow("number") << u"84"_s << u"84"_s;
    }
    void operationsAreReadInWords()
    {
        QFETCH(QString, operation);
        QTEST(written::spokenOperation(operation), "spoken");
    }

    void placesHaveNames()
    {
        QCOMPARE(written::spokenPlace(0), u"unidades"_s);
        QCOMPARE(written::spokenPlace(1), u"decenas"_s);
        QCOMPARE(written::spokenPlace(3), u"unidades de millar"_s);
        QCOMPARE(written::spokenPlace(8), u"centenas de millón"_s);
        QCOMPARE(written::spokenPlace(9), u"lugar 10 desde la derecha"_s);
    }

    void listsEndInAnd()
    {
        QCOMPARE(written::spokenList({}), QString());
        QCOMPARE(written::spokenList({u"1"_s}), u"1"_s);
        QCOMPARE(written::spokenList({u"1"_s, u"3"_s}), u"1 y 3"_s);
        QCOMPARE(written::spokenList({u"12"_s, u"16"_s, u"20"_s}), u"12, 16 y 20"_s);
    }
};

QTEST_GUILESS_MAIN(SpokenTest)
#include "spoken_test.moc"
