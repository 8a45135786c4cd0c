#pragma once

class QSize;
class QSizeF;
class QWidget;

namespace ui {

/// Room for a window manager's title bar and edges, in pixels.
inline constexpr int FrameHeight = 40;

/// The factor at which a window of this size (pixels at factor 1) opens: the largest multiple of
/// 0.05 at which it fits the free part of its display, with a frame above it; less than 0.05 only
/// where that does not fit.
double openingFactor(QSizeF window, QSize free);

/// The factor of what comes up over a window, a box or a tip: the window's, but no more than the
/// display bears. Screens of small squares open at a factor that is too large for it.
double overlayFactorOf(const QWidget& window);

} // namespace ui
