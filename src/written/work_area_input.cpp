#include "written/work_area.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace written {

void WorkArea::wheelEvent(QWheelEvent* event)
{
    constexpr int NotchDegrees = 120;
    constexpr int RowsPerNotch = 3;
    m_wheel += event->angleDelta().y() * RowsPerNotch;
    const int rows = m_wheel / NotchDegrees;
    m_wheel -= rows * NotchDegrees;
    scrollTo(m_firstRow - rows);
    event->accept();
}

void WorkArea::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void WorkArea::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void WorkArea::keyPressEvent(QKeyEvent* event)
{
    if (!edit(*event) && !moveCaret(*event))
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

WorkArea::CaretMoves WorkArea::caretMoves() const
{
    const int columns = m_grid.columns();
    const int lineStart = m_caret - m_caret % columns;
    const auto lineTo = [&](int rows) {
        const int target = m_caret + rows * columns;
        return target < 0 || target > m_grid.size() ? m_caret : target;
    };
    using Key = QKeySequence;
    return {{
        {Key::MoveToPreviousChar, Key::SelectPreviousChar, m_caret - 1},
        {Key::MoveToNextChar, Key::SelectNextChar, m_caret + 1},
        {Key::MoveToPreviousLine, Key::SelectPreviousLine, lineTo(-1)},
        {Key::MoveToNextLine, Key::SelectNextLine, lineTo(1)},
        {Key::MoveToPreviousPage, Key::SelectPreviousPage, lineTo(-visibleRows())},
        {Key::MoveToNextPage, Key::SelectNextPage, lineTo(visibleRows())},
        {Key::MoveToStartOfLine, Key::SelectStartOfLine, lineStart},
        {Key::MoveToEndOfLine, Key::SelectEndOfLine, lineStart + columns - 1},
        {Key::MoveToStartOfDocument, Key::SelectStartOfDocument, 0},
        {Key::MoveToEndOfDocument, Key::SelectEndOfDocument, m_grid.size()},
    }};
}

bool WorkArea::moveCaret(const QKeyEvent& event)
{
    for (const auto& [move, select, target] : caretMoves()) {
        if (event.matches(move)) {
            setCursorPosition(target);
            return true;
        }
        if (event.matches(select)) {
            setSelection(m_anchor, target);
            return true;
        }
    }
    return false;
}

void WorkArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int position = positionAt(event->position().toPoint());
    if (event->modifiers() & Qt::ShiftModifier)
        setSelection(m_anchor, position);
    else
        setCursorPosition(position);
}

void WorkArea::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        setSelection(m_anchor, positionAt(event->position().toPoint()));
}

void WorkArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int position = positionAt(event->position().toPoint());
    const QString& text = m_grid.text();
    if (position == text.size() || text.at(position) == u' ')
        return;
    const auto start = static_cast<int>(text.lastIndexOf(u' ', position)) + 1;
    const auto end = static_cast<int>(text.indexOf(u' ', position));
    setSelection(start, end < 0 ? m_grid.size() : end);
}

void WorkArea::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(u"&Copiar"_s, this, &WorkArea::copy)->setEnabled(m_anchor != m_caret);
    menu->addAction(u"&Pegar"_s, this, &WorkArea::paste)
        ->setEnabled(m_grid.isWritable(selectionStart())
            && !QGuiApplication::clipboard()->text().isEmpty());
    menu->addSeparator();
    menu->addAction(u"&Seleccionar todo"_s, this, [this] { setSelection(0, m_grid.size()); });
    menu->popup(event->globalPos());
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
        return cellRect(m_caret);
    case Qt::ImCursorPosition:
    case Qt::ImAbsolutePosition:
        return m_caret;
    case Qt::ImAnchorPosition:
        return m_anchor;
    case Qt::ImSurroundingText:
        return m_grid.text();
    case Qt::ImCurrentSelection:
        return selectedText();
    default:
        return QWidget::inputMethodQuery(query);
    }
}

} // namespace written
