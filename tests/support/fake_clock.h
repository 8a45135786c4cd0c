#pragma once

#include "core/clock.h"

#include <chrono>
#include <deque>

/// A clock that stands at a time, or gives scripted readings one after the other. Time passes
/// only by being looked at.
class FakeClock final : public core::Clock {
public:
    explicit FakeClock(QTime time = QTime(10, 20, 30, 500))
        : now(time)
    {
    }

    QTime timeOfDay() const override
    {
        if (readings.empty())
            return now;
        const QTime reading = readings.front();
        readings.pop_front();
        return reading;
    }

    std::chrono::milliseconds elapsed() const override
    {
        passed += passingWithEachLook;
        return passed;
    }

    QTime now;
    mutable std::deque<QTime> readings; ///< given first, in order
    mutable std::chrono::milliseconds passed{0};
    std::chrono::milliseconds passingWithEachLook = std::chrono::seconds(1);
};
