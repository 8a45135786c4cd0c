#pragma once

#include "games/car_catalogue.h"
#include "shell/verdict.h"

namespace core {
class RandomSource;
}

namespace games {

/// The rules of the race: the pupil's car goes a step for every operation solved, the
/// rival's a step for every tick of its timer. Shows nothing and owns no clock: ticks are
/// calls.
///
/// Nothing counts before a race is prepared or after it has ended, and no tick before the
/// first operation is solved.
class Race {
public:
    enum class RivalStep { Ignored, Moved, Won };

    static constexpr int StepsToWin = 15; ///< a step for each operation solved
    static constexpr int RivalStepsToWin = 60; ///< so short that its car hardly ever stands

    /// No race yet: nothing is drawn. random must outlive the model.
    explicit Race(core::RandomSource& random);

    /// Drops the race: the clocks stop, its counts go back to 0.
    void reset();

    /// Sets a race up and brings its first operation.
    void PreparaCarrera(const RaceOptions& options);

    /// Checks an answer, read as a number. A wrong one leaves the operation; a right one brings
    /// the next, the first one starts both clocks, and the fifteenth ends the race. Without a
    /// race under way nothing is judged.
    shell::Verdict judge(double answer);

    /// Checks an answer from the second row, which counts like any other; the operation
    /// stands and the verdict is "CORRECTO" or "ERROR".
    shell::Verdict judgeRow(double answer);

    /// A second of the race clock has passed.
    void secondPassed();

    /// The rival's timer has ticked.
    RivalStep rivalStep();

    QString operation() const { return m_operation; } ///< "7 × 5 ="
    int result() const { return Resultado.value(); }

    /// What the last answer brought: "Correcto " or "Error", at every other answer with a
    /// blank in front, so that two in a row differ.
    const shell::VerdictLine& verdict() const { return m_verdict; }

    /// The operation in words: "7 por 5 más 8". Empty before the first one.
    QString spokenOperation() const;

    /// How far both cars are, in words, once every AnswersPerStandings answers; else empty.
    QString spokenStandings() const;
    static constexpr int AnswersPerStandings = 5;

    bool clocksRun() const { return m_clocksRun; }
    bool isOver() const { return CarreraTerminada; }
    int solved() const { return Aciertos.value(); }
    int seconds() const { return Segundos.value(); }
    int rivalSteps() const { return PasosRival.value(); }

    /// Milliseconds between two steps of the rival.
    int rivalInterval() const;

    QString wonText() const;
    QString lostText() const;
    static QString overText(); ///< while nothing can be answered any more

private:
    bool isUnderWay() const { return m_prepared && !CarreraTerminada; }
    void newExercise();
    core::Int16 randomFactor(core::Int16 previous);
    core::Int16 randomTerm(core::Int16 largest);
    void combine(core::Int16 value, const QString& text);
    void countSolved();
    void finish();

    core::RandomSource& m_random;
    core::Int16 Tipo; ///< the position of a RaceType
    core::Int16 Rival; ///< the rival's car: the later in the catalogue, the slower
    core::Int16 Factor1; ///< kept from race to race, so that none comes twice in a row
    core::Int16 Factor2;
    core::Int16 Termino; ///< what a combined operation adds or subtracts
    core::Int16 Resultado; ///< the right answer
    core::Int16 Aciertos; ///< right answers: the steps of the pupil's car
    core::Int16 Segundos; ///< since the first right answer
    core::Int16 PasosRival; ///< ticks of the rival's timer
    bool CarreraTerminada = false;
    int m_answers = 0; ///< judged in this race, right or wrong
    QString m_operation;
    shell::VerdictLine m_verdict;
    bool m_prepared = false;
    bool m_clocksRun = false;
};

} // namespace games
