#pragma once

#include "core/int16.h"
#include "shell/verdict.h"

#include <QString>

#include <array>

namespace core {
class RandomSource;
}

namespace written {

/// The rules of the combined operations: three groups of two numbers, joined by plus and
/// minus signs so that every value on the way and the result are whole and not negative.
class CombinedOperations {
public:
    /// The value of the expression, read as a number.
    using Answer = double;

    /// Draws nothing yet. random must outlive the model and be seeded before the first
    /// expression.
    explicit CombinedOperations(core::RandomSource& random);

    /// Draws the six numbers, then the three operators of the groups, and joins the groups.
    void newExercise();

    /// "(5 + 3) + 4 x 2 - 18 ÷ 3": at most 27 characters. There is an expression from the first
    /// newExercise() on.
    QString text() const;
    /// The expression, and the solution, as they are read aloud.
    QString spokenExercise() const;
    QString spokenSolution() const;

    /// The value of the expression, 0 to 162.
    int solution() const { return Solucion.value(); }

    /// Judges; nothing is counted in this activity.
    shell::Verdict judge(double answer);

    /// Stands beside the next expression too, until that is judged.
    const shell::VerdictLine& verdict() const { return m_verdict; }

    int showSolution() const { return solution(); }

private:
    static constexpr std::size_t Groups = 3;

    /// The number of an operator; links are always Plus or Minus.
    enum Operator { Plus = 1, Minus, Times, DividedBy };
    static const QString& sign(Operator oper);

    void evaluate(std::size_t group);
    void join();
    QString groupText(std::size_t group) const;

    core::RandomSource& m_random;
    std::array<core::Int16, 2 * Groups> Numeros; ///< in the order in which they are shown
    std::array<Operator, Groups> OperGrupo{Plus, Plus, Plus};
    std::array<core::Int16, Groups> ValorGrupo;
    Operator Enlace1 = Plus;
    Operator Enlace2 = Plus;
    core::Int16 Solucion;
    shell::VerdictLine m_verdict;
};

} // namespace written
