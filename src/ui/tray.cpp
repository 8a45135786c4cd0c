#include "ui/tray.h"

#include "ui/look.h"
#include "ui/scaling.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ui {

namespace {

constexpr double Radius = 12; // pixels at factor 1

/// Whether two buttons are neighbours of one row or one column.
bool areNeighbours(const QRect& a, const QRect& b, int reach)
{
    const bool row = a.top() == b.top() && a.bottom() == b.bottom();
    const bool column = a.left() == b.left() && a.right() == b.right();
    return (row || column) && a.adjusted(-reach, -reach, reach, reach).intersects(b);
}

} // namespace

Tray::Tray(const std::vector<QWidget*>& buttons, Shape shape)
    : Underlay(buttons)
    , m_shape(shape)
{
    if (m_shape == Shape::Strip)
        parentWidget()->installEventFilter(this);
    lower();
    follow();
}

bool Tray::holds(const QWidget& control)
{
    const auto trays = control.parentWidget() != nullptr
        ? control.parentWidget()->findChildren<const Tray*>(Qt::FindDirectChildrenOnly)
        : QList<const Tray*>();
    return std::any_of(
        trays.begin(), trays.end(), [&](const Tray* tray) { return tray->liesBehind(control); });
}

QRect Tray::placeOf(const QWidget& control) const
{
    return control.geometry();
}

QRect Tray::around(const QRect& covered) const
{
    const int margin = qRound(Margin * factorOf(this));
    const QRect plate = covered.adjusted(-margin, -margin, margin, margin);
    return m_shape == Shape::Plate
        ? plate
        : QRect(QPoint(0, plate.top()), parentWidget()->rect().bottomRight());
}

void Tray::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_shape == Shape::Strip) {
        painter.fillRect(rect(), QColor(look::Slate));
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline(), QColor(look::Slate));
}

/// Round every button, and across the gap between neighbours: what stands between buttons far
/// from each other is no part of the tray.
QPainterPath Tray::outline() const
{
    const double factor = factorOf(this);
    const double radius = Radius * factor;
    const int margin = qRound(Margin * factor);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const auto add = [&](const QRect& covered) {
        path.addRoundedRect(covered.adjusted(-margin, -margin, margin, margin).translated(-pos()),
            radius, radius);
    };
    const std::vector<QRect> places = coveredPlaces();
    for (const QRect& place : places) {
        add(place);
        for (const QRect& other : places) {
            if (areNeighbours(place, other, 2 * margin))
                add(place | other);
        }
    }
    return path;
}

} // namespace ui
