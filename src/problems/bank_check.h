#pragma once

#include "problems/template_faults.h"

#include <QStringList>

namespace core {
class RandomSource;
}

namespace problems {

class ExpressionEvaluator;

/// How often a line is drawn to be checked.
inline constexpr int TrialsPerLine = 1000;

/// Draws a line of a bank often and tells what is wrong with it: each kind of fault once, with
/// an example.
std::vector<TemplateFault> checkLine(
    const QString& line, core::RandomSource& random, const ExpressionEvaluator& evaluator);

/// What checking a whole bank has found.
struct BankReport {
    QString text; ///< Spanish, by line, and a summary; ends with a line end
    int faultyLines = 0;
};

BankReport checkBank(
    const QStringList& lines, core::RandomSource& random, const ExpressionEvaluator& evaluator);

} // namespace problems
