#pragma once

#include "shell/exercise.h"

#include <QString>

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

    /// "3 + 5": two digits from 1 to 9.
    QString text() const;

    /// The same in words, "3 más 5", and "3 más 5 igual a 8".
    QString spokenExercise() const;
    QString spokenSolution() const;

    void newExercise();

    /// Throws core::OverflowError, with nothing changed, when a counter is full.
    shell::Verdict judge(double answer);

    /// The sum. The exercise is no longer counted.
    int showSolution();

private:
    int sum() const { return m_first.value() + m_second.value(); }

    core::RandomSource& m_random;
    core::Int16 m_first;
    core::Int16 m_second;
};
