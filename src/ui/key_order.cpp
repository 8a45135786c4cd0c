#include "ui/key_order.h"

#include "ui/keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace ui {

namespace {

/// Whether a box has come up meanwhile, over the window that an access key was meant for.
bool isBlocked(const QObject* owner)
{
    const QWidget* modal = QApplication::activeModalWidget();
    while (owner != nullptr && !owner->isWidgetType())
        owner = owner->parent();
    return modal != nullptr && owner != nullptr
        && static_cast<const QWidget*>(owner)->window() != modal;
}

} // namespace

KeyOrder::KeyOrder(QObject* application)
    : QObject(application)
{
    application->installEventFilter(this);
}

// Of each press a window is first asked whether it overrides an access key; what is none comes
// to the window then, at once or when the reader has seen it.
bool KeyOrder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Shortcut)
        return event != m_carriedOut && postpone(watched, *event);
    if (!watched->isWindowType())
        return false;
    if (event->type() == QEvent::ShortcutOverride)
        m_presses.push_back(
            {++m_lastNumber, physicalKey(*static_cast<QKeyEvent*>(event)), {}, {}});
    else if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        arrive(*static_cast<QKeyEvent*>(event));
    return false;
}

bool KeyOrder::postpone(QObject* owner, const QEvent& shortcut)
{
    if (m_presses.size() < 2) { // its own is the only one
        m_presses.clear();
        return false;
    }
    m_presses.back().owner = owner;
    m_presses.back().shortcut.reset(shortcut.clone());
    return true;
}

void KeyOrder::arrive(const QKeyEvent& event)
{
    carryOutFirst();
    // Keys come back in order. One that the reader keeps for itself never does; an access key
    // only as a release.
    const bool released = event.type() == QEvent::KeyRelease;
    const auto found = std::find_if(m_presses.begin(), m_presses.end(), [&](const Press& press) {
        return press.key == physicalKey(event) && (press.shortcut != nullptr) == released;
    });
    if (found == m_presses.end())
        return;
    const int last = released ? found->number - 1 : found->number;
    while (!m_presses.empty() && m_presses.front().number <= last)
        takeFirst();
    // Behind what the key that has arrived does itself.
    QMetaObject::invokeMethod(this, &KeyOrder::carryOutFirst, Qt::QueuedConnection);
}

/// Carries out the access keys that no key is ahead of any more.
void KeyOrder::carryOutFirst()
{
    while (!m_presses.empty() && m_presses.front().shortcut != nullptr)
        takeFirst();
}

void KeyOrder::takeFirst()
{
    const Press press = std::move(m_presses.front());
    m_presses.pop_front(); // first: a box that it opens has keys of its own
    if (press.owner == nullptr || isBlocked(press.owner))
        return;
    m_carriedOut = press.shortcut.get();
    QCoreApplication::sendEvent(press.owner, press.shortcut.get());
}

} // namespace ui
