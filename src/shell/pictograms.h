#pragma once

#include <QIcon>

namespace shell {

/// The pictures of the main menu's buttons.
enum class Pictogram {
    RepeatedSum,
    Tables,
    QuickTables,
    Gap,
    Multiples,
    Multiplication,
    Division,
    Problems,
    Combined,
    Rain,
    Race,
    Exit
};

/// An icon that paints its strokes anew at every size, so it is crisp at any zoom and pixel
/// ratio. Square; ink on nothing, paler when disabled.
QIcon pictogramIcon(Pictogram pictogram);

} // namespace shell
