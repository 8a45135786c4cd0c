#include "core/random.h"
#include "games/number_rain.h"

#include <algorithm>

// What a tick does: the numbers fall and drift, and a new one is launched.

namespace games {

namespace {

constexpr int TicksPerLaunch = 6;
constexpr int BounceColumn = 10; // numbers launched to the right of it never bounce

} // namespace

RainStep NumberRain::tick()
{
    if (blocked())
        return {};
    ++m_ticks;
    runTick(0);
    return take();
}

void NumberRain::runTick(int first)
{
    if (MueveNumeros(first))
        launchWhenDue();
}

// False when a box has interrupted the round; answer() takes it up again.
bool NumberRain::MueveNumeros(int first)
{
    for (int slot = first; slot < RainState::Slots; ++slot) {
        if (m_state.Libre[slot] || !fallsOut(slot))
            continue;
        CompruebaPuntos(slot, false);
        if (m_box) {
            m_escaping = slot;
            return false;
        }
        release(slot);
    }
    return true;
}

bool NumberRain::fallsOut(int slot)
{
    Gota& gota = m_state.Gotas[slot];
    if (--gota.Espera > 0)
        return false;
    gota.Espera = 6 - gota.Velocidad;
    ++gota.Fila;
    drift(gota);
    return gota.top() > m_height;
}

void NumberRain::drift(Gota& gota)
{
    if (gota.Deriva <= 0) {
        // Draws are single precision, and so is what they are compared with.
        if (static_cast<float>(gota.Velocidad.value()) / 10 > m_random.next()) {
            gota.Direccion = m_random.next() >= 0.5f ? 1 : -1;
            gota.Deriva = 5;
        }
        return;
    }
    if (gota.Columna == 1 && gota.Direccion == -1)
        gota.Direccion = 1;
    else if (gota.Columna == BounceColumn && gota.Direccion == 1)
        gota.Direccion = -1;
    --gota.Deriva;
    gota.Columna += gota.Direccion;
}

void NumberRain::launchWhenDue()
{
    if (m_ticks % TicksPerLaunch != 0)
        return;
    m_ticks = 0;
    const auto free = std::ranges::find(m_state.Libre, true);
    if (free != m_state.Libre.end())
        launch(static_cast<int>(free - m_state.Libre.begin()));
}

void NumberRain::launch(int slot)
{
    Gota gota;
    gota.Columna = core::drawInteger(m_random, 19, 1);
    gota.Velocidad = core::drawInteger(m_random, 5, 1);
    gota.Espera = 6 - gota.Velocidad;
    const auto& numbers = m_random.next() <= 0.6f ? m_state.Objetivos : m_state.Otros;
    const int index = core::drawInteger(m_random, static_cast<int>(numbers.size()), 1).value();
    gota.Valor = numbers[static_cast<std::size_t>(index - 1)];
    ++m_state.Lanzados;
    m_state.Gotas[slot] = gota;
    m_state.Libre[slot] = false;
    m_step.launched = slot;
    m_step.focus = RainFocus::CbNave;
}

} // namespace games
