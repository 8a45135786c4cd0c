#include "shell/pictograms.h"

#include "shell/pictogram_drawings.h"
#include "ui/look.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace shell {

namespace {

constexpr QRgb Accent = 0xFFD2500F;

void drawInto(QImage& picture, Pictogram id)
{
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawPictogram(painter, id, QRectF(picture.rect()));
}

/// A picture of a sheet, in the sheet's own memory.
QImage pictureIn(QImage& sheet, Pictogram id)
{
    const int side = sheet.width();
    return {sheet.scanLine(static_cast<int>(id) * side), side, side, sheet.bytesPerLine(),
        sheet.format()};
}

class PictogramEngine : public QIconEngine {
public:
    PictogramEngine(Pictogram pictogram, PictogramsAhead* ahead)
        : m_pictogram(pictogram)
        , m_ahead(ahead)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal side = std::min(rect.width(), rect.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(rect).center());
        const QRectF place = painter->deviceTransform().mapRect(square);
        const QRect pixels = place.toRect();
        const bool whole = place == QRectF(pixels) && pixels.width() == pixels.height();
        if (whole && mode != QIcon::Disabled) // by a picture even if it was not drawn ahead
            paintPicture(*painter, square, pixels.width());
        else
            drawPictogram(*painter, m_pictogram, square, mode != QIcon::Disabled);
    }

    // The inherited one paints on a pixmap that nobody cleared.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PictogramEngine(*this); }

private:
    void paintPicture(QPainter& painter, const QRectF& target, int side) const
    {
        if (m_ahead != nullptr && m_ahead->paint(painter, target, m_pictogram, side))
            return;
        QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
        drawInto(picture, m_pictogram);
        painter.drawImage(target, picture);
    }

    Pictogram m_pictogram;
    PictogramsAhead* m_ahead;
};

} // namespace

void drawPictogram(QPainter& painter, Pictogram id, const QRectF& square, bool enabled)
{
    const QColor quiet(ui::look::Quiet);
    const PictogramColours colours = enabled
        ? PictogramColours{QColor(ui::look::Ink), QColor(Accent)}
        : PictogramColours{quiet, quiet};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / PictogramGrid, square.height() / PictogramGrid);
    painter.setPen(
        QPen(colours.ink, PictogramStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    pictogramDrawing(id)(painter, colours);
    painter.restore();
}

QIcon pictogramIcon(Pictogram id, PictogramsAhead* ahead)
{
    return QIcon(new PictogramEngine(id, ahead));
}

PictogramsAhead::PictogramsAhead(int side, QThread::Priority priority)
    : m_side(side)
    , m_sheet(side, side * PictogramCount, QImage::Format_ARGB32_Premultiplied)
    , m_drawing([this, priority](const std::stop_token& stop) {
        QThread::currentThread()->setPriority(priority);
        drawAll(stop);
    })
{
}

void PictogramsAhead::drawAll(const std::stop_token& stop)
{
    for (int i = 0; i < PictogramCount && !stop.stop_requested(); ++i) {
        QImage picture = pictureIn(m_sheet, Pictogram(i));
        drawInto(picture, Pictogram(i));
        m_drawn = i + 1;
    }
}

bool PictogramsAhead::has(Pictogram id, int side) const
{
    const auto index = static_cast<int>(id);
    return side == m_side && index < m_drawn && !m_taken.test(static_cast<std::size_t>(index));
}

bool PictogramsAhead::paint(QPainter& painter, const QRectF& target, Pictogram id, int side)
{
    if (!has(id, side))
        return false;
    painter.drawImage(target, pictureIn(m_sheet, id));
    m_taken.set(static_cast<std::size_t>(id));
    if (m_taken.all())
        m_sheet = {};
    return true;
}

} // namespace shell
