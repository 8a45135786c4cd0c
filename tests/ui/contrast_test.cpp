#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/marks.h"
#include "ui/tray.h"

#include <QMenuBar>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;
namespace look = ui::look;

// Contrast as it is seen: of the pixels that are painted, not of the colours that are meant.
// Three things stay below, and are left so: ink on the given red (the caption is black there),
// the given colours on paper (action buttons stand on a tray), and the gold of the star, which
// says nothing that the tick beside it does not.

namespace {

constexpr double Readable = look::ReadableContrast;
constexpr double Findable = look::FindableContrast;

QRgb commonest(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    return std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
        return a.second < b.second;
    })->first;
}

/// The highest contrast with a ground that a pixel of a picture has.
double contrastOn(QRgb ground, const QImage& image)
{
    double highest = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            highest =
                std::max(highest, look::contrast(QColor(image.pixel(x, y)), QColor(ground)));
    }
    return highest;
}

/// Of a text with the ground on which it is written.
double textContrast(const QImage& image)
{
    return contrastOn(commonest(image), image);
}

} // namespace

class ContrastTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;

    QImage window() const { return screen->grab().toImage(); }
    QRect placeOf(const QWidget& control) const
    {
        return {control.mapTo(screen, QPoint(0, 0)), control.size()};
    }
    QImage inside(const QWidget& control) const
    {
        constexpr int Edge = 8;
        return window().copy(placeOf(control).adjusted(Edge, Edge, -Edge, -Edge));
    }
    /// The strip of pixels across the left edge of a control, from outside.
    QImage leftEdge(const QWidget& control, int outside) const
    {
        const QRect place = placeOf(control);
        return window().copy(place.left() - outside, place.center().y(), outside + 4, 1);
    }
    void verifyReadable(const QWidget& control) const
    {
        const double ratio = textContrast(inside(control));
        QVERIFY2(ratio >= Readable, qPrintable(QString::number(ratio)));
    }

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        screen->resize(screen->size() * 1.5);
    }
    void cleanup() { bench.reset(); }

    void captionsOfButtonsAreReadable_data()
    {
        QTest::addColumn<QRgb>("fill");
        QTest::newRow("red") << look::Red;
        QTest::newRow("green") << look::Green;
        QTest::newRow("yellow") << look::Yellow;
        QTest::newRow("cyan") << look::Cyan;
        QTest::newRow("neutral") << look::palette().color(QPalette::Button).rgb();
    }
    void captionsOfButtonsAreReadable()
    {
        QFETCH(QRgb, fill);
        screen->command->setFill(QColor(fill));
        verifyReadable(*screen->command);
        screen->command->setDown(true);
        verifyReadable(*screen->command);
        screen->command->setDown(false);
        screen->command->setEnabled(false);
        verifyReadable(*screen->command);
    }

    void buttonsAreSeenOnTheirTray_data() { captionsOfButtonsAreReadable_data(); }
    void buttonsAreSeenOnTheirTray()
    {
        QFETCH(QRgb, fill);
        screen->command->setFill(QColor(fill));
        const ui::Tray tray({screen->command});
        screen->entry->setFocus();
        const QImage edge = leftEdge(*screen->command, 4);
        QCOMPARE(edge.pixel(0, 0), look::Slate);
        QVERIFY(contrastOn(look::Slate, edge) >= Findable);
        screen->command->setFocus();
        QCOMPARE(leftEdge(*screen->command, 4).pixel(1, 0), look::FocusOnSlate);
        QVERIFY(contrastOn(look::Slate, leftEdge(*screen->command, 4)) >= Findable);
    }

    void statesOfAButtonDiffer()
    {
        const QImage plain = inside(*screen->command);
        screen->command->setDown(true);
        const QImage down = inside(*screen->command);
        screen->command->setDown(false);
        screen->command->setEnabled(false);
        const QImage disabled = inside(*screen->command);
        QVERIFY(commonest(plain) != commonest(down));
        QVERIFY(commonest(plain) != commonest(disabled));
    }

    void boxesAndTheirFocusAreFound()
    {
        screen->command->setFocus();
        for (QWidget* box :
            {static_cast<QWidget*>(screen->entry), static_cast<QWidget*>(screen->lines)}) {
            const QImage plain = leftEdge(*box, 6);
            QCOMPARE(plain.pixel(0, 0), look::Paper);
            QVERIFY(contrastOn(look::Paper, plain) >= Findable);
            QVERIFY(contrastOn(look::Card, plain) >= Findable);
            box->setFocus();
            QCOMPARE(leftEdge(*box, 6).pixel(3, 0), look::Focus);
            QCOMPARE(commonest(inside(*box)), look::CardFocused);
            screen->command->setFocus();
            QCOMPARE(commonest(inside(*box)), look::Card);
        }
        QVERIFY(look::contrast(look::Focus, look::Paper) >= Findable);
        QVERIFY(look::contrast(look::Focus, look::CardFocused) >= Findable);
    }

    void aBoxThatIsOnlyReadShowsItsFocusThinly()
    {
        const auto ringPixels = [&] {
            const QImage edge = leftEdge(*screen->entry, 8);
            int count = 0;
            for (int x = 0; x < edge.width(); ++x)
                count += edge.pixel(x, 0) == look::Focus;
            return count;
        };
        screen->entry->setFocus();
        const int full = ringPixels();
        screen->entry->setReadOnly(true);
        screen->command->setFocus();
        screen->entry->setFocus();
        QVERIFY(full >= 5);
        QVERIFY(ringPixels() >= 1 && ringPixels() <= full / 2);
    }

    void textsAreReadable()
    {
        screen->entry->setText(u"12"_s);
        screen->shown->showSelected();
        for (const QWidget* control : {static_cast<QWidget*>(screen->entry),
                 static_cast<QWidget*>(screen->shown), static_cast<QWidget*>(screen->title)})
            QVERIFY(textContrast(window().copy(placeOf(*control))) >= Readable);
        const auto& bar = ScreenBench::find<QMenuBar>(*screen, {});
        QVERIFY(textContrast(bar.parentWidget()->grab(bar.geometry()).toImage()) >= Readable);
    }

    void verdictsAreFound()
    {
        screen->resize(screen->size() * 1.5);
        ui::VerdictBox verdict(screen->entry->parentWidget());
        verdict.setGeometry(0, 0, 300, 40);
        verdict.setJudged({screen->entry});
        verdict.show();
        using Mark = ui::VerdictBox::Mark;
        for (const auto& [mark, colour] :
            {std::pair(Mark::Right, look::Right), std::pair(Mark::Wrong, look::Wrong)}) {
            verdict.setVerdict(u"Resultado"_s, mark);
            const QImage disc = window().copy(QRect(placeOf(verdict).topLeft(), QSize(36, 40)));
            QVERIFY(contrastOn(look::Paper, disc) >= Findable);
            QVERIFY(contrastOn(colour, disc) >= Findable); // its tick or cross
            QCOMPARE(screen->entry->edge(), QColor(colour));
            QCOMPARE(leftEdge(*screen->entry, 0).pixel(2, 0), colour);
            QVERIFY(look::contrast(QColor(colour), look::Card) >= Findable);
        }
    }

    void theMarkOfTheNextSquareIsFound()
    {
        QImage square(30, 30, QImage::Format_RGB32);
        square.fill(look::Card);
        QPainter painter(&square);
        ui::drawHere(painter, QRectF(0, 0, 30, 30), 1);
        painter.end();
        QCOMPARE(square.pixel(15, 5), look::Here);
        QCOMPARE(square.pixel(15, 28), look::Focus);
        QCOMPARE(square.pixel(15, 27), look::Here);
        QVERIFY(contrastOn(look::Here, square) >= Findable);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(ContrastTest)
#include "contrast_test.moc"
