#include "ui/leave_check.h"

#include <QApplication>
#include <QFocusEvent>

namespace ui {

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
        return true;
    default:
        return false;
    }
}

} // namespace

LeaveCheck::LeaveCheck(QWidget* box, Check check, Tell tell)
    : QObject(box)
    , m_box(box)
    , m_check(std::move(check))
    , m_tell(std::move(tell))
{
    m_box->installEventFilter(this);
}

bool LeaveCheck::eventFilter(QObject* watched, QEvent* event)
{
    if (m_refusing) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        return isInput(event->type()) && widget != nullptr && widget->window() == m_box->window();
    }
    if (event->type() != QEvent::FocusOut
        || !isLeaving(static_cast<QFocusEvent*>(event)->reason()))
        return false;
    const QString reason = m_check();
    if (reason.isEmpty())
        return false;
    refuse(reason);
    return true; // the box has never been without the focus
}

bool LeaveCheck::isLeaving(Qt::FocusReason reason) const
{
    // Another window or a menu of the box's own takes the focus for a while only.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return false;
    const QWidget* next = QApplication::focusWidget();
    return next != nullptr && next != m_box && next != m_wayOut
        && next->window() == m_box->window();
}

void LeaveCheck::refuse(const QString& reason)
{
    m_refusing = true;
    qApp->installEventFilter(this);
    m_box->setFocus();
    QMetaObject::invokeMethod(
        this, [this, reason] { tellAndLetGo(reason); }, Qt::QueuedConnection);
}

void LeaveCheck::tellAndLetGo(const QString& reason)
{
    const QPointer<LeaveCheck> alive(this); // the box may go while the reason is told
    m_tell(reason);
    if (!alive)
        return;
    qApp->removeEventFilter(this);
    m_refusing = false;
}

} // namespace ui
