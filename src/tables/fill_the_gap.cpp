#include "tables/fill_the_gap.h"

#include "core/random.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace tables {

FillTheGap::FillTheGap(core::RandomSource& random)
    : m_random(random)
{
}

void FillTheGap::NuevoHueco()
{
    const core::Int16 previousA = FactorA;
    const core::Int16 previousB = FactorB;
    do {
        FactorA = core::drawInteger(m_random, 9, 2);
        FactorB = core::drawInteger(m_random, 9, 2);
        if (FactorB < FactorA)
            std::swap(FactorA, FactorB);
    } while (FactorA == previousA || FactorB == previousB);
    Producto = FactorA * FactorB;
    Contado = false;
}

FillTheGap::Verdict FillTheGap::judge(double answer) const
{
    return answer == FactorB.value() ? Verdict::Right : Verdict::Wrong;
}

void FillTheGap::count(Verdict verdict)
{
    if (verdict == Verdict::Wrong) {
        m_counters.countWrong();
    } else if (!Contado) {
        m_counters.countRight();
        Contado = true;
    }
}

QString FillTheGap::verdictText(Verdict verdict, QStringView standing)
{
    if (verdict == Verdict::Right)
        return u"Respuesta correcta "_s;
    return (standing.isEmpty() ? QString() : u" "_s) + u"Respuesta incorrecta"_s;
}

} // namespace tables
