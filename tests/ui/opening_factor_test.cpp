#include "ui/opening_factor.h"

#include <QtTest>

class OpeningFactorTest : public QObject {
    Q_OBJECT

private slots:
    void aWindowIsAsLargeAsItsDisplayAllows_data()
    {
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QSize>("display");
        QTest::addColumn<double>("factor");
        const QSize wide(1000, 500);
        QTest::newRow("by the width") << wide << QSize(1366, 768) << 1.35;
        QTest::newRow("by the height, less the frame") << wide << QSize(1366, 670) << 1.25;
        QTest::newRow("exactly") << wide << QSize(2000, 1040) << 2.0;
        QTest::newRow("a pixel less") << wide << QSize(2000, 1039) << 1.95;
        QTest::newRow("large display") << wide << QSize(3840, 2160) << 3.8;
        QTest::newRow("1024x540") << wide << QSize(1024, 540) << 1.0;
        QTest::newRow("0.8 still fits") << QSize(1280, 600) << QSize(1024, 540) << 0.8;
        QTest::newRow("0.8 does not fit") << QSize(1290, 600) << QSize(1024, 540) << 0.75;
    }
    void aWindowIsAsLargeAsItsDisplayAllows()
    {
        QFETCH(QSize, window);
        QFETCH(QSize, display);
        QTEST(ui::openingFactor(window, display), "factor");
    }

    void whereThereIsHardlyAnyRoomThereIsStillAFactor()
    {
        QVERIFY(ui::openingFactor({10000, 100}, {100, 100}) > 0);
        QVERIFY(ui::openingFactor({100, 100}, {100, 20}) > 0);
    }
};

QTEST_GUILESS_MAIN(OpeningFactorTest)
#include "opening_factor_test.moc"
