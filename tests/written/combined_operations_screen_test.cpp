#include "written/combined_operations_screen.h"

#include "support/screen_bench.h"

#include <QHelpEvent>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolTip>

using namespace Qt::StringLiterals;
using written::FRMCombi;

class CombinedOperationsScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        script({5, 3, 4, 2, 6, 3}, {1, 3, 4}); // (5 + 3) + 4 x 2 - 18 ÷ 3 = 10
        screen = &bench->open<FRMCombi>();
    }
    void cleanup() { bench.reset(); }

    void comesUpWithAnExpression()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{10 * 3600 + 20 * 60 + 30.5});
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(screen->windowTitle(), u"Operaciones combinadas "_s);
        QCOMPARE(bench->text(u"TBOperación"_s), u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s);
        QCOMPARE(scratch().toPlainText(), u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
    }

    void textsAreExact()
    {
        QCOMPARE(bench->text(u"TBInfo"_s),
            u"Resuelva la operación siguiendo las reglas de precedencia"_s);
        QCOMPARE(bench->control<QLabel>(u"Label1"_s).text(), u"&Resultado"_s);
        QCOMPARE(caption(u"Command1"_s), u"&Hecho"_s);
        QCOMPARE(caption(u"Command2(0)"_s), u"&Continuar"_s);
        QCOMPARE(caption(u"Command2(1)"_s), u"&Borrar"_s);
        QCOMPARE(caption(u"Command2(2)"_s), u"&Ver Solución"_s);
    }

    void comesWithASampleUntilItIsLoaded()
    {
        const FRMCombi unloaded(bench->screens);
        const auto& expression = ScreenBench::find<QLineEdit>(unloaded, u"TBOperación"_s);
        QCOMPARE(expression.text(), u"2 x 8 + (5 * 9 - 2 -3)"_s);
    }

    void toolTipsSayWhatTheBoxesAreFor()
    {
        QCOMPARE(toolTip(bench->control<QWidget>(u"TBOperación"_s)), u"Operación a realizar"_s);
        QCOMPARE(toolTip(*scratch().viewport()), u"Haga aquí sus cálculos"_s);
    }

    void theTipOfTheOperationGoesWhenTheMouseLeavesIt()
    {
        const auto& operation = bench->control<QWidget>(u"TBOperación"_s);
        QCOMPARE(toolTip(operation), u"Operación a realizar"_s);
        const QWidget& canvas = *operation.parentWidget();
        const QPoint beside = operation.geometry().bottomLeft() + QPoint(0, 3);
        QVERIFY(screen->childAt(canvas.mapTo(screen, beside)) == &canvas);
        QTest::mouseMove(screen->windowHandle(), canvas.mapTo(screen, beside));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void buttonsHaveTheirColours() { bench->verifyCommandColours(); }

    void onlyAnswerAndScratchAreaTakeText()
    {
        for (const QString& name : {u"TBInfo"_s, u"TBOperación"_s, u"Text1"_s}) {
            QVERIFY(bench->control<QLineEdit>(name).isReadOnly());
            bench->type(name, u"5"_s);
            QVERIFY(!bench->text(name).contains(u"55"_s));
        }
        QVERIFY(!bench->control<QLineEdit>(u"TBResultado"_s).isReadOnly());
        QVERIFY(!scratch().isReadOnly());
    }

    void checkChangesNothingButTheVerdict()
    {
        bench->type(u"TBResultado"_s, u"11"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado incorrecto"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"11"_s);
        bench->key(u"TBResultado"_s, Qt::Key_Backspace);
        bench->type(u"TBResultado"_s, u"0"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado incorrecto"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
        QCOMPARE(bench->text(u"TBOperación"_s), u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s);
        QCOMPARE(scratch().toPlainText(), u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
    }

    void theVerdictHasItsMark()
    {
        const auto& verdict = bench->control<ui::VerdictBox>(u"Text1"_s);
        QCOMPARE(verdict.mark(), ui::VerdictBox::Mark::None);
        answer(u"10"_s);
        QCOMPARE(verdict.mark(), ui::VerdictBox::Mark::Right);
        answer(u"1"_s);
        QCOMPARE(verdict.mark(), ui::VerdictBox::Mark::Wrong);
    }

    void enterChecksAndTypesNothing_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Enter") << Qt::Key_Return;
        QTest::newRow("Enter of the keypad") << Qt::Key_Enter;
    }
    void enterChecksAndTypesNothing()
    {
        QFETCH(Qt::Key, key);
        bench->type(u"TBResultado"_s, u"10"_s);
        bench->key(u"TBResultado"_s, key);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
    }

    void answersAreReadAsNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");
        QTest::newRow("blanks in front") << u"  10"_s << true;
        QTest::newRow("leading zero") << u"010"_s << true;
        QTest::newRow("decimals of nothing") << u"10,0"_s << true;
        QTest::newRow("words behind") << u"10 manzanas"_s << true;
        QTest::newRow("a fraction") << u"10,5"_s << false;
        QTest::newRow("words in front") << u"son 10"_s << false;
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("negative") << u"-10"_s << false;
        QTest::newRow("beyond 16 bits") << u"65546"_s << false;
        QTest::newRow("endless") << QString(400, u'9') << false;
    }
    void answersAreReadAsNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(bool, right);
        answer(typed);
        QCOMPARE(
            bench->text(u"Text1"_s), right ? u"Resultado correcto"_s : u"Resultado incorrecto"_s);
    }

    void emptyAnswerReadsAs0()
    {
        script({2, 2, 2, 2, 2, 2}, {2, 2, 2});
        bench->click(u"Command2(0)"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"TBOperación"_s), u"(2 - 2) + (2 - 2) + (2 - 2)"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
    }

    void continueDrawsAnExpressionAndKeepsTheRest()
    {
        answer(u"10"_s);
        QTest::keyClicks(&scratch(), u" = 8"_s);
        script({9, 9, 2, 2, 9, 2}, {3, 2, 4});
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->text(u"TBOperación"_s), u"9 x 9 - (2 - 2) - 18 ÷ 2"_s);
        QCOMPARE(scratch().toPlainText(), u"9 x 9 - (2 - 2) - 18 ÷ 2"_s);
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(bench->random.seeds.size(), 1u);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        QCOMPARE(bench->control<ui::VerdictBox>(u"Text1"_s).mark(), ui::VerdictBox::Mark::None);
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
    }

    void theAnswerToTheLastExpressionGivesWayToTheNextOne()
    {
        answer(u"10"_s);
        script({9, 9, 2, 2, 9, 2}, {3, 2, 4});
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        bench->type(u"TBResultado"_s, u"72"_s);
        bench->key(u"TBResultado"_s, Qt::Key_Return);
        QCOMPARE(bench->text(u"TBResultado"_s), u"72"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
    }

    void whatBelongsToTheLastExpressionIsFaded()
    {
        const auto& verdict = bench->control<QLineEdit>(u"Text1"_s);
        const auto& result = bench->control<QLineEdit>(u"TBResultado"_s);
        answer(u"10"_s);
        const QColor fresh = textColour(result);
        QCOMPARE(textColour(verdict), fresh);

        script({5, 3, 4, 2, 6, 3}, {1, 3, 4}); // 10 again
        bench->click(u"Command2(0)"_s);
        for (const QLineEdit* box : {&verdict, &result}) {
            QVERIFY(textColour(*box) != fresh);
            QVERIFY(ui::look::contrast(textColour(*box), QColor(ui::look::Paper)) >= 4.5);
        }
        QCOMPARE(result.selectedText(), u"10"_s);
        QCOMPARE(result.palette().color(QPalette::HighlightedText), textColour(result));

        bench->key(u"TBResultado"_s, Qt::Key_Return); // judged for the new expression
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        QCOMPARE(textColour(verdict), fresh);
        QCOMPARE(textColour(result), fresh);

        script({2, 2, 2, 2, 2, 2}, {2, 2, 2});
        bench->click(u"Command2(0)"_s);
        QVERIFY(textColour(result) != fresh);
        bench->type(u"TBResultado"_s, u"0"_s);
        QCOMPARE(textColour(result), fresh);
        QVERIFY(textColour(verdict) != fresh); // until the next check
    }

    void aSolutionThatEqualsTheLastAnswerIsNotFaded()
    {
        const auto& result = bench->control<QLineEdit>(u"TBResultado"_s);
        answer(u"10"_s);
        const QColor fresh = textColour(result);
        script({5, 3, 4, 2, 6, 3}, {1, 3, 4}); // 10 again
        bench->click(u"Command2(0)"_s);
        QVERIFY(textColour(result) != fresh);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
        QCOMPARE(textColour(result), fresh);
    }

    void clearEmptiesTheAnswerAlone()
    {
        answer(u"11"_s);
        QTest::keyClicks(&scratch(), u" = 8"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado incorrecto"_s);
        QCOMPARE(scratch().toPlainText(), u"(5 + 3) + 4 x 2 - 18 ÷ 3 = 8"_s);
    }

    void solutionIsWrittenIntoTheAnswer()
    {
        bench->type(u"TBResultado"_s, u"3"_s);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
    }

    void theScratchAreaIsThePupils()
    {
        QTest::keyClick(&scratch(), Qt::Key_Return);
        QTest::keyClicks(&scratch(), u"= 8 + 8 - 6"_s);
        QCOMPARE(scratch().toPlainText(), u"(5 + 3) + 4 x 2 - 18 ÷ 3\n= 8 + 8 - 6"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString()); // Enter is a new line here
        QCOMPARE(bench->text(u"TBOperación"_s), u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s);
        for (int i = 0; i < 20; ++i)
            QTest::keyClick(&scratch(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(scratch().toPlainText(), u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s);
    }

    void undoStopsAtTheExpression()
    {
        QTest::keyClicks(&scratch(), u" = 8"_s);
        script({9, 9, 2, 2, 9, 2}, {3, 2, 4});
        bench->click(u"Command2(0)"_s);
        QTest::keyClick(&scratch(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(scratch().toPlainText(), u"9 x 9 - (2 - 2) - 18 ÷ 2"_s);
    }

    void tabWalksInReadingOrder()
    {
        QStringList order;
        scratch().setFocus();
        for (int i = 0; i < 6; ++i) {
            order << bench->focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
            (QStringList{u"TBCálculos"_s, u"TBResultado"_s, u"Command1"_s, u"Command2(1)"_s,
                u"Command2(0)"_s, u"Command2(2)"_s}));
        QCOMPARE(bench->focusName(), u"TBCálculos"_s);
    }

    void everyAccessKeyWorks()
    {
        scratch().setFocus();
        altKey(Qt::Key_R);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        altKey(Qt::Key_V);
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
        altKey(Qt::Key_H);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        altKey(Qt::Key_B);
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
        script({2, 2, 2, 2, 2, 2}, {2, 2, 2});
        altKey(Qt::Key_C);
        QCOMPARE(bench->text(u"TBOperación"_s), u"(2 - 2) + (2 - 2) + (2 - 2)"_s);
    }

    void escapeDoesNothing()
    {
        bench->type(u"TBResultado"_s, u"10"_s);
        bench->key(u"TBResultado"_s, Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        QCOMPARE(bench->text(u"TBResultado"_s), u"10"_s);
    }

    void reopeningStartsAfresh()
    {
        answer(u"10"_s);
        screen->close();
        QCOMPARE(bench->screens.loaded(u"FRMCombi"_s), nullptr);
        script({2, 2, 2, 2, 2, 2}, {2, 2, 2});
        bench->open<FRMCombi>();
        QCOMPARE(bench->text(u"TBOperación"_s), u"(2 - 2) + (2 - 2) + (2 - 2)"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(bench->random.seeds.size(), 2u);
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
        script({9, 9, 9, 9, 9, 9}, {1, 1, 1});
        bench->click(u"Command2(0)"_s);
        answer(u"1"_s);
        screen->resize((QSizeF(760, 448) * factor).toSize());
        for (const QLineEdit* box : screen->findChildren<QLineEdit*>())
            QVERIFY2(textFits(*box), qPrintable(box->objectName()));
        const auto& label = bench->control<QLabel>(u"Label1"_s);
        QVERIFY(label.sizeHint().width() <= label.width());
        QCOMPARE(scratch().document()->firstBlock().layout()->lineCount(), 1);
    }

private:
    void script(const std::array<int, 6>& numbers, const std::array<int, 3>& operators)
    {
        for (const int number : numbers)
            bench->random.appendInteger(number, 8, 2);
        for (const int oper : operators)
            bench->random.appendInteger(oper, 4, 1);
    }

    QPlainTextEdit& scratch() const { return bench->control<QPlainTextEdit>(u"TBCálculos"_s); }

    QString caption(const QString& name) const
    {
        return bench->control<QPushButton>(name).text();
    }

    static QColor textColour(const QLineEdit& box) { return box.palette().color(QPalette::Text); }

    /// As the display has it: of whatever is under the mouse there.
    QString toolTip(const QWidget& widget) const
    {
        QToolTip::hideText();
        const QPoint middle = widget.rect().center();
        QWidget* under = screen->childAt(widget.mapTo(screen, middle));
        const QPoint global = widget.mapToGlobal(middle);
        QHelpEvent event(QEvent::ToolTip, under->mapFromGlobal(global), global);
        QCoreApplication::sendEvent(under, &event);
        return QToolTip::text();
    }

    static bool textFits(const QLineEdit& box)
    {
        const QMargins margins = box.textMargins();
        const QFontMetrics metrics(box.font());
        return metrics.horizontalAdvance(box.text()) + margins.left() + margins.right() + 4
            <= box.width()
            && metrics.height() <= box.height();
    }

    void answer(const QString& keys)
    {
        auto& box = bench->control<QLineEdit>(u"TBResultado"_s);
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, keys);
        QTest::keyClick(&box, Qt::Key_Return);
    }

    void altKey(Qt::Key key) { QTest::keyClick(screen, key, Qt::AltModifier); }

    std::unique_ptr<ScreenBench> bench;
    FRMCombi* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(CombinedOperationsScreenTest)
#include "combined_operations_screen_test.moc"
