#include "core/random.h"
#include "problems/bank.h"
#include "problems/bank_editor.h"
#include "problems/expression.h"
#include "problems/problem_template.h"
#include "support/scripted_random.h"

#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;
using problems::Problem;

namespace {

constexpr int Rounds = 1'000;

/// The expressions in a line's {...} markers, with the data put in.
QStringList expressions(QString line, const problems::DataValues& data)
{
    static const QRegularExpression datum(u"\\[[^]]*\\]"_s);
    static const QRegularExpression marker(u"\\{([^}]*)\\}"_s);
    auto value = data.begin();
    for (auto match = datum.match(line); match.hasMatch(); match = datum.match(line))
        line.replace(match.capturedStart(), match.capturedLength(), QString::number(*value++));
    QStringList found;
    for (const auto& match : marker.globalMatch(line)) {
        QString expression = match.captured(1);
        for (std::size_t n = data.size(); n >= 1; --n)
            expression.replace(u"&%1"_s.arg(n), QString::number(data[n - 1]));
        found << expression;
    }
    return found;
}

/// What a pupil has to work out: the answer's expression over &1, &2 …, in which a number
/// that the statement shows worked out is one number, N.
QString visibleExpression(QString line)
{
    static const QRegularExpression datum(u"\\[[^]]*\\]"_s);
    static const QRegularExpression marker(u"\\{([^}]*)\\}"_s);
    for (int n = 1; line.contains(datum); ++n) {
        const auto match = datum.match(line);
        line.replace(match.capturedStart(), match.capturedLength(), u"&%1"_s.arg(n));
    }
    const problems::TemplateFields fields = problems::splitLine(line);
    QString answer = fields.answer;
    for (const auto& shown : marker.globalMatch(fields.statement)) {
        const QString escaped = QRegularExpression::escape(shown.captured(1));
        answer.replace(QRegularExpression(u"(?<![0-9&])%1(?![0-9])"_s.arg(escaped)), u"N"_s);
    }
    return answer;
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
    void hasEnoughProblemsOfEveryKind()
    {
        QVERIFY(lines.size() >= 160);
        QCOMPARE(QSet<QString>(lines.begin(), lines.end()).size(), lines.size());
        for (std::size_t i = 0; i < 4; ++i) {
            for (std::size_t j = i; j < 4; ++j) {
                const auto both =
                    std::count_if(lines.begin(), lines.end(), [&](const auto& line) {
                        const QStringView operations = problems::CampoOperaciones(line);
                        return operations.contains(problems::OperationSigns[i])
                            && operations.contains(problems::OperationSigns[j]);
                    });
                QVERIFY2(both >= (i == j ? 40 : 15), qPrintable(u"%1 %2"_s.arg(i).arg(j)));
            }
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

    void everyProblemWorksOutWithEveryDraw()
    {
        static const QRegularExpression leftOver(u"[][{}()&|_]"_s);
        core::SeededRandom random;
        random.seed(20'260);
        for (const QString& line : lines) {
            for (int round = 0; round < Rounds; ++round) {
                const Problem problem = problems::InstanciarProblema(line, random, evaluator);
                QVERIFY2(!(problem.statement + problem.unit).contains(leftOver),
                    qPrintable(problem.statement));
                QVERIFY2(problem.answer >= 0 && problem.answer <= 32'767, qPrintable(line));
                for (const QString& expression : expressions(line, problem.data)) {
                    const double value = evaluator.evaluate(expression);
                    QVERIFY2(value == std::floor(value), qPrintable(line + expression));
                }
            }
        }
    }

    void operationsAreThoseOfTheAnswer()
    {
        for (const QString& line : lines) {
            const QString expression = visibleExpression(line);
            QString signs;
            for (const char16_t sign : problems::OperationSigns) {
                if (expression.contains(sign) || (sign == u'/' && expression.contains(u'\\')))
                    signs += sign;
            }
            QVERIFY2(signs == problems::CampoOperaciones(line),
                qPrintable(signs + u" in "_s + expression + u": "_s + line));
        }
    }

    void examplesOfTheManualWorkOut()
    {
        static const QRegularExpression example(u"`([^`\n]*(?:\\|[^`\n]*){3})`"_s);
        core::SeededRandom random;
        int examples = 0;
        for (const auto& match : example.globalMatch(manual())) {
            ++examples;
            for (int round = 0; round < Rounds; ++round) {
                const Problem problem =
                    problems::InstanciarProblema(match.captured(1), random, evaluator);
                QVERIFY2(problem.answer >= 0, qPrintable(match.captured(1)));
                for (const QString& expression : expressions(match.captured(1), problem.data)) {
                    const double value = evaluator.evaluate(expression);
                    QVERIFY2(value == std::floor(value), qPrintable(expression));
                }
            }
        }
        QCOMPARE(examples, 10);
    }

    void examplesOfTheManualReadAsItSays()
    {
        static const QRegularExpression example(
            u"`([^`\n]*(?:\\|[^`\n]*){3})`\\s+Con ([0-9, y]+): «([^»]*)»\\s+"
            "Respuesta:[^.\n]*?([0-9]+)\\."_s);
        int examples = 0;
        for (const auto& match : example.globalMatch(manual())) {
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
    static QString manual()
    {
        QFile file(QString::fromUtf8(PIZARRIN_MANUAL));
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
