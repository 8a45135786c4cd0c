#pragma once

#include "core/errors.h"

#include <QStringList>

#include <array>
#include <vector>

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

/// A {...} or (...) marker as it was worked out.
struct ComputedValue {
    QString marker; ///< with its brackets, as it stood once the data were drawn
    double value = 0; ///< before it was rounded
    int highestDatum = 0; ///< the highest n of its &n; 0 without any
};

/// A text whose markers have been replaced, and how.
struct WorkedOutText {
    QString text;
    DataValues data{};
    QStringList dataMarkers; ///< the [min_max] as written, those of &1, &2 …
    std::vector<ComputedValue> computed; ///< in the order in which they were worked out
};

/// The text with its [min_max], {...} and (...) markers replaced by whole numbers. Throws
/// TemplateError.
WorkedOutText replaceMarkers(
    const QString& text, core::RandomSource& random, const ExpressionEvaluator& evaluator);

/// The problem of a line that has been worked out. Throws TemplateError when its answer is
/// too large.
Problem problemOf(const QString& line, const WorkedOutText& worked);

/// What follows the last '|' of the line; the whole line when it has none. The result
/// points into the line.
QStringView CampoOperaciones(QStringView line);

} // namespace problems
