#include "problems/problem_list.h"

#include "ui/look.h"

namespace problems {

ProblemList::ProblemList(QWidget* parent)
    : ListBox(parent, Start::Flush)
{
}

void ProblemList::setFactor(double factor)
{
    const int corner = qRound(ui::look::CornerMargin * factor);
    setViewportMargins(corner, corner, corner, corner);
}

} // namespace problems
