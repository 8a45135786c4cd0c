#pragma once

#include <QIcon>
#include <QList>
#include <QSize>
#include <QStringList>

namespace games {

/// The size of a car in a list, in pixels at factor 1.
inline constexpr QSize ListedCar(84, 36);

/// The cars in these files of a folder, for a list: each the same whether its line is selected or
/// not, empty where its picture cannot be read. A thread of its own reads them while the list is
/// made, laid out and shown; the icons wait for it when they are first looked at.
QList<QIcon> listedCars(const QString& folder, const QStringList& fileNames);

} // namespace games
