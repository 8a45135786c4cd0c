#pragma once

#include "core/int16.h"

#include <QString>

#include <array>

namespace games {

/// A car that can be driven in the race.
struct Car {
    QString caption; ///< as the lists of the options show it
    QString picture; ///< file name in the folder of the pictures
};

inline constexpr int Cars = 10;
inline constexpr int RaceTypes = 4;

/// What the operations of a race are, in the order of the list in the options.
enum class RaceType { Products, Quotients, ProductsPlusMinus, QuotientsPlusMinus };

/// The cars; a car's position is its identity throughout.
const std::array<Car, Cars>& carCatalogue();

/// The captions of the race types.
const std::array<QString, RaceTypes>& raceTypes();

/// The picture files as the screens keep them: the catalogue's, then empty names; both that and
/// the two spellings of some cars in the catalogue are meant.
using PictureNames = std::array<QString, 19>;
PictureNames pictureNames();

/// The picture file of the car at this position. Throws core::Error where there is no car.
QString pictureName(const PictureNames& names, core::Int16 position);

/// What the pupil has chosen before a race; positions from 0.
struct RaceOptions {
    core::Int16 Personaje; ///< the pupil's car
    core::Int16 Rival; ///< the rival's car
    core::Int16 Tipo; ///< the race type: the position of a RaceType
};

} // namespace games
