#include "written/spoken.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class SpokenTest : public QObject {
    Q_OBJECT

private slots:
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
