#pragma once

#include <QRectF>

class QPainter;

/// Small drawings that say how something came out or where to go on, drawn anew at every size.
namespace ui {

/// A tick in the painter's pen, with the room around it that it has in a check box.
void drawTick(QPainter& painter, const QRectF& square);

/// A cross in the painter's pen, from corner to corner.
void drawCross(QPainter& painter, const QRectF& square);

/// A green disc with a white tick, filling a square.
void drawRightDisc(QPainter& painter, const QRectF& square);

/// A red disc with a white cross, filling a square.
void drawWrongDisc(QPainter& painter, const QRectF& square);

/// A gold star, slightly askew, as if stamped on the paper.
void drawStar(QPainter& painter, const QRectF& square);

/// The square of squared paper that will be written next: filled, and underlined.
void drawHere(QPainter& painter, const QRectF& square, double factor);

} // namespace ui
