#pragma once

namespace gallery {

class Gallery;

// One function an activity, in a file of its own.
void addMenu(Gallery& gallery);
void addMultiplicationTables(Gallery& gallery);
void addProblems(Gallery& gallery);
void addProblemsEditor(Gallery& gallery);

} // namespace gallery
