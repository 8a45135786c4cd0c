#pragma once

#include "core/int16.h"

#include <QString>

namespace games {

struct Gota;

/// The numbers of a game of number rain.
struct RainState {
    static constexpr int FullPoints = 100;
    static constexpr int FullLives = 3;

    core::Int16 Puntos = FullPoints; ///< of the current phase
    core::Int16 PuntosTotales; ///< kept from the phases passed in this game
    core::Int16 Vidas = FullLives;
    core::Int16 Lanzados; ///< numbers launched in the current phase; read by nothing: meant
    core::Int16 Aciertos; ///< right clicks since the screen was made, whatever the game: meant
    core::Int16 PenaEscape; ///< for a right number that escapes, each step of its speed class
    core::Int16 PenaError; ///< for a wrong number that is clicked, likewise
};

/// Points and lives: what each number brings or costs, and how both are shown, which differs
/// from moment to moment.
class RainScore {
public:
    static constexpr int HitsToPass = 15; ///< in the first phase; one in any later: see Aciertos

    const RainState& state() const { return m_state; }
    QString pointsText() const { return m_pointsText; }
    QString livesText() const { return m_livesText; }

    void setPenalties(core::Int16 escape, core::Int16 error);

    // What became of a number. They return the points that it brought, below 0 when it cost some,
    // and throw core::OverflowError, with nothing changed, when the points leave 16 bits.

    core::Int16 hit(const Gota& gota);
    core::Int16 miss(const Gota& gota);
    core::Int16 escape(const Gota& gota, bool target);

    /// Whether the hits are enough; the points are then counted into the total.
    bool isPhasePassed() const { return m_state.Aciertos >= HitsToPass; }

    void countLaunch() { ++m_state.Lanzados; }

    /// Takes a life, and gives the points of a phase back. Says whether there is a life left.
    bool loseLife();

    void beginGame();
    void repeatPhase();
    void beginNextPhase();

    /// Shows the points as a bare number.
    void showPoints();

private:
    void refill();
    void showFullPoints();
    void showLives();

    RainState m_state;
    QString m_pointsText;
    QString m_livesText;
};

} // namespace games
