#pragma once

#include "support/fake_clock.h"
#include "ui/handler_guard.h"

#include <QStringList>
#include <QWidget>

/// A window without a screen whose handlers are guarded; keeps what it is told.
class BareGuard : public QWidget, public ui::HandlerGuard {
public:
    BareGuard()
        : HandlerGuard(static_cast<QWidget&>(*this), clock)
    {
    }

    using HandlerGuard::isRunning;
    using HandlerGuard::run;
    using HandlerGuard::shut;

    FakeClock clock;
    QStringList reports;
    std::function<void()> whenReporting;
    std::function<bool()> whenFinishing;
    int ended = 0; ///< how often the last handler has ended behind the shut guard

protected:
    void report(const QString& text) override
    {
        reports << text;
        if (whenReporting)
            whenReporting();
    }
    bool finishHandlers() override { return whenFinishing && whenFinishing(); }
    void handlersEnded() override { ++ended; }
};
