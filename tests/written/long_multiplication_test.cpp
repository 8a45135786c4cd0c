#include "core/errors.h"
#include "support/scripted_random.h"
#include "written/long_multiplication.h"

#include <QtTest>

#include <cmath>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;
using shell::Verdict;
using written::LongMultiplication;
using written::TypedFactor;

namespace {

/// Appends the draw that gives a factor of so many digits.
void appendFactor(ScriptedRandom& random, int value, int digits)
{
    random.append({static_cast<float>((value - 0.5) / std::pow(10.0, digits))});
}

} // namespace

class LongMultiplicationTest : public QObject {
    Q_OBJECT

private:
    ScriptedRandom random;

    /// A board that shows these factors, as if they had been drawn.
    LongMultiplication board(const QString& factor1, const QString& factor2)
    {
        random = {};
        appendFactor(random, 1234, 4);
        appendFactor(random, 56, 2);
        LongMultiplication model(random);
        model.newExercise();
        if (model.typeFactor1(factor1) != TypedFactor::Accepted
            || model.typeFactor2(factor2) != TypedFactor::Accepted)
            qFatal("the factors of the test are refused");
        return model;
    }

private slots:
    void startsWithFourAndTwoDigits()
    {
        random = {};
        appendFactor(random, 4321, 4);
        appendFactor(random, 76, 2);
        LongMultiplication model(random);
        model.newExercise();
        QCOMPARE(random.left(), 0u);
        QCOMPARE(model.Factor1(), 4321.0);
        QCOMPARE(model.Factor2(), 76.0);
        QCOMPARE(model.Producto(), 328396.0);
        QCOMPARE(model.factor1Text(), u"4321"_s);
        QCOMPARE(model.factor2Text(), u"x     76"_s);
        QCOMPARE(model.resultText(), u"328396"_s);
        QCOMPARE(model.CifrasFactor1().value(), 4);
        QCOMPARE(model.CifrasFactor2().value(), 2);
        QVERIFY(model.CualquierCifra());
        QCOMPARE(model.CifrasElegidas(), QString());
        QVERIFY(!model.OcultarCeros());
        QCOMPARE(model.counters().Ejercicios.value(), 0);
        QCOMPARE(model.counters().Errores.value(), 0);
        QVERIFY(model.isPending());
    }

    void redrawsFactorsOutOfRange_data()
    {
        QTest::addColumn<int>("digits");
        QTest::addColumn<QList<float>>("refused");
        QTest::addColumn<float>("accepted");
        QTest::addColumn<double>("factor");

        const float highest = std::nextafter(1.0f, 0.0f);
        QTest::newRow("one digit, never 1 or 10")
            << 1 << QList<float>{0.0f, 0.09f, 0.9001f, highest} << 0.1001f << 2.0;
        QTest::newRow("one digit, at most 9") << 1 << QList<float>{} << 0.8999f << 9.0;
        QTest::newRow("four digits, never 1000")
            << 4 << QList<float>{0.05f, 0.09999f, 0.99999f} << 0.10001f << 1001.0;
        QTest::newRow("four digits, at most 9999")
            << 4 << QList<float>{highest} << 0.99989f << 9999.0;
        QTest::newRow("ten digits, never 10^10")
            << 10 << QList<float>{0.1f - 1e-7f} << 0.5f << 5000000001.0;
    }
    void redrawsFactorsOutOfRange()
    {
        QFETCH(int, digits);
        QFETCH(QList<float>, refused);
        QFETCH(float, accepted);
        random = {};
        for (const float draw : refused)
            random.append({draw});
        random.append({accepted});
        appendFactor(random, 76, 2);
        LongMultiplication model(random);
        model.setCifrasFactor1(digits);
        model.newExercise();
        QTEST(model.Factor1(), "factor");
        QCOMPARE(model.Factor2(), 76.0);
        QCOMPARE(random.left(), 0u);
    }

    void drawsEveryNumberOfDigitsInItsRange()
    {
        core::SeededRandom seeded;
        seeded.seed(1234);
        LongMultiplication model(seeded);
        for (int digits = 1; digits <= 10; ++digits) {
            model.setCifrasFactor1(digits);
            model.setCifrasFactor2(digits);
            const double smallest = std::pow(10.0, digits - 1) + 1;
            const double largest = std::pow(10.0, digits) - 1;
            for (int draw = 0; draw < 10'000; ++draw) {
                model.newExercise();
                for (const double factor : {model.Factor1(), model.Factor2()}) {
                    QVERIFY(factor >= smallest && factor <= largest);
                    QCOMPARE(factor, std::floor(factor));
                }
                QCOMPARE(model.expectedRows().size(), digits);
            }
        }
    }

    void drawsTwoDigitFactorsEvenly()
    {
        core::SeededRandom seeded;
        seeded.seed(99);
        LongMultiplication model(seeded);
        model.setCifrasFactor1(2);
        std::vector<int> seen1(100);
        std::vector<int> seen2(100);
        for (int draw = 0; draw < 100'000; ++draw) {
            model.newExercise();
            ++seen1.at(static_cast<std::size_t>(model.Factor1()));
            ++seen2.at(static_cast<std::size_t>(model.Factor2()));
        }
        QCOMPARE(seen1[10], 0);
        QCOMPARE(seen2[10], 0);
        for (std::size_t value = 11; value <= 99; ++value) { // 1124 expected; six deviations
            QVERIFY2(std::abs(seen1[value] - 1124) < 202, qPrintable(QString::number(value)));
            QVERIFY2(std::abs(seen2[value] - 1124) < 202, qPrintable(QString::number(value)));
        }
    }

    void buildsFactor2FromTheChosenDigits()
    {
        random = {};
        appendFactor(random, 1234, 4);
        random.appendInteger(3, 4, 0); // in front one of 2357, then one of 23570
        random.appendInteger(4, 5, 0);
        random.appendInteger(0, 5, 0);
        random.appendInteger(2, 5, 0);
        LongMultiplication model(random);
        model.setCifrasFactor2(4);
        model.chooseDigits(u"2357"_s);
        model.newExercise();
        QCOMPARE(model.Factor2(), 7025.0);
        QCOMPARE(random.left(), 0u);
        QVERIFY(!model.CualquierCifra());
        QCOMPARE(model.CifrasElegidas(), u"2357"_s);
    }

    void choosesDigitsEvenlyWithZerosAfterTheFirst()
    {
        core::SeededRandom seeded;
        seeded.seed(7);
        LongMultiplication model(seeded);
        model.chooseDigits(u"39"_s);
        std::map<double, int> seen;
        for (int draw = 0; draw < 100'000; ++draw) {
            model.newExercise();
            ++seen[model.Factor2()];
        }
        QCOMPARE(seen.size(), 6u);
        for (const double value : {30.0, 33.0, 39.0, 90.0, 93.0, 99.0}) // 16667 expected
            QVERIFY2(std::abs(seen[value] - 16'667) < 710, qPrintable(QString::number(value)));
    }

    void noChosenDigitAllowsAny()
    {
        LongMultiplication model(random);
        model.chooseDigits(u"2357"_s);
        QCOMPARE(model.digitsCaption(), u"&Seleccionar (2357) ..."_s);
        model.allowAnyDigit();
        QVERIFY(model.CualquierCifra());
        QCOMPARE(model.CifrasElegidas(), u"2357"_s); // remembered
        QCOMPARE(model.digitsCaption(), u"&Seleccionar (2357) ..."_s);
        model.chooseDigits(QString());
        QVERIFY(model.CualquierCifra());
        QCOMPARE(model.CifrasElegidas(), QString());
        QCOMPARE(model.digitsCaption(), u"&Seleccionar () ..."_s);
    }

    void expectsARowForEachDigit_data()
    {
        QTest::addColumn<QString>("factor1");
        QTest::addColumn<QString>("factor2");
        QTest::addColumn<QStringList>("all");
        QTest::addColumn<QStringList>("withoutZeros");

        QTest::newRow("no zeros") << u"1234"_s << u"56"_s << QStringList{u"7404"_s, u"6170 "_s}
                                  << QStringList{u"7404"_s, u"6170 "_s};
        QTest::newRow("zero inside")
            << u"1234"_s << u"205"_s << QStringList{u"6170"_s, u"0 "_s, u"2468  "_s}
            << QStringList{u"6170"_s, u"2468  "_s};
        QTest::newRow("zeros at the end")
            << u"12"_s << u"300"_s << QStringList{u"0"_s, u"0 "_s, u"36  "_s}
            << QStringList{u"36  "_s};
        QTest::newRow("one digit")
            << u"1234"_s << u"7"_s << QStringList{u"8638"_s} << QStringList{u"8638"_s};
        QTest::newRow("zero") << u"1234"_s << u"0"_s << QStringList{u"0"_s} << QStringList{};
        QTest::newRow("negative factor 1")
            << u"-12"_s << u"34"_s << QStringList{u"-48"_s, u"-36 "_s}
            << QStringList{u"-48"_s, u"-36 "_s};
        QTest::newRow("negative factor 2")
            << u"12"_s << u"-30"_s << QStringList{u"0"_s, u"36 "_s, u"0  "_s}
            << QStringList{u"36 "_s, u"0  "_s};
        QTest::newRow("zero factor 1")
            << u"0"_s << u"-12"_s << QStringList{u"0"_s, u"0 "_s, u"0  "_s}
            << QStringList{u"0"_s, u"0 "_s, u"0  "_s};
        QTest::newRow("ten digits") << u"9876543210"_s << u"9000000008"_s
                                    << QStringList{u"79012345680"_s, u"0 "_s, u"0  "_s, u"0   "_s,
                                           u"0    "_s, u"0     "_s, u"0      "_s, u"0       "_s,
                                           u"0        "_s, u"88888888890         "_s}
                                    << QStringList{u"79012345680"_s, u"88888888890         "_s};
    }
    void expectsARowForEachDigit()
    {
        QFETCH(QString, factor1);
        QFETCH(QString, factor2);
        LongMultiplication model = board(factor1, factor2);
        QTEST(model.expectedRows(), "all");
        model.toggleOcultarCeros();
        QTEST(model.expectedRows(), "all"); // the exercise on screen stays
        QCOMPARE(model.typeFactor2(factor2), TypedFactor::Accepted);
        QTEST(model.expectedRows(), "withoutZeros");
    }

    void digitSettingsWaitForTheNextExercise()
    {
        LongMultiplication model = board(u"1234"_s, u"56"_s);
        model.setCifrasFactor1(2);
        model.setCifrasFactor2(1);
        QCOMPARE(model.expectedRows(), (QStringList{u"7404"_s, u"6170 "_s}));
        QVERIFY(!model.firstRowIsResult());
        QCOMPARE(model.typeFactor1(u"100"_s), TypedFactor::Accepted);
        QCOMPARE(model.expectedRows(), (QStringList{u"600"_s, u"500 "_s}));
        QVERIFY(model.judge({u"0"_s, {u"600"_s, u"7"_s}}) == Verdict::Wrong);

        appendFactor(random, 45, 2);
        appendFactor(random, 6, 1);
        model.newExercise();
        QCOMPARE(model.expectedRows(), QStringList{u"270"_s});
        QVERIFY(model.firstRowIsResult());
    }

    void countsEveryWrongCheckAndTheFirstRightOne()
    {
        LongMultiplication model = board(u"1234"_s, u"205"_s);
        const QStringList right = model.expectedRows();
        QVERIFY(model.judge({u"1"_s, right}) == Verdict::Wrong);
        QVERIFY(model.judge({u"2"_s, right}) == Verdict::Wrong);
        QVERIFY(model.isPending());
        QCOMPARE(model.counters().Ejercicios.value(), 2);
        QCOMPARE(model.counters().Errores.value(), 2);
        QVERIFY(model.judge({u"252970"_s, right}) == Verdict::Right);
        QVERIFY(!model.isPending());
        QVERIFY(model.judge({u"3"_s, right}) == Verdict::Wrong);
        QVERIFY(model.judge({u"252970"_s, right}) == Verdict::Right);
        QCOMPARE(model.counters().Ejercicios.value(), 3);
        QCOMPARE(model.counters().Errores.value(), 2);
        QVERIFY(!model.isPending());
    }

    void onlySetPendingCountsAnotherExercise()
    {
        LongMultiplication model = board(u"12"_s, u"3"_s);
        QVERIFY(model.judge({u"36"_s, {u"36"_s}}) == Verdict::Right);
        appendFactor(random, 1234, 4);
        appendFactor(random, 7, 1);
        model.newExercise(); // as the menu does: the new exercise is not counted
        QVERIFY(!model.isPending());
        model.judge({u"1"_s, {u"1"_s}});
        QCOMPARE(model.typeFactor1(u"5"_s), TypedFactor::Accepted);
        QCOMPARE(model.typeFactor2(u"5"_s), TypedFactor::Accepted);
        model.judge({u"1"_s, {u"1"_s}});
        QCOMPARE(model.counters().Ejercicios.value(), 1);
        QCOMPARE(model.counters().Errores.value(), 0);
        model.setPending();
        model.judge({u"1"_s, {u"1"_s}});
        QCOMPARE(model.counters().Ejercicios.value(), 2);
        QCOMPARE(model.counters().Errores.value(), 1);
    }

    void namesTheWrongRows_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<QList<int>>("wrong");

        QTest::newRow("all right")
            << QStringList{u"6170"_s, u"0 "_s, u"2468  "_s} << QList<int>{};
        QTest::newRow("blanks in front do not count")
            << QStringList{u"   6170"_s, u" 0 "_s, u"  2468  "_s} << QList<int>{};
        QTest::newRow("blanks behind do")
            << QStringList{u"6170 "_s, u"0"_s, u"2468 "_s} << QList<int>{0, 1, 2};
        QTest::newRow("empty") << QStringList{QString(), QString(), QString()}
                               << QList<int>{0, 1, 2};
        QTest::newRow("a row of zeros is not the zero row")
            << QStringList{u"6170"_s, u"0000 "_s, u"2468  "_s} << QList<int>{1};
        QTest::newRow("another zero in front counts")
            << QStringList{u"06170"_s, u"0 "_s, u"2468  "_s} << QList<int>{0};
        QTest::newRow("only ordinary blanks are taken away")
            << QStringList{u"\t6170"_s, u"\u00A00 "_s, u"2468  "_s} << QList<int>{0, 1};
    }
    void namesTheWrongRows()
    {
        QFETCH(QStringList, typed);
        QFETCH(QList<int>, wrong);
        LongMultiplication model = board(u"1234"_s, u"205"_s);
        QCOMPARE(model.judge({u"1"_s, typed}), Verdict::Wrong);
        QCOMPARE(QList<int>(model.wrongRows().begin(), model.wrongRows().end()), wrong);
    }

    void aRightResultLeavesTheRowsAlone()
    {
        LongMultiplication model = board(u"1234"_s, u"205"_s);
        QCOMPARE(model.judge({u"252970"_s, {u"1"_s, QString(), u"x"_s}}), Verdict::Right);
        QVERIFY(model.wrongRows().empty());
    }

    void comparesTheResultAsANumber_data()
    {
        QTest::addColumn<QString>("factor1");
        QTest::addColumn<QString>("factor2");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");

        QTest::newRow("blanks in front") << u"12"_s << u"12"_s << u"   144"_s << true;
        QTest::newRow("zeros in front") << u"12"_s << u"12"_s << u"000144"_s << true;
        QTest::newRow("what follows") << u"12"_s << u"12"_s << u"144 peras"_s << true;
        QTest::newRow("decimals of nothing") << u"12"_s << u"12"_s << u"144,0"_s << true;
        QTest::newRow("decimals") << u"12"_s << u"12"_s << u"144,5"_s << false;
        QTest::newRow("a blank inside ends it") << u"12"_s << u"12"_s << u"14 4"_s << false;
        QTest::newRow("empty is 0") << u"12"_s << u"0"_s << QString() << true;
        QTest::newRow("empty") << u"12"_s << u"12"_s << QString() << false;
        QTest::newRow("negative") << u"-12"_s << u"12"_s << u"-144"_s << true;
        QTest::newRow("beyond 15 digits, as a pupil works it out")
            << u"9999999999"_s << u"9999999999"_s << u"99999999980000000001"_s << true;
    }
    void comparesTheResultAsANumber()
    {
        QFETCH(QString, factor1);
        QFETCH(QString, factor2);
        QFETCH(QString, typed);
        LongMultiplication model = board(factor1, factor2);
        QTEST(model.judge({typed, {}}) == Verdict::Right, "right");
    }

    void givesTheExactSolutionBeyond15Digits_data()
    {
        QTest::addColumn<QString>("factor1");
        QTest::addColumn<QString>("factor2");
        QTest::addColumn<QString>("product");
        QTest::addColumn<QString>("firstRow");

        QTest::newRow("eight digits by eight")
            << u"99999999"_s << u"99999999"_s << u"9999999800000001"_s << u"899999991"_s;
        QTest::newRow("ten digits by ten") << u"9999999999"_s << u"9999999999"_s
                                           << u"99999999980000000001"_s << u"89999999991"_s;
        QTest::newRow("a row that a double rounds")
            << u"9007199254740991"_s << u"3"_s << u"27021597764222973"_s
            << u"27021597764222973"_s;
        QTest::newRow("negative")
            << u"-99999999"_s << u"99999999"_s << u"-9999999800000001"_s << u"-899999991"_s;
    }
    void givesTheExactSolutionBeyond15Digits()
    {
        QFETCH(QString, factor1);
        QFETCH(QString, factor2);
        LongMultiplication model = board(factor1, factor2);
        QTEST(model.showSolution(), "product");
        QTEST(model.expectedRows().first(), "firstRow");
        QCOMPARE(model.judge({model.resultText(), model.expectedRows()}), Verdict::Right);
        QVERIFY(model.judge({u"1"_s, model.expectedRows()}) == Verdict::Wrong);
        QCOMPARE(model.wrongRows().size(), 0u);
    }

    void speaksOfFactorsRowsAndPlaces()
    {
        LongMultiplication model = board(u"1234"_s, u"205"_s);
        QCOMPARE(model.spokenExercise(), u"1234 por 205"_s);
        QCOMPARE(model.spokenSolution(), u"Solución: 252970"_s);
        model.judge({u"1"_s, {u"6170"_s, u"0 "_s, u"2468  "_s}});
        QCOMPARE(model.spokenWrongRows(), QString());
        model.judge({u"1"_s, {u"6170"_s, u"0"_s, u"2468  "_s}});
        QCOMPARE(model.spokenWrongRows(), u"fila equivocada: 2"_s);
        model.judge({u"1"_s, {u"617"_s, u"0 "_s, u"2468"_s}});
        QCOMPARE(model.spokenWrongRows(), u"filas equivocadas: 1 y 3"_s);
        model.judge({u"252970"_s, {}});
        QCOMPARE(model.spokenWrongRows(), QString());
        QCOMPARE(LongMultiplication::spokenCaret(0, 0), u"unidades"_s);
        QCOMPARE(LongMultiplication::spokenCaret(0, 2), u"centenas"_s);
        QCOMPARE(LongMultiplication::spokenCaret(2, 3), u"decenas"_s);
    }

    void fullCountersAreReportedWithNothingCounted()
    {
        LongMultiplication model = board(u"12"_s, u"3"_s);
        for (int i = 0; i < core::Int16::Max; ++i)
            model.judge({u"1"_s, {}});
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, model.judge({u"1"_s, {}}));
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, model.judge({u"36"_s, {}}));
        QCOMPARE(model.counters().Ejercicios.value(), core::Int16::Max);
        QCOMPARE(model.counters().Errores.value(), core::Int16::Max);
        QVERIFY(model.isPending());
    }

    void theHintStandsInTheVerdictLine()
    {
        LongMultiplication model = board(u"1234"_s, u"567"_s);
        QVERIFY(model.IndicaProducto(0, 0, 2));
        QCOMPARE(model.verdict().text(), u"3 × 7"_s);
        QVERIFY(!model.IndicaProducto(0, 1, 1)); // right of the units there is none
        QCOMPARE(model.verdict().text(), u"3 × 7"_s);
    }

    void hintsAtTheDigitsThatMeet_data()
    {
        QTest::addColumn<int>("caret");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("hint"); // for 1234 × 567; empty when nothing is shown

        QTest::newRow("empty row 0") << 0 << 0 << 0 << u"4 × 7"_s;
        QTest::newRow("one digit written") << 0 << 0 << 1 << u"4 × 7"_s;
        QTest::newRow("two digits written") << 0 << 0 << 2 << u"3 × 7"_s;
        QTest::newRow("three digits written") << 0 << 0 << 3 << u"2 × 7"_s;
        QTest::newRow("four digits written") << 0 << 0 << 4 << u"1 × 7"_s;
        QTest::newRow("beyond factor 1") << 0 << 0 << 5 << u"0 × 7"_s;
        QTest::newRow("far beyond factor 1") << 0 << 0 << 9 << u"0 × 7"_s;
        QTest::newRow("caret at the right end") << 4 << 0 << 4 << u"4 × 7"_s;
        QTest::newRow("caret inside") << 2 << 0 << 4 << u"3 × 7"_s;
        QTest::newRow("empty row 1") << 0 << 1 << 0 << QString();
        QTest::newRow("row 1, its blank") << 0 << 1 << 1 << QString();
        QTest::newRow("row 1, one digit") << 0 << 1 << 2 << u"4 × 6"_s;
        QTest::newRow("row 1, two digits") << 0 << 1 << 3 << u"3 × 6"_s;
        QTest::newRow("row 2, its blanks") << 0 << 2 << 2 << QString();
        QTest::newRow("row 2, one digit") << 0 << 2 << 3 << u"4 × 5"_s;
        QTest::newRow("row 2, caret at the right end") << 3 << 2 << 3 << QString();
    }
    void hintsAtTheDigitsThatMeet()
    {
        QFETCH(int, caret);
        QFETCH(int, row);
        QFETCH(int, length);
        QFETCH(QString, hint);
        LongMultiplication model = board(u"1234"_s, u"567"_s);
        const auto shown = model.productHint(caret, row, length);
        QCOMPARE(shown.has_value(), !hint.isEmpty());
        QCOMPARE(shown.value_or(QString()), hint);
        // The sign in front of factor 2 makes no difference.
        QCOMPARE(model.typeFactor1(u"1234"_s), TypedFactor::Accepted);
        QCOMPARE(model.factor2Text(), u"567"_s);
        QCOMPARE(model.productHint(caret, row, length).value_or(QString()), hint);
    }

    void hintsCountHiddenZeros()
    {
        LongMultiplication model = board(u"1234"_s, u"205"_s);
        model.toggleOcultarCeros();
        QCOMPARE(model.typeFactor2(u"205"_s), TypedFactor::Accepted);
        QCOMPARE(model.expectedRows().size(), 2);
        QCOMPARE(model.productHint(0, 1, 2).value_or(QString()), u"4 × 0"_s);
    }

    void hintsSurviveAnyCaret()
    {
        LongMultiplication model = board(u"12"_s, u"3"_s);
        for (int row = 0; row < 5; ++row)
            for (int length = 0; length < 40; ++length)
                for (int caret = 0; caret <= length; ++caret)
                    model.productHint(caret, row, length);
    }

    void readsTypedFactors_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<TypedFactor>("outcome");
        QTest::addColumn<QString>("factor"); // as shown afterwards, 12 before

        const QString old = u"12"_s;
        QTest::newRow("whole") << u"345"_s << TypedFactor::Accepted << u"345"_s;
        QTest::newRow("blanks around") << u" 345 "_s << TypedFactor::Accepted << u"345"_s;
        QTest::newRow("fraction") << u"7,9"_s << TypedFactor::Accepted << u"7"_s;
        QTest::newRow("negative") << u"-34"_s << TypedFactor::Accepted << u"-34"_s;
        QTest::newRow("negative fraction") << u"-3,2"_s << TypedFactor::Accepted << u"-4"_s;
        QTest::newRow("zero") << u"0"_s << TypedFactor::Accepted << u"0"_s;
        QTest::newRow("minus zero") << u"-0"_s << TypedFactor::Accepted << u"0"_s;
        QTest::newRow("round number") << u"1000"_s << TypedFactor::Accepted << u"1000"_s;
        QTest::newRow("empty") << QString() << TypedFactor::Ignored << old;
        QTest::newRow("blank") << u" "_s << TypedFactor::Ignored << old;
        QTest::newRow("word") << u"doce"_s << TypedFactor::Ignored << old;
        QTest::newRow("number and word") << u"12 peras"_s << TypedFactor::Ignored << old;
        QTest::newRow("inf") << u"inf"_s << TypedFactor::Ignored << old;
        QTest::newRow("product too large") << QString(308, u'9') << TypedFactor::TooLarge << old;
        QTest::newRow("no double holds it") << QString(400, u'9') << TypedFactor::TooLarge << old;
        QTest::newRow("nor its negative")
            << u'-' + QString(400, u'9') << TypedFactor::TooLarge << old;
    }
    void readsTypedFactors()
    {
        QFETCH(QString, typed);
        QFETCH(TypedFactor, outcome);
        QFETCH(QString, factor);

        LongMultiplication first = board(u"12"_s, u"34"_s);
        QCOMPARE(first.typeFactor1(typed), outcome);
        QCOMPARE(first.factor1Text(), factor);
        const bool accepted = outcome == TypedFactor::Accepted;
        QCOMPARE(first.factor2Text(), accepted ? u"34"_s : u"x     34"_s);
        QCOMPARE(first.Producto(), factor.toDouble() * 34);
        QCOMPARE(first.expectedRows().size(), 2);
        QCOMPARE(first.CifrasFactor2().value(), 2);

        LongMultiplication second = board(u"34"_s, u"12"_s);
        QCOMPARE(second.typeFactor2(typed), outcome);
        QCOMPARE(second.factor1Text(), u"34"_s);
        QCOMPARE(second.factor2Text(), u"x     "_s + factor);
        QCOMPARE(second.Producto(), factor.toDouble() * 34);
        QCOMPARE(second.expectedRows().size(), factor.size());
        QCOMPARE(second.CifrasFactor2().value(), factor.size());
    }

    void theTypedLengthIsTheNextNumberOfDigits()
    {
        LongMultiplication model = board(u"12"_s, u"-34"_s);
        QVERIFY(!model.firstRowIsResult());
        appendFactor(random, 1234, 4);
        appendFactor(random, 567, 3);
        model.newExercise();
        QCOMPARE(model.Factor2(), 567.0);
    }

    void aNumberTooLargeForAnyProductIsTooLargeEvenTimesZero()
    {
        LongMultiplication model = board(u"0"_s, u"1"_s);
        QCOMPARE(model.typeFactor2(QString(400, u'9')), TypedFactor::TooLarge);
        QCOMPARE(model.factor2Text(), u"x     1"_s);
    }

    void tooManyDigitsKeepTheExercise()
    {
        LongMultiplication model = board(u"0"_s, u"1"_s);
        const QString longest = u"1"_s + QString(308, u'0');
        QCOMPARE(model.typeFactor2(longest), TypedFactor::Accepted);
        QCOMPARE(model.CifrasFactor2().value(), 309);
        appendFactor(random, 1234, 4);
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, model.newExercise());
        QCOMPARE(model.factor1Text(), u"0"_s);
        QCOMPARE(model.expectedRows().size(), 309);

        model.chooseDigits(u"9"_s);
        core::SeededRandom seeded;
        appendFactor(random, 1234, 4);
        for (int place = 0; place < 309; ++place)
            random.append({0.0f});
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, model.newExercise());
        QCOMPARE(model.factor1Text(), u"0"_s);
    }

    void captionsOfTheZerosToggle()
    {
        LongMultiplication model(random);
        model.toggleOcultarCeros();
        QVERIFY(model.OcultarCeros());
        QCOMPARE(model.zerosCaption(), u"&Ocultar ceros intermedios (Si)"_s);
        model.toggleOcultarCeros();
        QVERIFY(!model.OcultarCeros());
        QCOMPARE(model.zerosCaption(), u"&Ocultar ceros intermedios (no)"_s);
    }
};

QTEST_GUILESS_MAIN(LongMultiplicationTest)
#include "long_multiplication_test.moc"
