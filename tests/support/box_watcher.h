#pragma once

#include "support/pending_events.h"
#include "support/window_manager.h"
#include "ui/handler_guard.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <utility>

/// Calls a function for each box that a screen waits for, from the box's own event loop, as
/// soon as the box is up: shown, and the active window. Of several watchers the newest is
/// told.
class BoxWatcher : public QObject {
public:
    using Callback = std::function<void(QDialog& box)>;

    explicit BoxWatcher(Callback isUp)
        : m_isUp(std::move(isUp))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == ui::HandlerGuard::waitingEvent()) {
            m_expected << static_cast<QDialog*>(object);
            lookLater();
            return true; // no other watcher is told
        }
        if (event->type() == QEvent::Expose || event->type() == QEvent::WindowActivate)
            lookLater();
        return QObject::eventFilter(object, event);
    }

private:
    /// From the event loop: the box itself has then dealt with the event.
    void lookLater()
    {
        if (!m_expected.isEmpty())
            QMetaObject::invokeMethod(
                this, [this] { look(); }, Qt::QueuedConnection);
    }

    void look()
    {
        m_expected.removeIf([](const QPointer<QDialog>& box) { return !box; });
        const auto up = std::ranges::find_if(
            m_expected, [](const QPointer<QDialog>& box) { return isUp(*box); });
        if (up == m_expected.end())
            return;
        const QPointer<QDialog> box = *up;
        m_expected.erase(up);
        // To the toolkit a window is active as soon as it has asked to be. A box that goes
        // before the window manager has seen to that leaves the keyboard to none, it believes.
        settleWindows();
        if (box)
            m_isUp(*box);
        remindOuterLoops(); // keys that a test sends let events run
    }

    static bool isUp(const QDialog& box)
    {
        return box.isVisible() && box.windowHandle()->isExposed() && box.isActiveWindow();
    }

    Callback m_isUp;
    QList<QPointer<QDialog>> m_expected; ///< not up yet
};
