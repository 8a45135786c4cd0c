#include "ui/mascot.h"

#include "ui/look.h"

#include <QPainter>
#include <QPainterPath>

namespace ui {

namespace {

// Drawn on a sheet of 60 x 100; the stick of chalk stands in its middle, its feet at 96.
constexpr double SheetWidth = 60;
constexpr double SheetHeight = 100;

constexpr QRgb ChalkBody = 0xFFFAF7F0;
constexpr QRgb ChalkShade = 0xFFE2DCCD;
constexpr QRgb Sleeve = 0xFF4E8FD9; // the paper around the chalk
constexpr QRgb SleeveShade = 0xFF3B76BA;
constexpr QRgb Cheek = 0xFFF3A58E;
constexpr QRgb Limb = 0xFFFAF7F0;

QPen stroke(QRgb colour, double width)
{
    return {QColor(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawCurve(QPainter& painter, QPointF from, QPointF bend, QPointF to)
{
    QPainterPath path(from);
    path.quadTo(bend, to);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

void drawDot(QPainter& painter, QPointF centre, double radius, QRgb colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(colour));
    painter.drawEllipse(centre, radius, radius);
}

/// The stick: a worn point that has been written with, and a paper sleeve.
void drawStick(QPainter& painter)
{
    QPainterPath body(QPointF(19, 86));
    body.lineTo(19, 20);
    body.cubicTo(20, 12, 25, 9, 31, 8);
    body.cubicTo(37, 8, 41, 13, 41, 20);
    body.lineTo(41, 86);
    body.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(ChalkBody));
    painter.drawPath(body);

    painter.save();
    painter.setClipPath(body);
    painter.fillRect(QRectF(35, 0, 8, 100), QColor(ChalkShade));
    painter.fillRect(QRectF(19, 56, 22, 30), QColor(Sleeve));
    painter.fillRect(QRectF(35, 56, 8, 30), QColor(SleeveShade));
    painter.fillRect(QRectF(19, 60, 22, 2.5), QColor(ChalkBody));
    painter.restore();
}

void drawFeet(QPainter& painter)
{
    painter.setPen(stroke(Limb, 3));
    for (const double x : {25.0, 35.0})
        painter.drawLine(QPointF(x, 86), QPointF(x, 95));
    painter.drawLine(QPointF(25, 95.5), QPointF(20, 95.5));
    painter.drawLine(QPointF(35, 95.5), QPointF(40, 95.5));
}

void drawEyes(QPainter& painter, QPointF gaze)
{
    for (const double x : {25.5, 34.5}) {
        drawDot(painter, QPointF(x, 28) + gaze, 2.4, look::Ink);
        drawDot(painter, QPointF(x + 0.8, 27.2) + gaze, 0.8, look::Card);
    }
}

void drawCheeks(QPainter& painter)
{
    for (const double x : {22.5, 37.5})
        drawDot(painter, {x, 34.5}, 2.2, Cheek);
}

void drawWaiting(QPainter& painter)
{
    painter.setPen(stroke(Limb, 3));
    drawCurve(painter, {19, 58}, {11, 62}, {11, 72});
    drawCurve(painter, {41, 58}, {49, 62}, {49, 72});
    drawEyes(painter, {});
    painter.setPen(stroke(look::Ink, 1.8));
    drawCurve(painter, {26, 37}, {30, 40}, {34, 37});
}

void drawPleased(QPainter& painter)
{
    painter.setPen(stroke(Limb, 3));
    drawCurve(painter, {19, 56}, {9, 52}, {7, 38});
    drawCurve(painter, {41, 56}, {51, 52}, {53, 38});
    painter.setPen(stroke(look::Ink, 1.8));
    drawCurve(painter, {22.8, 29}, {25.5, 24.5}, {28.2, 29});
    drawCurve(painter, {31.8, 29}, {34.5, 24.5}, {37.2, 29});
    QPainterPath laugh(QPointF(24.5, 35.5));
    laugh.quadTo({30, 37}, {35.5, 35.5});
    laugh.quadTo({34.5, 43.5}, {30, 43.5});
    laugh.quadTo({25.5, 43.5}, {24.5, 35.5});
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(look::Ink));
    painter.drawPath(laugh);
    drawDot(painter, {30, 41.7}, 1.7, Cheek);
}

void drawThinking(QPainter& painter)
{
    painter.setPen(stroke(Limb, 3));
    drawCurve(painter, {19, 58}, {11, 62}, {12, 72});
    drawCurve(painter, {41, 60}, {53, 58}, {44, 46});
    drawCurve(painter, {44, 46}, {41, 44}, {38, 43}); // a hand at the chin
    drawEyes(painter, {1.2, -1.4});
    painter.setPen(stroke(look::Ink, 1.6));
    drawCurve(painter, {22.5, 22.5}, {25, 20.5}, {28, 21.5});
    drawCurve(painter, {32.5, 20}, {35.5, 18.5}, {38, 20.5});
    painter.drawLine(QPointF(27.5, 38.5), QPointF(32.5, 37.8));
    for (const auto& [at, radius] : {std::pair(QPointF(45, 16), 1.4),
             std::pair(QPointF(49, 11), 2.0), std::pair(QPointF(54, 5), 2.8)})
        drawDot(painter, at, radius, Limb);
}

} // namespace

void drawMascot(QPainter& painter, const QRectF& place, Pose pose)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / SheetWidth, place.height() / SheetHeight);
    drawFeet(painter);
    drawStick(painter);
    drawCheeks(painter);
    switch (pose) {
    case Pose::Waiting:
        drawWaiting(painter);
        break;
    case Pose::Pleased:
        drawPleased(painter);
        break;
    case Pose::Thinking:
        drawThinking(painter);
        break;
    }
    painter.restore();
}

} // namespace ui
