#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/marker_stripe.h"

using namespace Qt::StringLiterals;
using Kind = ui::MarkerStripe::Kind;

class MarkerStripeTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        second = new ui::TextBox(ui::TextBox::Kind::Display, screen->canvas());
        second->setText(u"34"_s);
        second->setGeometry(screen->shown->geometry().translated(120, 0));
        second->show();
    }
    void cleanup() { bench.reset(); }

    void reachesFromTheFirstSelectedTextToTheLast()
    {
        const auto* stripe = make(Kind::Marker);
        QVERIFY(!stripe->isVisible());
        screen->shown->showSelected();
        QVERIFY(stripe->isVisible());
        QVERIFY(stripe->geometry().right() < second->x());
        second->showSelected();
        QVERIFY(stripe->geometry().left() <= screen->shown->x());
        QVERIFY(stripe->geometry().right() > second->x());
        screen->shown->deselect();
        second->deselect();
        QVERIFY(!stripe->isVisible());
    }

    void isOneContinuousColourUnderTheTexts()
    {
        const auto* stripe = make(Kind::Marker);
        screen->shown->showSelected();
        second->showSelected();
        const QImage image = screen->canvas()->grab(stripe->geometry()).toImage();
        const int below = image.height() - 3; // the texts
        for (int x = 6; x < image.width() - 6; ++x)
            QCOMPARE(image.pixel(x, below), ui::look::Marker);
    }

    void isAnUnderlineOfChalkOnABoard()
    {
        const auto* stripe = make(Kind::Chalk);
        screen->shown->showSelected();
        const QImage image = screen->canvas()->grab(stripe->geometry()).toImage();
        QCOMPARE(image.pixel(image.width() / 2, image.height() - 2), ui::look::Chalk);
        QVERIFY(image.pixel(1, image.height() / 4) != ui::look::Marker);
    }

    void followsItsBoxes()
    {
        const auto* stripe = make(Kind::Marker);
        screen->shown->showSelected();
        const int left = stripe->x();
        screen->moveTo(screen->shown, screen->placeOf(screen->shown).left - 300, 300);
        QVERIFY(stripe->x() < left);
        screen->shown->hide();
        QVERIFY(!stripe->isVisible());
    }

private:
    ui::MarkerStripe* make(Kind kind) const
    {
        return new ui::MarkerStripe({screen->shown, second}, kind);
    }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
    ui::TextBox* second = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(MarkerStripeTest)
#include "marker_stripe_test.moc"
