#include "games/rain_phase.h"

#include <algorithm>

using core::Int16;
using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr int PhasesByParity = 2; // odd numbers, then even ones
constexpr int LastByParity = 20;
constexpr int MultiplesToFind = 10; // of the phase's number, in every phase behind these

} // namespace

RainPhase::RainPhase(Int16 fase)
    : m_fase(fase)
{
    const bool byParity = fase <= PhasesByParity;
    const Int16 last = byParity ? Int16(LastByParity) : MultiplesToFind * fase;
    const Int16 divisor = byParity ? Int16(2) : fase;
    const Int16 remainder = fase == 1 ? 1 : 0;
    for (int v = 1; v <= last.value(); ++v)
        (v % divisor == remainder ? m_Objetivos : m_Otros).emplace_back(v);
}

bool RainPhase::EsObjetivo(Int16 number) const
{
    return std::ranges::find(m_Objetivos, number) != m_Objetivos.end();
}

QString RainPhase::caption() const
{
    return u"Lluvia de números - Fase %1"_s.arg(m_fase.value());
}

QString RainPhase::instruction() const
{
    if (m_fase == 1) // two blanks behind "los": meant
        return u"Elimina los  números impares. "
               "Selecciona la dificultad antes de empezar."_s;
    if (m_fase == 2)
        return u"Elimina todos los números pares"_s;
    return u"Elimina todos los múltiplos de %1"_s.arg(m_fase.value());
}

} // namespace games
