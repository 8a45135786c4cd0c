#pragma once

#include "core/int16.h"

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

} // namespace shell
