#pragma once

class QSize;
class QSizeF;

namespace ui {

/// Room for a window manager's title bar and edges, in pixels.
inline constexpr int FrameHeight = 40;

/// The factor at which a window of this size (pixels at factor 1) opens: the largest multiple of
/// 0.05 at which it fits the free part of its display, with a frame above it; less than 0.05 only
/// where that does not fit.
double openingFactor(QSizeF window, QSize free);

} // namespace ui
