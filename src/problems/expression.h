#pragma once

#include "core/errors.h"

#include <QString>

namespace problems {

/// An expression that has no value.
class ExpressionError : public core::Error {
public:
    ExpressionError(const QString& text, qsizetype position)
        : Error(text)
        , m_position(position)
    {
    }

    /// The character at which the expression goes wrong, the first being 1; one past the
    /// last where something is missing at the end.
    qsizetype position() const { return m_position; }

private:
    qsizetype m_position;
};

/// Evaluates arithmetic over decimal numbers (2, 2.5) with brackets and, from the tightest
/// to the loosest: ^, unary minus, * and /, \ (whole division), Mod, + and -. Operators of
/// one rank go from left to right; \ and Mod round their operands half to even first.
class ExpressionEvaluator {
public:
    static constexpr int DeepestBrackets = 200;

    /// The one language it knows is "VBScript"; any other throws core::Error.
    explicit ExpressionEvaluator(const QString& language);

    /// The finite value of the whole text; blanks between its parts are skipped. Throws
    /// ExpressionError when it is malformed, divides by zero or leaves the range.
    double evaluate(QStringView expression) const;
};

} // namespace problems
