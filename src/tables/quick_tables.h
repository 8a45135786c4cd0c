#pragma once

#include "core/int16.h"
#include "shell/verdict.h"

#include <QLocale>
#include <QString>

#include <array>
#include <optional>

namespace core {
class RandomSource;
}

namespace tables {

/// The rules of the timed drill of the tables: one product after another, ten seconds for
/// each, until a button is pressed or a limit of minutes, operations or errors is reached.
/// Owns no clock: the screen calls the ticks. Once the drill has ended every call is
/// ignored, so nothing that comes late changes the report.
///
/// A counter that would leave 16 bits throws core::OverflowError and changes nothing.
class QuickTables {
public:
    static constexpr int SecondsPerOperation = 10;

    /// What ends the drill, in the order of the options on the screen.
    enum class End { Button, Minutes, Operations, Errors };
    enum class LimitVerdict { Fine, TooSmall, TooLarge };

    /// What an answer or a tick brought about, to be shown in this order.
    struct Events {
        std::optional<shell::Verdict> verdict;
        bool newOperation = false;
        bool ended = false;
    };

    struct State {
        core::Int16 FactorA;
        core::Int16 FactorB;
        core::Int16 Producto;
        core::Int16 Restantes; ///< seconds left for the operation
        core::Int16 Operaciones; ///< answered ones: a time-out is none
        core::Int16 ErroresTotales; ///< time-outs included
        core::Int16 ErroresTiempo;
        qint32 Segundos = 0; ///< of the minute that is running
        End FinActividad = End::Button;
        core::Int16 Limite; ///< minutes, operations or errors
        core::Int16 Progreso; ///< towards Limite
        /// For each number from 1 to 10 (index 0 to 9), the right answers in which it took
        /// part and the wrong ones; a square counts twice.
        std::array<std::array<core::Int16, 2>, 10> Usos;
    };

    /// random must outlive the model and be seeded before start().
    explicit QuickTables(core::RandomSource& random);

    const State& state() const { return m_state; }
    bool isRunning() const { return m_phase == Phase::Running; }
    bool ended() const { return m_phase == Phase::Ended; }

    /// Chooses what will end the drill.
    void endBy(End end);

    /// Draws the first operation. A limit of one operation ends the drill at once.
    Events start(core::Int16 limit);

    /// Takes the limit of the running drill. One that is out of range leaves a drill that
    /// only the button ends.
    LimitVerdict setLimit(core::Int16 limit);

    /// What to tell of a limit that was turned down.
    static QString limitWarning(LimitVerdict verdict);

    /// What to tell of a typed limit that no counter can hold, with which no drill starts;
    /// nothing of any other.
    std::optional<QString> limitFault(const QString& typed) const;

    /// Judges an answer and counts it.
    Events judge(double answer);

    /// One second has passed for the operation. When none is left, an error is counted and
    /// two operations are drawn, of which the second one stands.
    Events tickOperation();

    /// One second has passed for the limit of minutes.
    Events tickMinute();

    /// The button ends the drill.
    void end();

    /// The word on the verdict's patch, in the colour of the patch: for screen readers.
    static QString verdictText(shell::Verdict verdict);

    /// The operation as one line: "7 x 8 = ".
    QString operationText() const;

    /// The operation in words: "7 por 8".
    QString spokenOperation() const;

    /// The seconds left, as shown: "10/".
    QString timeText() const;

    /// What was done, with the errors made with each number. Lines end in CR LF;
    /// percentages are unrounded, in the format of the locale.
    QString report(const QLocale& locale) const;

private:
    enum class Phase { Idle, Running, Ended };

    template <typename Step> Events run(Step step);
    void NuevaOperacion();
    void Acierto();
    void Fallo();
    void countUse(shell::Verdict verdict);
    void advance();

    core::RandomSource& m_random;
    Phase m_phase = Phase::Idle;
    State m_state;
    Events m_events;
};

/// The colour of the seconds left, 0 to 255: from green to red as they run out.
struct TimeColour {
    int red;
    int green;
};
TimeColour timeColour(int secondsLeft);

} // namespace tables
