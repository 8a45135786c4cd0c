#include "core/defect.h"
#include "core/errors.h"
#include "games/rain_game.h"

#include <QtTest>

using games::Difficulty;
using games::RainBox;
using games::RainFall;
using games::RainState;
using games::RainStep;
using namespace Qt::StringLiterals;

namespace {

/// One row: a number launched into it escapes with its first step.
constexpr int OneRow = 0;

/// A number escapes at its row 18.
constexpr int TwoAtOnce = 17;

const auto Clumsy = u"Has cometido demasiados errores y pierdes una vida. "
                    "Deberás volver a empezar esta fase."_s;
const auto Slow = u"Has dejado escapar demasiados números y pierdes una vida. "
                  "Deberás volver a empezar esta fase."_s;

/// Espera of a number of class 1 after one more tick.
int afterATick(const games::Gota& gota)
{
    return gota.Espera > 1 ? gota.Espera.value() - 1 : 5;
}

} // namespace

/// Clicks, escapes, points, lives, phases passed, and the boxes that interrupt the game.
class NumberRainScoreTest : public QObject {
    Q_OBJECT

private slots:
    void aRightClickScoresTenTimesTheClass_data()
    {
        QTest::addColumn<int>("velocidad");
        QTest::addColumn<QString>("points");
        QTest::newRow("1") << 1 << u"110"_s;
        QTest::newRow("3") << 3 << u"130"_s;
        QTest::newRow("5") << 5 << u"150"_s;
    }

    void aRightClickScoresTenTimesTheClass()
    {
        QFETCH(int, velocidad);
        RainGame game;
        game.rain.start();
        const auto step = game.shoot(velocidad, 7);
        QTEST(game.rain.pointsText(), "points");
        QCOMPARE(game.state().Puntos.value(), 100 + 10 * velocidad);
        QCOMPARE(game.state().Aciertos.value(), 1);
        QVERIFY(game.rain.fall().Libre()[0]);
        QVERIFY(step.cleared);
        QVERIFY(!step.box);
        QCOMPARE(step.beeps, 0);
        QVERIFY(game.rain.running());
    }

    void everyFateOfANumberIsTold()
    {
        using Kind = games::RainEvent::Kind;
        RainGame game(OneRow);
        game.rain.start();
        const auto told = [](const RainStep& step, Kind kind, int valor, int points) {
            return step.events.size() == 1 && step.events.front().kind == kind
                && step.events.front().slot == 0 && step.events.front().gota.Valor == valor
                && step.events.front().points == points;
        };
        QVERIFY(told(game.shoot(3, 7), Kind::Hit, 7, 30));
        QVERIFY(told(game.shoot(2, 8), Kind::Miss, 8, -2));
        game.launch(15, 5, 7);
        QVERIFY(told(game.calmTick(), Kind::Escape, 7, -25));
        game.launch(15, 5, 8);
        QVERIFY(told(game.calmTick(), Kind::Escape, 8, 0)); // a wrong one costs nothing
        QVERIFY(game.calmTick().events.empty());
    }

    void aWrongClickCostsByDifficulty_data()
    {
        QTest::addColumn<Difficulty>("difficulty");
        QTest::addColumn<int>("velocidad");
        QTest::addColumn<QString>("points");
        QTest::newRow("easy") << Difficulty::Facil << 3 << u"97"_s;
        QTest::newRow("normal") << Difficulty::Normal << 3 << u"70"_s;
        QTest::newRow("hard") << Difficulty::Dificil << 3 << u"70"_s;
        QTest::newRow("class 5") << Difficulty::Normal << 5 << u"50"_s;
    }

    void aWrongClickCostsByDifficulty()
    {
        QFETCH(Difficulty, difficulty);
        QFETCH(int, velocidad);
        RainGame game;
        game.rain.chooseDifficulty(difficulty);
        const auto step = game.shoot(velocidad, 8);
        QTEST(game.rain.pointsText(), "points");
        QCOMPARE(game.state().Aciertos.value(), 0);
        QVERIFY(game.rain.fall().Libre()[0]);
        QVERIFY(step.cleared);
        QCOMPARE(step.beeps, 0);
    }

    void anEscapedTargetBeepsAndCosts_data()
    {
        QTest::addColumn<Difficulty>("difficulty");
        QTest::addColumn<int>("points");
        QTest::newRow("easy") << Difficulty::Facil << 85;
        QTest::newRow("normal") << Difficulty::Normal << 85;
    }

    void anEscapedTargetBeepsAndCosts()
    {
        QFETCH(Difficulty, difficulty);
        QFETCH(int, points);
        RainGame game(OneRow);
        game.rain.chooseDifficulty(difficulty);
        game.launch(8, 3, 5);
        game.calmTicks(2);
        const auto step = game.calmTick();
        QCOMPARE(step.beeps, 1);
        QVERIFY(!step.box);
        QVERIFY(asksNoFocus(step));
        QCOMPARE(game.state().Puntos.value(), points);
        QCOMPARE(game.rain.pointsText(), QString::number(points));
        QVERIFY(game.rain.fall().Libre()[0]);
        QCOMPARE(game.state().Vidas.value(), 3);
    }

    void anEscapedClass3TargetCosts120OnHard()
    {
        RainGame game(OneRow);
        game.rain.chooseDifficulty(Difficulty::Dificil);
        game.shoot(5, 5); // 150 points
        game.launch(8, 3, 5);
        game.calmTicks(3);
        QCOMPARE(game.state().Puntos.value(), 30);
        QCOMPARE(game.rain.pointsText(), u"30"_s);
    }

    void anEscapedOtherCostsNothingButShowsThePoints()
    {
        RainGame game(OneRow);
        game.launch(8, 5, 4);
        QCOMPARE(game.rain.pointsText(), u"100 puntos"_s);
        const auto step = game.calmTick();
        QCOMPARE(step.beeps, 0);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.rain.pointsText(), u"100"_s);
        QVERIFY(game.rain.fall().Libre()[0]);
    }

    void exactlyNoPointsByAWrongClickKeepsTheNumber()
    {
        RainGame game;
        game.rain.chooseDifficulty(Difficulty::Normal);
        game.rain.start();
        game.shoot(5, 2);
        const int slot = game.launch(8, 5, 2);
        const auto step = game.rain.click(slot);
        QCOMPARE(game.state().Puntos.value(), 0);
        QCOMPARE(game.rain.pointsText(), u"0"_s);
        QCOMPARE(game.state().Vidas.value(), 3);
        QVERIFY(!core::at(game.rain.fall().Libre(), slot));
        QVERIFY(asksNoFocus(step));
        QVERIFY(!step.box);
        QVERIFY(game.rain.running());
        game.calmTick();
        QCOMPARE(game.gota(slot).Fila.value(), 1); // it keeps falling
        const auto again = game.rain.click(slot);
        QVERIFY(again.box && again.box->text == Clumsy);
    }

    void exactlyNoPointsByAnEscapeCostsNoLife()
    {
        RainGame game(OneRow);
        game.shoot(5, 3);
        for (const int velocidad : {5, 5, 5, 5, 5, 5}) { // 25 each
            const int slot = game.launch(8, velocidad, 5);
            game.calmTick();
            QVERIFY(core::at(game.rain.fall().Libre(), slot));
        }
        QCOMPARE(game.state().Puntos.value(), 0);
        QCOMPARE(game.rain.pointsText(), u"0"_s);
        QCOMPARE(game.state().Vidas.value(), 3);
    }

    void tooManyErrorsCostALife()
    {
        RainGame game;
        game.rain.chooseDifficulty(Difficulty::Normal);
        game.rain.start();
        game.shoot(5, 2);
        game.shoot(4, 2); // 10 left
        const int other = game.launch(9, 1, 1);
        const auto step = game.shoot(2, 4);

        QVERIFY(step.box);
        QCOMPARE(step.box->kind, RainBox::Kind::LifeLost);
        QCOMPARE(step.box->title, u"Lluvia de números"_s);
        QCOMPARE(step.box->text, Clumsy);
        QCOMPARE(step.beeps, 0);
        QVERIFY(asksNoFocus(step));
        // behind the box
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.state().Vidas.value(), 2);
        QCOMPARE(game.rain.livesText(), u"Vidas : 2"_s);
        QCOMPARE(game.rain.pointsText(), u"10"_s);
        QCOMPARE(game.taken(), 2);
        QCOMPARE(game.state().Lanzados.value(), 4);
        QVERIFY(!game.rain.running());
        QVERIFY(!game.rain.waiting());

        const auto after = game.rain.answer();
        QVERIFY(!after.box);
        QVERIFY(!after.phasePrepared);
        QVERIFY(after.waits && !after.launched);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.rain.pointsText(), u"100"_s);
        QCOMPARE(game.taken(), 0);
        QVERIFY(core::at(game.rain.fall().Libre(), other));
        QCOMPARE(game.state().Lanzados.value(), 0);
        QVERIFY(game.rain.waiting());
        QVERIFY(!game.rain.running());
    }

    void aLostLifeKeepsPhaseTotalAndHits()
    {
        RainGame game;
        game.rain.chooseDifficulty(Difficulty::Normal);
        game.reachPhase(3);
        const int total = game.state().PuntosTotales.value();
        game.shoot(5, 1);
        game.shoot(4, 1);
        QVERIFY(game.shoot(5, 1).box);
        game.rain.answer();
        QCOMPARE(game.rain.phase().Fase().value(), 3);
        QCOMPARE(game.rain.caption(), u"Lluvia de números - Fase 3"_s);
        QCOMPARE(game.state().PuntosTotales.value(), total);
        QCOMPARE(game.rain.phase().Objetivos().front().value(), 3);
        QCOMPARE(game.state().Aciertos.value(), 16);
        QCOMPARE(game.rain.livesText(), u"Vidas : 2"_s);
    }

    void aLifeLostInATickInterruptsItThere()
    {
        RainGame game(TwoAtOnce);
        armTwoEscapes(game);
        const auto before = game.rain.fall().Gotas();
        const auto step = tickThatLaunches(game, 7);
        QVERIFY(step.box);
        QCOMPARE(step.box->kind, RainBox::Kind::LifeLost);
        QCOMPARE(step.box->title, u"Lluvia de números"_s);
        QCOMPARE(step.box->text, Slow);
        QCOMPARE(step.beeps, 1);
        QVERIFY(asksNoFocus(step));
        // behind the box: slots to 10 have moved, the others have not, nothing is reset
        QCOMPARE(game.gota(9).Espera.value(), afterATick(before[9]));
        QVERIFY(game.gota(10).Fila > TwoAtOnce);
        QVERIFY(!game.rain.fall().Libre()[10]);
        QCOMPARE(game.gota(11).Espera.value(), before[11].Espera.value());
        QCOMPARE(game.gota(13).Fila.value(), before[13].Fila.value());
        QVERIFY(game.rain.fall().Libre()[4]); // escaped just before, at no cost
        QCOMPARE(game.taken(), 14);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.state().Vidas.value(), 2);
        QCOMPARE(game.rain.livesText(), u"Vidas : 2"_s);
        QVERIFY(game.state().Lanzados > 0);
        QVERIFY(!game.rain.running());
        QVERIFY(!game.rain.waiting());
    }

    void theInterruptedTickGoesOnWithTheNextSlot()
    {
        RainGame game(TwoAtOnce);
        armTwoEscapes(game);
        const auto before = game.rain.fall().Gotas();
        tickThatLaunches(game, 7);
        const auto step = game.rain.answer();
        QVERIFY(step.box); // the second escape has a box of its own
        QCOMPARE(step.box->text, Slow);
        QCOMPARE(step.beeps, 1);
        QCOMPARE(game.state().Vidas.value(), 1);
        QCOMPARE(game.rain.livesText(), u"Vidas : 1"_s);
        QCOMPARE(game.rain.pointsText(), u"100"_s);
        QCOMPARE(game.gota(11).Espera.value(), afterATick(before[11]));
        QCOMPARE(game.gota(12).Espera.value(), afterATick(before[12]));
        QCOMPARE(game.gota(14).Espera.value(), before[14].Espera.value());
        QVERIFY(game.rain.fall().Libre()[10]); // freed after its box
        QVERIFY(!game.rain.fall().Libre()[13]);
        QCOMPARE(game.taken(), 4); // 11 to 14: the first ten are reset
        QCOMPARE(game.random.left(), std::size_t(5)); // slot 14 is due, then the launch
    }

    void theInterruptedTickStillLaunches()
    {
        RainGame game(TwoAtOnce);
        armTwoEscapes(game);
        const auto before = game.rain.fall().Gotas();
        tickThatLaunches(game, 7);
        game.rain.answer();
        const auto step = game.rain.answer();
        QVERIFY(!step.box);
        QCOMPARE(game.gota(14).Espera.value(), afterATick(before[14]));
        QVERIFY(game.rain.fall().Libre()[13]);
        QVERIFY(!game.rain.fall().Libre()[0]); // launched while waiting
        QCOMPARE(game.gota(0).Valor.value(), 7);
        QCOMPARE(game.taken(), 4); // 0, 11, 12 and 14
        QCOMPARE(game.state().Lanzados.value(), 1);
        QVERIFY(step.launched); // the last to ask for it
        QVERIFY(game.rain.waiting());
        QVERIFY(!game.rain.running());
        QCOMPARE(game.random.left(), std::size_t(0));
    }

    void yesInATickGoesOnWithTheNextSlot()
    {
        RainGame game(TwoAtOnce);
        game.rain.chooseDifficulty(Difficulty::Dificil);
        loseLifeOnHard(game);
        armTwoEscapes(game);
        tickThatLaunches(game, 7);
        const auto over = game.rain.answer();
        QVERIFY(over.box);
        QCOMPARE(over.box->kind, RainBox::Kind::GameOver);
        QCOMPARE(game.rain.livesText(), u"Vidas : 1"_s);
        const auto step = game.rain.answer(true);
        QVERIFY(!step.box);
        QVERIFY(step.phasePrepared);
        QCOMPARE(game.state().Vidas.value(), 3);
        QCOMPARE(game.gota(0).Valor.value(), 7);
        QCOMPARE(game.taken(), 4);
        QVERIFY(game.rain.waiting());
    }

    void noInATickEndsTheTickThere()
    {
        RainGame game(TwoAtOnce);
        game.rain.chooseDifficulty(Difficulty::Dificil);
        loseLifeOnHard(game);
        loseLifeOnHard(game);
        armTwoEscapes(game);
        const auto before = game.rain.fall().Gotas();
        const auto over = tickThatLaunches(game, 7);
        QVERIFY(over.box);
        QCOMPARE(over.box->kind, RainBox::Kind::GameOver);
        QVERIFY(!game.rain.answer(false).box);
        QVERIFY(game.rain.over());
        QCOMPARE(game.gota(11).Espera.value(), before[11].Espera.value());
        QCOMPARE(game.taken(), 14);
        QVERIFY(game.random.left() > 5); // neither moved on nor launched
    }

    void theLastLifeAsksToPlayAgain()
    {
        RainGame game;
        playToTheLastLife(game);
        const int total = game.state().PuntosTotales.value();
        QVERIFY(total > 0);
        const auto step = loseLife(game);
        QVERIFY(step.box);
        QCOMPARE(step.box->kind, RainBox::Kind::GameOver);
        QCOMPARE(step.box->title, u"GAME OVER"_s);
        QCOMPARE(step.box->text,
            u"En esta partida has conseguido "_s + QString::number(total)
                + u" puntos. \n¿Deseas volver a jugar?"_s);
        // behind the box
        QCOMPARE(game.state().Vidas.value(), 0);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.rain.livesText(), u"Vidas : 1"_s);
        QCOMPARE(game.rain.pointsText(), u"10"_s);
        QCOMPARE(game.rain.phase().Fase().value(), 2);
        QVERIFY(!game.rain.running());
        QVERIFY(!game.rain.waiting());
        QVERIFY(!game.rain.over());
    }

    void yesStartsANewGame()
    {
        RainGame game;
        playToTheLastLife(game);
        const auto kept = game.state().Aciertos;
        QVERIFY(loseLife(game).box);
        const auto step = game.rain.answer(true);
        QVERIFY(!step.box);
        QVERIFY(step.phasePrepared);
        QVERIFY(step.waits && !step.launched);
        QCOMPARE(game.rain.phase().Fase().value(), 1);
        QCOMPARE(game.rain.caption(), u"Lluvia de números - Fase 1"_s);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.state().PuntosTotales.value(), 0);
        QCOMPARE(game.state().Vidas.value(), 3);
        QCOMPARE(game.state().Lanzados.value(), 0);
        QCOMPARE(game.state().Aciertos.value(), kept.value());
        QCOMPARE(game.rain.livesText(), u"Vidas : 3"_s);
        QCOMPARE(game.rain.pointsText(), u"100"_s); // a bare number here
        QCOMPARE(game.taken(), 0);
        QVERIFY(game.rain.waiting());
        QVERIFY(!game.rain.running());
        QCOMPARE(game.rain.difficulty(), Difficulty::Normal);
    }

    void noEndsIt()
    {
        RainGame game;
        playToTheLastLife(game);
        QVERIFY(loseLife(game).box);
        const auto step = game.rain.answer(false);
        QVERIFY(!step.box);
        QVERIFY(asksNoFocus(step));
        QVERIFY(game.rain.over());
        QVERIFY(!game.rain.running());
        const auto lanzados = game.state().Lanzados;
        game.rain.start();
        for (int tick = 0; tick < 12; ++tick)
            game.rain.tick(); // draws nothing
        game.rain.enableClock();
        game.rain.chooseDifficulty(Difficulty::Facil);
        QVERIFY(!game.rain.running());
        QVERIFY(!game.rain.waiting());
        QCOMPARE(game.state().Lanzados.value(), lanzados.value());
        QCOMPARE(game.rain.difficulty(), Difficulty::Normal);
    }

    void theFifteenthHitPassesPhase1()
    {
        RainGame game;
        game.rain.start();
        for (int hit = 1; hit <= 14; ++hit)
            QVERIFY(!game.shoot(1, 7).box);
        QCOMPARE(game.rain.pointsText(), u"240"_s);
        const int leftover = game.launch(4, 1, 6);
        const int slot = game.launch(5, 2, 7);
        const auto step = game.rain.click(slot);

        QVERIFY(step.box);
        QCOMPARE(step.box->kind, RainBox::Kind::PhasePassed);
        QCOMPARE(step.box->title, u"FASE SUPERADA"_s);
        QCOMPARE(step.box->text,
            u"Ha superado la fase 1.\nEn esta fase ha conseguido 260 puntos y en total lleva "
            "260 puntos acumulados."_s);
        QVERIFY(asksNoFocus(step));
        // behind the box
        QCOMPARE(game.state().PuntosTotales.value(), 260);
        QCOMPARE(game.state().Puntos.value(), 260);
        QCOMPARE(game.rain.pointsText(), u"240"_s);
        QVERIFY(!core::at(game.rain.fall().Libre(), slot));
        QVERIFY(!core::at(game.rain.fall().Libre(), leftover));
        QCOMPARE(game.rain.phase().Fase().value(), 1);
        QVERIFY(!game.rain.running());
        QVERIFY(!game.rain.waiting());

        const auto after = game.rain.answer();
        QVERIFY(after.phasePrepared);
        QVERIFY(after.waits && !after.launched);
        QCOMPARE(game.rain.phase().Fase().value(), 2);
        QCOMPARE(game.rain.caption(), u"Lluvia de números - Fase 2"_s);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.state().Lanzados.value(), 0);
        QCOMPARE(game.rain.pointsText(), u"100 puntos"_s);
        QCOMPARE(game.rain.livesText(), u"Vidas: 3"_s); // no blank before this colon
        QCOMPARE(game.taken(), 0);
        QVERIFY(game.rain.waiting());
    }

    void fromPhase2OneHitPasses()
    {
        RainGame game;
        game.reachPhase(2);
        const int total = game.state().PuntosTotales.value();
        game.rain.start();
        QVERIFY(!game.shoot(5, 3).box); // 95 points
        const auto step = game.shoot(5, 4);
        QVERIFY(step.box);
        QCOMPARE(step.box->text,
            u"Ha superado la fase 2.\nEn esta fase ha conseguido 145 puntos y en total lleva "_s
                + QString::number(total + 145) + u" puntos acumulados."_s);
        game.rain.answer();
        QCOMPARE(game.rain.phase().Fase().value(), 3);
        QCOMPARE(game.state().Aciertos.value(), 16);
    }

    void onlyTheFirstTenSlotsAreReset()
    {
        RainGame game;
        game.reachPhase(2);
        game.rain.start();
        fillSlots(game, 12);
        const int clicked = game.launch(5, 1, 4);
        QCOMPARE(clicked, 12);
        QVERIFY(game.rain.click(clicked).box);
        game.rain.answer();
        for (int slot = 0; slot < RainFall::Slots; ++slot)
            QCOMPARE(core::at(game.rain.fall().Libre(), slot), slot < 10 || slot > 12);
        const int row = game.gota(10).Fila.value();
        game.rain.start();
        for (int tick = 0; tick < 5; ++tick)
            stepWithoutLaunch(game);
        QCOMPARE(game.gota(10).Fila.value(), row + 1); // it goes on falling
    }

    void aLeftoverCanBeClickedWhileWaiting()
    {
        RainGame game;
        game.reachPhase(2);
        game.rain.start();
        fillSlots(game, 11);
        game.rain.chooseDifficulty(Difficulty::Normal);
        QVERIFY(game.rain.waiting());
        game.rain.click(10); // "1" is a target of phase 1 again: the 16th hit
        QCOMPARE(game.state().Aciertos.value(), 16);
    }

    void aFreeSlotCannotBeClicked()
    {
        RainGame game(OneRow);
        game.launch(3, 5, 2);
        game.calmTick(); // just escaped
        const auto text = game.rain.pointsText();
        for (const int slot : {0, 1, 19, -1, 20}) {
            const auto step = game.rain.click(slot);
            QVERIFY(asksNoFocus(step) && !step.box);
        }
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.rain.pointsText(), text);
        QCOMPARE(game.state().Aciertos.value(), 0);
    }

    void twoClicksInOneTickCountOnceANumber()
    {
        RainGame game;
        const int first = game.launch(3, 1, 1);
        const int second = game.launch(4, 1, 3);
        game.rain.click(first);
        game.rain.click(second);
        game.rain.click(first);
        QCOMPARE(game.state().Puntos.value(), 120);
        QCOMPARE(game.state().Aciertos.value(), 2);
    }

    void nothingHappensBehindAnOpenBox()
    {
        RainGame game;
        game.reachPhase(2);
        game.rain.start();
        const int other = game.launch(3, 1, 3);
        QVERIFY(game.shoot(1, 4).box);
        const auto text = game.rain.pointsText();
        const int espera = game.gota(other).Espera.value();
        for (int tick = 0; tick < 12; ++tick) {
            const auto step = game.rain.tick(); // draws nothing
            QVERIFY(!step.box && asksNoFocus(step));
        }
        QVERIFY(!game.rain.click(other).box);
        game.rain.start();
        game.rain.enableClock();
        QVERIFY(asksNoFocus(game.rain.chooseDifficulty(Difficulty::Dificil)));
        QVERIFY(!game.rain.running());
        QCOMPARE(game.rain.phase().Fase().value(), 2);
        QCOMPARE(game.rain.difficulty(), Difficulty::Facil);
        QCOMPARE(game.gota(other).Espera.value(), espera);
        QCOMPARE(game.rain.pointsText(), text);
        game.rain.answer();
        QCOMPARE(game.rain.phase().Fase().value(), 3);
    }

    void anAnswerWithoutABoxDoesNothing()
    {
        RainGame game;
        game.rain.start();
        const auto step = game.rain.answer(false);
        QVERIFY(asksNoFocus(step) && !step.phasePrepared);
        QVERIFY(game.rain.running());
        QVERIFY(!game.rain.over());
    }

    void aTotalBeyond16BitsIsAnErrorThatChangesNothing()
    {
        RainGame game;
        game.reachPhase(2);
        while (game.state().PuntosTotales <= 32767 - 150)
            if (game.shoot(5, game.rain.phase().Objetivos().front().value()).box)
                game.rain.answer();
        const auto total = game.state().PuntosTotales;
        const auto hits = game.state().Aciertos;
        const int slot = game.launch(5, 5, game.rain.phase().Objetivos().front().value());
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, game.rain.click(slot));
        QCOMPARE(game.state().PuntosTotales.value(), total.value());
        QCOMPARE(game.state().Aciertos.value(), hits.value());
        QCOMPARE(game.state().Puntos.value(), 100);
        QVERIFY(!core::at(game.rain.fall().Libre(), slot));
        QVERIFY(asksNoFocus(game.rain.answer())); // no box is open
    }

private:
    /// One tick with nothing new: a launch that is due brings an "other" which is taken away.
    static void stepWithoutLaunch(RainGame& game)
    {
        if (game.ticks % 6 != 5) {
            game.calmTick();
            return;
        }
        game.calm();
        game.scriptLaunch(5, 1, game.rain.phase().Otros().front().value());
        const int slot = game.firstFree();
        game.tick();
        game.rain.click(slot);
    }

    static void fillSlots(RainGame& game, int count, int valor = 1)
    {
        while (game.taken() < count)
            game.launch(6, 1, valor);
    }

    static RainStep loseLife(RainGame& game)
    {
        game.shoot(5, 1);
        game.shoot(4, 1);
        return game.shoot(5, 1); // 100 - 50 - 40 - 50
    }

    /// Phase 2 on Normal with one life left.
    static void playToTheLastLife(RainGame& game)
    {
        game.rain.chooseDifficulty(Difficulty::Normal);
        game.reachPhase(2);
        for (int life = 0; life < 2; ++life) {
            loseLife(game);
            game.rain.answer();
        }
        game.rain.start();
    }

    static void loseLifeOnHard(RainGame& game)
    {
        game.rain.start();
        for (int click = 0; click < 3; ++click)
            game.shoot(5, 2);
        game.rain.answer();
    }

    /// On Hard, up to the tick in which, with TwoAtOnce rows, the numbers in slots 10 and 13
    /// escape, both targets that cost a life, and another number is launched.
    static void armTwoEscapes(RainGame& game)
    {
        const auto lives = game.state().Vidas;
        if (game.rain.difficulty() != Difficulty::Dificil)
            game.rain.chooseDifficulty(Difficulty::Dificil);
        game.rain.start();
        fillSlots(game, 10, 2);
        game.launch(6, 3, 3); // slot 10: 18 rows in 54 ticks
        game.launch(6, 1, 2);
        game.launch(6, 1, 2);
        game.launch(6, 4, 3); // slot 13, 18 ticks later: 18 rows in 36 ticks
        for (int launches = 0; launches < 5; ++launches)
            game.launch(6, 1, 2); // slot 14, then 0 to 3 anew
        game.calmTicks(5);
        QCOMPARE(game.state().Vidas.value(), lives.value());
    }

    static RainStep tickThatLaunches(RainGame& game, int valor)
    {
        game.calm();
        game.scriptLaunch(6, 1, valor);
        ++game.ticks;
        return game.rain.tick();
    }
};

QTEST_GUILESS_MAIN(NumberRainScoreTest)
#include "number_rain_score_test.moc"
