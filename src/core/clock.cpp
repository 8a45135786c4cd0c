#include "core/clock.h"

#include "core/random.h"

namespace core {

std::chrono::milliseconds SystemClock::elapsed() const
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now);
}

void seedByClock(RandomSource& random, const Clock& clock)
{
    const double seconds = clock.timeOfDay().second();
    const double minutes = clock.timeOfDay().minute();
    const double hours = clock.timeOfDay().hour();
    random.seed((seconds + 1) * (minutes + 1) * (hours + 1));
}

void seedBySecondsTwice(RandomSource& random, const Clock& clock)
{
    const double seconds = clock.timeOfDay().second();
    const double minutes = clock.timeOfDay().minute();
    const double secondsAgain = clock.timeOfDay().second();
    random.seed((seconds + 1) * (minutes + 1) * (secondsAgain + 1));
}

void seedBySecondsOfDay(RandomSource& random, const Clock& clock)
{
    random.seed(clock.timeOfDay().msecsSinceStartOfDay() / 1000.0);
}

} // namespace core
