#include "games/car_catalogue.h"

#include "core/defect.h"
#include "core/errors.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace games {

const std::array<Car, Cars>& carCatalogue()
{
    static const std::array<Car, Cars> cars{{
        {u"Swift rojo"_s, u"01 _ Swift rojo.jpg"_s},
        {u"Coche blanco"_s, u"02 _ Blanco.jpg"_s},
        {u"Coche azul"_s, u"03 _ Azul.jpg"_s},
        {u"Furgoneta blanca"_s, u"04 _ Furgoneta blanca.jpg"_s},
        {u"Furgoneta negra"_s, u"05 _ Furgoneta negra.jpg"_s},
        {u"Todo-terreno rojo"_s, u"06 _ Todoterrenorojo.jpg"_s},
        {u"Skoda octavia amarillo"_s, u"07 _ Skoda octavia amarillo.jpg"_s},
        {u"Alfa romeo"_s, u"08 _ Alfa romeo.jpg"_s},
        {u"Coche blanco tunning"_s, u"09 _ Blancotunning.jpg"_s},
        {u"Fórmula 1"_s, u"10 _ Formula 1.jpg"_s},
    }};
    return cars;
}

const std::array<QString, RaceTypes>& raceTypes()
{
    static const std::array<QString, RaceTypes> types{
        u"Multiplicaciones"_s, u"Divisiones"_s, u"Combinaciones x+-"_s, u"Combinaciones /+-"_s};
    return types;
}

PictureNames pictureNames()
{
    PictureNames names;
    std::ranges::transform(carCatalogue(), names.begin(), &Car::picture);
    return names;
}

QString pictureName(const PictureNames& names, core::Int16 position)
{
    const int index = position.value();
    if (index < 0 || index >= Cars)
        throw core::Error(u"No hay ningún coche elegido. Elige uno en «Opciones»."_s);
    return core::at(names, index);
}

} // namespace games
