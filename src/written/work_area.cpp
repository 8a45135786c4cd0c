#include "written/work_area.h"

#include "ui/focus_ring.h"
#include "ui/squared_box.h"
#include "written/cell_painting.h"
#include "written/work_area_accessible.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace written {

WorkArea::WorkArea(QWidget* parent)
    : QWidget(parent)
{
    installWorkAreaAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    setAttribute(Qt::WA_InputMethodEnabled);
    ui::FocusRing::leaveOut(*this);
}

// --- text

void WorkArea::setGrid(const GridText& grid, int caret)
{
    const GridText before = m_grid;
    m_grid = grid;
    m_composed.clear();
    m_cells.setText(grid.columns(), grid.size());
    m_cells.scrollTo(0);
    m_caret.setText(grid.columns(), grid.size());
    changed(before, 0);
    setCursorPosition(caret);
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
    if (m_caret.hasSelection())
        QGuiApplication::clipboard()->setText(selectedText());
}

void WorkArea::paste()
{
    overtypeText(QGuiApplication::clipboard()->text());
}

// --- caret

void WorkArea::setSelection(int anchor, int caret)
{
    GridCaret moved = m_caret;
    moved.select(anchor, caret);
    setCaret(moved);
}

void WorkArea::setCaret(const GridCaret& caret)
{
    if (caret == m_caret)
        return;
    m_caret = caret;
    m_composed.clear();
    m_cells.show(caret.position());
    update();
    updateMicroFocus();
    tellAccessibleCaret(*this);
    emit cursorPositionChanged();
}

void WorkArea::writeNear(const QPoint& point)
{
    const QPoint below(point.x(), std::max(point.y(), cellRect(m_grid.columns()).top()));
    setFocus(Qt::MouseFocusReason);
    setCursorPosition(positionAt(below));
}

// --- places

void WorkArea::setFirstCell(const ui::TwipRect& cell)
{
    m_cells.setFirstCell(cell);
    update();
}

void WorkArea::setFactor(double factor)
{
    Scalable::setFactor(factor);
    m_cells.setFactor(factor);
    QFont type = font();
    type.setPixelSize(
        ui::SquaredBox::fittingSize(type, m_cells.cellWidth(), m_cells.cellHeight()));
    setFont(type);
    update();
}

void WorkArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_cells.show(cursorPosition());
}

// --- keys

void WorkArea::keyPressEvent(QKeyEvent* event)
{
    GridCaret moved = m_caret;
    if (moved.press(*event, m_cells.visibleRows()))
        setCaret(moved);
    else if (!edit(*event))
        event->ignore();
}

bool WorkArea::edit(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Copy))
        copy();
    else if (event.matches(QKeySequence::Paste))
        paste();
    else if (event.matches(QKeySequence::SelectAll))
        setSelection(0, m_grid.size());
    else
        return false;
    return true;
}

void WorkArea::inputMethodEvent(QInputMethodEvent* event)
{
    if (!event->commitString().isEmpty())
        overtypeText(event->commitString());
    m_composed = event->preeditString();
    update();
    event->accept();
}

QVariant WorkArea::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImCursorRectangle:
        return cellRect(cursorPosition());
    case Qt::ImCursorPosition:
    case Qt::ImAbsolutePosition:
        return cursorPosition();
    case Qt::ImAnchorPosition:
        return m_caret.anchor();
    case Qt::ImSurroundingText:
        return m_grid.text();
    case Qt::ImCurrentSelection:
        return selectedText();
    default:
        return QWidget::inputMethodQuery(query);
    }
}

// --- mouse

void WorkArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int position = positionAt(event->position().toPoint());
    const bool extends = event->modifiers() & Qt::ShiftModifier;
    setSelection(extends ? m_caret.anchor() : position, position);
}

void WorkArea::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        setSelection(m_caret.anchor(), positionAt(event->position().toPoint()));
}

void WorkArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int position = positionAt(event->position().toPoint());
    if (const auto word = m_grid.wordAt(position))
        setSelection(word->start, word->end);
}

void WorkArea::wheelEvent(QWheelEvent* event)
{
    m_cells.turnWheel(event->angleDelta().y());
    update();
    event->accept();
}

void WorkArea::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(u"&Copiar"_s, this, &WorkArea::copy)->setEnabled(m_caret.hasSelection());
    menu->addAction(u"&Pegar"_s, this, &WorkArea::paste)
        ->setEnabled(m_grid.isWritable(selectionStart())
            && !QGuiApplication::clipboard()->text().isEmpty());
    menu->addSeparator();
    menu->addAction(u"&Seleccionar todo"_s, this, [this] { setSelection(0, m_grid.size()); });
    menu->popup(event->globalPos());
}

// --- painting

void WorkArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int position = m_cells.firstInSight(); position < m_cells.endOfSight(); ++position)
        paintCell(painter, position);
    if (hasFocus() && !m_grid.isWritable(cursorPosition())) // no square to be marked
        paintBar(painter, cellRect(cursorPosition()), factor());
}

bool WorkArea::isComposedAt(int position) const
{
    const int caret = cursorPosition();
    return m_grid.isWritable(caret) && position >= caret && position < caret + m_composed.size();
}

void WorkArea::paintCell(QPainter& painter, int position) const
{
    const bool composed = isComposedAt(position);
    const bool next = position == cursorPosition() && m_grid.isWritable(position);
    const QChar character =
        composed ? m_composed.at(position - cursorPosition()) : m_grid.text().at(position);
    written::paintCell(painter, cellRect(position), character,
        {hasFocus(), m_caret.selects(position), composed, next}, factor());
}

} // namespace written
