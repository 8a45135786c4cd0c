#pragma once

class QApplication;

namespace ui {

/// Switches the desktop's own settings off. Call before the application object is made.
void prepareApplication();

/// Gives the application the program's style, palette, font and the toolkit's Spanish texts.
void dress(QApplication& application);

} // namespace ui
