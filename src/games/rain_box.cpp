#include "games/rain_box.h"

using namespace Qt::StringLiterals;

namespace games {

RainBox RainBox::phasePassed(core::Int16 phase, const RainState& state)
{
    return {Kind::PhasePassed, u"FASE SUPERADA"_s,
        u"Ha superado la fase %1.\nEn esta fase ha conseguido %2 puntos y en total lleva %3 "
        "puntos acumulados."_s.arg(phase.value())
            .arg(state.Puntos.value())
            .arg(state.PuntosTotales.value())};
}

RainBox RainBox::lifeLost(bool porError)
{
    return {Kind::LifeLost, u"Lluvia de números"_s,
        porError ? u"Has cometido demasiados errores y pierdes una vida. "
                   "Deberás volver a empezar esta fase."_s
                 : u"Has dejado escapar demasiados números y pierdes una vida. "
                   "Deberás volver a empezar esta fase."_s};
}

RainBox RainBox::gameOver(const RainState& state)
{
    return {Kind::GameOver, u"GAME OVER"_s,
        u"En esta partida has conseguido %1 puntos. \n¿Deseas volver a jugar?"_s.arg(
            state.PuntosTotales.value())};
}

} // namespace games
