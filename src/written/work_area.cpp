#include "written/work_area.h"

#include "ui/look.h"
#include "ui/squared_box.h"
#include "written/work_area_accessible.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace written {

WorkArea::WorkArea(QWidget* parent)
    : QWidget(parent)
{
    installWorkAreaAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    setAttribute(Qt::WA_InputMethodEnabled);
}

// --- text

void WorkArea::setGrid(const GridText& grid)
{
    const GridText before = m_grid;
    m_grid = grid;
    m_composed.clear();
    m_firstRow = 0;
    changed(before, 0);
    setCursorPosition(0);
}

void WorkArea::overtype(QChar typed)
{
    overtypeText(typed);
}

void WorkArea::overtypeText(const QString& typed)
{
    const int position = selectionStart();
    const GridText before = m_grid;
    // One character is a key, Enter included; in a longer text Enter is a line break.
    const bool written = typed.size() == 1 ? m_grid.overtype(position, typed.front())
                                           : m_grid.overtypeText(position, typed);
    if (!written)
        return;
    changed(before, position);
    setCursorPosition(position);
}

void WorkArea::changed(const GridText& before, int from)
{
    update();
    if (before == m_grid)
        return;
    tellAccessibleText(*this, before.text(), from);
    emit textChanged();
}

QString WorkArea::selectedText() const
{
    return m_grid.text().mid(selectionStart(), selectionEnd() - selectionStart());
}

void WorkArea::copy() const
{
    if (m_anchor != m_caret)
        QGuiApplication::clipboard()->setText(selectedText());
}

void WorkArea::paste()
{
    overtypeText(QGuiApplication::clipboard()->text());
}

// --- caret

void WorkArea::setCursorPosition(int position)
{
    setSelection(position, position);
}

void WorkArea::setSelection(int anchor, int caret)
{
    anchor = std::clamp(anchor, 0, m_grid.size());
    caret = std::clamp(caret, 0, m_grid.size());
    if (anchor == m_anchor && caret == m_caret)
        return;
    m_anchor = anchor;
    m_caret = caret;
    m_composed.clear();
    showCaret();
    update();
    updateMicroFocus();
    tellAccessibleCaret(*this);
    emit cursorPositionChanged();
}

void WorkArea::showCaret()
{
    const int row = m_caret / m_grid.columns();
    if (row < m_firstRow)
        scrollTo(row);
    else if (row >= m_firstRow + visibleRows())
        scrollTo(row - visibleRows() + 1);
}

// --- cells

void WorkArea::setFirstCell(const ui::TwipRect& cell)
{
    m_firstCell = cell;
    update();
}

void WorkArea::setFactor(double factor)
{
    Scalable::setFactor(factor);
    const double pixels = factor / ui::TwipsPerPixel;
    QFont type = font();
    type.setPixelSize(ui::SquaredBox::fittingSize(
        type, m_firstCell.width * pixels, m_firstCell.height * pixels));
    setFont(type);
    update();
}

int WorkArea::columnEdge(int column) const
{
    const double left = m_firstCell.left + column * m_firstCell.width;
    return ui::toPixels({left, 0, 0, 0}, factor()).left() - x();
}

int WorkArea::rowEdge(int visibleRow) const
{
    const double top = m_firstCell.top + visibleRow * m_firstCell.height;
    return ui::toPixels({0, top, 0, 0}, factor()).top() - y();
}

QRect WorkArea::cellRect(int position) const
{
    const int column = position % m_grid.columns();
    const int row = position / m_grid.columns() - m_firstRow;
    return QRect(QPoint(columnEdge(column), rowEdge(row)),
        QPoint(columnEdge(column + 1) - 1, rowEdge(row + 1) - 1));
}

int WorkArea::positionAt(const QPoint& point) const
{
    const double twips = ui::TwipsPerPixel / factor();
    const auto cell = [twips](int pixels, double length) {
        return static_cast<int>(std::floor((pixels + 0.5) * twips / length));
    };
    int column = std::clamp(cell(point.x(), m_firstCell.width), 0, m_grid.columns() - 1);
    int row = std::clamp(cell(point.y(), m_firstCell.height), 0, visibleRows() - 1);
    // Edges are rounded to pixels, so the neighbour may be the one that was hit.
    while (column > 0 && point.x() < columnEdge(column))
        --column;
    while (column < m_grid.columns() - 1 && point.x() >= columnEdge(column + 1))
        ++column;
    while (row > 0 && point.y() < rowEdge(row))
        --row;
    while (row < visibleRows() - 1 && point.y() >= rowEdge(row + 1))
        ++row;
    return std::min((row + m_firstRow) * m_grid.columns() + column, m_grid.size());
}

int WorkArea::rowCount() const
{
    return m_grid.size() / m_grid.columns() + 1; // the caret may stand behind the last character
}

int WorkArea::visibleRows() const
{
    const double rowPixels = m_firstCell.height * factor() / ui::TwipsPerPixel;
    return std::max(1, static_cast<int>(std::lround(height() / rowPixels)));
}

void WorkArea::scrollTo(int firstRow)
{
    m_firstRow = std::clamp(firstRow, 0, std::max(0, rowCount() - visibleRows()));
    update();
}

void WorkArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showCaret();
}

// --- painting

void WorkArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int first = m_firstRow * m_grid.columns();
    const int last = std::min(m_grid.size(), first + visibleRows() * m_grid.columns());
    for (int position = first; position < last; ++position)
        paintCell(painter, position);
    if (!hasFocus())
        return;
    QRect bar = cellRect(m_caret);
    bar.setWidth(std::max(2, qRound(2 * factor())));
    painter.fillRect(bar, QColor(ui::look::Focus));
}

void WorkArea::paintCell(QPainter& painter, int position) const
{
    const bool selected = position >= selectionStart() && position < selectionEnd();
    const bool underCaret = hasFocus() && position == m_caret && m_grid.isWritable(position);
    const bool composed = m_grid.isWritable(m_caret) && position >= m_caret
        && position < m_caret + m_composed.size();
    const QRect cell = cellRect(position);
    if (selected && hasFocus())
        painter.fillRect(cell, QColor(ui::look::Focus));
    else if (selected || underCaret || composed)
        painter.fillRect(cell, QColor(ui::look::Marker));

    const QChar character =
        composed ? m_composed.at(position - m_caret) : m_grid.text().at(position);
    if (character == u' ')
        return;
    const QFontMetricsF metrics(font());
    const double free = cell.width() - metrics.horizontalAdvance(character);
    const double digit = metrics.tightBoundingRect(u"0"_s).height();
    painter.setPen(QColor(selected && hasFocus() ? ui::look::Card : ui::look::Ink));
    painter.drawText(
        QPoint(cell.left() + qRound(free / 2), cell.top() + qRound((cell.height() + digit) / 2)),
        character);
}

} // namespace written
