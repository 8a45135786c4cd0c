#pragma once

#include <QColor>

class QPainter;

namespace shell {

enum class Pictogram;

/// Pictograms are drawn on a square of this side, with strokes of this width.
constexpr qreal PictogramGrid = 32;
constexpr qreal PictogramStroke = 2.2;

struct PictogramColours {
    QColor ink;
    QColor accent; ///< of what the activity is about
};

/// Draws with a pen of that width in ink, and without a brush.
using PictogramDrawing = void (*)(QPainter&, const PictogramColours&);

/// How a pictogram is drawn.
PictogramDrawing pictogramDrawing(Pictogram id);

} // namespace shell
