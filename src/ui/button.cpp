#include "ui/button.h"

#include "ui/look.h"

#include <QKeyEvent>
#include <QShortcutEvent>

namespace ui {

Button::Button(const QString& caption, const QColor& fill, QWidget* parent)
    : QPushButton(caption, parent)
{
    setAutoDefault(false);
    setFill(fill);
}

void Button::setFill(const QColor& fill)
{
    setPalette(look::filled(fill));
}

bool Button::event(QEvent* event)
{
    if (event->type() == QEvent::Shortcut
        && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        setFocus(Qt::ShortcutFocusReason);
        if (hasFocus()) // else another control has refused to be left
            click(); // QPushButton would first show itself pressed for a tenth of a second
        return true;
    }
    return QPushButton::event(event);
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

} // namespace ui
