#include "ui/held_keys.h"

#include "ui/keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace ui {

namespace {

/// In milliseconds; no keyboard is set to repeat a key sooner.
constexpr quint64 ShortestRepeatDelay = 100;
constexpr int LongestRepeatDelay = 3000; // on a busy machine

QObject* controlWithKeyboard()
{
    if (QObject* popup = QApplication::activePopupWidget())
        return popup;
    return QGuiApplication::focusObject();
}

bool movesOrErases(const QKeyEvent& event)
{
    if (event.modifiers() & Qt::AltModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return true;
    default:
        return false;
    }
}

} // namespace

HeldKeys::HeldKeys(QObject* application)
    : QObject(application)
{
    m_altF4.setObjectName(QStringLiteral("altF4"));
    m_altF4.setInterval(LongestRepeatDelay);
    m_altF4.setSingleShot(true);
    application->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] {
        for (auto& [key, press] : m_presses)
            press.dead = true;
    });
}

// Only what comes to a window: there a key comes by once, on its way to whatever control.
bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWindowType())
        return false;
    switch (event->type()) {
    case QEvent::Close:
        if (!event->spontaneous() || closeCounts())
            return false;
        event->ignore();
        return true;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (pressCounts(*static_cast<QKeyEvent*>(event)))
            return false;
        event->accept(); // else the toolkit would look for a shortcut
        return true;
    case QEvent::KeyRelease:
        return !releaseCounts(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

bool HeldKeys::pressCounts(const QKeyEvent& event)
{
    const quint32 key = physicalKey(event);
    QObject* control = controlWithKeyboard();
    if (event.key() == Qt::Key_Alt)
        m_altF4.stop(); // even if it seems to repeat: its release may have gone elsewhere
    if (!isRepeat(event)) {
        m_presses[key] = {.control = control, .pressedAt = event.timestamp(), .releasedAt = {}};
        return true;
    }
    const auto found = m_presses.find(key);
    if (found == m_presses.end())
        return false;
    Press& press = found->second;
    press.down = true;
    return !press.dead && press.control == control && movesOrErases(event);
}

bool HeldKeys::releaseCounts(const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return false;
    const auto [found, isUnknown] = m_presses.try_emplace(physicalKey(event));
    Press& press = found->second;
    const bool wasDown = std::exchange(press.down, false) && !isUnknown;
    const bool isFirst = !std::exchange(press.releasedAt, event.timestamp());
    return wasDown && isFirst && !press.dead;
}

// A window manager that takes Alt+F4 for itself asks for the next window while F4 repeats. On
// Windows it comes to the program, whose keys these are then.
bool HeldKeys::closeCounts()
{
    const bool isHeld = m_altF4.isActive();
    const bool isAltDown = QGuiApplication::queryKeyboardModifiers() & Qt::AltModifier;
    if (!isAltDown || QGuiApplication::platformName() == u"windows") {
        m_altF4.stop();
        return true;
    }
    m_altF4.start();
    return !isHeld;
}

// X11 repeats a key as a release and a press of the same time. When the toolkit reads the
// release before the press has come, it takes both for real.
bool HeldKeys::isRepeat(const QKeyEvent& event) const
{
    if (event.isAutoRepeat())
        return true;
    const auto found = m_presses.find(physicalKey(event));
    return found != m_presses.end() && found->second.releasedAt == event.timestamp()
        && event.timestamp() >= found->second.pressedAt + ShortestRepeatDelay;
}

} // namespace ui
