#include "written/long_division_screen.h"

#include "support/screen_bench.h"
#include "written/work_area.h"

#include <QClipboard>
#include <QMenu>
#include <QtMath>

#include <algorithm>

using namespace Qt::StringLiterals;
using written::Form6;
using written::WorkArea;

class LongDivisionScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_bench.reset(); }

    void comesWithASampleUntilItIsLoaded();
    void comesUpWithADivision();
    void captionsAreExact();
    void listsHaveTheirNumbers();
    void buttonsHaveTheirColours();
    void seedsByTheClock();

    void aWholeDivisionIsTypedKeyByKey();
    void everyWrongCheckCounts();
    void aWrongCheckLeavesTheFocus();
    void enterChecksInTheQuotientOnly();
    void tooFewDecimalsAreReported();
    void exactDivisionMayStopEarly();
    void solutionIsShownAndNotCounted();
    void solutionWithProductsAndDecimals();
    void clearKeepsTheExercise();
    void clearKeepsASolvedExerciseSolved();
    void continueBringsAPendingExercise();
    void continueGoesToTheWork();
    void aMenusExerciseTakesTheFocusFromContinueAlone();
    void aTypedOperandTakesTheFocusFromContinue_data();
    void aTypedOperandTakesTheFocusFromContinue();

    void aPressBesideTheStripWritesInIt_data();
    void aPressBesideTheStripWritesInIt();
    void toolTipSaysHowToWrite();
    void keysOverwriteOneCell();
    void dividendLineIsUntouchable();
    void enterBackspaceAndStopWriteBlanks();
    void deleteDoesNothing();
    void arrowsTabAndEscape();
    void pastedTextCountsAsWritten();
    void pasteIntoTheQuotient();

    void boxesNameThemselves();
    void verdictOutlivesTheWindowsFocus();

    void digitsWaitForTheNextExercise();
    void decimalsStartAnExercise();
    void togglesStartAnExercise();
    void checkedItemsStayChecked();

    void typedDividend();
    void typedDividendCountsItsText();
    void typedDividendBeyondTheListChecksNone();
    void typedDividendTooLarge();
    void ignoredAnswers();
    void typedDivisor();
    void typedOperandsKeepCountersAndQuotient();
    void tooManyDigitsToDraw();
    void smallestByMinusOne();

    void typingStartsUnderTheDividend();
    void workAreaStandsAtTheBracket_data();
    void workAreaStandsAtTheBracket();
    void longLinesWidenTheSheet();
    void lineStartsAtEveryFactor_data();
    void lineStartsAtEveryFactor();
    void nothingIsClipped_data();
    void nothingIsClipped();

    void everyAccessKeyWorks();
    void tabVisitsEveryControl();
    void exitItemAndAltF4Close();
    void reopeningStartsAfresh();

private:
    /// The draw that gives number out of 10^digits.
    static float drawFor(int number)
    {
        return static_cast<float>(
            (number - 0.5) / std::pow(10.0, QString::number(number).size()));
    }
    void script(int dividend, int divisor)
    {
        m_bench->random.append({drawFor(dividend), drawFor(divisor)});
    }
    void show(int dividend, int divisor, int decimals = 0)
    {
        script(dividend, divisor);
        m_bench->pick(u"MnuOpcDivLis(%1)"_s.arg(QString::number(dividend).size() - 1));
        m_bench->pick(u"MnuOpcDisLis(%1)"_s.arg(QString::number(divisor).size() - 1));
        m_bench->pick(u"MnuOpcDecLis(%1)"_s.arg(decimals));
    }
    WorkArea& work() { return m_bench->control<WorkArea>(u"Text1"_s); }
    QString line(int row) { return work().grid().line(row); }
    QString text(const char* name) { return m_bench->text(QString::fromLatin1(name)); }
    bool isChecked(const QString& name) { return m_bench->control<QAction>(name).isChecked(); }
    /// Types into the cells of one line, moving the caret as a pupil would.
    void writeLine(int row, int column, const QString& keys)
    {
        work().setFocus();
        QTest::keyClick(&work(), Qt::Key_Home, Qt::ControlModifier);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(&work(), Qt::Key_Down);
        for (int i = 0; i < column; ++i)
            QTest::keyClick(&work(), Qt::Key_Right);
        for (const QChar key : keys) {
            QTest::keyClick(&work(), key.toLatin1());
            QTest::keyClick(&work(), Qt::Key_Right);
        }
    }
    void answer(const QString& quotient)
    {
        auto& box = m_bench->control<QLineEdit>(u"Text3"_s);
        box.setFocus();
        box.clear();
        QTest::keyClicks(&box, quotient);
        QTest::keyClick(&box, Qt::Key_Return);
    }
    void scaleTo(double factor);

    std::unique_ptr<ScreenBench> m_bench;
    Form6* m_screen = nullptr;
};

void LongDivisionScreenTest::init()
{
    m_bench = std::make_unique<ScreenBench>();
    script(84, 7);
    m_screen = &m_bench->open<Form6>();
    QCOMPARE(m_bench->random.left(), 0u);
}

// --- the screen as it comes up

void LongDivisionScreenTest::comesWithASampleUntilItIsLoaded()
{
    const Form6 unloaded(m_bench->screens);
    QCOMPARE(ScreenBench::find<WorkArea>(unloaded, u"Text1"_s).toPlainText(),
        u" 12053041   "_s + QString(2000, u' '));
}

void LongDivisionScreenTest::comesUpWithADivision()
{
    QCOMPARE(m_screen->windowTitle(), u"DIVISIONES"_s);
    QCOMPARE(work().toPlainText(), u" 84"_s + QString(2000, u' '));
    QCOMPARE(work().grid().columns(), 6);
    QCOMPARE(text("Text2"), u"7"_s);
    QCOMPARE(text("Text3"), QString());
    QCOMPARE(text("Text4"), u"84 ÷ 7"_s);
    QCOMPARE(m_bench->control<QLineEdit>(u"Text4"_s).selectedText(), u"84 ÷ 7"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  0; Errores:  0"_s);
    QCOMPARE(m_bench->focusName(), u"Text1"_s);
    QVERIFY(isChecked(u"MnuOpcDivLis(1)"_s));
    QVERIFY(isChecked(u"MnuOpcDisLis(0)"_s));
    QVERIFY(isChecked(u"MnuOpcDecLis(0)"_s));
    QVERIFY(!isChecked(u"MnuOpcRes"_s));
    QVERIFY(!isChecked(u"MnuOpcFor"_s));
    QVERIFY(m_bench->control<QWidget>(u"Line1"_s).isVisible());
    QVERIFY(m_bench->control<QWidget>(u"Line2"_s).isVisible());
}

void LongDivisionScreenTest::captionsAreExact()
{
    const QMap<QString, QString> buttons{{u"Command1"_s, u"&Hecho"_s},
        {u"Command2(0)"_s, u"&Continuar"_s}, {u"Command2(1)"_s, u"&Borrar"_s},
        {u"Command2(2)"_s, u"&Ver solucióm"_s}};
    for (const auto& [name, caption] : buttons.asKeyValueRange())
        QCOMPARE(m_bench->control<QPushButton>(name).text(), caption);
    const QMap<QString, QString> items{{u"MnuOpc"_s, u"&Opciones"_s},
        {u"MnuOpcDiv"_s, u"&Cifras del dividendo"_s}, {u"MnuOpcDis"_s, u"C&ifras del divisor"_s},
        {u"MnuOpcDec"_s, u"&Decimales del cociente"_s},
        {u"MnuOpcRes"_s, u"&Restas intermedias"_s},
        {u"MnuOpcFor"_s, u"&Forzar ceros en el cociente"_s},
        {u"MnuOpcInt"_s, u"I&ntroducir dividendo"_s}, {u"MnuOpcInd"_s, u"In&troducir divisor"_s},
        {u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s}};
    for (const auto& [name, caption] : items.asKeyValueRange())
        QCOMPARE(m_bench->control<QAction>(name).text(), caption);
    QStringList order;
    for (const QAction* action : m_bench->control<QMenu>(u"MnuOpc"_s).actions())
        order << action->objectName();
    QCOMPARE(order,
        (QStringList{u"MnuOpcDiv"_s, u"MnuOpcDis"_s, u"MnuOpcDec"_s, u"MnuOpcRes"_s,
            u"MnuOpcFor"_s, u"MnuOpcInt"_s, u"MnuOpcInd"_s, u"MnuOpcSal"_s}));
}

void LongDivisionScreenTest::listsHaveTheirNumbers()
{
    const QMap<QString, int> firsts{
        {u"MnuOpcDivLis"_s, 1}, {u"MnuOpcDisLis"_s, 1}, {u"MnuOpcDecLis"_s, 0}};
    for (const auto& [name, first] : firsts.asKeyValueRange()) {
        for (int i = 0; i < 6; ++i)
            QCOMPARE(m_bench->control<QAction>(u"%1(%2)"_s.arg(name).arg(i)).text(),
                u"&%1"_s.arg(first + i));
        QVERIFY(m_screen->findChild<QAction*>(u"%1(6)"_s.arg(name)) == nullptr);
    }
}

void LongDivisionScreenTest::buttonsHaveTheirColours()
{
    m_bench->verifyCommandColours();
}

void LongDivisionScreenTest::seedsByTheClock()
{
    QCOMPARE(m_bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
}

// --- an exercise

void LongDivisionScreenTest::aWholeDivisionIsTypedKeyByKey()
{
    writeLine(1, 1, u"14"_s);
    writeLine(2, 2, u"0"_s);
    QCOMPARE(work().toPlainText(), u" 84    14     0"_s + QString(1988, u' '));
    answer(u"12"_s);
    QCOMPARE(text("Text4"), u"resultado correcto"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  0"_s);
    QCOMPARE(m_bench->focusName(), u"Command2(0)"_s);
    for (const char* name : {"Command1", "Command2(0)", "Command2(1)", "Command2(2)"})
        QVERIFY(m_bench->control<QPushButton>(QString::fromLatin1(name)).isEnabled());
}

void LongDivisionScreenTest::everyWrongCheckCounts()
{
    answer(u"11"_s);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  1"_s);
    answer(u"12"_s); // nothing written below the dividend
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  2; Errores:  2"_s);
    writeLine(1, 1, u"0"_s);
    answer(u"12"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  3; Errores:  2"_s);
    answer(u"13"_s);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  3; Errores:  2"_s);
}

void LongDivisionScreenTest::aWrongCheckLeavesTheFocus()
{
    answer(u"11"_s);
    QCOMPARE(m_bench->focusName(), u"Text3"_s);
    m_bench->click(u"Command1"_s);
    QCOMPARE(m_bench->focusName(), u"Command1"_s);
}

void LongDivisionScreenTest::enterChecksInTheQuotientOnly()
{
    auto& quotient = m_bench->control<QLineEdit>(u"Text3"_s);
    quotient.setFocus();
    QTest::keyClicks(&quotient, u"11"_s);
    QTest::keyClick(&quotient, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    QCOMPARE(text("Text3"), u"11"_s);
    QTest::keyClick(&work(), Qt::Key_Return);
    m_bench->key(u"Text2"_s, Qt::Key_Return);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  1"_s);
}

void LongDivisionScreenTest::tooFewDecimalsAreReported()
{
    show(25, 2, 3);
    writeLine(1, 2, u"1"_s);
    BoxAnswerer boxes(u"Aceptar"_s);
    answer(u"12,5"_s);
    QCOMPARE(boxes.titles, {u"Atención"_s});
    QCOMPARE(boxes.texts, {u"Debe sacar al menos 3 decimales."_s});
    QCOMPARE(boxes.icons, {QMessageBox::Information});
    QCOMPARE(boxes.buttons, {u"Aceptar"_s});
    QCOMPARE(text("Text4"), u"Cociente"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  0; Errores:  0"_s);
    QCOMPARE(text("Text3"), u"12,5"_s);
}

void LongDivisionScreenTest::exactDivisionMayStopEarly()
{
    show(11, 4, 3);
    writeLine(1, 2, u"30"_s);
    writeLine(2, 3, u"20"_s);
    writeLine(3, 4, u"0"_s);
    answer(u"2,75"_s);
    QCOMPARE(text("Text4"), u"resultado correcto"_s);
}

void LongDivisionScreenTest::solutionIsShownAndNotCounted()
{
    m_bench->click(u"Command2(2)"_s);
    QCOMPARE(text("Text3"), u"12"_s);
    QCOMPARE(text("Text4"), QString());
    QCOMPARE(work().toPlainText(), u" 84    14     0"_s + QString(2000, u' '));
    m_bench->click(u"Command1"_s);
    QCOMPARE(text("Text4"), u"resultado correcto"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  0; Errores:  0"_s);
}

void LongDivisionScreenTest::solutionWithProductsAndDecimals()
{
    script(84, 7);
    m_bench->pick(u"MnuOpcRes"_s);
    show(50, 11, 2);
    m_bench->click(u"Command2(2)"_s);
    QCOMPARE(text("Text3"), u"4,54"_s);
    const QStringList rows{u" 50     "_s, u" 44-    "_s, u"  60    "_s, u"  55-   "_s,
        u"   50   "_s, u"   44-  "_s, u"    6   "_s, u"        "_s};
    for (int row = 0; row < rows.size(); ++row)
        QCOMPARE(line(row), rows.at(row));
}

void LongDivisionScreenTest::clearKeepsTheExercise()
{
    writeLine(1, 1, u"14"_s);
    answer(u"99"_s);
    m_bench->click(u"Command2(1)"_s);
    QCOMPARE(text("Text3"), QString());
    QCOMPARE(work().toPlainText(), u" 84"_s + QString(2000, u' '));
    QCOMPARE(text("Text2"), u"7"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  1"_s);
    QCOMPARE(m_bench->focusName(), u"Text3"_s);
    answer(u"99"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  2; Errores:  2"_s);
}

void LongDivisionScreenTest::clearKeepsASolvedExerciseSolved()
{
    writeLine(1, 1, u"0"_s);
    answer(u"12"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  0"_s);
    m_bench->click(u"Command2(1)"_s);
    answer(u"99"_s);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  0"_s);
}

void LongDivisionScreenTest::continueBringsAPendingExercise()
{
    writeLine(1, 1, u"14"_s);
    m_bench->click(u"Command2(2)"_s);
    script(60, 5);
    m_bench->click(u"Command2(0)"_s);
    QCOMPARE(work().toPlainText(), u" 60"_s + QString(2000, u' '));
    QCOMPARE(text("Text2"), u"5"_s);
    QCOMPARE(text("Text3"), QString());
    QCOMPARE(text("Text4"), u"60 ÷ 5"_s);
    answer(u"1"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  1"_s);
}

void LongDivisionScreenTest::continueGoesToTheWork()
{
    script(60, 5);
    m_bench->click(u"Command2(0)"_s);
    QCOMPARE(m_bench->focusName(), u"Text1"_s);
    QCOMPARE(text("Text4"), u"60 ÷ 5"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"1 "_s); // Space draws no other exercise
    QCOMPARE(line(0), u" 60   "_s);
    QTest::keyClick(QApplication::focusWidget(), '1');
    QCOMPARE(line(1), u" 1    "_s);
}

void LongDivisionScreenTest::aMenusExerciseTakesTheFocusFromContinueAlone()
{
    script(60, 5);
    m_bench->control<QPushButton>(u"Command2(0)"_s).setFocus();
    m_bench->pick(u"MnuOpcDecLis(1)"_s);
    QCOMPARE(m_bench->focusName(), u"Text1"_s);
    script(60, 5);
    m_bench->control<QLineEdit>(u"Text3"_s).setFocus();
    m_bench->pick(u"MnuOpcDecLis(0)"_s);
    QCOMPARE(m_bench->focusName(), u"Text3"_s);
}

void LongDivisionScreenTest::aTypedOperandTakesTheFocusFromContinue_data()
{
    QTest::addColumn<QString>("item");

    QTest::newRow("dividend") << u"MnuOpcInt"_s;
    QTest::newRow("divisor") << u"MnuOpcInd"_s;
}

void LongDivisionScreenTest::aTypedOperandTakesTheFocusFromContinue()
{
    QFETCH(QString, item);
    m_bench->control<QPushButton>(u"Command2(0)"_s).setFocus();
    BoxAnswerer boxes({{u"12"_s, u"Aceptar"_s}});
    m_bench->pick(item);
    QCOMPARE(m_screen->focusWidget()->objectName(), u"Text1"_s);
}

// --- the work area

void LongDivisionScreenTest::aPressBesideTheStripWritesInIt_data()
{
    QTest::addColumn<QPoint>("square"); // of the strip; beside it, from -1 or from 6 on
    QTest::addColumn<int>("position");

    QTest::newRow("left of it") << QPoint(-3, 2) << 12;
    QTest::newRow("right of it") << QPoint(8, 3) << 23;
    QTest::newRow("above it, where nothing can be written") << QPoint(2, -1) << 8;
    QTest::newRow("left of the dividend") << QPoint(-1, 0) << 6;
    QTest::newRow("below it") << QPoint(4, 17) << 16 * 6 + 4;
    QTest::newRow("beyond a corner") << QPoint(-2, 17) << 16 * 6;
}

void LongDivisionScreenTest::aPressBesideTheStripWritesInIt()
{
    QFETCH(QPoint, square);
    QFETCH(int, position);
    auto& sheet = m_bench->control<QWidget>(u"Sheet"_s);
    m_bench->control<QWidget>(u"Text3"_s).setFocus();
    const QRect first = work().cellRect(0);
    const QPoint inStrip =
        first.center() + QPoint(square.x() * first.width(), square.y() * first.height());
    const QPoint at = sheet.mapFromGlobal(work().mapToGlobal(inStrip));
    QVERIFY(sheet.rect().contains(at));
    QTest::mouseClick(&sheet, Qt::RightButton, {}, at);
    QCOMPARE(m_bench->focusName(), u"Text3"_s);
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, at);
    QCOMPARE(m_bench->focusName(), u"Text1"_s);
    QCOMPARE(work().cursorPosition(), position);
    QTest::keyClick(QApplication::focusWidget(), '7');
    QCOMPARE(work().toPlainText().indexOf(u'7'), position);
    QCOMPARE(text("Text3"), QString());
}

void LongDivisionScreenTest::toolTipSaysHowToWrite()
{
    QCOMPARE(work().toolTip(),
        u"Pulse un cuadro o muévase con las flechas y escriba; la barra espaciadora deja el "
        u"cuadro "
        "en blanco"_s);
}

void LongDivisionScreenTest::keysOverwriteOneCell()
{
    work().setCursorPosition(8);
    QTest::keyClicks(&work(), u"123"_s);
    QCOMPARE(line(1), u"  3   "_s);
    QCOMPARE(work().cursorPosition(), 8);
    QTest::keyClick(&work(), Qt::Key_7, Qt::KeypadModifier);
    QTest::keyClick(&work(), ' ');
    QCOMPARE(line(1), u"      "_s);
    QTest::keyClick(&work(), ',');
    QCOMPARE(line(1), u"  ,   "_s);
    QCOMPARE(work().toPlainText().size(), 2003);
}

void LongDivisionScreenTest::dividendLineIsUntouchable()
{
    for (int position = 0; position < 6; ++position) {
        work().setCursorPosition(position);
        for (const Qt::Key key : {Qt::Key_5, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return,
                 Qt::Key_Enter, Qt::Key_Space, Qt::Key_Period})
            QTest::keyClick(&work(), key);
        QCOMPARE(work().cursorPosition(), position);
    }
    QCOMPARE(work().toPlainText(), u" 84"_s + QString(2000, u' '));
}

void LongDivisionScreenTest::enterBackspaceAndStopWriteBlanks()
{
    writeLine(1, 0, u"123456"_s);
    int column = 0;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Period}) {
        work().setCursorPosition(6 + column);
        QTest::keyClick(&work(), key);
        QCOMPARE(line(1), QString(column + 1, u' ') + u"123456"_s.mid(column + 1));
        QCOMPARE(work().cursorPosition(), 6 + column);
        ++column;
    }
    QCOMPARE(work().toPlainText().size(), 2003);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  0; Errores:  0"_s);
}

void LongDivisionScreenTest::deleteDoesNothing()
{
    writeLine(1, 0, u"123456"_s);
    const QString before = work().toPlainText();
    work().setCursorPosition(8);
    QTest::keyClick(&work(), Qt::Key_Delete);
    work().setSelection(0, 20);
    QTest::keyClick(&work(), Qt::Key_Delete);
    QCOMPARE(work().toPlainText(), before);
    QCOMPARE(work().selectedText().size(), 20);
}

void LongDivisionScreenTest::arrowsTabAndEscape()
{
    const QString before = work().toPlainText();
    QTest::keyClick(&work(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&work(), Qt::Key_Down);
    QTest::keyClick(&work(), Qt::Key_Right);
    QCOMPARE(work().cursorPosition(), 7);
    QTest::keyClick(&work(), Qt::Key_Escape);
    QVERIFY(m_screen->isVisible());
    QTest::keyClick(&work(), Qt::Key_Tab);
    QCOMPARE(m_bench->focusName(), u"Text2"_s);
    QCOMPARE(work().toPlainText(), before);
}

void LongDivisionScreenTest::pastedTextCountsAsWritten()
{
    QGuiApplication::clipboard()->setText(u"14\n 0"_s);
    work().setCursorPosition(7);
    QTest::keyClick(&work(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(line(0), u" 84   "_s);
    QCOMPARE(line(1), u" 14   "_s);
    QCOMPARE(line(2), u"  0   "_s);
    work().setCursorPosition(1);
    QTest::keyClick(&work(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(line(0), u" 84   "_s);
    answer(u"12"_s);
    QCOMPARE(text("Text4"), u"resultado correcto"_s);
}

void LongDivisionScreenTest::pasteIntoTheQuotient()
{
    writeLine(1, 1, u"0"_s);
    QGuiApplication::clipboard()->setText(u"12\n"_s);
    m_bench->key(u"Text3"_s, Qt::Key_V, Qt::ControlModifier);
    m_bench->click(u"Command1"_s);
    QCOMPARE(text("Text4"), u"resultado correcto"_s);
}

// --- Text4

void LongDivisionScreenTest::boxesNameThemselves()
{
    auto& title = m_bench->control<QLineEdit>(u"Text4"_s);
    const auto focus = [&](const QString& name) {
        m_bench->control<QWidget>(name).setFocus();
        return title.text();
    };
    QCOMPARE(focus(u"Text2"_s), u"Divisor"_s);
    QCOMPARE(focus(u"Text1"_s), u"Dividendo"_s);
    QCOMPARE(title.selectedText(), u"Dividendo"_s);
    QCOMPARE(focus(u"Command1"_s), u"Dividendo"_s);
    QCOMPARE(focus(u"Text1"_s), u" Dividendo"_s);
    QCOMPARE(title.selectedText(), u" Dividendo"_s);
    QCOMPARE(focus(u"Command1"_s), u" Dividendo"_s);
    QCOMPARE(focus(u"Text1"_s), u"Dividendo"_s);
    QCOMPARE(focus(u"Text3"_s), u"Cociente"_s);
    script(60, 5);
    m_bench->click(u"Command2(0)"_s);
    QCOMPARE(focus(u"Text1"_s), u"60 ÷ 5"_s);
    QCOMPARE(title.selectedText(), u"60 ÷ 5"_s);
}

void LongDivisionScreenTest::verdictOutlivesTheWindowsFocus()
{
    answer(u"11"_s);
    QWidget other;
    other.show();
    makeActive(other);
    makeActive(*m_screen);
    QCOMPARE(m_bench->focusName(), u"Text3"_s);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
}

// --- options

void LongDivisionScreenTest::digitsWaitForTheNextExercise()
{
    m_bench->pick(u"MnuOpcDivLis(3)"_s);
    m_bench->pick(u"MnuOpcDisLis(1)"_s);
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(isChecked(u"MnuOpcDivLis(%1)"_s.arg(i)), i == 3);
        QCOMPARE(isChecked(u"MnuOpcDisLis(%1)"_s.arg(i)), i == 1);
    }
    QCOMPARE(text("Text4"), u"84 ÷ 7"_s);
    QCOMPARE(work().grid().columns(), 6);
    m_bench->click(u"Command2(1)"_s);
    QCOMPARE(work().grid().columns(), 6);
    script(1234, 56);
    m_bench->click(u"Command2(0)"_s);
    QCOMPARE(text("Text4"), u"1234 ÷ 56"_s);
    QCOMPARE(work().grid().columns(), 8);
}

void LongDivisionScreenTest::decimalsStartAnExercise()
{
    m_bench->click(u"Command2(2)"_s);
    script(60, 5);
    m_bench->pick(u"MnuOpcDecLis(4)"_s);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(isChecked(u"MnuOpcDecLis(%1)"_s.arg(i)), i == 4);
    QCOMPARE(text("Text4"), u"60 ÷ 5"_s);
    QCOMPARE(text("Text3"), QString());
    QCOMPARE(work().grid().columns(), 10);
    BoxAnswerer none;
    answer(u"1,0000"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  0; Errores:  0"_s); // not pending
}

void LongDivisionScreenTest::togglesStartAnExercise()
{
    script(60, 5);
    m_bench->pick(u"MnuOpcRes"_s);
    QVERIFY(isChecked(u"MnuOpcRes"_s));
    QCOMPARE(text("Text4"), u"60 ÷ 5"_s);
    script(84, 7);
    m_bench->pick(u"MnuOpcRes"_s);
    QVERIFY(!isChecked(u"MnuOpcRes"_s));
    QCOMPARE(text("Text4"), u"84 ÷ 7"_s);
    script(84, 7);
    script(60, 3);
    m_bench->pick(u"MnuOpcFor"_s);
    QVERIFY(isChecked(u"MnuOpcFor"_s));
    QCOMPARE(text("Text4"), u"60 ÷ 3"_s);
    script(84, 7);
    m_bench->pick(u"MnuOpcFor"_s);
    QVERIFY(!isChecked(u"MnuOpcFor"_s));
    QCOMPARE(text("Text4"), u"84 ÷ 7"_s);
}

void LongDivisionScreenTest::checkedItemsStayChecked()
{
    m_bench->pick(u"MnuOpcDivLis(1)"_s);
    m_bench->pick(u"MnuOpcDisLis(0)"_s);
    script(84, 7);
    m_bench->pick(u"MnuOpcDecLis(0)"_s);
    QVERIFY(isChecked(u"MnuOpcDivLis(1)"_s));
    QVERIFY(isChecked(u"MnuOpcDisLis(0)"_s));
    QVERIFY(isChecked(u"MnuOpcDecLis(0)"_s));
}

// --- typed operands

void LongDivisionScreenTest::typedDividend()
{
    writeLine(1, 1, u"14"_s);
    BoxAnswerer boxes({{u"1234"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    QCOMPARE(boxes.titles, {u"Introducir dividendo"_s});
    QCOMPARE(boxes.texts, {QString()});
    QCOMPARE(work().toPlainText(), u" 1234"_s + QString(2000, u' '));
    QCOMPARE(work().grid().columns(), 8);
    QCOMPARE(text("Text4"), u"1234 ÷ 7"_s);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(isChecked(u"MnuOpcDivLis(%1)"_s.arg(i)), i == 3);
}

void LongDivisionScreenTest::typedDividendCountsItsText()
{
    BoxAnswerer boxes({{u" 007 "_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    QCOMPARE(work().toPlainText(), u" 7"_s + QString(2000, u' '));
    QCOMPARE(work().grid().columns(), 7);
    QVERIFY(isChecked(u"MnuOpcDivLis(2)"_s));
    QVERIFY(!isChecked(u"MnuOpcDivLis(1)"_s));
}

void LongDivisionScreenTest::typedDividendBeyondTheListChecksNone()
{
    BoxAnswerer boxes({{u"2147483647"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    QCOMPARE(text("Text4"), u"2147483647 ÷ 7"_s);
    for (int i = 0; i < 6; ++i)
        QVERIFY(!isChecked(u"MnuOpcDivLis(%1)"_s.arg(i)));
    m_bench->pick(u"MnuOpcDivLis(0)"_s);
    QVERIFY(isChecked(u"MnuOpcDivLis(0)"_s));
}

void LongDivisionScreenTest::typedDividendTooLarge()
{
    writeLine(1, 1, u"14"_s);
    const QString before = work().toPlainText();
    BoxAnswerer boxes({{u"2147483648"_s, u"Aceptar"_s}, u"Aceptar"_s});
    m_bench->pick(u"MnuOpcInt"_s);
    QCOMPARE(boxes.texts.last(),
        u"«2147483648» no es un número entero de -2147483648 a 2147483647."_s);
    QCOMPARE(boxes.titles.last(), u"Pizarrin"_s);
    QCOMPARE(work().toPlainText(), before);
    QCOMPARE(text("Text4"), u"84 ÷ 7"_s);
    QVERIFY(isChecked(u"MnuOpcDivLis(1)"_s));
}

void LongDivisionScreenTest::ignoredAnswers()
{
    writeLine(1, 1, u"14"_s);
    const QString before = work().toPlainText();
    BoxAnswerer boxes({u"Aceptar"_s, {u"99"_s, u"Cancelar"_s}, u"Aceptar"_s,
        {u"0"_s, u"Aceptar"_s}, {u"siete"_s, u"Aceptar"_s}, {u"9"_s, u"Cancelar"_s}});
    for (const QString& item : {u"MnuOpcInt"_s, u"MnuOpcInt"_s, u"MnuOpcInd"_s, u"MnuOpcInd"_s,
             u"MnuOpcInd"_s, u"MnuOpcInd"_s})
        m_bench->pick(item);
    QCOMPARE(boxes.titles.size(), 6);
    QCOMPARE(work().toPlainText(), before);
    QCOMPARE(text("Text2"), u"7"_s);
    QCOMPARE(text("Text4"), u"84 ÷ 7"_s);
}

void LongDivisionScreenTest::typedDivisor()
{
    writeLine(1, 1, u"14"_s);
    const QString before = work().toPlainText();
    BoxAnswerer boxes({{u"012,9"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInd"_s);
    QCOMPARE(boxes.titles, {u"Introducir divisor"_s});
    QCOMPARE(boxes.texts, {QString()});
    QCOMPARE(text("Text2"), u"12"_s);
    QCOMPARE(text("Text4"), u"84 ÷ 12"_s);
    QCOMPARE(work().toPlainText(), before);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(isChecked(u"MnuOpcDisLis(%1)"_s.arg(i)), i == 4);
}

void LongDivisionScreenTest::typedOperandsKeepCountersAndQuotient()
{
    answer(u"11"_s);
    BoxAnswerer boxes({{u"36"_s, u"Aceptar"_s}, {u"4"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    m_bench->pick(u"MnuOpcInd"_s);
    makeActive(*m_screen); // the window's focus has come back
    QCOMPARE(text("Text4"), u"36 ÷ 4"_s);
    QCOMPARE(text("Text3"), u"11"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  1; Errores:  1"_s);
    answer(u"8"_s);
    QCOMPARE(text("tbResultados"), u"Ejercicios:  2; Errores:  2"_s);
}

void LongDivisionScreenTest::tooManyDigitsToDraw()
{
    BoxAnswerer boxes({{u"12345678900,"_s.left(10), u"Aceptar"_s}, u"Aceptar"_s});
    m_bench->pick(u"MnuOpcInt"_s);
    m_bench->random.append({0.5f});
    m_bench->click(u"Command2(0)"_s);
    QCOMPARE(boxes.texts.last(),
        u"Los números de 10 cifras son demasiado grandes para proponer una división. Elija otro "
        "número de cifras en el menú Opciones."_s);
    QCOMPARE(text("Text4"), u"1234567890 ÷ 7"_s);
}

void LongDivisionScreenTest::smallestByMinusOne()
{
    BoxAnswerer boxes({{u"-2147483648"_s, u"Aceptar"_s}, {u"-1"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    m_bench->pick(u"MnuOpcInd"_s);
    answer(u"1"_s);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    m_bench->click(u"Command2(2)"_s);
    QCOMPARE(text("Text3"), u"2147483648"_s);
    m_bench->click(u"Command1"_s);
    QCOMPARE(text("Text4"), u"resultado correcto"_s);
}

// --- places

void LongDivisionScreenTest::scaleTo(double factor)
{
    for (int i = 0; i < 2; ++i) { // the second time from a size that is a pixel off at most
        const QSizeF size = QSizeF(m_screen->size()) * (factor / m_screen->factor());
        m_screen->resize(qCeil(size.width()), qCeil(size.height()));
    }
    QCOMPARE(m_screen->factor(), factor);
}

void LongDivisionScreenTest::typingStartsUnderTheDividend()
{
    const auto verifyWaiting = [this](const QString& dividend) {
        QCOMPARE(work().cursorPosition(), work().grid().columns() + 1);
        work().setFocus();
        QTest::keyClick(&work(), '7');
        QCOMPARE(line(0).trimmed(), dividend);
        QCOMPARE(line(1).trimmed(), u"7"_s);
    };
    show(84, 7);
    verifyWaiting(u"84"_s);
    m_bench->click(u"Command2(1)"_s);
    verifyWaiting(u"84"_s);
    BoxAnswerer boxes({{u"12345"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    verifyWaiting(u"12345"_s);
}

void LongDivisionScreenTest::workAreaStandsAtTheBracket_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("columns");
    QTest::newRow("narrowest") << 1 << 0 << 5;
    QTest::newRow("at first") << 2 << 0 << 6;
    QTest::newRow("widest drawn") << 6 << 5 << 15;
}

void LongDivisionScreenTest::workAreaStandsAtTheBracket()
{
    QFETCH(int, digits);
    QFETCH(int, decimals);
    QFETCH(int, columns);
    show(static_cast<int>(std::pow(10, digits)) - 1, 7, decimals);
    scaleTo(3);
    const QWidget& divisor = m_bench->control<QWidget>(u"Text2"_s);
    const auto& sheet = m_bench->control<QWidget>(u"Sheet"_s);
    QCOMPARE(work().grid().columns(), columns);
    QCOMPARE(work().width(), columns * 165 * 3 / 15);
    QCOMPARE(divisor.x() - (work().x() + work().width()), 5 * 3 / 15);
    QVERIFY(sheet.x() + 2 * 165 * 3 / 15 <= work().x()); // a margin of two squares
}

void LongDivisionScreenTest::longLinesWidenTheSheet()
{
    const auto& sheet = m_bench->control<QWidget>(u"Sheet"_s);
    const QSize before = m_screen->size();
    const double factorBefore = m_screen->factor();
    BoxAnswerer boxes({{QString(29, u'0') + u'7', u"Aceptar"_s}, {u"12"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    QCOMPARE(work().grid().columns(), 34);
    QVERIFY(m_screen->width() / m_screen->factor() > before.width() / factorBefore);
    QVERIFY(sheet.geometry().contains(work().geometry()));
    QVERIFY(sheet.geometry().contains(m_bench->control<QWidget>(u"Text3"_s).geometry()));
    m_bench->pick(u"MnuOpcInt"_s);
    QCOMPARE(m_screen->size(), before);
}

static void addFactors()
{
    QTest::addColumn<double>("factor");
    for (const double factor : {0.8, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0})
        QTest::addRow("%g", factor) << factor;
}

void LongDivisionScreenTest::lineStartsAtEveryFactor_data()
{
    addFactors();
}

/// With every column count from 5 to 15: the cell of character r × AnchoLinea is the leftmost
/// of line r, the one before it the rightmost of the line above, and a click there says so.
void LongDivisionScreenTest::lineStartsAtEveryFactor()
{
    QFETCH(double, factor);
    for (int digits = 1; digits <= 6; ++digits) {
        for (const int decimals : {0, 5}) {
            show(static_cast<int>(std::pow(10, digits)) - 1, 7, decimals);
            scaleTo(factor);
            const int columns = digits + 4 + decimals;
            const int rows = std::clamp(2 * (digits + decimals) + 2, 17, 23);
            for (int row = 1; row < rows; ++row) {
                const QRect first = work().cellRect(row * columns);
                const QRect last = work().cellRect(row * columns - 1);
                QCOMPARE(first.left(), 0);
                QCOMPARE(last.right(), work().width() - 1);
                QCOMPARE(first.top(), last.bottom() + 1);
                QTest::mouseClick(&work(), Qt::LeftButton, {}, first.center());
                QCOMPARE(work().cursorPosition(), row * columns);
            }
            QCOMPARE(work().cellRect(rows * columns - 1).bottom(), work().height() - 1);
        }
    }
}

void LongDivisionScreenTest::nothingIsClipped_data()
{
    addFactors();
}

void LongDivisionScreenTest::nothingIsClipped()
{
    QFETCH(double, factor);
    script(84, 7);
    m_bench->pick(u"MnuOpcDecLis(5)"_s);
    BoxAnswerer boxes({{u"-2147483648"_s, u"Aceptar"_s}, {u"-2147483648"_s, u"Aceptar"_s}});
    m_bench->pick(u"MnuOpcInt"_s);
    m_bench->pick(u"MnuOpcInd"_s);
    scaleTo(factor);
    for (const QString& texts : {u"Text4"_s, u"tbResultados"_s, u"Text2"_s, u"Text3"_s}) {
        auto& box = m_bench->control<QLineEdit>(texts);
        const QMap<QString, QString> longest{{u"Text4"_s, u"-2147483648 ÷ -2147483648"_s},
            {u"tbResultados"_s, u"Ejercicios:32767; Errores:32767"_s},
            {u"Text2"_s, u"-2147483648"_s}, {u"Text3"_s, u"2147483648,00000"_s}};
        const int room = box.width() - box.textMargins().left() - box.textMargins().right() - 4;
        const int wanted = box.fontMetrics().horizontalAdvance(longest.value(texts));
        QVERIFY2(wanted <= room, qPrintable(u"%1: %2 > %3"_s.arg(texts).arg(wanted).arg(room)));
    }
    for (const QString& name :
        {u"Command1"_s, u"Command2(0)"_s, u"Command2(1)"_s, u"Command2(2)"_s}) {
        auto& button = m_bench->control<QPushButton>(name);
        QVERIFY(button.fontMetrics().horizontalAdvance(button.text()) < button.width());
        QVERIFY(button.height() >= 26 * factor - 1);
    }
}

// --- keyboard and life

void LongDivisionScreenTest::everyAccessKeyWorks()
{
    const auto alt = [&](Qt::Key key) { QTest::keyClick(m_screen, key, Qt::AltModifier); };
    alt(Qt::Key_H);
    QCOMPARE(text("Text4"), u"Resultado incorrecto"_s);
    alt(Qt::Key_V);
    QCOMPARE(text("Text3"), u"12"_s);
    alt(Qt::Key_B);
    QCOMPARE(text("Text3"), QString());
    script(60, 5);
    alt(Qt::Key_C);
    QCOMPARE(text("Text4"), u"60 ÷ 5"_s);
    alt(Qt::Key_O);
    auto& options = m_bench->control<QMenu>(u"MnuOpc"_s);
    QVERIFY(QTest::qWaitFor([&] { return options.isVisible(); }));
    options.close();
}

void LongDivisionScreenTest::tabVisitsEveryControl()
{
    QStringList visited{m_bench->focusName()};
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << m_bench->focusName();
    }
    QCOMPARE(visited,
        (QStringList{u"Text1"_s, u"Text2"_s, u"Text3"_s, u"Command1"_s, u"Command2(1)"_s,
            u"Command2(0)"_s, u"Command2(2)"_s}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_bench->focusName(), u"Text1"_s);
    m_bench->type(u"Text2"_s, u"9"_s);
    QCOMPARE(text("Text2"), u"7"_s);
}

void LongDivisionScreenTest::exitItemAndAltF4Close()
{
    m_bench->pick(u"MnuOpcSal"_s);
    QVERIFY(m_bench->screens.loaded(u"Form6"_s) == nullptr);
    script(84, 7);
    auto& again = m_bench->open<Form6>();
    QTest::keyClick(&again, Qt::Key_F4, Qt::AltModifier);
    QVERIFY(m_bench->screens.loaded(u"Form6"_s) == nullptr);
}

void LongDivisionScreenTest::reopeningStartsAfresh()
{
    answer(u"11"_s);
    script(84, 7);
    m_bench->pick(u"MnuOpcRes"_s);
    m_bench->pick(u"MnuOpcSal"_s);
    script(60, 5);
    m_bench->open<Form6>();
    QCOMPARE(text("tbResultados"), u"Ejercicios:  0; Errores:  0"_s);
    QCOMPARE(text("Text4"), u"60 ÷ 5"_s);
    QVERIFY(!isChecked(u"MnuOpcRes"_s));
}

PIZARRIN_SCREEN_TEST_MAIN(LongDivisionScreenTest)
#include "long_division_screen_test.moc"
