#include "problems/selection.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using problems::operationsOf;
using problems::ProblemSelection;

class SelectionTest : public QObject {
    Q_OBJECT

private slots:
    void operationsOfALine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("mask");
        QTest::newRow("multiplication") << u"a|1|b|*"_s << 1;
        QTest::newRow("division") << u"a|1|b|/"_s << 2;
        QTest::newRow("addition") << u"a|1|b|+"_s << 4;
        QTest::newRow("subtraction") << u"a|1|b|-"_s << 8;
        QTest::newRow("all") << u"a|1|b|*/+-"_s << 15;
        QTest::newRow("any order") << u"a|1|b|-*"_s << 9;
        QTest::newRow("none") << u"a + b|1|b|"_s << 0;
        QTest::newRow("only behind the last separator") << u"a*b|{&1-&2}|b|+"_s << 4;
        QTest::newRow("three fields") << u"a|{2*3}|+"_s << 4;
        QTest::newRow("no separator: the whole line") << u"3 * 4 - 2"_s << 9;
        QTest::newRow("empty") << QString() << 0;
    }
    void operationsOfALine()
    {
        QFETCH(QString, line);
        QTEST(int(operationsOf(QStringView(line))), "mask");
    }

    void countsTheLinesThatAreLeft_data()
    {
        using enum ProblemSelection::Option;
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("checked");
        QTest::addColumn<int>("count");
        QTest::newRow("no option, nothing checked") << int(NoOption) << 0 << 0;
        QTest::newRow("no option, all checked") << int(NoOption) << 15 << 0;
        QTest::newRow("all types") << int(AllTypes) << 0 << 7;
        QTest::newRow("all types, whatever is checked") << int(AllTypes) << 8 << 7;
        QTest::newRow("any of none") << int(AnySelected) << 0 << 0;
        QTest::newRow("any: multiplication") << int(AnySelected) << 1 << 3;
        QTest::newRow("any: subtraction counts") << int(AnySelected) << 8 << 2;
        QTest::newRow("any of two") << int(AnySelected) << 3 << 4;
        QTest::newRow("any of all") << int(AnySelected) << 15 << 6;
        QTest::newRow("all of none: every line") << int(AllSelected) << 0 << 7;
        QTest::newRow("all of one") << int(AllSelected) << 4 << 2;
        QTest::newRow("all of two") << int(AllSelected) << 3 << 1;
        QTest::newRow("all of all") << int(AllSelected) << 15 << 0;
    }
    void countsTheLinesThatAreLeft()
    {
        QFETCH(int, option);
        QFETCH(int, checked);
        ProblemSelection selection;
        selection.load({u"first|1||*"_s, u"b|1||/"_s, u"c|1||*/"_s, u"d|1||+"_s, u"e|1||-"_s,
            u"f|1||*+-"_s, u"g|1||"_s});
        QTEST(selection.ContarDisponibles(static_cast<ProblemSelection::Option>(option),
                  static_cast<problems::OperationMask>(checked)),
            "count");
    }

    void optionsAreNumberedAsTheirButtons()
    {
        QCOMPARE(int(ProblemSelection::AllTypes), 0);
        QCOMPARE(int(ProblemSelection::AnySelected), 1);
        QCOMPARE(int(ProblemSelection::AllSelected), 2);
    }

    void withoutABankNothingIsLeft()
    {
        QCOMPARE(ProblemSelection().ContarDisponibles(ProblemSelection::AllTypes, 15), 0);
    }

    void saysHowManyAreLeft()
    {
        QCOMPARE(ProblemSelection::availableText(0), u"0 enunciados disponibles"_s);
        QCOMPARE(ProblemSelection::availableText(1), u"1 enunciados disponibles"_s);
    }
};

QTEST_GUILESS_MAIN(SelectionTest)
#include "selection_test.moc"
