#include "core/errors.h"
#include "core/numbers.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

class NumbersTest : public QObject {
    Q_OBJECT

private slots:
    void readsTheNumberAtTheStart_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");

        QTest::newRow("empty") << QString() << 0.0;
        QTest::newRow("blanks") << u"   "_s << 0.0;
        QTest::newRow("word") << u"siete"_s << 0.0;
        QTest::newRow("whole") << u"42"_s << 42.0;
        QTest::newRow("blanks in front") << u" \t 42"_s << 42.0;
        QTest::newRow("what follows") << u"42 cromos"_s << 42.0;
        QTest::newRow("underscore") << u"12_30"_s << 12.0;
        QTest::newRow("leading zero") << u"08"_s << 8.0;
        QTest::newRow("comma") << u"2,5"_s << 2.5;
        QTest::newRow("point") << u"2.5"_s << 2.5;
        QTest::newRow("one separator") << u"1.234,5"_s << 1.234;
        QTest::newRow("no whole part") << u",5"_s << 0.5;
        QTest::newRow("no decimals") << u"5,"_s << 5.0;
        QTest::newRow("zero point") << u"0,05"_s << 0.05;
        QTest::newRow("separator alone") << u","_s << 0.0;
        QTest::newRow("minus") << u"-7"_s << -7.0;
        QTest::newRow("plus") << u"+7"_s << 7.0;
        QTest::newRow("sign alone") << u"-"_s << 0.0;
        QTest::newRow("two signs") << u"--7"_s << 0.0;
        QTest::newRow("exponent") << u"1e5"_s << 1.0;
        QTest::newRow("inf") << u"inf"_s << 0.0;
        QTest::newRow("nan") << u"nan"_s << 0.0;
        QTest::newRow("hexadecimal") << u"0x1F"_s << 0.0;
        QTest::newRow("vulgar hexadecimal") << u"&H1F"_s << 0.0;
        QTest::newRow("other digits") << u"٣"_s << 0.0;
        QTest::newRow("too large") << QString(400, u'9') << std::numeric_limits<double>::max();
        QTest::newRow("zeros in front") << QString(400, u'0') + u"7"_s << 7.0;
        QTest::newRow("too small") << u"0,"_s + QString(400, u'0') + u"1"_s << 0.0;
    }
    void readsTheNumberAtTheStart()
    {
        QFETCH(QString, text);
        QTEST(core::readNumber(text), "number");
    }

    void readsNoNegativeZero()
    {
        QVERIFY(!std::signbit(core::readNumber(u"-0")));
        QVERIFY(!std::signbit(core::readNumber(u"-0,0")));
    }

    void parsesOnlyWholeTexts()
    {
        QCOMPARE(core::parseNumber(u" 12,5 "), std::optional(12.5));
        QCOMPARE(core::parseNumber(u"-3"), std::optional(-3.0));
        for (QStringView text :
            {u"", u" ", u"12a", u"a12", u"-", u",", u"1 2", u"1,2,3", u"1.2.3", u"inf", u"1e5"})
            QVERIFY2(!core::parseNumber(text), qPrintable(text.toString()));
    }

    void roundsHalvesToEven_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("rounded");

        QTest::newRow("2.5") << 2.5 << 2.0;
        QTest::newRow("3.5") << 3.5 << 4.0;
        QTest::newRow("0.5") << 0.5 << 0.0;
        QTest::newRow("1.5") << 1.5 << 2.0;
        QTest::newRow("-0.5") << -0.5 << 0.0;
        QTest::newRow("-1.5") << -1.5 << -2.0;
        QTest::newRow("-2.5") << -2.5 << -2.0;
        QTest::newRow("below a half") << 2.4999999 << 2.0;
        QTest::newRow("above a half") << 2.5000001 << 3.0;
        QTest::newRow("just below a half") << 0.49999999999999994 << 0.0;
        QTest::newRow("whole") << 7.0 << 7.0;
        QTest::newRow("beyond fractions") << 9007199254740993.0 << 9007199254740992.0;
    }
    void roundsHalvesToEven()
    {
        QFETCH(double, value);
        QTEST(core::roundHalfEven(value), "rounded");
    }

    void readsIntegersRoundedAndInRange()
    {
        QCOMPARE(core::readInt16(u"2,5").value(), 2);
        QCOMPARE(core::readInt16(u"32767,4").value(), 32767);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, core::readInt16(u"32767,5"));
        QCOMPARE(core::readInt32(u"-2147483648"), std::numeric_limits<qint32>::min());
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, core::readInt32(u"2147483648"));
        QVERIFY_THROWS_EXCEPTION(
            core::OverflowError, core::toInt16(std::numeric_limits<double>::quiet_NaN()));
        QVERIFY_THROWS_EXCEPTION(
            core::OverflowError, core::toInt32(std::numeric_limits<double>::infinity()));
    }

    void overflowQuotesTheTypedText()
    {
        try {
            core::readInt16(u"99999");
            QFAIL("no error");
        } catch (const core::OverflowError& error) {
            QCOMPARE(error.text(), u"«99999» no es un número entero de -32768 a 32767."_s);
        }
    }

    void overflowQuotesTheBeginningOfALongText()
    {
        const auto quoted = [](const QString& typed) {
            try {
                core::readInt16(typed);
            } catch (const core::OverflowError& error) {
                return error.text().section(u'»', 0, 0).mid(1);
            }
            return QString();
        };
        QCOMPARE(quoted(QString(40, u'9')), QString(40, u'9'));
        QCOMPARE(quoted(QString(41, u'9')), QString(40, u'9') + u"…"_s);
    }

    void writesGeneralTextInTheLocale()
    {
        const QLocale spanish(QLocale::Spanish, QLocale::Spain);
        QCOMPARE(core::generalText(100.0 / 3, spanish), u"33,3333333333333"_s);
        QCOMPARE(core::generalText(100.0 / 3, QLocale::c()), u"33.3333333333333"_s);
        QCOMPARE(core::generalText(50, spanish), u"50"_s);
        QCOMPARE(core::generalText(0, spanish), u"0"_s);
        QCOMPARE(core::generalText(-0.0, spanish), u"0"_s);
        QCOMPARE(core::generalText(1, spanish), u"1"_s);
        QCOMPARE(core::generalText(12345.5, spanish), u"12345,5"_s);
        QCOMPARE(core::generalText(200.0 / 3, spanish), u"66,6666666666667"_s);
    }

    void writesWholeTextExactly()
    {
        QCOMPARE(core::wholeText(0), u"0"_s);
        QCOMPARE(core::wholeText(-0.0), u"0"_s);
        QCOMPARE(core::wholeText(1), u"1"_s);
        QCOMPARE(core::wholeText(-12), u"-12"_s);
        QCOMPARE(core::wholeText(99999999980000000001.0), u"99999999980000002048"_s);
        QCOMPARE(core::wholeText(1e22), u"10000000000000000000000"_s);
    }

    void multipliesExactly_data()
    {
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<QString>("product");

        QTest::newRow("zeros") << 0.0 << 0.0 << u"0"_s;
        QTest::newRow("by zero") << 12345.0 << 0.0 << u"0"_s;
        QTest::newRow("never -0") << 0.0 << -7.0 << u"0"_s;
        QTest::newRow("digits") << 9.0 << 9.0 << u"81"_s;
        QTest::newRow("carried to the front") << 1234.0 << 56.0 << u"69104"_s;
        QTest::newRow("one negative") << -12.0 << 12.0 << u"-144"_s;
        QTest::newRow("the other negative") << 12.0 << -12.0 << u"-144"_s;
        QTest::newRow("both negative") << -12.0 << -12.0 << u"144"_s;
        QTest::newRow("beyond 2^53") << 99999999.0 << 99999999.0 << u"9999999800000001"_s;
        QTest::newRow("twenty digits")
            << 9999999999.0 << 9999999999.0 << u"99999999980000000001"_s;
        QTest::newRow("zeros inside and behind") << 1e22 << 1e22 << u'1' + QString(44, u'0');
    }
    void multipliesExactly()
    {
        QFETCH(double, a);
        QFETCH(double, b);
        QTEST(core::wholeProductText(a, b), "product");
    }

    void anExactProductReadsAsTheRoundedOne()
    {
        for (const auto& [a, b] : {std::pair{99999999.0, 99999999.0},
                 {9999999999.0, 9999999999.0}, {9876543219.0, 9876504321.0}, {1e22, 3e200}})
            QCOMPARE(core::readNumber(core::wholeProductText(a, b)), a * b);
    }
};

QTEST_GUILESS_MAIN(NumbersTest)
#include "numbers_test.moc"
