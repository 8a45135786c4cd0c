#pragma once

#include "ui/screen.h"

#include <QDialog>
#include <QPointer>
#include <QWindow>

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
        if (watchers().isEmpty())
            ui::Screen::Waiting::exchangeObserver(
                [](QDialog& box) { watchers().constLast()->expect(box); });
        watchers() << this;
    }
    ~BoxWatcher() override
    {
        watchers().removeOne(this);
        if (watchers().isEmpty())
            ui::Screen::Waiting::exchangeObserver({});
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Expose || event->type() == QEvent::WindowActivate)
            lookLater();
        return QObject::eventFilter(object, event);
    }

private:
    static QList<BoxWatcher*>& watchers()
    {
        static QList<BoxWatcher*> all;
        return all;
    }

    void expect(QDialog& box)
    {
        box.installEventFilter(this);
        m_expected << &box;
        lookLater();
    }

    /// From the event loop: the box itself has then dealt with the event.
    void lookLater()
    {
        QMetaObject::invokeMethod(
            this, [this] { look(); }, Qt::QueuedConnection);
    }

    void look()
    {
        m_expected.removeIf([](const QPointer<QDialog>& box) { return !box; });
        const auto up = std::ranges::find_if(
            m_expected, [this](const QPointer<QDialog>& box) { return comesUp(*box); });
        if (up == m_expected.end())
            return;
        const QPointer<QDialog> box = *up;
        m_expected.erase(up);
        m_isUp(*box);
    }

    bool comesUp(QDialog& box)
    {
        if (!box.isVisible())
            return false;
        box.windowHandle()->installEventFilter(this);
        return box.windowHandle()->isExposed() && box.isActiveWindow();
    }

    Callback m_isUp;
    QList<QPointer<QDialog>> m_expected; ///< not up yet
};
