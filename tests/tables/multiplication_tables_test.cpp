#include "tables/multiplication_tables.h"

#include "support/scripted_random.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using shell::Verdict;
using tables::MultiplicationTables;

class MultiplicationTablesTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        random = ScriptedRandom();
        model = std::make_unique<MultiplicationTables>(random);
    }

    void startsWithTheTableOf1ToStudy()
    {
        QCOMPARE(model->table(), 1);
        QCOMPARE(model->currentActivity(), 0);
        QCOMPARE(model->question(), 1);
        QVERIFY(!model->isReview());
    }

    void tablesStandInTheOrderTheyAreLearnt()
    {
        QList<int> order;
        for (int i = 0; i < 10; ++i)
            order << model->tableAt(i);
        QCOMPARE(order, (QList<int>{1, 2, 5, 10, 3, 4, 6, 7, 8, 9}));
    }

    void nextTableWalksThatOrderAndWraps()
    {
        QList<int> walked;
        for (int i = 0; i < 11; ++i) {
            model->chooseTable(model->nextTable());
            walked << model->table();
        }
        QCOMPARE(walked, (QList<int>{2, 5, 10, 3, 4, 6, 7, 8, 9, 1, 2}));
    }

    void nextActivityWraps()
    {
        model->chooseActivity(2);
        QCOMPARE(model->nextActivity(), 0);
    }

    void saysTableQuestionAndSolution()
    {
        model->chooseTable(7);
        QCOMPARE(model->spokenTable(),
            u"Tabla del 7: 7 por 1, 7; 7 por 2, 14; 7 por 3, 21; 7 por 4, 28; 7 por 5, 35; "
            "7 por 6, 42; 7 por 7, 49; 7 por 8, 56; 7 por 9, 63; 7 por 10, 70"_s);
        model->chooseActivity(1);
        model->newExercise();
        QCOMPARE(model->spokenQuestion(), u"7 por 1"_s);
        QCOMPARE(model->spokenSolution(), u"7 por 1 igual a 7"_s);
        for (int k = 1; k <= 10; ++k)
            model->judge(7 * k);
        QCOMPARE(model->spokenQuestion(), QString());
        QCOMPARE(model->spokenSolution(), QString());
    }

    void captionNamesTableAndActivity()
    {
        model->chooseTable(7);
        QCOMPARE(model->caption(), u"Tabla del 7 - Ver tabla"_s);
        model->chooseActivity(1);
        QCOMPARE(model->caption(), u"Tabla del 7 - Repasar tabla en orden"_s);
        model->chooseActivity(2);
        QCOMPARE(model->caption(), u"Tabla del 7 - repasar tabla salteada"_s);
    }

    void writesTheTableOf7()
    {
        model->chooseTable(7);
        QCOMPARE(model->tableText(0),
            u" 7x 1 =  7\r\n 7x 2 = 14\r\n 7x 3 = 21\r\n 7x 4 = 28\r\n 7x 5 = 35\r\n"_s);
        QCOMPARE(model->tableText(1),
            u" 7x 6 = 42\r\n 7x 7 = 49\r\n 7x 8 = 56\r\n 7x 9 = 63\r\n 7x10 = 70\r\n"_s);
    }

    void everyLineOfEveryTableIsTenCharactersWide()
    {
        for (int index = 0; index < 10; ++index) {
            model->chooseTable(index);
            for (int half : {0, 1}) {
                const QStringList lines = model->tableText(half).split(u"\r\n"_s);
                QCOMPARE(lines.size(), 6);
                for (int i = 0; i < 5; ++i)
                    QCOMPARE(lines.at(i).size(), 10);
            }
        }
    }

    void tableOf10EndsWith100()
    {
        model->chooseTable(3);
        QCOMPARE(model->tableText(0).split(u"\r\n"_s).first(), u"10x 1 = 10"_s);
        QCOMPARE(model->tableText(1).split(u"\r\n"_s).at(4), u"10x10 =100"_s);
    }

    void orderedReviewAsks1To10WithoutADraw()
    {
        model->chooseActivity(1);
        model->chooseTable(7);
        model->newExercise();
        for (int k = 1; k <= 10; ++k) {
            QCOMPARE(model->question(), k);
            QCOMPARE(model->multiplier(), k);
            QCOMPARE(model->product(), 7 * k);
            QCOMPARE(model->judge(7 * k), Verdict::Right);
            QCOMPARE(model->isSeriesOver(), k == 10);
        }
        QCOMPARE(model->question(), 11);
    }

    void shuffledReviewMakes100AdjacentSwaps()
    {
        // r = 1 swaps the first two; done 100 times the order is back where it was.
        for (int i = 0; i < 100; ++i)
            random.appendInteger(1, 9, 1);
        model->chooseActivity(2);
        model->newExercise();
        QCOMPARE(random.left(), 0u);
        QCOMPARE(model->multiplier(), 1);

        // One swap of the last two, 99 of the first two.
        random.appendInteger(9, 9, 1);
        for (int i = 0; i < 99; ++i)
            random.appendInteger(1, 9, 1);
        model->newExercise();
        QList<int> order;
        for (int i = 0; i < 10; ++i) {
            order << model->multiplier();
            model->judge(model->product());
        }
        QCOMPARE(order, (QList<int>{2, 1, 3, 4, 5, 6, 7, 8, 10, 9}));
    }

    void shuffledReviewAsksEveryMultiplierOnce()
    {
        core::SeededRandom seeded;
        for (int seed = 0; seed < 200; ++seed) {
            seeded.seed(seed);
            MultiplicationTables shuffled(seeded);
            shuffled.chooseActivity(2);
            shuffled.newExercise();
            QSet<int> asked;
            while (shuffled.question() <= 10) {
                asked << shuffled.multiplier();
                shuffled.judge(shuffled.product());
            }
            QCOMPARE(asked.size(), 10);
        }
    }

    void restartForgetsTheShuffle()
    {
        for (int i = 0; i < 100; ++i)
            random.appendInteger(1 + i % 9, 9, 1);
        model->chooseActivity(2);
        model->newExercise();
        QVERIFY(model->multiplier() != 1);
        model->chooseActivity(1);
        model->newExercise();
        QCOMPARE(model->multiplier(), 1);
    }

    void wrongAnswerCountsAnErrorAndKeepsTheQuestion()
    {
        model->chooseActivity(1);
        model->newExercise();
        QCOMPARE(model->judge(2), Verdict::Wrong);
        QCOMPARE(model->verdict().text(), u"resultado incorrecto "_s);
        QCOMPARE(model->judge(0), Verdict::Wrong);
        QCOMPARE(model->question(), 1);
        QCOMPARE(model->seriesErrors(), 2);
        QCOMPARE(model->judge(1), Verdict::Right);
        QCOMPARE(model->verdict().text(), u"Resultado correcto"_s);
        model->clearVerdict();
        QCOMPARE(model->verdict().text(), QString());
        QCOMPARE(model->seriesErrors(), 2);
        QCOMPARE(model->question(), 2);
    }

    void answersAreComparedUnrounded()
    {
        model->chooseActivity(1);
        model->newExercise();
        QCOMPARE(model->judge(1.4), Verdict::Wrong);
    }

    void restartClearsTheErrorsOfTheSeries()
    {
        model->chooseActivity(1);
        model->newExercise();
        model->judge(9);
        model->newExercise();
        QCOMPARE(model->seriesErrors(), 0);
    }

    void finishedSeriesChecksNothingMore()
    {
        model->chooseActivity(1);
        model->newExercise();
        while (model->question() <= 10)
            model->judge(model->product());
        QCOMPARE(model->judge(0), Verdict::NotJudged);
        QCOMPARE(model->seriesErrors(), 0);
        QCOMPARE(model->question(), 11);
        QCOMPARE(model->multiplier(), 0);
    }

    void reportsTheErrorsOfTheSeries()
    {
        model->chooseTable(0);
        model->newExercise();
        model->judge(2);
        model->judge(3);
        QCOMPARE(model->seriesReport(),
            u"Has cometido 2 errores. ¿Deseas volver a realizar esta actividad?"_s);
        QCOMPARE(model->showSolution(), 1);
        QCOMPARE(model->seriesErrors(), 2); // showing the solution counts nothing
    }

private:
    ScriptedRandom random;
    std::unique_ptr<MultiplicationTables> model;
};

QTEST_GUILESS_MAIN(MultiplicationTablesTest)
#include "multiplication_tables_test.moc"
