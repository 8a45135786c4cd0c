#pragma once

#include "shell/exercise.h"

namespace core {
class RandomSource;
}

namespace tables {

/// The rules of the gap: a product is shown without its second factor, which is asked for.
class FillTheGap : public shell::Exercise {
public:
    /// The missing factor, read as a number.
    using Answer = double;

    /// random must outlive the model and be seeded before the first exercise.
    explicit FillTheGap(core::RandomSource& random);

    int shownFactor() const { return FactorA.value(); } ///< 2 to 10
    int hiddenFactor() const { return FactorB.value(); } ///< from the shown one to 10
    int product() const { return Producto.value(); }

    /// Whether a right answer to the exercise has been counted.
    bool Contado() const { return !isPending(); }

    /// Draws an exercise that has neither factor in the place where the last one had it.
    void newExercise();

    /// Judges and counts: the first right answer to each exercise, and every wrong one. Full
    /// counters stay as they are, silently.
    shell::Verdict judge(double answer);

    /// The missing factor. A right answer to it still counts: meant.
    int showSolution() const { return hiddenFactor(); }

    /// In words: "hueco: 6 por … igual a 42", and "6 por 7 igual a 42".
    QString spokenExercise() const;
    QString spokenSolution() const;

private:
    core::RandomSource& m_random;
    core::Int16 FactorA;
    core::Int16 FactorB;
    core::Int16 Producto;
};

} // namespace tables
