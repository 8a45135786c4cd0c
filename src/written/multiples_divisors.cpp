#include "written/multiples_divisors.h"

#include "core/random.h"
#include "written/spoken.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace written {

MultiplesDivisors::MultiplesDivisors(core::RandomSource& random)
    : m_random(random)
{
}

void MultiplesDivisors::newExercise()
{
    if (m_random.next() < 0.5f) {
        Numero = core::randomInteger(m_random, 9, 2);
        Modo = Mode::Multiples;
        return;
    }
    chooseFactors();
    Numero = Factores[0] * Factores[1] * Factores[2];
    Modo = Mode::Divisors;
}

void MultiplesDivisors::chooseFactors()
{
    for (auto factor = Factores.begin(); factor != Factores.end(); ++factor) {
        do {
            *factor = core::randomInteger(m_random, 10, 1);
        } while (std::find(Factores.begin(), factor, *factor) != factor);
    }
}

QString MultiplesDivisors::instruction() const
{
    return Modo == Mode::Multiples
        ? u"Introduzca tres múltiplos diferentes del número indicado"_s
        : u"Introduzca tres divisores diferentes del número indicado.\n"
          "No puede usar el 1 ni el número que se proporciona"_s;
}

QString MultiplesDivisors::spokenExercise() const
{
    return u"%1: %2"_s.arg(instruction().simplified()).arg(number());
}

QString MultiplesDivisors::spokenSolution() const
{
    QStringList numbers;
    for (const int number : showSolution())
        numbers << QString::number(number);
    return u"Solución: %1"_s.arg(spokenList(numbers));
}

shell::Verdict MultiplesDivisors::judge(const Answer& answers)
{
    if (std::any_of(answers.begin(), answers.end(), [](double answer) { return answer < 1; }))
        return Verdict::NotJudged;
    m_wrongAnswers = findWrong(answers);
    if (!m_wrongAnswers.empty())
        m_verdict.tell(Verdict::Wrong, u"Resultado incorrecto"_s, shell::Repeat::BlankBehind);
    else
        m_verdict.tell(Verdict::Right, u"Resultado correcto"_s, shell::Repeat::BlankBehind);
    return *m_verdict.verdict();
}

std::vector<int> MultiplesDivisors::findWrong(const Answer& answers) const
{
    std::vector<int> wrong;
    for (auto answer = answers.begin(); answer != answers.end(); ++answer) {
        if (!isRight(*answer) || std::find(answers.begin(), answer, *answer) != answer)
            wrong.push_back(static_cast<int>(answer - answers.begin()));
    }
    return wrong;
}

bool MultiplesDivisors::isRight(double answer) const
{
    const double given = number();
    if (Modo == Mode::Multiples)
        return answer > given && std::fmod(answer, given) == 0;
    const bool whole = std::floor(answer) == answer; // 60 / 2.5 leaves no remainder either
    return whole && answer != 1 && answer != given && std::fmod(given, answer) == 0;
}

std::array<int, MultiplesDivisors::Answers> MultiplesDivisors::showSolution() const
{
    if (Modo == Mode::Multiples)
        return {3 * number(), 4 * number(), 5 * number()};
    return {Factores[0].value(), Factores[1].value(), Factores[2].value()};
}

} // namespace written
