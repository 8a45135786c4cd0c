#pragma once

#include "core/defect.h"
#include "games/number_rain.h"
#include "support/scripted_random.h"

#include <algorithm>

/// Whether a step leaves the keyboard focus where it is.
inline bool asksNoFocus(const games::RainStep& step)
{
    return !step.cleared && !step.waits && !step.launched;
}

/// A game of number rain whose every draw is scripted, with shortcuts to the state a test needs.
class RainGame {
public:
    static constexpr float Never = 0.999f; ///< a draw that starts no drift
    static constexpr int Deep = 60; ///< rows out of which nothing escapes soon

    explicit RainGame(int lastRow = Deep)
        : rain(random, lastRow)
    {
    }

    const games::RainState& state() const { return rain.state(); }
    const games::Gota& gota(int slot) const { return core::at(rain.fall().Gotas(), slot); }

    /// A tick for which these draws are scripted; every one of them must be used up.
    games::RainStep tick(std::initializer_list<float> draws = {})
    {
        random.append(draws);
        ++ticks;
        const auto step = rain.tick();
        if (!step.box && random.left() > 0)
            throw std::runtime_error("a tick has left draws");
        return step;
    }

    /// A tick in which no number starts to drift. Must not be one that launches.
    games::RainStep calmTick()
    {
        calm();
        return tick();
    }

    void calmTicks(int count)
    {
        while (count-- > 0)
            calmTick();
    }

    /// Ticks up to the next launch, which brings this number; gives the slot it takes.
    int launch(int columna, int velocidad, int valor)
    {
        while (ticks % 6 != 5)
            calmTick();
        const int slot = firstFree();
        calm();
        scriptLaunch(columna, velocidad, valor);
        tick();
        return slot;
    }

    /// The four draws of a launch.
    void scriptLaunch(int columna, int velocidad, int valor)
    {
        random.appendInteger(columna, 19, 1);
        random.appendInteger(velocidad, 5, 1);
        const bool target = contains(rain.phase().Objetivos(), valor);
        const auto& list = target ? rain.phase().Objetivos() : rain.phase().Otros();
        random.append({target ? 0.0f : 0.9f});
        const auto place = std::ranges::find(list, core::Int16(valor)) - list.begin();
        random.appendInteger(static_cast<int>(place) + 1, static_cast<int>(list.size()), 1);
    }

    /// Scripts for every number that is due to step that it does not start to drift.
    void calm()
    {
        for (int slot = 0; slot < games::RainFall::Slots; ++slot)
            if (!core::at(rain.fall().Libre(), slot) && gota(slot).Espera == 1
                && gota(slot).Deriva <= 0)
                random.append({Never});
    }

    /// Launches a number and clicks it at once.
    games::RainStep shoot(int velocidad, int valor)
    {
        return rain.click(launch(15, velocidad, valor));
    }

    /// Plays to the start of a phase from 2 with right clicks only.
    void reachPhase(int fase)
    {
        rain.start();
        while (rain.phase().Fase() < fase) {
            if (shoot(1, rain.phase().Objetivos().front().value()).box)
                rain.answer();
        }
    }

    int firstFree() const
    {
        return static_cast<int>(
            std::ranges::find(rain.fall().Libre(), true) - rain.fall().Libre().begin());
    }

    int taken() const { return static_cast<int>(std::ranges::count(rain.fall().Libre(), false)); }

    static bool contains(const std::vector<core::Int16>& list, int number)
    {
        return std::ranges::find(list, core::Int16(number)) != list.end();
    }

    ScriptedRandom random;
    games::NumberRain rain;
    int ticks = 0;
};
