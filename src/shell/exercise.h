#pragma once

#include "core/int16.h"
#include "shell/verdict.h"

#include <QString>

namespace shell {

/// The counters of a drill, from 0 when its screen loads. Counting past 32767 throws
/// core::OverflowError and changes neither.
struct ExerciseCounters {
    core::Int16 Ejercicios;
    core::Int16 Errores;

    /// Counts an exercise solved.
    void countRight();
    /// Counts an exercise and an error.
    void countWrong();

    /// "Ejercicios:  0; Errores:  0": each number right-aligned in three places, a longer
    /// one without padding.
    QString FormatoAlineado() const;
    /// "Ejercicios: 0 Errores: 0"
    QString FormatoSimple() const;
};

/// What the models of the drills share: the counters, whether the exercise is still to be
/// counted, and the verdict line. The rules of counting differ, and each drill uses one.
class Exercise {
public:
    const ExerciseCounters& counters() const { return m_counters; }

    /// Whether the exercise is still to be counted.
    bool isPending() const { return Pendiente; }

    /// What the verdict line shows.
    const VerdictLine& verdict() const { return m_verdict; }

protected:
    ~Exercise() = default;

    /// While the exercise is pending each wrong answer is one more exercise and one more
    /// error; the right one is one more exercise and ends the counting. Throws
    /// core::OverflowError, with nothing changed, when a counter is full.
    void countWhilePending(Verdict verdict);

    /// Each wrong answer is one more exercise and one more error, whenever it comes; the
    /// first right one is one more exercise. Throws as above.
    void countEveryWrong(Verdict verdict);

    ExerciseCounters m_counters;
    bool Pendiente = true;
    VerdictLine m_verdict;
};

} // namespace shell
