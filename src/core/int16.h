#pragma once

#include <cstdint>
#include <limits>

#include <compare> // behind the others: the toolkit's moc cannot read it first

namespace core {

/// A whole number of 16 bits, -32768 to 32767, as counters, scores and settings are. Making
/// one out of a larger value, or any arithmetic that leaves the range, throws OverflowError;
/// dividing by zero throws DivisionByZeroError. Division cuts towards zero.
class Int16 {
public:
    static constexpr int Min = std::numeric_limits<std::int16_t>::min();
    static constexpr int Max = std::numeric_limits<std::int16_t>::max();

    constexpr Int16() = default;
    constexpr Int16(int value)
        : m_value(checked(value))
    {
    }

    constexpr int value() const { return m_value; }

    Int16& operator+=(Int16 other) { return *this = *this + other; }
    Int16& operator-=(Int16 other) { return *this = *this - other; }
    Int16& operator*=(Int16 other) { return *this = *this * other; }
    Int16& operator++() { return *this += 1; }
    Int16& operator--() { return *this -= 1; }
    Int16 operator-() const { return {-value()}; }

    friend constexpr Int16 operator+(Int16 a, Int16 b) { return {a.value() + b.value()}; }
    friend constexpr Int16 operator-(Int16 a, Int16 b) { return {a.value() - b.value()}; }
    friend constexpr Int16 operator*(Int16 a, Int16 b) { return {a.value() * b.value()}; }
    friend constexpr Int16 operator/(Int16 a, Int16 b)
    {
        return {a.value() / nonZero(b.value())};
    }
    friend constexpr Int16 operator%(Int16 a, Int16 b)
    {
        return {a.value() % nonZero(b.value())};
    }
    // NOLINTNEXTLINE(modernize-use-nullptr): there is no null pointer here
    friend constexpr auto operator<=>(Int16 a, Int16 b) = default;

private:
    static constexpr std::int16_t checked(int value)
    {
        if (value < Min || value > Max)
            throwOverflow(value);
        return static_cast<std::int16_t>(value);
    }
    static constexpr int nonZero(int divisor)
    {
        if (divisor == 0)
            throwDivisionByZero();
        return divisor;
    }
    [[noreturn]] static void throwOverflow(int value);
    [[noreturn]] static void throwDivisionByZero();

    std::int16_t m_value = 0;
};

} // namespace core
