#include "ui/screen.h"

#include "core/errors.h"
#include "ui/focus_ring.h"
#include "ui/ground.h"
#include "ui/screens.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QShortcut>

#include <exception>
#include <utility>

using namespace Qt::StringLiterals;

namespace ui {

Screen::Screen(
    Screens& screens, const QString& name, const QString& caption, double width, double height)
    : m_screens(screens)
    , m_canvas(new QWidget(this))
    , m_designWidth(width)
    , m_designHeight(height)
{
    setObjectName(name);
    setWindowTitle(caption);
    new Ground(*m_canvas);
    new FocusRing(m_canvas);
    auto* close = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_F4), this);
    connect(close, &QShortcut::activated, this, [this] { this->close(); });
}

Screen::~Screen()
{
    m_unloaded = true; // no handler starts while the controls go
    delete m_canvas; // while the entries of its controls are still there to be erased
}

const Screen* Screen::of(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto* screen = dynamic_cast<const Screen*>(widget))
            return screen;
    }
    return nullptr;
}

double Screen::factorOf(const QWidget* widget)
{
    const Screen* screen = of(widget);
    return screen != nullptr ? screen->factor() : 1;
}

// --- life

void Screen::unload()
{
    if (m_unloaded)
        return;
    run([this] { Form_QueryUnload(); }); // also while a handler waits
    leave();
}

void Screen::leave()
{
    if (m_unloaded) // a handler of QueryUnload was faster
        return;
    m_unloaded = true;
    for (QTimer* timer : findChildren<QTimer*>())
        timer->stop();
    if (m_box)
        m_box->done(QDialog::Rejected);
    hide();
    m_screens.forget(*this);
    if (m_runningHandlers == 0) {
        tellClosed();
        deleteLater();
    }
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (!m_unloaded)
        closeRequested();
}

void Screen::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_activated || event->spontaneous())
        return;
    m_activated = true;
    QMetaObject::invokeMethod(
        this, [this] { guarded([this] { Form_Activate(); }); }, Qt::QueuedConnection);
}

void Screen::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous() || m_runningHandlers > 0 || m_unloaded)
        return;
    ++m_runningHandlers; // whom it tells may open a box: the screen must outlive its hiding
    tellClosed();
    endHandler();
}

void Screen::tellClosed()
{
    if (const auto told = std::exchange(m_whenClosed, {}))
        told();
}

// --- handlers

void Screen::guarded(const std::function<void()>& body)
{
    if (!m_unloaded && m_waiting == 0)
        run(body);
}

void Screen::run(const std::function<void()>& body)
{
    QString text;
    ++m_runningHandlers;
    try {
        body();
    } catch (const ScreenUnloaded&) {
        // The screen went while its handler waited: there is nothing left to tell.
    } catch (const core::Error& error) {
        text = error.text();
    } catch (const std::exception& error) {
        text = u"Error interno: %1"_s.arg(QString::fromUtf8(error.what()));
    } catch (...) {
        text = u"Error interno"_s;
    }
    if (!text.isEmpty()) // behind the catch blocks: the box runs an event loop of its own
        report(text);
    endHandler();
}

void Screen::endHandler()
{
    // While it still counts as running: whom it tells may open a box.
    while (m_runningHandlers == 1 && m_whenClosed && !isVisible())
        tellClosed();
    if (--m_runningHandlers == 0 && m_unloaded)
        deleteLater();
}

void Screen::report(const QString& text)
{
    if (m_unloaded || std::exchange(m_reporting, true))
        return;
    try {
        MessageBox::show(*this, text);
    } catch (const ScreenUnloaded&) {
        return;
    }
    m_reporting = false;
}

void Screen::letEventsRun()
{
    const Waiting waiting(*this, nullptr);
    QCoreApplication::processEvents();
}

Screen::Waiting::Waiting(Screen& screen, QDialog* box)
    : m_screen(screen)
    , m_exceptions(std::uncaught_exceptions())
{
    m_outer = std::exchange(m_screen.m_box, box);
    ++m_screen.m_waiting;
    ++m_screen.m_runningHandlers; // the screen must outlive the box whoever opened it
}

Screen::Waiting::~Waiting() noexcept(false)
{
    m_screen.m_box = m_outer;
    --m_screen.m_waiting;
    const bool gone = m_screen.isUnloaded();
    m_screen.endHandler();
    if (gone && std::uncaught_exceptions() == m_exceptions)
        throw ScreenUnloaded();
}

} // namespace ui
