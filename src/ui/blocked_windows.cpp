#include "ui/blocked_windows.h"

#include "ui/display_event.h"

#include <QApplication>
#include <QTimer>
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

} // namespace

BlockedWindows::BlockedWindows(QObject* application)
    : QObject(application)
{
    qApp->installNativeEventFilter(this);
}

bool BlockedWindows::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    QWidget* blocking = QApplication::activeModalWidget();
    if (blocking == nullptr || blocking->windowHandle() == nullptr)
        return false;
    const DisplayEvent event = readDisplayEvent(type, message);
    QWindow* window = event.kind != DisplayEvent::Kind::Other ? windowOf(event.window) : nullptr;
    if (window == nullptr)
        return false;
    const bool isBlocked = window != blocking->windowHandle()
        && !blocking->windowHandle()->isAncestorOf(window, QWindow::IncludeTransients)
        && window->type() != Qt::Popup;
    if (event.kind == DisplayEvent::Kind::Deactivation) {
        m_sinceLoss.invalidate();
        if (!isBlocked)
            m_sinceLoss.start();
    } else if (isBlocked && event.kind == DisplayEvent::Kind::Press) {
        bringBack(*blocking);
    } else if (isBlocked) {
        QTimer::singleShot(
            Settling, this, [this, handedOn = isHandedOn()] { activated(handedOn); });
        return true; // else the toolkit would undo a minimising that it has not heard of yet
    }
    return false;
}

void BlockedWindows::activated(bool handedOn)
{
    QWidget* blocking = QApplication::activeModalWidget();
    if (blocking != nullptr && !(handedOn && blocking->isMinimized()))
        bringBack(*blocking);
}

// A window manager that minimises a window hands the focus on: then nobody has activated the
// window that gets it.
bool BlockedWindows::isHandedOn() const
{
    return m_sinceLoss.isValid() && m_sinceLoss.elapsed() < HandingOn;
}

} // namespace ui
