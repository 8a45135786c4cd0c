#pragma once

#include "ui/placement.h"

#include <QSizeF>

#include <vector>

class QWidget;

namespace ui {
class ControlFactory;
class TextBox;
class VerdictBox;
} // namespace ui

namespace written {

/// What stands beside the sheet of a division and under it, and moves with its edges: the
/// operation, under it the buttons, and the counters.
class DivisionColumn {
public:
    /// Makes the texts; the verdict is about the quotient. controls must outlive the column.
    DivisionColumn(
        ui::ControlFactory& controls, ui::TextBox* quotient, const QString& countersText);

    /// Where a button stands beside the sheet in its first size, 0 at the top, in twips.
    static ui::TwipRect commandPlace(int position);
    /// Gives the buttons the type of the column, with which they move from now on.
    void take(const std::vector<QWidget*>& commands);

    /// The canvas on which sheet and column have room, in twips.
    static QSizeF canvasFor(const ui::TwipRect& sheet);
    /// Moves everything with the edges of the sheet.
    void follow(const ui::TwipRect& sheet);

    /// In a smaller type where it is long.
    void showOperation(const QString& operation);

    ui::VerdictBox* Text4; ///< the operation, the verdict, or the box being typed into
    ui::TextBox* tbResultados; ///< the counters

private:
    ui::ControlFactory& m_controls;
    std::vector<QWidget*> m_column; ///< what moves with the right edge of the sheet
    double m_moved = 0; ///< so far, in twips
};

} // namespace written
