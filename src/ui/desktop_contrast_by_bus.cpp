#include "ui/desktop_contrast.h"

#include "ui/look.h"
#include "ui/settings_portal.h"

#include <QCoreApplication>

namespace ui {

void followDesktopContrast()
{
    new SettingsPortal(qApp, [](bool high) {
        look::setContrast(high ? look::Contrast::High : look::Contrast::Usual);
    });
}

} // namespace ui
