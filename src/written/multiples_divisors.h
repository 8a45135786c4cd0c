#pragma once

#include "core/int16.h"
#include "shell/verdict.h"

#include <QString>

#include <array>
#include <vector>

namespace core {
class RandomSource;
}

namespace written {

/// The rules of multiples and divisors: of a given number, three different multiples greater
/// than it, or three different divisors other than 1 and itself, are asked for.
class MultiplesDivisors {
public:
    enum class Mode { Multiples, Divisors };
    static constexpr int Answers = 3;
    /// The three answers, read as numbers; an empty box reads 0.
    using Answer = std::array<double, Answers>;

    /// Draws nothing yet. random must outlive the model and be seeded before the first
    /// exercise.
    explicit MultiplesDivisors(core::RandomSource& random);

    void newExercise();

    Mode mode() const { return Modo; }
    int number() const
    {
        return Numero.value();
    } ///< 2 to 10; where divisors are asked for, 6 to 720
    QString instruction() const; ///< two lines when divisors are asked for

    /// What is asked of which number, and the solution, as they are read aloud.
    QString spokenExercise() const;
    QString spokenSolution() const;

    /// Judges three answers; nothing is judged while one is missing or below 1.
    shell::Verdict judge(const Answer& answers);

    /// Indexes of the answers that are wrong by themselves or repeat an earlier one; none before
    /// the first verdict and after a right one.
    const std::vector<int>& wrongAnswers() const { return m_wrongAnswers; }

    /// Stands beside the next exercise too, until that is judged.
    const shell::VerdictLine& verdict() const { return m_verdict; }

    /// Three answers. Divisors are the factors that the number was made of: one of them may
    /// be 1, which judging rejects: meant.
    std::array<int, Answers> showSolution() const;

private:
    bool isRight(double answer) const;
    std::vector<int> findWrong(const Answer& answers) const;
    void chooseFactors();

    core::RandomSource& m_random;
    Mode Modo = Mode::Multiples;
    core::Int16 Numero;
    std::array<core::Int16, Answers> Factores;
    std::vector<int> m_wrongAnswers;
    shell::VerdictLine m_verdict;
};

} // namespace written
