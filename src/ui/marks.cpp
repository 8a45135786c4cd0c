#include "ui/marks.h"

#include "ui/look.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ui {

namespace {

constexpr double HereUnderline = 2; // pixels at factor 1

/// Calls draw with the painter in a square of side 1.
template <typename Draw> void inUnitSquare(QPainter& painter, const QRectF& square, Draw draw)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width(), square.height());
    draw();
    painter.restore();
}

void drawDisc(QPainter& painter, QRgb colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(colour));
    painter.drawEllipse(QRectF(0, 0, 1, 1));
    painter.setPen(
        QPen(QColor(look::Card), look::thick(0.11), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

QPolygonF star()
{
    constexpr int Points = 5;
    constexpr double Outer = 0.5;
    constexpr double Inner = 0.23;
    constexpr double Askew = -12 * std::numbers::pi / 180;
    QPolygonF corners;
    for (int i = 0; i < 2 * Points; ++i) {
        const double angle = Askew + i * std::numbers::pi / Points;
        const double radius = i % 2 == 0 ? Outer : Inner;
        corners << QPointF(0.5 + radius * std::sin(angle), 0.5 - radius * std::cos(angle));
    }
    return corners;
}

} // namespace

void drawTick(QPainter& painter, const QRectF& square)
{
    const auto at = [&](double x, double y) {
        return square.topLeft() + QPointF(x * square.width(), y * square.height());
    };
    painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.74), at(0.8, 0.26)});
}

void drawCross(QPainter& painter, const QRectF& square)
{
    painter.drawLine(square.topLeft(), square.bottomRight());
    painter.drawLine(square.topRight(), square.bottomLeft());
}

void drawRightDisc(QPainter& painter, const QRectF& square)
{
    inUnitSquare(painter, square, [&] {
        drawDisc(painter, look::Right);
        painter.drawPolyline(QPolygonF{{0.27, 0.53}, {0.44, 0.69}, {0.74, 0.34}});
    });
}

void drawWrongDisc(QPainter& painter, const QRectF& square)
{
    inUnitSquare(painter, square, [&] {
        drawDisc(painter, look::Wrong);
        drawCross(painter, {QPointF(0.33, 0.33), QPointF(0.67, 0.67)});
    });
}

void drawStar(QPainter& painter, const QRectF& square)
{
    inUnitSquare(painter, square, [&] {
        const QColor gold(look::Gold);
        painter.setPen(QPen(
            gold.darker(150), look::thick(0.05), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(gold);
        painter.drawPolygon(star());
    });
}

void drawHere(QPainter& painter, const QRectF& square, double factor)
{
    const double line = std::max(1.0, std::round(look::thick(HereUnderline) * factor));
    painter.fillRect(square, QColor(look::Here));
    painter.fillRect(
        QRectF(square.left(), square.bottom() - line, square.width(), line), QColor(look::Focus));
}

} // namespace ui
