#include "core/random.h"
#include "problems/bank.h"
#include "problems/bank_check.h"
#include "problems/bank_editor.h"
#include "problems/expression.h"
#include "problems/problem_template.h"
#include "problems/used_operations.h"
#include "support/scripted_random.h"

#include <QtTest>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using problems::Problem;

namespace {

constexpr int Rounds = 300;

struct Set {
    QString operations;
    int least; ///< problems with just these operations
};

/// Every set that the selection dialog can ask for, in the order of the file.
const std::array Sets{Set{u"*"_s, 24}, Set{u"/"_s, 24}, Set{u"+"_s, 24}, Set{u"-"_s, 24},
    Set{u"*+"_s, 18}, Set{u"*-"_s, 18}, Set{u"*/"_s, 18}, Set{u"/+"_s, 18}, Set{u"/-"_s, 18},
    Set{u"+-"_s, 18}, Set{u"*/+"_s, 10}, Set{u"*/-"_s, 10}, Set{u"*+-"_s, 10}, Set{u"/+-"_s, 10},
    Set{u"*/+-"_s, 10}};

QString faultsText(const std::vector<problems::TemplateFault>& faults)
{
    QStringList texts;
    for (const auto& fault : faults)
        texts << fault.text;
    return texts.join(u'\n');
}

/// The largest number that a text shows.
int largestNumber(const QString& text)
{
    static const QRegularExpression number(u"[0-9]+"_s);
    int largest = 0;
    for (const auto& match : number.globalMatch(text))
        largest = std::max(largest, match.captured().toInt());
    return largest;
}

} // namespace

/// The bank that the program comes with.
class StarterBankTest : public QObject {
    Q_OBJECT

private:
    const QStringList lines =
        problems::LeerBanco(QString::fromUtf8(PIZARRIN_RESOURCES)).value().lines;
    const problems::ExpressionEvaluator evaluator{u"VBScript"_s};

private slots:
    void hasEnoughProblemsOfEverySet()
    {
        QVERIFY(lines.size() >= 300);
        QCOMPARE(QSet<QString>(lines.begin(), lines.end()).size(), lines.size());
        qsizetype counted = 0;
        for (const Set& set : Sets) {
            const auto count = std::ranges::count_if(lines, [&](const QString& line) {
                return problems::CampoOperaciones(line) == set.operations;
            });
            QVERIFY2(count >= set.least,
                qPrintable(u"%1: %2"_s.arg(set.operations, QString::number(count))));
            counted += count;
        }
        QCOMPARE(counted, lines.size());
    }

    void isOrderedBySets()
    {
        qsizetype before = 0;
        for (const QString& line : lines) {
            const QString operations = problems::CampoOperaciones(line).toString();
            const auto set = std::ranges::find(Sets, operations, &Set::operations);
            const qsizetype place = set - Sets.begin();
            QVERIFY2(place >= before, qPrintable(line));
            before = place;
        }
    }

    void isWrittenAsTheEditorWritesIt()
    {
        QFile file(QString::fromUtf8(PIZARRIN_RESOURCES) + u"/Problemas3.dat"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QCOMPARE(bytes.count("\r\n"), lines.size());
        QCOMPARE(bytes.count('\n'), lines.size());
        QVERIFY(bytes.endsWith("\r\n"));
        for (const QString& line : lines) {
            const problems::TemplateFields fields = problems::splitLine(line);
            QCOMPARE(problems::joinLine(fields), line);
            QVERIFY2(!fields.statement.isEmpty(), qPrintable(line));
            QVERIFY2(fields.operations != decltype(fields.operations){}, qPrintable(line));
        }
    }

    void answersVaryAndAreOfFourFiguresAtMost()
    {
        core::SeededRandom random;
        random.seed(20'261);
        for (const QString& line : lines) {
            QSet<int> answers;
            for (int round = 0; round < Rounds; ++round) {
                const Problem problem = problems::InstanciarProblema(line, random, evaluator);
                answers.insert(problem.answer);
                QVERIFY2(problem.answer > 0 && problem.answer < 10'000, qPrintable(line));
                QVERIFY2(largestNumber(problem.statement) < 10'000, qPrintable(line));
            }
            QVERIFY2(answers.size() >= 5, qPrintable(line));
        }
    }

    void operationsAreThoseOfTheAnswer()
    {
        for (const QString& line : lines)
            QVERIFY2(problems::usedOperations(line) == problems::operationsOf(QStringView(line)),
                qPrintable(line));
    }

    void theManualTellsHowManyItHas()
    {
        static const QRegularExpression number(u"El programa trae ([0-9]+) problemas"_s);
        QCOMPARE(number.match(text(PIZARRIN_MANUAL)).captured(1).toInt(), lines.size());
    }

    void thePageForTheClassroomTellsWhereTheyAre()
    {
        static const QRegularExpression row(
            u"<tr><th>([^<]*)</th>((?:<td>[^<]*</td>){4})<td>([0-9]+)</td></tr>"_s);
        static const QRegularExpression cell(u"<td>([0-9]+) \\(([0-9]+)(?:–([0-9]+))?\\)</td>"_s);
        qsizetype next = 0;
        for (const auto& match : row.globalMatch(text(PIZARRIN_CLASSROOM_PAGE))) {
            QString operations = match.captured(1);
            if (operations == u"en total"_s)
                continue;
            operations.remove(u' ').replace(u'×', u'*').replace(u'÷', u'/').replace(u'−', u'-');
            const qsizetype before = next;
            for (const auto& range : cell.globalMatch(match.captured(2))) {
                const int first = range.captured(2).toInt();
                const int last = range.captured(3).isEmpty() ? first : range.captured(3).toInt();
                QCOMPARE(first, next + 1);
                QCOMPARE(range.captured(1).toInt(), last - first + 1);
                for (; next < last; ++next)
                    QCOMPARE(problems::CampoOperaciones(lines.at(next)), operations);
            }
            QCOMPARE(match.captured(3).toInt(), next - before);
        }
        QCOMPARE(next, lines.size());
    }

    void gradesHaveLikeShares()
    {
        static const QRegularExpression total(
            u"<tr><th>en total</th>((?:<td>[0-9]+</td>){4})<td>([0-9]+)</td></tr>"_s);
        static const QRegularExpression number(u"[0-9]+"_s);
        const auto match = total.match(text(PIZARRIN_CLASSROOM_PAGE));
        QCOMPARE(match.captured(2).toInt(), lines.size());
        int sum = 0;
        for (const auto& grade : number.globalMatch(match.captured(1))) {
            const int count = grade.captured().toInt();
            QVERIFY2(5 * count >= lines.size() && 10 * count <= 3 * lines.size(),
                qPrintable(grade.captured())); // 20 % to 30 %
            sum += count;
        }
        QCOMPARE(sum, lines.size());
    }

    void theManualTellsWhatTheEditorProposes()
    {
        static const QRegularExpression example(
            u"`([^`\n]*(?:\\|[^`\n]*){3})`(?:(?!`[^`]*\\|).)*?"
            "El programa (no )?propone ([^.]*)\\."_s,
            QRegularExpression::DotMatchesEverythingOption);
        const std::array names{u"«Mult»"_s, u"«Div»"_s, u"«Sum»"_s, u"«Rest»"_s};
        int examples = 0;
        for (const auto& match : example.globalMatch(text(PIZARRIN_MANUAL))) {
            ++examples;
            problems::TemplateFields fields = problems::splitLine(match.captured(1));
            fields.operations = {};
            problems::markFromStatement(fields);
            problems::markFromAnswer(fields);
            for (std::size_t k = 0; k < names.size(); ++k)
                QVERIFY2(fields.operations[k] == match.captured(3).contains(names[k]),
                    qPrintable(match.captured()));
        }
        QCOMPARE(examples, 4);
    }

    void theCheckerFindsNothingInTheExamplesOfTheManual()
    {
        static const QRegularExpression example(u"`([^`\n]*(?:\\|[^`\n]*){3})`"_s);
        core::SeededRandom random;
        int examples = 0;
        for (const auto& match : example.globalMatch(text(PIZARRIN_MANUAL))) {
            ++examples;
            const QString line = match.captured(1);
            const auto faults = problems::checkLine(line, random, evaluator);
            QVERIFY2(faults.empty(), qPrintable(line + u'\n' + faultsText(faults)));
            QVERIFY2(problems::usedOperations(line) == problems::operationsOf(QStringView(line)),
                qPrintable(line));
        }
        QCOMPARE(examples, 10);
    }

    void examplesOfTheManualReadAsItSays()
    {
        static const QRegularExpression example(
            u"`([^`\n]*(?:\\|[^`\n]*){3})`\\s+Con ([0-9, y]+): «([^»]*)»\\s+"
            "Respuesta:[^.\n]*?([0-9]+)\\."_s);
        int examples = 0;
        for (const auto& match : example.globalMatch(text(PIZARRIN_MANUAL))) {
            ++examples;
            ScriptedRandom random = drawing(match.captured(2), match.captured(1));
            const Problem problem =
                problems::InstanciarProblema(match.captured(1), random, evaluator);
            QCOMPARE(problem.statement, match.captured(3));
            QCOMPARE(problem.answer, match.captured(4).toInt());
            QCOMPARE(random.left(), std::size_t(0));
        }
        QCOMPARE(examples, 10);
    }

private:
    static QString text(const char* path)
    {
        QFile file(QString::fromUtf8(path));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    /// The draws that give a line's data these values, written "4, 3 y 10".
    static ScriptedRandom drawing(const QString& values, const QString& line)
    {
        static const QRegularExpression number(u"[0-9]+"_s);
        static const QRegularExpression datum(u"\\[([0-9]+)_([0-9]+)\\]"_s);
        ScriptedRandom random;
        auto value = number.globalMatch(values);
        for (const auto& match : datum.globalMatch(line)) {
            const int first = match.captured(1).toInt();
            const int count = match.captured(2).toInt() - first + 1;
            random.appendInteger(value.next().captured().toInt(), count, first);
        }
        return random;
    }
};

QTEST_GUILESS_MAIN(StarterBankTest)
#include "starter_bank_test.moc"
