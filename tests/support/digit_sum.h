#pragma once

#include "shell/exercise.h"

namespace core {
class RandomSource;
}

/// The shape of an activity at its smallest, to copy from: the sum of two digits.
class DigitSum : public shell::Exercise {
public:
    /// The sum, read as a number.
    using Answer = double;

    /// random must outlive the model.
    explicit DigitSum(core::RandomSource& random);

    int first() const { return m_first.value(); } ///< 1 to 9
    int second() const { return m_second.value(); } ///< 1 to 9

    void newExercise();

    /// Throws core::OverflowError, with nothing changed, when a counter is full.
    shell::Verdict judge(double answer);

    /// The sum. The exercise is no longer counted.
    int showSolution();

private:
    int sum() const { return first() + second(); }

    core::RandomSource& m_random;
    core::Int16 m_first;
    core::Int16 m_second;
};
