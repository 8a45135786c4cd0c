#pragma once

namespace gallery {

class Gallery;

// One function an activity, in a file of its own.
void addLongDivision(Gallery& gallery);
void addLongMultiplication(Gallery& gallery);
void addMenu(Gallery& gallery);
void addCombinedOperations(Gallery& gallery);
void addFillTheGap(Gallery& gallery);
void addMultiplesDivisors(Gallery& gallery);
void addMultiplicationTables(Gallery& gallery);
void addProblems(Gallery& gallery);
void addProblemsEditor(Gallery& gallery);
void addQuickTables(Gallery& gallery);
void addRace(Gallery& gallery);
void addRepeatedSum(Gallery& gallery);
void addNumberRain(Gallery& gallery);

} // namespace gallery
