#pragma once

#include <QIcon>
#include <QImage>

namespace games {

/// The colour of the road, which is also the background of every car's picture.
inline constexpr QRgb LaneGrey = 0xFF5C636B;

/// The car without the road around it: what has the lane's grey and is joined to the edge of
/// the picture becomes transparent, so that lines on the road show beside the car.
QImage withoutRoad(const QImage& picture);

/// The size of a car in a list, in pixels at factor 1.
inline constexpr QSize ListedCar(84, 36);

/// The car in this file of a folder, for a list: the same whether its line is selected or not.
/// Empty where the picture cannot be read: who needs it will hear of it when it is chosen.
QIcon listedCar(const QString& folder, const QString& fileName);

} // namespace games
