#include "problems/problem_template.h"

#include "core/random.h"
#include "problems/expression.h"
#include "support/scripted_random.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using problems::CampoOperaciones;
using problems::DataValues;
using problems::InstanciarProblema;
using problems::Problem;
using problems::TemplateError;

namespace {

const problems::ExpressionEvaluator Evaluator(u"VBScript"_s);
constexpr float Highest = 0.99999994f; // the largest single below 1

Problem instantiate(const QString& line, std::initializer_list<float> draws = {})
{
    ScriptedRandom random(draws);
    Problem problem = InstanciarProblema(line, random, Evaluator);
    if (random.left() != 0)
        throw std::runtime_error("draws left over");
    return problem;
}

} // namespace

class ProblemTemplateTest : public QObject {
    Q_OBJECT

private slots:
    void worksOutAWholeLine()
    {
        ScriptedRandom random;
        random.appendInteger(7, 8, 2);
        random.appendInteger(5, 6, 3);
        const Problem problem = InstanciarProblema(
            u"[2_9] bolsas con [3_8] canicas. ¿Cuántas hay?|{&1*&2}|canicas|*"_s, random,
            Evaluator);
        QCOMPARE(problem.statement, u"7 bolsas con 5 canicas. ¿Cuántas hay?"_s);
        QCOMPARE(problem.answer, 35);
        QCOMPARE(problem.unit, u"canicas"_s);
        QCOMPARE(problem.operations, u"*"_s);
        QCOMPARE(problem.data, (DataValues{7, 5, 0, 0, 0, 0, 0, 0, 0}));
        QCOMPARE(random.left(), 0u); // one draw a datum
    }

    void drawsDataFromMinimumToMaximum_data()
    {
        QTest::addColumn<QString>("marker");
        QTest::addColumn<float>("draw");
        QTest::addColumn<qint32>("value");

        QTest::newRow("lowest") << u"[2_9]"_s << 0.0f << 2;
        QTest::newRow("below a step") << u"[2_9]"_s << 0.1249f << 2;
        QTest::newRow("on a step") << u"[2_9]"_s << 0.125f << 3;
        QTest::newRow("highest") << u"[2_9]"_s << Highest << 9;
        QTest::newRow("one value, low") << u"[5_5]"_s << 0.0f << 5;
        QTest::newRow("one value, high") << u"[5_5]"_s << Highest << 5;
        QTest::newRow("negative") << u"[-3_-1]"_s << Highest << -1;
        QTest::newRow("blanks") << u"[ 2 _ 9 ]"_s << 0.0f << 2;
        QTest::newRow("words around") << u"[2 a_9 b]"_s << Highest << 9;
        QTest::newRow("half to even") << u"[2.5_3.5]"_s << Highest << 4;
        QTest::newRow("half to even, low") << u"[2.5_3.5]"_s << 0.0f << 2;
        QTest::newRow("second underscore") << u"[2_9_5]"_s << Highest << 9;
        QTest::newRow("no number") << u"[a_b]"_s << Highest << 0;
        QTest::newRow("empty") << u"[]"_s << Highest << 0;
        QTest::newRow("no underscore") << u"[5]"_s << Highest << 5;
        QTest::newRow("16 bits, low") << u"[-32768_32767]"_s << 0.0f << -32768;
        QTest::newRow("16 bits, high") << u"[-32768_32767]"_s << Highest << 32767;
        QTest::newRow("swapped, no draw") << u"[9_2]"_s << 0.0f << 9;
        QTest::newRow("swapped, first") << u"[9_2]"_s << 0.01f << 8;
        QTest::newRow("swapped, quarter") << u"[9_2]"_s << 0.25f << 7;
        QTest::newRow("swapped, half") << u"[9_2]"_s << 0.5f << 6;
        QTest::newRow("swapped, high") << u"[9_2]"_s << Highest << 4;
        QTest::newRow("swapped, next to each other") << u"[9_8]"_s << Highest << 9;
    }
    void drawsDataFromMinimumToMaximum()
    {
        QFETCH(QString, marker);
        QFETCH(float, draw);
        QFETCH(qint32, value);
        const Problem problem = instantiate(marker + u"|{&1}||"_s, {draw});
        QCOMPARE(problem.data[0], value);
        QCOMPARE(problem.statement, QString::number(value));
        QCOMPARE(problem.answer, value);
    }

    void keepsWithinASwappedRange()
    {
        core::SeededRandom random;
        random.seed(42);
        for (int round = 0; round < 5'000; ++round) {
            const auto value = InstanciarProblema(u"[9_2]|"_s, random, Evaluator).data[0];
            QVERIFY(value >= 4 && value <= 9);
        }
    }

    void equalMarkersAreIndependentData()
    {
        const Problem problem =
            instantiate(u"[2_9] y [2_9] y [2_9]|{&1*100+&2*10+&3}||+"_s, {0, 0.5, Highest});
        QCOMPARE(problem.statement, u"2 y 6 y 9"_s);
        QCOMPARE(problem.answer, 269);
    }

    void dataCountThroughTheWholeLine()
    {
        const Problem problem =
            instantiate(u"[1_1]|[2_2]|[3_3] m|[4_4]{&1*1000+&2*100+&3*10+&4}"_s, {0, 0, 0, 0});
        QCOMPARE(problem.statement, u"1"_s);
        QCOMPARE(problem.answer, 2);
        QCOMPARE(problem.unit, u"3 m"_s);
        QCOMPARE(problem.operations, u"[4_4]{&1*1000+&2*100+&3*10+&4}"_s); // as stored
        QCOMPARE(problem.data, (DataValues{1, 2, 3, 4, 0, 0, 0, 0, 0}));
    }

    void takesNineDataButNotTen()
    {
        const QString nine = u"[1_1][2_2][3_3][4_4][5_5][6_6][7_7][8_8][9_9]"_s;
        const Problem problem = instantiate(nine + u"|{&9*&8}||*"_s, {0, 0, 0, 0, 0, 0, 0, 0, 0});
        QCOMPARE(problem.statement, u"123456789"_s);
        QCOMPARE(problem.answer, 72);
        QCOMPARE(problem.data, (DataValues{1, 2, 3, 4, 5, 6, 7, 8, 9}));

        ScriptedRandom random{0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
        try {
            InstanciarProblema(nine + u"[1_2]|1||"_s, random, Evaluator);
            QFAIL("instantiated");
        } catch (const TemplateError& error) {
            QCOMPARE(error.text(),
                u"Hay más de 9 datos variables en el problema.\n\nEstá en: [1_2]"_s);
        }
    }

    void computesValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        const auto row = [](const char* text, const char* result) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(result);
        };
        // &1 is 7 and &2 is 2 in all of them
        row("{&1*&2}", "14");
        row("{&1/&2}", "4"); // 3.5 goes to the even neighbour
        row("{5/&2}", "2"); // and so does 2.5
        row("{ &1 + &2 }", "9");
        row("{&1&2}", "72");
        row("{&12}", "72"); // datum 1, then a digit
        row("{&3+1}", "1"); // a datum that is not drawn is 0
        row("{&1\\&2}", "3");
        row("{&1Mod&2}", "1");
        row("{&1^&2}", "49");
        row("{&2-&1}", "-5");
        row("{-&1}", "-7");
        row("{0-0}", "0");
        row("{-0}", "0");
        row("{&1*(&2+1)}", "21");
        row("{32767}", "32767");
        row("{-32768}", "-32768");
        row("{32767.4}", "32767");
        row("{-32768.5}", "-32768");
        row("{&1} y {&1} y {&2}", "7 y 7 y 2");
        row("(3*4)", "12");
        row("(3*4) y (3*4)", "12 y 12");
        row("a (3*4) b", "a 12 b");
        row("({&1}*{&2})", "14"); // computed values first
        row("(7/2)", "4");
        row("{(&1)}", "7");
        row("{1}{2}(3)", "123");
        // a value goes wherever the same marker stands, be it inside another one
        row("{1} {{1}", "1 {1");
        row("(1) ((1)", "1 (1");
        // one bracket without the other ends its step and stays
        row("{&1", "{&1");
        row("&1}", "&1}");
        row("(3*4", "(3*4");
        row("3*4)", "3*4)");
        row("[2_9", "[2_9");
        row("2_9]", "2_9]");
        row("{&1} {&2", "7 {&2");
        row("{&1 (3*4)", "{&1 12");
        row("(3*4) (1", "12 (1");
        row("[2_9 {&1} (3*4)", "[2_9 7 12");
        // nothing to do
        row("", "");
        row("a & b", "a & b");
        row("&1", "&1");
    }
    void computesValues()
    {
        QFETCH(QString, text);
        ScriptedRandom random{0, 0};
        const QString all =
            problems::replaceMarkers(u"[7_7] [2_2]:"_s + text, random, Evaluator).text;
        QCOMPARE(all.left(4), u"7 2:"_s);
        QTEST(all.mid(4), "result");
    }

    void tellsHowItsMarkersWereWorkedOut()
    {
        ScriptedRandom random{0, 0};
        const auto worked = problems::replaceMarkers(
            u"[7_9] [2_4] {&1/&2} {3-&3} {3+4} (1-2)"_s, random, Evaluator);
        QCOMPARE(worked.text, u"7 2 4 3 7 -1"_s);
        QCOMPARE(worked.dataMarkers, (QStringList{u"[7_9]"_s, u"[2_4]"_s}));
        QCOMPARE(worked.data[0], 7);
        QCOMPARE(worked.data[1], 2);
        QStringList computed;
        for (const auto& value : worked.computed)
            computed << u"%1 %2 %3"_s.arg(value.marker).arg(value.value).arg(value.highestDatum);
        QCOMPARE(computed,
            (QStringList{u"{&1/&2} 3.5 2"_s, u"{3-&3} 3 3"_s, u"{3+4} 7 0"_s, u"(1-2) -1 0"_s}));
    }

    void aTextWithoutAClosingBracketDrawsNothing()
    {
        QCOMPARE(instantiate(u"[2_9 y más|5||"_s).statement, u"[2_9 y más"_s);
    }

    void refusesWhatHasNoValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        const auto row = [](const QString& text, const QString& what, const QString& marker) {
            QTest::newRow(qUtf8Printable(text))
                << text << u"%1\n\nEstá en: %2"_s.arg(what, marker);
        };
        const QString digit = u"Tras el signo & debe ir un número del 1 al 9."_s;
        row(u"{& 1}"_s, digit, u"{& 1}"_s);
        row(u"{&0}"_s, digit, u"{&0}"_s);
        row(u"{&}"_s, digit, u"{&}"_s);
        row(u"{3*&x}"_s, digit, u"{3*&x}"_s);
        row(u"{&-1}"_s, digit, u"{&-1}"_s);
        row(u"{&٣}"_s, digit, u"{&٣}"_s);
        row(u"{&&1}"_s, digit, u"{&&1}"_s);
        row(u"antes {&1+} después"_s, u"Falta un número al final (carácter 3 de «0+»)."_s,
            u"{&1+}"_s);
        row(u"{}"_s, u"La expresión está vacía."_s, u"{}"_s);
        row(u"()"_s, u"La expresión está vacía."_s, u"()"_s);
        row(u"(ver la foto)"_s, u"«v» no se entiende ahí (carácter 1 de «ver la foto»)."_s,
            u"(ver la foto)"_s);
        row(u"((3))"_s, u"Falta cerrar el paréntesis abierto (carácter 1 de «(3»)."_s, u"((3)"_s);
        row(u"(&1)"_s, u"«&» no se entiende ahí (carácter 1 de «&1»)."_s, u"(&1)"_s);
        row(u"{{1}}"_s, u"«{» no se entiende ahí (carácter 1 de «{1»)."_s, u"{{1}"_s);
        row(u"{1/0}"_s, u"División entre 0 (carácter 2 de «1/0»)."_s, u"{1/0}"_s);
        row(u"{1/&3}"_s, u"División entre 0 (carácter 2 de «1/0»)."_s, u"{1/&3}"_s);
        row(u"{32768}"_s, u"El resultado 32768 no cabe: debe estar entre -32768 y 32767."_s,
            u"{32768}"_s);
        row(u"{32767.5}"_s, u"El resultado 32767,5 no cabe: debe estar entre -32768 y 32767."_s,
            u"{32767.5}"_s);
        row(u"(200*200)"_s, u"El resultado 40000 no cabe: debe estar entre -32768 y 32767."_s,
            u"(200*200)"_s);
        row(u"[1_32768]"_s, u"«32768» no es un número entero de -32768 a 32767."_s,
            u"[1_32768]"_s);
        row(u"[-40000_1]"_s, u"«-40000_1» no es un número entero de -32768 a 32767."_s,
            u"[-40000_1]"_s);
        row(u"a ]1_2["_s, u"Hay un «]» que ningún «[» ha abierto."_s, u"]1_2["_s);
        row(u"} {1}"_s, u"Hay un «}» que ningún «{» ha abierto."_s, u"} {"_s);
        row(u":) (3*4)"_s, u"Hay un «)» que ningún «(» ha abierto."_s, u") ("_s);
    }
    void refusesWhatHasNoValue()
    {
        QFETCH(QString, text);
        for (const QString& line : {text + u"|1||"_s, u"a|"_s + text + u"||"_s}) {
            try {
                instantiate(line);
                QFAIL("instantiated");
            } catch (const TemplateError& error) {
                QTEST(error.text(), "message");
            }
        }
    }

    void aLongMarkerIsQuotedShort()
    {
        try {
            instantiate(u"{"_s + QString(5'000, u'x') + u"}|1||"_s);
            QFAIL("instantiated");
        } catch (const TemplateError& error) {
            QVERIFY(error.text().size() < 300);
        }
    }

    void aMarkerOf80CharactersIsQuotedWhole()
    {
        const auto quoted = [](const QString& marker) {
            try {
                instantiate(marker + u"|1||"_s);
                return QString();
            } catch (const TemplateError& error) {
                return error.text().section(u' ', -1);
            }
        };
        const QString marker = u"{"_s + QString(78, u'x') + u"}"_s;
        QCOMPARE(quoted(marker), marker);
        QCOMPARE(quoted(u"{x"_s + marker.mid(1)), u"{x"_s + QString(78, u'x') + u"…"_s);
    }

    void splitsTheFields_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("statement");
        QTest::addColumn<qint32>("answer");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("operations");
        const auto row = [](const char* line, const char* statement, qint32 answer,
                             const char* unit, const char* operations) {
            QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(statement)
                                << answer << QString::fromLatin1(unit)
                                << QString::fromLatin1(operations);
        };
        row("a|42|kg|*/", "a", 42, "kg", "*/");
        row("a|42||*", "a", 42, "", "*");
        row("a|42|kg|", "a", 42, "kg", "");
        row("a|42|kg", "a", 42, "kg", "kg"); // the third separator may be missing
        row("a|42|", "a", 42, "", "");
        row("a|42", "a", 42, "", "42");
        row("a|", "a", 0, "", "");
        row("a", "", 0, "", "a");
        row("", "", 0, "", "");
        row("|||", "", 0, "", "");
        row("|42|kg|*", "", 42, "kg", "*");
        row("a|42|kg|*|/", "a", 42, "kg", "/"); // what follows the last one
        row(" a | 42 kg | kg | * ", " a ", 42, " kg ", " * ");
        row("a|cuarenta|kg|*", "a", 0, "kg", "*");
        row("a||7|*", "a", 0, "7", "*");
        row("a|2,5|kg|*", "a", 2, "kg", "*");
        row("a|3.5|kg|*", "a", 4, "kg", "*");
        row("a|-7|kg|-", "a", -7, "kg", "-");
        row("a|2147483647|kg|-", "a", 2147483647, "kg", "-");
        row("a|-2147483648|kg|-", "a", std::numeric_limits<qint32>::min(), "kg", "-");
        row("a|{6*7}8|kg|*", "a", 428, "kg", "*");
    }
    void splitsTheFields()
    {
        QFETCH(QString, line);
        const Problem problem = instantiate(line);
        QTEST(problem.statement, "statement");
        QTEST(problem.answer, "answer");
        QTEST(problem.unit, "unit");
        QTEST(problem.operations, "operations");
        QCOMPARE(problem.data, DataValues{});
    }

    void refusesAnAnswerBeyond32Bits()
    {
        QVERIFY_THROWS_EXCEPTION(TemplateError, instantiate(u"a|2147483648|kg|*"_s));
        QVERIFY_THROWS_EXCEPTION(TemplateError, instantiate(u"a|-2147483649|kg|*"_s));
    }

    void operationsFollowTheLastSeparator()
    {
        QCOMPARE(CampoOperaciones(u"a|1|kg|*/+-"), u"*/+-");
        QCOMPARE(CampoOperaciones(u"a|1|kg|"), u"");
        QCOMPARE(CampoOperaciones(u"a|1"), u"1");
        QCOMPARE(CampoOperaciones(u"sin separador *"), u"sin separador *");
        QCOMPARE(CampoOperaciones(u""), u"");
    }
};

QTEST_GUILESS_MAIN(ProblemTemplateTest)
#include "problem_template_test.moc"
