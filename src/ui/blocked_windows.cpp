#include "ui/blocked_windows.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <cstring>

namespace ui {

namespace {

constexpr qint64 HandingOn = 500; // milliseconds that a window manager may take
constexpr int Settling = 100; // milliseconds until a window knows that it is minimised

/// What the display tells of a window.
struct DisplayEvent {
    enum class Kind { Other, Press, Activation, FocusOut };

    Kind kind = Kind::Other;
    quint32 window = 0;
};

template <typename Number> Number numberAt(const void* message, std::size_t offset)
{
    Number number = 0;
    std::memcpy(&number, static_cast<const char*>(message) + offset, sizeof number);
    return number;
}

/// A window manager's request to take the focus or to close: of all messages to a window it
/// alone says nothing after what it wants and the time.
bool isRequest(const void* message)
{
    const auto word = [&](std::size_t index) {
        return numberAt<quint32>(message, 12 + 4 * index);
    };
    return word(1) != 0 && word(2) == 0 && word(3) == 0 && word(4) == 0;
}

/// By the X11 protocol: the window stands at another place in each kind of event.
DisplayEvent read(const void* message)
{
    constexpr quint8 KeyPress = 2;
    constexpr quint8 ButtonPress = 4;
    constexpr quint8 FocusIn = 9;
    constexpr quint8 FocusOut = 10;
    constexpr quint8 Message = 33;
    constexpr quint8 OfAnExtension = 35;
    using Kind = DisplayEvent::Kind;
    switch (numberAt<quint8>(message, 0) & 0x7F) {
    case KeyPress:
    case ButtonPress:
        return {Kind::Press, numberAt<quint32>(message, 12)};
    case FocusIn:
        return {Kind::Activation, numberAt<quint32>(message, 4)};
    case FocusOut:
        return {Kind::FocusOut, numberAt<quint32>(message, 4)};
    case Message:
        if (isRequest(message))
            return {Kind::Activation, numberAt<quint32>(message, 4)};
        break;
    case OfAnExtension: // the mouse's buttons have the same number in theirs
        if (numberAt<quint16>(message, 8) == ButtonPress)
            return {Kind::Press, numberAt<quint32>(message, 24)};
        break;
    default:
        break;
    }
    return {};
}

QWindow* windowOf(quint32 id)
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
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        qApp->installNativeEventFilter(this);
}

bool BlockedWindows::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    QWidget* blocking = QApplication::activeModalWidget();
    if (blocking == nullptr || blocking->windowHandle() == nullptr)
        return false;
    const DisplayEvent event = read(message);
    QWindow* window = event.kind != DisplayEvent::Kind::Other ? windowOf(event.window) : nullptr;
    if (window == nullptr)
        return false;
    const bool isBlocked = window != blocking->windowHandle()
        && !blocking->windowHandle()->isAncestorOf(window, QWindow::IncludeTransients)
        && window->type() != Qt::Popup;
    if (event.kind == DisplayEvent::Kind::FocusOut) {
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
