#include "problems/bank_editor.h"

#include "problems/expression.h"
#include "problems/problem_template.h"
#include "support/scripted_random.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using problems::BankEditor;
using problems::TemplateFields;

using Operations = std::array<bool, 4>;
Q_DECLARE_METATYPE(Operations)

class BankEditorTest : public QObject {
    Q_OBJECT

private slots:
    void splitsALine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<Operations>("operations");
        const auto row = [](const QString& line, const QStringList& texts,
                             const Operations& operations) {
            QTest::newRow(qUtf8Printable(line)) << line << texts << operations;
        };
        row(u"¿Cuántos?|{&1*2}|años|*/+-"_s, {u"¿Cuántos?"_s, u"{&1*2}"_s, u"años"_s},
            {true, true, true, true});
        row(u"a|1|kg|*"_s, {u"a"_s, u"1"_s, u"kg"_s}, {true, false, false, false});
        row(u"a|1|kg|/"_s, {u"a"_s, u"1"_s, u"kg"_s}, {false, true, false, false});
        row(u"a|1|kg|+"_s, {u"a"_s, u"1"_s, u"kg"_s}, {false, false, true, false});
        row(u"a|1|kg|-"_s, {u"a"_s, u"1"_s, u"kg"_s}, {false, false, false, true});
        row(u"a|1|kg|-/"_s, {u"a"_s, u"1"_s, u"kg"_s}, {false, true, false, true});
        row(u"a|1|kg|"_s, {u"a"_s, u"1"_s, u"kg"_s}, {});
        row(u"a+b|1*2|kg-m|"_s, {u"a+b"_s, u"1*2"_s, u"kg-m"_s}, {});
        row(u"a|1|*"_s, {u"a"_s, u"1"_s, u"*"_s}, {}); // no third separator
        row(u"a|1"_s, {u"a"_s, u"1"_s, QString()}, {});
        row(u"a*"_s, {u"a*"_s, QString(), QString()}, {});
        row(u"|||"_s, {QString(), QString(), QString()}, {});
        row(u" a | 1 | kg | * "_s, {u" a "_s, u" 1 "_s, u" kg "_s}, {true, false, false, false});
        row(u"a|1|kg|*|/"_s, {u"a"_s, u"1"_s, u"kg"_s}, {true, true, false, false});
    }
    void splitsALine()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, texts);
        QFETCH(Operations, operations);
        const TemplateFields fields = problems::splitLine(line);
        QCOMPARE((QStringList{fields.statement, fields.answer, fields.unit}), texts);
        QCOMPARE(fields.operations, operations);
    }

    void joinsALine_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<Operations>("operations");
        QTest::addColumn<QString>("line");
        QTest::newRow("all operations") << QStringList{u"a"_s, u"1"_s, u"kg"_s}
                                        << Operations{true, true, true, true} << u"a|1|kg|*/+-"_s;
        QTest::newRow("subtraction alone")
            << QStringList{u"a"_s, u"1"_s, u"kg"_s} << Operations{false, false, false, true}
            << u"a|1|kg|-"_s;
        QTest::newRow("two") << QStringList{u"a"_s, u"1"_s, u"kg"_s}
                             << Operations{false, true, true, false} << u"a|1|kg|/+"_s;
        QTest::newRow("all separators") << QStringList{QString(), QString(), QString()}
                                        << Operations{true, false, false, false} << u"|||*"_s;
        QTest::newRow("blanks") << QStringList{u"  a  b "_s, u" 1 "_s, u"   "_s}
                                << Operations{true, false, false, false} << u"a  b|1||*"_s;
        QTest::newRow("other white space stays")
            << QStringList{u"\ta\u00A0"_s, u"1"_s, u"kg"_s}
            << Operations{true, false, false, false} << u"\ta\u00A0|1|kg|*"_s;
    }
    void joinsALine()
    {
        QFETCH(QStringList, texts);
        QFETCH(Operations, operations);
        QTEST(problems::joinLine({texts[0], texts[1], texts[2], operations}), "line");
    }

    void theStatementSetsThreeOperations_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<Operations>("operations");
        // the first one, multiplication, keeps its mark
        QTest::newRow("none") << u"a*b/c"_s << Operations{true, false, false, false};
        QTest::newRow("(") << u"a (6"_s << Operations{true, true, false, false};
        QTest::newRow(")") << u"a 6)"_s << Operations{true, false, false, false};
        QTest::newRow("+") << u"a+b"_s << Operations{true, false, true, false};
        QTest::newRow("-") << u"a-b"_s << Operations{true, false, false, true};
        QTest::newRow("all") << u"(a+b)-c"_s << Operations{true, true, true, true};
    }
    void theStatementSetsThreeOperations()
    {
        QFETCH(QString, statement);
        QFETCH(Operations, operations);
        for (const bool before : {false, true}) {
            TemplateFields fields{statement, u"1*2"_s, {}, {true, before, before, before}};
            QCOMPARE(problems::statementFault(fields), QString());
            problems::markFromStatement(fields);
            QCOMPARE(fields.operations, operations);
            fields.operations[0] = false;
            problems::markFromStatement(fields);
            QCOMPARE(fields.operations[0], false);
            QCOMPARE(fields.statement, statement);
        }
    }

    void findsALooseAmpersandInTheStatement()
    {
        const QString message = u"Hay una expresión incorrecta en el enunciado. No debe dejar "
                                "espacios entre el signo & y el número que lo sigue."_s;
        TemplateFields fields{u"{& 1} + 2"_s, u"{&1}"_s, {}, {}};
        QCOMPARE(problems::statementFault(fields), message);
        fields.statement = u"Pan & vino"_s;
        QCOMPARE(problems::statementFault(fields), message);
        for (const QString& fine : {u"{&1}"_s, u"a &"_s, u"&\u00A01"_s, u"&&1"_s}) {
            fields.statement = fine;
            QCOMPARE(problems::statementFault(fields), QString());
        }
    }

    void theAnswerMarksMultiplicationOnly()
    {
        TemplateFields fields{u"a"_s, u"{&1*&2+3-(1/1)}"_s, {}, {}};
        problems::markFromAnswer(fields);
        QCOMPARE(fields.operations, (Operations{true, false, false, false}));
        fields = {u"a*b"_s, u"{&1}"_s, {}, {true, true, true, true}};
        problems::markFromAnswer(fields);
        QCOMPARE(fields.operations, (Operations{true, true, true, true})); // nothing cleared
        fields.operations[0] = false;
        problems::markFromAnswer(fields);
        QCOMPARE(fields.operations[0], false);
    }

    void findsALooseAmpersandInTheAnswer()
    {
        TemplateFields fields{u"a & b"_s, u"{& 1*2}"_s, {}, {}};
        QCOMPARE(problems::answerFault(fields),
            u"Hay una expresión incorrecta en el resultado. No debe dejar espacios entre el "
            "signo & y el número que lo sigue. "_s);
        fields.answer = u"{&1*2}"_s;
        QCOMPARE(problems::answerFault(fields), QString());
    }

    void triesOutAllThreeTexts()
    {
        ScriptedRandom random;
        random.appendInteger(7, 8, 2);
        random.appendInteger(4, 3, 3);
        const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
        const TemplateFields fields{
            u"[2_9] por (1+1)"_s, u"{&1*2} y {&2}"_s, u"cromos [3_5]"_s, {}};
        const problems::TryOut tried = problems::tryOut(fields, random, evaluator);
        QCOMPARE(tried.text, u"Enunciado \r\n7 por 2\r\nRespuesta\r\n14 y 4\r\ncromos 4"_s);
        QCOMPARE(tried.notes, QString());
        QCOMPARE(random.left(), 0u);
        const TemplateFields wrong{u"a"_s, u"{1+}"_s, {}, {}};
        QVERIFY_THROWS_EXCEPTION(
            problems::TemplateError, problems::tryOut(wrong, random, evaluator));
    }

    void tellsWhatIsWrongWithTheDrawAndItsData()
    {
        ScriptedRandom random;
        random.appendInteger(7, 8, 2);
        random.appendInteger(4, 3, 3);
        const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
        const TemplateFields fields{u"[2_9] de [3_5] y [más"_s, u"{&1/&2}"_s, u"{&3}"_s, {}};
        const problems::TryOut tried = problems::tryOut(fields, random, evaluator);
        QCOMPARE(tried.text, u"Enunciado \r\n7 de 4 y [más\r\nRespuesta\r\n2\r\n0"_s);
        QCOMPARE(tried.notes,
            u"Falta cerrar un «[» en el enunciado.\n"
            "{&3} usa el dato &3, que no existe y vale 0.\n"
            "{&1/&2} da 1,75 y se redondea a 2.\n"
            "Datos: &1 = 7, &2 = 4."_s);
    }

    void namesTheUnclosedBraceBehindWhichNothingCanBeWorkedOut()
    {
        ScriptedRandom random{0};
        const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
        try {
            problems::tryOut({u"{&1 de [2_9]"_s, u"{&1}"_s, {}, {}}, random, evaluator);
            QFAIL("it could be worked out");
        } catch (const problems::TemplateError& error) {
            QVERIFY2(error.text().startsWith(u"Falta cerrar un «{» en el enunciado.\n\n"_s),
                qPrintable(error.text()));
        }
    }

    void knowsWhatIsNotSaved()
    {
        BankEditor editor;
        editor.load({u"a|1|kg"_s});
        TemplateFields fields{{}, {}, {}, {true, false, false, false}};
        QVERIFY(!editor.isUnsaved(fields)); // marks alone are no problem
        fields.answer = u"2"_s;
        QVERIFY(editor.isUnsaved(fields));
        fields = editor.show(0);
        QCOMPARE(fields, problems::splitLine(u"a|1|kg"_s));
        QVERIFY(!editor.isUnsaved(fields));
        fields.operations[1] = true;
        QVERIFY(editor.isUnsaved(fields));
        editor.store(1, fields);
        QVERIFY(!editor.isUnsaved(fields));
        editor.remove(0);
        QVERIFY(editor.isUnsaved(fields));
        QVERIFY(!editor.isUnsaved({}));
    }

    void storesOverALineAndAtTheEnd()
    {
        BankEditor editor;
        QCOMPARE(editor.newEntry(), 0);
        QVERIFY(!editor.isLine(0));
        const TemplateFields fields{u"n"_s, u"1"_s, {}, {true, false, false, false}};
        QCOMPARE(editor.store(editor.newEntry(), fields), 0);
        QCOMPARE(editor.lines(), QStringList{u"n|1||*"_s});

        editor.load({u"a"_s, u"b"_s, u"c"_s});
        QCOMPARE(editor.newEntry(), 3);
        QVERIFY(editor.isLine(0) && editor.isLine(2) && !editor.isLine(3) && !editor.isLine(-1));
        QCOMPARE(editor.store(1, fields), 1);
        QCOMPARE(editor.lines(), (QStringList{u"a"_s, u"n|1||*"_s, u"c"_s}));
        QCOMPARE(editor.store(3, fields), 3);
        QCOMPARE(editor.lines(), (QStringList{u"a"_s, u"n|1||*"_s, u"c"_s, u"n|1||*"_s}));
        QCOMPARE(editor.store(BankEditor::NoEntry, fields), 0);
        QCOMPARE(editor.lines(), (QStringList{u"n|1||*"_s, u"n|1||*"_s, u"c"_s, u"n|1||*"_s}));
    }

    void removesALine()
    {
        BankEditor editor;
        editor.load({u"a"_s, u"b"_s, u"c"_s});
        editor.remove(1);
        QCOMPARE(editor.lines(), (QStringList{u"a"_s, u"c"_s}));
        editor.remove(2); // the new entry
        editor.remove(BankEditor::NoEntry);
        QCOMPARE(editor.lines(), (QStringList{u"a"_s, u"c"_s}));
    }

    void refusesFieldsThatMakeNoLine()
    {
        TemplateFields fields{u"a|b"_s, u"1"_s, u"kg"_s, {}};
        QCOMPARE(BankEditor::refusal(fields), u"Marque al menos una de las 4 operaciones"_s);
        for (std::size_t k = 0; k < 4; ++k) {
            fields = {u"a"_s, u"1"_s, u"kg"_s, {}};
            fields.operations[k] = true;
            QCOMPARE(BankEditor::refusal(fields), QString());
        }
        const QString separator =
            u"El signo | separa los campos de un problema en el archivo. No puede escribirlo "
            "dentro de un campo."_s;
        for (QString* text : {&fields.statement, &fields.answer, &fields.unit}) {
            *text += u'|';
            QCOMPARE(BankEditor::refusal(fields), separator);
            text->chop(1);
        }
    }
};

QTEST_GUILESS_MAIN(BankEditorTest)
#include "bank_editor_test.moc"
