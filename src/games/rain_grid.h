#pragma once

#include "games/rain_fall.h"

namespace games {

/// Where the columns and rows of the rules are on the sky, in twips.
class RainGrid {
public:
    static constexpr int Pitch = 500; ///< a column, a row
    static constexpr int FirstRow = 780; ///< top edge of a number that has not fallen yet

    static int left(const Gota& gota) { return Pitch * gota.Columna.value(); }
    static int top(const Gota& gota) { return FirstRow + Pitch * gota.Fila.value(); }

    /// The last row on a sky of this height: in the next one a number's top edge is below it.
    static constexpr int lastRow(int height) { return (height - FirstRow) / Pitch; }
};

} // namespace games
