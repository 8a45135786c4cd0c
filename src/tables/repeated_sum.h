#pragma once

#include "shell/exercise.h"

#include <QString>

namespace core {
class RandomSource;
}

namespace tables {

/// The rules of the repeated sum: a sum of equal addends is shown, and asked for as a
/// product, its factors in either order.
class RepeatedSum : public shell::Exercise {
public:
    /// The two factors, read as numbers.
    struct Answer {
        double first = 0;
        double second = 0;
    };

    /// random must outlive the model and be seeded before the first exercise.
    explicit RepeatedSum(core::RandomSource& random);

    int addend() const { return Sumando.value(); } ///< 1 to 10
    int times() const { return Veces.value(); } ///< 2 to 10

    /// Whether the pupil may go on: not after a wrong answer, until the solution has been
    /// shown.
    bool canContinue() const { return m_canContinue; }

    /// Draws an exercise. It may be the same as the one before.
    void newExercise();

    /// Judges and counts. Full counters stay as they are, silently.
    shell::Verdict judge(const Answer& answer);

    /// No answer to this exercise counts any more; the verdict line says the solution.
    void showSolution();

    /// The sum, five addends on the first line, which ends in CR LF when it is full.
    QString sumText() const;

private:
    bool isRight(const Answer& answer) const;

    core::RandomSource& m_random;
    core::Int16 Sumando;
    core::Int16 Veces;
    bool m_canContinue = true;
};

} // namespace tables
