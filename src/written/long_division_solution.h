#pragma once

#include "written/grid_text.h"

namespace written {

/// A division worked as on squared paper.
struct WorkedDivision {
    QString quotient;
    GridText work; ///< the operation's line and, below it, what was worked out
};

/// Works out the division whose dividend stands on the first line of work, digit by digit.
/// Each step writes the remainder under the digits used so far with the next digit brought
/// down beside it and, when RestasIntermedias asks for it, the product to subtract above it.
/// Steps before the quotient's first digit write nothing. Throws DivisionByZeroError.
WorkedDivision ResuelveDivision(
    const GridText& work, qint32 Divisor, int DecimalesCociente, bool RestasIntermedias);

} // namespace written
