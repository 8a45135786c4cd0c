#pragma once

#include "games/rain_box.h"
#include "games/rain_fall.h"
#include "games/rain_phase.h"
#include "games/rain_score.h"

#include <QString>

#include <optional>
#include <vector>

namespace games {

enum class Difficulty { Facil, Normal, Dificil };

/// What happened to a number.
struct RainEvent {
    enum class Kind {
        Hit, ///< a right one was clicked
        Miss, ///< a wrong one was clicked
        Escape ///< it fell out of sight
    };
    Kind kind;
    int slot;
    Gota gota; ///< where and what it was
    core::Int16 points; ///< that it brought; below 0 when it cost some
};

/// What a call asks for besides showing the state: first what has changed, then the beeps, then
/// the box.
struct RainStep {
    bool phasePrepared = false; ///< the instruction was written anew
    bool cleared = false; ///< a clicked number is gone
    bool waits = false; ///< the pupil is to start the rain
    std::optional<int> launched; ///< the slot whose number is new, launched after all the rest
    std::vector<RainEvent> events; ///< in the order in which they happened
    int beeps = 0;
    std::optional<RainBox> box;
};

/// The rules of number rain: numbers fall, the pupil shoots those that obey the rule of the
/// phase. Shows nothing and owns no clock: the screen calls tick() while running().
///
/// A message box stops a call at the very point where it belongs: the call returns with the
/// box, the state is what the pupil sees behind it, and answer() does the rest, up to the next
/// box. Until then every other call does nothing.
class NumberRain {
public:
    /// Ready to start phase 1 on Easy; draws nothing. random must outlive the model. A number
    /// that has fallen beyond lastRow has escaped.
    NumberRain(core::RandomSource& random, int lastRow);

    const RainState& state() const { return m_score.state(); }
    const RainFall& fall() const { return m_fall; }
    const RainPhase& phase() const { return m_phase; }
    QString caption() const { return m_phase.caption(); }
    QString instruction() const { return m_phase.instruction(); }
    QString pointsText() const { return m_score.pointsText(); }
    QString livesText() const { return m_score.livesText(); }
    bool running() const { return m_running; } ///< the clock is to tick
    bool waiting() const { return m_waiting; } ///< the pupil is to start the rain
    bool over() const { return m_over; } ///< the pupil will not play again
    Difficulty difficulty() const { return m_difficulty; }
    int interval() const; ///< milliseconds from tick to tick

    /// Starts a new game at phase 1.
    RainStep chooseDifficulty(Difficulty difficulty);

    /// The pupil starts the rain.
    RainStep start();

    /// Lets the clock run, and what waits for the pupil waits on.
    void enableClock();

    /// One tick of the clock: all numbers move, every sixth time one is launched.
    RainStep tick();

    /// The pupil clicked the number in a slot; nothing happens when the slot is free. Throws
    /// OverflowError, with nothing changed, when the points leave 16 bits.
    RainStep click(int slot);

    /// The open box was closed, with "yes" when it was a question, and the interrupted call
    /// goes on. Does nothing when no box is open.
    RainStep answer(bool yes = true);

private:
    bool blocked() const { return m_box || m_over; }
    RainStep take();

    void PreparaFase(core::Int16 fase);
    void CompruebaPuntos(int slot, bool porError);
    void FaseSuperada();
    bool MueveNumeros(int first);
    void runTick(int first);

    bool hit(int slot); ///< true when it passes the phase
    void miss(int slot);
    void report(RainEvent::Kind kind, int slot, core::Int16 points);
    void launchWhenDue();

    void ask(const RainBox& box);
    void loseLife(bool porError);
    void newGame();
    void repeatPhase();
    void nextPhase();
    void wait();

    RainScore m_score;
    RainFall m_fall;
    RainPhase m_phase{1};
    Difficulty m_difficulty = Difficulty::Facil;
    bool m_running = false;
    bool m_waiting = false;
    bool m_over = false;
    RainStep m_step; ///< what the call under way has asked for so far
    std::optional<RainBox::Kind> m_box; ///< open now
    std::optional<int> m_escaping; ///< the slot at which a box interrupted the tick
};

} // namespace games
