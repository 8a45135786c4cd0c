#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/tray.h"

class TrayTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        tray = new ui::Tray({screen->command, screen->lines});
        tray->show();
    }
    void cleanup() { bench.reset(); }

    void liesBehindItsButtonsWithAMargin()
    {
        QCOMPARE(tray->geometry(), covered());
        const auto children = screen->canvas()->children();
        QVERIFY(children.indexOf(tray) < children.indexOf(screen->command));
    }

    void followsItsButtons()
    {
        screen->moveTo(screen->command, 300, 600);
        QCOMPARE(tray->geometry(), covered());
        screen->resize(screen->size() * 2);
        QCOMPARE(tray->geometry(), covered());
    }

    void isThereWhileOneOfThemIs()
    {
        screen->lines->hide();
        QVERIFY(tray->isVisible());
        QVERIFY(!tray->geometry().contains(screen->lines->geometry()));
        screen->command->hide();
        QVERIFY(!tray->isVisible());
        screen->command->show();
        QVERIFY(tray->isVisible());
    }

    void leavesFreeWhatStandsBetweenButtonsFarApart()
    {
        screen->entry->hide();
        screen->command->setGeometry(20, 20, 60, 30);
        screen->lines->setGeometry(20, 150, 60, 30);
        const QImage apart = screen->canvas()->grab().toImage();
        QCOMPARE(apart.pixel(50, 100), ui::look::Paper);
        QCOMPARE(apart.pixel(50, 58), ui::look::Slate);
        screen->lines->setGeometry(20, 70, 60, 30);
        const QImage near = screen->canvas()->grab().toImage();
        QCOMPARE(near.pixel(50, 60), ui::look::Slate);
        QCOMPARE(near.pixel(12, 60), ui::look::Slate); // no notch between them
    }

    void knowsWhatItHolds()
    {
        QVERIFY(ui::Tray::holds(*screen->command));
        QVERIFY(!ui::Tray::holds(*screen->entry));
        QVERIFY(!ui::Tray::holds(*screen));
    }

    void aStripLiesAlongTheBottom()
    {
        const ui::Tray strip({screen->command}, ui::Tray::Shape::Strip);
        for (const QSize size : {screen->size(), screen->size() * 2, screen->size()}) {
            screen->resize(size);
            const QWidget& canvas = *screen->canvas();
            QCOMPARE(strip.geometry().left(), 0);
            QCOMPARE(strip.geometry().bottomRight(), canvas.rect().bottomRight());
            QCOMPARE(
                strip.y(), screen->command->y() - qRound(ui::Tray::Margin * screen->factor()));
        }
        QVERIFY(ui::Tray::holds(*screen->command));
        screen->entry->hide();
        screen->lines->hide();
        tray->hide();
        const QImage shown = screen->canvas()->grab().toImage();
        QCOMPARE(shown.pixel(1, strip.y() + 1), ui::look::Slate);
        QCOMPARE(shown.pixel(shown.width() - 2, shown.height() - 2), ui::look::Slate);
    }

    void letsTheMouseThrough()
    {
        int clicks = 0;
        screen->whenClicked = [&] { ++clicks; };
        QTest::mouseClick(screen->command, Qt::LeftButton);
        QCOMPARE(clicks, 1);
    }

private:
    QRect covered() const
    {
        const int margin = qRound(ui::Tray::Margin * screen->factor());
        return (screen->command->geometry() | screen->lines->geometry())
            .adjusted(-margin, -margin, margin, margin);
    }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
    ui::Tray* tray = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(TrayTest)
#include "tray_test.moc"
