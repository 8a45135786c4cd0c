#include "written/work_area_accessible.h"

#include "written/work_area.h"

#include <QAccessibleWidget>

namespace written {

namespace {

class WorkAreaAccessible final : public QAccessibleWidget,
                                 public QAccessibleTextInterface,
                                 public QAccessibleEditableTextInterface {
public:
    explicit WorkAreaAccessible(WorkArea* area)
        : QAccessibleWidget(area, QAccessible::EditableText)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? area().toPlainText() : QAccessibleWidget::text(kind);
    }

    // --- QAccessibleTextInterface

    QString text(int start, int end) const override
    {
        return area().toPlainText().mid(start, end - start);
    }

    QString textAtOffset(
        int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override
    {
        if (boundary != QAccessible::LineBoundary)
            return QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
        return lineOf(offset, start, end);
    }
    QString textBeforeOffset(
        int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override
    {
        if (boundary != QAccessible::LineBoundary)
            return QAccessibleTextInterface::textBeforeOffset(offset, boundary, start, end);
        return lineOf(offset - area().grid().columns(), start, end);
    }
    QString textAfterOffset(
        int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override
    {
        if (boundary != QAccessible::LineBoundary)
            return QAccessibleTextInterface::textAfterOffset(offset, boundary, start, end);
        return lineOf(offset + area().grid().columns(), start, end);
    }

    int characterCount() const override { return area().grid().size(); }
    int cursorPosition() const override { return area().cursorPosition(); }
    void setCursorPosition(int position) override { area().setCursorPosition(position); }

    int selectionCount() const override
    {
        return area().selectionStart() == area().selectionEnd() ? 0 : 1;
    }
    void selection(int index, int* start, int* end) const override
    {
        const bool any = index == 0 && selectionCount() > 0;
        *start = any ? area().selectionStart() : 0;
        *end = any ? area().selectionEnd() : 0;
    }
    void addSelection(int start, int end) override { area().setSelection(start, end); }
    void setSelection(int, int start, int end) override { area().setSelection(start, end); }
    void removeSelection(int) override { area().setCursorPosition(area().cursorPosition()); }

    QRect characterRect(int offset) const override
    {
        const QRect cell = area().cellRect(offset);
        return {area().mapToGlobal(cell.topLeft()), cell.size()};
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        const QPoint inside = area().mapFromGlobal(point);
        return area().rect().contains(inside) ? area().positionAt(inside) : -1;
    }
    void scrollToSubstring(int start, int) override { area().setCursorPosition(start); }
    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    // --- QAccessibleEditableTextInterface: writes over cells, as typing does

    void insertText(int offset, const QString& text) override
    {
        area().setCursorPosition(offset);
        area().overtypeText(text);
    }
    void replaceText(int start, int, const QString& text) override { insertText(start, text); }
    void deleteText(int, int) override { }

private:
    WorkArea& area() const { return *static_cast<WorkArea*>(widget()); }

    QString lineOf(int offset, int* start, int* end) const
    {
        const GridText& grid = area().grid();
        if (offset < 0 || offset > grid.size()) {
            *start = *end = -1;
            return {};
        }
        const int row = offset / grid.columns();
        QString line = grid.line(row);
        *start = row * grid.columns();
        *end = *start + static_cast<int>(line.size());
        return line;
    }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* area = qobject_cast<WorkArea*>(object);
    return area != nullptr ? new WorkAreaAccessible(area) : nullptr;
}

} // namespace

void installWorkAreaAccessible()
{
    QAccessible::installFactory(makeAccessible); // a second time does nothing
}

void tellAccessibleText(WorkArea& area, const QString& before, int from)
{
    QAccessibleTextUpdateEvent event(&area, from, before.mid(from), area.toPlainText().mid(from));
    QAccessible::updateAccessibility(&event);
}

void tellAccessibleCaret(WorkArea& area)
{
    if (area.selectionStart() != area.selectionEnd()) {
        QAccessibleTextSelectionEvent event(&area, area.selectionStart(), area.selectionEnd());
        event.setCursorPosition(area.cursorPosition());
        QAccessible::updateAccessibility(&event);
        return;
    }
    QAccessibleTextCursorEvent event(&area, area.cursorPosition());
    QAccessible::updateAccessibility(&event);
}

} // namespace written
