#pragma once

#include "ui/placement.h"

class QWidget;

namespace written {

/// The cells of a text whose lines are equally long: where each lies in the control that shows
/// them, and which lines are in sight. Points and rectangles are in pixels of that control.
class CellGrid {
public:
    /// control must outlive the cells.
    explicit CellGrid(const QWidget& control)
        : m_control(control)
    {
    }

    /// A text of size characters in lines of columns.
    void setText(int columns, int size);

    /// Where the first cell lies on the control's parent, in twips; all others line up with it.
    void setFirstCell(const ui::TwipRect& cell) { m_firstCell = cell; }
    void setFactor(double factor) { m_factor = factor; }

    double cellWidth() const { return m_firstCell.width * pixelsPerTwip(); }
    double cellHeight() const { return m_firstCell.height * pixelsPerTwip(); }

    /// The cell of a character.
    QRect rect(int position) const;
    /// The character in sight whose cell lies at a point, or the nearest one.
    int positionAt(const QPoint& point) const;

    int firstRow() const { return m_firstRow; }
    int visibleRows() const;
    /// The first character in sight, and the one behind the last.
    int firstInSight() const { return m_firstRow * m_columns; }
    int endOfSight() const;
    /// Makes this the topmost line, as far as there are lines below it.
    void scrollTo(int row);
    /// Scrolls by whole lines as a mouse wheel has been turned, in eighths of a degree.
    void turnWheel(int eighths);
    /// Scrolls no further than needed to have a character in sight.
    void show(int position);

private:
    double pixelsPerTwip() const { return m_factor / ui::TwipsPerPixel; }
    int columnEdge(int column) const;
    int rowEdge(int visibleRow) const;
    int rowCount() const;

    const QWidget& m_control;
    ui::TwipRect m_firstCell{0, 0, 165, 240};
    double m_factor = 1;
    int m_columns = 1;
    int m_size = 0;
    int m_firstRow = 0;
    int m_wheel = 0; ///< turned, in eighths of a degree and lines, and not yet scrolled
};

} // namespace written
