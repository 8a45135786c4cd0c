#pragma once

#include "core/int16.h"

#include <array>
#include <optional>

namespace core {
class RandomSource;
}

namespace games {

class RainPhase;

/// One falling number.
struct Gota {
    static constexpr int Fastest = 5;

    core::Int16 Velocidad; ///< speed class 1 to Fastest; also colour and multiplier
    core::Int16 Espera; ///< ticks left before the next step down
    core::Int16 Direccion; ///< sideways drift: -1 left, +1 right, 0 none
    core::Int16 Deriva; ///< sideways steps left in the current drift
    core::Int16 Columna;
    core::Int16 Fila; ///< rows fallen
    core::Int16 Valor; ///< the number shown

    /// From step to step down: the fastest takes one in every tick.
    core::Int16 ticksPerStep() const { return Fastest + 1 - Velocidad; }
};

/// The numbers in the air: where they are, how they fall and drift, when a new one comes. A
/// slot holds a number or is free.
class RainFall {
public:
    static constexpr int Slots = 20;
    static constexpr int Columns = 19; ///< numbers start in 1 to this one; they may drift beyond

    /// All slots free; draws nothing. random must outlive this. A number that has fallen beyond
    /// lastRow is out of sight.
    RainFall(core::RandomSource& random, int lastRow);

    const std::array<bool, Slots>& Libre() const { return m_Libre; } ///< the slot is free
    /// The numbers; meaningful where the slot is not free.
    const std::array<Gota, Slots>& Gotas() const { return m_Gotas; }

    /// A tick begins.
    void countTick() { ++m_ticks; }

    /// Moves the number of a slot by a tick; true when it has fallen out of sight.
    bool move(int slot);

    /// Launches a number in the lowest free slot, if one is due and there is one; that slot.
    std::optional<int> launchWhenDue(const RainPhase& phase);

    void release(int slot);

    /// Frees the slots whose numbers do not last from try to try.
    void resetFirstSlots();

private:
    void drift(Gota& gota);
    void launch(int slot, const RainPhase& phase);

    core::RandomSource& m_random;
    int m_lastRow;
    int m_ticks = 0; ///< since the last launch was due
    std::array<bool, Slots> m_Libre{};
    std::array<Gota, Slots> m_Gotas;
};

} // namespace games
