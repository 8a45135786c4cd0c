#include "ui/screen.h"

#include <QFocusEvent>

#include <utility>

// How a screen hears of keys and of the focus.

namespace ui {

namespace {

/// Runs a callback when the watched control gets the focus. Getting it back from a box, a
/// menu or another program is no news: the control had it all the time as far as its screen
/// is concerned.
class FocusFilter final : public QObject {
public:
    FocusFilter(QObject* control, std::function<void()> handler)
        : QObject(control)
        , m_handler(std::move(handler))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut)
            m_lent = isLoan(event);
        else if (event->type() == QEvent::FocusIn
            && !(std::exchange(m_lent, false) && isLoan(event)))
            m_handler();
        return QObject::eventFilter(watched, event);
    }

private:
    static bool isLoan(const QEvent* event)
    {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason
            || reason == Qt::MenuBarFocusReason;
    }

    std::function<void()> m_handler;
    bool m_lent = false;
};

} // namespace

KeyFilter* Screen::keyFilter(QWidget* control)
{
    KeyFilter*& filter = m_keyFilters[control];
    if (filter == nullptr) {
        filter = new KeyFilter(control);
        if (control != this) // the screen's own map is gone before it says that it is
            connect(control, &QObject::destroyed, this,
                [this, control] { m_keyFilters.erase(control); });
    }
    return filter;
}

KeyResult Screen::guardedKey(const std::function<KeyResult()>& body)
{
    KeyResult result = KeyResult::Swallow; // what a failed handler leaves behind
    guarded([&] { result = body(); });
    return result;
}

void Screen::onKeyDown(QWidget* control, KeyFilter::DownHandler handler)
{
    keyFilter(control)->down = [this, handler = std::move(handler)](
                                   int code, Qt::KeyboardModifiers modifiers) {
        return guardedKey([&] { return handler(code, modifiers); });
    };
}

void Screen::onKeyPress(QWidget* control, KeyFilter::PressHandler handler)
{
    keyFilter(control)->press = [this, handler = std::move(handler)](QChar character) {
        return guardedKey([&] { return handler(character); });
    };
}

void Screen::onKeyUp(QWidget* control, KeyFilter::UpHandler handler)
{
    keyFilter(control)->up = [this, handler = std::move(handler)](
                                 int code, Qt::KeyboardModifiers modifiers) {
        guarded([&] { handler(code, modifiers); });
    };
}

void Screen::onEnter(QWidget* control, std::function<void()> handler)
{
    onKeyPress(control, [handler = std::move(handler)](QChar character) {
        if (character != QChar(key::Enter))
            return KeyResult::Pass;
        handler();
        return KeyResult::Swallow;
    });
}

void Screen::onGotFocus(QWidget* control, std::function<void()> handler)
{
    new FocusFilter(control, [this, handler = std::move(handler)] { guarded(handler); });
}

} // namespace ui
