#pragma once

#include <QImage>

namespace games {

/// The colour of the road, which is also the background of every car's picture.
inline constexpr QRgb LaneGrey = 0xFF5C636B;

/// The car without the road around it: what has the lane's grey and is joined to the edge of
/// the picture becomes transparent, so that lines on the road show beside the car.
QImage withoutRoad(const QImage& picture);

} // namespace games
