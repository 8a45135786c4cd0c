#include "core/defect.h"
#include "games/rain_game.h"
#include "games/rain_grid.h"

#include <QtTest>

#include <cmath>

using core::Int16;
using games::Difficulty;
using games::RainFall;
using games::RainGrid;
using namespace Qt::StringLiterals;

namespace {

const float Highest = std::nextafter(1.0f, 0.0f);

QList<int> values(const std::vector<Int16>& list)
{
    QList<int> result;
    for (const Int16 value : list)
        result << value.value();
    return result;
}

} // namespace

/// Setting up a game and its phases, launching, falling and drifting.
class NumberRainTest : public QObject {
    Q_OBJECT

private slots:
    void isReadyAtPhase1OnEasy()
    {
        const RainGame game;
        QCOMPARE(game.rain.phase().Fase().value(), 1);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.state().PuntosTotales.value(), 0);
        QCOMPARE(game.state().Vidas.value(), 3);
        QCOMPARE(game.state().Lanzados.value(), 0);
        QCOMPARE(game.state().Aciertos.value(), 0);
        QCOMPARE(game.taken(), 0);
        QCOMPARE(game.rain.difficulty(), Difficulty::Facil);
        QCOMPARE(game.rain.pointsText(), u"100 puntos"_s);
        QCOMPARE(game.rain.livesText(), u"Vidas : 3"_s);
        QVERIFY(game.rain.waiting());
        QVERIFY(!game.rain.running());
        QVERIFY(!game.rain.over());
    }

    void startRunsTheClockAndHidesTheButton()
    {
        RainGame game;
        game.rain.start();
        QVERIFY(game.rain.running());
        QVERIFY(!game.rain.waiting());
    }

    void enablingTheClockLeavesTheButton()
    {
        RainGame game;
        game.rain.enableClock();
        QVERIFY(game.rain.running());
        QVERIFY(game.rain.waiting());
    }

    void difficultySetsClockAndPenalties_data()
    {
        QTest::addColumn<Difficulty>("difficulty");
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("penaEscape");
        QTest::addColumn<int>("penaError");
        QTest::newRow("easy") << Difficulty::Facil << 800 << 5 << 1;
        QTest::newRow("normal") << Difficulty::Normal << 500 << 5 << 10;
        QTest::newRow("hard") << Difficulty::Dificil << 300 << 40 << 10;
    }

    void difficultySetsClockAndPenalties()
    {
        QFETCH(Difficulty, difficulty);
        RainGame game;
        game.rain.chooseDifficulty(Difficulty::Normal);
        game.rain.chooseDifficulty(difficulty);
        QCOMPARE(game.rain.difficulty(), difficulty);
        QTEST(game.rain.interval(), "interval");
        QTEST(game.state().PenaEscape.value(), "penaEscape");
        QTEST(game.state().PenaError.value(), "penaError");
    }

    void difficultyStartsANewGame()
    {
        RainGame game;
        game.reachPhase(2);
        game.rain.start();
        for (int number = 0; number < 12; ++number)
            game.launch(10, 1, 1);
        game.rain.click(0);
        QVERIFY(game.state().PuntosTotales > 0);

        const auto step = game.rain.chooseDifficulty(Difficulty::Normal);
        QVERIFY(step.phasePrepared);
        QVERIFY(step.waits && !step.launched);
        QVERIFY(!step.box);
        QCOMPARE(game.rain.phase().Fase().value(), 1);
        QCOMPARE(game.rain.caption(), u"Lluvia de números - Fase 1"_s);
        QCOMPARE(game.state().Puntos.value(), 100);
        QCOMPARE(game.state().PuntosTotales.value(), 0);
        QCOMPARE(game.state().Vidas.value(), 3);
        QCOMPARE(game.state().Lanzados.value(), 0);
        QCOMPARE(game.state().Aciertos.value(), 15); // never set back
        QCOMPARE(game.rain.pointsText(), u"100 puntos"_s);
        QCOMPARE(game.rain.livesText(), u"Vidas : 3"_s);
        QVERIFY(game.rain.waiting());
        QVERIFY(!game.rain.running());
        for (int slot = 0; slot < RainFall::Slots; ++slot)
            QCOMPARE(core::at(game.rain.fall().Libre(), slot), slot != 10 && slot != 11);
    }

    void theTickCounterOutlivesANewGame()
    {
        RainGame game;
        game.calmTicks(5);
        game.rain.chooseDifficulty(Difficulty::Dificil);
        game.rain.start();
        game.scriptLaunch(3, 2, 7);
        game.tick();
        QCOMPARE(game.taken(), 1);
    }

    void phasesHaveTheirRule_data()
    {
        QTest::addColumn<int>("fase");
        QTest::addColumn<QString>("instruction");
        QTest::addColumn<QList<int>>("targets");
        QTest::addColumn<int>("others");
        QTest::addColumn<int>("lastOther");
        QTest::newRow("1") << 1
                           << u"Elimina los  números impares. Selecciona la dificultad antes "
                              "de empezar."_s
                           << QList{1, 3, 5, 7, 9, 11, 13, 15, 17, 19} << 10 << 20;
        QTest::newRow("2") << 2 << u"Elimina todos los números pares"_s
                           << QList{2, 4, 6, 8, 10, 12, 14, 16, 18, 20} << 10 << 19;
        QTest::newRow("3") << 3 << u"Elimina todos los múltiplos de 3"_s
                           << QList{3, 6, 9, 12, 15, 18, 21, 24, 27, 30} << 20 << 29;
        QTest::newRow("7") << 7 << u"Elimina todos los múltiplos de 7"_s
                           << QList{7, 14, 21, 28, 35, 42, 49, 56, 63, 70} << 60 << 69;
        QTest::newRow("12") << 12 << u"Elimina todos los múltiplos de 12"_s
                            << QList{12, 24, 36, 48, 60, 72, 84, 96, 108, 120} << 110 << 119;
    }

    void phasesHaveTheirRule()
    {
        QFETCH(int, fase);
        QFETCH(QList<int>, targets);
        RainGame game;
        game.reachPhase(fase);
        QCOMPARE(game.rain.caption(), u"Lluvia de números - Fase "_s + QString::number(fase));
        QTEST(game.rain.instruction(), "instruction");
        QCOMPARE(values(game.rain.phase().Objetivos()), targets);
        const QList<int> others = values(game.rain.phase().Otros());
        QTEST(static_cast<int>(others.size()), "others");
        QTEST(others.last(), "lastOther");
        QVERIFY(std::is_sorted(others.begin(), others.end()));
        for (const int other : others)
            QVERIFY(!targets.contains(other));
    }

    void phasesLeaveTheOtherNumbersAlone_data()
    {
        QTest::addColumn<int>("fase");
        QTest::addColumn<QList<int>>("others");
        QTest::newRow("1") << 1 << QList{2, 4, 6, 8, 10, 12, 14, 16, 18, 20};
        QTest::newRow("2") << 2 << QList{1, 3, 5, 7, 9, 11, 13, 15, 17, 19};
        QTest::newRow("3") << 3
                           << QList{1, 2, 4, 5, 7, 8, 10, 11, 13, 14, 16, 17, 19, 20, 22, 23, 25,
                                  26, 28, 29};
        QTest::newRow("7") << 7
                           << QList{1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19,
                                  20, 22, 23, 24, 25, 26, 27, 29, 30, 31, 32, 33, 34, 36, 37, 38,
                                  39, 40, 41, 43, 44, 45, 46, 47, 48, 50, 51, 52, 53, 54, 55, 57,
                                  58, 59, 60, 61, 62, 64, 65, 66, 67, 68, 69};
    }
    void phasesLeaveTheOtherNumbersAlone()
    {
        QFETCH(int, fase);
        RainGame game;
        game.reachPhase(fase);
        QTEST(values(game.rain.phase().Otros()), "others");
    }

    void everySixthTickLaunches()
    {
        RainGame game;
        game.calmTicks(5);
        QCOMPARE(game.taken(), 0);
        game.scriptLaunch(4, 1, 3);
        const auto step = game.tick();
        QCOMPARE(game.taken(), 1);
        QCOMPARE(game.state().Lanzados.value(), 1);
        QVERIFY(step.launched);
        QCOMPARE(step.launched, std::optional(0));
        game.calmTicks(5);
        QCOMPARE(game.taken(), 1);
        game.launch(5, 1, 3);
        QCOMPARE(game.taken(), 2);
        QCOMPARE(game.state().Lanzados.value(), 2);
    }

    void launchDrawsColumnClassListAndPlace_data()
    {
        QTest::addColumn<QList<float>>("draws");
        QTest::addColumn<int>("columna");
        QTest::addColumn<int>("velocidad");
        QTest::addColumn<int>("valor");
        const float above = std::nextafter(0.6f, 1.0f);
        QTest::newRow("lowest") << QList{0.0f, 0.0f, 0.0f, 0.0f} << 1 << 1 << 1;
        QTest::newRow("highest") << QList{Highest, Highest, Highest, Highest} << 19 << 5 << 20;
        QTest::newRow("0.6 is a target") << QList{0.5f, 0.5f, 0.6f, 0.5f} << 10 << 3 << 11;
        QTest::newRow("above 0.6 is not") << QList{0.5f, 0.5f, above, 0.5f} << 10 << 3 << 12;
        QTest::newRow("last target") << QList{0.1f, 0.7f, 0.0f, Highest} << 2 << 4 << 19;
        QTest::newRow("first other") << QList{0.2f, 0.3f, 0.9f, 0.0f} << 4 << 2 << 2;
    }

    void launchDrawsColumnClassListAndPlace()
    {
        QFETCH(QList<float>, draws);
        RainGame game;
        game.calmTicks(5);
        for (const float draw : draws)
            game.random.append({draw});
        game.tick();
        const auto& gota = game.gota(0);
        QTEST(gota.Columna.value(), "columna");
        QTEST(gota.Velocidad.value(), "velocidad");
        QTEST(gota.Valor.value(), "valor");
        QCOMPARE(gota.Fila.value(), 0);
        QCOMPARE(gota.Espera.value(), 6 - gota.Velocidad.value());
        QCOMPARE(gota.Direccion.value(), 0);
        QCOMPARE(gota.Deriva.value(), 0);
        QCOMPARE(RainGrid::top(gota), 780);
        QCOMPARE(RainGrid::left(gota), 500 * gota.Columna.value());
    }

    void launchTakesTheLowestFreeSlot()
    {
        RainGame game;
        for (int slot = 0; slot < 4; ++slot)
            QCOMPARE(game.launch(8, 1, 1), slot);
        game.rain.click(2);
        game.rain.click(1);
        game.launch(8, 2, 5);
        QVERIFY(!game.rain.fall().Libre()[1]);
        QVERIFY(game.rain.fall().Libre()[2]);
        QCOMPARE(game.gota(1).Valor.value(), 5);
    }

    void launchesNothingWhenAllSlotsAreTaken()
    {
        RainGame game;
        for (int slot = 0; slot < RainFall::Slots; ++slot)
            game.launch(8, 1, 2);
        game.calmTicks(5);
        game.calm();
        const auto step = game.tick(); // would launch: no draws are scripted for it
        QVERIFY(asksNoFocus(step));
        QCOMPARE(game.taken(), 20);
        QCOMPARE(game.state().Lanzados.value(), 20);
        game.rain.click(7);
        game.calmTicks(5);
        QCOMPARE(game.taken(), 19); // the missed launch is not made up for
        game.launch(8, 1, 2);
        QCOMPARE(game.taken(), 20);
    }

    void aClassStepsEverySoManyTicks_data()
    {
        QTest::addColumn<int>("velocidad");
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("1") << 1 << QList{0, 0, 0, 0, 1};
        QTest::newRow("2") << 2 << QList{0, 0, 0, 1, 1};
        QTest::newRow("3") << 3 << QList{0, 0, 1, 1, 1};
        QTest::newRow("4") << 4 << QList{0, 1, 1, 2, 2};
        QTest::newRow("5") << 5 << QList{1, 2, 3, 4, 5};
    }

    void aClassStepsEverySoManyTicks()
    {
        QFETCH(int, velocidad);
        QFETCH(QList<int>, rows);
        RainGame game;
        game.launch(8, velocidad, 1);
        for (const int row : rows) {
            game.calmTick();
            QCOMPARE(game.gota(0).Fila.value(), row);
            QCOMPARE(RainGrid::top(game.gota(0)), 780 + 500 * row);
        }
        QCOMPARE(game.gota(0).Columna.value(), 8);
    }

    void slotsMoveInOrderEachWithItsOwnDraws()
    {
        RainGame game;
        game.launch(5, 5, 1);
        game.launch(8, 5, 1);
        game.tick({0.0f, 0.5f, 0.49f, 0.0f}); // both start, to the right and to the left
        QCOMPARE(game.gota(0).Direccion.value(), 1);
        QCOMPARE(game.gota(1).Direccion.value(), -1);
    }

    void aDriftStartsByChanceOfTheClass_data()
    {
        QTest::addColumn<int>("velocidad");
        QTest::addColumn<float>("draw");
        QTest::addColumn<bool>("starts");
        for (int velocidad = 1; velocidad <= 5; ++velocidad) {
            const float chance = static_cast<float>(velocidad) / 10;
            QTest::addRow("%d, below", velocidad)
                << velocidad << std::nextafter(chance, 0.0f) << true;
            QTest::addRow("%d, at", velocidad) << velocidad << chance << false;
        }
    }

    void aDriftStartsByChanceOfTheClass()
    {
        QFETCH(int, velocidad);
        QFETCH(float, draw);
        QFETCH(bool, starts);
        RainGame game;
        game.launch(7, velocidad, 1);
        game.calmTicks(5 - velocidad);
        game.random.append({draw});
        if (starts)
            game.random.append({0.5f});
        game.tick();
        QCOMPARE(game.gota(0).Deriva.value(), starts ? 5 : 0);
        QCOMPARE(game.gota(0).Direccion.value(), starts ? 1 : 0);
        QCOMPARE(game.gota(0).Columna.value(), 7); // the step that starts it does not move it
        QCOMPARE(game.gota(0).Fila.value(), 1);
    }

    void aDriftLastsFiveSteps_data()
    {
        QTest::addColumn<int>("columna");
        QTest::addColumn<float>("direction");
        QTest::addColumn<QList<int>>("columns");
        const float left = std::nextafter(0.5f, 0.0f);
        QTest::newRow("right") << 3 << 0.5f << QList{4, 5, 6, 7, 8, 8};
        QTest::newRow("left") << 8 << left << QList{7, 6, 5, 4, 3, 3};
        QTest::newRow("left bounce") << 3 << left << QList{2, 1, 2, 3, 4, 4};
        QTest::newRow("starts at the left") << 1 << left << QList{2, 3, 4, 5, 6, 6};
        QTest::newRow("right bounce") << 8 << 0.9f << QList{9, 10, 9, 8, 7, 7};
        QTest::newRow("starts at 10") << 10 << 0.9f << QList{9, 8, 7, 6, 5, 5};
        QTest::newRow("left from 10") << 10 << left << QList{9, 8, 7, 6, 5, 5};
        QTest::newRow("no bounce at 11") << 11 << 0.9f << QList{12, 13, 14, 15, 16, 16};
        QTest::newRow("out of sight") << 15 << 0.9f << QList{16, 17, 18, 19, 20, 20};
        QTest::newRow("from beyond") << 12 << left << QList{11, 10, 9, 8, 7, 7};
    }

    void aDriftLastsFiveSteps()
    {
        QFETCH(int, columna);
        QFETCH(float, direction);
        QFETCH(QList<int>, columns);
        RainGame game;
        game.launch(columna, 5, 1);
        game.tick({0.0f, direction});
        for (const int column : columns) { // five draw nothing, the sixth draws anew
            if (game.ticks % 6 == 5) {
                game.calm();
                game.scriptLaunch(19, 1, 1);
                game.tick();
            } else {
                game.calmTick();
            }
            QCOMPARE(game.gota(0).Columna.value(), column);
            QCOMPARE(RainGrid::left(game.gota(0)), 500 * column);
        }
        QCOMPARE(game.gota(0).Deriva.value(), 0);
        QCOMPARE(game.gota(0).Fila.value(), 7);
    }

    void aNumberEscapesStrictlyBelowTheHeight_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("steps");
        QTest::newRow("edge at the height stays") << 780 + 1500 << 4;
        QTest::newRow("edge below it is gone") << 780 + 1499 << 3;
    }

    void aNumberEscapesStrictlyBelowTheHeight()
    {
        QFETCH(int, height);
        QFETCH(int, steps);
        RainGame game(RainGrid::lastRow(height));
        game.launch(6, 5, 2);
        game.calmTicks(steps - 1);
        QCOMPARE(game.taken(), 1);
        game.calmTick();
        QCOMPARE(game.taken(), 0);
    }
};

QTEST_GUILESS_MAIN(NumberRainTest)
#include "number_rain_test.moc"
