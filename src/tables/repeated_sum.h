#pragma once

#include "core/int16.h"
#include "shell/exercise.h"

#include <QString>

namespace core {
class RandomSource;
}

namespace tables {

/// The rules of the repeated sum: a sum of equal addends is shown, and asked for as a
/// product, its factors in either order.
class RepeatedSum {
public:
    enum class Verdict { Right, Wrong };

    /// random must outlive the model and be seeded before the first exercise.
    explicit RepeatedSum(core::RandomSource& random);

    int addend() const { return Sumando.value(); } ///< 1 to 10
    int times() const { return Veces.value(); } ///< 2 to 10

    const shell::ExerciseCounters& counters() const { return m_counters; }

    /// Whether answers to the exercise are still counted.
    bool isPending() const { return Pendiente; }

    /// Whether the pupil may go on: not after a wrong answer, until the solution has been
    /// shown.
    bool canContinue() const { return m_canContinue; }

    /// Draws an exercise. It may be the same as the one before.
    void NuevaSuma();

    Verdict judge(double a, double b) const;

    /// Counts a judged answer. While the exercise is pending each wrong one is one more
    /// exercise and one more error, and the right one that follows is one more exercise.
    /// Throws core::OverflowError, with the counters unchanged, beyond 16 bits.
    void count(Verdict verdict);

    /// No answer to this exercise counts any more.
    void showSolution();

    /// The sum, five addends on the first line, which ends in CR LF when it is full.
    QString sumText() const;

    /// The solution in words: "3 por 5".
    QString solutionText() const;

private:
    core::RandomSource& m_random;
    shell::ExerciseCounters m_counters;
    core::Int16 Sumando;
    core::Int16 Veces;
    bool Pendiente = true;
    bool m_canContinue = true;
};

} // namespace tables
