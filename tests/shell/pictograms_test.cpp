#include "shell/pictograms.h"
#include "ui/look.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace shell;

namespace {

constexpr int Count = static_cast<int>(Pictogram::Exit) + 1;

QImage image(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(side, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The pixels that a pictogram covers wholly, each with its colour.
QList<QColor> solidPixels(const QImage& picture)
{
    QList<QColor> solid;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (const QColor colour = picture.pixelColor(x, y); colour.alpha() == 255)
                solid.append(colour);
        }
    }
    return solid;
}

/// Paints in the middle third of a canvas and clears that third: what is left was cut off.
QImage strayInk(const QIcon& icon, int side)
{
    QImage canvas(3 * side, 3 * side, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    const QRect middle(side, side, side, side);
    QPainter painter(&canvas);
    icon.paint(&painter, middle);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(middle, Qt::transparent);
    return canvas;
}

QImage paper(int side, int ratio)
{
    QImage canvas(QSize(side, side) * ratio, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(ui::look::Paper);
    return canvas;
}

QImage onPaper(const QIcon& icon, int side, int ratio)
{
    QImage canvas = paper(side, ratio);
    QPainter painter(&canvas);
    icon.paint(&painter, QRect(0, 0, side, side));
    return canvas;
}

/// A pictogram drawn without a picture in between.
QImage drawnOnPaper(Pictogram pictogram, int side, int ratio)
{
    QImage canvas = paper(side, ratio);
    QPainter painter(&canvas);
    drawPictogram(painter, pictogram, QRect(0, 0, side, side));
    return canvas;
}

/// The largest difference of a channel.
int difference(const QImage& a, const QImage& b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            largest = std::max({largest, std::abs(one.red() - other.red()),
                std::abs(one.green() - other.green()), std::abs(one.blue() - other.blue())});
        }
    }
    return largest;
}

} // namespace

class PictogramsTest : public QObject {
    Q_OBJECT

private slots:
    void paintsInInkAndOneAccent_data() { everyPictogram(); }
    void paintsInInkAndOneAccent()
    {
        QFETCH(Pictogram, pictogram);
        const QIcon icon = pictogramIcon(pictogram);
        const QColor ink(ui::look::Ink);
        const QColor accent(0xD2, 0x50, 0x0F);
        const QList<QColor> solid = solidPixels(image(icon, 128));
        QVERIFY(solid.size() > 128 * 128 / 20);
        QVERIFY(solid.size() < 128 * 128 / 2);
        QVERIFY(solid.count(ink) > 128);
        QVERIFY(solid.count(accent) > 128);
        const auto others = std::count_if(solid.begin(), solid.end(),
            [&](const QColor& colour) { return colour != ink && colour != accent; });
        QVERIFY(others <= solid.size() / 20); // where both meet
    }

    void isQuietWhenDisabled_data() { everyPictogram(); }
    void isQuietWhenDisabled()
    {
        QFETCH(Pictogram, pictogram);
        const QList<QColor> solid =
            solidPixels(image(pictogramIcon(pictogram), 128, QIcon::Disabled));
        QVERIFY(!solid.isEmpty());
        QCOMPARE(solid.count(QColor(ui::look::Quiet)), solid.size());
    }

    void staysInsideItsSquare_data() { everyPictogram(); }
    void staysInsideItsSquare()
    {
        QFETCH(Pictogram, pictogram);
        for (const int side : {24, 32, 64, 128}) {
            const QImage stray = strayInk(pictogramIcon(pictogram), side);
            QImage empty(stray.size(), stray.format());
            empty.fill(Qt::transparent);
            QCOMPARE(stray, empty);
        }
    }

    void isPaintedAnewAtEveryPixelRatio()
    {
        const QIcon icon = pictogramIcon(Pictogram::Race);
        QPixmap fine = icon.pixmap(QSize(32, 32), 2);
        QCOMPARE(fine.size(), QSize(64, 64));
        fine.setDevicePixelRatio(1);
        QCOMPARE(fine.toImage().convertToFormat(QImage::Format_ARGB32), image(icon, 64));
    }

    void noTwoAreAlike()
    {
        for (int i = 0; i < Count; ++i) {
            for (int j = 0; j < i; ++j)
                QVERIFY(image(pictogramIcon(Pictogram(i)), 32)
                    != image(pictogramIcon(Pictogram(j)), 32));
        }
    }

    void isCentredInARectThatIsNotSquare()
    {
        QImage wide(96, 32, QImage::Format_ARGB32);
        wide.fill(Qt::transparent);
        QPainter painter(&wide);
        const QIcon icon = pictogramIcon(Pictogram::Tables);
        icon.paint(&painter, wide.rect());
        painter.end();
        QCOMPARE(wide.copy(32, 0, 32, 32), image(icon, 32));
    }

    void looksLikeItsDrawing_data() { everyPictogram(); }
    void looksLikeItsDrawing()
    {
        QFETCH(Pictogram, pictogram);
        for (const int ratio : {1, 2}) {
            for (const int side : {30, 44, 55, 71})
                QVERIFY(difference(onPaper(pictogramIcon(pictogram), side, ratio),
                            drawnOnPaper(pictogram, side, ratio))
                    <= 2);
        }
    }

    void looksTheSameDrawnAhead_data() { everyPictogram(); }
    void looksTheSameDrawnAhead()
    {
        QFETCH(Pictogram, pictogram);
        for (const int ratio : {1, 2}) {
            for (const int side : {30, 44, 55, 71}) {
                const QImage expected = onPaper(pictogramIcon(pictogram), side, ratio);
                PictogramsAhead ahead(side * ratio, QThread::NormalPriority);
                const QIcon icon = pictogramIcon(pictogram, &ahead);
                QTRY_VERIFY(ahead.has(pictogram, side * ratio));
                QCOMPARE(onPaper(icon, side, ratio), expected);
                QVERIFY(!ahead.has(pictogram, side * ratio));
                QCOMPARE(onPaper(icon, side, ratio), expected); // drawn anew
            }
        }
    }

    void looksTheSameWhereItIsNotDrawnYet()
    {
        const QImage expected = image(pictogramIcon(Pictogram::Exit), 64);
        for (int i = 0; i < 20; ++i) {
            PictogramsAhead ahead(64, QThread::NormalPriority);
            QCOMPARE(image(pictogramIcon(Pictogram::Exit, &ahead), 64), expected);
        }
    }

    void isDrawnAnewAtAnotherSizeOrDisabled()
    {
        const QImage normal = image(pictogramIcon(Pictogram::Rain), 40);
        const QImage disabled = image(pictogramIcon(Pictogram::Rain), 64, QIcon::Disabled);
        PictogramsAhead ahead(64, QThread::NormalPriority);
        QTRY_VERIFY(ahead.has(Pictogram::Rain, 64));
        const QIcon icon = pictogramIcon(Pictogram::Rain, &ahead);
        QCOMPARE(image(icon, 40), normal);
        QCOMPARE(image(icon, 64, QIcon::Disabled), disabled);
        QVERIFY(!ahead.has(Pictogram::Rain, 40));
        QVERIFY(ahead.has(Pictogram::Rain, 64));
    }

    void goesWhileItIsDrawnAhead()
    {
        for (int i = 0; i < 20; ++i)
            const PictogramsAhead gone(64, QThread::NormalPriority);
        const PictogramsAhead ahead(64, QThread::NormalPriority);
        QTRY_VERIFY(ahead.has(Pictogram::Exit, 64));
    }

private:
    static void everyPictogram()
    {
        QTest::addColumn<Pictogram>("pictogram");
        for (int i = 0; i < Count; ++i)
            QTest::addRow("%d", i) << Pictogram(i);
    }
};

QTEST_MAIN(PictogramsTest)
#include "pictograms_test.moc"
