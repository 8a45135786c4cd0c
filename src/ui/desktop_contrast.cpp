#include "ui/desktop_contrast.h"

#include "ui/look.h"

#ifdef PIZARRIN_DBUS
#include "ui/settings_portal.h"

#include <QCoreApplication>
#endif

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace ui {

#if defined(PIZARRIN_DBUS)

void followDesktopContrast()
{
    new SettingsPortal(qApp, [](bool high) {
        look::setContrast(high ? look::Contrast::High : look::Contrast::Usual);
    });
}

#elif defined(Q_OS_WIN)

void followDesktopContrast()
{
    HIGHCONTRASTW asked{};
    asked.cbSize = sizeof asked;
    if (SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof asked, &asked, 0) != 0
        && (asked.dwFlags & HCF_HIGHCONTRASTON) != 0)
        look::setContrast(look::Contrast::High);
}

#else

void followDesktopContrast() { }

#endif

} // namespace ui
