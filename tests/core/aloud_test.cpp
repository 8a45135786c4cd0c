#include "core/aloud.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class AloudTest : public QObject {
    Q_OBJECT

private slots:
    void signsAreWords_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("said");
        QTest::newRow("sum over two lines") << u"8 + 8\r\n + 8"_s << u"8 más 8 más 8"_s;
        QTest::newRow("product") << u"7 x 4 = "_s << u"7 por 4 igual a"_s;
        QTest::newRow("other signs of a product") << u"2X3×4·5"_s << u"2 por 3 por 4 por 5"_s;
        QTest::newRow("difference and quotient")
            << u"9-6:3/1 ÷ 1"_s << u"9 menos 6 entre 3 entre 1 entre 1"_s;
        QTest::newRow("brackets")
            << u"2x(3+4)"_s << u"2 por abre paréntesis 3 más 4 cierra paréntesis"_s;
        QTest::newRow("nothing to say in other words") << u"71"_s << u"71"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void signsAreWords()
    {
        QFETCH(QString, written);
        QTEST(core::aloud(written), "said");
    }
};

QTEST_GUILESS_MAIN(AloudTest)
#include "aloud_test.moc"
