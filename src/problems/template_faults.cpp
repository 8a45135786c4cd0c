#include "problems/template_faults.h"

#include "core/defect.h"
#include "core/numbers.h"
#include "problems/bank_editor.h"
#include "problems/problem_template.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

QString asWritten(double value)
{
    return core::generalText(value, QLocale(QLocale::Spanish, QLocale::Spain));
}

/// Where a bracket of a kind that is never nested is not closed or closes nothing.
QString bracketFault(const QString& text, QChar opening, QChar closing)
{
    bool open = false;
    for (const QChar character : text) {
        if (character == opening && open)
            break;
        if (character == closing && !open)
            return u"Hay un «%1» que no cierra nada"_s.arg(closing);
        if (character == opening || character == closing)
            open = character == opening;
    }
    return open ? u"Falta cerrar un «%1»"_s.arg(opening) : QString();
}

/// The first marker that is no [min_max]; empty without any.
QString malformedDatum(const QString& text)
{
    static const QRegularExpression datum(u"\\[[^]]*\\]"_s);
    static const QRegularExpression shape(u"^\\[\\s*-?\\d+\\s*_\\s*-?\\d+\\s*\\]$"_s);
    for (const auto& match : datum.globalMatch(text)) {
        if (!shape.match(match.captured()).hasMatch())
            return match.captured();
    }
    return {};
}

void addMarkers(std::vector<TemplateFault>& faults, const QString& text, const QString& where)
{
    const QString data = bracketFault(text, u'[', u']');
    for (const QString& fault : {data, bracketFault(text, u'{', u'}')}) {
        if (!fault.isEmpty())
            faults.push_back({Fault::Unreadable, u"%1 en %2."_s.arg(fault, where)});
    }
    if (const QString datum = malformedDatum(text); data.isEmpty() && !datum.isEmpty())
        faults.push_back({Fault::Unreadable,
            u"%1 no se entiende: un dato se escribe [mínimo_máximo]."_s.arg(datum)});
}

void addLooseParenthesis(std::vector<TemplateFault>& faults, const QString& text)
{
    if (text.contains(u'('))
        faults.push_back({Fault::Unreadable, u"Falta cerrar un «(»."_s});
    else if (text.contains(u')'))
        faults.push_back({Fault::Unreadable, u"Hay un «)» que no cierra nada."_s});
}

void addLooseData(std::vector<TemplateFault>& faults, const QString& text)
{
    static const QRegularExpression loose(u"&[1-9]"_s);
    if (!text.contains(u'&'))
        return;
    if (const auto match = loose.match(text); match.hasMatch())
        faults.push_back({Fault::Unreadable,
            u"%1 está fuera de unas llaves y no se cambia por el dato."_s.arg(match.captured())});
}

void addMissingData(std::vector<TemplateFault>& faults, const WorkedOutText& worked)
{
    for (const ComputedValue& computed : worked.computed) {
        if (computed.highestDatum > worked.dataMarkers.size())
            faults.push_back({Fault::MissingDatum,
                u"%1 usa el dato &%2, que no existe y vale 0."_s.arg(computed.marker)
                    .arg(computed.highestDatum)});
    }
}

void addRounded(std::vector<TemplateFault>& faults, const WorkedOutText& worked)
{
    for (const ComputedValue& computed : worked.computed) {
        if (computed.value != std::floor(computed.value))
            faults.push_back({Fault::Rounded,
                u"%1 da %2 y se redondea a %3."_s.arg(computed.marker, asWritten(computed.value),
                    asWritten(core::roundHalfEven(computed.value)))});
    }
}

void addNegative(std::vector<TemplateFault>& faults, const WorkedOutText& worked)
{
    const auto add = [&](const QString& marker, double value) {
        if (value < 0)
            faults.push_back(
                {Fault::Negative, u"%1 da %2, menos que cero."_s.arg(marker, asWritten(value))});
    };
    for (qsizetype k = 0; k < worked.dataMarkers.size(); ++k)
        add(worked.dataMarkers.at(k), core::at(worked.data, k));
    for (const ComputedValue& computed : worked.computed)
        add(computed.marker, computed.value);
}

} // namespace

std::vector<TemplateFault> faultsOf(const TemplateFields& fields)
{
    std::vector<TemplateFault> faults;
    addMarkers(faults, fields.statement, u"el enunciado"_s);
    addMarkers(faults, fields.answer, u"el resultado"_s);
    addMarkers(faults, fields.unit, u"la unidad"_s);
    return faults;
}

std::vector<TemplateFault> faultsOf(const WorkedOutText& worked)
{
    std::vector<TemplateFault> faults;
    addLooseParenthesis(faults, worked.text);
    addLooseData(faults, worked.text);
    addMissingData(faults, worked);
    addRounded(faults, worked);
    addNegative(faults, worked);
    return faults;
}

QString dataText(const WorkedOutText& worked)
{
    QStringList data;
    for (qsizetype k = 0; k < worked.dataMarkers.size(); ++k)
        data << u"&%1 = %2"_s.arg(k + 1).arg(core::at(worked.data, k));
    return data.join(u", "_s);
}

} // namespace problems
