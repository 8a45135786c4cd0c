#include "ui/blocked_windows.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace ui {

namespace {

constexpr qint64 HandingOn = 500; // milliseconds that a window manager may take
constexpr int Settling = 100; // milliseconds until a window knows that it is minimised

QWindow* windowOf(quintptr id)
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->handle() != nullptr && window->winId() == id)
            return window;
    }
    return nullptr;
}

void bringBack(QWidget& blocking)
{
    QWindow* window = blocking.windowHandle();
    for (QWindow* behind = window; behind != nullptr; behind = behind->transientParent()) {
        if (behind->windowStates() & Qt::WindowMinimized)
            behind->setWindowStates(behind->windowStates() & ~Qt::WindowMinimized);
    }
    blocking.raise();
    blocking.activateWindow();
}

/// Whether a modal window keeps another one from its keyboard and mouse.
bool blocks(const QWidget& blocking, const QWindow& window)
{
    QWindow* own = blocking.windowHandle();
    return own != nullptr && own != &window && window.type() != Qt::Popup
        && !own->isAncestorOf(&window, QWindow::IncludeTransients);
}

} // namespace

BlockedWindows::BlockedWindows(QObject* application)
    : QObject(application)
{
    m_settling.setObjectName(QStringLiteral("settling"));
    m_settling.setInterval(Settling);
    m_settling.setSingleShot(true);
    connect(&m_settling, &QTimer::timeout, this, &BlockedWindows::settled);
    qApp->installNativeEventFilter(this);
}

bool BlockedWindows::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    const DisplayEvent event = readDisplayEvent(type, message);
    QWindow* window = event.kind != DisplayEvent::Kind::Other ? windowOf(event.window) : nullptr;
    if (window == nullptr)
        return false;
    QWidget* blocking = QApplication::activeModalWidget();
    const bool isBlocked = blocking != nullptr && blocks(*blocking, *window);
    if (isBlocked && event.kind == DisplayEvent::Kind::Press) {
        bringBack(*blocking);
    } else if (isBlocked && event.kind == DisplayEvent::Kind::Activation) {
        m_isHandedOn = m_sinceLoss.isValid() && m_sinceLoss.elapsed() < HandingOn;
        m_settling.start();
        return true; // else the toolkit would undo a minimising that it has not heard of yet
    } else if (event.kind != DisplayEvent::Kind::Press) {
        focusMoved(event.kind, blocking != nullptr && !isBlocked);
    }
    return false;
}

// What a blocked window was told is past once the keyboard goes elsewhere: whoever minimises
// the window that blocks it just then is not to be undone.
void BlockedWindows::focusMoved(DisplayEvent::Kind kind, bool isOfBlocking)
{
    m_settling.stop();
    m_sinceLoss.invalidate();
    if (isOfBlocking && kind == DisplayEvent::Kind::Deactivation)
        m_sinceLoss.start();
}

// A window manager that minimises a window hands the focus on: then nobody has activated the
// window that gets it.
void BlockedWindows::settled()
{
    QWidget* blocking = QApplication::activeModalWidget();
    if (blocking != nullptr && !(m_isHandedOn && blocking->isMinimized()))
        bringBack(*blocking);
}

} // namespace ui
