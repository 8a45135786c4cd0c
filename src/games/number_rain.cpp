#include "games/number_rain.h"

#include <algorithm>
#include <utility>

using core::Int16;
using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr int HitsToPass = 15;

struct Setting {
    int interval; // ms
    int penaEscape;
    int penaError;
};

constexpr std::array Settings{Setting{800, 5, 1}, Setting{500, 5, 10}, Setting{300, 40, 10}};

const Setting& settingOf(Difficulty difficulty)
{
    return Settings[static_cast<std::size_t>(difficulty)];
}

} // namespace

NumberRain::NumberRain(core::RandomSource& random, int height)
    : m_random(random)
    , m_height(height)
{
    m_state.Libre.fill(true);
    chooseDifficulty(Difficulty::Facil);
}

int NumberRain::interval() const
{
    return settingOf(m_difficulty).interval;
}

RainStep NumberRain::take()
{
    return std::exchange(m_step, {});
}

RainStep NumberRain::chooseDifficulty(Difficulty difficulty)
{
    if (blocked())
        return {};
    m_difficulty = difficulty;
    m_state.PenaEscape = settingOf(difficulty).penaEscape;
    m_state.PenaError = settingOf(difficulty).penaError;
    newGame();
    return take();
}

RainStep NumberRain::start()
{
    if (blocked())
        return {};
    m_waiting = false;
    m_running = true;
    return take();
}

void NumberRain::enableClock()
{
    if (!blocked())
        m_running = true;
}

RainStep NumberRain::click(int slot)
{
    if (blocked() || slot < 0 || slot >= RainState::Slots || m_state.Libre[slot])
        return {};
    const Gota& gota = m_state.Gotas[slot];
    if (!EsObjetivo(gota.Valor))
        m_state.Puntos -= m_state.PenaError * gota.Velocidad;
    else if (hit(gota))
        return take();
    if (m_state.Puntos > 0) {
        showPoints();
        m_step.focus = RainFocus::PbFoco;
        release(slot);
    } else {
        CompruebaPuntos(slot, true);
    }
    return take();
}

bool NumberRain::hit(const Gota& gota)
{
    // Every sum before the first change: one that overflows leaves the game as it was.
    const Int16 points = m_state.Puntos + 10 * gota.Velocidad;
    const Int16 hits = m_state.Aciertos + 1;
    const bool passed = hits >= HitsToPass;
    const Int16 total = passed ? m_state.PuntosTotales + points : m_state.PuntosTotales;
    m_state.Puntos = points;
    m_state.Aciertos = hits;
    if (passed)
        FaseSuperada(total);
    return passed;
}

bool NumberRain::EsObjetivo(Int16 number) const
{
    return std::ranges::find(m_state.Objetivos, number) != m_state.Objetivos.end();
}

void NumberRain::CompruebaPuntos(int slot, bool porError)
{
    const Gota& gota = m_state.Gotas[slot];
    if (!porError && EsObjetivo(gota.Valor)) {
        m_state.Puntos -= m_state.PenaEscape * gota.Velocidad;
        ++m_step.beeps;
    }
    if (m_state.Puntos >= 0)
        showPoints();
    else
        loseLife(porError);
}

void NumberRain::loseLife(bool porError)
{
    m_state.Puntos = RainState::FullPoints;
    --m_state.Vidas;
    m_running = false;
    if (m_state.Vidas < 1) {
        ask(RainBox::Kind::GameOver, u"GAME OVER"_s,
            u"En esta partida has conseguido %1 puntos. \n¿Deseas volver a jugar?"_s.arg(
                m_state.PuntosTotales.value()));
        return;
    }
    showLives();
    ask(RainBox::Kind::LifeLost, u"Lluvia de números"_s,
        porError ? u"Has cometido demasiados errores y pierdes una vida. "
                   "Deberás volver a empezar esta fase."_s
                 : u"Has dejado escapar demasiados números y pierdes una vida. "
                   "Deberás volver a empezar esta fase."_s);
}

void NumberRain::FaseSuperada(Int16 total)
{
    m_state.PuntosTotales = total;
    m_running = false;
    ask(RainBox::Kind::PhasePassed, u"FASE SUPERADA"_s,
        u"Ha superado la fase %1.\nEn esta fase ha conseguido %2 puntos y en total lleva %3 "
        "puntos acumulados."_s.arg(m_state.Fase.value())
            .arg(m_state.Puntos.value())
            .arg(m_state.PuntosTotales.value()));
}

void NumberRain::ask(RainBox::Kind kind, const QString& title, const QString& text)
{
    m_box = kind;
    m_step.box = RainBox{kind, title, text};
}

RainStep NumberRain::answer(bool yes)
{
    if (!m_box)
        return {};
    const RainBox::Kind box = *std::exchange(m_box, {});
    const std::optional<int> escaping = std::exchange(m_escaping, {});
    if (box == RainBox::Kind::GameOver && !yes) {
        m_over = true;
        return {};
    }
    switch (box) {
    case RainBox::Kind::PhasePassed:
        nextPhase();
        break;
    case RainBox::Kind::LifeLost:
        repeatPhase();
        break;
    case RainBox::Kind::GameOver:
        newGame();
        showPoints();
        break;
    }
    if (escaping) {
        release(*escaping);
        runTick(*escaping + 1);
    }
    return take();
}

void NumberRain::release(int slot)
{
    m_state.Libre[slot] = true;
}

void NumberRain::showPoints()
{
    m_pointsText = QString::number(m_state.Puntos.value());
}

void NumberRain::showLives()
{
    m_livesText = u"Vidas : %1"_s.arg(m_state.Vidas.value());
}

} // namespace games
