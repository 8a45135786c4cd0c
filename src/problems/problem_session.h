#pragma once

#include "core/int16.h"
#include "problems/bank.h"
#include "problems/expression.h"
#include "problems/problem_template.h"
#include "problems/selection.h"
#include "shell/exercise.h"

#include <functional>

namespace problems {

/// A session of word problems: which line of the bank comes next, what its answer is, and
/// what is counted. In a cycle every problem comes at most once; a new one begins when
/// fewer than a tenth of the bank are left.
class ProblemSession : public shell::Exercise {
public:
    /// The result, read as a number.
    using Answer = double;

    /// random must outlive the session.
    explicit ProblemSession(core::RandomSource& random);

    /// Takes another bank, none of its lines used. The problem that is shown stays.
    void setBank(Bank bank);

    /// Restricts what is drawn. Seleccion: a ProblemSelection::Option, of the operations of
    /// MaskOpera; any other number admits nothing.
    void CargaDatos(core::Int16 Seleccion, OperationMask MaskOpera);

    /// Whether the selection admits a line.
    bool CumpleSeleccion(QStringView line) const;

    /// Draws the next problem and prepares it; beforeChoice is called before each draw and may
    /// throw. The first line is never drawn. Throws core::Error when there is no line to
    /// draw, TemplateError with the number of the line when it cannot be prepared; the
    /// problem of before then stays, counted or not as it was.
    void newExercise(const std::function<void()>& beforeChoice = [] {});

    /// The problem that is shown; with an empty statement and the answer 0 before the first.
    const Problem& problem() const { return m_problem; }
    /// The problem as it is said aloud, with the unit of its answer; empty before the first.
    QString spokenExercise() const;
    /// Its answer, in its unit.
    QString spokenSolution() const;

    /// Judges and counts the answer: each wrong one an exercise and an error, a right one an
    /// exercise unless the problem has been counted or its solution shown.
    shell::Verdict judge(double answer);

    /// The answer; the problem no longer counts.
    qint32 showSolution();

private:
    bool isSelected(OperationMask operations) const;
    bool hasSelectedBehindFirst() const;
    bool isEligible(int index) const;
    int lastIndex() const { return static_cast<int>(m_bank.lines.size()) - 1; }
    bool canChoose() const;
    void beginCycle();
    void ensureChoosable();
    int chooseLine(const std::function<void()>& beforeChoice);
    Problem prepare(int index);

    core::RandomSource& m_random;
    ExpressionEvaluator m_evaluator;
    Bank m_bank;
    std::vector<OperationMask> m_operations; ///< of each line of the bank
    core::Int16 m_mode; ///< a ProblemSelection::Option; any other admits nothing
    std::array<core::Int16, 4> m_maskOp{}; ///< of each operation, -1 when it is selected
    Problem m_problem;
};

} // namespace problems
