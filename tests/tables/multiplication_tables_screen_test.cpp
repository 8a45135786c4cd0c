#include "tables/multiplication_tables_screen.h"

#include "support/screen_bench.h"
#include "support/text_fit.h"
#include "ui/tray.h"

#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;
using tables::Form2;

class MultiplicationTablesScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<Form2>();
    }
    void cleanup()
    {
        ui::look::setContrast(ui::look::Contrast::Usual);
        bench.reset();
    }

    void comesUpWithTheTableOf1ToStudy()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - Ver tabla"_s);
        QCOMPARE(bench->control<QPlainTextEdit>(u"TbTabla1"_s).toPlainText(),
            u" 1x 1 =  1\n 1x 2 =  2\n 1x 3 =  3\n 1x 4 =  4\n 1x 5 =  5\n"_s);
        QCOMPARE(bench->control<QPlainTextEdit>(u"TbTabla2"_s).toPlainText(),
            u" 1x 6 =  6\n 1x 7 =  7\n 1x 8 =  8\n 1x 9 =  9\n 1x10 = 10\n"_s);
        QCOMPARE(bench->focusName(), u"TbTabla1"_s);
        QVERIFY(bench->control<QAction>(u"MnuOpcTabLis(0)"_s).isChecked());
        verifyShown(tableBoxes, true);
        verifyShown(reviewControls, false);
    }

    void everyLineStandsInTheMiddleOfItsRow_data()
    {
        QTest::addColumn<QString>("half");
        QTest::addColumn<double>("factor");

        for (const QString& half : tableBoxes)
            for (double factor : {0.8, 1.0, 1.45, 1.9, 3.0})
                QTest::addRow("%s, factor %g", qPrintable(half), factor) << half << factor;
    }
    void everyLineStandsInTheMiddleOfItsRow()
    {
        QFETCH(QString, half);
        QFETCH(double, factor);
        bench->pick(u"MnuOpcTabLis(3)"_s);
        zoom(factor);
        auto& box = bench->control<QPlainTextEdit>(half);
        const double row = box.height() / 5.0;
        for (int i = 0; i < 5; ++i) {
            QTextCursor line(box.document()->findBlockByNumber(i));
            const QRect start = box.cursorRect(line);
            line.movePosition(QTextCursor::EndOfBlock);
            const QRect end = box.cursorRect(line);
            const QPoint origin = box.viewport()->pos();
            const double middle = origin.y() + start.y() + start.height() / 2.0;
            QVERIFY2(qAbs(middle - (i + 0.5) * row) <= 2, qPrintable(QString::number(middle)));
            const double left = origin.x() + start.x();
            const double right = box.width() - origin.x() - end.x();
            QVERIFY(left > 0 && right > 0);
            // Of half the poster, whose paper reaches beyond the box at its outer side.
            const double beyond = (half == u"TbTabla1"_s ? 8 : -8) * factor;
            const double aside = left + beyond - right;
            QVERIFY2(qAbs(aside) <= 3, qPrintable(QString::number(aside)));
        }
        QCOMPARE(box.verticalScrollBar()->maximum(), 0);
        QCOMPARE(box.horizontalScrollBar()->maximum(), 0);
    }

    void productsAreDarkerThanFactors()
    {
        const QTextBlock line =
            bench->control<QPlainTextEdit>(u"TbTabla1"_s).document()->findBlockByNumber(2);
        QCOMPARE(line.text(), u" 1x 3 =  3"_s);
        const QList<QTextLayout::FormatRange> formats = line.layout()->formats();
        QCOMPARE(formats.size(), 1);
        QCOMPARE(formats.first().start, 0);
        QCOMPARE(formats.first().length, 7);
        QCOMPARE(formats.first().format.foreground().color(), QColor(ui::look::Quiet));
        QVERIFY(ui::look::contrast(QColor(ui::look::Quiet), QColor(ui::look::Grid))
            >= ui::look::ReadableContrast);
    }

    void highContrastMakesFactorsAsDark()
    {
        zoom(2); // some pixels of every letter are wholly of its colour
        const auto hasQuiet = [&] {
            const QImage half = bench->control<QWidget>(u"TbTabla1"_s).grab().toImage();
            for (int i = 0; i < half.width() * half.height(); ++i) {
                if (half.pixel(i % half.width(), i / half.width()) == ui::look::Quiet)
                    return true;
            }
            return false;
        };
        QVERIFY(hasQuiet());
        ui::look::setContrast(ui::look::Contrast::High);
        QVERIFY(!hasQuiet());
        ui::look::setContrast(ui::look::Contrast::Usual);
        QVERIFY(hasQuiet());
    }

    void everyOtherRowIsTintedAcrossBothHalves()
    {
        const QImage picture = screen->grab().toImage();
        const QWidget& left = bench->control<QWidget>(u"TbTabla1"_s);
        const QWidget& right = bench->control<QWidget>(u"TbTabla2"_s);
        constexpr int BesideText = 2;
        for (int i = 0; i < 5; ++i) {
            const QColor expected(i % 2 == 0 ? ui::look::Grid : ui::look::Card);
            const int y = static_cast<int>((i + 0.5) * left.height() / 5);
            QCOMPARE(picture.pixelColor(left.mapTo(screen, QPoint(BesideText, y))), expected);
            QCOMPARE(
                picture.pixelColor(right.mapTo(screen, QPoint(right.width() - BesideText, y))),
                expected);
        }
    }

    void thePosterHangsOnlyWhereATableIsShown()
    {
        const QWidget& right = bench->control<QWidget>(u"TbTabla2"_s);
        const QPoint place = right.mapTo(screen, QPoint(right.width() - 3, 3));
        QCOMPARE(screen->grab().toImage().pixelColor(place), QColor(ui::look::Grid));
        startReview();
        QCOMPARE(screen->grab().toImage().pixelColor(place), QColor(ui::look::Paper));
    }

    void nothingOfWhatIsHiddenPeepsOut()
    {
        const QWidget& canvas = *bench->control<QWidget>(u"Command1"_s).parentWidget();
        const int margin = qCeil(ui::Tray::Margin * screen->factor());
        for (const QString& name : reviewControls)
            QVERIFY2(bench->control<QWidget>(name).x() - margin >= canvas.width()
                    || name.startsWith(u"Tb"_s),
                qPrintable(name));
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<double>("factor");

        for (double factor : {0.8, 1.0, 1.25, 1.45, 1.9, 4.0})
            QTest::addRow("factor %g", factor) << factor;
    }
    void nothingIsCutOff()
    {
        QFETCH(double, factor);
        bench->pick(u"MnuOpcTabLis(3)"_s);
        zoom(factor);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
        startReview();
        answer(u"999"_s);
        bench->type(u"TbOperación(4)"_s, u"100"_s);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
    }

    void captionsAreExact()
    {
        const QMap<QString, QString> captions{{u"Command1"_s, u"&Hecho"_s},
            {u"Command2(0)"_s, u"&Continuar"_s}, {u"Command2(1)"_s, u"&Borrar"_s},
            {u"Command2(2)"_s, u"&Ver solución"_s}, {u"Command3(0)"_s, u"Siguiente &actividad"_s},
            {u"Command3(1)"_s, u"Siguiente &tabla"_s}};
        for (const auto& [name, caption] : captions.asKeyValueRange())
            QCOMPARE(bench->control<QPushButton>(name).text(), caption);
        const QMap<QString, QString> items{{u"MnuOpc"_s, u"&Opciones"_s},
            {u"MnuOpcTab"_s, u"&Tabla"_s}, {u"MnuOpcact"_s, u"&Actividad"_s},
            {u"MnuOpcActLis(0)"_s, u"&Ver tabla"_s},
            {u"MnuOpcActLis(1)"_s, u"&Repasar tabla en orden"_s},
            {u"MnuOpcActLis(2)"_s, u"&Repasar tabla salteada"_s},
            {u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s}};
        for (const auto& [name, caption] : items.asKeyValueRange())
            QCOMPARE(bench->control<QAction>(name).text(), caption);
        const QList<int> order{1, 2, 5, 10, 3, 4, 6, 7, 8, 9};
        for (int i = 0; i < 10; ++i)
            QCOMPARE(bench->control<QAction>(u"MnuOpcTabLis(%1)"_s.arg(i)).text(),
                u"&%1"_s.arg(order.at(i)));
    }

    void buttonsHaveTheirColours() { bench->verifyCommandColours(); }

    void choosingAReviewSwapsTheControls()
    {
        bench->pick(u"MnuOpcActLis(1)"_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - Repasar tabla en orden"_s);
        verifyShown(tableBoxes, false);
        verifyShown(reviewControls, true, {u"Command2(2)"_s});
        QVERIFY(!bench->control<QPushButton>(u"Command2(2)"_s).isEnabled());
        QCOMPARE(bench->focusName(), u"TbOperación(4)"_s);
    }

    void choosingTheSameActivityAgainMovesNothing()
    {
        bench->pick(u"MnuOpcActLis(0)"_s);
        bench->pick(u"MnuOpcActLis(0)"_s);
        verifyShown(tableBoxes, true);
        verifyShown(reviewControls, false);
        const int left = bench->control<QWidget>(u"Command1"_s).x();
        bench->pick(u"MnuOpcActLis(1)"_s);
        scriptShuffle();
        bench->pick(u"MnuOpcActLis(2)"_s);
        QCOMPARE(bench->control<QWidget>(u"Command1"_s).x(), left - 400);
    }

    void reviewShowsTheOperationSelected()
    {
        startReview();
        QCOMPARE(line(), u"1 × 1 = "_s);
        verifySigns(true);
    }

    void keysRemoveTheHighlightAndF5BringsItBack()
    {
        startReview();
        bench->key(u"TbOperación(4)"_s, Qt::Key_3);
        verifySigns(false);
        bench->key(u"TbOperación(4)"_s, Qt::Key_F5);
        verifySigns(true);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), u"3"_s);
        bench->key(u"TbOperación(4)"_s, Qt::Key_Shift);
        verifySigns(false);
    }

    void enterRemovesTheHighlightToo()
    {
        startReview();
        bench->key(u"TbOperación(4)"_s, Qt::Key_Return);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto "_s);
        verifySigns(false);
    }

    void wrongAnswerKeepsTheQuestion()
    {
        startReview();
        QVERIFY(!bench->control<QPushButton>(u"Command2(2)"_s).isEnabled());
        answer(u"2"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto "_s);
        QCOMPARE(
            bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"resultado incorrecto "_s);
        QCOMPARE(line(), u"1 × 1 = "_s);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), QString());
        QVERIFY(bench->control<QPushButton>(u"Command2(2)"_s).isEnabled());
        QCOMPARE(bench->focusName(), u"TbOperación(4)"_s);
    }

    void theVerdictEdgesTheAnswerOfTheSameQuestion()
    {
        const auto& answerBox = bench->control<ui::TextBox>(u"TbOperación(4)"_s);
        startReview();
        answer(u"2"_s);
        QCOMPARE(answerBox.edge(), QColor(ui::look::Wrong));
        answer(u"1"_s);
        QCOMPARE(line(), u"1 × 2 = "_s);
        QCOMPARE(answerBox.edge(), std::nullopt);
    }

    void emptyAnswerIsWrong()
    {
        startReview();
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto "_s);
    }

    void theAnswerIsReadAsANumber_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isRight");

        QTest::newRow("blank before it") << u" 7"_s << true;
        QTest::newRow("zero before it") << u"07"_s << true;
        QTest::newRow("decimals of nothing") << u"7,0"_s << true;
        QTest::newRow("word behind it") << u"7 veces"_s << true;
        QTest::newRow("more than it") << u"7,5"_s << false;
        QTest::newRow("word before it") << u"x7"_s << false;
        QTest::newRow("word") << u"siete"_s << false;
        QTest::newRow("sign") << u"-"_s << false;
    }
    void theAnswerIsReadAsANumber()
    {
        QFETCH(QString, typed);
        QFETCH(bool, isRight);
        bench->pick(u"MnuOpcTabLis(7)"_s);
        startReview();
        QCOMPARE(line(), u"7 × 1 = "_s);
        BoxAnswerer noBox;
        answer(typed);
        QCOMPARE(bench->text(u"Text1"_s),
            isRight ? u"Resultado correcto"_s : u"resultado incorrecto "_s);
        QCOMPARE(line(), isRight ? u"7 × 2 = "_s : u"7 × 1 = "_s);
    }

    void rightAnswerBringsTheNextQuestion()
    {
        startReview();
        answer(u"2"_s); // wrong: "&Ver solución" is enabled
        answer(u"1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"Resultado correcto"_s);
        QCOMPARE(line(), u"1 × 2 = "_s);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), QString());
        QVERIFY(!bench->control<QPushButton>(u"Command2(2)"_s).isEnabled());
        verifySigns(true);
    }

    void keypadEnterChecksToo()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"1"_s);
        bench->key(u"TbOperación(4)"_s, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(line(), u"1 × 2 = "_s);
    }

    void continueChecksAndRefocuses()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"1"_s);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(line(), u"1 × 2 = "_s);
        QCOMPARE(bench->focusName(), u"TbOperación(4)"_s);
    }

    void continueRefocusesAfterAWrongAnswerToo()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"2"_s);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto "_s);
        QCOMPARE(line(), u"1 × 1 = "_s);
        QCOMPARE(bench->focusName(), u"TbOperación(4)"_s);
    }

    void clearEmptiesTheAnswer()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"12"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), QString());
        QCOMPARE(bench->focusName(), u"TbOperación(4)"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
    }

    void solutionIsFilledInToBeConfirmed()
    {
        startReview();
        answer(u"1"_s);
        answer(u"7"_s); // wrong
        bench->click(u"Command2(2)"_s);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), u"2"_s);
        QCOMPARE(bench->control<QLineEdit>(u"TbOperación(4)"_s).selectedText(), u"2"_s);
        QCOMPARE(bench->focusName(), u"TbOperación(4)"_s);
        bench->key(u"TbOperación(4)"_s, Qt::Key_Return);
        QCOMPARE(line(), u"1 × 3 = "_s);
    }

    void endOfTheSeriesReportsItsErrorsAndRepeats()
    {
        startReview();
        answer(u"5"_s);
        answer(u"6"_s);
        BoxAnswerer boxes(u"Sí"_s);
        for (int k = 1; k <= 10; ++k)
            answer(QString::number(k));
        QCOMPARE(boxes.titles, {u"Repaso terminado"_s});
        QCOMPARE(boxes.texts,
            {u"Has cometido 2 errores. ¿Deseas volver a realizar esta actividad?"_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(line(), u"1 × 1 = "_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - Repasar tabla en orden"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto"_s);
        // Highlights outlive the box.
        makeActive(*screen);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"Resultado correcto"_s);
        verifySigns(true);
    }

    void nextTableWalksTheMenuAndWraps()
    {
        const QList<int> order{2, 5, 10, 3, 4, 6, 7, 8, 9, 1};
        for (int i = 0; i < 10; ++i) {
            bench->click(u"Command3(1)"_s);
            QCOMPARE(screen->windowTitle(), u"Tabla del %1 - Ver tabla"_s.arg(order.at(i)));
            for (int item = 0; item < 10; ++item)
                QCOMPARE(bench->control<QAction>(u"MnuOpcTabLis(%1)"_s.arg(item)).isChecked(),
                    item == (i + 1) % 10);
        }
    }

    void everyMenuItemAnswersItsAccessKey()
    {
        const auto keys = [&](std::initializer_list<Qt::Key> path) {
            altKey(Qt::Key_O);
            QWidget* popup = &bench->control<QMenu>(u"MnuOpc"_s);
            for (Qt::Key key : path) {
                QVERIFY(QTest::qWaitFor([&] { return QApplication::activePopupWidget(); }));
                popup = QApplication::activePopupWidget();
                QTest::keyClick(popup, key);
            }
        };
        keys({Qt::Key_T, Qt::Key_7});
        QCOMPARE(screen->windowTitle(), u"Tabla del 7 - Ver tabla"_s);
        keys({Qt::Key_A, Qt::Key_R}); // shared by both reviews: the first is only marked
        QApplication::activePopupWidget()->close();
        bench->control<QMenu>(u"MnuOpc"_s).close();
        keys({Qt::Key_A, Qt::Key_V});
        QCOMPARE(screen->windowTitle(), u"Tabla del 7 - Ver tabla"_s);
        const QPointer<Form2> alive(screen);
        keys({Qt::Key_S});
        QTRY_VERIFY(!alive);
    }

    void noAtTheEndGoesOnToTheNextActivity()
    {
        startReview();
        scriptShuffle();
        BoxAnswerer boxes(u"No"_s);
        for (int k = 1; k <= 10; ++k)
            answer(QString::number(k));
        QCOMPARE(boxes.texts,
            {u"Has cometido 0 errores. ¿Deseas volver a realizar esta actividad?"_s});
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - repasar tabla salteada"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(bench->random.left(), 0u);
    }

    void finishedSeriesIsAskedAboutWithDone()
    {
        scriptShuffle();
        bench->pick(u"MnuOpcActLis(2)"_s);
        {
            BoxAnswerer boxes(u"No"_s);
            for (int k = 1; k <= 10; ++k)
                answer(bench->text(u"TbOperación(2)"_s));
        }
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - Ver tabla"_s);
        auto& done = bench->control<QPushButton>(u"Command1"_s);
        done.setEnabled(true);
        BoxAnswerer boxes({u"No"_s, u"Sí"_s});
        done.click();
        QCOMPARE(bench->text(u"Text1"_s), QString());
        done.click();
        QCOMPARE(boxes.titles, (QStringList{u"Actividad terminada"_s, u"Actividad terminada"_s}));
        QCOMPARE(boxes.texts.last(),
            u"La actividad está terminada. Si deseas repetirla pulsa en sí, en caso contrario "
            "pulsa No y entra en el menú opciones para elegir una actividad nueva"_s);
        QCOMPARE(line(), u"1 × 1 = "_s);
    }

    void nextTableStartsTheSeriesAnew()
    {
        startReview();
        answer(u"1"_s);
        bench->click(u"Command3(1)"_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 2 - Repasar tabla en orden"_s);
        QCOMPARE(line(), u"2 × 1 = "_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QVERIFY(!bench->control<QAction>(u"MnuOpcTabLis(0)"_s).isChecked());
        QVERIFY(bench->control<QAction>(u"MnuOpcTabLis(1)"_s).isChecked());
    }

    void theVerdictStandsUntilTheNextTableOrActivity()
    {
        const auto verdict = [&] { return bench->text(u"Text1"_s); };
        for (const QString& next : {u"Command3(0)"_s, u"Command3(1)"_s}) {
            startReview();
            answer(u"999"_s);
            for (const QString& button : {u"Command2(1)"_s, u"Command2(2)"_s}) {
                bench->click(button);
                QCOMPARE(verdict(), u"resultado incorrecto "_s);
            }
            scriptShuffle();
            for (const QString& item : {u"MnuOpcTabLis(4)"_s, u"MnuOpcActLis(2)"_s,
                     u"MnuOpcActLis(0)"_s, u"MnuOpcTabLis(0)"_s}) {
                bench->pick(item);
                QCOMPARE(verdict(), u"resultado incorrecto "_s);
            }
            bench->click(next);
            QCOMPARE(verdict(), QString());
        }
    }

    void pickingTheCheckedTableKeepsItChecked()
    {
        bench->pick(u"MnuOpcTabLis(0)"_s);
        QVERIFY(bench->control<QAction>(u"MnuOpcTabLis(0)"_s).isChecked());
    }

    void pickingATableWritesItAndChecksIt()
    {
        bench->pick(u"MnuOpcTabLis(3)"_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 10 - Ver tabla"_s);
        QVERIFY(bench->control<QPlainTextEdit>(u"TbTabla2"_s)
                    .toPlainText()
                    .endsWith(u"10x10 =100\n"_s));
        for (int i = 0; i < 10; ++i)
            QCOMPARE(bench->control<QAction>(u"MnuOpcTabLis(%1)"_s.arg(i)).isChecked(), i == 3);
    }

    void nextActivityWalksThroughTheThree()
    {
        bench->click(u"Command3(0)"_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - Repasar tabla en orden"_s);
        scriptShuffle();
        bench->click(u"Command3(0)"_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - repasar tabla salteada"_s);
        bench->click(u"Command3(0)"_s);
        QCOMPARE(screen->windowTitle(), u"Tabla del 1 - Ver tabla"_s);
        QCOMPARE(bench->focusName(), u"TbTabla1"_s);
    }

    void highlightOutlivesABoxAndTheWindowBehindIt()
    {
        startReview();
        answer(u"9"_s);
        QCOMPARE(
            bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"resultado incorrecto "_s);
        QWidget other;
        other.show();
        makeActive(other);
        makeActive(*screen);
        QCOMPARE(
            bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"resultado incorrecto "_s);
    }

    void everyAccessKeyWorks()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"5"_s);
        altKey(Qt::Key_H);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto "_s);
        altKey(Qt::Key_V);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), u"1"_s);
        altKey(Qt::Key_B);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), QString());
        bench->type(u"TbOperación(4)"_s, u"1"_s);
        altKey(Qt::Key_C);
        QCOMPARE(line(), u"1 × 2 = "_s);
        altKey(Qt::Key_T);
        QCOMPARE(line(), u"2 × 1 = "_s);
        scriptShuffle();
        altKey(Qt::Key_A);
        QCOMPARE(screen->windowTitle(), u"Tabla del 2 - repasar tabla salteada"_s);
        altKey(Qt::Key_O);
        QVERIFY(QTest::qWaitFor([&] { return bench->control<QMenu>(u"MnuOpc"_s).isVisible(); }));
        bench->control<QMenu>(u"MnuOpc"_s).close();
    }

    void noKeyIsFiltered()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"a ñ-3,5/x"_s);
        QCOMPARE(bench->text(u"TbOperación(4)"_s), u"a ñ-3,5/x"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
    }

    void escapeDoesNothing()
    {
        startReview();
        bench->type(u"TbOperación(4)"_s, u"5"_s);
        bench->key(u"TbOperación(4)"_s, Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        QCOMPARE(bench->text(u"TbOperación(4)"_s), u"5"_s);
    }

    void exitUnloadsAndReopeningStartsAfresh()
    {
        bench->pick(u"MnuOpcTabLis(5)"_s);
        bench->pick(u"MnuOpcSal"_s);
        QCOMPARE(bench->screens.loaded(u"Form2"_s), nullptr);
        QCOMPARE(bench->open<Form2>().windowTitle(), u"Tabla del 1 - Ver tabla"_s);
    }

private:
    const QStringList tableBoxes{u"TbTabla1"_s, u"TbTabla2"_s};
    const QStringList reviewControls{u"TbOperación(0)"_s, u"TbOperación(1)"_s,
        u"TbOperación(2)"_s, u"TbOperación(3)"_s, u"TbOperación(4)"_s, u"Text1"_s, u"Command1"_s,
        u"Command2(0)"_s, u"Command2(1)"_s, u"Command2(2)"_s};

    void zoom(double factor)
    {
        screen->resize((QSizeF(screen->size()) / screen->factor() * factor).toSize());
    }

    void startReview() { bench->pick(u"MnuOpcActLis(1)"_s); }

    void scriptShuffle()
    {
        for (int i = 0; i < 100; ++i)
            bench->random.appendInteger(1 + i % 9, 9, 1);
    }

    void answer(const QString& keys)
    {
        bench->type(u"TbOperación(4)"_s, keys);
        bench->key(u"TbOperación(4)"_s, Qt::Key_Return);
    }

    QString line() const
    {
        QStringList texts;
        for (int i = 0; i < 5; ++i)
            texts << bench->text(u"TbOperación(%1)"_s.arg(i));
        return texts.join(u' ');
    }

    void altKey(Qt::Key key) { QTest::keyClick(screen, key, Qt::AltModifier); }

    void verifySigns(bool selected)
    {
        for (int i = 0; i < 4; ++i) {
            const auto& box = bench->control<QLineEdit>(u"TbOperación(%1)"_s.arg(i));
            QCOMPARE(box.selectedText(), selected ? box.text() : QString());
        }
    }

    void verifyShown(const QStringList& names, bool shown, const QStringList& disabled = {})
    {
        for (const QString& name : names) {
            const auto& control = bench->control<QWidget>(name);
            const bool inside = control.parentWidget()->rect().intersects(control.geometry());
            QVERIFY2(inside == shown, qPrintable(name));
            QVERIFY2(
                control.isEnabled() == (shown && !disabled.contains(name)), qPrintable(name));
        }
    }

    std::unique_ptr<ScreenBench> bench;
    Form2* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(MultiplicationTablesScreenTest)
#include "multiplication_tables_screen_test.moc"
