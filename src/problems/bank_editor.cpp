#include "problems/bank_editor.h"

#include "problems/problem_template.h"
#include "problems/template_faults.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

constexpr std::size_t Multiplication = 0;
constexpr std::size_t Division = 1;
constexpr std::size_t Addition = 2;
constexpr std::size_t Subtraction = 3;

/// Without the blanks at its ends; other white space belongs to the text.
QStringView trimBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

/// Where it cannot be worked out, the notes come first: they name the cause more plainly.
WorkedOutText workOut(const QString& text, const QStringList& notes, core::RandomSource& random,
    const ExpressionEvaluator& evaluator)
{
    try {
        return replaceMarkers(text, random, evaluator);
    } catch (const TemplateError& error) {
        throw TemplateError((notes + QStringList{error.text()}).join(u"\n\n"_s));
    }
}

} // namespace

TemplateFields splitLine(const QString& line)
{
    const QString operations = line.section(u'|', 3);
    TemplateFields fields{
        line.section(u'|', 0, 0), line.section(u'|', 1, 1), line.section(u'|', 2, 2), {}};
    for (std::size_t k = 0; k < OperationSigns.size(); ++k)
        fields.operations[k] = operations.contains(OperationSigns[k]);
    return fields;
}

QString joinLine(const TemplateFields& fields)
{
    QString line;
    for (const QString& text : {fields.statement, fields.answer, fields.unit})
        line.append(trimBlanks(text)).append(u'|');
    for (std::size_t k = 0; k < OperationSigns.size(); ++k) {
        if (fields.operations.at(k))
            line += OperationSigns[k];
    }
    return line;
}

bool hasLooseAmpersand(QStringView text)
{
    return text.contains(u"& ");
}

QString statementFault(const TemplateFields& fields)
{
    if (!hasLooseAmpersand(fields.statement))
        return {};
    return u"Hay una expresión incorrecta en el enunciado. "
           "No debe dejar espacios entre el signo & y el número que lo sigue."_s;
}

QString answerFault(const TemplateFields& fields)
{
    if (!hasLooseAmpersand(fields.answer))
        return {};
    // The blank at the end is meant, here alone.
    return u"Hay una expresión incorrecta en el resultado. "
           "No debe dejar espacios entre el signo & y el número que lo sigue. "_s;
}

void markFromStatement(TemplateFields& fields)
{
    fields.operations[Division] = fields.statement.contains(u'(');
    fields.operations[Addition] = fields.statement.contains(u'+');
    fields.operations[Subtraction] = fields.statement.contains(u'-');
}

void markFromAnswer(TemplateFields& fields)
{
    if (fields.answer.contains(u'*'))
        fields.operations[Multiplication] = true;
}

TryOut tryOut(const TemplateFields& fields, core::RandomSource& random,
    const ExpressionEvaluator& evaluator)
{
    // The blank behind the first word is meant.
    const QString text = u"Enunciado \r\n"_s + fields.statement + u"\r\nRespuesta\r\n"_s
        + fields.answer + u"\r\n"_s + fields.unit;
    QStringList notes;
    for (const TemplateFault& fault : faultsOf(fields))
        notes << fault.text;
    const WorkedOutText worked = workOut(text, notes, random, evaluator);
    for (const TemplateFault& fault : faultsOf(worked))
        notes << fault.text;
    if (!notes.isEmpty() && !worked.dataMarkers.isEmpty())
        notes << u"Datos: %1."_s.arg(dataText(worked));
    return {worked.text, notes.join(u'\n')};
}

QString separatorRefusal()
{
    return u"El signo | separa los campos de un problema en el archivo. "
           "No puede escribirlo dentro de un campo."_s;
}

QString BankEditor::refusal(const TemplateFields& fields)
{
    if (std::ranges::count(fields.operations, true) == 0)
        return u"Marque al menos una de las 4 operaciones"_s;
    for (const QString& text : {fields.statement, fields.answer, fields.unit}) {
        if (text.contains(u'|'))
            return separatorRefusal();
    }
    return {};
}

TemplateFields BankEditor::show(int entry)
{
    TemplateFields shown = splitLine(line(entry));
    m_saved = joinLine(shown);
    return shown;
}

bool BankEditor::isUnsaved(const TemplateFields& fields) const
{
    const bool isEmpty =
        fields.statement.isEmpty() && fields.answer.isEmpty() && fields.unit.isEmpty();
    return !isEmpty && joinLine(fields) != m_saved;
}

int BankEditor::store(int entry, const TemplateFields& fields)
{
    const int stored = std::max(entry, 0);
    if (stored >= m_lines.size())
        m_lines.resize(stored + 1);
    m_saved = joinLine(fields);
    m_lines[stored] = m_saved;
    return stored;
}

void BankEditor::remove(int entry)
{
    if (!isLine(entry))
        return;
    m_lines.removeAt(entry);
    m_saved.clear(); // what the boxes still show is nowhere else now
}

} // namespace problems
