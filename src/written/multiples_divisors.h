#pragma once

#include "core/int16.h"

#include <QString>

#include <array>

namespace core {
class RandomSource;
}

namespace written {

/// The rules of multiples and divisors: of a given number, three different multiples greater
/// than it, or three different divisors other than 1 and itself, are asked for.
class MultiplesDivisors {
public:
    enum class Mode { Multiples = 1, Divisors = 2 };
    enum class Verdict {
        Invalid, ///< an answer is missing or below 1: nothing was judged
        Right,
        Wrong
    };
    /// wrongAnswer is the index of the first answer that is wrong by itself or repeats an
    /// earlier one; it says nothing unless the verdict is Wrong.
    struct Check {
        Verdict verdict = Verdict::Invalid;
        int wrongAnswer = 0;
    };
    static constexpr int Answers = 3;

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

    /// Judges three answers, read as numbers; an empty box reads 0.
    Check check(const std::array<double, Answers>& answers) const;

    /// The text of a verdict that was reached, as it is written over the standing one: it
    /// gets a blank at its end when the same text stands there, so that something changes.
    static QString verdictText(Verdict verdict, QStringView standing);

    /// Three answers. Divisors are the factors that the number was made of: one of them may
    /// be 1, which a check rejects.
    std::array<int, Answers> solution() const;

private:
    bool isRight(double answer) const;
    void drawFactors();

    core::RandomSource& m_random;
    Mode Modo = Mode::Multiples;
    core::Int16 Numero;
    std::array<core::Int16, Answers> Factores;
};

} // namespace written
