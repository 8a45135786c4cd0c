#pragma once

#include "core/int16.h"

#include <cstdint>
#include <random>

namespace core {

/// Where every draw comes from. A screen seeds it once, when it loads.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    /// Starts the sequence that belongs to this seed.
    virtual void seed(double value) = 0;

    /// The next draw, 0 <= r < 1.
    virtual float next() = 0;
};

/// The draw that 32 random bits stand for: 0 <= r < 1, never 1 for the highest of them.
float fractionOf(std::uint32_t bits);

/// A uniform generator: the same seed gives the same draws on every system.
class SeededRandom final : public RandomSource {
public:
    void seed(double value) override;
    float next() override;

private:
    std::mt19937 m_engine;
};

/// floor(r × count) + first with a fresh draw r: one of the count values from first, each
/// with equal chance.
Int16 randomInteger(RandomSource& random, int count, int first);

} // namespace core
