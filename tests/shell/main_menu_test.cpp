#include "core/defect.h"
#include "core/errors.h"
#include "shell/main_menu.h"

#include <QtTest>

using shell::MainMenuLayout;

class MainMenuTest : public QObject {
    Q_OBJECT

private slots:
    void rowHeightIsTheShareOfTheClientHeight_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("rowHeight");
        QTest::newRow("twelve in six rows") << 12 << 8280 << 1380;
        QTest::newRow("eleven round up to six") << 11 << 8280 << 1380;
        QTest::newRow("half to the even below") << 12 << 8271 << 1378; // 1378.5
        QTest::newRow("half to the even above") << 12 << 8277 << 1380; // 1379.5
        QTest::newRow("one") << 1 << 8280 << 8280;
    }
    void rowHeightIsTheShareOfTheClientHeight()
    {
        QFETCH(int, buttons);
        QFETCH(int, height);
        const MainMenuLayout layout(buttons, height);
        QTEST(layout.rowHeight().value(), "rowHeight");
        QCOMPARE(layout.places().size(), static_cast<std::size_t>(buttons));
    }

    void buttonsStandInTwoColumnsWithATenthOfARowAbove()
    {
        const MainMenuLayout layout(12, 8280);
        for (int i = 0; i < 12; ++i) {
            const auto& place = core::at(layout.places(), i);
            QCOMPARE(place.left, i % 2 == 0 ? 500.0 : 5500.0);
            QCOMPARE(place.top, (i / 2) * 1380 + 138.0);
            QCOMPARE(place.width, 5000.0);
            QCOMPARE(place.height, 1104.0);
        }
    }

    void heightIsFourFifthsUnrounded()
    {
        const MainMenuLayout layout(12, 8271); // rows of 1378
        QCOMPARE(layout.places().front().height, static_cast<double>(1378 * 0.8f));
        QCOMPARE(layout.places().front().top, 137.8);
    }

    void topBeyond16BitsIsAnError()
    {
        // 12000 rows of 2.73, rounded up to 3: the last ones would start below 32767.
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, MainMenuLayout(24000, 32767));
        QCOMPARE(MainMenuLayout(400, 32767).places().back().top, 199 * 164 + 16.4);
    }
};

QTEST_GUILESS_MAIN(MainMenuTest)
#include "main_menu_test.moc"
