#include "written/grid_text.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using written::GridText;

class GridTextTest : public QObject {
    Q_OBJECT

private slots:
    void startsWithALineAndBlankRoom();
    void lineStartsAtAMultipleOfTheColumns();
    void writingALineClearsWhatFollows();
    void writingBeyondTheTextFillsUpWithBlanks();
    void lastWrittenLine_data();
    void lastWrittenLine();
    void typingReplacesOneCharacter_data();
    void typingReplacesOneCharacter();
    void wordStandsBetweenBlanks_data();
    void wordStandsBetweenBlanks();
    void aWordMayReachTheEnd();
    void nothingIsTypedOnTheFirstLineOrBeyondTheEnd();
    void typedTextRunsOnAndBreaksInItsColumn();
    void typedTextStopsAtTheEnd();
    void composedCharactersFillOneCell();
};

void GridTextTest::startsWithALineAndBlankRoom()
{
    const GridText grid(u" 84"_s, 6);
    QCOMPARE(grid.text(), u" 84"_s + QString(2000, u' '));
    QCOMPARE(grid.columns(), 6);
}

void GridTextTest::lineStartsAtAMultipleOfTheColumns()
{
    GridText grid(u" 84"_s, 6);
    grid.EscribeLinea(u"abcdefgh"_s, 1, 0);
    QCOMPARE(grid.line(0), u" 84   "_s);
    QCOMPARE(grid.line(1), u"abcdef"_s);
    QCOMPARE(grid.line(2), u"gh    "_s);
    QCOMPARE(grid.line(999), QString());
}

void GridTextTest::writingALineClearsWhatFollows()
{
    GridText grid(u" 84"_s, 6);
    grid.EscribeLinea(u"111111"_s, 1, 0);
    grid.EscribeLinea(u"222222"_s, 2, 0);
    grid.EscribeLinea(u"33"_s, 1, 2);
    QCOMPARE(grid.text(), u" 84   1133"_s + QString(2000, u' '));
}

void GridTextTest::writingBeyondTheTextFillsUpWithBlanks()
{
    GridText grid(u" 84"_s, 6);
    grid.EscribeLinea(u"9"_s, 400, 1);
    QCOMPARE(grid.text(), u" 84"_s + QString(2398, u' ') + u'9' + QString(2000, u' '));
}

void GridTextTest::lastWrittenLine_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("last");

    QTest::newRow("only the operation") << QStringList{} << u"84"_s;
    QTest::newRow("one line") << QStringList{u" 14   "_s} << u"14"_s;
    QTest::newRow("the last of several") << QStringList{u" 14   "_s, u"  0   "_s} << u"0"_s;
    QTest::newRow("an empty line ends them")
        << QStringList{u" 14   "_s, u"      "_s, u"  3   "_s} << u"14"_s;
    QTest::newRow("blanks inside stay") << QStringList{u" 1 4  "_s} << u"1 4"_s;
}

void GridTextTest::lastWrittenLine()
{
    QFETCH(QStringList, lines);
    GridText grid(u" 84"_s, 6);
    for (int row = 0; row < lines.size(); ++row)
        grid.EscribeLinea(lines[row], row + 1, 0);
    QTEST(grid.lastWrittenLine(), "last");
}

void GridTextTest::typingReplacesOneCharacter_data()
{
    QTest::addColumn<QChar>("typed");
    QTest::addColumn<QChar>("written");

    QTest::newRow("a digit") << QChar(u'7') << QChar(u'7');
    QTest::newRow("a comma") << QChar(u',') << QChar(u',');
    QTest::newRow("a minus") << QChar(u'-') << QChar(u'-');
    QTest::newRow("a letter") << QChar(u'ñ') << QChar(u'ñ');
    QTest::newRow("Enter") << QChar(13) << QChar(u' ');
    QTest::newRow("Backspace") << QChar(8) << QChar(u' ');
    QTest::newRow("full stop") << QChar(u'.') << QChar(u' ');
    QTest::newRow("blank") << QChar(u' ') << QChar(u' ');
    QTest::newRow("non-breaking blank") << QChar(0xa0) << QChar(u' ');
    QTest::newRow("tab") << QChar(9) << QChar(u' ');
    QTest::newRow("zero-width blank") << QChar(0x200b) << QChar(u' ');
    QTest::newRow("combining mark") << QChar(0x301) << QChar(u' ');
    QTest::newRow("half an emoji") << QChar(0xd83d) << QChar(u' ');
}

void GridTextTest::typingReplacesOneCharacter()
{
    QFETCH(QChar, typed);
    QFETCH(QChar, written);
    GridText grid(u" 84"_s, 6);
    grid.EscribeLinea(u"123456"_s, 1, 0);
    QVERIFY(grid.overtype(8, typed));
    QCOMPARE(grid.text(), u" 84   12"_s + written + u"456"_s + QString(2000, u' '));
}

void GridTextTest::wordStandsBetweenBlanks_data()
{
    using Word = std::optional<GridText::Word>;
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("position");
    QTest::addColumn<Word>("word");

    QTest::newRow("blank before it") << u" 84"_s << 0 << Word();
    QTest::newRow("first character") << u" 84"_s << 1 << Word({1, 3});
    QTest::newRow("last character") << u" 84"_s << 2 << Word({1, 3});
    QTest::newRow("blank behind it") << u" 84"_s << 3 << Word();
    QTest::newRow("at the very start") << u"84 7"_s << 1 << Word({0, 2});
    QTest::newRow("after another one") << u"84 7"_s << 3 << Word({3, 4});
    QTest::newRow("last blank") << u"84"_s << 2001 << Word();
    QTest::newRow("end of the text") << u"84"_s << 2002 << Word();
}

void GridTextTest::wordStandsBetweenBlanks()
{
    QFETCH(QString, line);
    QFETCH(int, position);
    const GridText grid(line, 6);
    QTEST(grid.wordAt(position), "word");
}

void GridTextTest::aWordMayReachTheEnd()
{
    GridText grid(u"84"_s, 6);
    QVERIFY(grid.overtypeText(grid.size() - 3, u"123"_s));
    const int end = grid.size();
    QCOMPARE(grid.wordAt(end - 1), (GridText::Word{end - 3, end}));
}

void GridTextTest::nothingIsTypedOnTheFirstLineOrBeyondTheEnd()
{
    const GridText before(u" 84"_s, 6);
    GridText grid = before;
    for (const int position : {-1, 0, 1, 5, 2003, 5000}) {
        QVERIFY(!grid.overtype(position, u'7'));
        QVERIFY(!grid.overtypeText(position, u"77777777"_s));
    }
    QCOMPARE(grid, before);
    QVERIFY(grid.overtype(6, u'7'));
    QVERIFY(grid.overtype(2002, u'7'));
    QCOMPARE(grid.size(), before.size());
}

void GridTextTest::typedTextRunsOnAndBreaksInItsColumn()
{
    GridText grid(u" 84"_s, 6);
    QVERIFY(grid.overtypeText(9, u"1234\r\n56\n7\r8\u20299"_s));
    QCOMPARE(grid.line(1), u"   123"_s);
    QCOMPARE(grid.line(2), u"4  56 "_s);
    QCOMPARE(grid.line(3), u"   7  "_s);
    QCOMPARE(grid.line(4), u"   8  "_s);
    QCOMPARE(grid.line(5), u"   9  "_s);
    QCOMPARE(grid.size(), 2003);
}

void GridTextTest::typedTextStopsAtTheEnd()
{
    GridText grid(u" 84"_s, 6);
    QVERIFY(grid.overtypeText(2001, u"1234"_s));
    QCOMPARE(grid.text().right(3), u" 12"_s);
    QCOMPARE(grid.size(), 2003);
}

void GridTextTest::composedCharactersFillOneCell()
{
    GridText grid(u" 84"_s, 6);
    QVERIFY(grid.overtypeText(6, QString(u"n\u0303o"_s)));
    QCOMPARE(grid.line(1), u"ño    "_s);
}

QTEST_GUILESS_MAIN(GridTextTest)
#include "grid_text_test.moc"
