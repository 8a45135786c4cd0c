#include "games/number_rain.h"

#include <algorithm>

using core::Int16;
using namespace Qt::StringLiterals;

// How a game and its phases begin.

namespace games {

namespace {

constexpr int SlotsReset = 10; // the ten last keep their numbers from try to try

} // namespace

void NumberRain::PreparaFase(Int16 fase)
{
    const bool byParity = fase <= 2;
    const Int16 last = byParity ? Int16(20) : 10 * fase;
    const Int16 divisor = byParity ? Int16(2) : fase;
    const Int16 remainder = fase == 1 ? 1 : 0;
    m_state.Fase = fase;
    m_state.Objetivos.clear();
    m_state.Otros.clear();
    for (int v = 1; v <= last.value(); ++v)
        (v % divisor == remainder ? m_state.Objetivos : m_state.Otros).push_back(v);

    m_caption = u"Lluvia de números - Fase %1"_s.arg(fase.value());
    if (fase == 1)
        m_instruction = u"Elimina los  números impares. "
                        "Selecciona la dificultad antes de empezar."_s;
    else if (fase == 2)
        m_instruction = u"Elimina todos los números pares"_s;
    else
        m_instruction = u"Elimina todos los múltiplos de %1"_s.arg(fase.value());
    m_step.phasePrepared = true;
}

void NumberRain::newGame()
{
    PreparaFase(1);
    m_state.Puntos = RainState::FullPoints;
    m_state.PuntosTotales = 0;
    m_state.Vidas = RainState::FullLives;
    m_state.Lanzados = 0;
    showFullPoints();
    showLives();
    resetFirstSlots();
    wait();
}

void NumberRain::repeatPhase()
{
    m_state.Puntos = RainState::FullPoints;
    resetFirstSlots();
    m_state.Lanzados = 0;
    wait();
    showPoints();
}

void NumberRain::nextPhase()
{
    PreparaFase(m_state.Fase + 1);
    m_state.Puntos = RainState::FullPoints;
    resetFirstSlots();
    m_state.Lanzados = 0;
    showFullPoints();
    m_livesText = u"Vidas: %1"_s.arg(m_state.Vidas.value()); // no blank before this colon
    wait();
}

void NumberRain::wait()
{
    m_running = false;
    m_waiting = true;
    m_step.focus = RainFocus::CbEmpezar;
}

void NumberRain::resetFirstSlots()
{
    std::fill_n(m_state.Libre.begin(), SlotsReset, true);
}

void NumberRain::showFullPoints()
{
    m_pointsText = u"%1 puntos"_s.arg(RainState::FullPoints);
}

} // namespace games
