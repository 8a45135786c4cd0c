#pragma once

#include "ui/handler_guard.h"
#include "ui/menu_list.h"

#include <QTimer>

#include <concepts>
#include <functional>
#include <utility>

namespace ui {

/// Connects signals with the handlers of one object, each of which runs guarded; where is the
/// line that connects it. What connects by it derives from it non-publicly.
class SignalHandlers {
protected:
    /// The connections end with the owner, whose member functions the handlers are. The guard
    /// must outlive them.
    SignalHandlers(HandlerGuard& guard, QObject& owner)
        : m_guard(guard)
        , m_owner(owner)
    {
    }

    template <typename Sender, typename Signal, typename Owner, typename... Args>
    void on(Sender* sender, Signal signal, void (Owner::*handler)(Args...),
        core::SourceLine where = core::SourceLine::here())
    {
        auto* self = static_cast<Owner*>(&m_owner);
        QObject::connect(sender, signal, &m_owner, [this, self, handler, where](Args... args) {
            handle<Sender>([&] { (self->*handler)(args...); }, where);
        });
    }
    template <typename Sender, typename Signal, std::invocable Handler>
    void on(Sender* sender, Signal signal, Handler handler,
        core::SourceLine where = core::SourceLine::here())
    {
        QObject::connect(sender, signal, &m_owner, [this, where, handler = std::move(handler)] {
            handle<Sender>([&] { handler(); }, where);
        });
    }
    /// For an element of a control array: the handler receives the index.
    template <typename Sender, typename Signal, typename Owner>
    void on(Sender* sender, Signal signal, void (Owner::*handler)(int), int index,
        core::SourceLine where = core::SourceLine::here())
    {
        auto* self = static_cast<Owner*>(&m_owner);
        on(
            sender, signal, [self, handler, index] { (self->*handler)(index); }, where);
    }
    /// For every item of a menu list.
    template <typename Owner>
    void onList(const MenuList& list, void (Owner::*handler)(int),
        core::SourceLine where = core::SourceLine::here())
    {
        for (int i = 0; i < list.size(); ++i)
            on(list.at(i), &QAction::triggered, handler, i, where);
    }

private:
    template <typename Sender>
    void handle(const std::function<void()>& body, core::SourceLine where)
    {
        if constexpr (std::derived_from<Sender, QTimer>)
            m_guard.guardedTick(body, where);
        else
            m_guard.guarded(body, where);
    }

    HandlerGuard& m_guard;
    QObject& m_owner;
};

} // namespace ui
