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

class PictogramEngine : public QIconEngine {
public:
    explicit PictogramEngine(Pictogram pictogram)
        : m_pictogram(pictogram)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal side = std::min(rect.width(), rect.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(rect).center());
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
    Pictogram m_pictogram;
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

QIcon pictogramIcon(Pictogram id)
{
    return QIcon(new PictogramEngine(id));
}

} // namespace shell
