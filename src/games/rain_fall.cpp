#include "games/rain_fall.h"

#include "core/defect.h"
#include "core/random.h"
#include "games/rain_phase.h"

#include <algorithm>

namespace games {

namespace {

constexpr int TicksPerLaunch = 6; // one more than the slowest number rests
constexpr int StepsOfADrift = 5; // columns, a step to the side for each row
constexpr float TargetShare = 0.6f; // of the numbers launched: more to hit than to spare
constexpr int FirstColumn = 1; // a number that drifts left turns back there
constexpr int BounceColumn = 10; // numbers launched to the right of it never bounce: meant
constexpr int SlotsReset = 10; // the ten last keep their numbers from try to try: meant

} // namespace

RainFall::RainFall(core::RandomSource& random, int lastRow)
    : m_random(random)
    , m_lastRow(lastRow)
{
    m_Libre.fill(true);
}

bool RainFall::move(int slot)
{
    Gota& gota = core::at(m_Gotas, slot);
    if (--gota.Espera > 0)
        return false;
    gota.Espera = gota.ticksPerStep();
    ++gota.Fila;
    drift(gota);
    return gota.Fila > m_lastRow;
}

void RainFall::drift(Gota& gota)
{
    if (gota.Deriva <= 0) {
        // Draws are single precision, and so is what they are compared with.
        if (static_cast<float>(gota.Velocidad.value()) / 10 > m_random.next()) {
            gota.Direccion = m_random.next() >= 0.5f ? 1 : -1;
            gota.Deriva = StepsOfADrift;
        }
        return;
    }
    if (gota.Columna == FirstColumn && gota.Direccion == -1)
        gota.Direccion = 1;
    else if (gota.Columna == BounceColumn && gota.Direccion == 1)
        gota.Direccion = -1;
    --gota.Deriva;
    gota.Columna += gota.Direccion;
}

std::optional<int> RainFall::launchWhenDue(const RainPhase& phase)
{
    if (m_ticks % TicksPerLaunch != 0)
        return {};
    m_ticks = 0;
    const auto free = std::ranges::find(m_Libre, true);
    if (free == m_Libre.end())
        return {};
    const int slot = static_cast<int>(free - m_Libre.begin());
    launch(slot, phase);
    return slot;
}

void RainFall::launch(int slot, const RainPhase& phase)
{
    Gota gota;
    gota.Columna = core::randomInteger(m_random, Columns, FirstColumn);
    gota.Velocidad = core::randomInteger(m_random, Gota::Fastest, 1);
    gota.Espera = gota.ticksPerStep();
    const auto& numbers = m_random.next() <= TargetShare ? phase.Objetivos() : phase.Otros();
    const int index = core::randomInteger(m_random, static_cast<int>(numbers.size()), 1).value();
    gota.Valor = core::at(numbers, index - 1);
    core::at(m_Gotas, slot) = gota;
    core::at(m_Libre, slot) = false;
}

void RainFall::release(int slot)
{
    core::at(m_Libre, slot) = true;
}

void RainFall::resetFirstSlots()
{
    std::fill_n(m_Libre.begin(), SlotsReset, true);
}

} // namespace games
