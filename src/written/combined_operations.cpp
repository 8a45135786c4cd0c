#include "written/combined_operations.h"

#include "core/aloud.h"
#include "core/defect.h"
#include "core/random.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace written {

CombinedOperations::CombinedOperations(core::RandomSource& random)
    : m_random(random)
{
}

const QString& CombinedOperations::sign(Operator oper)
{
    // The times sign is a letter: meant.
    static const std::array Signos{u" + "_s, u" - "_s, u" x "_s, u" ÷ "_s};
    return core::at(Signos, oper - Plus);
}

void CombinedOperations::newExercise()
{
    for (core::Int16& number : Numeros)
        number = core::randomInteger(m_random, 8, 2);
    for (Operator& oper : OperGrupo)
        oper = static_cast<Operator>(core::randomInteger(m_random, 4, Plus).value());
    for (std::size_t group = 0; group < Groups; ++group)
        evaluate(group);
    join();
}

void CombinedOperations::evaluate(std::size_t group)
{
    core::Int16& first = Numeros.at(2 * group);
    core::Int16& second = Numeros.at(2 * group + 1);
    core::Int16& value = ValorGrupo.at(group);
    switch (OperGrupo.at(group)) {
    case Plus:
        value = first + second;
        break;
    case Minus:
        if (first < second)
            std::swap(first, second);
        value = first - second;
        break;
    case Times:
        value = first * second;
        break;
    case DividedBy:
        value = first; // the drawn number becomes the quotient, so the division is exact
        first *= second;
        break;
    }
}

void CombinedOperations::join()
{
    const auto [g1, g2, g3] = ValorGrupo;
    if (g1 > g2 + g3) {
        Enlace1 = Minus;
        Enlace2 = Minus;
        Solucion = g1 - g2 - g3;
    } else if (g1 + g2 > g3) {
        Enlace1 = Plus;
        Enlace2 = Minus;
        Solucion = g1 + g2 - g3;
    } else {
        Enlace1 = Plus;
        Enlace2 = Plus;
        Solucion = g1 + g2 + g3;
    }
}

QString CombinedOperations::text() const
{
    return groupText(0) + sign(Enlace1) + groupText(1) + sign(Enlace2) + groupText(2);
}

QString CombinedOperations::spokenExercise() const
{
    return core::aloud(text());
}

QString CombinedOperations::spokenSolution() const
{
    return u"Solución: %1"_s.arg(solution());
}

QString CombinedOperations::groupText(std::size_t group) const
{
    const Operator oper = OperGrupo.at(group);
    const QString operation = QString::number(Numeros.at(2 * group).value()) + sign(oper)
        + QString::number(Numeros.at(2 * group + 1).value());
    // Precedence makes brackets round a product or a quotient superfluous.
    return oper == Plus || oper == Minus ? u'(' + operation + u')' : operation;
}

shell::Verdict CombinedOperations::judge(double answer)
{
    if (answer == solution())
        m_verdict.tell(shell::Verdict::Right, u"Resultado correcto"_s);
    else
        m_verdict.tell(shell::Verdict::Wrong, u"Resultado incorrecto"_s);
    return *m_verdict.verdict();
}

} // namespace written
