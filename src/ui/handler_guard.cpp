#include "ui/handler_guard.h"

#include "core/errors.h"

#include <QCoreApplication>
#include <QDialog>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace ui {

/// One handler that waits, for a box where there is one.
class HandlerGuard::Waiting {
public:
    Waiting(HandlerGuard& guard, QDialog* box)
        : m_guard(guard)
        , m_outer(std::exchange(guard.m_box, box))
    {
        ++m_guard.m_waiting;
        ++m_guard.m_running; // the window must outlive the box whoever opened it
        QEvent waiting(waitingEvent());
        if (box != nullptr)
            QCoreApplication::sendEvent(box, &waiting);
    }
    ~Waiting()
    {
        m_guard.m_box = m_outer;
        --m_guard.m_waiting;
        m_guard.endHandler();
    }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    HandlerGuard& m_guard;
    QPointer<QDialog> m_outer; ///< the box that another handler waits for
};

HandlerGuard::HandlerGuard(QWidget& window, const core::Clock& clock)
    : m_window(window)
    , m_clock(clock)
{
}

QEvent::Type HandlerGuard::waitingEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

QString HandlerGuard::mistakeText()
{
    return u"El programa se ha equivocado y no ha podido terminar lo que estaba haciendo. La "
           "ventana sigue como estaba."_s;
}

void HandlerGuard::guarded(const std::function<void()>& body, core::SourceLine where)
{
    if (!m_shut && m_waiting == 0)
        run(body, where);
}

void HandlerGuard::guardedTick(const std::function<void()>& body, core::SourceLine where)
{
    const bool outer = std::exchange(m_inTick, true);
    guarded(body, where);
    m_inTick = outer;
}

void HandlerGuard::run(const std::function<void()>& body, core::SourceLine where)
{
    QString text;
    ++m_running;
    try {
        body();
    } catch (const ScreenUnloaded&) {
        // The window went while its handler waited: there is nothing left to tell.
    } catch (const core::Error& error) {
        text = error.text();
    } catch (const core::Defect& defect) {
        text = logged(defect.what(), defect.where());
    } catch (const std::exception& error) {
        text = logged(error.what(), where);
    } catch (...) {
        text = logged("unknown exception", where);
    }
    if (!text.isEmpty()) // behind the catch blocks: the box runs an event loop of its own
        tell(text);
    endHandler();
}

QString HandlerGuard::logged(const char* what, core::SourceLine where)
{
    // No stream: as soon as one is named, the library makes all of them at the start.
    std::fputs((where.text() + ": " + what + '\n').c_str(), stderr);
    return mistakeText();
}

void HandlerGuard::endHandler()
{
    while (m_running == 1 && finishHandlers())
        ;
    if (--m_running == 0 && m_shut)
        handlersEnded();
}

void HandlerGuard::tell(const QString& text)
{
    if (m_shut || std::exchange(m_reporting, true))
        return;
    try {
        report(text);
    } catch (const ScreenUnloaded&) {
        return;
    }
    m_reporting = false;
}

void HandlerGuard::wait(QDialog* box, const std::function<void()>& waitFor)
{
    {
        const Waiting waiting(*this, box);
        waitFor();
    }
    if (m_shut)
        throw ScreenUnloaded();
}

void HandlerGuard::letEventsRun()
{
    wait(nullptr, [] { QCoreApplication::processEvents(); });
}

void HandlerGuard::shut()
{
    m_shut = true;
    if (m_box)
        m_box->done(0);
}

} // namespace ui
