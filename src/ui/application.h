#pragma once

namespace ui {

/// Switches the desktop's own settings off. Call before the application object is made.
void ignoreDesktopSettings();

/// Gives the application the program's style, palette, font and icon, and its way with held keys
/// and with windows that are blocked.
void setUpApplication();

/// Installs the toolkit's own Spanish texts (context menus of text boxes), once. Apart from
/// setUpApplication(), because the menu shows none of them and starts faster without.
void installToolkitTexts();

} // namespace ui
