#include "problems/selection.h"

#include "problems/problem_template.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

bool isAvailable(OperationMask operations, ProblemSelection::Option option, OperationMask checked)
{
    switch (option) {
    case ProblemSelection::AllTypes:
        return true;
    case ProblemSelection::AnySelected:
        return (operations & checked) != 0;
    case ProblemSelection::AllSelected:
        return (operations & checked) == checked;
    case ProblemSelection::NoOption:
        break;
    }
    return false;
}

} // namespace

OperationMask operationsOf(QStringView line)
{
    const QStringView field = CampoOperaciones(line);
    OperationMask mask = 0;
    for (std::size_t k = 0; k < OperationSigns.size(); ++k) {
        if (field.contains(OperationSigns[k]))
            mask = static_cast<OperationMask>(mask | 1U << k);
    }
    return mask;
}

std::vector<OperationMask> operationsOf(const QStringList& lines)
{
    std::vector<OperationMask> masks;
    masks.reserve(static_cast<std::size_t>(lines.size()));
    for (const QString& line : lines)
        masks.push_back(operationsOf(QStringView(line)));
    return masks;
}

int ProblemSelection::ContarDisponibles(Option option, OperationMask checked) const
{
    return static_cast<int>(std::count_if(m_operations.begin(), m_operations.end(),
        [&](OperationMask operations) { return isAvailable(operations, option, checked); }));
}

QString ProblemSelection::availableText(int count)
{
    return u"%1 enunciados disponibles"_s.arg(count);
}

} // namespace problems
