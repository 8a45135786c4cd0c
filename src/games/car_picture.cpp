#include "games/car_picture.h"

#include <QPoint>

#include <cstdlib>
#include <vector>

namespace games {

namespace {

constexpr int Tolerance = 10; // JPEG never gives a colour back exactly

bool isRoad(QRgb pixel)
{
    return qAlpha(pixel) == 255 && std::abs(qRed(pixel) - qRed(LaneGrey)) <= Tolerance
        && std::abs(qGreen(pixel) - qGreen(LaneGrey)) <= Tolerance
        && std::abs(qBlue(pixel) - qBlue(LaneGrey)) <= Tolerance;
}

std::vector<QPoint> edgeOf(const QRect& area)
{
    std::vector<QPoint> edge;
    for (int x = area.left(); x <= area.right(); ++x) {
        edge.emplace_back(x, area.top());
        edge.emplace_back(x, area.bottom());
    }
    for (int y = area.top(); y <= area.bottom(); ++y) {
        edge.emplace_back(area.left(), y);
        edge.emplace_back(area.right(), y);
    }
    return edge;
}

} // namespace

QImage withoutRoad(const QImage& picture)
{
    QImage car = picture.convertToFormat(QImage::Format_ARGB32);
    std::vector<QPoint> open = edgeOf(car.rect());
    while (!open.empty()) {
        const QPoint point = open.back();
        open.pop_back();
        if (!car.rect().contains(point))
            continue;
        if (!isRoad(car.pixel(point)))
            continue;
        car.setPixel(
            point, LaneGrey & 0x00FFFFFF); // its colour, so that scaling makes no dark fringe
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            open.push_back(point + step);
    }
    return car;
}

} // namespace games
