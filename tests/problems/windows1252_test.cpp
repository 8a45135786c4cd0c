#include "problems/windows1252.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using problems::appendWindows1252;
using problems::fromWindows1252;

class Windows1252Test : public QObject {
    Q_OBJECT

private slots:
    void readsSpanishAndTheSpecialSigns()
    {
        QCOMPARE(fromWindows1252("\xBF"
                                 "Cu\xE1ntos a\xF1os? \x80 \x85\x93\x94 \x96 \x9C\x9F"),
            u"¿Cuántos años? € …“” – œŸ"_s);
        QCOMPARE(fromWindows1252("\xA0\xAA\xBA\xFF"), u"\u00A0ªºÿ"_s);
    }

    void agreesWithIconvOnEveryDefinedByte()
    {
        for (int code = 0; code < 0x100; ++code) {
            const char byte = static_cast<char>(code);
            const QString text = fromWindows1252(QByteArrayView(&byte, 1));
            QCOMPARE(text.size(), 1);
            QProcess iconv;
            iconv.start(u"iconv"_s, {u"-f"_s, u"CP1252"_s, u"-t"_s, u"UTF-8"_s});
            if (!iconv.waitForStarted())
                QSKIP("iconv is not installed");
            iconv.write(&byte, 1);
            iconv.closeWriteChannel();
            QVERIFY(iconv.waitForFinished());
            const bool isDefined = iconv.exitCode() == 0;
            QCOMPARE(isDefined, !QByteArray("\x81\x8D\x8F\x90\x9D").contains(byte));
            if (isDefined)
                QCOMPARE(text.toUtf8(), iconv.readAllStandardOutput());
        }
    }

    void everyByteSurvivesReadingAndWriting()
    {
        QByteArray all;
        for (int code = 0; code < 0x100; ++code)
            all.append(static_cast<char>(code));
        QByteArray written;
        QCOMPARE(appendWindows1252(written, fromWindows1252(all)), std::nullopt);
        QCOMPARE(written, all);
    }

    void stopsAtACharacterThatTheCodePageLacks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qsizetype>("position");
        QTest::newRow("arrow") << u"→"_s << qsizetype(0);
        QTest::newRow("after others") << u"año →"_s << qsizetype(4);
        QTest::newRow("minus sign") << u"3−2"_s << qsizetype(1);
        QTest::newRow("pair") << u"ab💥"_s << qsizetype(2);
        QTest::newRow("control that stands for another byte") << u"a\u0080"_s << qsizetype(1);
        QTest::newRow("the last of these controls") << u"\u009F"_s << qsizetype(0);
        QTest::newRow("first beyond a byte") << u"\u0100"_s << qsizetype(0);
    }
    void stopsAtACharacterThatTheCodePageLacks()
    {
        QFETCH(QString, text);
        QFETCH(qsizetype, position);
        QByteArray bytes;
        QCOMPARE(appendWindows1252(bytes, text), std::optional(position));
    }

    void appends()
    {
        QByteArray bytes("a|");
        QCOMPARE(appendWindows1252(bytes, u"ñ"), std::nullopt);
        QCOMPARE(bytes, QByteArray("a|\xF1"));
    }
};

QTEST_GUILESS_MAIN(Windows1252Test)
#include "windows1252_test.moc"
