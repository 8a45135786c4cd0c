#pragma once

#include <QRectF>

class QPainter;

namespace tables {

/// Draws a piece of wood with rounded corners, in pixels, at the factor of its screen.
void drawWood(QPainter& painter, const QRectF& piece, double factor);

} // namespace tables
