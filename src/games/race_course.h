#pragma once

#include "core/int16.h"
#include "games/race.h"

namespace games {

/// Where the cars stand on the road while the rules count their steps: the left edges, in twips
/// on it, from the start at the right to the finish at 0.
class RaceCourse {
public:
    static constexpr int StartLeft = 9500; ///< of both cars before their first step

    double playerLeft(int steps) const { return left(SalidaJugador, Race::StepsToWin, steps); }
    double rivalLeft(int steps) const { return left(SalidaRival, Race::RivalStepsToWin, steps); }

private:
    static double left(core::Int16 way, int stepsToWin, int steps)
    {
        return StartLeft - static_cast<double>(way.value()) / stepsToWin * steps;
    }

    // What the steps to the finish share out; never another: meant.
    core::Int16 SalidaJugador = StartLeft;
    core::Int16 SalidaRival = StartLeft;
};

} // namespace games
