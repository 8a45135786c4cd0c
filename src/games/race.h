#pragma once

#include "games/car_catalogue.h"

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
    enum class Verdict {
        Ignored, ///< no race is under way: nothing was checked
        Wrong, ///< the same operation stands
        Right, ///< the next operation is up
        Won ///< right, and the race has ended
    };
    enum class RivalStep { Ignored, Moved, Won };

    static constexpr int StepsToWin = 15;
    static constexpr int RivalStepsToWin = 60;
    static constexpr int StartLine = 9500; ///< left edge of both cars, in twips

    /// No race yet: nothing is drawn. random must outlive the model.
    explicit Race(core::RandomSource& random);

    /// Drops the race: the clocks stop, its counts go back to 0.
    void reset();

    /// Sets a race up and brings its first operation.
    void PreparaCarrera(const RaceOptions& options);

    /// Checks an answer, read as a number. The first right one starts both clocks.
    Verdict answer(double value);

    /// Checks an answer from the second row, which counts like any other; the operation
    /// stands and the feedback is "CORRECTO" or "ERROR".
    Verdict answerInRow(double value);

    /// A second of the race clock has passed.
    void secondPassed();

    /// The rival's timer has ticked.
    RivalStep rivalStep();

    QString operation() const { return m_operation; } ///< "7 × 5 ="
    int result() const { return Resultado.value(); }

    /// What the last answer brought: "Correcto " or "Error", at every other answer with a
    /// blank in front, so that two in a row differ.
    QString feedback() const { return m_feedback; }

    bool clocksRun() const { return m_clocksRun; }
    bool isOver() const { return CarreraTerminada; }
    int solved() const { return Aciertos.value(); }
    int seconds() const { return Segundos.value(); }
    int rivalSteps() const { return PasosRival.value(); }

    /// Milliseconds between two steps of the rival.
    int rivalInterval() const;

    // Left edges of the cars, in twips.
    double playerLeft() const;
    double rivalLeft() const;

    QString wonText() const;
    QString lostText() const;

private:
    bool isUnderWay() const { return m_prepared && !CarreraTerminada; }
    void NuevaOperacion();
    core::Int16 drawFactor(core::Int16 previous);
    core::Int16 drawTerm(core::Int16 largest);
    void combine(core::Int16 value, const QString& text);
    Verdict countSolved();
    void finish();

    core::RandomSource& m_random;
    core::Int16 Tipo;
    core::Int16 Rival;
    core::Int16 Factor1;
    core::Int16 Factor2;
    core::Int16 Termino;
    core::Int16 Resultado;
    core::Int16 Aciertos;
    core::Int16 Segundos;
    core::Int16 PasosRival;
    core::Int16 SalidaJugador = StartLine;
    core::Int16 SalidaRival = StartLine;
    bool CarreraTerminada = false;
    QString Blanco;
    QString m_operation;
    QString m_feedback;
    bool m_prepared = false;
    bool m_clocksRun = false;
};

} // namespace games
