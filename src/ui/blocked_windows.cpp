#include "ui/blocked_windows.h"

#include <QApplication>
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

// A box can come up over a minimised activity: that stays so as long as the box is open, though
// the toolkit would think otherwise, and comes back behind it.
void bringBack(QWidget& blocking)
{
    QWindow* window = blocking.windowHandle();
    const bool isMinimised = window->windowStates() & Qt::WindowMinimized;
    for (QWindow* behind = isMinimised ? window : nullptr; behind != nullptr;
         behind = behind->transientParent()) {
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

/// Whether a message to a blocked window means the one that blocks it. The first key of Alt+F4
/// does not: the second one would close what came back.
bool asksForIt(DisplayEvent::Kind kind)
{
    return kind == DisplayEvent::Kind::Press
        || (kind == DisplayEvent::Kind::Key
            && QGuiApplication::queryKeyboardModifiers() == Qt::NoModifier);
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
    if (event.kind == DisplayEvent::Kind::Press || event.kind == DisplayEvent::Kind::Key) {
        if (isBlocked && asksForIt(event.kind))
            bringBack(*blocking);
    } else if (isBlocked && event.kind == DisplayEvent::Kind::Activation) {
        const bool isHandedOn = m_sinceLoss.isValid() && m_sinceLoss.elapsed() < HandingOn;
        m_handedOnBy = isHandedOn ? blocking : nullptr;
        m_settling.start();
        return true; // else the toolkit would undo a minimising that it has not heard of yet
    } else {
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
    if (blocking != nullptr && !(m_handedOnBy == blocking && blocking->isMinimized()))
        bringBack(*blocking);
}

} // namespace ui
