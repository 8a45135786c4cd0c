#include "games/rain_score.h"

#include "games/rain_fall.h"

using core::Int16;
using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr int HitPoints = 10; // for each step of the number's speed class

} // namespace

void RainScore::setPenalties(Int16 escape, Int16 error)
{
    m_state.PenaEscape = escape;
    m_state.PenaError = error;
}

Int16 RainScore::hit(const Gota& gota)
{
    // Every sum before the first change: one that overflows leaves the game as it was.
    const Int16 won = HitPoints * gota.Velocidad;
    const Int16 points = m_state.Puntos + won;
    const Int16 hits = m_state.Aciertos + 1;
    const bool passed = hits >= HitsToPass;
    const Int16 total = passed ? m_state.PuntosTotales + points : m_state.PuntosTotales;
    m_state.Puntos = points;
    m_state.Aciertos = hits;
    m_state.PuntosTotales = total;
    return won;
}

Int16 RainScore::miss(const Gota& gota)
{
    const Int16 lost = m_state.PenaError * gota.Velocidad;
    m_state.Puntos -= lost;
    return -lost;
}

Int16 RainScore::escape(const Gota& gota, bool target)
{
    const Int16 lost = target ? m_state.PenaEscape * gota.Velocidad : Int16(0);
    m_state.Puntos -= lost;
    return -lost;
}

bool RainScore::loseLife()
{
    m_state.Puntos = RainState::FullPoints;
    --m_state.Vidas;
    if (m_state.Vidas < 1)
        return false;
    showLives();
    return true;
}

void RainScore::beginGame()
{
    refill();
    m_state.PuntosTotales = 0;
    m_state.Vidas = RainState::FullLives;
    showFullPoints();
    showLives();
}

void RainScore::repeatPhase()
{
    refill();
    showPoints();
}

void RainScore::beginNextPhase()
{
    refill();
    showFullPoints();
    m_livesText = u"Vidas: %1"_s.arg(m_state.Vidas.value()); // no blank before this colon: meant
}

void RainScore::refill()
{
    m_state.Puntos = RainState::FullPoints;
    m_state.Lanzados = 0;
}

void RainScore::showFullPoints()
{
    m_pointsText = u"%1 puntos"_s.arg(RainState::FullPoints);
}

void RainScore::showPoints()
{
    m_pointsText = QString::number(m_state.Puntos.value());
}

void RainScore::showLives()
{
    // The blank before the colon is meant.
    m_livesText = u"Vidas : %1"_s.arg(m_state.Vidas.value());
}

} // namespace games
