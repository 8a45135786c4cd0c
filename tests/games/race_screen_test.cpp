#include "games/race_screen.h"

#include "games/race_options_screen.h"
#include "games/race_track.h"
#include "support/animation_clock.h"
#include "support/car_folder.h"
#include "support/quiet.h"
#include "support/screen_bench.h"
#include "support/still_style.h"

#include <QListWidget>

using namespace Qt::StringLiterals;
using games::DlgCarrera;
using games::FrmCarrera;

namespace {

class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

class RaceScreenTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(new StillStyle); }

    void init()
    {
        bench = std::make_unique<ScreenBench>();
        copyCarPictures(bench->folder.path());
        bench->screens.add<Quiet<FrmCarrera>>();
        bench->screens.add<DlgCarrera>();
    }
    void cleanup() { bench.reset(); }

    // --- coming up

    void firstActivationAsksForTheOptions()
    {
        openDialog();
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->isModal());
        QCOMPARE(text(u"TBOperación"_s), u"7 x 5 + 8 ="_s);
        scriptFactors(7, 5);
        accept();
        QVERIFY(!dialog->isVisible());
        QCOMPARE(bench->screens.loaded(u"DlgCarrera"_s), dialog);
        QCOMPARE(text(u"TBOperación"_s), u"7 × 5 ="_s);
        QCOMPARE(text(u"TBResultado"_s), QString());
        QCOMPARE(screen->focusWidget()->objectName(), u"TBResultado"_s);
        QVERIFY(!running());
        screen->hide();
        screen->show();
        runPendingEvents();
        QVERIFY(!dialog->isVisible());
    }

    void captionsAndTextsAreExact()
    {
        openRace(7, 5);
        QCOMPARE(screen->windowTitle(), u"La gran carrera"_s);
        QCOMPARE(text(u"Text1"_s), u"Resuelve la operación para avanzar"_s);
        QCOMPARE(text(u"Text4"_s), QString());
        QCOMPARE(button(u"Command1(0)"_s).text(), u"&Opciones"_s);
        QCOMPARE(button(u"Command1(1)"_s).text(), u"&Repetir carrera"_s);
        QCOMPARE(bench->fill(u"Command1(0)"_s), QColor(255, 255, 0));
        QCOMPARE(bench->fill(u"Command1(1)"_s), QColor(0, 255, 255));
        QCOMPARE(control<QTimer>(u"Timer1"_s).interval(), 1000);
        for (const QString& name : {u"Text1"_s, u"TBOperación"_s, u"Text4"_s})
            QVERIFY(control<QLineEdit>(name).isReadOnly());
    }

    void closedOptionsCountAsTheFirstOfEach()
    {
        openDialog();
        scriptFactors(7, 5);
        dialog->close();
        QCOMPARE(text(u"TBOperación"_s), u"7 × 5 ="_s);
        QCOMPARE(control<QTimer>(u"Timer2"_s).interval(), 450);
    }

    void optionsDecideTheRace_data()
    {
        QTest::addColumn<int>("rival");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("interval");
        QTest::addColumn<QString>("operation");
        QTest::newRow("products") << 0 << 0 << 450 << u"7 × 5 ="_s;
        QTest::newRow("quotients") << 3 << 1 << 510 << u"35 ÷ 7 ="_s;
        QTest::newRow("products + -") << 8 << 2 << 610 << u"7 × 5 + 6 ="_s;
        QTest::newRow("quotients + -") << 9 << 3 << 630 << u"35 ÷ 7 + 3 ="_s;
    }
    void optionsDecideTheRace()
    {
        QFETCH(int, rival);
        QFETCH(int, type);
        openDialog();
        list(u"List2"_s).setCurrentRow(rival);
        list(u"List3"_s).setCurrentRow(type);
        scriptFactors(7, 5);
        if (type >= 2)
            bench->random.append({0.5f, 0.0f}); // 6 of 2 to 10, 3 of 1 to 5; plus
        accept();
        QTEST(text(u"TBOperación"_s), "operation");
        QTEST(control<QTimer>(u"Timer2"_s).interval(), "interval");
        QCOMPARE(bench->random.left(), 0u);
    }

    void carsStandAtTheStartInTheMiddleOfTheirLanes()
    {
        openDialog();
        list(u"List1"_s).setCurrentRow(4);
        list(u"List2"_s).setCurrentRow(9);
        scriptFactors(7, 5);
        accept();
        const double lane = trackTwips() / 2;
        verifyCar(0, 9500, (lane - 1000) / 2);
        verifyCar(1, 9500, (lane - 1000) / 2 + lane);
        for (int index : {0, 1})
            QVERIFY(car(index).hasScaledContents());
        QVERIFY(carPicture(0) != carPicture(1));
    }

    void lightAtTheStartTurnsGreenWhileTheRaceRuns()
    {
        openRace(7, 5);
        auto& verge = control<QWidget>(u"raceVerge"_s);
        const QImage red = verge.grab().toImage();
        PaintCounter painted(&control<QWidget>(u"raceVerge"_s));
        solve();
        QVERIFY(verge.grab().toImage() != red);
        QTRY_VERIFY(painted.count > 1); // on the display too, not only in the grab
        scriptFactors(3, 6);
        bench->click(u"Command1(1)"_s);
        QCOMPARE(verge.grab().toImage(), red);
    }

    // --- answering

    void rightAnswerStartsTheRace()
    {
        openRace(7, 5);
        scriptFactors(2, 4);
        answer(u"35"_s);
        QCOMPARE(text(u"Text4"_s), u"Correcto "_s);
        QCOMPARE(control<ui::VerdictBox>(u"Text4"_s).mark(), ui::VerdictBox::Mark::Right);
        QCOMPARE(text(u"TBOperación"_s), u"2 × 4 ="_s);
        QCOMPARE(text(u"TBResultado"_s), QString());
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        QVERIFY(control<QTimer>(u"Timer1"_s).isActive());
        QVERIFY(control<QTimer>(u"Timer2"_s).isActive());
        verifyCarLeft(0, 9500 - 9500.0 / 15);
        verifyCarLeft(1, 9500);
        QCOMPARE(screen->beeps, 0);
    }

    void wrongAnswerBeepsAndKeepsTheOperation()
    {
        openRace(7, 5);
        answer(u"36"_s);
        QCOMPARE(text(u"Text4"_s), u"Error"_s);
        QCOMPARE(control<ui::VerdictBox>(u"Text4"_s).mark(), ui::VerdictBox::Mark::Wrong);
        QCOMPARE(text(u"TBOperación"_s), u"7 × 5 ="_s);
        QCOMPARE(text(u"TBResultado"_s), QString());
        QCOMPARE(screen->beeps, 1);
        QVERIFY(!running());
        verifyCarLeft(0, 9500);
    }

    void answersAreReadAsNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");
        QTest::newRow("plain") << u"8"_s << true;
        QTest::newRow("leading zero") << u"08"_s << true;
        QTest::newRow("blanks") << u"  8"_s << true;
        QTest::newRow("prefix") << u"8x"_s << true;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("letters") << u"ocho"_s << false;
        QTest::newRow("fraction") << u"8,5"_s << false;
        QTest::newRow("beyond 16 bits") << u"800000000"_s << false;
    }
    void answersAreReadAsNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(bool, right);
        openRace(2, 4);
        if (right)
            scriptFactors(7, 5);
        answer(typed);
        QCOMPARE(text(u"Text4"_s), right ? u"Correcto "_s : u"Error"_s);
        QCOMPARE(bench->random.left(), 0u);
    }

    void everySecondFeedbackHasABlankInFront()
    {
        openRace(7, 5);
        answer(u"1"_s);
        answer(u"1"_s);
        QCOMPARE(text(u"Text4"_s), u" Error"_s);
        solve();
        QCOMPARE(text(u"Text4"_s), u"Correcto "_s);
        solve();
        QCOMPARE(text(u"Text4"_s), u" Correcto "_s);
    }

    void keypadEnterOfTheKeyboardChecksToo()
    {
        openRace(7, 5);
        scriptFactors(2, 4);
        bench->type(u"TBResultado"_s, u"35"_s);
        bench->key(u"TBResultado"_s, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(text(u"TBOperación"_s), u"2 × 4 ="_s);
    }

    // --- the two ends

    void fifteenRightAnswersWin()
    {
        openRace(7, 5);
        for (int step = 1; step < 15; ++step) {
            solve();
            verifyCarLeft(0, 9500 - 9500.0 / 15 * step);
            bench->tick(u"Timer1"_s);
        }
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            QCOMPARE(text(u"Text4"_s), u"Correcto "_s);
            QVERIFY(!running());
            bench->tick(u"Timer1"_s); // and nothing is counted
        };
        solve();
        QCOMPARE(boxes.titles, {u"La gran carrera"_s});
        QCOMPARE(boxes.texts, {u"Has ganado la carrera. Has tardado 14 segundos."_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        verifyCarLeft(0, 0);
        verifyEnded();
    }

    void sixtyTicksOfTheRivalLose()
    {
        openRace(7, 5);
        solve();
        for (int step = 1; step < 60; ++step) {
            bench->tick(u"Timer2"_s);
            verifyCarLeft(1, 9500 - 9500.0 / 60 * step);
        }
        bench->tick(u"Timer1"_s);
        bench->tick(u"Timer1"_s);
        bench->type(u"TBResultado"_s, u"1"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            QCOMPARE(text(u"Text4"_s), u"Correcto "_s);
            QVERIFY(control<QLineEdit>(u"TBResultado"_s).isEnabled());
            bench->tick(u"Timer1"_s); // and nothing is counted
            bench->tick(u"Timer2"_s);
        };
        bench->tick(u"Timer2"_s);
        QCOMPARE(text(u"raceTime"_s), u"Tiempo: 2 s"_s);
        QCOMPARE(text(u"TBResultado"_s), u"1"_s);
        QCOMPARE(boxes.titles, {u"La gran carrera"_s});
        QCOMPARE(boxes.texts, {u"tu adversario ha ganado la carrera. Ha tardado 2 segundos."_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        verifyCarLeft(1, 0);
        verifyCarLeft(0, 9500 - 9500.0 / 15);
        verifyEnded();
    }

    void laterAnswersDoNotHoldTheRivalBack()
    {
        openRace(7, 5);
        solve();
        const int clockStart = control<QTimer>(u"Timer1"_s).timerId(); // another one each time
        const int rivalStart = control<QTimer>(u"Timer2"_s).timerId();
        solve();
        QCOMPARE(control<QTimer>(u"Timer1"_s).timerId(), clockStart);
        QCOMPARE(control<QTimer>(u"Timer2"_s).timerId(), rivalStart);
    }

    void timersThatRunByThemselvesLoseTheRace()
    {
        openRace(7, 5);
        solve();
        control<QTimer>(u"Timer2"_s).setInterval(1);
        BoxAnswerer boxes(u"Aceptar"_s);
        QTRY_COMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().startsWith(u"tu adversario ha ganado la carrera."_s));
        QTRY_VERIFY(!control<QLineEdit>(u"TBResultado"_s).isEnabled());
        verifyEnded();
    }

    void aPressOnTheTrackLeavesTheKeysToTheAnswer()
    {
        openRace(7, 5);
        QTest::mouseClick(&control<QWidget>(u"Picture1"_s), Qt::LeftButton);
        QCOMPARE(screen->focusWidget()->objectName(), u"TBResultado"_s);
    }

    void afterTheEndNothingCounts()
    {
        win();
        const QString operation = text(u"TBOperación"_s);
        const QString result = QString::number(value(operation));
        bench->click(u"CBConmutar"_s);
        QCOMPARE(screen->focusWidget()->objectName(), u"Picture1"_s); // no button
        for (const QString& digit : result.split(QString(), Qt::SkipEmptyParts))
            bench->click(u"CBCalcu(%1)"_s.arg(digit == u"0"_s ? u"11"_s : digit));
        bench->click(u"CBCalcu(12)"_s);
        bench->tick(u"Timer1"_s);
        bench->tick(u"Timer2"_s);
        QCOMPARE(text(u"TBOperación"_s), operation);
        QCOMPARE(text(u"Text4"_s), QString());
        QCOMPARE(text(u"TBResultado"_s), result); // the keys write there as ever
        verifyCarLeft(0, 0);
        verifyCarLeft(1, 9500);
        bench->click(u"CBCalcu(10)"_s);
        QCOMPARE(text(u"TBResultado"_s), QString());
        bench->click(u"CBCalcu(0)"_s);
        QCOMPARE(screen->focusWidget()->objectName(), u"Picture1"_s);
        verifyEnded();
    }

    // --- new races

    void repeatStartsANewRaceWithTheSameOptions()
    {
        openDialog();
        list(u"List2"_s).setCurrentRow(5);
        list(u"List3"_s).setCurrentRow(1);
        scriptFactors(7, 5);
        accept();
        solve();
        bench->tick(u"Timer1"_s);
        bench->tick(u"Timer2"_s);
        scriptFactors(3, 6);
        bench->click(u"Command1(1)"_s);
        verifyAtTheStart(u"18 ÷ 3 ="_s);
        QCOMPARE(control<QTimer>(u"Timer2"_s).interval(), 550);
        QCOMPARE(text(u"Text4"_s), u"Correcto "_s); // left as it was
    }

    void endedRaceIsRepeatedAndCanBeWonAgain()
    {
        win();
        scriptFactors(3, 6);
        bench->click(u"Command1(1)"_s);
        verifyAtTheStart(u"3 × 6 ="_s);
        for (int step = 1; step < 15; ++step)
            solve();
        BoxAnswerer boxes(u"Aceptar"_s);
        solve();
        QCOMPARE(boxes.texts, {u"Has ganado la carrera. Has tardado 0 segundos."_s});
    }

    void feedbackOfANewRaceStartsWithoutTheBlank()
    {
        openRace(7, 5);
        answer(u"1"_s);
        scriptFactors(3, 6);
        bench->click(u"Command1(1)"_s);
        answer(u"1"_s);
        QCOMPARE(text(u"Text4"_s), u"Error"_s);
    }

    void optionsStopTheRaceAndBringANewOne()
    {
        openRace(7, 5);
        solve();
        bench->tick(u"Timer2"_s);
        const QImage before = carPicture(0);
        bench->click(u"Command1(0)"_s);
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->isModal());
        QVERIFY(!running());
        list(u"List1"_s).setCurrentRow(6);
        list(u"List3"_s).setCurrentRow(1);
        scriptFactors(3, 6);
        accept();
        verifyAtTheStart(u"18 ÷ 3 ="_s);
        QVERIFY(carPicture(0) != before);
    }

    void accessKeysPressTheButtons()
    {
        openRace(7, 5);
        scriptFactors(3, 6);
        QTest::keyClick(screen, Qt::Key_R, Qt::AltModifier);
        QCOMPARE(text(u"TBOperación"_s), u"3 × 6 ="_s);
        QTest::keyClick(screen, Qt::Key_O, Qt::AltModifier);
        QVERIFY(dialog->isVisible());
    }

    void missingPictureLeavesNoRaceUntilAnotherCarIsChosen()
    {
        QVERIFY(QFile::remove(bench->folder.filePath(u"02 _ Blanco.jpg"_s)));
        openRace(7, 5);
        bench->click(u"Command1(0)"_s);
        {
            BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s}); // the dialog's and the race's
            list(u"List2"_s).setCurrentRow(1);
            accept();
            QTRY_COMPARE(boxes.texts.size(), 2);
            QVERIFY(boxes.texts.last().contains(u"«02 _ Blanco.jpg»"_s));
        }
        QCOMPARE(text(u"TBOperación"_s), QString());
        answer(u"35"_s);
        QVERIFY(!running());
        bench->click(u"Command1(0)"_s);
        list(u"List2"_s).setCurrentRow(2);
        scriptFactors(3, 6);
        accept();
        verifyAtTheStart(u"3 × 6 ="_s);
    }

    // --- the keypad

    void keypadStandsAsLaidOut()
    {
        openRace(7, 5);
        const QStringList captions{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s,
            u"9"_s, u"B"_s, u"0"_s, u"E"_s};
        for (int i = 1; i <= 12; ++i) {
            const QString name = u"CBCalcu(%1)"_s.arg(i);
            QCOMPARE(button(name).text(), captions.at(i - 1));
            QCOMPARE(bench->fill(name),
                i == 10       ? QColor(255, 0, 0)
                    : i == 12 ? QColor(0, 255, 0)
                              : QColor(176, 196, 222));
            QCOMPARE(button(name).parentWidget()->objectName(), u"PBTeclado"_s);
            QCOMPARE(button(name).pos(),
                QPoint(pixels((i - 1) % 3 * 400), pixels((i - 1) / 3 * 400 + 400)));
            QVERIFY(button(name).parentWidget()->rect().contains(button(name).geometry()));
        }
        QCOMPARE(button(u"CBCalcu(0)"_s).text(), QString());
        QCOMPARE(button(u"CBConmutar"_s).text(), QString());
    }

    void keypadIsShownAndHidden()
    {
        openRace(7, 5);
        const auto& keypad = control<QWidget>(u"PBTeclado"_s);
        QVERIFY(!keypad.isVisible());
        bench->click(u"CBConmutar"_s);
        QVERIFY(keypad.isVisible());
        QVERIFY(!button(u"CBConmutar"_s).isVisible());
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        bench->click(u"CBCalcu(0)"_s);
        QVERIFY(!keypad.isVisible());
        QVERIFY(button(u"CBConmutar"_s).isVisible());
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
    }

    void keypadTypesAndChecks()
    {
        openRace(10, 10);
        bench->click(u"CBConmutar"_s);
        for (int i = 1; i <= 9; ++i)
            bench->click(u"CBCalcu(%1)"_s.arg(i));
        bench->click(u"CBCalcu(11)"_s);
        QCOMPARE(text(u"TBResultado"_s), u"1234567890"_s);
        QCOMPARE(bench->focusName(), u"TBResultado"_s);
        bench->click(u"CBCalcu(10)"_s);
        QCOMPARE(text(u"TBResultado"_s), QString());
        bench->type(u"TBResultado"_s, u"1"_s); // mixed with the keyboard
        bench->click(u"CBCalcu(11)"_s);
        bench->type(u"TBResultado"_s, u"0"_s);
        QCOMPARE(text(u"TBResultado"_s), u"100"_s);
        scriptFactors(2, 4);
        bench->click(u"CBCalcu(12)"_s);
        QCOMPARE(text(u"TBOperación"_s), u"2 × 4 ="_s);
        bench->click(u"CBCalcu(12)"_s);
        QCOMPARE(text(u"Text4"_s), u" Error"_s);
    }

    void keypadIsReachedByTheTabKey()
    {
        openRace(7, 5);
        bench->click(u"CBConmutar"_s);
        QStringList walked;
        for (int i = 0; i < 16; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            walked << bench->focusName();
        }
        for (int i = 0; i <= 12; ++i)
            QVERIFY(walked.contains(u"CBCalcu(%1)"_s.arg(i)));
        QVERIFY(walked.contains(u"Command1(0)"_s) && walked.contains(u"Command1(1)"_s));
        QCOMPARE(walked.last(), u"TBResultado"_s);
        button(u"CBCalcu(4)"_s).setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(text(u"TBResultado"_s), u"4"_s);
    }

    // --- other keys

    void ctrlTogglesALeadingBlankWhereverTheFocusIs()
    {
        openRace(7, 5);
        bench->key(u"TBResultado"_s, Qt::Key_Control);
        QCOMPARE(text(u"TBOperación"_s), u" 7 × 5 ="_s);
        bench->key(u"TBResultado"_s, Qt::Key_Control);
        QCOMPARE(text(u"TBOperación"_s), u"7 × 5 ="_s);
        for (const QString& name : {u"Command1(0)"_s, u"CBConmutar"_s}) {
            button(name).setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Control);
        }
        QCOMPARE(text(u"TBOperación"_s), u"7 × 5 ="_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Control);
        QCOMPARE(text(u"TBOperación"_s), u" 7 × 5 ="_s);
        bench->key(u"TBResultado"_s, Qt::Key_Shift);
        QCOMPARE(text(u"TBOperación"_s), u" 7 × 5 ="_s);
        QCOMPARE(text(u"TBResultado"_s), QString());
    }

    void escapeDoesNothing()
    {
        openRace(7, 5);
        bench->type(u"TBResultado"_s, u"3"_s);
        bench->key(u"TBResultado"_s, Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        QCOMPARE(text(u"TBResultado"_s), u"3"_s);
    }

    // --- the second row

    void secondRowIsThereButNotShown()
    {
        openRace(7, 5);
        const QStringList texts{u"888"_s, QString(), u"888"_s, QString(), u"888"_s};
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(text(u"Text2(%1)"_s.arg(i)), texts.at(i));
            QVERIFY(!control<QWidget>(u"Text2(%1)"_s.arg(i)).isVisible());
        }
    }

    void secondRowChecksOnEnterInItsLastBox()
    {
        openRace(7, 5);
        bench->key(u"Text2(0)"_s, Qt::Key_Return);
        QCOMPARE(text(u"Text4"_s), QString());
        bench->key(u"Text2(4)"_s, Qt::Key_Return); // 888
        QCOMPARE(text(u"Text4"_s), u"ERROR"_s);
        QCOMPARE(text(u"Text2(4)"_s), QString());
        QVERIFY(!running());
        bench->type(u"Text2(4)"_s, u"35"_s);
        bench->key(u"Text2(4)"_s, Qt::Key_Return);
        QCOMPARE(text(u"Text4"_s), u"CORRECTO"_s);
        QVERIFY(running());
        verifyCarLeft(0, 9500 - 9500.0 / 15);
        QCOMPARE(text(u"TBOperación"_s), u"7 × 5 ="_s);
    }

    void secondRowWinsAndTellsThatTheRaceIsOver()
    {
        openRace(7, 5);
        for (int step = 1; step < 15; ++step)
            solve();
        control<QLineEdit>(u"Text2(4)"_s).clear();
        bench->type(u"Text2(4)"_s, QString::number(value(text(u"TBOperación"_s))));
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s});
        bench->key(u"Text2(4)"_s, Qt::Key_Return);
        verifyEnded();
        bench->key(u"Text2(1)"_s, Qt::Key_7);
        QCOMPARE(boxes.texts,
            (QStringList{u"Has ganado la carrera. Has tardado 0 segundos."_s,
                u"La carrera ha terminado. Pulsa en uno de los botones inferiores."_s}));
        QCOMPARE(text(u"Text2(1)"_s), QString());
    }

    // --- window

    void carsAndTrackFollowTheWindow()
    {
        openRace(7, 5);
        solve();
        screen->resize(screen->size() * 2);
        QVERIFY(screen->factor() > 1.5);
        verifyCarLeft(0, 9500 - 9500.0 / 15);
        verifyCar(1, 9500, (trackTwips() / 2 - 1000) / 2 + trackTwips() / 2);
    }

    void carsGlideToTheirExactPlace()
    {
        QApplication::setStyle(new ui::Style);
        AnimationClock clock;
        openRace(7, 5);
        solve();
        constexpr double Step = 9500.0 / 15;
        QCOMPARE(car(0).x(), pixels(9500));
        clock.pass(350);
        QVERIFY(car(0).x() < pixels(9500) && car(0).x() > pixels(9500 - Step));
        clock.pass(350);
        QCOMPARE(car(0).x(), pixels(9500 - Step));
        QApplication::setStyle(new StillStyle);
    }

    void theRivalFlowsFromStepToStep()
    {
        QApplication::setStyle(new ui::Style);
        AnimationClock clock;
        openRace(7, 5);
        solve();
        for (int step = 1; step <= 3; ++step) {
            bench->tick(u"Timer2"_s);
            clock.pass(300); // of 450
            QVERIFY(car(1).x() < pixels(9500 - 9500.0 / 60 * (step - 1)));
            QVERIFY(car(1).x() > pixels(9500 - 9500.0 / 60 * step));
            clock.pass(150);
            verifyCarLeft(1, 9500 - 9500.0 / 60 * step);
        }
        QApplication::setStyle(new StillStyle);
    }

    void aWrongAnswerJoltsTheCar()
    {
        QApplication::setStyle(new ui::Style);
        AnimationClock clock;
        openRace(7, 5);
        answer(u"36"_s);
        clock.pass(80);
        QVERIFY(car(0).x() > pixels(9500));
        clock.pass(240);
        verifyCarLeft(0, 9500);
        QApplication::setStyle(new StillStyle);
    }

    void marksOnTheKerbCountTheSteps()
    {
        openRace(7, 5);
        auto& track = control<QWidget>(u"Picture1"_s);
        const auto mark = [&](int step) {
            const double x = 9500 - 9500.0 / 15 * step + 150;
            return track.grab().toImage().pixelColor(pixels(x), pixels(90));
        };
        for (int step = 1; step <= 15; ++step)
            QVERIFY(mark(step) != QColor(ui::look::Gold));
        solve();
        solve();
        for (int step = 1; step <= 15; ++step)
            QCOMPARE(mark(step) == QColor(ui::look::Gold), step <= 2);
        scriptFactors(3, 6);
        bench->click(u"Command1(1)"_s);
        QVERIFY(mark(1) != QColor(ui::look::Gold));
    }

    void aWinIsCelebratedBehindItsBox()
    {
        openRace(7, 5);
        for (int step = 1; step < 15; ++step)
            solve();
        const auto& podium = control<QWidget>(u"racePodium"_s);
        QVERIFY(!podium.isVisible());
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) { QVERIFY(podium.isVisible()); };
        solve();
        QVERIFY(!podium.isVisible());
    }

    void aDefeatIsNot()
    {
        openRace(7, 5);
        solve();
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            QVERIFY(!control<QWidget>(u"racePodium"_s).isVisible());
        };
        for (int step = 0; step < 60; ++step)
            bench->tick(u"Timer2"_s);
        QCOMPARE(boxes.texts.size(), 1);
    }

    void theAnswerBoxShowsTheVerdictUntilItIsTypedInto()
    {
        openRace(7, 5);
        answer(u"36"_s);
        QCOMPARE(control<ui::TextBox>(u"TBResultado"_s).edge(), QColor(ui::look::Wrong));
        bench->click(u"CBConmutar"_s);
        bench->click(u"CBCalcu(3)"_s);
        QVERIFY(!control<ui::TextBox>(u"TBResultado"_s).edge());
    }

    void closingTheRaceUnloadsItsOptions()
    {
        openRace(7, 5);
        solve();
        screen->close();
        QCOMPARE(bench->screens.loaded(u"FrmCarrera"_s), nullptr);
        QCOMPARE(bench->screens.loaded(u"DlgCarrera"_s), nullptr);
    }

    void closingTheRaceBehindItsOptionsPreparesNothing()
    {
        openDialog(); // no draw is scripted: a race set up now would fail the test
        bench->screens.unload(u"FrmCarrera"_s);
        QCOMPARE(bench->screens.loaded(u"FrmCarrera"_s), nullptr);
        QCOMPARE(bench->screens.loaded(u"DlgCarrera"_s), nullptr);
    }

    void reopenedRaceStartsAfresh()
    {
        openDialog();
        list(u"List3"_s).setCurrentRow(1);
        scriptFactors(7, 5);
        accept();
        screen->close();
        openRace(3, 6);
        verifyAtTheStart(u"3 × 6 ="_s);
    }

private:
    void openDialog()
    {
        screen = static_cast<Quiet<FrmCarrera>*>(&bench->show(u"FrmCarrera"_s));
        bench->attach(*screen);
        QTRY_VERIFY(bench->screens.loaded(u"DlgCarrera"_s));
        dialog = static_cast<DlgCarrera*>(bench->screens.loaded(u"DlgCarrera"_s));
        makeActive(*dialog);
    }

    void openRace(int factor1, int factor2)
    {
        openDialog();
        scriptFactors(factor1, factor2);
        accept();
    }

    void accept()
    {
        makeActive(*dialog); // nobody presses a button before the window manager shows it
        QTest::mouseClick(
            &ScreenBench::find<QPushButton>(*dialog, u"OKButton"_s), Qt::LeftButton);
        makeActive(*screen);
        QVERIFY(QApplication::focusWidget());
    }

    void scriptFactors(int factor1, int factor2)
    {
        bench->random.appendInteger(factor1, 9, 2);
        bench->random.appendInteger(factor2, 9, 2);
    }

    void answer(const QString& keys)
    {
        bench->type(u"TBResultado"_s, keys);
        bench->key(u"TBResultado"_s, Qt::Key_Return);
    }

    /// Reads the operation on the screen and answers it; the next one has other factors.
    void solve()
    {
        const QString operation = text(u"TBOperación"_s);
        if (operation == u"9 × 9 ="_s || operation == u"81 ÷ 9 ="_s)
            scriptFactors(8, 8);
        else
            scriptFactors(9, 9);
        answer(QString::number(value(operation)));
    }

    static int value(const QString& operation)
    {
        const QStringList parts = operation.split(u' ');
        const int a = parts.at(0).toInt();
        const int b = parts.at(2).toInt();
        return parts.at(1) == u"×"_s ? a * b : a / b;
    }

    void win()
    {
        openRace(7, 5);
        for (int step = 1; step < 15; ++step)
            solve();
        BoxAnswerer boxes(u"Aceptar"_s);
        solve();
    }

    template <typename T> T& control(const QString& name) const
    {
        return bench->control<T>(name);
    }
    QString text(const QString& name) const { return bench->text(name); }
    QPushButton& button(const QString& name) const { return control<QPushButton>(name); }
    QListWidget& list(const QString& name) const
    {
        return ScreenBench::find<QListWidget>(*dialog, name);
    }
    QLabel& car(int index) const { return control<QLabel>(u"Image1(%1)"_s.arg(index)); }
    QImage carPicture(int index) const { return car(index).pixmap(Qt::ReturnByValue).toImage(); }
    bool running() const
    {
        return control<QTimer>(u"Timer1"_s).isActive() || control<QTimer>(u"Timer2"_s).isActive();
    }
    int pixels(double twips) const { return qRound(twips * screen->factor() / 15); }
    double trackTwips() const { return games::RaceTrack::Height; }

    void verifyCarLeft(int index, double left) { QCOMPARE(car(index).x(), pixels(left)); }

    void verifyCar(int index, double left, double top)
    {
        QVERIFY(qAbs(car(index).parentWidget()->height() - pixels(trackTwips())) <= 1);
        QCOMPARE(car(index).pos(), QPoint(pixels(left), pixels(top)));
        QVERIFY(qAbs(car(index).height() - 1000 * screen->factor() / 15) <= 1);
        QVERIFY(qAbs(car(index).width() - 1000.0 * 800 / 340 * screen->factor() / 15) <= 1);
    }

    void verifyAtTheStart(const QString& operation)
    {
        QCOMPARE(text(u"TBOperación"_s), operation);
        QCOMPARE(text(u"TBResultado"_s), QString());
        QVERIFY(control<QLineEdit>(u"TBResultado"_s).isEnabled());
        QCOMPARE(screen->focusWidget()->objectName(), u"TBResultado"_s);
        QVERIFY(!running());
        verifyCarLeft(0, 9500);
        verifyCarLeft(1, 9500);
        QCOMPARE(text(u"raceTime"_s), u"Tiempo: 0 s"_s);
    }

    void verifyEnded()
    {
        QVERIFY(!running());
        QVERIFY(button(u"Command1(0)"_s).isEnabled() && button(u"Command1(1)"_s).isEnabled());
        QCOMPARE(text(u"Text4"_s), QString());
        QVERIFY(!control<QLineEdit>(u"TBResultado"_s).isEnabled());
        const QString operation = text(u"TBOperación"_s);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
            QTest::keyClick(screen->focusWidget(), key);
        QCOMPARE(text(u"TBOperación"_s), operation); // no new race
        QVERIFY(!dialog->isVisible());
    }

    std::unique_ptr<ScreenBench> bench;
    Quiet<FrmCarrera>* screen = nullptr;
    DlgCarrera* dialog = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(RaceScreenTest)
#include "race_screen_test.moc"
