#pragma once

#include "core/defect.h"

#include <QEvent>
#include <QPointer>
#include <QString>

#include <functional>

class QDialog;
class QWidget;

namespace core {
class Clock;
}

namespace ui {

/// Thrown through a handler whose window was closed for good while it waited; never shown.
class ScreenUnloaded { };

/// Runs the handlers of a window. An exception that leaves one is reported, the handler is
/// abandoned, and the program goes on. A core::Error is told as it is; any other exception is a
/// mistake of the program: that is what is told, and where and what it was is written to standard
/// error. While one of them waits (for a box, or for events), no other one starts; once the guard
/// is shut, none does.
class HandlerGuard {
public:
    /// The boxes that handlers wait for stand over this window. clock must outlive the guard.
    HandlerGuard(QWidget& window, const core::Clock& clock);
    virtual ~HandlerGuard() = default;
    HandlerGuard(const HandlerGuard&) = delete;
    HandlerGuard& operator=(const HandlerGuard&) = delete;

    QWidget& guardedWindow() const { return m_window; }
    const core::Clock& clock() const { return m_clock; }

    /// The type of the event that a box is sent when a handler begins to wait for it, before it
    /// comes up. The program itself has no use for it: whoever drives the program has.
    static QEvent::Type waitingEvent();

    /// What is told of a mistake of the program.
    static QString mistakeText();

    /// Runs a handler; does nothing when the guard is shut or while another handler waits.
    /// where: what to name as the place of an exception that does not tell its own.
    void guarded(
        const std::function<void()>& body, core::SourceLine where = core::SourceLine::here());
    /// The same for a handler that a timer starts and not the pupil.
    void guardedTick(
        const std::function<void()>& body, core::SourceLine where = core::SourceLine::here());
    /// Whether the handler that runs was started by a timer.
    bool isInTick() const { return m_inTick; }

    /// Lets the handler that calls wait until waitFor returns. box, where it waits for one, is
    /// closed when the guard is shut meanwhile; then ScreenUnloaded is thrown.
    void wait(QDialog* box, const std::function<void()>& waitFor);

    /// Lets pending events run in the middle of a handler: a wait without a box.
    void letEventsRun();

protected:
    /// Runs a handler even while another one waits.
    void run(
        const std::function<void()>& body, core::SourceLine where = core::SourceLine::here());
    /// Lets no further handler start and closes the box that one waits for.
    void shut();
    bool isShut() const { return m_shut; }
    bool isRunning() const { return m_running > 0; }

    /// Shows why a handler was abandoned, in a box. Not called again while it shows one.
    virtual void report(const QString& text) = 0;
    /// The last running handler is about to end, and still counts as running: it may wait. Called
    /// again as long as it returns true.
    virtual bool finishHandlers() { return false; }
    /// The last running handler has ended and the guard is shut.
    virtual void handlersEnded() { }

private:
    class Waiting;

    void endHandler();
    void tell(const QString& text);
    static QString logged(const char* what, core::SourceLine where);

    QWidget& m_window;
    const core::Clock& m_clock;
    QPointer<QDialog> m_box; ///< the box that a handler waits for
    int m_running = 0;
    int m_waiting = 0;
    bool m_reporting = false;
    bool m_shut = false;
    bool m_inTick = false;
};

} // namespace ui
