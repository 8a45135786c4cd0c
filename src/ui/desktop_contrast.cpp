#include "ui/desktop_contrast.h"

#include "core/system.h"
#include "ui/look.h"

namespace ui {

void followDesktopContrast()
{
    if (core::asksForHighContrast())
        look::setContrast(look::Contrast::High);
}

} // namespace ui
