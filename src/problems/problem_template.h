#pragma once

#include "core/errors.h"

#include <QString>

#include <array>

namespace core {
class RandomSource;
}

namespace problems {

class ExpressionEvaluator;

/// The values of &1 to &9; a datum that the line does not draw is 0.
using DataValues = std::array<qint32, 9>;

/// The signs of the operations field, in the order of every array of four operations.
inline constexpr std::array<char16_t, 4> OperationSigns{u'*', u'/', u'+', u'-'};

/// A template with its data drawn and its expressions worked out.
struct Problem {
    QString statement;
    qint32 answer = 0;
    QString unit;
    QString operations; ///< as the line has it
    DataValues data{};
};

/// A template that cannot be worked out; the text quotes the marker at fault.
class TemplateError : public core::Error {
public:
    using Error::Error;
};

/// Draws the data of a line "statement|answer|unit|operations" and works out its computed
/// values. Throws TemplateError.
Problem InstanciarProblema(
    const QString& line, core::RandomSource& random, const ExpressionEvaluator& evaluator);

/// The text with its [min_max], {...} and (...) markers replaced by whole numbers; data
/// receives the values drawn. Throws TemplateError.
QString replaceMarkers(QString text, DataValues& data, core::RandomSource& random,
    const ExpressionEvaluator& evaluator);

/// What follows the last '|' of the line; the whole line when it has none. The result
/// points into the line.
QStringView CampoOperaciones(QStringView line);

} // namespace problems
