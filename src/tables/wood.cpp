#include "tables/wood.h"

#include <QPainter>

namespace tables {

namespace {

constexpr QRgb Wood = 0xFFC08A4E;
constexpr QRgb WoodLit = 0xFFD6A76F;
constexpr QRgb WoodEdge = 0xFF80552A;
constexpr double Radius = 4; // pixels at factor 1

} // namespace

void drawWood(QPainter& painter, const QRectF& piece, double factor)
{
    const double half = factor / 2;
    QLinearGradient light(piece.topLeft(), piece.bottomLeft());
    light.setColorAt(0, QColor(WoodLit));
    light.setColorAt(1, QColor(Wood));
    painter.setPen(QPen(QColor(WoodEdge), factor));
    painter.setBrush(light);
    painter.drawRoundedRect(
        piece.adjusted(half, half, -half, -half), Radius * factor, Radius * factor);
}

} // namespace tables
