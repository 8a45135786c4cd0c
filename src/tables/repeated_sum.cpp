#include "tables/repeated_sum.h"

#include "core/errors.h"
#include "core/random.h"

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace tables {

RepeatedSum::RepeatedSum(core::RandomSource& random)
    : m_random(random)
{
}

void RepeatedSum::newExercise()
{
    m_canContinue = true;
    Sumando = core::randomInteger(m_random, 10, 1);
    Veces = core::randomInteger(m_random, 9, 2);
    Pendiente = true;
    m_verdict.clear();
}

bool RepeatedSum::isRight(const Answer& answer) const
{
    return (answer.first == addend() && answer.second == times())
        || (answer.first == times() && answer.second == addend());
}

shell::Verdict RepeatedSum::judge(const Answer& answer)
{
    const Verdict verdict = isRight(answer) ? Verdict::Right : Verdict::Wrong;
    m_verdict.tell(
        verdict, verdict == Verdict::Right ? u"Respuesta correcta"_s : u"Respuesta incorrecta"_s);
    if (verdict == Verdict::Wrong)
        m_canContinue = false; // and a right answer that follows does not set it again: meant
    try {
        countWhilePending(verdict);
    } catch (const core::OverflowError&) {
        // This screen shows no box, whatever fails.
    }
    return verdict;
}

void RepeatedSum::showSolution()
{
    m_canContinue = true;
    Pendiente = false;
    m_verdict.show(u"%1 por %2"_s.arg(addend()).arg(times()));
}

QString RepeatedSum::sumText() const
{
    constexpr int TermsPerLine = 5;
    const QString term = QString::number(addend());
    QString text = term;
    for (int k = 2; k <= times(); ++k) {
        text += u" + "_s + term;
        if (k == TermsPerLine) // behind the last term too: meant
            text += u"\r\n"_s;
    }
    return text;
}

} // namespace tables
