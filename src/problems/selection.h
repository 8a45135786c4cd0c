#pragma once

#include <QStringList>

#include <vector>

namespace problems {

/// Operations as bits: 1 '*', 2 '/', 4 '+', 8 '-'.
using OperationMask = quint8;

/// The operations that the operations field of a line names.
OperationMask operationsOf(QStringView line);

/// The operations of each line, in order.
std::vector<OperationMask> operationsOf(const QStringList& lines);

/// What the selection dialog counts: how many lines of its bank a choice leaves.
class ProblemSelection {
public:
    enum Option {
        NoOption = -1,
        AllTypes, ///< "Todos los tipos"
        AnySelected, ///< "Con alguna de las seleccionadas"
        AllSelected ///< "Con todas las seleccionadas"
    };

    void load(const QStringList& lines) { m_operations = operationsOf(lines); }

    /// Every line counts, the first one too, which is never drawn. All four operations
    /// count alike here.
    int ContarDisponibles(Option option, OperationMask checked) const;

    /// "12 enunciados disponibles"
    static QString availableText(int count);

private:
    std::vector<OperationMask> m_operations;
};

} // namespace problems
