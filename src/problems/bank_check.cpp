#include "problems/bank_check.h"

#include "problems/bank_editor.h"
#include "problems/problem_template.h"
#include "problems/used_operations.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

using Faults = std::vector<TemplateFault>;

const std::array OperationNames{u"Mult"_s, u"Div"_s, u"Sum"_s, u"Rest"_s};

void addNew(Faults& faults, const TemplateFault& fault)
{
    const auto isSameKind = [&](const TemplateFault& known) { return known.kind == fault.kind; };
    if (std::ranges::none_of(faults, isSameKind))
        faults.push_back(fault);
}

/// Words that end like a plural and are none.
bool looksPlural(const QString& word)
{
    static const QSet<QString> singular{u"mes"_s, u"autobús"_s, u"microbús"_s, u"bus"_s,
        u"lunes"_s, u"martes"_s, u"miércoles"_s, u"jueves"_s, u"viernes"_s, u"dos"_s, u"tres"_s,
        u"seis"_s, u"más"_s, u"menos"_s, u"después"_s, u"es"_s, u"paraguas"_s, u"gas"_s,
        u"compás"_s, u"país"_s, u"cumpleaños"_s, u"interés"_s};
    return word.endsWith(u's') && !singular.contains(word.toLower());
}

/// The "1 cajas" of a text; empty without any.
QString singularBeforePlural(const QString& text)
{
    static const QRegularExpression one(
        u"(?<![\\d.,:])1 (\\p{L}+)"_s, QRegularExpression::UseUnicodePropertiesOption);
    if (!text.contains(u"1 "_s))
        return {};
    for (const auto& match : one.globalMatch(text)) {
        if (looksPlural(match.captured(1)))
            return match.captured();
    }
    return {};
}

void addMalformed(Faults& faults, const QString& line)
{
    const auto separators = line.count(u'|');
    if (separators != 3)
        addNew(faults,
            {Fault::Unreadable, u"Los separadores «|» han de ser 3 y hay %1."_s.arg(separators)});
    else if (line.section(u'|', 1, 1).trimmed().isEmpty())
        addNew(faults, {Fault::Unreadable, u"Falta el resultado."_s});
    for (const TemplateFault& fault : faultsOf(splitLine(line)))
        addNew(faults, fault);
}

void addMarks(Faults& faults, const QString& line)
{
    const OperationMask marked = operationsOf(QStringView(line));
    if (marked == 0)
        addNew(faults, {Fault::Unreadable, u"No tiene ninguna operación marcada."_s});
    const unsigned unused = marked & ~unsigned(usedOperations(line));
    QStringList names;
    for (std::size_t k = 0; k < OperationNames.size(); ++k) {
        if ((unused >> k & 1U) != 0)
            names << u"«%1»"_s.arg(OperationNames[k]);
    }
    if (!names.isEmpty())
        addNew(faults,
            {Fault::UnusedMark,
                u"Está marcado con %1 y el resultado no lo usa."_s.arg(names.join(u" y "_s))});
}

/// The problem as it would be read: statement, then answer with its unit.
QString readAloud(const Problem& problem)
{
    return u"%1\n%2 %3"_s.arg(problem.statement, QString::number(problem.answer), problem.unit);
}

void addFaultsOf(Faults& faults, const WorkedOutText& worked, const QString& shown)
{
    for (TemplateFault& fault : faultsOf(worked)) {
        const bool dependsOnData = fault.kind == Fault::Rounded || fault.kind == Fault::Negative;
        if (dependsOnData && !worked.dataMarkers.isEmpty())
            fault.text += u" Por ejemplo, con %1."_s.arg(dataText(worked));
        addNew(faults, fault);
    }
    if (const QString found = singularBeforePlural(shown); !found.isEmpty())
        addNew(faults, {Fault::SingularBeforePlural, u"Puede salir «%1»."_s.arg(found)});
}

} // namespace

std::vector<TemplateFault> checkLine(
    const QString& line, core::RandomSource& random, const ExpressionEvaluator& evaluator)
{
    Faults faults;
    addMalformed(faults, line);
    QSet<QString> seen;
    for (int round = 0; round < TrialsPerLine; ++round) {
        try {
            const WorkedOutText worked = replaceMarkers(line, random, evaluator);
            const QString shown = readAloud(problemOf(line, worked));
            seen.insert(shown);
            addFaultsOf(faults, worked, shown);
        } catch (const TemplateError& error) {
            QString reason = error.text();
            addNew(faults, {Fault::Unreadable, reason.replace(u"\n\n"_s, u" "_s)});
        }
    }
    if (seen.size() == 1)
        addNew(faults, {Fault::NeverVaries, u"Sale siempre igual: no tiene datos variables."_s});
    addMarks(faults, line);
    return faults;
}

BankReport checkBank(
    const QStringList& lines, core::RandomSource& random, const ExpressionEvaluator& evaluator)
{
    BankReport report;
    for (qsizetype at = 0; at < lines.size(); ++at) {
        const Faults faults = checkLine(lines.at(at), random, evaluator);
        if (faults.empty())
            continue;
        ++report.faultyLines;
        report.text += u"Línea %1: %2\n"_s.arg(at + 1).arg(lines.at(at));
        for (const TemplateFault& fault : faults)
            report.text += u"  - %1\n"_s.arg(fault.text);
    }
    report.text +=
        u"Problemas leídos: %1. Con faltas: %2.\n"_s.arg(lines.size()).arg(report.faultyLines);
    return report;
}

} // namespace problems
