#include "tables/repeated_sum.h"

#include "core/random.h"

using namespace Qt::StringLiterals;

namespace tables {

RepeatedSum::RepeatedSum(core::RandomSource& random)
    : m_random(random)
{
}

void RepeatedSum::NuevaSuma()
{
    m_canContinue = true;
    Sumando = core::drawInteger(m_random, 10, 1);
    Veces = core::drawInteger(m_random, 9, 2);
    Pendiente = true;
}

RepeatedSum::Verdict RepeatedSum::judge(double a, double b) const
{
    const bool right = (a == addend() && b == times()) || (a == times() && b == addend());
    return right ? Verdict::Right : Verdict::Wrong;
}

void RepeatedSum::count(Verdict verdict)
{
    const bool wrong = verdict == Verdict::Wrong;
    if (wrong)
        m_canContinue = false;
    if (!Pendiente)
        return;
    if (wrong)
        m_counters.countWrong();
    else
        m_counters.countRight();
    Pendiente = wrong;
}

void RepeatedSum::showSolution()
{
    m_canContinue = true;
    Pendiente = false;
}

QString RepeatedSum::sumText() const
{
    constexpr int TermsPerLine = 5;
    const QString term = QString::number(addend());
    QString text = term;
    for (int k = 2; k <= times(); ++k) {
        text += u" + "_s + term;
        if (k == TermsPerLine)
            text += u"\r\n"_s;
    }
    return text;
}

QString RepeatedSum::solutionText() const
{
    return u"%1 por %2"_s.arg(addend()).arg(times());
}

} // namespace tables
