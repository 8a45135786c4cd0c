#pragma once

#include "ui/placement.h"

#include <QSizeF>

namespace ui {
class ControlFactory;
class TextBox;
class VerdictBox;
} // namespace ui

namespace written {

class MultiplicationBoard;

/// What stands beside the sheet of a multiplication and under it, and goes down with its rows:
/// the instruction above, the buttons, two by two, the verdict beside the result, and the
/// counters.
class MultiplicationColumn {
public:
    /// Makes the texts. controls must outlive the column.
    MultiplicationColumn(ui::ControlFactory& controls, const MultiplicationBoard& board,
        const QString& countersText);

    /// Where a button stands, row by row, in twips.
    static ui::TwipRect commandPlace(int position);

    /// The canvas on which a sheet of so many rows and the column have room, in twips; no more
    /// than a window should grow for.
    static QSizeF canvasFor(int rows);
    /// Moves verdict and counters to where the sheet is now.
    void follow(const MultiplicationBoard& board);

    ui::VerdictBox* Text1; ///< the verdict, or the hint of a product of digits
    ui::TextBox* Text2; ///< the counters

private:
    ui::ControlFactory& m_controls;
};

} // namespace written
