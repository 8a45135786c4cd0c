#include "written/cell_grid.h"

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace written {

namespace {

/// The index of the cell, 0 to last, that holds a pixel. Edges are rounded to pixels, so the
/// neighbour of the one that is reckoned may be the one that was hit.
template <typename Edge> int cellAt(int pixel, double length, int last, Edge edge)
{
    int cell = std::clamp(static_cast<int>(std::floor((pixel + 0.5) / length)), 0, last);
    while (cell > 0 && pixel < edge(cell))
        --cell;
    while (cell < last && pixel >= edge(cell + 1))
        ++cell;
    return cell;
}

} // namespace

void CellGrid::setText(int columns, int size)
{
    m_columns = columns;
    m_size = size;
    scrollTo(m_firstRow);
}

QRect CellGrid::rect(int position) const
{
    const int column = position % m_columns;
    const int row = position / m_columns - m_firstRow;
    return {QPoint(columnEdge(column), rowEdge(row)),
        QPoint(columnEdge(column + 1) - 1, rowEdge(row + 1) - 1)};
}

int CellGrid::positionAt(const QPoint& point) const
{
    const int column = cellAt(
        point.x(), cellWidth(), m_columns - 1, [this](int edge) { return columnEdge(edge); });
    const int row = cellAt(
        point.y(), cellHeight(), visibleRows() - 1, [this](int edge) { return rowEdge(edge); });
    return std::min((row + m_firstRow) * m_columns + column, m_size);
}

int CellGrid::visibleRows() const
{
    return std::max(1, static_cast<int>(std::lround(m_control.height() / cellHeight())));
}

int CellGrid::endOfSight() const
{
    return std::min(m_size, firstInSight() + visibleRows() * m_columns);
}

void CellGrid::scrollTo(int row)
{
    m_firstRow = std::clamp(row, 0, std::max(0, rowCount() - visibleRows()));
}

void CellGrid::turnWheel(int eighths)
{
    constexpr int Notch = 120; // eighths of a degree
    constexpr int RowsPerNotch = 3;
    m_wheel += eighths * RowsPerNotch;
    const int rows = m_wheel / Notch;
    m_wheel -= rows * Notch;
    scrollTo(m_firstRow - rows);
}

void CellGrid::show(int position)
{
    const int row = position / m_columns;
    if (row < m_firstRow)
        scrollTo(row);
    else if (row >= m_firstRow + visibleRows())
        scrollTo(row - visibleRows() + 1);
}

int CellGrid::rowCount() const
{
    return m_size / m_columns + 1; // the caret may stand behind the last character
}

int CellGrid::columnEdge(int column) const
{
    const double left = m_firstCell.left + column * m_firstCell.width;
    return ui::toPixels({left, 0, 0, 0}, m_factor).left() - m_control.x();
}

int CellGrid::rowEdge(int visibleRow) const
{
    const double top = m_firstCell.top + visibleRow * m_firstCell.height;
    return ui::toPixels({0, top, 0, 0}, m_factor).top() - m_control.y();
}

} // namespace written
