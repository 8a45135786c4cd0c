#include "tables/quick_tables_screen.h"

#include "support/quiet.h"
#include "support/screen_bench.h"
#include "support/text_fit.h"

#include <QGroupBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using tables::Form8;

namespace {

const QString TooSmall =
    u"Ha especificado un valor demasiado pequeño. La actividad continuará hasta   que se "
    "pulse  el botón salir"_s;
const QString TooLarge =
    u"Ha especificado un valor demasiado grande. La actividad continuará hasta   que se "
    "pulse  el botón salir"_s;

} // namespace

class QuickTablesScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<Quiet<Form8>>();
    }
    void cleanup() { bench.reset(); }

    void comesUpIdle()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        QCOMPARE(screen->windowTitle(), u"TABLAS RÁPIDAS"_s);
        QCOMPARE(bench->text(u"TBInstruc"_s), u"Escribe el resultado correcto y pulsa enter "_s);
        QCOMPARE(bench->control<QPushButton>(u"Command1"_s).text(), u"&Empezar"_s);
        QCOMPARE(row(), u" x  = "_s);
        QCOMPARE(labelText(u"LBOperación"_s), QString());
        QCOMPARE(labelText(u"LBTiempo"_s), QString());
        QCOMPARE(bench->text(u"TBResul"_s), QString());
        verifyRunning(false);
        QCOMPARE(bench->focusName(), u"Command1"_s);
    }

    void optionsAreExact()
    {
        QCOMPARE(bench->control<QGroupBox>(u"Frame1"_s).title(), u"Acabar la actividad"_s);
        const QStringList captions{
            u"Al pulsar Salir"_s, u"Tiempo"_s, u"Operaciones"_s, u"Errores"_s};
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(option(i).text(), captions.at(i));
            QCOMPARE(option(i).isChecked(), i == 0);
        }
        verifyLimitBox(false, {});
    }

    void theCanvasHasItsSize()
    {
        QCOMPARE(bench->control<QWidget>(u"TBInstruc"_s).parentWidget()->size(),
            ui::toPixels({0, 0, 5880, 6600}, screen->factor()).size());
    }

    void anOptionAsksForItsLimit()
    {
        choose(1);
        verifyLimitBox(true, u"Mihnutos: "_s);
        choose(2);
        verifyLimitBox(true, u"Operaciones: "_s);
        bench->type(u"Text1"_s, u"7"_s);
        choose(3);
        verifyLimitBox(true, u"Errores: "_s);
        QCOMPARE(bench->text(u"Text1"_s), u"7"_s);
        choose(0);
        verifyLimitBox(false, {});
        QCOMPARE(bench->text(u"Text1"_s), QString());
    }

    void optionsCanBeChosenWithTheKeyboard()
    {
        option(0).setFocus();
        bench->key(u"Option1(0)"_s, Qt::Key_Down);
        QVERIFY(option(1).isChecked());
        verifyLimitBox(true, u"Mihnutos: "_s);
        QCOMPARE(bench->focusName(), u"Option1(1)"_s);
        bench->key(u"Option1(1)"_s, Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"Text1"_s);
        bench->key(u"Text1"_s, Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"Command1"_s);
    }

    void theOptionsAreOneStopOfTheTabOrder()
    {
        bench->key(u"Command1"_s, Qt::Key_Backtab);
        QCOMPARE(bench->focusName(), u"Option1(0)"_s);
        bench->key(u"Option1(0)"_s, Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"Command1"_s);
    }

    void empezarStartsTheDrill()
    {
        append(7, 8);
        start();
        QCOMPARE(bench->control<QPushButton>(u"Command1"_s).text(), u"&Salir"_s);
        QCOMPARE(row(), u"7 x 8 = "_s);
        QCOMPARE(labelText(u"LBOperación"_s), u"7 x 8 = "_s);
        QCOMPARE(labelText(u"LBTiempo"_s), u"10/"_s);
        QCOMPARE(bench->focusName(), u"TbDatos(4)"_s);
        verifyRunning(true);
        QVERIFY(!timer(2).isActive());
    }

    void onlyMinutesStartTheSecondTimer()
    {
        append(7, 8);
        startWith(1, u"60"_s);
        QVERIFY(timer(1).isActive());
        QVERIFY(timer(2).isActive());
        QCOMPARE(timer(1).interval(), 1000);
        QCOMPARE(timer(2).interval(), 1000);
    }

    void aRightAnswerIsAGreenPatch()
    {
        append(7, 8);
        start();
        append(6, 9);
        answer(u"56"_s);
        verifyPatch(u"BIEN"_s, QColor(0, 255, 0), ui::VerdictBox::Mark::Right);
        QCOMPARE(screen->beeps, 0);
        QCOMPARE(row(), u"6 x 9 = "_s);
        QCOMPARE(labelText(u"LBOperación"_s), u"6 x 9 = "_s);
        QCOMPARE(bench->focusName(), u"TbDatos(4)"_s);
    }

    void aWrongAnswerIsARedPatch()
    {
        append(7, 8);
        start();
        append(6, 9);
        answer(u"55"_s);
        verifyPatch(u"MAL"_s, QColor(255, 0, 0), ui::VerdictBox::Mark::Wrong);
        QCOMPARE(screen->beeps, 1);
        QCOMPARE(row(), u"6 x 9 = "_s);
    }

    void answersAreReadAsNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");

        QTest::newRow("leading blank and zero") << u" 056"_s << true;
        QTest::newRow("decimals") << u"56,0"_s << true;
        QTest::newRow("what follows") << u"56x"_s << true;
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("word") << u"a56"_s << false;
        QTest::newRow("too large for any counter") << u"99999999999999999999"_s << false;
    }
    void answersAreReadAsNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(bool, right);
        append(7, 8);
        start();
        append(6, 9);
        answer(typed);
        QCOMPARE(bench->text(u"TBResul"_s), right ? u"BIEN"_s : u"MAL"_s);
    }

    void enterChecksInEveryBox_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<Qt::Key>("key");

        for (int i = 0; i < 5; ++i) {
            QTest::addRow("box %d, Enter", i) << i << Qt::Key_Return;
            QTest::addRow("box %d, keypad", i) << i << Qt::Key_Enter;
        }
    }
    void enterChecksInEveryBox()
    {
        QFETCH(int, index);
        QFETCH(Qt::Key, key);
        append(7, 8);
        start();
        append(6, 9);
        bench->type(u"TbDatos(4)"_s, u"56"_s);
        bench->key(u"TbDatos(%1)"_s.arg(index), key);
        QCOMPARE(bench->text(u"TBResul"_s), u"BIEN"_s);
        QCOMPARE(row(), u"6 x 9 = "_s); // the key itself is swallowed
    }

    void enterChecksNothingBeforeTheStart()
    {
        QTest::keyClick(screen, Qt::Key_Return);
        QVERIFY(!bench->control<QWidget>(u"TbDatos(4)"_s).hasFocus());
        QCOMPARE(bench->text(u"TBResul"_s), QString());
    }

    void otherKeysPass()
    {
        append(7, 8);
        start();
        bench->type(u"TbDatos(4)"_s, u"a-5"_s);
        bench->key(u"TbDatos(4)"_s, Qt::Key_Escape);
        QCOMPARE(bench->text(u"TbDatos(4)"_s), u"a-5"_s);
        QVERIFY(screen->isVisible());
    }

    void theTimeFades_data()
    {
        QTest::addColumn<int>("ticks");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("colour");

        QTest::newRow("first second") << 1 << u"9/"_s << QColor(26, 230, 0);
        QTest::newRow("halfway") << 5 << u"5/"_s << QColor(128, 128, 0);
        QTest::newRow("last second") << 9 << u"1/"_s << QColor(230, 26, 0);
    }
    void theTimeFades()
    {
        QFETCH(int, ticks);
        append(7, 8);
        start();
        tick(1, ticks);
        QTEST(labelText(u"LBTiempo"_s), "text");
        QTEST(timeColour(), "colour");
        QCOMPARE(row(), u"7 x 8 = "_s);
    }

    void theNumberOfTheTimeIsRounded()
    {
        append(7, 8);
        start();
        tick(1);
        const QImage label = screen->grab().toImage();
        const QWidget& time = bench->control<QWidget>(u"LBTiempo"_s);
        const QPoint corner = time.mapTo(screen, QPoint(0, 0));
        QCOMPARE(label.pixelColor(corner), QColor(ui::look::Paper));
    }

    void thePatchLiesRightUnderTheOperation()
    {
        const QRect patch = bench->control<QWidget>(u"TBResul"_s).geometry();
        const QRect first = bench->control<QWidget>(u"TbDatos(0)"_s).geometry();
        const QRect answer = bench->control<QWidget>(u"TbDatos(4)"_s).geometry();
        QCOMPARE(patch.left(), first.left());
        QCOMPARE(patch.right(), answer.right());
        QVERIFY(patch.top() > answer.bottom());
        QVERIFY(patch.top() - answer.bottom() <= answer.height() / 4);
        QVERIFY(patch.height() <= answer.height() / 2);
    }

    void aNewOperationKeepsTheColourOfTheTime()
    {
        append(7, 8);
        start();
        tick(1, 5);
        append(6, 9);
        answer(u"56"_s);
        QCOMPARE(labelText(u"LBTiempo"_s), u"10/"_s);
        QCOMPARE(timeColour(), QColor(128, 128, 0));
        tick(1);
        QCOMPARE(timeColour(), QColor(26, 230, 0));
    }

    void aTimeOutBringsTheSecondOfTwoOperations()
    {
        append(7, 8);
        start();
        tick(1, 9);
        append(6, 9);
        append(5, 4);
        bench->type(u"TbDatos(4)"_s, u"5"_s);
        QCOMPARE(screen->beeps, 0);
        tick(1);
        verifyPatch(u"MAL"_s, QColor(255, 0, 0), ui::VerdictBox::Mark::Wrong);
        QCOMPARE(screen->beeps, 1);
        QCOMPARE(row(), u"5 x 4 = "_s);
        QCOMPARE(labelText(u"LBTiempo"_s), u"10/"_s);
        QCOMPARE(timeColour(), QColor(230, 26, 0));
        QVERIFY(timer(1).isActive());
        QCOMPARE(bench->random.left(), 0u);
    }

    void aTimeOutStartsTheSecondsAnew()
    {
        append(7, 8);
        start();
        tick(1, 9);
        timer(1).stop(); // only what the time-out does can start it again
        append(6, 9);
        append(5, 4);
        tick(1);
        QVERIFY(timer(1).isActive());
        QCOMPARE(timer(1).interval(), 1000);
    }

    void anAnswerLeavesTheSecondsAsTheyRun()
    {
        append(7, 8);
        start();
        timer(1).stop();
        append(6, 9);
        answer(u"56"_s);
        QVERIFY(!timer(1).isActive());
    }

    void aTickWithinTheTimeStartsNothing()
    {
        append(7, 8);
        start();
        timer(1).stop();
        tick(1, 9);
        QVERIFY(!timer(1).isActive());
    }

    void salirReportsAndUnloads()
    {
        append(7, 7);
        start();
        append(7, 9);
        append(10, 8);
        append(5, 4);
        append(6, 3);
        append(3, 8);
        answer(u"49"_s);
        answer(u"0"_s);
        answer(u"80"_s);
        tick(1, 10); // 5 x 4, and 6 x 3 is never seen
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(boxes.texts,
            {u"Número de operaciones: 3. Número total de errores: 2.\r\n"
             "Errores cometidos al usar cada número y porcentaje: \r\n"
             "número 1: 0 errores.\r\n"
             "número 2: 0 errores.\r\n"
             "número 3: 0 errores.\r\n"
             "número 4: 1 errores. (100 %)\r\n"
             "número 5: 1 errores. (100 %)\r\n"
             "número 6: 0 errores.\r\n"
             "número 7: 1 errores. (33,3333333333333 %)\r\n"
             "número 8: 0 errores. (0 %)\r\n"
             "número 9: 1 errores. (100 %)\r\n"
             "número 10: 0 errores. (0 %)\r\n"
             "Errores por tiempo: 1."_s});
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        verifyUnloaded();
    }

    void thePercentageFollowsTheLocale()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        append(7, 7);
        start();
        append(7, 9);
        append(6, 9);
        answer(u"49"_s);
        answer(u"0"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"Command1"_s);
        QVERIFY(boxes.texts.first().contains(u"número 7: 1 errores. (33.3333333333333 %)\r\n"_s));
    }

    void nothingChangesBehindTheReport()
    {
        append(7, 8);
        startWith(1, u"1"_s);
        append(6, 9);
        answer(u"0"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) {
            tick(1, 25);
            tick(2, 60);
            bench->key(u"TbDatos(4)"_s, Qt::Key_Return);
            bench->control<QPushButton>(u"Command1"_s).click();
            QCOMPARE(row(), u"6 x 9 = "_s);
            QCOMPARE(labelText(u"LBTiempo"_s), u"10/"_s);
        };
        bench->click(u"Command1"_s);
        QCOMPARE(boxes.texts.size(), 1);
        verifyUnloaded();
    }

    void closingTheWindowBehindTheReportIsSafe()
    {
        append(7, 8);
        start();
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) { screen->close(); };
        bench->click(u"Command1"_s);
        QCOMPARE(boxes.texts.size(), 1);
        verifyUnloaded();
    }

    void closingTheWindowBehindTheBoxOfTheLimitEndsTheDrill_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("limit");

        QTest::newRow("too small") << 1 << u"0"_s;
        QTest::newRow("too large") << 2 << u"501"_s;
    }
    void closingTheWindowBehindTheBoxOfTheLimitEndsTheDrill()
    {
        QFETCH(int, option);
        QFETCH(QString, limit);
        append(7, 8);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog& box) {
            screen->close();
            QVERIFY(!box.isVisible());
        };
        startWith(option, limit);
        QCOMPARE(boxes.texts.size(), 1);
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void closingTheWindowBehindTheReportAtTheLimitEndsTheDrill_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("limit");
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("ticks");

        QTest::newRow("minutes") << 1 << u"1"_s << 2 << 60;
        QTest::newRow("operations, by a time-out") << 2 << u"2"_s << 1 << 10;
        QTest::newRow("errors, by a time-out") << 3 << u"1"_s << 1 << 10;
    }
    void closingTheWindowBehindTheReportAtTheLimitEndsTheDrill()
    {
        QFETCH(int, option);
        QFETCH(QString, limit);
        QFETCH(int, number);
        QFETCH(int, ticks);
        append(7, 8);
        startWith(option, limit);
        tick(number, ticks - 1);
        append(6, 9); // never drawn
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) { screen->close(); };
        tick(number);
        QCOMPARE(boxes.texts.size(), 1);
        QCOMPARE(bench->random.left(), 2u);
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void closingTheWindowReportsNothing()
    {
        BoxAnswerer noBox;
        append(7, 8);
        start();
        screen->close();
        verifyUnloaded();
    }

    void operationsEndTheDrill()
    {
        append(7, 8);
        startWith(2, u"3"_s);
        append(6, 9);
        answer(u"56"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) {
            QCOMPARE(bench->text(u"TBResul"_s), u"BIEN"_s);
            QCOMPARE(row(), u"6 x 9 = 54"_s); // no other operation came
        };
        answer(u"54"_s);
        QVERIFY(boxes.texts.first().startsWith(
            u"Número de operaciones: 2. Número total de errores: 0.\r\n"_s));
        verifyUnloaded();
    }

    void oneOperationEndsTheDrillAtOnce()
    {
        choose(2);
        bench->type(u"Text1"_s, u"1"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) { QVERIFY(!timer(1).isActive()); };
        bench->click(u"Command1"_s);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().startsWith(
            u"Número de operaciones: 0. Número total de errores: 0.\r\n"_s));
        QVERIFY(
            boxes.texts.first().endsWith(u"número 10: 0 errores.\r\nErrores por tiempo: 0."_s));
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void aTimeOutThatReachesTheOperationsEndsTheDrill()
    {
        append(7, 8);
        startWith(2, u"2"_s);
        tick(1, 9);
        BoxAnswerer boxes(u"Aceptar"_s);
        tick(1);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().startsWith(
            u"Número de operaciones: 0. Número total de errores: 1.\r\n"_s));
        QVERIFY(boxes.texts.first().endsWith(u"Errores por tiempo: 0."_s));
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void theSecondOperationOfATimeOutMayEndTheDrill()
    {
        append(7, 8);
        startWith(2, u"3"_s);
        tick(1, 9);
        append(6, 9);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) { QCOMPARE(row(), u"6 x 9 = "_s); };
        tick(1);
        QVERIFY(boxes.texts.first().endsWith(u"Errores por tiempo: 1."_s));
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void errorsEndTheDrill()
    {
        append(7, 8);
        startWith(3, u"2"_s);
        append(6, 9);
        append(5, 4);
        answer(u"1"_s);
        answer(u"54"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) { QCOMPARE(bench->text(u"TBResul"_s), u"MAL"_s); };
        answer(u"1"_s);
        QVERIFY(boxes.texts.first().startsWith(
            u"Número de operaciones: 3. Número total de errores: 2.\r\n"_s));
        verifyUnloaded();
    }

    void aTimeOutThatReachesTheErrorsEndsTheDrill()
    {
        append(7, 8);
        startWith(3, u"1"_s);
        tick(1, 9);
        BoxAnswerer boxes(u"Aceptar"_s);
        tick(1);
        QVERIFY(boxes.texts.first().startsWith(
            u"Número de operaciones: 0. Número total de errores: 1.\r\n"_s));
        QVERIFY(boxes.texts.first().endsWith(u"Errores por tiempo: 0."_s));
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void minutesEndTheDrill()
    {
        append(7, 8);
        startWith(1, u"2"_s);
        tick(2, 119);
        QVERIFY(screen->isVisible());
        BoxAnswerer boxes(u"Aceptar"_s);
        tick(2);
        QCOMPARE(boxes.texts.size(), 1);
        verifyNothingWentOn();
        verifyUnloaded();
    }

    void aLimitOutOfRangeIsReported_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("limit");
        QTest::addColumn<QString>("text");

        QTest::newRow("no minutes") << 1 << u"0"_s << TooSmall;
        QTest::newRow("nothing typed") << 2 << QString() << TooSmall;
        QTest::newRow("less than half an operation") << 2 << u"0,5"_s << TooSmall;
        QTest::newRow("below nothing") << 3 << u"-5"_s << TooSmall;
        QTest::newRow("a word") << 3 << u"cinco"_s << TooSmall;
        QTest::newRow("61 minutes") << 1 << u"61"_s << TooLarge;
        QTest::newRow("more than 60 minutes, rounded") << 1 << u"60,6"_s << TooLarge;
        QTest::newRow("501 operations") << 2 << u"501"_s << TooLarge;
        QTest::newRow("101 errors") << 3 << u"101"_s << TooLarge;
    }
    void aLimitOutOfRangeIsReported()
    {
        QFETCH(int, option);
        QFETCH(QString, limit);
        QFETCH(QString, text);
        append(7, 8);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [this](QDialog&) {
            QCOMPARE(bench->control<QPushButton>(u"Command1"_s).text(), u"&Salir"_s);
            QVERIFY(!timer(1).isActive()); // the clock waits for the pupil
        };
        startWith(option, limit);
        QCOMPARE(boxes.texts, {text});
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QCOMPARE(boxes.icons, {QMessageBox::Warning});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        verifyRunning(true);
        QVERIFY(!timer(2).isActive());
        QCOMPARE(screen->focusWidget()->objectName(), u"TbDatos(4)"_s);
        append(6, 9);
        answer(u"1"_s); // goes on
        QCOMPARE(row(), u"6 x 9 = "_s);
    }

    void aLimitInRangeIsNot_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("limit");

        QTest::newRow("1 minute") << 1 << u"1"_s;
        QTest::newRow("60 minutes") << 1 << u"60"_s;
        QTest::newRow("60,5 minutes, rounded to even") << 1 << u"60,5"_s;
        QTest::newRow("2 operations") << 2 << u"2"_s;
        QTest::newRow("1,5 operations, rounded to even") << 2 << u"1,5"_s;
        QTest::newRow("500 operations") << 2 << u"500"_s;
        QTest::newRow("1 error") << 3 << u"1"_s;
        QTest::newRow("100 errors") << 3 << u" 100 errores"_s;
    }
    void aLimitInRangeIsNot()
    {
        QFETCH(int, option);
        QFETCH(QString, limit);
        BoxAnswerer noBox;
        append(7, 8);
        startWith(option, limit);
        runPendingEvents();
        verifyRunning(true);
    }

    void aLimitBeyondNumbersLeavesTheScreenAsItWas()
    {
        BoxAnswerer boxes(u"Aceptar"_s);
        startWith(2, u"99999"_s);
        QCOMPARE(boxes.texts,
            {u"«99999» es demasiado grande. Escribe un número del 1 al 500 y vuelve a empezar."_s});
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QCOMPARE(boxes.icons, {QMessageBox::Warning});
        verifyRunning(false);
        QCOMPARE(bench->control<QPushButton>(u"Command1"_s).text(), u"&Empezar"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"99999"_s);
        bench->control<QLineEdit>(u"Text1"_s).setFocus();
        bench->key(u"Text1"_s, Qt::Key_End);
        for (int i = 0; i < 4; ++i)
            bench->key(u"Text1"_s, Qt::Key_Backspace);
        append(7, 8);
        bench->click(u"Command1"_s); // 9 operations
        verifyRunning(true);
    }

    void aFreshScreenStartsAfresh()
    {
        append(7, 8);
        startWith(1, u"5"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"Command1"_s);
        verifyUnloaded();
        screen = &bench->open<Quiet<Form8>>();
        comesUpIdleAgain();
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<double>("factor");

        for (double factor : {0.8, 1.0, 1.25, 1.5, 2.3, 4.0})
            QTest::addRow("factor %g", factor) << factor;
    }
    void nothingIsCutOff()
    {
        QFETCH(double, factor);
        choose(2);
        bench->type(u"Text1"_s, u"500"_s);
        append(10, 10);
        screen->resize(qCeil(392 * factor), qCeil(440 * factor));
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
        start();
        bench->type(u"TbDatos(4)"_s, u"1000"_s);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
        tick(1);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
    }

private:
    void append(int a, int b)
    {
        bench->random.appendInteger(a, 10, 1);
        bench->random.appendInteger(b, 10, 1);
    }
    QRadioButton& option(int index) const
    {
        return bench->control<QRadioButton>(u"Option1(%1)"_s.arg(index));
    }
    void choose(int index) const { QTest::mouseClick(&option(index), Qt::LeftButton); }
    QTimer& timer(int number) const { return bench->control<QTimer>(u"Timer%1"_s.arg(number)); }
    void tick(int number, int times = 1) const
    {
        for (int i = 0; i < times; ++i)
            bench->tick(u"Timer%1"_s.arg(number));
    }
    void start() const { bench->click(u"Command1"_s); }
    void startWith(int index, const QString& limit) const
    {
        choose(index);
        bench->type(u"Text1"_s, limit);
        start();
    }
    void answer(const QString& typed) const
    {
        bench->type(u"TbDatos(4)"_s, typed);
        bench->key(u"TbDatos(4)"_s, Qt::Key_Return);
    }
    QString row() const
    {
        QStringList texts;
        for (int i = 0; i < 5; ++i)
            texts << bench->text(u"TbDatos(%1)"_s.arg(i));
        return texts.join(u' ');
    }
    QString labelText(const QString& name) const { return bench->control<QLabel>(name).text(); }
    /// As it is seen, beside the number.
    QColor timeColour() const
    {
        const auto& label = bench->control<QLabel>(u"LBTiempo"_s);
        constexpr int InsideEdge = 4;
        const QPoint place = label.mapTo(screen, QPoint(InsideEdge, label.height() / 2));
        return screen->grab().toImage().pixelColor(place);
    }
    void verifyPatch(const QString& text, const QColor& colour, ui::VerdictBox::Mark mark) const
    {
        auto& patch = bench->control<ui::VerdictBox>(u"TBResul"_s);
        QCOMPARE(patch.text(), text);
        QCOMPARE(patch.palette().color(QPalette::Base), colour);
        QCOMPARE(patch.palette().color(QPalette::Text), colour);
        QCOMPARE(patch.mark(), mark);
        const QImage picture = patch.grab().toImage();
        const QPoint middle(picture.width() / 2, picture.height() / 2);
        for (int x = middle.x() - 30; x < middle.x() + 60; ++x) // the text is not to be seen
            QCOMPARE(picture.pixelColor(x, middle.y()), colour);
    }
    void verifyLimitBox(bool enabled, const QString& label) const
    {
        QCOMPARE(labelText(u"Label1"_s), label);
        QCOMPARE(bench->control<QLabel>(u"Label1"_s).isEnabled(), enabled);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).isEnabled(), enabled);
    }
    void verifyRunning(bool running) const
    {
        for (int i = 0; i < 5; ++i)
            QCOMPARE(bench->control<QWidget>(u"TbDatos(%1)"_s.arg(i)).isEnabled(), running);
        QCOMPARE(bench->control<QWidget>(u"Frame1"_s).isHidden(), running);
        QCOMPARE(timer(1).isActive(), running);
    }
    void comesUpIdleAgain() const
    {
        QCOMPARE(bench->control<QPushButton>(u"Command1"_s).text(), u"&Empezar"_s);
        QCOMPARE(row(), u" x  = "_s);
        QVERIFY(option(0).isChecked());
        verifyRunning(false);
    }
    /// While the screen waits to be destroyed.
    void verifyNothingWentOn() const
    {
        QVERIFY(screen->isUnloaded());
        QVERIFY(!timer(1).isActive());
        QVERIFY(!timer(2).isActive());
    }
    void verifyUnloaded() const
    {
        QVERIFY(bench->screens.loaded(Form8::screenName()) == nullptr);
        runPendingEvents(); // no second box comes, and no tick from a timer that is gone
        QVERIFY(!screen);
    }
    std::unique_ptr<ScreenBench> bench;
    QPointer<Quiet<Form8>> screen;
};

PIZARRIN_SCREEN_TEST_MAIN(QuickTablesScreenTest)
#include "quick_tables_screen_test.moc"
