#pragma once

#include "core/int16.h"
#include "shell/exercise.h"

#include <QString>

namespace core {
class RandomSource;
}

namespace tables {

/// The rules of the gap: a product is shown without its second factor, which is asked for.
class FillTheGap {
public:
    enum class Verdict { Right, Wrong };

    /// random must outlive the model and be seeded before the first exercise.
    explicit FillTheGap(core::RandomSource& random);

    int shownFactor() const { return FactorA.value(); } ///< 2 to 10
    int hiddenFactor() const { return FactorB.value(); } ///< from the shown one to 10
    int product() const { return Producto.value(); }

    const shell::ExerciseCounters& counters() const { return m_counters; }

    /// Whether a right answer to the exercise has been counted.
    bool isCounted() const { return Contado; }

    /// Draws an exercise that has neither factor in the place where the last one had it.
    void NuevoHueco();

    Verdict judge(double answer) const;

    /// Counts a judged answer: the first right one to each exercise, and every wrong one.
    /// Throws core::OverflowError, with the counters unchanged, beyond 16 bits.
    void count(Verdict verdict);

    /// The verdict as it is written over the standing one: a wrong one gets a blank in
    /// front while there is one, so that the pupil sees that something happened.
    static QString verdictText(Verdict verdict, QStringView standing);

private:
    core::RandomSource& m_random;
    shell::ExerciseCounters m_counters;
    core::Int16 FactorA;
    core::Int16 FactorB;
    core::Int16 Producto;
    bool Contado = false;
};

} // namespace tables
