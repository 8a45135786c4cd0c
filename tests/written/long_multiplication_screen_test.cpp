#include "written/long_multiplication_screen.h"

#include "support/screen_bench.h"
#include "written/digit_dialog.h"
#include "written/wrong_mark.h"

#include <QCheckBox>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>

#include <cmath>

using namespace Qt::StringLiterals;
using written::Form3;

class LongMultiplicationScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        bench->screens.add<written::Dialog>();
        appendFactor(1234, 4);
        appendFactor(56, 2);
        screen = &bench->open<Form3>();
        expectBoxes({}); // one that comes up unasked fails the test
    }
    void cleanup()
    {
        boxes.reset();
        bench.reset();
    }

    void comesUpWithTheFirstExercise()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(screen->windowTitle(), u"Multiplicaciones"_s);
        QCOMPARE(bench->text(u"TbTítulo"_s), u"Realiza la siguiente operación"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"1234"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     56"_s);
        for (const QString& name : {u"TbFactor(0)"_s, u"TbFactor(1)"_s})
            QCOMPARE(bench->control<QLineEdit>(name).selectedText(), bench->text(name));
        QCOMPARE(rowTexts(), (QStringList{QString(), QString()}));
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  0; Errores:  0"_s);
        QCOMPARE(bench->control<QLabel>(u"LabX"_s).text(), u"&X"_s);
        QCOMPARE(bench->control<QLabel>(u"labIgual"_s).text(), u"="_s);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
        for (const QString& name : {u"Command1"_s, u"Command2(0)"_s, u"Command2(1)"_s,
                 u"Command2(2)"_s, u"TbParcial(0)"_s, u"TbParcial(1)"_s, u"TBResultado"_s})
            QVERIFY(bench->control<QWidget>(name).isEnabled());
    }

    void captionsAreExact()
    {
        const QMap<QString, QString> captions{{u"Command1"_s, u"&Hecho"_s},
            {u"Command2(0)"_s, u"&Continuar"_s}, {u"Command2(1)"_s, u"&Borrar"_s},
            {u"Command2(2)"_s, u"&Ver solución"_s}};
        for (const auto& [name, caption] : captions.asKeyValueRange())
            QCOMPARE(bench->control<QPushButton>(name).text(), caption);
        const QMap<QString, QString> items{{u"MnuOpc"_s, u"&Opciones"_s},
            {u"MnuOpcCi1"_s, u"&Cifras factor 1"_s}, {u"MnuOpcCi2"_s, u"C&ifras factor 2"_s},
            {u"MnuOpcSel"_s, u"&Selección de cifras factor2"_s},
            {u"MnuOpcSelLis(0)"_s, u"&Cualquiera"_s},
            {u"MnuOpcSelLis(1)"_s, u"&Seleccionar ()..."_s},
            {u"MnuOpcOcu"_s, u"&Ocultar ceros intermedios (No)"_s},
            {u"MnuOpcIn1"_s, u"I&ntroducir factor 1"_s},
            {u"MnuOpcIn2"_s, u"In&troducir factor 2"_s}, {u"MnuOpcSal"_s, u"S&alir (Alt-F4)"_s}};
        for (const auto& [name, caption] : items.asKeyValueRange())
            QCOMPARE(bench->control<QAction>(name).text(), caption);
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(action(u"MnuOpcCi1Lis"_s, i).text(), u"&%1"_s.arg(i + 1));
            QCOMPARE(action(u"MnuOpcCi2Lis"_s, i).text(), u"&%1"_s.arg(i + 1));
            QCOMPARE(action(u"MnuOpcCi1Lis"_s, i).isChecked(), i == 3);
            QCOMPARE(action(u"MnuOpcCi2Lis"_s, i).isChecked(), i == 1);
        }
        QVERIFY(action(u"MnuOpcSelLis"_s, 0).isChecked());
        QVERIFY(!action(u"MnuOpcSelLis"_s, 1).isChecked());
    }

    void menuItemsHaveTheirOrder()
    {
        QStringList order;
        for (const QAction* item : bench->control<QMenu>(u"MnuOpc"_s).actions())
            order << item->objectName();
        QCOMPARE(order,
            (QStringList{u"MnuOpcCi1"_s, u"MnuOpcCi2"_s, u"MnuOpcSel"_s, u"MnuOpcOcu"_s,
                u"MnuOpcIn1"_s, u"MnuOpcIn2"_s, u"MnuOpcSal"_s}));
    }

    void menuListsEndAtTheirLastItem()
    {
        const QMap<QString, int> lengths{
            {u"MnuOpcCi1"_s, 10}, {u"MnuOpcCi2"_s, 10}, {u"MnuOpcSel"_s, 2}};
        for (const auto& [list, length] : lengths.asKeyValueRange()) {
            QStringList expected;
            for (int i = 0; i < length; ++i)
                expected << u"%1Lis(%2)"_s.arg(list).arg(i);
            QStringList items;
            for (const QAction* item : bench->control<QMenu>(list).actions())
                items << item->objectName();
            QCOMPARE(items, expected);
        }
    }

    void buttonsHaveTheirColours() { bench->verifyCommandColours(); }

    void aWholeExerciseTypedFromTheUnits()
    {
        nextExercise(1234, 205, 3);
        type(u"0716"_s);
        QCOMPARE(bench->text(u"TbParcial(0)"_s), u"6170"_s);
        key(Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"TbParcial(1)"_s);
        type(u" 0"_s);
        key(Qt::Key_Tab);
        type(u"  8642"_s);
        QCOMPARE(rowTexts(), (QStringList{u"6170"_s, u"0 "_s, u"2468  "_s}));
        key(Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        type(u"079252"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"252970"_s);
        key(Qt::Key_Return);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  0"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(redBoxes(), QStringList());
    }

    void theCaretStepsAtKeyUpOnly_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("row") << u"TbParcial(0)"_s;
        QTest::newRow("result") << u"TBResultado"_s;
    }
    void theCaretStepsAtKeyUpOnly()
    {
        QFETCH(QString, name);
        auto& box = focusOn(name);
        QTest::keyPress(&box, Qt::Key_7);
        QCOMPARE(box.text(), u"7"_s);
        QCOMPARE(box.cursorPosition(), 1);
        QTest::keyRelease(&box, Qt::Key_7);
        QCOMPARE(box.cursorPosition(), 0);

        // Held down, the key repeats to the window; it writes once, and its release is one.
        const auto tell = [this](bool down, bool isRepeat) {
            QTest::simulateEvent(
                screen->windowHandle(), down, Qt::Key_4, Qt::NoModifier, u"4"_s, isRepeat);
        };
        tell(true, false);
        for (int i = 0; i < 2; ++i) {
            tell(false, true);
            tell(true, true);
        }
        QCOMPARE(box.text(), u"47"_s);
        QCOMPARE(box.cursorPosition(), 1);
        tell(false, false);
        QCOMPARE(box.text(), u"47"_s);
        QCOMPARE(box.cursorPosition(), 0);
    }

    void keysThatStepTheCaret_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("keypad");
        QTest::addColumn<bool>("inRow");
        QTest::addColumn<bool>("inResult");
        QTest::newRow("0") << int(Qt::Key_0) << false << true << true;
        QTest::newRow("9") << int(Qt::Key_9) << false << true << true;
        QTest::newRow("keypad 0") << int(Qt::Key_0) << true << true << true;
        QTest::newRow("keypad 9") << int(Qt::Key_9) << true << true << true;
        QTest::newRow("comma") << int(Qt::Key_Comma) << false << true << true;
        QTest::newRow("space") << int(Qt::Key_Space) << false << true << false;
        QTest::newRow("letter") << int(Qt::Key_A) << false << true << false;
        QTest::newRow("point") << int(Qt::Key_Period) << false << true << false;
        QTest::newRow("keypad minus") << int(Qt::Key_Minus) << true << true << false;
        QTest::newRow("keypad comma") << int(Qt::Key_Comma) << true << true << false;
        QTest::newRow("F2") << int(Qt::Key_F2) << false << true << false;
        QTest::newRow("ñ") << int(Qt::Key_Ntilde) << false << true << false;
        QTest::newRow("Delete") << int(Qt::Key_Delete) << false << false << false;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << false << false << false;
        QTest::newRow("Left") << int(Qt::Key_Left) << false << false << false;
        QTest::newRow("Right") << int(Qt::Key_Right) << false << false << false;
        QTest::newRow("Home") << int(Qt::Key_Home) << false << false << false;
        QTest::newRow("End") << int(Qt::Key_End) << false << false << false;
        QTest::newRow("Shift") << int(Qt::Key_Shift) << false << false << false;
        QTest::newRow("Control") << int(Qt::Key_Control) << false << false << false;
        QTest::newRow("Tab") << int(Qt::Key_Tab) << false << false << false;
        QTest::newRow("Enter") << int(Qt::Key_Return) << false << false << false;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false << false << false;
    }
    void keysThatStepTheCaret()
    {
        QFETCH(int, key);
        QFETCH(bool, keypad);
        QFETCH(bool, inRow);
        QFETCH(bool, inResult);
        for (const QString& name : {u"TbParcial(1)"_s, u"TBResultado"_s}) {
            auto& box = focusOn(name);
            box.setText(u"1234"_s);
            const bool steps = name == u"TBResultado"_s ? inResult : inRow;
            for (const int caret : {3, 1, 0}) {
                box.setCursorPosition(caret);
                QTest::keyRelease(&box, static_cast<Qt::Key>(key),
                    keypad ? Qt::KeypadModifier : Qt::NoModifier);
                QCOMPARE(box.cursorPosition(), steps ? std::max(0, caret - 1) : caret);
            }
            QCOMPARE(box.text(), u"1234"_s);
        }
    }

    void aSelectionCountsFromItsStart()
    {
        auto& row = focusOn(u"TbParcial(0)"_s);
        row.setText(u"1234"_s);
        QTest::keyClick(&row, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(row.selectedText(), u"1234"_s); // starts at the left end: nothing moves
        row.setSelection(2, 2);
        QTest::keyRelease(&row, Qt::Key_F2);
        QCOMPARE(row.cursorPosition(), 1);
        QVERIFY(!row.hasSelectedText());
    }

    void tabAndAccessKeysLeaveTheCaretWhereItWas()
    {
        type(u"43"_s);
        key(Qt::Key_Tab);
        key(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
        type(u"2"_s);
        QCOMPARE(bench->text(u"TbParcial(0)"_s), u"234"_s);
        key(Qt::Key_Tab);
        altKey(Qt::Key_X);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
        QVERIFY(!bench->control<QLineEdit>(u"TbParcial(0)"_s).hasSelectedText());
    }

    void bothEnterKeysCheckInTheResult_data()
    {
        QTest::addColumn<int>("enter");
        QTest::newRow("main") << int(Qt::Key_Return);
        QTest::newRow("keypad") << int(Qt::Key_Enter);
    }
    void bothEnterKeysCheckInTheResult()
    {
        QFETCH(int, enter);
        focusOn(u"TBResultado"_s);
        key(static_cast<Qt::Key>(enter));
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
    }

    void enterInAHalfWrittenRowChecksNothing()
    {
        type(u"40"_s);
        key(Qt::Key_Return);
        key(Qt::Key_Enter);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  0; Errores:  0"_s);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
        type(u"47"_s);
        QCOMPARE(bench->text(u"TbParcial(0)"_s), u"7404"_s);
        QCOMPARE(redBoxes(), QStringList());
    }

    void whereverAnEmptyRowIsClickedTheUnitsComeFirst()
    {
        auto& row = bench->control<QLineEdit>(u"TbParcial(1)"_s);
        for (const int x : {3, row.width() / 2, row.width() - 3}) {
            bench->click(u"Command2(1)"_s);
            QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(x, row.height() / 2));
            QCOMPARE(bench->focusName(), u"TbParcial(1)"_s);
            type(u"74"_s);
            QCOMPARE(row.text(), u"47"_s); // the 7, typed first, in the units
        }
    }

    void toolTipsSayHowToWrite()
    {
        for (const QString& name : {u"TbParcial(0)"_s, u"TbParcial(1)"_s})
            QCOMPARE(bench->control<QWidget>(name).toolTip(),
                u"Escriba desde las unidades hacia la izquierda, pulse donde pulse en una fila "
                "vacía; muévase con las flechas y deje un hueco con la barra espaciadora"_s);
        QCOMPARE(bench->control<QWidget>(u"TBResultado"_s).toolTip(),
            u"Escriba desde las unidades hacia la izquierda y pulse Intro al terminar"_s);
    }

    void aWrongCheckTurnsWrongRowsRedUntilTheyAreCleared()
    {
        type(u"4047"_s); // 7404, right
        key(Qt::Key_Tab);
        type(u"0716"_s); // 6170 without its blank
        focusOn(u"TBResultado"_s);
        type(u"1"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
        QCOMPARE(redBoxes(), (QStringList{u"TbParcial(1)"_s, u"TBResultado"_s}));

        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  2; Errores:  1"_s);
        QCOMPARE(redBoxes(), (QStringList{u"TbParcial(1)"_s, u"TBResultado"_s}));

        setResult(u"1"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  2; Errores:  1"_s); // solved before

        bench->click(u"Command2(1)"_s);
        QCOMPARE(redBoxes(), QStringList());
        QCOMPARE(rowTexts(), (QStringList{QString(), QString()}));
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"1234"_s);
    }

    void aCrossStandsBesideEveryRedRow()
    {
        type(u"4047"_s); // 7404, right; the second row stays empty
        QCOMPARE(crosses(), QStringList());
        bench->click(u"Command1"_s);
        QCOMPARE(crosses(), (QStringList{u"TbParcial(1)"_s, u"TBResultado"_s}));
        bench->click(u"Command2(1)"_s);
        QCOMPARE(crosses(), QStringList());
        bench->click(u"Command1"_s);
        QCOMPARE(crosses().size(), 3);
        nextExercise(1234, 7, 1); // fewer rows, with none of their crosses
        QCOMPARE(crosses(), QStringList());
    }

    void aRightResultDoesNotLookAtTheRows()
    {
        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
        QCOMPARE(redBoxes(), QStringList());
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        appendFactor(9876, 4);
        appendFactor(54, 2);
        key(Qt::Key_Return); // the focused "&Continuar"
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"9876"_s);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
    }

    void theSolutionFillsTheBoard()
    {
        nextExercise(1234, 205, 3);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(rowTexts(), (QStringList{u"6170"_s, u"0 "_s, u"2468  "_s}));
        QCOMPARE(bench->text(u"TBResultado"_s), u"252970"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  0; Errores:  0"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
    }

    void theSolutionLeavesTheExercisePending()
    {
        bench->click(u"Command2(2)"_s);
        setResult(u"1"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
        bench->click(u"Command2(2)"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  2; Errores:  1"_s);
    }

    void theSolutionOfASolvedExerciseLeavesItSolved()
    {
        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        bench->click(u"Command2(2)"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
        setResult(u"1"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  0"_s);
    }

    void borrarKeepsTheCountedState()
    {
        bench->click(u"Command1"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     56"_s);
        bench->click(u"Command1"_s); // still pending
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  2; Errores:  2"_s);
        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  3; Errores:  2"_s);
        bench->click(u"Command2(1)"_s);
        bench->click(u"Command1"_s); // solved before
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  3; Errores:  2"_s);
    }

    void continuingMakesTheNextExercisePending()
    {
        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        nextExercise(1234, 7, 1);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(rowTexts(), QStringList{QString()});
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  2; Errores:  1"_s);
    }

    void menuCommandsReplaceTheExerciseWithoutSettingItPending()
    {
        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        appendFactor(4321, 4);
        appendFactor(76, 2);
        bench->pick(u"MnuOpcSelLis(0)"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"4321"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  0"_s);
    }

    void aMenusExerciseTakesTheFocusFromContinueAlone()
    {
        for (int i = 0; i < 2; ++i) {
            appendFactor(4321, 4);
            appendFactor(76, 2);
        }
        bench->control<QPushButton>(u"Command2(0)"_s).setFocus();
        bench->pick(u"MnuOpcSelLis(0)"_s);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
        bench->control<QLineEdit>(u"TBResultado"_s).setFocus();
        bench->pick(u"MnuOpcSelLis(0)"_s);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
    }

    void aTypedFactorTakesTheFocusFromContinue_data()
    {
        QTest::addColumn<QString>("item");

        QTest::newRow("first") << u"MnuOpcIn1"_s;
        QTest::newRow("second") << u"MnuOpcIn2"_s;
    }
    void aTypedFactorTakesTheFocusFromContinue()
    {
        QFETCH(QString, item);
        bench->control<QPushButton>(u"Command2(0)"_s).setFocus();
        expectBoxes({{u"12"_s, u"Aceptar"_s}});
        bench->pick(item);
        QCOMPARE(screen->focusWidget()->objectName(), u"TbParcial(0)"_s);
    }

    void theDialogOfDigitsTakesTheFocusFromContinue()
    {
        bench->control<QPushButton>(u"Command2(0)"_s).setFocus();
        bench->pick(u"MnuOpcSelLis(1)"_s);
        tick({2});
        appendFactor(4321, 4);
        bench->random.append({0.0f, 0.0f});
        accept();
        QCOMPARE(screen->focusWidget()->objectName(), u"TbParcial(0)"_s);
    }

    void digitListsWaitForTheNextExercise()
    {
        type(u"1"_s);
        bench->pick(u"MnuOpcCi1Lis(1)"_s);
        bench->pick(u"MnuOpcCi2Lis(3)"_s);
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(action(u"MnuOpcCi1Lis"_s, i).isChecked(), i == 1);
            QCOMPARE(action(u"MnuOpcCi2Lis"_s, i).isChecked(), i == 3);
        }
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"1234"_s);
        QCOMPARE(rowTexts(), (QStringList{u"1"_s, QString()}));
        bench->click(u"Command2(2)"_s);
        QCOMPARE(rowTexts(), (QStringList{u"7404"_s, u"6170 "_s}));
        appendFactor(43, 2);
        appendFactor(5678, 4);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"43"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     5678"_s);
        QCOMPARE(rowTexts().size(), 4);
    }

    void aOneDigitListDoesNotMirrorALongerFactor()
    {
        bench->pick(u"MnuOpcCi2Lis(0)"_s);
        type(u"7"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
    }

    void theOneRowOfAOneDigitFactorIsMirrored()
    {
        nextExercise(1234, 7, 1);
        type(u"83"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"38"_s);
        type(u"68"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"8638"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), QString());
        type(u"8"_s);
        focusOn(u"TBResultado"_s);
        type(u"3"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"38"_s);
        QCOMPARE(bench->text(u"TbParcial(0)"_s), u"8"_s);
    }

    void rowsAndLinesStandWhereTheyShould_data()
    {
        QTest::addColumn<int>("digits");
        for (const int digits : {1, 2, 4, 10})
            QTest::addRow("%d", digits) << digits;
    }
    void rowsAndLinesStandWhereTheyShould()
    {
        QFETCH(int, digits);
        bench->pick(u"MnuOpcCi2Lis(%1)"_s.arg(digits - 1));
        appendFactor(1234, 4);
        bench->random.append({0.5432f});
        bench->click(u"Command2(0)"_s);
        for (const double zoom : {1.0, 1.4}) {
            screen->resize(screen->size() * zoom);
            const double factor = screen->factor();
            for (int row = 0; row < digits; ++row)
                QCOMPARE(bench->control<QWidget>(u"TbParcial(%1)"_s.arg(row)).geometry(),
                    ui::toPixels({1250, 2600.0 + 500 * row, 3000, 500}, factor));
            const ui::TwipRect result{1250, 2600.0 + 500 * digits, 3000, 500};
            const QRect place = ui::toPixels(result, factor);
            QCOMPARE(bench->control<QWidget>(u"TBResultado"_s).geometry(), place);
            QCOMPARE(bench->control<QWidget>(u"Line1"_s).y(), // under the factors, always
                ui::toPixels({1250, 2600, 3000, 500}, factor).y());
            QCOMPARE(bench->control<QWidget>(u"Line2"_s).y(), place.y());
            QCOMPARE(bench->control<QWidget>(u"labIgual"_s).y(), place.y());
            QVERIFY(
                bench->control<QWidget>(u"TBResultado"_s).parentWidget()->rect().contains(place));
        }
        QCOMPARE(rowTexts().size(), digits);
    }

    void aWindowSizedByHandKeepsItsSize()
    {
        screen->resize(900, 620);
        const QSize size = screen->size();
        nextExercise(1234, 567, 3);
        QCOMPARE(screen->size(), size);
        nextExercise(1234, 5678, 4); // one row more than the window was made for
        QVERIFY(screen->size() != size);
    }

    void aGrowingWindowStaysOnTheDisplay()
    {
        const QRect available = screen->screen()->availableGeometry();
        screen->move(20, available.bottom() - screen->height() - 10);
        bench->pick(u"MnuOpcCi2Lis(9)"_s);
        appendFactor(1234, 4);
        bench->random.append({0.5432f});
        bench->click(u"Command2(0)"_s);
        QVERIFY(screen->frameGeometry().bottom() <= available.bottom());
        QVERIFY(screen->frameGeometry().top() >= available.top());
    }

    void theTabOrderRunsDownTheBoardAndOverTheButtons()
    {
        const QStringList order{u"TbParcial(1)"_s, u"TBResultado"_s, u"Command1"_s, u"Text1"_s,
            u"Command2(1)"_s, u"Command2(0)"_s, u"Command2(2)"_s, u"Text2"_s, u"TbParcial(0)"_s};
        for (const QString& name : order) {
            key(Qt::Key_Tab);
            QCOMPARE(bench->focusName(), name);
        }
        nextExercise(1234, 567, 3);
        focusOn(u"TbParcial(1)"_s);
        key(Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"TbParcial(2)"_s);
        key(Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
    }

    void everyChangeAlignsTheResultToTheRight()
    {
        auto& result = focusOn(u"TBResultado"_s);
        result.setAlignment(Qt::AlignLeft);
        type(u"7"_s);
        QVERIFY(result.alignment().testFlag(Qt::AlignRight));
        result.setAlignment(Qt::AlignHCenter);
        bench->click(u"Command2(1)"_s);
        QVERIFY(result.alignment().testFlag(Qt::AlignRight));
    }

    void accessKeysPressTheButtons()
    {
        type(u"7"_s);
        altKey(Qt::Key_H);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        altKey(Qt::Key_B);
        QCOMPARE(rowTexts(), (QStringList{QString(), QString()}));
        altKey(Qt::Key_V);
        QCOMPARE(bench->text(u"TBResultado"_s), u"69104"_s);
        appendFactor(4321, 4);
        appendFactor(76, 2);
        altKey(Qt::Key_C);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"4321"_s);
    }

    void factorsCannotBeTypedInto()
    {
        for (const QString& name : {u"TbFactor(0)"_s, u"TbFactor(1)"_s}) {
            auto& box = bench->control<QLineEdit>(name);
            const QString before = box.text();
            QTest::mouseClick(&box, Qt::LeftButton);
            QCOMPARE(bench->focusName(), name);
            QTest::keyClick(&box, Qt::Key_7);
            QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
            QCOMPARE(box.text(), before);
            QCOMPARE(bench->text(u"TbParcial(0)"_s), QString());
            QApplication::clipboard()->setText(u"999"_s);
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(box.text(), before);
        }
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  0; Errores:  0"_s);
    }

    void shiftHintsAtTheDigitsThatMeet()
    {
        key(Qt::Key_Shift);
        QCOMPARE(bench->text(u"Text1"_s), u"4 × 6"_s);
        type(u"40"_s);
        key(Qt::Key_Shift);
        QCOMPARE(bench->text(u"Text1"_s), u"3 × 6"_s);
        key(Qt::Key_Tab);
        key(Qt::Key_Shift); // to the right of the units: what is there stays
        QCOMPARE(bench->text(u"Text1"_s), u"3 × 6"_s);
        type(u" 0"_s);
        key(Qt::Key_Shift);
        QCOMPARE(bench->text(u"Text1"_s), u"4 × 5"_s);
        focusOn(u"TBResultado"_s);
        key(Qt::Key_Shift);
        QCOMPARE(bench->text(u"Text1"_s), u"4 × 5"_s);
    }

    void typedFactorsReplaceTheDrawnOnes()
    {
        type(u"7"_s);
        {
            expectBoxes({{u"205"_s, u"Aceptar"_s}});
            bench->pick(u"MnuOpcIn2"_s);
            QCOMPARE(boxes->texts,
                QStringList{u"Introduzca el segundo factor de la multiplicación:"_s});
            QCOMPARE(boxes->titles, QStringList{u"Multiplicaciones"_s});
        }
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"1234"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     205"_s);
        QCOMPARE(rowTexts(), (QStringList{QString(), QString(), QString()}));
        bench->click(u"Command1"_s);
        {
            expectBoxes({{u"12,9"_s, u"Aceptar"_s}});
            bench->pick(u"MnuOpcIn1"_s);
            QCOMPARE(boxes->texts,
                QStringList{u"Introduzca el primer factor de la multiplicación:"_s});
            QCOMPARE(boxes->titles, QStringList{u"Multiplicaciones"_s});
        }
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"12"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"205"_s); // without its sign from now on
        for (const QString& name : {u"TbFactor(0)"_s, u"TbFactor(1)"_s})
            QCOMPARE(bench->control<QLineEdit>(name).selectedText(), bench->text(name));
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s); // stays
        QCOMPARE(redBoxes(), QStringList());
        bench->click(u"Command2(2)"_s);
        QCOMPARE(rowTexts(), (QStringList{u"60"_s, u"0 "_s, u"24  "_s}));
        QCOMPARE(bench->text(u"TBResultado"_s), u"2460"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
        {
            expectBoxes({{u"-3"_s, u"Aceptar"_s}});
            bench->pick(u"MnuOpcIn2"_s);
        }
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     -3"_s);
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(rowTexts().size(), 2);
    }

    void refusedFactorsChangeNothing_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("tooLarge");
        for (const QString& item : {u"MnuOpcIn1"_s, u"MnuOpcIn2"_s}) {
            QTest::addRow("%s empty", qPrintable(item))
                << item << QString() << u"Aceptar"_s << false;
            QTest::addRow("%s no number", qPrintable(item))
                << item << u"doce"_s << u"Aceptar"_s << false;
            QTest::addRow("%s cancelled", qPrintable(item))
                << item << u"12"_s << u"Cancelar"_s << false;
            QTest::addRow("%s too large", qPrintable(item))
                << item << QString(308, u'9') << u"Aceptar"_s << true;
        }
    }
    void refusedFactorsChangeNothing()
    {
        QFETCH(QString, item);
        QFETCH(QString, typed);
        QFETCH(QString, button);
        QFETCH(bool, tooLarge);
        type(u"7"_s);
        std::initializer_list<BoxAnswerer::Answer> one{{typed, button}};
        std::initializer_list<BoxAnswerer::Answer> two{{typed, button}, {u"Aceptar"_s}};
        expectBoxes(tooLarge ? two : one);
        bench->pick(item);
        if (tooLarge) {
            QCOMPARE(boxes->texts.value(1), u"El valor introducido es demasiado grande."_s);
            QCOMPARE(boxes->titles.value(1), u"Multiplicaciones"_s);
            QCOMPARE(boxes->icons.value(1), QMessageBox::NoIcon);
        }
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"1234"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     56"_s);
        QCOMPARE(rowTexts(), (QStringList{u"7"_s, QString()}));
    }

    void hiddenZerosHaveNoRow()
    {
        appendFactor(1234, 4);
        appendFactor(56, 2);
        bench->pick(u"MnuOpcOcu"_s);
        QCOMPARE(
            bench->control<QAction>(u"MnuOpcOcu"_s).text(), u"&Ocultar ceros intermedios (Si)"_s);
        nextExercise(1234, 205, 3);
        QCOMPARE(rowTexts().size(), 2);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(rowTexts(), (QStringList{u"6170"_s, u"2468  "_s}));
        nextExercise(1234, 567, 3); // as many rows as its own digits ask for
        QCOMPARE(rowTexts().size(), 3);
        appendFactor(4321, 4);
        appendFactor(678, 3);
        bench->pick(u"MnuOpcOcu"_s);
        QCOMPARE(
            bench->control<QAction>(u"MnuOpcOcu"_s).text(), u"&Ocultar ceros intermedios (no)"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"4321"_s);
    }

    void aHiddenZeroFactorIsReportedAndCanBeWorked()
    {
        appendFactor(1234, 4);
        appendFactor(56, 2);
        bench->pick(u"MnuOpcOcu"_s);
        expectBoxes({{u"0"_s, u"Aceptar"_s}, {u"Aceptar"_s}});
        bench->pick(u"MnuOpcIn2"_s);
        QCOMPARE(boxes->texts.value(1), u"desajuste"_s);
        QCOMPARE(boxes->titles.value(1), u"Pizarrin"_s);
        QCOMPARE(boxes->icons.value(1), QMessageBox::NoIcon);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     0"_s);
        QCOMPARE(rowTexts(), QStringList{QString()});
        focusOn(u"TbParcial(0)"_s);
        type(u"1"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(redBoxes(), QStringList{u"TBResultado"_s});
        bench->click(u"Command2(2)"_s);
        QCOMPARE(bench->text(u"TBResultado"_s), u"0"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
    }

    void manyTypedDigitsMakeManyRows()
    {
        expectBoxes({{QString(60, u'3'), u"Aceptar"_s}});
        bench->pick(u"MnuOpcIn2"_s);
        QCOMPARE(rowTexts().size(), 60);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(rowTexts().size(), 60);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"Resultado correcto "_s);
    }

    void theFocusLeavesARowThatGoes()
    {
        focusOn(u"TbParcial(1)"_s);
        expectBoxes({{u"7"_s, u"Aceptar"_s}});
        bench->pick(u"MnuOpcIn2"_s);
        QCOMPARE(rowTexts().size(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        makeActive(*screen);
        QCOMPARE(bench->focusName(), u"TbParcial(0)"_s);
    }

    void digitsOfFactor2AreChosenInTheDialog()
    {
        bench->pick(u"MnuOpcSelLis(1)"_s);
        QCOMPARE(dialog().windowTitle(), u"Tablas a usar"_s);
        QCOMPARE(dialogControl<QPushButton>(u"OKButton"_s).text(), u"&Aceptar"_s);
        QCOMPARE(dialogControl<QPushButton>(u"CancelButton"_s).text(), u"Cancelar"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"1234"_s); // nothing happens before the answer
        tick({7, 2, 5, 3});
        appendFactor(4321, 4);
        bench->random.append({0.99f, 0.99f});
        accept();
        QCOMPARE(dialog().TablasSeleccionadas(), u"2357"_s);
        verifyChoice(false, u"&Seleccionar (2357) ..."_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     70"_s);

        appendFactor(4321, 4);
        appendFactor(98, 2);
        bench->pick(u"MnuOpcSelLis(0)"_s);
        verifyChoice(true, u"&Seleccionar (2357) ..."_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     98"_s);
    }

    void aCancelledDialogRemembers()
    {
        bench->pick(u"MnuOpcSelLis(1)"_s);
        tick({2});
        appendFactor(4321, 4);
        bench->random.append({0.0f, 0.0f});
        accept();
        bench->pick(u"MnuOpcSelLis(1)"_s);
        QVERIFY(dialogControl<QCheckBox>(u"Check1(1)"_s).isChecked());
        tick({9});
        appendFactor(4321, 4);
        bench->random.append({0.0f, 0.99f});
        QTest::mouseClick(&dialogControl<QPushButton>(u"CancelButton"_s), Qt::LeftButton);
        QCOMPARE(dialog().TablasSeleccionadas(), u"2"_s);
        verifyChoice(false, u"&Seleccionar (2) ..."_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     20"_s);

        bench->pick(u"MnuOpcSelLis(1)"_s);
        QVERIFY(dialogControl<QCheckBox>(u"Check1(8)"_s).isChecked()); // hidden, not unloaded
        appendFactor(4321, 4);
        bench->random.append({0.0f, 0.0f});
        dialog().close(); // the close box cancels
        QVERIFY(bench->screens.loaded(u"Dialog"_s) != nullptr);
        QCOMPARE(dialog().TablasSeleccionadas(), u"2"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     22"_s);
    }

    void noDigitChosenAllowsAny()
    {
        bench->pick(u"MnuOpcSelLis(1)"_s);
        tick({1, 2, 3, 4, 5, 6, 7, 8, 9});
        appendFactor(4321, 4);
        bench->random.append({0.0f, 0.0f});
        accept();
        verifyChoice(false, u"&Seleccionar (123456789) ..."_s);
        bench->pick(u"MnuOpcSelLis(1)"_s);
        tick({1, 2, 3, 4, 5, 6, 7, 8, 9});
        appendFactor(4321, 4);
        appendFactor(98, 2);
        accept();
        QCOMPARE(dialog().TablasSeleccionadas(), QString());
        verifyChoice(true, u"&Seleccionar () ..."_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     98"_s);
    }

    void otherWaysOfEnteringBreakNothing()
    {
        auto& row = focusOn(u"TbParcial(0)"_s);
        QApplication::clipboard()->setText(u"74\n04 y más"_s);
        QTest::keyClick(&row, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(row.text().startsWith(u"74"_s));
        QTest::keyClick(&row, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(row.text(), QString());
        QInputMethodEvent composing(u"´"_s, {});
        QApplication::sendEvent(&row, &composing);
        QInputMethodEvent committed;
        committed.setCommitString(u"７"_s);
        QApplication::sendEvent(&row, &committed);
        QCOMPARE(row.text(), u"７"_s);
        QMimeData dragged;
        dragged.setText(QString(2000, u'8'));
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&row, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&row, &drop);
        QVERIFY(row.text().size() > 2000);
        row.grab();
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"resultado incorrecto"_s);
        bench->click(u"Command2(1)"_s);
        type(u"4047"_s);
        QCOMPARE(bench->text(u"TbParcial(0)"_s), u"7404"_s);
    }

    void squaresShrinkForATextThatDoesNotFit()
    {
        auto& row = focusOn(u"TbParcial(0)"_s);
        const int size = row.font().pixelSize();
        type(u"123456"_s);
        QCOMPARE(row.font().pixelSize(), size);
        type(u"7"_s);
        const int smaller = row.font().pixelSize();
        QVERIFY(smaller < size);
        QCOMPARE(bench->control<QLineEdit>(u"TBResultado"_s).font().pixelSize(), smaller);
        QCOMPARE(bench->control<QLineEdit>(u"TbFactor(0)"_s).font().pixelSize(), smaller);
        key(Qt::Key_Delete);
        QCOMPARE(row.font().pixelSize(), size);
    }

    void onlyItsOwnWaysCloseIt()
    {
        key(Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        altKey(Qt::Key_F4);
        QCOMPARE(bench->screens.loaded(u"Form3"_s), nullptr);
        appendFactor(4321, 4);
        appendFactor(76, 2);
        screen = &bench->open<Form3>();
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"4321"_s);
        bench->pick(u"MnuOpcSal"_s);
        QCOMPARE(bench->screens.loaded(u"Form3"_s), nullptr);
    }

    void reopeningStartsAfresh()
    {
        setResult(u"69104"_s);
        bench->click(u"Command1"_s);
        bench->pick(u"MnuOpcCi1Lis(1)"_s);
        bench->pick(u"MnuOpcCi2Lis(2)"_s);
        appendFactor(43, 2);
        appendFactor(205, 3);
        bench->pick(u"MnuOpcOcu"_s);
        bench->pick(u"MnuOpcSelLis(1)"_s);
        tick({2});
        appendFactor(43, 2);
        bench->random.append({0.0f, 0.99f, 0.0f});
        accept();
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     202"_s);
        bench->pick(u"MnuOpcSal"_s);

        appendFactor(4321, 4);
        appendFactor(70, 2);
        screen = &bench->open<Form3>();
        QCOMPARE(bench->text(u"TbFactor(0)"_s), u"4321"_s);
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     70"_s);
        QCOMPARE(rowTexts().size(), 2); // one of them for the zero
        captionsAreExact();
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  0; Errores:  0"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
    }

private:
    void expectBoxes(std::initializer_list<BoxAnswerer::Answer> answers)
    {
        boxes = std::make_unique<BoxAnswerer>(answers);
    }

    /// Appends the draw that gives a factor of so many digits.
    void appendFactor(int value, int digits)
    {
        bench->random.append({static_cast<float>((value - 0.5) / std::pow(10.0, digits))});
    }

    void nextExercise(int factor1, int factor2, int digits2)
    {
        bench->pick(u"MnuOpcCi2Lis(%1)"_s.arg(digits2 - 1));
        appendFactor(factor1, 4);
        appendFactor(factor2, digits2);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->text(u"TbFactor(0)"_s), QString::number(factor1));
        QCOMPARE(bench->text(u"TbFactor(1)"_s), u"x     "_s + QString::number(factor2));
    }

    QLineEdit& focusOn(const QString& name)
    {
        makeActive(*screen); // offscreen, no window manager does it behind a box
        auto& box = bench->control<QLineEdit>(name);
        box.setFocus();
        return box;
    }
    /// Into whatever has the focus, one key after the other, each pressed and released.
    void type(const QString& keys) { QTest::keyClicks(QApplication::focusWidget(), keys); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void altKey(Qt::Key key) { QTest::keyClick(screen, key, Qt::AltModifier); }

    void setResult(const QString& digits)
    {
        focusOn(u"TBResultado"_s).selectAll();
        key(Qt::Key_Delete);
        QString reversed = digits;
        std::reverse(reversed.begin(), reversed.end());
        type(reversed);
        QCOMPARE(bench->text(u"TBResultado"_s), digits);
    }

    QAction& action(const QString& list, int index)
    {
        return bench->control<QAction>(u"%1(%2)"_s.arg(list).arg(index));
    }

    QStringList rowTexts() const
    {
        QStringList texts;
        while (auto* row = screen->findChild<QLineEdit*>(u"TbParcial(%1)"_s.arg(texts.size())))
            texts << row->text();
        return texts;
    }

    QStringList redBoxes() const
    {
        QStringList red;
        QStringList names;
        for (int i = 0; i < rowTexts().size(); ++i)
            names << u"TbParcial(%1)"_s.arg(i);
        for (const QString& name : names << u"TBResultado"_s)
            if (bench->control<QLineEdit>(name).palette().color(QPalette::Text)
                == QColor(255, 0, 0))
                red << name;
        return red;
    }

    /// The boxes beside which a cross stands.
    QStringList crosses() const
    {
        QStringList names;
        for (int i = 0; i < rowTexts().size(); ++i)
            names << u"TbParcial(%1)"_s.arg(i);
        names << u"TBResultado"_s;
        QStringList crossed;
        for (const auto* cross : screen->findChildren<written::WrongMark*>()) {
            if (!cross->isVisible())
                continue;
            for (const QString& name : names) {
                const QRect box = bench->control<QWidget>(name).geometry();
                if (cross->x() > box.right() && box.top() < cross->geometry().center().y()
                    && cross->geometry().center().y() < box.bottom())
                    crossed << name;
            }
        }
        std::sort(crossed.begin(), crossed.end(), [&](const QString& a, const QString& b) {
            return names.indexOf(a) < names.indexOf(b);
        });
        return crossed;
    }

    written::Dialog& dialog() const
    {
        return static_cast<written::Dialog&>(*bench->screens.loaded(u"Dialog"_s));
    }
    template <typename T> T& dialogControl(const QString& name) const
    {
        return ScreenBench::find<T>(dialog(), name);
    }
    void tick(std::initializer_list<int> digits)
    {
        makeActive(dialog());
        for (const int digit : digits) {
            auto& box = dialogControl<QCheckBox>(u"Check1(%1)"_s.arg(digit - 1));
            QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
        }
    }
    void accept()
    {
        QTest::mouseClick(&dialogControl<QPushButton>(u"OKButton"_s), Qt::LeftButton);
        QVERIFY(!dialog().isVisible());
    }

    void verifyChoice(bool any, const QString& caption)
    {
        QCOMPARE(action(u"MnuOpcSelLis"_s, 0).isChecked(), any);
        QCOMPARE(action(u"MnuOpcSelLis"_s, 1).isChecked(), !any);
        QCOMPARE(action(u"MnuOpcSelLis"_s, 1).text(), caption);
        QCOMPARE(bench->random.left(), 0u);
    }

    std::unique_ptr<ScreenBench> bench;
    std::unique_ptr<BoxAnswerer> boxes;
    Form3* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(LongMultiplicationScreenTest)
#include "long_multiplication_screen_test.moc"
