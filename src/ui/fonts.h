#pragma once

#include "ui/look.h"

#include <QStringList>

namespace ui::look {

/// The names under which a family is looked for, the one asked for first. The first call for a
/// family loads its files from the folder "fonts" beside the executable, where there is one
/// and the system has none of the names.
QStringList familiesOf(Family family);

/// Loads the fonts of a folder that begin with a prefix; returns how many there were.
int loadFonts(const QString& folder, const QString& prefix);

} // namespace ui::look
