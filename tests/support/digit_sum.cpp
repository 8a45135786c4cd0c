#include "support/digit_sum.h"

#include "core/aloud.h"
#include "core/random.h"

using namespace Qt::StringLiterals;
using shell::Verdict;

DigitSum::DigitSum(core::RandomSource& random)
    : m_random(random)
{
}

void DigitSum::newExercise()
{
    m_first = core::randomInteger(m_random, 9, 1);
    m_second = core::randomInteger(m_random, 9, 1);
    Pendiente = true;
    m_verdict.clear();
}

QString DigitSum::text() const
{
    return u"%1 + %2"_s.arg(m_first.value()).arg(m_second.value());
}

QString DigitSum::spokenExercise() const
{
    return core::aloud(text());
}

QString DigitSum::spokenSolution() const
{
    return core::aloud(u"%1 = %2"_s.arg(text()).arg(sum()));
}

Verdict DigitSum::judge(double answer)
{
    const Verdict verdict = answer == sum() ? Verdict::Right : Verdict::Wrong;
    countWhilePending(verdict);
    m_verdict.tell(verdict, verdict == Verdict::Right ? u"Bien"_s : u"Mal"_s);
    return verdict;
}

int DigitSum::showSolution()
{
    Pendiente = false;
    return sum();
}
