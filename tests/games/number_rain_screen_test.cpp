#include "core/defect.h"
#include "games/number_rain_screen.h"

#include "games/rain_drop.h"
#include "games/rain_game.h"
#include "games/rain_grid.h"
#include "games/rain_halo.h"
#include "games/rain_splash.h"
#include "games/token_row.h"
#include "support/animation_clock.h"
#include "support/quiet.h"
#include "support/screen_bench.h"
#include "support/still_style.h"

#include <QMenu>

#include <random>

using games::RainFall;
using games::RainGrid;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int Height = 7260; // of the canvas, in twips
constexpr int Rows = 13; // steps from launch to escape
constexpr int Tick = 800; // milliseconds, on Easy
constexpr int Trip = Tick * 95 / 100; // of a number of class 5 in a tick

class QuietForm5 final : public Quiet<games::Form5> {
public:
    using Quiet::Quiet;
    using Screen::designHeight;
    using Screen::designWidth;
};

} // namespace

/// The screen of number rain, beside a model that gets the same draws and calls.
class NumberRainScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        QApplication::setStyle(new StillStyle);
        bench = std::make_unique<ScreenBench>();
        open();
    }
    void cleanup()
    {
        bench.reset();
        model.reset();
    }

    void comesUpWaitingOnEasy()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
        QCOMPARE(screen->windowTitle(), u"Lluvia de números - Fase 1"_s);
        QCOMPARE(bench->text(u"Text2(0)"_s), u"100 puntos"_s);
        QCOMPARE(bench->text(u"Text2(1)"_s), u"Vidas : 3"_s);
        const auto instruction = u"Elimina los  números impares. Selecciona la dificultad antes "
                                 "de empezar."_s;
        QCOMPARE(bench->text(u"Text1"_s), instruction);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectedText(), instruction);
        QCOMPARE(bench->focusName(), u"CbEmpezar"_s);
        QVERIFY(bench->control<QAction>(u"MnuOpcMod(0)"_s).isChecked());
        QVERIFY(!timer(1).isActive());
        QCOMPARE(timer(1).interval(), 800);
        QVERIFY(!timer(2).isActive());
        QCOMPARE(timer(2).interval(), 10000);
        QCOMPARE(screen->designHeight(), double(Height));
        compare();
    }

    void textsStandInAFixedFace()
    {
        const QFont fixed = ui::look::scaled({ui::look::Family::CourierNew, 17}, 1);
        for (const QString& name : {u"Text1"_s, u"Text2(0)"_s, u"Text2(1)"_s}) {
            const auto& box = bench->control<QLineEdit>(name);
            QCOMPARE(box.font().families(), fixed.families());
            QVERIFY(box.isReadOnly());
        }
    }

    void captionsAreExact()
    {
        QCOMPARE(start().text(), u"&EMPEZAR"_s);
        const QMap<QString, QString> items{{u"MnuOpc"_s, u"&Opciones"_s},
            {u"MnuOpcMod(0)"_s, u"&Fácil"_s}, {u"MnuOpcMod(1)"_s, u"&Normal"_s},
            {u"MnuOpcMod(2)"_s, u"&Difícil"_s}, {u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s}};
        for (const auto& [name, caption] : items.asKeyValueRange())
            QCOMPARE(bench->control<QAction>(name).text(), caption);
    }

    void startLeavesOneLetterSelected()
    {
        bench->click(u"CbEmpezar"_s);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"E"_s);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectionStart(), 0);
        QVERIFY(!start().isVisible());
        QVERIFY(!start().isEnabled());
        QVERIFY(timer(1).isActive());
        QCOMPARE(bench->focusName(), u"PbFoco"_s);
    }

    void startAnswersItsAccessKeyAndEnter()
    {
        QTest::keyClick(screen, Qt::Key_E, Qt::AltModifier);
        QVERIFY(timer(1).isActive());
        bench->pick(u"MnuOpcMod(0)"_s);
        QVERIFY(!timer(1).isActive());
        bench->key(u"CbEmpezar"_s, Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(timer(1).isActive());
    }

    void theClockTicksByItself()
    {
        bench->pick(u"MnuOpcMod(2)"_s);
        model->rain.chooseDifficulty(games::Difficulty::Dificil);
        bench->random.appendInteger(5, 19, 1);
        bench->random.appendInteger(2, 5, 1);
        bench->random.append({0.0f, 0.0f});
        QElapsedTimer clock;
        clock.start();
        bench->click(u"CbEmpezar"_s);
        QTRY_VERIFY_WITH_TIMEOUT(drop(0).isVisible(), 60000);
        QVERIFY(clock.elapsed() >= 6 * 290);
        timer(1).stop();
    }

    void aDifficultyStartsANewGame_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("interval");
        QTest::newRow("easy") << 0 << 800;
        QTest::newRow("normal") << 1 << 500;
        QTest::newRow("hard") << 2 << 300;
    }

    void aDifficultyStartsANewGame()
    {
        QFETCH(int, index);
        run();
        launch(5, 2, 8);
        click(0);
        launch(7, 3, 9);
        bench->pick(u"MnuOpcMod(%1)"_s.arg(index));
        model->rain.chooseDifficulty(static_cast<games::Difficulty>(index));
        QTEST(timer(1).interval(), "interval");
        QVERIFY(!timer(1).isActive());
        for (int item = 0; item < 3; ++item)
            QCOMPARE(
                bench->control<QAction>(u"MnuOpcMod(%1)"_s.arg(item)).isChecked(), item == index);
        QCOMPARE(bench->text(u"Text2(0)"_s), u"100 puntos"_s);
        const auto& instruction = bench->control<QLineEdit>(u"Text1"_s);
        QCOMPARE(instruction.selectedText(), instruction.text());
        QCOMPARE(bench->focusName(), u"CbEmpezar"_s);
        compare();
    }

    void aLaunchedNumberStandsInItsColumn_data()
    {
        QTest::addColumn<int>("velocidad");
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<QColor>("digits");
        QTest::newRow("red") << 1 << QColor(255, 0, 0) << QColor(0, 0, 0);
        QTest::newRow("yellow") << 2 << QColor(255, 255, 0) << QColor(ui::look::Ink);
        QTest::newRow("orange") << 3 << QColor(255, 165, 0) << QColor(ui::look::Ink);
        QTest::newRow("green") << 4 << QColor(0, 255, 0) << QColor(ui::look::Ink);
        QTest::newRow("blue") << 5 << QColor(0, 0, 255) << QColor(255, 255, 255);
    }

    void aLaunchedNumberStandsInItsColumn()
    {
        QFETCH(int, velocidad);
        run();
        launch(13, velocidad, 11);
        QVERIFY(drop(0).isVisible());
        QVERIFY(drop(0).isEnabled());
        QCOMPARE(drop(0).text(), u"11"_s);
        QCOMPARE(bench->focusName(), u"CbNave(0)"_s);
        QTEST(drop(0).palette().color(QPalette::Button), "colour");
        QTEST(drop(0).palette().color(QPalette::ButtonText), "digits");
        QCOMPARE(drop(0).pos(), at(13 * 500, 780));
        tick();
        QCOMPARE(drop(0).pos(), at(13 * 500, velocidad == 5 ? 1280 : 780));
    }

    void clickingAWrongNumberRestsTheFocusToo()
    {
        run();
        launch(5, 1, 8);
        click(0);
        QCOMPARE(bench->focusName(), u"PbFoco"_s);
        compare();
    }

    void clickingARightNumberRemovesIt()
    {
        run();
        launch(5, 3, 7);
        click(0);
        QVERIFY(!drop(0).isVisible());
        QVERIFY(!drop(0).isEnabled());
        QCOMPARE(bench->text(u"Text2(0)"_s), u"130"_s);
        QCOMPARE(bench->focusName(), u"PbFoco"_s);
        compare();
    }

    void aNumberIsHitByPressingOnce()
    {
        bench->pick(u"MnuOpcMod(1)"_s);
        model->rain.chooseDifficulty(games::Difficulty::Normal);
        run();
        launch(5, 5, 2);
        QTest::mousePress(&drop(0), Qt::LeftButton);
        model->rain.click(0);
        QCOMPARE(bench->text(u"Text2(0)"_s), u"50"_s);
        launch(6, 5, 2);
        click(0); // no points left: the number stays, and its release must not hit it again
        QCOMPARE(bench->text(u"Text2(0)"_s), u"0"_s);
        QVERIFY(drop(0).isVisible());
        QTest::mouseClick(&drop(0), Qt::RightButton);
        compare();
    }

    void keysHitTheNumberInFocus_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("space") << Qt::Key_Space;
        QTest::newRow("enter") << Qt::Key_Return;
        QTest::newRow("keypad enter") << Qt::Key_Enter;
    }

    void keysHitTheNumberInFocus()
    {
        QFETCH(Qt::Key, key);
        run();
        for (const int valor : {1, 3, 5})
            launch(3 + valor, 1, valor);
        drop(2).setFocus();
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(bench->focusName(), u"CbNave(1)"_s);
        QTest::keyClick(&drop(1), key);
        model->rain.click(1);
        QVERIFY(!drop(1).isVisible());
        QCOMPARE(bench->text(u"Text2(0)"_s), u"110"_s);
        compare();
    }

    void aKeyMeantForTheNumberBeforeHitsNotTheNewOne()
    {
        QFETCH(Qt::Key, key);
        bench->clock.passingWithEachLook = 0ms;
        run();
        launch(5, 1, 1);
        launch(6, 1, 3);
        bench->clock.passed += 249ms;
        QTest::keyClick(&drop(1), key);
        QVERIFY(drop(1).isVisible());
        bench->clock.passed += 1ms;
        QTest::keyClick(&drop(1), key);
        model->rain.click(1);
        QVERIFY(!drop(1).isVisible());
        compare();
    }
    void aKeyMeantForTheNumberBeforeHitsNotTheNewOne_data() { keysHitTheNumberInFocus_data(); }

    void aNumberThatTakesTheFocusFromNoOtherIsHitAtOnce()
    {
        bench->clock.passingWithEachLook = 0ms;
        run();
        launch(5, 1, 1);
        launch(6, 1, 3);
        bench->clock.passed += 250ms;
        QTest::keyClick(&drop(1), Qt::Key_Space);
        model->rain.click(1);
        QCOMPARE(bench->focusName(), u"PbFoco"_s);
        launch(7, 1, 5);
        QTest::keyClick(&drop(1), Qt::Key_Space);
        model->rain.click(1);
        QVERIFY(!drop(1).isVisible());
        compare();
    }

    void tabReachesTheNumbersFromNowhere()
    {
        run();
        launch(5, 1, 1);
        launch(6, 1, 3);
        click(0);
        QCOMPARE(bench->focusName(), u"PbFoco"_s);
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"CbNave(1)"_s);
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"CbNave(1)"_s); // the only one there
    }

    void aNumberLaunchedIntoAUsedSlotStartsAtTheTop()
    {
        QApplication::setStyle(new ui::Style); // a glide from the old place would show
        AnimationClock clock;
        run();
        launch(7, 5, 4);
        for (int steps = 0; steps < 5; ++steps)
            step();
        click(0);
        QCOMPARE(launch(1, 1, 2), 0);
        QCOMPARE(drop(0).text(), u"2"_s);
        QCOMPARE(drop(0).pos(), at(500, 780));
        clock.pass(Tick);
        QCOMPARE(drop(0).pos(), at(500, 780));
    }

    void anEscapedNumberLeavesTheFocusToNoOther()
    {
        run();
        launch(5, 1, 2);
        launch(7, 5, 4);
        for (int steps = 1; steps < Rows; ++steps)
            step();
        drop(1).setFocus();
        step();
        QVERIFY(!drop(1).isVisible());
        QVERIFY(drop(0).isVisible());
        QCOMPARE(bench->focusName(), u"PbFoco"_s);
    }

    void anEscapedTargetBeeps()
    {
        run();
        launch(7, 5, 3);
        for (int steps = 1; steps < Rows; ++steps)
            step();
        QVERIFY(drop(0).geometry().center().y() < at(0, Height).y()); // to be seen to the last
        QCOMPARE(screen->beeps, 0);
        step();
        QVERIFY(!drop(0).isVisible());
        QCOMPARE(screen->beeps, 1);
        QCOMPARE(bench->text(u"Text2(0)"_s), u"75"_s);
    }

    void noEscapeMeetsALaunch()
    {
        for (int velocidad = 1; velocidad <= 5; ++velocidad)
            QVERIFY(Rows * (6 - velocidad) % 6 != 0);
        QVERIFY(780 + 500 * Rows > Height);
        QVERIFY(780 + 500 * (Rows - 1) <= Height);
    }

    void tooManyErrorsShowTheirBox()
    {
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            QCOMPARE(bench->text(u"Text2(1)"_s), u"Vidas : 2"_s);
            QCOMPARE(bench->text(u"Text2(0)"_s), u"10"_s);
            QVERIFY(!timer(1).isActive());
            QVERIFY(!start().isVisible());
            QVERIFY(drop(0).isVisible());
            drop(0).click(); // as an assistive tool might
            bench->tick(u"Timer1"_s);
            bench->pick(u"MnuOpcMod(0)"_s);
            QCOMPARE(timer(1).interval(), 500);
        };
        loseLife();
        QCOMPARE(boxes.titles, {u"Lluvia de números"_s});
        QCOMPARE(boxes.texts,
            {u"Has cometido demasiados errores y pierdes una vida. Deberás volver a empezar esta "
             "fase."_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        QCOMPARE(bench->text(u"Text2(0)"_s), u"100"_s);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectedText(), u"E"_s);
        QVERIFY(!drop(0).isVisible());
        QCOMPARE(screen->focusWidget()->objectName(), u"CbEmpezar"_s);
        compare();
    }

    void anEscapeMayCostALife()
    {
        bench->pick(u"MnuOpcMod(2)"_s);
        model->rain.chooseDifficulty(games::Difficulty::Dificil);
        run();
        launch(7, 5, 3);
        for (int steps = 1; steps < Rows; ++steps)
            step();
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog& box) {
            QCOMPARE(screen->beeps, 1);
            QTest::keyClick(box.windowHandle(), Qt::Key_Return); // meant for a number
            QVERIFY(box.isVisible());
            bench->clock.passingWithEachLook = 1s;
        };
        bench->clock.passingWithEachLook = 0ms;
        step();
        QCOMPARE(boxes.texts,
            {u"Has dejado escapar demasiados números y pierdes una vida. Deberás volver a "
             u"empezar "
             "esta fase."_s});
        QVERIFY(!drop(0).isVisible());
        QVERIFY(start().isVisible());
        QCOMPARE(screen->focusWidget()->objectName(), u"CbEmpezar"_s);
        compare();
    }

    void theLastLifeAsksAndYesPlaysAgain()
    {
        BoxAnswerer boxes{u"Aceptar"_s, u"Aceptar"_s, u"Sí"_s};
        for (int life = 0; life < 3; ++life)
            loseLife();
        QCOMPARE(boxes.titles.last(), u"GAME OVER"_s);
        QCOMPARE(boxes.texts.last(),
            u"En esta partida has conseguido 0 puntos. \n¿Deseas volver a jugar?"_s);
        QCOMPARE(boxes.icons.last(), QMessageBox::NoIcon);
        QCOMPARE(boxes.buttons, (QStringList{u"Sí"_s, u"No"_s}));
        QCOMPARE(bench->text(u"Text2(0)"_s), u"100"_s);
        QCOMPARE(bench->text(u"Text2(1)"_s), u"Vidas : 3"_s);
        QCOMPARE(screen->focusWidget()->objectName(), u"CbEmpezar"_s);
        compare();
    }

    void noClosesTheScreen()
    {
        BoxAnswerer boxes{u"Aceptar"_s, u"Aceptar"_s, u"No"_s};
        for (int life = 0; life < 3; ++life)
            loseLife(life < 2);
        QCOMPARE(bench->screens.loaded(u"Form5"_s), nullptr);
        QTRY_VERIFY(guard.isNull());
    }

    void closingBehindABoxIsSafe_data()
    {
        QTest::addColumn<int>("lives");
        QTest::newRow("life lost") << 1;
        QTest::newRow("game over") << 3;
    }

    void closingBehindABoxIsSafe()
    {
        QFETCH(int, lives);
        std::initializer_list<BoxAnswerer::Answer> once{u"Aceptar"_s};
        std::initializer_list<BoxAnswerer::Answer> thrice{u"Aceptar"_s, u"Aceptar"_s, u"Sí"_s};
        BoxAnswerer boxes(lives == 1 ? once : thrice);
        boxes.whileOpen = [&](QDialog&) {
            if (boxes.titles.size() == lives)
                screen->close();
        };
        for (int life = 1; life <= lives; ++life)
            loseLife(life < lives);
        QCOMPARE(bench->screens.loaded(u"Form5"_s), nullptr);
        QTRY_VERIFY(guard.isNull());
    }

    void aPassedPhaseShowsItsBox()
    {
        run();
        for (int hit = 1; hit <= 14; ++hit)
            click(launch(5, 1, 7));
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            QCOMPARE(screen->windowTitle(), u"Lluvia de números - Fase 1"_s);
            QVERIFY(!timer(1).isActive());
        };
        click(launch(5, 3, 7));
        QCOMPARE(boxes.titles, {u"FASE SUPERADA"_s});
        QCOMPARE(boxes.texts,
            {u"Ha superado la fase 1.\nEn esta fase ha conseguido 270 puntos y en total lleva "
             u"270 "
             "puntos acumulados."_s});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(screen->windowTitle(), u"Lluvia de números - Fase 2"_s);
        QCOMPARE(bench->text(u"Text2(1)"_s), u"Vidas: 3"_s);
        QCOMPARE(bench->text(u"Text2(0)"_s), u"100 puntos"_s);
        QCOMPARE(bench->control<QLineEdit>(u"Text1"_s).selectedText(),
            u"Elimina todos los números pares"_s);
        QCOMPARE(screen->focusWidget()->objectName(), u"CbEmpezar"_s);
        compare();
    }

    void timer2StartsTheClockAndStops()
    {
        bench->control<QTimer>(u"Timer2"_s).start();
        bench->tick(u"Timer2"_s);
        QVERIFY(timer(1).isActive());
        QVERIFY(!timer(2).isActive());
        QVERIFY(start().isVisible());
    }

    void exitUnloadsAndReopeningStartsAfresh()
    {
        run();
        click(launch(5, 3, 7));
        bench->pick(u"MnuOpcSal"_s);
        QCOMPARE(bench->screens.loaded(u"Form5"_s), nullptr);
        open();
        QCOMPARE(bench->text(u"Text2(0)"_s), u"100 puntos"_s);
        compare();
    }

    void escapeKeyDoesNotClose()
    {
        run();
        launch(5, 3, 7);
        QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        QVERIFY(screen->isVisible());
        compare();
    }

    void placesAndDigitsFollowTheWindow_data()
    {
        QTest::addColumn<double>("factor");
        for (const double factor : {0.8, 1.0, 1.25, 2.0, 3.0, 4.0})
            QTest::addRow("%g", factor) << factor;
    }

    void placesAndDigitsFollowTheWindow()
    {
        QFETCH(double, factor);
        run();
        launch(13, 1, 17);
        screen->resize((QSizeF(screen->size()) * factor / screen->factor()).toSize());
        QVERIFY(std::abs(screen->factor() - factor) < 0.01);
        QCOMPARE(drop(0).pos(), at(6500, 780));
        for (const auto& name : {u"Text1"_s, u"Text2(0)"_s, u"Text2(1)"_s}) {
            const auto& box = bench->control<QLineEdit>(name);
            QVERIFY(box.fontMetrics().horizontalAdvance(box.text()) < box.width());
            QVERIFY(box.fontMetrics().height() <= box.height());
        }
        for (const auto& number : {u"8"_s, u"88"_s, u"888"_s, u"8888"_s}) {
            QFont digits = drop(0).font();
            digits.setPixelSize(int(games::RainDrop::digitPixels(number) * screen->factor()));
            QVERIFY(QFontMetrics(digits).horizontalAdvance(number) < 0.9 * drop(0).width());
        }
    }

    void numbersFlowDownAndStayHittable()
    {
        QApplication::setStyle(new ui::Style);
        AnimationClock clock;
        run();
        launch(7, 5, 3);
        tick();
        int last = drop(0).y();
        QVERIFY(last < at(0, 1280).y());
        for (const int frame : {120, 250, 160}) {
            clock.pass(frame);
            QVERIFY(drop(0).y() > last);
            last = drop(0).y();
        }
        QVERIFY(last < at(0, 1280).y());
        tick(); // before the glide has ended
        QCOMPARE(drop(0).y(), last);
        clock.pass(Trip / 2);
        QVERIFY(drop(0).y() > last);
        click(0);
        QCOMPARE(bench->text(u"Text2(0)"_s), u"150"_s);
    }

    void aStepTakesNearlyAllTheTimeToTheNext_data()
    {
        QTest::addColumn<int>("velocidad");
        for (int velocidad = 1; velocidad <= 5; ++velocidad)
            QTest::addRow("class %d", velocidad) << velocidad;
    }
    void aStepTakesNearlyAllTheTimeToTheNext()
    {
        QFETCH(int, velocidad);
        QApplication::setStyle(new ui::Style);
        AnimationClock clock;
        run();
        launch(7, velocidad, 3);
        const int ticks = 6 - velocidad;
        for (int waited = 0; waited < ticks; ++waited)
            tick();
        for (int waited = 1; waited < ticks; ++waited) {
            clock.pass(Tick);
            QVERIFY(drop(0).y() > at(0, 780).y() && drop(0).y() < at(0, 1280).y());
            if (model->ticks % 6 != 5)
                tick(); // shows the same place again, which must not hold the number up
        }
        clock.pass(Tick * 9 * ticks / 10 - Tick * (ticks - 1));
        QVERIFY(drop(0).y() < at(0, 1280).y());
        clock.pass(Tick * ticks / 20 + 1);
        QCOMPARE(drop(0).pos(), at(3500, 1280));
    }

    // --- what a pupil sees beside the numbers

    void starsCountTheHitsAndHeartsTheLives()
    {
        auto& stars = bench->control<games::TokenRow>(u"rainHits"_s);
        const auto& hearts = bench->control<games::TokenRow>(u"rainLives"_s);
        QCOMPARE(stars.lit(), 0);
        QCOMPARE(hearts.lit(), 3);
        const QImage none = stars.grab().toImage();
        run();
        click(launch(5, 3, 7));
        QCOMPARE(stars.lit(), 1);
        QVERIFY(stars.grab().toImage() != none);
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) { QCOMPARE(hearts.lit(), 2); };
        loseLife();
        QCOMPARE(hearts.lit(), 2);
        QCOMPARE(stars.lit(), 1); // hits outlast games
    }

    void everyNumberStaysInSightHoweverItDrifts()
    {
        run();
        launch(19, 5, 3);
        for (int row = 1; row < Rows; ++row) {
            for (int slot = 0; slot < RainFall::Slots; ++slot) {
                if (core::at(model->rain.fall().Libre(), slot) || model->gota(slot).Espera != 1
                    || model->gota(slot).Deriva > 0)
                    continue;
                if (slot == 0)
                    model->random.append({0.0f, 0.9f}); // always to the right
                else
                    model->random.append({RainGame::Never});
            }
            if (model->ticks % 6 == 5)
                model->scriptLaunch(1, 1, 2);
            tickBoth();
            QVERIFY(drop(0).isVisible());
            QVERIFY(drop(0).geometry().right() < at(screen->designWidth(), 0).x());
        }
        QCOMPARE(model->gota(0).Columna.value(), 29);
    }

    void theHaloIsForWhoPlaysByKeyboard()
    {
        const auto* halo = screen->findChild<games::RainHalo*>();
        run(); // by mouse
        launch(5, 1, 7);
        QCOMPARE(bench->focusName(), u"CbNave(0)"_s);
        QVERIFY(!halo->isVisible());
        QTest::keyClick(&drop(0), Qt::Key_Shift);
        QVERIFY(halo->isVisible());
        QVERIFY(halo->geometry().contains(drop(0).geometry()));
        launch(8, 1, 9);
        QVERIFY(halo->geometry().contains(drop(1).geometry()));
        click(0); // by mouse again
        QVERIFY(!halo->isVisible());
        launch(9, 1, 9);
        QVERIFY(!halo->isVisible());
    }

    void theHaloGoesWithItsNumber()
    {
        const auto* halo = screen->findChild<games::RainHalo*>();
        run();
        launch(5, 5, 7);
        QTest::keyClick(&drop(0), Qt::Key_Shift);
        step();
        QVERIFY(halo->geometry().contains(drop(0).geometry()));
        QTest::keyClick(&drop(0), Qt::Key_Space);
        model->rain.click(0);
        QVERIFY(!halo->isVisible());
    }

    void aPressBesideANumberCountsForTheNearest_data()
    {
        QTest::addColumn<int>("beside"); // pixels at factor 1, to the right of the left number
        QTest::addColumn<int>("hit"); // the slot, or none
        QTest::newRow("touching") << 1 << 0;
        QTest::newRow("as far as it goes") << 9 << 0;
        QTest::newRow("too far from both") << 20 << -1;
        QTest::newRow("nearer to the other") << 49 << 1;
    }
    void aPressBesideANumberCountsForTheNearest()
    {
        QFETCH(int, beside);
        QFETCH(int, hit);
        run();
        launch(5, 1, 1);
        launch(8, 1, 3); // 100 pixels to the right: 56 from edge to edge
        const QRect left = drop(0).geometry();
        const int x = left.right() + qRound(beside * screen->factor());
        QTest::mouseClick(
            drop(0).parentWidget(), Qt::LeftButton, {}, {x, left.top() + 5}); // both are there
        if (hit >= 0)
            model->rain.click(hit);
        compare();
        QVERIFY(hit < 0 || !drop(hit).isVisible());
    }

    void theSecondOfTwoHurriedPressesBesideANumberCountsToo()
    {
        run();
        launch(5, 1, 1);
        const QRect number = drop(0).geometry();
        QTest::mouseDClick(
            drop(0).parentWidget(), Qt::LeftButton, {}, {number.right() + 2, number.top() + 5});
        model->rain.click(0);
        compare();
        QVERIFY(!drop(0).isVisible());
    }

    void everyFateOfANumberSplashesItsOwnWay()
    {
        QApplication::setStyle(new ui::Style);
        AnimationClock clock;
        run();
        launch(5, 3, 7);
        click(0);
        QCOMPARE(splash().kind(), games::RainSplash::Kind::Hit);
        QCOMPARE(splash().text(), u"+30"_s);
        clock.pass(1000);
        QTRY_VERIFY(!screen->findChild<games::RainSplash*>());
        launch(5, 3, 8);
        click(0);
        QCOMPARE(splash().kind(), games::RainSplash::Kind::Miss);
        QCOMPARE(splash().text(), u"\u22123"_s);
        clock.pass(1000);
        QTRY_VERIFY(!screen->findChild<games::RainSplash*>());
        launch(5, 5, 7);
        for (int steps = 0; steps < Rows; ++steps)
            step();
        QCOMPARE(splash().kind(), games::RainSplash::Kind::Ground);
        QCOMPARE(splash().text(), u"\u221225"_s);
        QVERIFY(splash().geometry().bottom() > at(0, Height).y());
    }

    void nothingSplashesInAStillStyle()
    {
        run();
        launch(5, 3, 7);
        click(0);
        QVERIFY(!screen->findChild<games::RainSplash*>());
    }

    void aRandomGameShowsWhatTheModelSays_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 5; ++seed)
            QTest::addRow("%u", seed) << seed;
    }

    void aRandomGameShowsWhatTheModelSays()
    {
        QFETCH(unsigned, seed);
        std::mt19937 engine(seed);
        const int difficulty = static_cast<int>(seed % 3);
        bench->pick(u"MnuOpcMod(%1)"_s.arg(difficulty));
        model->rain.chooseDifficulty(static_cast<games::Difficulty>(difficulty));
        BoxAnswerer boxes;
        boxes.whileOpen = [](QDialog& box) { box.findChild<QPushButton*>()->click(); };
        for (int ticks = 0; ticks < 400; ++ticks) {
            if (model->rain.waiting())
                run();
            ScriptedRandom draws;
            for (int draw = 0; draw < 64; ++draw)
                draws.append({static_cast<float>(engine() % 1000) / 1000});
            model->random = draws;
            tickBoth();
            compare();
            const int slot = static_cast<int>(engine() % RainFall::Slots);
            if (drop(slot).isVisible() && engine() % 3 == 0)
                click(slot);
            compare();
        }
    }

private:
    void open()
    {
        screen = &bench->open<QuietForm5>();
        guard = screen;
        model = std::make_unique<RainGame>(RainGrid::lastRow(Height));
    }

    // Both, the screen and the model beside it.

    void run()
    {
        bench->click(u"CbEmpezar"_s);
        QVERIFY(timer(1).isActive());
        timer(1).stop(); // the test ticks by itself
        model->rain.start();
    }

    void tickBoth()
    {
        bench->random = model->random;
        bench->tick(u"Timer1"_s);
        ++model->ticks;
        finish(model->rain.tick());
    }

    void tick()
    {
        model->calm();
        tickBoth();
    }

    /// A tick; when it launches, a 2 of class 1 in column 1.
    void step()
    {
        if (model->ticks % 6 == 5)
            launch(1, 1, 2);
        else
            tick();
    }

    int launch(int columna, int velocidad, int valor)
    {
        while (model->ticks % 6 != 5)
            tick();
        const int slot = model->firstFree();
        model->calm();
        model->scriptLaunch(columna, velocidad, valor);
        tickBoth();
        return slot;
    }

    void click(int slot)
    {
        QTest::mouseClick(&drop(slot), Qt::LeftButton);
        finish(model->rain.click(slot));
    }

    void finish(games::RainStep step)
    {
        while (step.box)
            step = model->rain.answer();
    }

    /// On Normal: three wrong numbers.
    void loseLife(bool keepsOn = true)
    {
        if (timer(1).interval() != 500) {
            bench->pick(u"MnuOpcMod(1)"_s);
            model->rain.chooseDifficulty(games::Difficulty::Normal);
        }
        run();
        for (const int velocidad : {5, 4, 5}) {
            const int slot = launch(5, velocidad, 2);
            QTest::mouseClick(&drop(slot), Qt::LeftButton);
            if (keepsOn || velocidad == 4 || model->state().Puntos == 100)
                finish(model->rain.click(slot));
        }
    }

    /// The screen shows exactly the model's state.
    void compare() const
    {
        const auto& rain = model->rain;
        QCOMPARE(screen->windowTitle(), rain.caption());
        QCOMPARE(bench->text(u"Text1"_s), rain.instruction());
        QCOMPARE(bench->text(u"Text2(0)"_s), rain.pointsText());
        QCOMPARE(bench->text(u"Text2(1)"_s), rain.livesText());
        QCOMPARE(start().isVisible(), rain.waiting());
        QCOMPARE(start().isEnabled(), rain.waiting());
        for (int slot = 0; slot < RainFall::Slots; ++slot) {
            const bool taken = !core::at(model->rain.fall().Libre(), slot);
            QCOMPARE(drop(slot).isVisible(), taken);
            QCOMPARE(drop(slot).isEnabled(), taken);
            if (!taken)
                continue;
            const auto& gota = model->gota(slot);
            QCOMPARE(drop(slot).text(), QString::number(gota.Valor.value()));
            QCOMPARE(drop(slot).pos(), at(RainGrid::left(gota), RainGrid::top(gota)));
        }
    }

    QPoint at(double left, double top) const
    {
        return ui::toPixels({left, top, 0, 0}, screen->factor()).topLeft();
    }
    QPushButton& drop(int slot) const
    {
        return bench->control<QPushButton>(u"CbNave(%1)"_s.arg(slot));
    }
    games::RainSplash& splash() const
    {
        auto* found = screen->findChild<games::RainSplash*>();
        if (found == nullptr)
            qFatal("no splash");
        return *found;
    }
    QPushButton& start() const { return bench->control<QPushButton>(u"CbEmpezar"_s); }
    QTimer& timer(int number) const { return bench->control<QTimer>(u"Timer%1"_s.arg(number)); }

    std::unique_ptr<ScreenBench> bench;
    std::unique_ptr<RainGame> model;
    QuietForm5* screen = nullptr;
    QPointer<ui::Screen> guard;
};

PIZARRIN_SCREEN_TEST_MAIN(NumberRainScreenTest)
#include "number_rain_screen_test.moc"
