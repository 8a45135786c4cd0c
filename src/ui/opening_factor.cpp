#include "ui/opening_factor.h"

#include "ui/scaling.h"

#include <QScreen>
#include <QSizeF>
#include <QWidget>

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

double overlayFactorOf(const QWidget& window)
{
    constexpr double HeightToFactor = 400; // pixels of the display
    return std::min(
        factorOf(&window), window.screen()->availableGeometry().height() / HeightToFactor);
}

} // namespace ui
