#include "shell/verdict.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using shell::Repeat;
using shell::Verdict;
using shell::VerdictLine;

class VerdictTest : public QObject {
    Q_OBJECT

private slots:
    void aTextThatIsNoVerdictHasNone()
    {
        VerdictLine line;
        QVERIFY(line.text().isEmpty());
        QVERIFY(!line.verdict());
        line.tell(Verdict::Right, u"Bien"_s);
        QCOMPARE(line.verdict(), Verdict::Right);
        line.show(u"3 por 5"_s);
        QCOMPARE(line.text(), u"3 por 5"_s);
        QVERIFY(!line.verdict());
        line.tell(Verdict::Wrong, u"Mal"_s);
        QCOMPARE(line.verdict(), Verdict::Wrong);
        line.clear();
        QVERIFY(line.text().isEmpty());
        QVERIFY(!line.verdict());
    }

    void aRepeatedVerdictDiffers_data()
    {
        QTest::addColumn<Repeat>("repeat");
        QTest::addColumn<QStringList>("texts"); // of "Mal" three times, "Bien", "Mal"

        QTest::newRow("unchanged")
            << Repeat::Unchanged
            << QStringList{u"Mal"_s, u"Mal"_s, u"Mal"_s, u"Bien"_s, u"Mal"_s};
        QTest::newRow("in front")
            << Repeat::BlankInFront
            << QStringList{u"Mal"_s, u" Mal"_s, u" Mal"_s, u" Bien"_s, u" Mal"_s};
        QTest::newRow("behind") << Repeat::BlankBehind
                                << QStringList{
                                       u"Mal"_s, u"Mal "_s, u"Mal"_s, u"Bien"_s, u"Mal"_s};
        QTest::newRow("alternate")
            << Repeat::Alternate
            << QStringList{u"Mal"_s, u" Mal"_s, u"Mal"_s, u" Bien"_s, u"Mal"_s};
    }
    void aRepeatedVerdictDiffers()
    {
        QFETCH(Repeat, repeat);
        VerdictLine line;
        QStringList texts;
        for (const QString& words : {u"Mal"_s, u"Mal"_s, u"Mal"_s, u"Bien"_s, u"Mal"_s}) {
            line.tell(Verdict::Wrong, words, repeat);
            texts << line.text();
        }
        QTEST(texts, "texts");
    }

    void anEmptiedLineHasNothingToDifferFrom()
    {
        VerdictLine line;
        line.tell(Verdict::Wrong, u"Mal"_s, Repeat::BlankInFront);
        line.clear();
        line.tell(Verdict::Wrong, u"Mal"_s, Repeat::BlankInFront);
        QCOMPARE(line.text(), u"Mal"_s);
    }
};

QTEST_GUILESS_MAIN(VerdictTest)
#include "verdict_test.moc"
