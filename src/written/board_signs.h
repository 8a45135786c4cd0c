#pragma once

#include "ui/placement.h"

class QLabel;

namespace ui {
class ControlFactory;
class Rule;
class SquaredBox;
} // namespace ui

namespace written {

struct Squares;

/// The signs beside the rows of a multiplication, and the rules between them.
class BoardSigns {
public:
    static constexpr double Width = 500; ///< of the room that they need beside the rows, in twips

    /// firstRow leads the times sign's access key to its box and, with its place, all the others
    /// to theirs. controls must outlive the signs.
    BoardSigns(ui::ControlFactory& controls, ui::SquaredBox& firstRow);

    /// Moves what belongs to the result to its top, in twips.
    void placeResult(double top);
    /// Sets the signs level with digits in these squares.
    void fit(const Squares& squares);

private:
    void makeSigns(ui::SquaredBox& firstRow);
    void makeRules();
    double left() const { return m_firstRow.left - Width; }

    ui::ControlFactory& m_controls;
    ui::TwipRect m_firstRow;
    QLabel* labIgual = nullptr; ///< the equals sign beside the result
    QLabel* LabX = nullptr; ///< the times sign beside factor 2, and the way to the first row
    ui::Rule* Line2 = nullptr; ///< the rule under the last row
};

} // namespace written
