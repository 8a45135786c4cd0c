#include "games/race.h"

#include "core/aloud.h"
#include "core/random.h"

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace games {

namespace {

// Factors are 2 to 10: with 1 there is nothing to calculate.
constexpr int FirstFactor = 2;
constexpr int Factors = 9;
constexpr int SmallValue = 10; // below it, a term of 2 to 10 could make the result negative

// Milliseconds from step to step of the rival: 60 of the quickest car's take 27 seconds, and
// every later car in the catalogue is a little slower, the racing car slowest: meant.
constexpr int QuickestRival = 450;
constexpr int SlowerByCar = 20;

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
    m_answers = 0;
    CarreraTerminada = false;
    m_verdict = {};
}

void Race::PreparaCarrera(const RaceOptions& options)
{
    CarreraTerminada = false;
    Tipo = options.Tipo;
    Rival = options.Rival;
    newExercise();
    m_prepared = true;
}

void Race::newExercise()
{
    Factor1 = randomFactor(Factor1);
    Factor2 = randomFactor(Factor2);
    const core::Int16 product = Factor1 * Factor2;
    const QString multiplication = u"%1 × %2"_s.arg(Factor1.value()).arg(Factor2.value());
    const QString division = u"%1 ÷ %2"_s.arg(product.value()).arg(Factor1.value());
    switch (static_cast<RaceType>(Tipo.value())) {
    case RaceType::Products:
        Resultado = product;
        m_operation = multiplication;
        break;
    case RaceType::Quotients:
        Resultado = Factor2;
        m_operation = division;
        break;
    case RaceType::ProductsPlusMinus:
        combine(product, multiplication);
        break;
    case RaceType::QuotientsPlusMinus:
    default: // no type was chosen
        combine(Factor2, division);
        break;
    }
    m_operation += u" ="_s;
}

core::Int16 Race::randomFactor(core::Int16 previous)
{
    core::Int16 factor;
    do
        factor = core::randomInteger(m_random, Factors, FirstFactor);
    while (factor == previous);
    return factor;
}

core::Int16 Race::randomTerm(core::Int16 largest)
{
    return largest >= SmallValue ? core::randomInteger(m_random, Factors, FirstFactor)
                                 : core::randomInteger(m_random, largest.value(), 1);
}

void Race::combine(core::Int16 value, const QString& text)
{
    Termino = randomTerm(value);
    const bool plus = core::randomInteger(m_random, 2, 1) == 1;
    Resultado = plus ? value + Termino : value - Termino;
    m_operation = text + (plus ? u" + "_s : u" - "_s) + QString::number(Termino.value());
}

Verdict Race::judge(double answer)
{
    if (!isUnderWay())
        return Verdict::NotJudged;
    ++m_answers;
    if (answer != Resultado.value()) {
        m_verdict.tell(Verdict::Wrong, u"Error"_s, shell::Repeat::Alternate);
        return Verdict::Wrong;
    }
    m_verdict.tell(Verdict::Right, u"Correcto "_s, shell::Repeat::Alternate); // blank: meant
    newExercise();
    countSolved();
    return Verdict::Right;
}

Verdict Race::judgeRow(double answer)
{
    if (!isUnderWay())
        return Verdict::NotJudged;
    ++m_answers;
    if (answer != Resultado.value()) {
        m_verdict.tell(Verdict::Wrong, u"ERROR"_s);
        return Verdict::Wrong;
    }
    m_verdict.tell(Verdict::Right, u"CORRECTO"_s);
    countSolved();
    return Verdict::Right;
}

void Race::countSolved()
{
    m_clocksRun = true;
    Aciertos += 1;
    if (Aciertos >= StepsToWin)
        finish();
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
    return (core::Int16(SlowerByCar) * Rival + QuickestRival).value();
}

QString Race::spokenOperation() const
{
    return core::aloud(QString(m_operation).remove(u" ="_s));
}

QString Race::spokenStandings() const
{
    if (m_answers == 0 || m_answers % AnswersPerStandings != 0)
        return {};
    const int rival = PasosRival.value() * StepsToWin / RivalStepsToWin;
    return u"Tú: %1 de %3. Rival: %2 de %3."_s.arg(Aciertos.value()).arg(rival).arg(StepsToWin);
}

QString Race::wonText() const
{
    return u"Has ganado la carrera. Has tardado %1 segundos."_s.arg(Segundos.value());
}

QString Race::lostText() const
{
    // The small letter is meant.
    return u"tu adversario ha ganado la carrera. Ha tardado %1 segundos."_s.arg(Segundos.value());
}

QString Race::overText()
{
    return u"La carrera ha terminado. Pulsa en uno de los botones inferiores."_s;
}

} // namespace games
