#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/ground.h"

using namespace Qt::StringLiterals;
using ui::Pose;

class GroundTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        ground = screen->findChild<ui::Ground*>();
        QVERIFY(ground != nullptr);
    }
    void cleanup() { bench.reset(); }

    void slateShowsBesideTheCanvasAndPaperOnIt()
    {
        widen();
        const QImage image = screen->grab().toImage();
        const int middle = screen->canvas()->geometry().center().y();
        QCOMPARE(image.pixel(1, middle), ui::look::Slate);
        QCOMPARE(image.pixel(image.width() - 2, middle), ui::look::Slate);
        QCOMPARE(image.pixel(screen->canvas()->x() + 1, middle), ui::look::Paper);
    }

    void theMascotStandsInTheMarginAlone()
    {
        widen();
        QVERIFY(!ground->mascot());
        const QImage empty = screen->grab().toImage();
        ui::Ground::pose(*screen->entry, Pose::Waiting);
        QCOMPARE(ground->mascot(), Pose::Waiting);
        const QImage waiting = screen->grab().toImage();
        QVERIFY(waiting != empty);
        const QRect canvas = screen->canvas()->geometry();
        QCOMPARE(waiting.copy(canvas), empty.copy(canvas));
        QVERIFY(ground->mascotPlace().left() > canvas.right());
        QVERIFY(ground->mascotPlace().right() < screen->width());
        QVERIFY(ground->mascotPlace().bottom() < screen->height());
    }

    void noRoomNoMascot()
    {
        QVERIFY(ground->mascotPlace().isEmpty());
        const QImage empty = screen->grab().toImage();
        ui::Ground::pose(*screen->entry, Pose::Pleased);
        QCOMPARE(screen->grab().toImage(), empty);
    }

    void everyPoseDiffers()
    {
        widen();
        QList<QImage> images;
        for (const Pose pose : {Pose::Waiting, Pose::Pleased, Pose::Thinking}) {
            ui::Ground::pose(*screen->entry, pose);
            images << screen->grab().toImage();
            QCOMPARE(images.count(images.last()), 1);
        }
    }

    void aVerdictPosesTheMascot()
    {
        using Mark = ui::VerdictBox::Mark;
        ui::VerdictBox verdict(screen->canvas());
        verdict.setVerdict(u"Bien"_s, Mark::Right);
        QCOMPARE(ground->mascot(), Pose::Pleased);
        verdict.setVerdict(u"Mal"_s, Mark::Wrong);
        QCOMPARE(ground->mascot(), Pose::Thinking);
        verdict.retire();
        QCOMPARE(ground->mascot(), Pose::Waiting);
    }

private:
    void widen() { screen->resize(screen->width() * 4, screen->height() * 2); }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
    ui::Ground* ground = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(GroundTest)
#include "ground_test.moc"
