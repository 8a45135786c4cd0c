#include "problems/problem_session_screen.h"

#include "problems/bank_editor_screen.h"
#include "problems/selection_screen.h"
#include "support/bank_folder.h"
#include "support/screen_bench.h"
#include "ui/tray.h"

#include <QAbstractButton>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using problems::FormProblemas;

class ProblemSessionScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folderBefore = QDir::currentPath();
        bench = std::make_unique<ScreenBench>();
        bench->screens.add<problems::DLGProblemas>();
        bench->screens.add<problems::DLGSelProb>();
        writeBank(bench->folder.path(),
            {"P0|10|u0|*", "P1|11|ni\xF1os|*", "P2|12|u2|/", "P3|13|u3|+", "P4|14|u4|-"});
    }
    void cleanup()
    {
        bench.reset();
        QDir::setCurrent(folderBefore);
    }

    // --- coming up

    void comesUpWithAProblem()
    {
        open(1);
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        QCOMPARE(screen->windowTitle(), u"Problemas"_s);
        QCOMPARE(statement(), u"P1"_s);
        QCOMPARE(label(u"LBUnidad"_s), u"niños"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios:   Errores:   "_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), QString());
        QCOMPARE(bench->text(u"TBCorrecto"_s), QString());
        QCOMPARE(bench->focusName(), u"TBRespuesta"_s);
        QCOMPARE(QDir::currentPath(), folderBefore);
        QVERIFY(!screen->isModal());
    }

    void captionsAreExact()
    {
        open(1);
        const QMap<QString, QString> captions{{u"Command1"_s, u"&Hecho"_s},
            {u"Command2(0)"_s, u"&Continuar"_s}, {u"Command2(1)"_s, u"&Borrar"_s},
            {u"Command2(2)"_s, u"&Ver solución"_s}};
        for (const auto& [name, caption] : captions.asKeyValueRange())
            QCOMPARE(bench->control<QPushButton>(name).text(), caption);
        QCOMPARE(label(u"LBRespuesta"_s), u"Respuesta"_s);
        QCOMPARE(label(u"LBInstruc"_s),
            u"Resuelva el problema, introduzca el resultado y pulse Hecho"_s);
        const QMap<QString, QString> items{{u"MnuOpc"_s, u"&Opciones"_s},
            {u"MnuOpcGes"_s, u"&Gestión de problemas..."_s},
            {u"MnuOpcSel"_s, u"&Seleccionar problemas..."_s},
            {u"MnuOpcSal"_s, u"&Salir Alt + F4"_s}};
        for (const auto& [name, caption] : items.asKeyValueRange())
            QCOMPARE(bench->control<QAction>(name).text(), caption);
    }

    void buttonsHaveTheirColours()
    {
        open(1);
        bench->verifyCommandColours();
    }

    void answerVerdictAndButtonsStandOnOneAxis()
    {
        open(1);
        const auto place = [this](const QString& name) {
            return bench->control<QWidget>(name).geometry();
        };
        const QRect answer = place(u"TBRespuesta"_s);
        QCOMPARE(place(u"TBCorrecto"_s).left(), answer.left());
        QCOMPARE(place(u"Command1"_s).left() - ui::Tray::Margin, answer.left());
        QCOMPARE(place(u"LBUnidad"_s).center().y(), answer.center().y());
        QVERIFY(place(u"LBUnidad"_s).left() > answer.right());
        QVERIFY(place(u"TBCorrecto"_s).top() - answer.bottom() < answer.height() / 2);

        QRect before = place(u"Command1"_s);
        for (const QString& name : {u"Command2(1)"_s, u"Command2(0)"_s, u"Command2(2)"_s}) {
            const QRect next = place(name);
            QCOMPARE(next.top(), before.top());
            QVERIFY2(next.left() > before.right(), qPrintable(name));
            before = next;
        }
        const QRect statement = place(u"TBEnunciado"_s);
        QCOMPARE(before.right() + ui::Tray::Margin, statement.right());
        QCOMPARE(place(u"LBEstado"_s).left(), statement.left());
        QVERIFY(place(u"LBEstado"_s).top() > before.bottom() + ui::Tray::Margin);
    }

    void whatLooksLikeMarkUpIsShownAsItIs()
    {
        writeBank(bench->folder.path(), {"P0|1|u|*", "<b>2</b> &amp; <i>|1|<b>kg</b> & g|*"});
        bench->random.append({0.5f});
        screen = &bench->open<FormProblemas>();
        QCOMPARE(statement(), u"<b>2</b> &amp; <i>"_s);
        const auto& box = bench->control<QTextEdit>(u"TBEnunciado"_s);
        QVERIFY(!box.toHtml().contains(u"<b>2"_s));
        QVERIFY(box.isReadOnly());
        const auto& unit = bench->control<QLabel>(u"LBUnidad"_s);
        QCOMPARE(unit.text(), u"<b>kg</b> & g"_s);
        QCOMPARE(unit.textFormat(), Qt::PlainText);
    }

    void missingBankShowsNoProblem()
    {
        removeBank();
        screen = &bench->open<FormProblemas>();
        QCOMPARE(statement(), QString());
        QCOMPARE(label(u"LBUnidad"_s), QString());
        QCOMPARE(QDir::currentPath(), QDir(bench->folder.path()).canonicalPath());
        answer(u"1"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta incorrecta"_s);
        answer(u"0"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta correcta"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 2 Errores: 1"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(boxes.texts, {EmptyText});
    }

    void theAnswerBoxSaysHowToWriteThousands()
    {
        open(1);
        QCOMPARE(bench->control<QLineEdit>(u"TBRespuesta"_s).toolTip(),
            u"Escriba el número sin puntos ni espacios: 1200"_s);
    }

    void aLineThatCannotBePreparedIsToldOnceTheScreenIsUp()
    {
        writeBank(bench->folder.path(), {"P0|1||*", "mal|{&0}||*", "P2|12||*"});
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->random.appendInteger(1, 2, 1);
        openWithABox(boxes);
        QVERIFY2(boxes.texts.constFirst().startsWith(u"El problema de la línea 2 del banco"_s),
            qPrintable(boxes.texts.constFirst()));
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QVERIFY(screen->isVisible());
        QCOMPARE(statement(), QString());
        script({2}, 3);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(statement(), u"P2"_s);
    }

    void aBankThatCannotBeReadIsToldOnceTheScreenIsUp_data()
    {
        QTest::addColumn<bool>("folder");
        QTest::addColumn<QString>("text");
        QTest::newRow("not a file") << true << u"No se puede leer «"_s;
        QTest::newRow("no folder") << false << u"No se puede abrir la carpeta «"_s;
    }
    void aBankThatCannotBeReadIsToldOnceTheScreenIsUp()
    {
        QFETCH(bool, folder);
        QFETCH(QString, text);
        spoilBank(folder);
        BoxAnswerer boxes(u"Aceptar"_s);
        openWithABox(boxes);
        QVERIFY2(boxes.texts.constFirst().startsWith(text), qPrintable(boxes.texts.constFirst()));
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QVERIFY(screen->isVisible());
        QCOMPARE(statement(), QString());
        QCOMPARE(QDir::currentPath(), folderBefore);
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        answer(u"0"_s); // compared with the answer of no problem
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 1 Errores: 0"_s);
    }

    void aSelectionThatCannotReadTheBankChangesNothing()
    {
        open(1);
        spoilBank(true);
        bench->type(u"TBRespuesta"_s, u"5"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->pick(u"MnuOpcSel"_s);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY2(boxes.texts.constFirst().startsWith(u"No se puede leer «"_s),
            qPrintable(boxes.texts.constFirst()));
        QVERIFY(!bench->screens.loaded(u"DLGSelProb"_s));
        QVERIFY(screen->isVisible());
        QCOMPARE(statement(), u"P1"_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), u"5"_s);
        script({2}, 5); // of the bank as it was read
        bench->click(u"Command2(0)"_s);
        QCOMPARE(statement(), u"P2"_s);
    }

    void aBankOfOneLineIsTold()
    {
        writeBank(bench->folder.path(), {"P0|1||*"});
        BoxAnswerer boxes{u"Aceptar"_s, u"Aceptar"_s};
        openWithABox(boxes);
        QVERIFY(screen->isVisible());
        bench->click(u"Command2(0)"_s);
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY2(
            boxes.texts.constLast().contains(u"línea 1"_s), qPrintable(boxes.texts.constLast()));
    }

    // --- answers

    void aWrongAnswerIsClearedAndCounted()
    {
        open(1);
        bench->type(u"TBRespuesta"_s, u"12"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta incorrecta"_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), QString());
        QCOMPARE(bench->focusName(), u"TBRespuesta"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 1 Errores: 1"_s);
        QCOMPARE(statement(), u"P1"_s);
    }

    void aRightAnswerMovesOnToContinue()
    {
        open(1);
        bench->type(u"TBRespuesta"_s, u"11"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta correcta"_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), u"11"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 1 Errores: 0"_s);
    }

    void aWrongThenARightAnswerCountTwoAndOne()
    {
        open(1);
        answer(u"1"_s);
        answer(u"11"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 2 Errores: 1"_s);
    }

    void answersAreReadByTheirLeadingNumber_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("with words behind") << u" 11 niños"_s << u"Respuesta correcta"_s;
        QTest::newRow("nothing") << u""_s << u"Respuesta incorrecta"_s;
        QTest::newRow("words") << u"once"_s << u"Respuesta incorrecta"_s;
        QTest::newRow("fraction") << u"11.5"_s << u"Respuesta incorrecta"_s;
        QTest::newRow("leading zero") << u"011"_s << u"Respuesta correcta"_s;
        QTest::newRow("longer") << u"111"_s << u"Respuesta incorrecta"_s;
        QTest::newRow("far too long") << u"99999999999999999999"_s << u"Respuesta incorrecta"_s;
    }
    void answersAreReadByTheirLeadingNumber()
    {
        QFETCH(QString, typed);
        open(1);
        answer(typed);
        QTEST(bench->text(u"TBCorrecto"_s), "verdict");
    }

    void keypadEnterChecksToo()
    {
        open(1);
        bench->type(u"TBRespuesta"_s, u"11"_s);
        bench->key(u"TBRespuesta"_s, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta correcta"_s);
    }

    void enterOnContinueBringsTheNextProblem()
    {
        open(1);
        answer(u"11"_s);
        script({3}, 5);
        bench->key(u"Command2(0)"_s, Qt::Key_Return);
        QCOMPARE(statement(), u"P3"_s);
    }

    void continueShowsTheNextProblem()
    {
        open(1);
        answer(u"11"_s);
        script({2}, 5);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(statement(), u"P2"_s);
        QCOMPARE(label(u"LBUnidad"_s), u"u2"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), QString());
        QCOMPARE(bench->text(u"TBRespuesta"_s), QString());
        QCOMPARE(bench->focusName(), u"TBRespuesta"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 1 Errores: 0"_s);
        answer(u"12"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 2 Errores: 0"_s);
    }

    void continueCountsNothing()
    {
        open(1);
        script({2}, 5);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios:   Errores:   "_s);
    }

    void clearEmptiesTheAnswerAlone()
    {
        open(1);
        answer(u"1"_s);
        bench->type(u"TBRespuesta"_s, u"12"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), QString());
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta incorrecta"_s);
        QCOMPARE(bench->focusName(), u"TBRespuesta"_s);
    }

    void theSolutionDoesNotCount()
    {
        open(1);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), u"11"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios:   Errores:   "_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta correcta"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 0 Errores: 0"_s);
    }

    void everyAccessKeyWorks()
    {
        open(1);
        const auto alt = [&](Qt::Key key) { QTest::keyClick(screen, key, Qt::AltModifier); };
        alt(Qt::Key_V);
        QCOMPARE(bench->text(u"TBRespuesta"_s), u"11"_s);
        alt(Qt::Key_B);
        QCOMPARE(bench->text(u"TBRespuesta"_s), QString());
        alt(Qt::Key_H);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta incorrecta"_s);
        script({4}, 5);
        alt(Qt::Key_C);
        QCOMPARE(statement(), u"P4"_s);
    }

    void escapeDoesNothing()
    {
        open(1);
        bench->type(u"TBRespuesta"_s, u"5"_s);
        bench->key(u"TBRespuesta"_s, Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        QCOMPARE(bench->text(u"TBRespuesta"_s), u"5"_s);
    }

    // --- the selection

    void theSelectionIsAskedForInADialog()
    {
        open(1);
        bench->pick(u"MnuOpcSel"_s);
        const ui::Screen* dialog = bench->screens.loaded(u"DLGSelProb"_s);
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->isModal());
        QCOMPARE(statement(), u"P1"_s); // nothing before it is closed
    }

    void anAcceptedSelectionDecidesTheNextProblem()
    {
        open(1);
        answer(u"11"_s);
        bench->type(u"TBRespuesta"_s, u"5"_s);
        bench->pick(u"MnuOpcSel"_s);
        choose(u"Option1(2)"_s);
        choose(u"Check1(3)"_s);
        script({1, 2, 3, 4}, 5); // the first three are not subtractions
        closeDialog(u"OKButton"_s);
        QCOMPARE(statement(), u"P4"_s);
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(bench->text(u"TBRespuesta"_s), QString());
        QCOMPARE(bench->text(u"TBCorrecto"_s), QString());
        QVERIFY(screen->isVisible());
        QTRY_COMPARE(bench->focusName(), u"TBRespuesta"_s);
        answer(u"14"_s);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios: 2 Errores: 0"_s);
    }

    void aCancelledSelectionLeavesTheFilterAndBringsAProblem()
    {
        open(1);
        select({u"Option1(2)"_s, u"Check1(0)"_s}, 1);
        bench->pick(u"MnuOpcSel"_s);
        choose(u"Option1(0)"_s);
        script({2, 3, 1}, 5); // still multiplications alone
        closeDialog(u"CancelButton"_s);
        QCOMPARE(statement(), u"P1"_s);
        QCOMPARE(bench->random.left(), 0u);
    }

    void theDialogsCloseBoxCancels()
    {
        open(1);
        bench->pick(u"MnuOpcSel"_s);
        choose(u"Option1(2)"_s);
        choose(u"Check1(3)"_s);
        script({2}, 5);
        bench->screens.loaded(u"DLGSelProb"_s)->close();
        QCOMPARE(statement(), u"P2"_s);
    }

    void subtractionsAloneAreAvailableButNeverFound()
    {
        open(1);
        bench->type(u"TBRespuesta"_s, u"1"_s);
        bench->key(u"TBRespuesta"_s, Qt::Key_Return);
        bench->type(u"TBRespuesta"_s, u"7"_s);
        bench->pick(u"MnuOpcSel"_s);
        choose(u"Option1(1)"_s);
        choose(u"Check1(3)"_s);
        ui::Screen& dialog = *bench->screens.loaded(u"DLGSelProb"_s);
        QCOMPARE(ScreenBench::find<QLineEdit>(dialog, u"Text1"_s).text(),
            u"1 enunciados disponibles"_s);
        {
            BoxAnswerer boxes(u"Aceptar"_s);
            closeDialog(u"OKButton"_s);
            QCOMPARE(boxes.texts, {NoneText});
            QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        }
        QCOMPARE(statement(), u"P1"_s);
        QCOMPARE(bench->text(u"TBRespuesta"_s), u"7"_s);
        QCOMPARE(bench->text(u"TBCorrecto"_s), u"Respuesta incorrecta"_s);
        select({u"Option1(0)"_s}, 4);
    }

    void theFilterIsResetWhenTheScreenIsLoadedAgain()
    {
        open(1);
        select({u"Option1(2)"_s, u"Check1(3)"_s}, 4);
        answer(u"0"_s);
        bench->pick(u"MnuOpcSal"_s);
        open(1);
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios:   Errores:   "_s);
    }

    // --- the editor

    void theEditorHidesTheScreenUntilItCloses()
    {
        open(1);
        bench->control<QWidget>(u"Command1"_s).setFocus(); // hiding can move the focus too
        bench->pick(u"MnuOpcGes"_s);
        ui::Screen* editor = bench->screens.loaded(u"DLGProblemas"_s);
        QVERIFY(editor);
        makeActive(*editor);
        QVERIFY(!editor->isModal());
        QVERIFY(!screen->isVisible());
        QCOMPARE(bench->screens.loaded(u"FormProblemas"_s), screen);
        QTest::mouseClick(
            &ScreenBench::find<QPushButton>(*editor, u"CancelButton"_s), Qt::LeftButton);
        QVERIFY(!bench->screens.loaded(u"DLGProblemas"_s));
        QVERIFY(screen->isVisible());
        QCOMPARE(statement(), u"P1"_s);
        QTRY_COMPARE(bench->focusName(), u"TBRespuesta"_s);
    }

    void acceptingInTheEditorShowsTheScreenAgain()
    {
        open(1);
        bench->pick(u"MnuOpcGes"_s);
        QTest::mouseClick(&ScreenBench::find<QPushButton>(
                              *bench->screens.loaded(u"DLGProblemas"_s), u"OKButton"_s),
            Qt::LeftButton);
        QVERIFY(screen->isVisible());
    }

    void openingTheEditorReadsTheBankAnewAtOnce()
    {
        open(1);
        writeBank(bench->folder.path(), {"N0|20|n|*", "N1|21|n|*"});
        bench->pick(u"MnuOpcGes"_s);
        writeBank(bench->folder.path(), {"later|0||*", "later|0||*"}); // too late
        bench->screens.loaded(u"DLGProblemas"_s)->close();
        QCOMPARE(statement(), u"P1"_s); // stays
        script({1}, 2);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(statement(), u"N1"_s);
    }

    void aBankThatIsGoneWhenTheEditorOpensLeavesNothingToDraw()
    {
        open(1);
        removeBank();
        bench->pick(u"MnuOpcGes"_s);
        QCOMPARE(QDir::currentPath(), folderBefore);
        bench->screens.loaded(u"DLGProblemas"_s)->close();
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(boxes.texts, {EmptyText});
        QCOMPARE(statement(), u"P1"_s);
    }

    void theScreenStaysWhenTheEditorCannotOpen()
    {
        open(1);
        removeBank();
        QVERIFY(QDir(bench->folder.path()).mkdir(u"Problemas3.dat"_s)); // not a file
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->pick(u"MnuOpcGes"_s);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(screen->isVisible());
    }

    // --- leaving

    void exitUnloadsTheScreenAndTheEditor()
    {
        open(1);
        bench->pick(u"MnuOpcGes"_s);
        bench->screens.show(u"FormProblemas"_s); // as a click in the main menu does
        QVERIFY(screen->isVisible());
        bench->pick(u"MnuOpcSal"_s);
        QVERIFY(!bench->screens.loaded(u"FormProblemas"_s));
        QVERIFY(!bench->screens.loaded(u"DLGProblemas"_s));
    }

    void anEditorThatOutlivesTheScreenOpensItAfresh()
    {
        open(1);
        answer(u"0"_s);
        bench->pick(u"MnuOpcGes"_s);
        bench->screens.show(u"FormProblemas"_s);
        screen->close();
        QVERIFY(!bench->screens.loaded(u"FormProblemas"_s));
        script({2}, 5);
        bench->screens.loaded(u"DLGProblemas"_s)->close();
        const ui::Screen* again = bench->screens.loaded(u"FormProblemas"_s);
        QVERIFY(again);
        QVERIFY(again->isVisible());
        QCOMPARE(ScreenBench::find<QTextEdit>(*again, u"TBEnunciado"_s).toPlainText(), u"P2"_s);
    }

    // --- events in the middle of a draw

    void noDrawStartsInTheMiddleOfADraw()
    {
        open(1);
        later([this] { bench->control<QPushButton>(u"Command2(0)"_s).click(); });
        later([this] { bench->pick(u"MnuOpcSel"_s); });
        later([this] { bench->pick(u"MnuOpcGes"_s); });
        later([this] { bench->key(u"TBRespuesta"_s, Qt::Key_Return); });
        script({2}, 5);
        bench->control<QPushButton>(u"Command2(0)"_s).click();
        QCOMPARE(statement(), u"P2"_s);
        QCOMPARE(bench->random.left(), 0u);
        QVERIFY(!bench->screens.loaded(u"DLGSelProb"_s));
        QVERIFY(!bench->screens.loaded(u"DLGProblemas"_s));
        QCOMPARE(label(u"LBEstado"_s), u"Ejercicios:   Errores:   "_s);
        script({3}, 5); // and it goes on as usual
        bench->click(u"Command2(0)"_s);
        QCOMPARE(statement(), u"P3"_s);
    }

    void eventsRunBeforeEachDraw()
    {
        open(1);
        int runs = 0;
        std::vector<std::size_t> drawsLeft;
        const std::function<void()> again = [&] {
            drawsLeft.push_back(bench->random.left());
            if (++runs < 3)
                later(again);
        };
        later(again);
        script({1, 1, 2}, 5); // the problem that is shown comes up twice
        bench->control<QPushButton>(u"Command2(0)"_s).click();
        QCOMPARE(statement(), u"P2"_s);
        QCOMPARE(runs, 3);
        QCOMPARE(drawsLeft.front(), 3u);
    }

    void aProblemIsFoundHoweverManyDrawsItTakes()
    {
        open(1);
        for (int draws = 0; draws < 1'200; ++draws)
            script({1}, 5); // shown before
        script({3}, 5);
        const BoxAnswerer noBox;
        bench->control<QPushButton>(u"Command2(0)"_s).click();
        QCOMPARE(statement(), u"P3"_s);
        QCOMPARE(bench->random.left(), 0u);
    }

    void closingLateInALongDrawEndsItToo()
    {
        open(1);
        for (int draws = 0; draws < 2'000; ++draws)
            script({1}, 5);
        std::size_t leftWhenClosed = 0;
        const std::function<void()> look = [&] {
            leftWhenClosed = bench->random.left();
            if (leftWhenClosed <= 1'400)
                screen->close();
            else
                later(look);
        };
        later(look);
        const BoxAnswerer noBox;
        bench->control<QPushButton>(u"Command2(0)"_s).click();
        QVERIFY(!bench->screens.loaded(u"FormProblemas"_s));
        QVERIFY(leftWhenClosed > 0);
        QCOMPARE(bench->random.left(), leftWhenClosed); // not drawn any more
        QCoreApplication::removePostedEvents(this);
    }

    void closingInTheMiddleOfADrawEndsIt_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"close box", "exit item", "Alt+F4", "main menu", "main screen"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }
    void closingInTheMiddleOfADrawEndsIt()
    {
        QFETCH(QString, way);
        open(1);
        later([this, way] { leave(way); });
        script({2}, 5);
        const QPointer<FormProblemas> alive(screen);
        bench->control<QPushButton>(u"Command2(0)"_s).click();
        QVERIFY(!bench->screens.loaded(u"FormProblemas"_s));
        QCOMPARE(bench->random.left(), 1u); // not drawn any more
        QTRY_VERIFY(!alive);
    }

    void closingWhileItLoadsLeavesNothingBehind()
    {
        bench->screens.add<FormProblemas>();
        later([this] { bench->screens.unload(u"FormProblemas"_s); });
        script({2}, 5);
        QVERIFY_THROWS_EXCEPTION(
            ui::ScreenUnloaded, bench->screens.show(FormProblemas::screenName()));
        QVERIFY(!bench->screens.loaded(u"FormProblemas"_s));
        QCOMPARE(bench->random.left(), 1u);
    }

    void askedForAgainWhileItLoadsItComesUpOnce()
    {
        later([this] { bench->screens.show(FormProblemas::screenName()); });
        open(2);
        QCOMPARE(statement(), u"P2"_s);
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(bench->random.seeds.size(), 1u);
    }

private:
    const QString NoneText = u"No hay ningún problema que cumpla la selección."_s;
    const QString EmptyText =
        u"El banco de problemas está vacío o falta su archivo, «Problemas3.dat». "
        "Añada problemas en «Gestión de problemas...»."_s;

    /// Draws that fall on these lines of a bank of this size.
    void script(std::initializer_list<int> indexes, int size)
    {
        for (const int index : indexes)
            bench->random.appendInteger(index, size - 1, 1);
    }

    /// Opens the screen with the problem of this line of the bank of five.
    void open(int index)
    {
        script({index}, 5);
        screen = &bench->open<FormProblemas>();
    }

    /// Opens the screen, which shows a box when it has come up.
    void openWithABox(const BoxAnswerer& boxes)
    {
        bench->screens.add<FormProblemas>();
        bench->screens.show(FormProblemas::screenName());
        QTRY_VERIFY(!boxes.texts.isEmpty());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        screen = &bench->open<FormProblemas>();
    }

    void removeBank() { QVERIFY(QFile::remove(bench->folder.filePath(u"Problemas3.dat"_s))); }

    /// Leaves the folder without a bank that can be read, or no folder.
    void spoilBank(bool folder)
    {
        removeBank();
        if (folder)
            QVERIFY(QDir(bench->folder.path()).mkdir(u"Problemas3.dat"_s));
        else
            QVERIFY(QDir().rmdir(bench->folder.path()));
    }

    QString statement() const
    {
        return bench->control<QTextEdit>(u"TBEnunciado"_s).toPlainText();
    }
    QString label(const QString& name) const { return bench->control<QLabel>(name).text(); }

    void answer(const QString& keys)
    {
        bench->type(u"TBRespuesta"_s, keys);
        bench->key(u"TBRespuesta"_s, Qt::Key_Return);
    }

    /// In the selection dialog.
    void choose(const QString& name) const
    {
        ScreenBench::find<QAbstractButton>(*bench->screens.loaded(u"DLGSelProb"_s), name).click();
    }
    void closeDialog(const QString& button) const
    {
        ui::Screen& dialog = *bench->screens.loaded(u"DLGSelProb"_s);
        makeActive(dialog);
        QTest::mouseClick(&ScreenBench::find<QPushButton>(dialog, button), Qt::LeftButton);
    }
    /// Accepts a selection; the next problem is that of this line of the bank of five.
    void select(const QStringList& choices, int index)
    {
        bench->pick(u"MnuOpcSel"_s);
        for (const QString& name : choices)
            choose(name);
        script({index}, 5);
        closeDialog(u"OKButton"_s);
        QCOMPARE(statement(), u"P%1"_s.arg(index));
    }

    /// Does something when events run the next time.
    void later(const std::function<void()>& action)
    {
        QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
    }

    void leave(const QString& way)
    {
        if (way == u"close box"_s)
            screen->close();
        else if (way == u"exit item"_s)
            bench->pick(u"MnuOpcSal"_s);
        else if (way == u"main menu"_s)
            bench->screens.unload(u"FormProblemas"_s);
        else if (way == u"main screen"_s)
            endProgram();
        else
            QTest::keyClick(screen, Qt::Key_F4, Qt::AltModifier);
    }

    /// What happens when the main menu is closed.
    void endProgram()
    {
        bench->screens.setMainScreen(u"DLGSelProb"_s);
        bench->screens.load(u"DLGSelProb"_s);
        bench->screens.unload(u"DLGSelProb"_s);
    }

    std::unique_ptr<ScreenBench> bench;
    FormProblemas* screen = nullptr;
    QString folderBefore;
};

PIZARRIN_SCREEN_TEST_MAIN(ProblemSessionScreenTest)
#include "problem_session_screen_test.moc"
