#include "ui/box_icons.h"

#include "ui/look.h"
#include "ui/marks.h"

#include <QPainter>
#include <QPixmap>

namespace ui {

namespace {

constexpr QRgb WarningFill = 0xFFFFC83C;

QPen stroke(const QColor& colour)
{
    return {colour, 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

// Everything is drawn in a square of side 1.

void drawDisc(QPainter& painter, const QColor& fill)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawEllipse(QPointF(0.5, 0.5), 0.47, 0.47);
}

void drawInformation(QPainter& painter)
{
    drawDisc(painter, QColor(look::Focus));
    painter.setPen(stroke(QColor(look::Card)));
    painter.drawPoint(QPointF(0.5, 0.27));
    painter.drawLine(QPointF(0.5, 0.47), QPointF(0.5, 0.73));
}

void drawExclamation(QPainter& painter)
{
    const QColor ink(look::Ink);
    painter.setPen(QPen(ink, 0.05, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(WarningFill));
    painter.drawPolygon(QPolygonF({{0.5, 0.06}, {0.96, 0.92}, {0.04, 0.92}}));
    painter.setPen(stroke(ink));
    painter.drawLine(QPointF(0.5, 0.36), QPointF(0.5, 0.58));
    painter.drawPoint(QPointF(0.5, 0.77));
}

void drawCritical(QPainter& painter)
{
    drawDisc(painter, QColor(look::Wrong));
    painter.setPen(stroke(QColor(look::Card)));
    drawCross(painter, {QPointF(0.32, 0.32), QPointF(0.68, 0.68)});
}

} // namespace

QIcon boxIcon(QStyle::StandardPixmap pixmap, int size)
{
    QPixmap drawn(size, size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    switch (pixmap) {
    case QStyle::SP_MessageBoxInformation:
        drawInformation(painter);
        break;
    case QStyle::SP_MessageBoxWarning:
        drawExclamation(painter);
        break;
    case QStyle::SP_MessageBoxCritical:
        drawCritical(painter);
        break;
    default:
        return {};
    }
    painter.end();
    return drawn;
}

} // namespace ui
