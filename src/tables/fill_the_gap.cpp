#include "tables/fill_the_gap.h"

#include "core/errors.h"
#include "core/random.h"

#include <utility>

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace tables {

FillTheGap::FillTheGap(core::RandomSource& random)
    : m_random(random)
{
}

void FillTheGap::newExercise()
{
    const core::Int16 previousA = FactorA;
    const core::Int16 previousB = FactorB;
    do {
        FactorA = core::randomInteger(m_random, 9, 2);
        FactorB = core::randomInteger(m_random, 9, 2);
        if (FactorB < FactorA)
            std::swap(FactorA, FactorB);
    } while (FactorA == previousA || FactorB == previousB);
    Producto = FactorA * FactorB;
    Pendiente = true;
    m_verdict.clear();
}

shell::Verdict FillTheGap::judge(double answer)
{
    const Verdict verdict = answer == hiddenFactor() ? Verdict::Right : Verdict::Wrong;
    if (verdict == Verdict::Right)
        m_verdict.tell(verdict, u"Respuesta correcta "_s); // the last blank is meant
    else
        m_verdict.tell(verdict, u"Respuesta incorrecta"_s, shell::Repeat::BlankInFront);
    try {
        countEveryWrong(verdict);
    } catch (const core::OverflowError&) {
        // This screen shows no box, whatever fails.
    }
    return verdict;
}

QString FillTheGap::spokenExercise() const
{
    return u"hueco: %1 por … igual a %2"_s.arg(shownFactor()).arg(product());
}

QString FillTheGap::spokenSolution() const
{
    return u"%1 por %2 igual a %3"_s.arg(shownFactor()).arg(hiddenFactor()).arg(product());
}

} // namespace tables
