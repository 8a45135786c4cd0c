#pragma once

#include <QStyle>

class QPainter;
class QStyleOptionSlider;

/// Scroll bars: a handle on the ground of what is scrolled, without arrows at its ends.
namespace ui {

/// The place of a part, in the bar; the handle is at least so long, where there is room.
QRect partOfScrollBar(const QStyleOptionSlider& bar, QStyle::SubControl part, int shortest);

/// Draws the handle in the place that it takes, darker under the mouse.
void drawScrollHandle(
    QPainter& painter, const QStyleOption& option, const QRect& place, double factor);

} // namespace ui
