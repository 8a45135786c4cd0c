#pragma once

#include <QTime>

#include <chrono>

namespace core {

class RandomSource;

/// The time of day, and the time that passes.
class Clock {
public:
    virtual ~Clock() = default;

    /// The local time of day now, to the millisecond.
    virtual QTime timeOfDay() const = 0;

    /// The time since some moment, passing steadily whatever the time of day is set to.
    virtual std::chrono::milliseconds elapsed() const = 0;
};

class SystemClock final : public Clock {
public:
    QTime timeOfDay() const override { return QTime::currentTime(); }
    std::chrono::milliseconds elapsed() const override;
};

/// Seeds with (seconds + 1) × (minutes + 1) × (hours + 1), each read separately, in that
/// order.
void seedByClock(RandomSource& random, const Clock& clock);

/// Seeds with (seconds + 1) × (minutes + 1) × (seconds + 1), each read separately, in that
/// order: the second reading of the seconds may be a later one.
void seedBySecondsTwice(RandomSource& random, const Clock& clock);

/// Seeds with the seconds since midnight, fraction included.
void seedBySecondsOfDay(RandomSource& random, const Clock& clock);

} // namespace core
