#include "ui/key_handlers.h"

#include "ui/handler_guard.h"

#include <QFocusEvent>
#include <QWidget>

#include <utility>

namespace ui {

namespace {

/// Runs a callback when the watched control gets the focus and did not merely lend it.
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

/// The filter of a control, made at the first use.
KeyFilter& keyFilter(QWidget* control)
{
    for (QObject* child : control->children()) {
        if (auto* filter = dynamic_cast<KeyFilter*>(child))
            return *filter;
    }
    return *new KeyFilter(control);
}

} // namespace

KeyHandlers::KeyHandlers(HandlerGuard& guard)
    : m_guard(guard)
{
}

KeyResult KeyHandlers::guardedKey(const std::function<KeyResult()>& body, core::SourceLine where)
{
    KeyResult result = KeyResult::Swallow; // what a failed handler leaves behind
    m_guard.guarded([&] { result = body(); }, where);
    return result;
}

void KeyHandlers::onKeyDown(
    QWidget* control, KeyFilter::DownHandler handler, core::SourceLine where)
{
    keyFilter(control).down = [this, where, handler = std::move(handler)](
                                  int code, Qt::KeyboardModifiers modifiers) {
        return guardedKey([&] { return handler(code, modifiers); }, where);
    };
}

void KeyHandlers::onKeyPress(
    QWidget* control, KeyFilter::PressHandler handler, core::SourceLine where)
{
    keyFilter(control).press = [this, where, handler = std::move(handler)](QChar character) {
        return guardedKey([&] { return handler(character); }, where);
    };
}

void KeyHandlers::onKeyUp(QWidget* control, KeyFilter::UpHandler handler, core::SourceLine where)
{
    keyFilter(control).up = [this, where, handler = std::move(handler)](
                                int code, Qt::KeyboardModifiers modifiers) {
        m_guard.guarded([&] { handler(code, modifiers); }, where);
    };
}

void KeyHandlers::onEnter(QWidget* control, std::function<void()> handler, core::SourceLine where)
{
    onKeyPress(
        control,
        [handler = std::move(handler)](QChar character) {
            if (character != QChar(key::Enter))
                return KeyResult::Pass;
            handler();
            return KeyResult::Swallow;
        },
        where);
}

void KeyHandlers::onGotFocus(
    QWidget* control, std::function<void()> handler, core::SourceLine where)
{
    new FocusFilter(control,
        [this, where, handler = std::move(handler)] { m_guard.guarded(handler, where); });
}

} // namespace ui
