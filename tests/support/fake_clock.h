#pragma once

#include "core/clock.h"

#include <deque>

/// A clock that stands at a time, or gives scripted readings one after the other.
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

    QTime now;
    mutable std::deque<QTime> readings; ///< given first, in order
};
