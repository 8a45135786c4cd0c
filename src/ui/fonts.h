#pragma once

#include "ui/look.h"

#include <QStringList>

#include <thread>

namespace ui::look {

// Reading what fonts there are takes a third of the start: two threads do it, one after the
// other, while the program gets ready. Whoever asks for a font meanwhile waits.

/// Reads the system's settings of fonts: before the application object is made.
std::jthread readFontSettings();

/// Waits for the settings, then reads the list of fonts, and what stands in for the one in which
/// most is written: behind the application object.
std::jthread readFontList(std::jthread settings);

/// Under which names a family is there: that asked for and its metric twins, the best first; the
/// others lend the glyphs that it lacks. The first call for a family loads its files from the
/// folder "fonts" beside the executable, where there is one and the system has no such font.
QStringList familiesOf(Family family);

} // namespace ui::look
