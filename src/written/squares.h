#pragma once

#include <QtGlobal>

namespace written {

/// The squares on which a multiplication is written: so many side by side fill a row exactly, one
/// to three on top of each other. The digits stand in those that begin top twips below the top of
/// the row.
struct Squares {
    // Of a row, in twips.
    static constexpr double RowWidth = 3000;
    static constexpr double RowHeight = 500;

    int columns;
    double height; ///< twips, as top
    double top;
    int signPixels; ///< type of the equals sign beside the result, at factor 1

    double width() const { return RowWidth / columns; }
    double middle() const { return top + height / 2; }

    /// The largest in which so many characters have room, or the smallest.
    static const Squares& forCharacters(qsizetype characters);
};

} // namespace written
