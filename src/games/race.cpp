#include "games/race.h"

#include "core/random.h"

using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr int FirstFactor = 2;
constexpr int Factors = 9;

double leftAfter(int steps, core::Int16 start, int stepsToWin)
{
    return Race::StartLine - static_cast<double>(start.value()) / stepsToWin * steps;
}

} // namespace

Race::Race(core::RandomSource& random)
    : m_random(random)
{
}

void Race::reset()
{
    m_clocksRun = false;
    m_prepared = false;
    Aciertos = 0;
    Segundos = 0;
    PasosRival = 0;
    CarreraTerminada = false;
    Blanco.clear();
}

void Race::PreparaCarrera(const RaceOptions& options)
{
    CarreraTerminada = false;
    Tipo = options.Tipo;
    Rival = options.Rival;
    SalidaJugador = StartLine;
    SalidaRival = StartLine;
    NuevaOperacion();
    m_prepared = true;
}

void Race::NuevaOperacion()
{
    Factor1 = drawFactor(Factor1);
    Factor2 = drawFactor(Factor2);
    const core::Int16 product = Factor1 * Factor2;
    const QString multiplication = u"%1 × %2"_s.arg(Factor1.value()).arg(Factor2.value());
    const QString division = u"%1 ÷ %2"_s.arg(product.value()).arg(Factor1.value());
    switch (Tipo.value()) {
    case 0:
        Resultado = product;
        m_operation = multiplication;
        break;
    case 1:
        Resultado = Factor2;
        m_operation = division;
        break;
    case 2:
        combine(product, multiplication);
        break;
    default:
        combine(Factor2, division);
        break;
    }
    m_operation += u" ="_s;
}

core::Int16 Race::drawFactor(core::Int16 previous)
{
    core::Int16 factor;
    do
        factor = core::drawInteger(m_random, Factors, FirstFactor);
    while (factor == previous);
    return factor;
}

core::Int16 Race::drawTerm(core::Int16 largest)
{
    // A term larger than a small value could make the result negative.
    return largest >= 10 ? core::drawInteger(m_random, Factors, FirstFactor)
                         : core::drawInteger(m_random, largest.value(), 1);
}

void Race::combine(core::Int16 value, const QString& text)
{
    Termino = drawTerm(value);
    const bool plus = core::drawInteger(m_random, 2, 1) == 1;
    Resultado = plus ? value + Termino : value - Termino;
    m_operation = text + (plus ? u" + "_s : u" - "_s) + QString::number(Termino.value());
}

Race::Verdict Race::answer(double value)
{
    if (!isUnderWay())
        return Verdict::Ignored;
    const bool right = value == Resultado.value();
    m_feedback = Blanco + (right ? u"Correcto "_s : u"Error"_s);
    Blanco = Blanco.isEmpty() ? u" "_s : QString();
    if (!right)
        return Verdict::Wrong;
    NuevaOperacion();
    return countSolved();
}

Race::Verdict Race::answerInRow(double value)
{
    if (!isUnderWay())
        return Verdict::Ignored;
    const bool right = value == Resultado.value();
    m_feedback = right ? u"CORRECTO"_s : u"ERROR"_s;
    return right ? countSolved() : Verdict::Wrong;
}

Race::Verdict Race::countSolved()
{
    m_clocksRun = true;
    Aciertos += 1;
    if (Aciertos < StepsToWin)
        return Verdict::Right;
    finish();
    return Verdict::Won;
}

void Race::secondPassed()
{
    if (m_clocksRun)
        Segundos += 1;
}

Race::RivalStep Race::rivalStep()
{
    if (!m_clocksRun)
        return RivalStep::Ignored;
    PasosRival += 1;
    if (PasosRival < RivalStepsToWin)
        return RivalStep::Moved;
    finish();
    return RivalStep::Won;
}

void Race::finish()
{
    m_clocksRun = false;
    CarreraTerminada = true;
}

int Race::rivalInterval() const
{
    return (core::Int16(20) * Rival + 450).value();
}

double Race::playerLeft() const
{
    return leftAfter(Aciertos.value(), SalidaJugador, StepsToWin);
}

double Race::rivalLeft() const
{
    return leftAfter(PasosRival.value(), SalidaRival, RivalStepsToWin);
}

QString Race::wonText() const
{
    return u"Has ganado la carrera. Has tardado %1 segundos."_s.arg(Segundos.value());
}

QString Race::lostText() const
{
    return u"tu adversario ha ganado la carrera. Ha tardado %1 segundos."_s.arg(Segundos.value());
}

} // namespace games
