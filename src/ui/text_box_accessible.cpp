#include "ui/text_box_accessible.h"

#include "ui/text_box.h"

#include <QAccessibleWidget>

#include <algorithm>

namespace ui {

namespace {

class TextBoxAccessible final : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface {
public:
    explicit TextBoxAccessible(TextBox* box)
        : QAccessibleWidget(box)
    {
    }

    /// Of a mere text that has the focus, readers say what it shows but not what it is.
    QAccessible::Role role() const override
    {
        return box().focusPolicy() == Qt::NoFocus ? QAccessible::StaticText
                                                  : QAccessible::EditableText;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface && !box().isReadOnly())
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = box().isReadOnly();
        state.editable = !box().isReadOnly();
        state.selectableText = box().kind() == TextBox::Kind::Entry;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? box().text() : QAccessibleWidget::text(kind);
    }
    void setText(QAccessible::Text kind, const QString& text) override
    {
        if (kind == QAccessible::Value && !box().isReadOnly())
            box().setText(text);
        else
            QAccessibleWidget::setText(kind, text);
    }

    // --- QAccessibleTextInterface

    QString text(int start, int end) const override
    {
        return box().text().mid(start, end - start);
    }
    int characterCount() const override { return static_cast<int>(box().text().size()); }
    int cursorPosition() const override { return box().cursorPosition(); }
    void setCursorPosition(int position) override { box().setCursorPosition(position); }

    int selectionCount() const override { return box().isSelectedByHand() ? 1 : 0; }
    void selection(int index, int* start, int* end) const override
    {
        const bool any = index == 0 && box().isSelectedByHand();
        *start = any ? box().selectionStart() : 0;
        *end = any ? box().selectionEnd() : 0;
    }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void setSelection(int, int start, int end) override
    {
        box().setSelection(start, end - start);
    }
    void removeSelection(int) override { box().deselect(); }

    QRect characterRect(int offset) const override
    {
        const int before = box().fontMetrics().horizontalAdvance(box().text().left(offset));
        const int character = box().fontMetrics().horizontalAdvance(box().text().mid(offset, 1));
        const QRect line = box().contentsRect().marginsRemoved(box().textMargins());
        return {box().mapToGlobal(QPoint(line.left() + before, line.top())),
            QSize(character, line.height())};
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        const QPoint inside = box().mapFromGlobal(point);
        return box().rect().contains(inside) ? box().cursorPositionAt(inside) : -1;
    }
    void scrollToSubstring(int start, int end) override
    {
        if (!box().isReadOnly())
            box().setCursorPosition(std::clamp(end, start, characterCount()));
    }
    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    // --- QAccessibleEditableTextInterface

    void insertText(int offset, const QString& text) override
    {
        replaceText(offset, offset, text);
    }
    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void replaceText(int start, int end, const QString& text) override
    {
        box().setText(box().text().replace(start, end - start, text));
    }

private:
    TextBox& box() const { return *static_cast<TextBox*>(widget()); }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* box = dynamic_cast<TextBox*>(object);
    return box != nullptr ? new TextBoxAccessible(box) : nullptr;
}

} // namespace

void installTextBoxAccessible()
{
    QAccessible::installFactory(makeAccessible); // a second time does nothing
}

} // namespace ui
