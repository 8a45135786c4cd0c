#include "ui/access_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

namespace ui {

AccessKeys::AccessKeys(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool AccessKeys::areShown(const QWidget* widget) const
{
    const bool inMenu = qobject_cast<const QMenu*>(widget) != nullptr
        || (qobject_cast<const QMenuBar*>(widget) != nullptr && widget->hasFocus());
    return m_held || (inMenu && m_keyboardLast);
}

bool AccessKeys::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        m_keyboardLast = true;
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            setHeld(true);
        break;
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            setHeld(false);
        break;
    case QEvent::MouseButtonPress:
        m_keyboardLast = false;
        break;
    case QEvent::ApplicationDeactivate: // the release goes to another program
    case QEvent::WindowDeactivate:
        setHeld(false);
        break;
    default:
        break;
    }
    return false;
}

void AccessKeys::setHeld(bool held)
{
    if (m_held == held)
        return;
    m_held = held;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->isVisible())
            widget->update();
    }
}

} // namespace ui
