#include "shell/exercise.h"

using namespace Qt::StringLiterals;

namespace shell {

void ExerciseCounters::countRight()
{
    ++Ejercicios;
}

void ExerciseCounters::countWrong()
{
    const core::Int16 errors = Errores + 1; // both can fail before either changes
    ++Ejercicios;
    Errores = errors;
}

QString ExerciseCounters::FormatoAlineado() const
{
    return u"Ejercicios:%1; Errores:%2"_s.arg(Ejercicios.value(), 3).arg(Errores.value(), 3);
}

QString ExerciseCounters::FormatoSimple() const
{
    return u"Ejercicios: %1 Errores: %2"_s.arg(Ejercicios.value()).arg(Errores.value());
}

void Exercise::countWhilePending(Verdict verdict)
{
    if (Pendiente)
        countEveryWrong(verdict);
}

void Exercise::countEveryWrong(Verdict verdict)
{
    if (verdict == Verdict::Wrong) {
        m_counters.countWrong();
    } else if (verdict == Verdict::Right && Pendiente) {
        m_counters.countRight();
        Pendiente = false;
    }
}

} // namespace shell
