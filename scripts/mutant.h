// Included before a model that mutate.py has filled with switches: MUTANT in the environment
// names the one that is on. Between two operands, Op<n>() stands behind their operator, with the
// rank of that, and does the other operator's work when it is on; the third one's when n + 1 is.
#pragma once

#include <cstdlib>
#include <type_traits>
#include <utility>

namespace mutant {

inline int chosen()
{
    static const int number = [] {
        const char* text = std::getenv("MUTANT");
        return text == nullptr ? 0 : std::atoi(text);
    }();
    return number;
}

/// False in what the compiler computes: there nothing can be switched.
constexpr bool on(int number)
{
    return !std::is_constant_evaluated() && chosen() == number;
}

template <int Number> struct Op {
};

template <int Number, typename T> struct Half {
    T&& left;
};

// Where one of the other operators does not exist, there is no switch.
#define MUTANT_OTHERS(sign, other, third)                                                        \
    template <typename T, int Number>                                                            \
    constexpr Half<Number, T> operator sign(T&& left, Op<Number>)                                \
    {                                                                                            \
        return {std::forward<T>(left)};                                                          \
    }                                                                                            \
    template <int Number, typename T, typename U>                                                \
    constexpr auto operator sign(Half<Number, T> half, U&& right)                                \
        ->decltype(std::declval<T>() other std::declval<U>(),                                    \
            std::declval<T>() sign std::declval<U>())                                            \
    {                                                                                            \
        if (on(Number))                                                                          \
            return std::forward<T>(half.left) other std::forward<U>(right);                      \
        if (on(Number + 1))                                                                      \
            return std::forward<T>(half.left) third std::forward<U>(right);                      \
        return std::forward<T>(half.left) sign std::forward<U>(right);                           \
    }
#define MUTANT_OTHER(sign, other) MUTANT_OTHERS(sign, other, sign)

MUTANT_OTHER(+, -)
MUTANT_OTHER(-, +)
MUTANT_OTHER(*, /)
MUTANT_OTHER(/, *)
MUTANT_OTHER(%, *)
MUTANT_OTHER(==, !=)
MUTANT_OTHER(!=, ==)
MUTANT_OTHERS(<, <=, >=)
MUTANT_OTHERS(<=, <, >)
MUTANT_OTHERS(>, >=, <=)
MUTANT_OTHERS(>=, >, <)

#undef MUTANT_OTHER
#undef MUTANT_OTHERS

} // namespace mutant
