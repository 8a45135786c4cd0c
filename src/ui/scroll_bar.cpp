#include "ui/scroll_bar.h"

#include "ui/look.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace ui {

namespace {

constexpr double HandleGap = 3; // around it, in pixels at factor 1

} // namespace

QRect partOfScrollBar(const QStyleOptionSlider& bar, QStyle::SubControl part, int shortest)
{
    const bool across = bar.orientation == Qt::Horizontal;
    const int room = across ? bar.rect.width() : bar.rect.height();
    const int range = bar.maximum - bar.minimum;
    const auto share = static_cast<double>(bar.pageStep) / std::max(1, range + bar.pageStep);
    const int length = std::clamp(qRound(room * share), std::min(shortest, room), room);
    const int start = QStyle::sliderPositionFromValue(
        bar.minimum, bar.maximum, bar.sliderPosition, room - length, bar.upsideDown);
    const auto stretch = [&](int from, int to) {
        return across ? QRect(from, 0, to - from, bar.rect.height())
                      : QRect(0, from, bar.rect.width(), to - from);
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, start + length);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + length, room);
    default:
        return {};
    }
}

void drawScrollHandle(
    QPainter& painter, const QStyleOption& option, const QRect& place, double factor)
{
    const double gap = HandleGap * factor;
    const QRectF handle = QRectF(place).adjusted(gap, gap, -gap, -gap);
    const double radius = std::min(handle.width(), handle.height()) / 2;
    const bool darker = option.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(darker ? look::Quiet : look::Edge));
    painter.drawRoundedRect(handle, radius, radius);
    painter.restore();
}

} // namespace ui
