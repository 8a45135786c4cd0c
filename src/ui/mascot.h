#pragma once

#include <QRectF>

class QPainter;

namespace ui {

/// How the mascot, a stick of chalk with a face, stands there.
enum class Pose { Waiting, Pleased, Thinking };

/// Width of the mascot's picture by its height.
inline constexpr double MascotShape = 0.6;

/// Draws the mascot into a place of that shape, on slate.
void drawMascot(QPainter& painter, const QRectF& place, Pose pose);

} // namespace ui
