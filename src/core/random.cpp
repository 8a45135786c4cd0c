#include "core/random.h"

#include <bit>
#include <cmath>

namespace core {

void SeededRandom::seed(double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    m_engine.seed(static_cast<std::uint32_t>(bits ^ (bits >> 32)));
}

float fractionOf(std::uint32_t bits)
{
    // 24 bits are what a single-precision fraction holds: more would round up to 1.0.
    return static_cast<float>(bits >> 8) * 0x1p-24f;
}

float SeededRandom::next()
{
    return fractionOf(static_cast<std::uint32_t>(m_engine()));
}

Int16 randomInteger(RandomSource& random, int count, int first)
{
    // In double: the single-precision product could round up to count.
    const double r = random.next();
    return {static_cast<int>(std::floor(r * count)) + first};
}

} // namespace core
