#include "problems/used_operations.h"

#include "problems/bank_editor.h"
#include "problems/problem_template.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

constexpr OperationMask Multiplication = 1;
constexpr OperationMask Division = 2;
constexpr OperationMask Addition = 4;
constexpr OperationMask Subtraction = 8;
constexpr OperationMask All = Multiplication | Division | Addition | Subtraction;

/// The line with each datum as the &n that stands for it.
QString withNumberedData(QString line)
{
    static const QRegularExpression datum(u"\\[[^]]*\\]"_s);
    int number = 0;
    for (auto match = datum.match(line); match.hasMatch(); match = datum.match(line))
        line.replace(match.capturedStart(), match.capturedLength(), u"&%1"_s.arg(++number));
    return line;
}

/// The answer, with N for what the statement shows worked out.
QString asThePupilSeesIt(const TemplateFields& fields)
{
    static const QRegularExpression marker(u"\\{([^}]+)\\}"_s);
    static const QRegularExpression roundedUp(u"\\((.+)\\+(.+)-1\\)\\\\\\2(?![0-9])"_s);
    QString answer = fields.answer;
    for (const auto& shown : marker.globalMatch(fields.statement)) {
        const QString escaped = QRegularExpression::escape(shown.captured(1));
        answer.replace(QRegularExpression(u"(?<![0-9&])%1(?![0-9])"_s.arg(escaped)), u"N"_s);
    }
    return answer.replace(roundedUp, u"\\1\\\\\\2"_s);
}

/// Whether the answer needs a datum that the statement does not show.
bool usesHiddenDatum(const QString& answer, QString statement)
{
    static const QRegularExpression marker(u"\\{[^}]*\\}"_s);
    static const QRegularExpression datum(u"&[1-9]"_s);
    statement.remove(marker);
    for (const auto& used : datum.globalMatch(answer)) {
        if (!statement.contains(used.captured()))
            return true;
    }
    return false;
}

} // namespace

OperationMask usedOperations(const QString& line)
{
    const TemplateFields fields = splitLine(withNumberedData(line));
    const QString answer = asThePupilSeesIt(fields);
    if (usesHiddenDatum(answer, fields.statement))
        return All;
    OperationMask used = 0;
    const auto add = [&](OperationMask operation, const QString& sign) {
        if (answer.contains(sign, Qt::CaseInsensitive))
            used = static_cast<OperationMask>(used | operation);
    };
    add(Multiplication, u"*"_s);
    add(Multiplication, u"^"_s);
    add(Division, u"/"_s);
    add(Division, u"\\"_s);
    add(Division, u"mod"_s);
    add(Addition, u"+"_s);
    add(Subtraction, u"-"_s);
    return used;
}

} // namespace problems
