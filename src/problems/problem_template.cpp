#include "problems/problem_template.h"

#include "core/numbers.h"
#include "core/random.h"
#include "problems/expression.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

/// The first marker of a text: its place with and without the brackets around it.
struct Marker {
    QStringView whole;
    QStringView inner;
};

[[noreturn]] void fail(QStringView marker, const QString& what)
{
    constexpr qsizetype Longest = 80;
    const QString shown =
        marker.size() <= Longest ? marker.toString() : marker.first(Longest).toString() + u"…"_s;
    throw TemplateError(u"%1\n\nEstá en: %2"_s.arg(what, shown));
}

/// From the first opening to the first closing bracket; nothing when either is missing.
std::optional<Marker> firstMarker(QStringView text, QChar opening, QChar closing)
{
    const qsizetype first = text.indexOf(opening);
    const qsizetype last = first < 0 ? -1 : text.indexOf(closing);
    if (last < 0)
        return std::nullopt;
    if (last < first)
        fail(text.mid(last, first - last + 1),
            u"Hay un «%1» que ningún «%2» ha abierto."_s.arg(closing).arg(opening));
    return Marker{text.mid(first, last - first + 1), text.mid(first + 1, last - first - 1)};
}

qint32 drawDatum(QStringView limits, core::RandomSource& random)
{
    // Without '_' there is one limit for both.
    const int min = core::readInt16(limits).value();
    const int max = core::readInt16(limits.mid(limits.indexOf(u'_') + 1)).value();
    const int value = core::drawInteger(random, max - min + 1, min).value();
    // With the limits swapped the last step of the draw is left out: [9_2] gives 9 to 4.
    return max < min ? std::max(value, std::min(min, max + 2)) : value;
}

QString replaceData(QString text, DataValues& data, core::RandomSource& random)
{
    std::size_t drawn = 0;
    while (const auto marker = firstMarker(text, u'[', u']')) {
        if (drawn == data.size())
            fail(marker->whole, u"Hay más de 9 datos variables en el problema."_s);
        try {
            data[drawn] = drawDatum(marker->inner, random);
        } catch (const core::OverflowError& error) {
            fail(marker->whole, error.text());
        }
        text.replace(marker->whole.data() - text.constData(), marker->whole.size(),
            QString::number(data[drawn]));
        ++drawn;
    }
    return text;
}

QString withDataValues(const Marker& marker, const DataValues& data)
{
    QString expression = marker.inner.toString();
    for (auto at = expression.indexOf(u'&'); at >= 0; at = expression.indexOf(u'&')) {
        const QStringView digit = QStringView(expression).mid(at + 1, 1);
        const int number = core::readInt16(digit).value();
        if (number < 1 || number > int(data.size()))
            fail(marker.whole, u"Tras el signo & debe ir un número del 1 al 9."_s);
        expression.replace(u"&%1"_s.arg(number), QString::number(data[std::size_t(number) - 1]));
    }
    return expression;
}

QString wholeValue(
    const Marker& marker, QStringView expression, const ExpressionEvaluator& evaluator)
{
    try {
        return QString::number(core::toInt16(evaluator.evaluate(expression)).value());
    } catch (const core::Error& error) {
        fail(marker.whole, error.text());
    }
}

} // namespace

QString replaceMarkers(QString text, DataValues& data, core::RandomSource& random,
    const ExpressionEvaluator& evaluator)
{
    text = replaceData(std::move(text), data, random);
    while (const auto marker = firstMarker(text, u'{', u'}')) {
        const QString value = wholeValue(*marker, withDataValues(*marker, data), evaluator);
        text.replace(marker->whole.toString(), value);
    }
    while (const auto marker = firstMarker(text, u'(', u')')) {
        const QString value = wholeValue(*marker, marker->inner, evaluator);
        text.replace(marker->whole.toString(), value);
    }
    return text;
}

Problem InstanciarProblema(
    const QString& line, core::RandomSource& random, const ExpressionEvaluator& evaluator)
{
    Problem problem;
    problem.operations = CampoOperaciones(line).toString();
    const QString text = replaceMarkers(line, problem.data, random, evaluator);
    const qsizetype first = text.indexOf(u'|');
    if (first < 0)
        return problem;
    problem.statement = text.first(first);
    problem.unit = text.section(u'|', 2, 2);
    const QStringView afterStatement = QStringView(text).mid(first + 1);
    try {
        problem.answer = core::readInt32(afterStatement);
    } catch (const core::OverflowError& error) {
        fail(afterStatement, error.text());
    }
    return problem;
}

QStringView CampoOperaciones(QStringView line)
{
    return line.mid(line.lastIndexOf(u'|') + 1);
}

} // namespace problems
