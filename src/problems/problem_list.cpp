#include "problems/problem_list.h"

namespace problems {

namespace {

constexpr double CornerMargin = 3; // pixels at factor 1

} // namespace

ProblemList::ProblemList(QWidget* parent)
    : ListBox(parent, Start::Flush)
{
}

void ProblemList::setFactor(double factor)
{
    const int corner = qRound(CornerMargin * factor);
    setViewportMargins(corner, corner, corner, corner);
}

} // namespace problems
