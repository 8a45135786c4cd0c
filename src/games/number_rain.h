#pragma once

#include "core/int16.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace core {
class RandomSource;
}

namespace games {

/// One falling number. A column and a row are both 500 twips.
struct Gota {
    core::Int16 Velocidad; ///< speed class 1 to 5, the fastest; also colour and multiplier
    core::Int16 Espera; ///< ticks left before the next step down
    core::Int16 Direccion; ///< sideways drift: -1 left, +1 right, 0 none
    core::Int16 Deriva; ///< sideways steps left in the current drift
    core::Int16 Columna;
    core::Int16 Fila; ///< rows fallen
    core::Int16 Valor; ///< the number shown

    int left() const { return 500 * Columna.value(); } ///< in twips
    int top() const { return 780 + 500 * Fila.value(); } ///< in twips
};

/// Everything that a game of number rain remembers.
struct RainState {
    static constexpr int Slots = 20;
    static constexpr int FullPoints = 100;
    static constexpr int FullLives = 3;

    core::Int16 Fase = 1;
    core::Int16 Puntos = FullPoints; ///< of the current phase
    core::Int16 PuntosTotales; ///< kept from the phases passed in this game
    core::Int16 Vidas = FullLives;
    core::Int16 Lanzados; ///< numbers launched in the current phase
    core::Int16 Aciertos; ///< right clicks since the screen was made, whatever the game
    core::Int16 PenaEscape;
    core::Int16 PenaError;
    std::array<bool, Slots> Libre; ///< the slot holds no number
    std::array<Gota, Slots> Gotas; ///< meaningful where the slot is not free
    std::vector<core::Int16> Objetivos; ///< to be eliminated in this phase
    std::vector<core::Int16> Otros; ///< to be left alone in this phase
};

enum class Difficulty { Facil, Normal, Dificil };

/// A message box that interrupts the game until NumberRain::answer() is called.
struct RainBox {
    enum class Kind { PhasePassed, LifeLost, GameOver };
    Kind kind; ///< GameOver is a question (yes or no), the others are reports
    QString title;
    QString text;
};

/// Who takes the keyboard focus: the start button, nobody in particular, a launched number.
enum class RainFocus { CbEmpezar, PbFoco, CbNave };

/// What a call asks of the screen besides showing the state: first the texts and the focus,
/// then the beeps, then the box.
struct RainStep {
    bool phasePrepared = false; ///< the instruction was written anew: select it whole
    std::optional<int> launched; ///< the slot whose number is new
    std::optional<RainFocus> focus;
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
    /// whose top edge is below height (twips) has escaped.
    NumberRain(core::RandomSource& random, int height);

    const RainState& state() const { return m_state; }
    QString caption() const { return m_caption; }
    QString instruction() const { return m_instruction; }
    QString pointsText() const { return m_pointsText; }
    QString livesText() const { return m_livesText; }
    bool running() const { return m_running; } ///< the clock is to tick
    bool waiting() const { return m_waiting; } ///< the start button is there
    bool over() const { return m_over; } ///< the pupil will not play again: close
    Difficulty difficulty() const { return m_difficulty; }
    int interval() const; ///< milliseconds from tick to tick

    /// Starts a new game at phase 1.
    RainStep chooseDifficulty(Difficulty difficulty);

    /// The pupil starts the rain.
    RainStep start();

    /// Lets the clock run without touching the start button.
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
    bool EsObjetivo(core::Int16 number) const;
    void CompruebaPuntos(int slot, bool porError);
    void FaseSuperada(core::Int16 total);
    bool MueveNumeros(int first);
    void runTick(int first);

    bool hit(const Gota& gota); ///< true when it passes the phase
    bool fallsOut(int slot);
    void drift(Gota& gota);
    void launchWhenDue();
    void launch(int slot);

    void ask(RainBox::Kind kind, const QString& title, const QString& text);
    void loseLife(bool porError);
    void newGame();
    void repeatPhase();
    void nextPhase();
    void wait();
    void release(int slot);
    void resetFirstSlots();
    void showPoints();
    void showFullPoints();
    void showLives();

    core::RandomSource& m_random;
    int m_height;
    RainState m_state;
    int m_ticks = 0; ///< since the last launch was due
    Difficulty m_difficulty = Difficulty::Facil;
    QString m_caption;
    QString m_instruction;
    QString m_pointsText;
    QString m_livesText;
    bool m_running = false;
    bool m_waiting = false;
    bool m_over = false;
    RainStep m_step; ///< what the call under way has asked for so far
    std::optional<RainBox::Kind> m_box; ///< open now
    std::optional<int> m_escaping; ///< the slot at which a box interrupted the tick
};

} // namespace games
