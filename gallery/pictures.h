#pragma once

namespace gallery {

class Gallery;

// One function an activity, in a file of its own.
void addMenu(Gallery& gallery);
void addFillTheGap(Gallery& gallery);
void addMultiplicationTables(Gallery& gallery);
void addQuickTables(Gallery& gallery);
void addRace(Gallery& gallery);
void addRepeatedSum(Gallery& gallery);

} // namespace gallery
