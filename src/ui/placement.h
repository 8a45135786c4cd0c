#pragma once

#include <QRect>

namespace ui {

/// A place on a screen's canvas, or inside a frame on it, in twips (1/1440 inch;
/// 15 twips are 1 pixel at factor 1).
struct TwipRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }
};

inline constexpr double TwipsPerPixel = 15;

/// Of a length in pixels at factor 1.
constexpr double twips(double pixels)
{
    return pixels * TwipsPerPixel;
}

/// The pixels that a place covers at a factor. Edges are rounded, not sizes, so that
/// controls that touch in twips touch in pixels.
QRect toPixels(const TwipRect& place, double factor);

} // namespace ui
