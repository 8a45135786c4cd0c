#pragma once

#include <QChar>

class QPainter;
class QRect;

/// How the cells of a WorkArea are painted, in pixels at its factor.
namespace written {

/// What marks a cell.
struct CellMarks {
    bool hasFocus; ///< the text box does
    bool selected;
    bool composed; ///< an input method is composing it
    bool next; ///< it is the one that the next key writes
};

/// A cell with its character, in the painter's font.
void paintCell(
    QPainter& painter, const QRect& cell, QChar character, const CellMarks& marks, double factor);

/// The caret as a bar, in a cell that cannot be written.
void paintBar(QPainter& painter, QRect cell, double factor);

} // namespace written
