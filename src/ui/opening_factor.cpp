#include "ui/opening_factor.h"

#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace ui {

double openingFactor(QSizeF window, QSize free)
{
    const double fitting =
        std::min(free.width() / window.width(), (free.height() - FrameHeight) / window.height());
    // In fonts a smaller step is not seen. What fits exactly must not be rounded away.
    const double twentieths = std::floor(20 * fitting + 1e-6);
    return twentieths >= 1 ? twentieths / 20 : std::max(fitting, 0.01);
}

} // namespace ui
