#include "written/multiples_divisors_screen.h"

#include "support/screen_bench.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolTip>

using namespace Qt::StringLiterals;
using written::FrmMultidivi;

class MultiplesDivisorsScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        scriptMultiples(4);
        screen = &bench->open<FrmMultidivi>();
    }
    void cleanup() { bench.reset(); }

    void comesUpWithAnExercise()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{10 * 3600 + 20 * 60 + 30.5});
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(screen->windowTitle(), u"Múltiplos y divisores"_s);
        QCOMPARE(instruction(), u"Introduzca tres múltiplos diferentes del número indicado"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"4"_s);
        QCOMPARE(answers(), (QStringList{{}, {}, {}}));
        QCOMPARE(bench->text(u"TbResultados"_s), u"Ejercicios: 0; Errores: 0"_s);
        QCOMPARE(bench->text(u"TBMensajes"_s), QString());
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
    }

    void captionsAreExact()
    {
        const auto caption = [&](const QString& name) {
            return bench->control<QPushButton>(name).text();
        };
        QCOMPARE(caption(u"Command1"_s), u"&Hecho"_s);
        QCOMPARE(caption(u"Command2(0)"_s), u"&Continuar"_s);
        QCOMPARE(caption(u"Command2(1)"_s), u"&Borrar"_s);
        QCOMPARE(caption(u"Command2(2)"_s), u"&Ver solución"_s);
    }

    void comesWithASampleUntilItIsLoaded()
    {
        const FrmMultidivi unloaded(bench->screens);
        QCOMPARE(ScreenBench::find<QPlainTextEdit>(unloaded, u"Text1"_s).toPlainText(),
            u"Calcula y escribe 3 múltiplos del número que se indica"_s);
    }

    void theInstructionHasAToolTip()
    {
        QWidget& widget = *bench->control<QPlainTextEdit>(u"Text1"_s).viewport();
        const QPoint middle = widget.rect().center();
        QHelpEvent event(QEvent::ToolTip, middle, widget.mapToGlobal(middle));
        QCoreApplication::sendEvent(&widget, &event);
        QCOMPARE(QToolTip::text(), u"No debes introducir el mismo número indicado"_s);
    }

    void onlyTheAnswersTakeText()
    {
        for (const QString& name : {u"Text2"_s, u"TbResultados"_s, u"TBMensajes"_s})
            QVERIFY(bench->control<QLineEdit>(name).isReadOnly());
        QVERIFY(bench->control<QPlainTextEdit>(u"Text1"_s).isReadOnly());
        for (int i = 0; i < 3; ++i)
            QVERIFY(!bench->control<QLineEdit>(box(i)).isReadOnly());
    }

    void rightAnswersLeadToContinue()
    {
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(message(), u"Resultado correcto"_s);
        QCOMPARE(mark(), ui::VerdictBox::Mark::Right);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(answers(), (QStringList{u"8"_s, u"12"_s, u"16"_s}));
        QCOMPARE(bench->text(u"TbResultados"_s), u"Ejercicios: 0; Errores: 0"_s);
    }

    void wrongAnswersLeadToTheFirstWrongBox_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<int>("wrong");
        QTest::newRow("the number itself") << QStringList{u"4"_s, u"8"_s, u"12"_s} << 0;
        QTest::newRow("repeated") << QStringList{u"8"_s, u"8"_s, u"12"_s} << 1;
        QTest::newRow("repeated as a number") << QStringList{u"8"_s, u"12"_s, u"8,0"_s} << 2;
        QTest::newRow("not a multiple") << QStringList{u"8"_s, u"12"_s, u"15"_s} << 2;
        QTest::newRow("two of them") << QStringList{u"8"_s, u"13"_s, u"15"_s} << 1;
    }
    void wrongAnswersLeadToTheFirstWrongBox()
    {
        QFETCH(QStringList, typed);
        QFETCH(int, wrong);
        typeAnswers(typed);
        bench->click(u"Command1"_s);
        QCOMPARE(message(), u"Resultado incorrecto"_s);
        QCOMPARE(mark(), ui::VerdictBox::Mark::Wrong);
        QCOMPARE(bench->focusName(), box(wrong));
        QCOMPARE(bench->control<QLineEdit>(box(wrong)).selectedText(), typed.at(wrong));
        QCOMPARE(answers(), typed);
        QCOMPARE(bench->text(u"TbResultados"_s), u"Ejercicios: 0; Errores: 0"_s);
    }

    void enterInAnyAnswerChecks()
    {
        for (int i = 0; i < 3; ++i) {
            const QString right = i % 2 == 0 ? u"Resultado correcto"_s : u"Resultado correcto "_s;
            bench->click(u"Command2(1)"_s);
            typeAnswers({u"8"_s, u"12"_s, u"16"_s});
            bench->key(box(i), i == 1 ? Qt::Key_Enter : Qt::Key_Return);
            QCOMPARE(message(), right);
            QCOMPARE(answers(), (QStringList{u"8"_s, u"12"_s, u"16"_s}));
        }
    }

    void repeatedVerdictsVisiblyChange()
    {
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        for (const QString& expected :
            {u"Resultado correcto"_s, u"Resultado correcto "_s, u"Resultado correcto"_s}) {
            bench->click(u"Command1"_s);
            QCOMPARE(message(), expected);
        }
        bench->type(box(2), u"5"_s);
        for (const QString& expected :
            {u"Resultado incorrecto"_s, u"Resultado incorrecto "_s, u"Resultado incorrecto"_s}) {
            bench->click(u"Command1"_s);
            QCOMPARE(message(), expected);
        }
    }

    void theVerdictOutlivesTheExercise()
    {
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        bench->click(u"Command1"_s);
        scriptMultiples(5);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(message(), u"Resultado correcto"_s);
        QCOMPARE(mark(), ui::VerdictBox::Mark::None); // it is not about this exercise
        typeAnswers({u"10"_s, u"15"_s, u"20"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(message(), u"Resultado correcto "_s);
    }

    void invalidAnswersAreReportedAndNothingElse_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::newRow("all empty") << QStringList{{}, {}, {}};
        QTest::newRow("first empty") << QStringList{{}, u"8"_s, u"12"_s};
        QTest::newRow("last empty") << QStringList{u"8"_s, u"12"_s, {}};
        QTest::newRow("zero") << QStringList{u"8"_s, u"0"_s, u"12"_s};
        QTest::newRow("negative") << QStringList{u"8"_s, u"-12"_s, u"12"_s};
        QTest::newRow("no number") << QStringList{u"ocho"_s, u"8"_s, u"12"_s};
        QTest::newRow("a blank") << QStringList{u" "_s, u"8"_s, u"12"_s};
    }
    void invalidAnswersAreReportedAndNothingElse()
    {
        QFETCH(QStringList, typed);
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        bench->click(u"Command1"_s);
        bench->click(u"Command2(1)"_s);
        typeAnswers(typed);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->key(box(1), Qt::Key_Return);
        QCOMPARE(boxes.titles, {u"error"_s});
        QCOMPARE(boxes.texts, {u"Los datos introducidos no son válidos"_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        QCOMPARE(message(), u"Resultado correcto"_s);
        QCOMPARE(answers(), typed);
    }

    void theBoxLeavesTheFocusWhereItWas()
    {
        bench->control<QLineEdit>(box(1)).setFocus();
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->key(box(1), Qt::Key_Return);
        QCOMPARE(boxes.texts.size(), 1);
        QCOMPARE(screen->focusWidget()->objectName(), box(1));
    }

    void divisorsAreAskedForToo()
    {
        scriptDivisors({3, 4, 5});
        bench->click(u"Command2(0)"_s);
        QCOMPARE(instruction(),
            u"Introduzca tres divisores diferentes del número indicado.\n"
            "No puede usar el 1 ni el número que se proporciona"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"60"_s);
        typeAnswers({u"1"_s, u"2"_s, u"3"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(message(), u"Resultado incorrecto"_s);
        QCOMPARE(bench->focusName(), box(0));
        bench->type(box(0), u"4"_s); // the wrong one is selected
        bench->key(box(0), Qt::Key_Return);
        QCOMPARE(answers(), (QStringList{u"4"_s, u"2"_s, u"3"_s}));
        QCOMPARE(message(), u"Resultado correcto"_s);
    }

    void continueEmptiesTheAnswers()
    {
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        scriptMultiples(10);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(answers(), (QStringList{{}, {}, {}}));
        QCOMPARE(bench->text(u"Text2"_s), u"10"_s);
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(bench->random.seeds.size(), 1u);
    }

    void clearEmptiesTheAnswersAlone()
    {
        typeAnswers({u"8"_s, u"12"_s, u"17"_s});
        bench->click(u"Command1"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(answers(), (QStringList{{}, {}, {}}));
        QCOMPARE(bench->text(u"Text2"_s), u"4"_s);
        QCOMPARE(message(), u"Resultado incorrecto"_s);
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
    }

    void solutionOfMultiplesIsRight()
    {
        bench->type(box(1), u"7"_s);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(answers(), (QStringList{u"12"_s, u"16"_s, u"20"_s}));
        QCOMPARE(message(), QString());
        bench->click(u"Command1"_s);
        QCOMPARE(message(), u"Resultado correcto"_s);
    }

    void solutionOfDivisorsMayHoldA1AndIsThenWrong()
    {
        scriptDivisors({3, 1, 2});
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"6"_s);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(answers(), (QStringList{u"3"_s, u"1"_s, u"2"_s}));
        bench->click(u"Command1"_s);
        QCOMPARE(message(), u"Resultado incorrecto"_s);
        QCOMPARE(bench->focusName(), box(1));
    }

    void enterOnContinueGoesOnToTheNextExercise()
    {
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        bench->key(box(2), Qt::Key_Return);
        scriptMultiples(7);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(bench->text(u"Text2"_s), u"7"_s);
    }

    void tabWalksInReadingOrder()
    {
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            order << bench->focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
            (QStringList{u"Text3(0)"_s, u"Text3(1)"_s, u"Text3(2)"_s, u"Command1"_s,
                u"Command2(1)"_s, u"Command2(0)"_s, u"Command2(2)"_s}));
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
    }

    void everyAccessKeyWorks()
    {
        altKey(Qt::Key_V);
        QCOMPARE(answers(), (QStringList{u"12"_s, u"16"_s, u"20"_s}));
        altKey(Qt::Key_H);
        QCOMPARE(message(), u"Resultado correcto"_s);
        altKey(Qt::Key_B);
        QCOMPARE(answers(), (QStringList{{}, {}, {}}));
        scriptMultiples(9);
        altKey(Qt::Key_C);
        QCOMPARE(bench->text(u"Text2"_s), u"9"_s);
    }

    void onlyWrongAnswersGetARedEdge()
    {
        const auto edges = [this] {
            QList<QColor> colours;
            for (int i = 0; i < 3; ++i)
                colours << bench->control<ui::TextBox>(box(i)).edge().value_or(QColor());
            return colours;
        };
        const QColor wrong(ui::look::Wrong);
        const QColor right(ui::look::Right);
        typeAnswers({u"8"_s, u"9"_s, u"8"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(edges(), (QList{QColor(), wrong, wrong}));
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(edges(), (QList{right, right, right}));
        scriptMultiples(7);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(edges(), (QList{QColor(), QColor(), QColor()}));
    }

    void escapeDoesNothing()
    {
        bench->type(box(0), u"8"_s);
        bench->key(box(0), Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        QCOMPARE(answers(), (QStringList{u"8"_s, {}, {}}));
    }

    void reopeningStartsAfresh()
    {
        typeAnswers({u"8"_s, u"12"_s, u"16"_s});
        bench->click(u"Command1"_s);
        screen->close();
        QCOMPARE(bench->screens.loaded(u"FrmMultidivi"_s), nullptr);
        scriptMultiples(6);
        bench->open<FrmMultidivi>();
        QCOMPARE(bench->text(u"Text2"_s), u"6"_s);
        QCOMPARE(message(), QString());
    }

    void nothingIsClippedAtAnyFactor_data()
    {
        QTest::addColumn<double>("factor");
        for (const double factor : {0.8, 1.0, 1.33, 2.0, 4.0})
            QTest::addRow("factor %g", factor) << factor;
    }
    void nothingIsClippedAtAnyFactor()
    {
        QFETCH(double, factor);
        scriptDivisors({10, 9, 8});
        bench->click(u"Command2(0)"_s);
        typeAnswers({u"720"_s, u"360"_s, u"240"_s});
        bench->click(u"Command1"_s);
        screen->resize((QSizeF(734, 399) * factor).toSize());
        for (const QLineEdit* line : screen->findChildren<QLineEdit*>())
            QVERIFY2(textFits(*line), qPrintable(line->objectName()));
        const auto& text = bench->control<QPlainTextEdit>(u"Text1"_s);
        const QRect caret = text.cursorRect(QTextCursor(text.document()->lastBlock()));
        QVERIFY(text.viewport()->rect().contains(caret.center()));
        QCOMPARE(text.document()->lastBlock().layout()->lineCount(), 1);
        QCOMPARE(text.verticalScrollBar()->maximum(), 0);
    }

private:
    void scriptMultiples(int number)
    {
        bench->random.append({0.25f});
        bench->random.appendInteger(number, 9, 2);
    }

    void scriptDivisors(const std::array<int, 3>& factors)
    {
        bench->random.append({0.75f});
        for (const int factor : factors)
            bench->random.appendInteger(factor, 10, 1);
    }

    static QString box(int index) { return u"Text3(%1)"_s.arg(index); }

    void typeAnswers(const QStringList& typed)
    {
        for (int i = 0; i < 3; ++i)
            bench->type(box(i), typed.at(i));
    }

    QStringList answers() const
    {
        return {bench->text(box(0)), bench->text(box(1)), bench->text(box(2))};
    }

    QString instruction() const
    {
        return bench->control<QPlainTextEdit>(u"Text1"_s).toPlainText();
    }

    QString message() const { return bench->text(u"TBMensajes"_s); }

    ui::VerdictBox::Mark mark() const
    {
        return bench->control<ui::VerdictBox>(u"TBMensajes"_s).mark();
    }

    static bool textFits(const QLineEdit& line)
    {
        const QMargins margins = line.textMargins();
        const QFontMetrics metrics(line.font());
        return metrics.horizontalAdvance(line.text()) + margins.left() + margins.right() + 4
            <= line.width()
            && metrics.height() <= line.height();
    }

    void altKey(Qt::Key key) { QTest::keyClick(screen, key, Qt::AltModifier); }

    std::unique_ptr<ScreenBench> bench;
    FrmMultidivi* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(MultiplesDivisorsScreenTest)
#include "multiples_divisors_screen_test.moc"
