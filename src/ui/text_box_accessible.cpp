#include "ui/text_box_accessible.h"

#include "ui/text_box.h"

#include <QAccessibleWidget>

namespace ui {

namespace {

class ShownTextAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit ShownTextAccessible(TextBox* box)
        : QAccessibleWidget(box, QAccessible::StaticText)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? box().text() : QAccessibleWidget::text(kind);
    }

    // --- QAccessibleTextInterface

    QString text(int start, int end) const override
    {
        return box().text().mid(start, end - start);
    }
    int characterCount() const override { return static_cast<int>(box().text().size()); }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }

    int selectionCount() const override { return 0; }
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    void addSelection(int, int) override { }
    void setSelection(int, int, int) override { }
    void removeSelection(int) override { }

    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint& point) const override
    {
        return rect().contains(point) ? 0 : -1;
    }
    void scrollToSubstring(int, int) override { }
    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    const TextBox& box() const { return *static_cast<TextBox*>(widget()); }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* box = dynamic_cast<TextBox*>(object);
    return box != nullptr && box->kind() == TextBox::Kind::Display ? new ShownTextAccessible(box)
                                                                   : nullptr;
}

} // namespace

void installTextBoxAccessible()
{
    QAccessible::installFactory(makeAccessible); // a second time does nothing
}

} // namespace ui
