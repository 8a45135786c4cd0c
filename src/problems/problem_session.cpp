#include "problems/problem_session.h"

#include "core/defect.h"
#include "core/random.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace problems {

namespace {

constexpr core::Int16 Selected = -1; // what a mask holds for a selected operation
constexpr std::size_t Subtraction = 3;

bool has(OperationMask operations, std::size_t operation)
{
    return (operations >> operation & 1U) != 0;
}

} // namespace

ProblemSession::ProblemSession(core::RandomSource& random)
    : m_random(random)
    , m_evaluator(u"VBScript"_s)
{
}

void ProblemSession::setBank(Bank bank)
{
    m_operations = operationsOf(bank.lines);
    m_bank = std::move(bank);
    beginCycle();
}

void ProblemSession::CargaDatos(core::Int16 Seleccion, OperationMask MaskOpera)
{
    m_mode = Seleccion;
    for (std::size_t k = 0; k < m_maskOp.size(); ++k)
        m_maskOp[k] = has(MaskOpera, k) ? Selected : core::Int16();
}

bool ProblemSession::CumpleSeleccion(QStringView line) const
{
    return isSelected(operationsOf(line));
}

bool ProblemSession::isSelected(OperationMask operations) const
{
    if (m_mode == ProblemSelection::AllTypes)
        return true;
    if (m_mode == ProblemSelection::AnySelected) {
        for (std::size_t k = 0; k < Subtraction; ++k) {
            if (has(operations, k) && m_maskOp[k] != 0)
                return true;
        }
        // Deliberate: a selected operation is -1, so subtraction alone never qualifies.
        return has(operations, Subtraction) && m_maskOp[Subtraction] == 1;
    }
    if (m_mode != ProblemSelection::AllSelected)
        return false;
    for (std::size_t k = 0; k < m_maskOp.size(); ++k) {
        if (m_maskOp[k] != 0 && !has(operations, k))
            return false;
    }
    return true;
}

bool ProblemSession::isEligible(int index) const
{
    return !core::at(m_bank.used, index) && isSelected(core::at(m_operations, index));
}

void ProblemSession::beginCycle()
{
    m_bank.used.assign(m_operations.size(), false);
}

bool ProblemSession::canChoose() const
{
    for (int index = 1; index <= lastIndex(); ++index) {
        if (isEligible(index))
            return true;
    }
    return false;
}

bool ProblemSession::hasSelectedBehindFirst() const
{
    return std::any_of(m_operations.begin() + 1, m_operations.end(),
        [this](OperationMask operations) { return isSelected(operations); });
}

void ProblemSession::ensureChoosable()
{
    if (m_bank.lines.isEmpty())
        throw core::Error(u"El banco de problemas está vacío o falta su archivo, "
                          "«Problemas3.dat». Añada problemas en «Gestión de problemas...»."_s);
    if (lastIndex() == 0)
        throw core::Error(u"El banco solo tiene el problema de la línea 1, y el primero no se "
                          "propone nunca. Añada otro en «Gestión de problemas...»."_s);
    int eligible = 0;
    for (int index = 0; index <= lastIndex(); ++index)
        eligible += isEligible(index) ? 1 : 0;
    const bool fewLeft = 10 * eligible < lastIndex() + 1;
    // The first line may be all that is left: then the draw would never end. A new cycle is
    // begun for that only where it helps.
    if (fewLeft || (!canChoose() && hasSelectedBehindFirst()))
        beginCycle();
    if (!canChoose())
        throw core::Error(u"No hay ningún problema que cumpla la selección."_s);
}

int ProblemSession::chooseLine(const std::function<void()>& beforeChoice)
{
    for (;;) {
        beforeChoice();
        const int index = core::randomInteger(m_random, lastIndex(), 1).value();
        if (isEligible(index))
            return index;
    }
}

Problem ProblemSession::prepare(int index)
{
    try {
        return InstanciarProblema(m_bank.lines.at(index), m_random, m_evaluator);
    } catch (const core::Error& error) {
        throw TemplateError(
            u"El problema de la línea %1 del banco no se puede preparar.\n\n%2"_s.arg(
                QString::number(index + 1), error.text()));
    }
}

void ProblemSession::newExercise(const std::function<void()>& beforeChoice)
{
    ensureChoosable();
    const int index = chooseLine(beforeChoice);
    core::at(m_bank.used, index) = true;
    m_problem = prepare(index);
    Pendiente = true;
    m_verdict.clear();
}

shell::Verdict ProblemSession::judge(double answer)
{
    const bool right = answer == m_problem.answer;
    countEveryWrong(right ? Verdict::Right : Verdict::Wrong);
    if (right)
        m_verdict.tell(Verdict::Right, u"Respuesta correcta"_s);
    else
        m_verdict.tell(Verdict::Wrong, u"Respuesta incorrecta"_s);
    return *m_verdict.verdict();
}

qint32 ProblemSession::showSolution()
{
    Pendiente = false;
    return m_problem.answer;
}

QString ProblemSession::spokenExercise() const
{
    if (m_problem.unit.isEmpty())
        return m_problem.statement;
    return u"%1 Respuesta en %2"_s.arg(m_problem.statement, m_problem.unit);
}

QString ProblemSession::spokenSolution() const
{
    return u"%1 %2"_s.arg(QString::number(m_problem.answer), m_problem.unit).trimmed();
}

} // namespace problems
