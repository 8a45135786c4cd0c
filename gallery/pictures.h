#pragma once

#include <QString>

namespace gallery {

class Gallery;

using Pictures = void (*)(Gallery& gallery);

/// What renders an activity, by the name of its screen; nullptr when there is nothing.
Pictures picturesOf(const QString& screen);

// One function an activity, in a file of its own.
void addMenu(Gallery& gallery);
void addMultiplicationTables(Gallery& gallery);
void addQuickTables(Gallery& gallery);
void addRepeatedSum(Gallery& gallery);
void addFillTheGap(Gallery& gallery);
void addLongMultiplication(Gallery& gallery);
void addLongDivision(Gallery& gallery);
void addCombinedOperations(Gallery& gallery);
void addMultiplesDivisors(Gallery& gallery);
void addProblems(Gallery& gallery);
void addProblemsEditor(Gallery& gallery);
void addNumberRain(Gallery& gallery);
void addRace(Gallery& gallery);

} // namespace gallery
