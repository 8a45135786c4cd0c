#include "games/number_rain.h"

#include "core/defect.h"

#include <utility>

using core::Int16;

namespace games {

namespace {

/// What a difficulty decides. A penalty counts for each step of the number's speed class.
struct Setting {
    int interval; ///< milliseconds from tick to tick
    int penaEscape; ///< points for a right number that escapes
    int penaError; ///< points for a wrong number that is clicked
};

constexpr std::array Settings{
    Setting{800, 5, 1}, // Facil
    Setting{500, 5, 10}, // Normal
    Setting{300, 40, 10}, // Dificil
};

const Setting& settingOf(Difficulty difficulty)
{
    return core::at(Settings, static_cast<int>(difficulty));
}

} // namespace

NumberRain::NumberRain(core::RandomSource& random, int lastRow)
    : m_fall(random, lastRow)
{
    chooseDifficulty(Difficulty::Facil);
}

int NumberRain::interval() const
{
    return settingOf(m_difficulty).interval;
}

RainStep NumberRain::take()
{
    return std::exchange(m_step, {});
}

RainStep NumberRain::chooseDifficulty(Difficulty difficulty)
{
    if (blocked())
        return {};
    m_difficulty = difficulty;
    m_score.setPenalties(settingOf(difficulty).penaEscape, settingOf(difficulty).penaError);
    newGame();
    return take();
}

RainStep NumberRain::start()
{
    if (blocked())
        return {};
    m_waiting = false;
    m_running = true;
    return take();
}

void NumberRain::enableClock()
{
    if (!blocked())
        m_running = true;
}

RainStep NumberRain::tick()
{
    if (blocked())
        return {};
    m_fall.countTick();
    runTick(0);
    return take();
}

void NumberRain::runTick(int first)
{
    if (MueveNumeros(first))
        launchWhenDue();
}

// False when a box has interrupted the round; answer() takes it up again.
bool NumberRain::MueveNumeros(int first)
{
    for (int slot = first; slot < RainFall::Slots; ++slot) {
        if (core::at(m_fall.Libre(), slot) || !m_fall.move(slot))
            continue;
        CompruebaPuntos(slot, false);
        if (m_box) {
            m_escaping = slot;
            return false;
        }
        m_fall.release(slot);
    }
    return true;
}

void NumberRain::launchWhenDue()
{
    m_step.launched = m_fall.launchWhenDue(m_phase);
    if (m_step.launched)
        m_score.countLaunch();
}

RainStep NumberRain::click(int slot)
{
    if (blocked() || slot < 0 || slot >= RainFall::Slots || core::at(m_fall.Libre(), slot))
        return {};
    if (!m_phase.EsObjetivo(core::at(m_fall.Gotas(), slot).Valor))
        miss(slot);
    else if (hit(slot))
        return take();
    if (state().Puntos > 0) {
        m_score.showPoints();
        m_step.cleared = true;
        m_fall.release(slot);
    } else { // with exactly 0 points left the number stays and falls on: meant
        CompruebaPuntos(slot, true);
    }
    return take();
}

bool NumberRain::hit(int slot)
{
    report(RainEvent::Kind::Hit, slot, m_score.hit(core::at(m_fall.Gotas(), slot)));
    if (m_score.isPhasePassed())
        FaseSuperada();
    return m_score.isPhasePassed();
}

void NumberRain::miss(int slot)
{
    report(RainEvent::Kind::Miss, slot, m_score.miss(core::at(m_fall.Gotas(), slot)));
}

void NumberRain::report(RainEvent::Kind kind, int slot, Int16 points)
{
    m_step.events.push_back({kind, slot, core::at(m_fall.Gotas(), slot), points});
}

void NumberRain::CompruebaPuntos(int slot, bool porError)
{
    const Gota& gota = core::at(m_fall.Gotas(), slot);
    if (!porError) {
        const bool target = m_phase.EsObjetivo(gota.Valor);
        const Int16 points = m_score.escape(gota, target);
        m_step.beeps += target ? 1 : 0;
        report(RainEvent::Kind::Escape, slot, points);
    }
    if (state().Puntos >= 0)
        m_score.showPoints();
    else
        loseLife(porError);
}

void NumberRain::loseLife(bool porError)
{
    m_running = false;
    if (!m_score.loseLife()) {
        ask(RainBox::gameOver(state()));
        return;
    }
    ask(RainBox::lifeLost(porError));
}

void NumberRain::FaseSuperada()
{
    m_running = false;
    ask(RainBox::phasePassed(m_phase.Fase(), state()));
}

void NumberRain::ask(const RainBox& box)
{
    m_box = box.kind;
    m_step.box = box;
}

RainStep NumberRain::answer(bool yes)
{
    if (!m_box)
        return {};
    const RainBox::Kind box = *std::exchange(m_box, {});
    const std::optional<int> escaping = std::exchange(m_escaping, {});
    if (box == RainBox::Kind::GameOver && !yes) {
        m_over = true;
        return {};
    }
    switch (box) {
    case RainBox::Kind::PhasePassed:
        nextPhase();
        break;
    case RainBox::Kind::LifeLost:
        repeatPhase();
        break;
    case RainBox::Kind::GameOver:
        newGame();
        m_score.showPoints();
        break;
    }
    if (escaping) {
        m_fall.release(*escaping);
        runTick(*escaping + 1);
    }
    return take();
}

void NumberRain::PreparaFase(Int16 fase)
{
    m_phase = RainPhase(fase);
    m_step.phasePrepared = true;
}

void NumberRain::newGame()
{
    PreparaFase(1);
    m_score.beginGame();
    m_fall.resetFirstSlots();
    wait();
}

void NumberRain::repeatPhase()
{
    m_score.repeatPhase();
    m_fall.resetFirstSlots();
    wait();
}

void NumberRain::nextPhase()
{
    PreparaFase(m_phase.Fase() + 1);
    m_score.beginNextPhase();
    m_fall.resetFirstSlots();
    wait();
}

void NumberRain::wait()
{
    m_running = false;
    m_waiting = true;
    m_step.waits = true;
}

} // namespace games
