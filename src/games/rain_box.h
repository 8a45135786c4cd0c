#pragma once

#include "games/rain_score.h"

#include <QString>

namespace games {

/// A message box that interrupts the rain until it is answered.
struct RainBox {
    enum class Kind { PhasePassed, LifeLost, GameOver };
    Kind kind; ///< GameOver is a question (yes or no), the others are reports
    QString title;
    QString text;

    static RainBox phasePassed(core::Int16 phase, const RainState& state);
    /// For clicking wrong numbers (porError), or for letting right ones escape.
    static RainBox lifeLost(bool porError);
    static RainBox gameOver(const RainState& state);
};

} // namespace games
