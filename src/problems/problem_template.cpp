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

qint32 randomDatum(QStringView limits, core::RandomSource& random)
{
    // Without '_' there is one limit for both.
    const int min = core::readInt16(limits).value();
    const int max = core::readInt16(limits.mid(limits.indexOf(u'_') + 1)).value();
    const int value = core::randomInteger(random, max - min + 1, min).value();
    // With the limits swapped the last step of the draw is left out: [9_2] gives 9 to 4.
    return max < min ? std::max(value, std::min(min, max + 2)) : value;
}

void replaceData(WorkedOutText& worked, core::RandomSource& random)
{
    QString& text = worked.text;
    while (const auto marker = firstMarker(text, u'[', u']')) {
        const auto drawn = static_cast<std::size_t>(worked.dataMarkers.size());
        if (drawn == worked.data.size())
            fail(marker->whole, u"Hay más de 9 datos variables en el problema."_s);
        try {
            worked.data[drawn] = randomDatum(marker->inner, random);
        } catch (const core::OverflowError& error) {
            fail(marker->whole, error.text());
        }
        worked.dataMarkers.append(marker->whole.toString());
        text.replace(marker->whole.data() - text.constData(), marker->whole.size(),
            QString::number(worked.data[drawn]));
    }
}

QString withDataValues(const Marker& marker, const DataValues& data, int& highestDatum)
{
    QString expression = marker.inner.toString();
    for (auto at = expression.indexOf(u'&'); at >= 0; at = expression.indexOf(u'&')) {
        const QStringView digit = QStringView(expression).mid(at + 1, 1);
        const int number = core::readInt16(digit).value();
        if (number < 1 || number > int(data.size()))
            fail(marker.whole, u"Tras el signo & debe ir un número del 1 al 9."_s);
        highestDatum = std::max(highestDatum, number);
        expression.replace(u"&%1"_s.arg(number), QString::number(data[std::size_t(number) - 1]));
    }
    return expression;
}

/// Replaces every marker like this one by the whole value of the expression.
void replaceComputed(WorkedOutText& worked, const Marker& marker, QStringView expression,
    int highestDatum, const ExpressionEvaluator& evaluator)
{
    try {
        const QString whole = marker.whole.toString();
        const double value = evaluator.evaluate(expression);
        worked.text.replace(whole, QString::number(core::toInt16(value).value()));
        worked.computed.push_back({whole, value, highestDatum});
    } catch (const core::Error& error) {
        fail(marker.whole, error.text());
    }
}

} // namespace

WorkedOutText replaceMarkers(
    const QString& text, core::RandomSource& random, const ExpressionEvaluator& evaluator)
{
    WorkedOutText worked{text, {}, {}, {}};
    replaceData(worked, random);
    while (const auto marker = firstMarker(worked.text, u'{', u'}')) {
        int highestDatum = 0;
        const QString expression = withDataValues(*marker, worked.data, highestDatum);
        replaceComputed(worked, *marker, expression, highestDatum, evaluator);
    }
    while (const auto marker = firstMarker(worked.text, u'(', u')'))
        replaceComputed(worked, *marker, marker->inner, 0, evaluator);
    return worked;
}

Problem problemOf(const QString& line, const WorkedOutText& worked)
{
    Problem problem;
    problem.operations = CampoOperaciones(line).toString();
    problem.data = worked.data;
    const QString& text = worked.text;
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

Problem InstanciarProblema(
    const QString& line, core::RandomSource& random, const ExpressionEvaluator& evaluator)
{
    return problemOf(line, replaceMarkers(line, random, evaluator));
}

QStringView CampoOperaciones(QStringView line)
{
    return line.mid(line.lastIndexOf(u'|') + 1);
}

} // namespace problems
