#include "ui/placement.h"

#include <cmath>

namespace ui {

QRect toPixels(const TwipRect& place, double factor)
{
    const auto edge = [factor](double twips) {
        return static_cast<int>(std::lround(twips * factor / TwipsPerPixel));
    };
    return QRect(QPoint(edge(place.left), edge(place.top)),
        QPoint(edge(place.right()) - 1, edge(place.bottom()) - 1));
}

} // namespace ui
