#include "core/errors.h"
#include "support/scripted_random.h"
#include "written/long_division.h"

#include <QtTest>

#include <limits>
#include <map>

using namespace Qt::StringLiterals;
using shell::Verdict;
using written::GridText;
using written::LongDivision;

class LongDivisionTest : public QObject {
    Q_OBJECT

private slots:
    void startsWithItsSettings();
    void drawsOperands_data();
    void drawsOperands();
    void redrawsWhatIsNotAboveTheRoundNumber();
    void largestNumberIsTwiceAsLikely_data();
    void largestNumberIsTwiceAsLikely();
    void forcedZeros_data();
    void forcedZeros();
    void forcedZerosDrawBothNumbersAgain();
    void digitsWaitForTheNextExercise();
    void decimalsAndTogglesDrawAtOnce();
    void lineWidthFollowsDigitsAndDecimals();
    void tooManyDigitsToDrawChangeNothing();
    void check_data();
    void check();
    void tooFewDecimalsCountNothing();
    void countsEveryWrongCheckAndTheFirstRightOne();
    void solvingEndsTheExerciseUncounted();
    void onlyNextMakesTheExercisePending();
    void countersStopAt32767();
    void typedDividend_data();
    void typedDividend();
    void ignoredAnswers();
    void typedDivisor_data();
    void typedDivisor();
    void typedBeyond32BitsChangesNothing();
    void typedOperandsKeepTheExercisesState();
    void smallestNumberByMinusOne();
    void itsOwnSolutionsAreRight();
    void speaksOfDivisionAndSquares();
    void leavesRoomForDivisorAndQuotient();
    void leavesRoomForEverySolution();
};

namespace {

/// The draw that gives number out of 10^digits.
float drawFor(int number, int digits)
{
    return static_cast<float>((number - 0.5) / std::pow(10.0, digits));
}

struct Drill {
    Drill(int dividend, int divisor, int decimals = 0)
        : division(random)
    {
        division.typeDividend(QString::number(dividend));
        division.typeDivisor(QString::number(divisor));
        const core::Int16 digits = division.settings().CifrasDividendo;
        random.append({drawFor(dividend, digits.value()),
            drawFor(divisor, division.settings().CifrasDivisor.value())});
        division.chooseDecimals(decimals);
    }

    Verdict check(const QString& quotient, const QStringList& lines)
    {
        GridText work = division.emptyWork();
        for (int row = 0; row < lines.size(); ++row)
            work.EscribeLinea(lines[row], row + 1, 0);
        return division.judge({quotient, work});
    }

    ScriptedRandom random;
    LongDivision division;
};

struct Counts {
    int exercises;
    int errors;
    bool pending;
    bool operator==(const Counts&) const = default;
};

Counts counts(const LongDivision& division)
{
    return {division.counters().Ejercicios.value(), division.counters().Errores.value(),
        division.isPending()};
}

} // namespace

void LongDivisionTest::startsWithItsSettings()
{
    ScriptedRandom random{drawFor(84, 2), drawFor(7, 1)};
    LongDivision division(random);
    QCOMPARE(random.left(), 2u);
    QCOMPARE(division.Divisor(), 1); // nothing is ever divided by 0
    QCOMPARE(division.AnchoLinea().value(), 6);
    division.newExercise();
    QCOMPARE(random.left(), 0u);
    QCOMPARE(division.Dividendo(), 84);
    QCOMPARE(division.Divisor(), 7);
    QCOMPARE(division.AnchoLinea().value(), 6);
    QCOMPARE(division.operationText(), u"84 ÷ 7"_s);
    QCOMPARE(division.emptyWork(), GridText(u" 84"_s, 6));
    QVERIFY(!division.settings().RestasIntermedias);
    QVERIFY(!division.settings().ForzarCeros);
    QVERIFY(counts(division) == (Counts{0, 0, true}));
}

void LongDivisionTest::drawsOperands_data()
{
    QTest::addColumn<int>("dividendDigits");
    QTest::addColumn<int>("divisorDigits");
    QTest::addColumn<float>("dividendDraw");
    QTest::addColumn<float>("divisorDraw");
    QTest::addColumn<int>("dividend");
    QTest::addColumn<int>("divisor");

    const float highest = std::nextafter(1.0f, 0.0f);
    QTest::newRow("lowest of 2 and 1 digits") << 2 << 1 << 0.105f << 0.15f << 11 << 2;
    QTest::newRow("highest of 2 and 1 digits") << 2 << 1 << highest << highest << 99 << 9;
    QTest::newRow("below the highest") << 2 << 1 << 0.985f << 0.85f << 99 << 9;
    QTest::newRow("1 digit by 6") << 1 << 6 << 0.15f << highest << 2 << 999999;
    QTest::newRow("6 digits by 3") << 6 << 3 << 0.5f << 0.1001f << 500001 << 101;
    QTest::newRow("highest of 6 digits") << 6 << 1 << highest << 0.15f << 999999 << 2;
}

void LongDivisionTest::drawsOperands()
{
    QFETCH(int, dividendDigits);
    QFETCH(int, divisorDigits);
    QFETCH(float, dividendDraw);
    QFETCH(float, divisorDraw);
    ScriptedRandom random{dividendDraw, divisorDraw};
    LongDivision division(random);
    division.chooseDividendDigits(dividendDigits);
    division.chooseDivisorDigits(divisorDigits);
    division.newExercise();
    QTEST(division.Dividendo(), "dividend");
    QTEST(division.Divisor(), "divisor");
    QCOMPARE(random.left(), 0u);
}

void LongDivisionTest::redrawsWhatIsNotAboveTheRoundNumber()
{
    ScriptedRandom random{0.0f, 0.0999f, 0.115f, 0.0f, 0.0999f, 0.31f};
    LongDivision division(random);
    division.newExercise();
    QCOMPARE(division.Dividendo(), 12); // not 1, not 10
    QCOMPARE(division.Divisor(), 4); // not 1, twice
    QCOMPARE(random.left(), 0u);
}

void LongDivisionTest::largestNumberIsTwiceAsLikely_data()
{
    QTest::addColumn<int>("digits");
    QTest::newRow("one digit") << 1;
    QTest::newRow("two digits") << 2;
    QTest::newRow("three digits") << 3;
}

void LongDivisionTest::largestNumberIsTwiceAsLikely()
{
    QFETCH(int, digits);
    core::SeededRandom random;
    random.seed(5);
    LongDivision division(random);
    division.chooseDividendDigits(digits);
    division.chooseDivisorDigits(digits);
    constexpr int Draws = 100000;
    std::map<int, int> dividends;
    std::map<int, int> divisors;
    for (int i = 0; i < Draws; ++i) {
        division.newExercise();
        ++dividends[division.Dividendo()];
        ++divisors[division.Divisor()];
    }
    const int power = qRound(std::pow(10, digits));
    const int lowest = power / 10 + 1;
    const int values = power - lowest; // the largest is one value, counted twice below
    for (const auto& seen : {dividends, divisors}) {
        QCOMPARE(static_cast<int>(seen.size()), values);
        QCOMPARE(seen.begin()->first, lowest);
        QCOMPARE(seen.rbegin()->first, power - 1);
        for (const auto& [number, times] : seen) {
            const double expected = Draws * (number == power - 1 ? 2.0 : 1.0) / (values + 1);
            QVERIFY2(std::abs(times - expected) < 5 * std::sqrt(expected),
                qPrintable(u"%1: %2 times"_s.arg(number).arg(times)));
        }
    }
}

void LongDivisionTest::forcedZeros_data()
{
    QTest::addColumn<int>("dividend");
    QTest::addColumn<int>("divisor");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("12") << 84 << 7 << false;
    QTest::newRow("below 10 without a zero") << 5 << 3 << true;
    QTest::newRow("just below 10") << 989 << 99 << true; // 9.989899
    QTest::newRow("11") << 99 << 9 << false;
    QTest::newRow("20") << 60 << 3 << true;
    QTest::newRow("102") << 612 << 6 << true;
    QTest::newRow("only the decimals have it: 16.20833") << 389 << 24 << true;
    QTest::newRow("12.05882") << 205 << 17 << true;
    QTest::newRow("seven digits have none: 11.76471") << 200 << 17 << false;
    QTest::newRow("no digit has it: 14.28571") << 200 << 14 << false;
    QTest::newRow("six whole digits: 124999.9") << 999999 << 8 << false;
    QTest::newRow("an exact 10") << 90 << 9 << true;
}

void LongDivisionTest::forcedZeros()
{
    QFETCH(int, dividend);
    QFETCH(int, divisor);
    QFETCH(bool, accepted);
    const auto dividendDigits = static_cast<int>(QString::number(dividend).size());
    const auto divisorDigits = static_cast<int>(QString::number(divisor).size());
    ScriptedRandom random{drawFor(dividend, dividendDigits), drawFor(divisor, divisorDigits)};
    LongDivision division(random);
    division.chooseDividendDigits(dividendDigits);
    division.chooseDivisorDigits(divisorDigits);
    if (accepted)
        division.toggleForcedZeros();
    else // a rejected pair asks for draws that are not there
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, division.toggleForcedZeros());
    QCOMPARE(division.Dividendo(), accepted ? dividend : 0);
    QCOMPARE(random.left(), 0u);
}

void LongDivisionTest::forcedZerosDrawBothNumbersAgain()
{
    ScriptedRandom random{drawFor(84, 2), drawFor(7, 1), drawFor(60, 2), drawFor(3, 1)};
    LongDivision division(random);
    division.toggleForcedZeros();
    QVERIFY(division.settings().ForzarCeros);
    QCOMPARE(division.operationText(), u"60 ÷ 3"_s);
    random.append({drawFor(84, 2), drawFor(7, 1)});
    division.toggleForcedZeros();
    QVERIFY(!division.settings().ForzarCeros);
    QCOMPARE(division.operationText(), u"84 ÷ 7"_s);
}

void LongDivisionTest::digitsWaitForTheNextExercise()
{
    Drill drill(84, 7);
    drill.division.chooseDividendDigits(4);
    drill.division.chooseDivisorDigits(2);
    QCOMPARE(drill.division.operationText(), u"84 ÷ 7"_s);
    QCOMPARE(drill.division.AnchoLinea().value(), 6);
    drill.random.append({drawFor(1234, 4), drawFor(56, 2)});
    drill.division.nextExercise();
    QCOMPARE(drill.division.operationText(), u"1234 ÷ 56"_s);
    QCOMPARE(drill.division.AnchoLinea().value(), 8);
}

void LongDivisionTest::decimalsAndTogglesDrawAtOnce()
{
    Drill drill(84, 7);
    LongDivision& division = drill.division;
    drill.random.append({drawFor(85, 2), drawFor(7, 1)});
    division.chooseDecimals(3);
    QCOMPARE(division.operationText(), u"85 ÷ 7"_s);
    QCOMPARE(division.settings().DecimalesCociente.value(), 3);
    drill.random.append({drawFor(86, 2), drawFor(7, 1)});
    division.toggleProducts();
    QCOMPARE(division.operationText(), u"86 ÷ 7"_s);
    QVERIFY(division.settings().RestasIntermedias);
    drill.random.append({drawFor(87, 2), drawFor(7, 1)});
    division.toggleProducts();
    QCOMPARE(division.operationText(), u"87 ÷ 7"_s);
    QVERIFY(!division.settings().RestasIntermedias);
    QCOMPARE(drill.random.left(), 0u);
}

void LongDivisionTest::lineWidthFollowsDigitsAndDecimals()
{
    Drill drill(84, 7, 5);
    QCOMPARE(drill.division.AnchoLinea().value(), 11);
    QVERIFY(drill.division.typeDividend(u"123456"_s));
    QCOMPARE(drill.division.AnchoLinea().value(), 15);
}

void LongDivisionTest::tooManyDigitsToDrawChangeNothing()
{
    for (const QString& typed : {u"1234567890"_s, QString(59, u'0') + u'5'}) {
        Drill drill(84, 7);
        QVERIFY(drill.division.typeDividend(typed));
        const QString operation = drill.division.operationText();
        const core::Int16 width = drill.division.AnchoLinea();
        drill.random.append({0.5f, 0.5f});
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill.division.chooseDecimals(2));
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill.division.toggleForcedZeros());
        QCOMPARE(drill.division.operationText(), operation);
        QCOMPARE(drill.division.AnchoLinea(), width);
        QCOMPARE(drill.division.settings().DecimalesCociente.value(), 0);
        QVERIFY(!drill.division.settings().ForzarCeros);
    }
}

void LongDivisionTest::check_data()
{
    QTest::addColumn<int>("dividend");
    QTest::addColumn<int>("divisor");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("quotient");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<Verdict>("verdict");

    const auto right = Verdict::Right;
    const auto wrong = Verdict::Wrong;
    const auto tooFew = Verdict::NotJudged;
    using Lines = QStringList;

    QTest::newRow("17 / 5") << 17 << 5 << 0 << u"3"_s << Lines{u"  2   "_s} << right;
    QTest::newRow("no remainder written") << 17 << 5 << 0 << u"3"_s << Lines{} << wrong;
    QTest::newRow("wrong remainder") << 17 << 5 << 0 << u"3"_s << Lines{u"  3   "_s} << wrong;
    QTest::newRow("wrong quotient") << 17 << 5 << 0 << u"4"_s << Lines{u"  2   "_s} << wrong;
    QTest::newRow("nothing typed") << 17 << 5 << 0 << QString() << Lines{} << wrong;
    QTest::newRow("the quotient is read as a number")
        << 17 << 5 << 0 << u" 03 sobran 2"_s << Lines{u"  2   "_s} << right;
    QTest::newRow("the last line counts")
        << 84 << 7 << 0 << u"12"_s << Lines{u" 14   "_s, u"  0   "_s} << right;
    QTest::newRow("what follows an empty line does not")
        << 84 << 7 << 0 << u"12"_s << Lines{u" 14   "_s, u"      "_s, u"  0   "_s} << wrong;
    QTest::newRow("a text reads 0") << 84 << 7 << 0 << u"12"_s << Lines{u" nada "_s} << right;
    QTest::newRow("smaller than the divisor, nothing written")
        << 13 << 95 << 0 << u"0"_s << Lines{} << right;
    QTest::newRow("decimals where none are asked for")
        << 17 << 5 << 0 << u"3,4"_s << Lines{u"  0   "_s} << wrong;

    QTest::newRow("one decimal of three, remainder")
        << 25 << 2 << 3 << u"12,5"_s << Lines{u"  1"_s} << tooFew;
    QTest::newRow("one decimal of three, nothing written")
        << 25 << 2 << 3 << u"12,5"_s << Lines{} << tooFew;
    QTest::newRow("one decimal of three, exact")
        << 11 << 4 << 3 << u"2,75"_s << Lines{u"   0"_s} << right;
    QTest::newRow("no decimals, exact") << 84 << 7 << 2 << u"12"_s << Lines{u"  0"_s} << right;
    QTest::newRow("no comma: every character counts")
        << 85 << 7 << 2 << u"12"_s << Lines{u"  1"_s} << wrong;
    QTest::newRow("no comma, one character of two")
        << 17 << 5 << 2 << u"3"_s << Lines{u"  2"_s} << tooFew;
    QTest::newRow("a point is no comma, so three decimals")
        << 22 << 7 << 3 << u"3.1"_s << Lines{u"   3"_s} << right; // 21.7 + 0.003
    QTest::newRow("a comma at the end") << 17 << 5 << 1 << u"3,"_s << Lines{u"  2"_s} << tooFew;
    QTest::newRow("22 / 7 to five")
        << 22 << 7 << 5 << u"3,14285"_s << Lines{u"       5"_s} << right;
    QTest::newRow("22 / 7 to six where five are asked for")
        << 22 << 7 << 5 << u"3,142857"_s << Lines{u"        1"_s} << right;
    QTest::newRow("the sum is rounded")
        << 22 << 7 << 2 << u"3,14"_s << Lines{u"   9"_s} << right; // 21.98 + 0.09
    QTest::newRow("a sum above the half")
        << 22 << 7 << 1 << u"3,2"_s << Lines{u"   2"_s} << wrong; // 22.4 + 0.2
    QTest::newRow("a half goes to the even 22")
        << 22 << 5 << 1 << u"4,3"_s << Lines{u"  0"_s} << right; // 21.5
    QTest::newRow("a half goes to the even 24")
        << 23 << 5 << 1 << u"4,7"_s << Lines{u"  0"_s} << wrong; // 23.5
    QTest::newRow("a half from below goes to the even 22")
        << 23 << 5 << 1 << u"4,5"_s << Lines{u"  0"_s} << wrong; // 22.5
    QTest::newRow("decimals, nothing typed") << 22 << 7 << 2 << QString() << Lines{} << tooFew;
    QTest::newRow("a quotient beyond every number")
        << 22 << 7 << 2 << QString(400, u'9') << Lines{u" 1"_s} << wrong;
}

void LongDivisionTest::check()
{
    QFETCH(int, dividend);
    QFETCH(int, divisor);
    QFETCH(int, decimals);
    QFETCH(QString, quotient);
    QFETCH(QStringList, lines);
    Drill drill(dividend, divisor, decimals);
    QCOMPARE(drill.division.Dividendo(), dividend);
    QCOMPARE(drill.division.Divisor(), divisor);
    QTEST(drill.check(quotient, lines), "verdict");
}

void LongDivisionTest::tooFewDecimalsCountNothing()
{
    Drill drill(25, 2, 3);
    QCOMPARE(drill.check(u"12,5"_s, {u"  1"_s}), Verdict::NotJudged);
    QCOMPARE(drill.division.tooFewDecimals(), u"Debe sacar al menos 3 decimales."_s);
    QVERIFY(!drill.division.verdict().verdict());
    QVERIFY(counts(drill.division) == (Counts{0, 0, true}));
}

void LongDivisionTest::countsEveryWrongCheckAndTheFirstRightOne()
{
    Drill drill(17, 5);
    QCOMPARE(drill.check(u"4"_s, {}), Verdict::Wrong);
    QVERIFY(counts(drill.division) == (Counts{1, 1, true}));
    QCOMPARE(drill.division.verdict().text(), u"Resultado incorrecto"_s);
    QCOMPARE(drill.check(u"5"_s, {}), Verdict::Wrong);
    QVERIFY(counts(drill.division) == (Counts{2, 2, true}));
    QCOMPARE(drill.check(u"3"_s, {u"  2"_s}), Verdict::Right);
    QVERIFY(counts(drill.division) == (Counts{3, 2, false}));
    QCOMPARE(drill.division.verdict().text(), u"resultado correcto"_s);
    QCOMPARE(drill.check(u"3"_s, {u"  2"_s}), Verdict::Right);
    QCOMPARE(drill.check(u"4"_s, {u"  2"_s}), Verdict::Wrong);
    QVERIFY(counts(drill.division) == (Counts{3, 2, false}));
}

void LongDivisionTest::solvingEndsTheExerciseUncounted()
{
    Drill drill(17, 5);
    QCOMPARE(drill.division.showSolution().quotient, u"3"_s);
    QVERIFY(counts(drill.division) == (Counts{0, 0, false}));
    QCOMPARE(drill.check(u"3"_s, {u"  2"_s}), Verdict::Right);
    QVERIFY(counts(drill.division) == (Counts{0, 0, false}));
}

void LongDivisionTest::onlyNextMakesTheExercisePending()
{
    Drill drill(17, 5);
    LongDivision& division = drill.division;
    division.showSolution();
    for (int i = 0; i < 4; ++i)
        drill.random.append({drawFor(60, 2), drawFor(3, 1)});
    division.chooseDecimals(1);
    QVERIFY(!division.isPending());
    division.toggleProducts();
    QVERIFY(!division.isPending());
    division.toggleForcedZeros();
    QVERIFY(!division.isPending());
    division.nextExercise();
    QVERIFY(division.isPending());
    QCOMPARE(drill.random.left(), 0u);
}

void LongDivisionTest::countersStopAt32767()
{
    Drill drill(17, 5);
    for (int i = 0; i < 32767; ++i)
        drill.check(u"4"_s, {});
    QVERIFY(counts(drill.division) == (Counts{32767, 32767, true}));
    QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill.check(u"4"_s, {}));
    QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill.check(u"3"_s, {u"  2"_s}));
    QVERIFY(counts(drill.division) == (Counts{32767, 32767, true}));
}

void LongDivisionTest::typedDividend_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<qint32>("dividend");
    QTest::addColumn<int>("digits");

    QTest::newRow("three digits") << u"123"_s << 123 << 3;
    QTest::newRow("leading zeros count") << u"007"_s << 7 << 3;
    QTest::newRow("blanks around do not") << u"  12   "_s << 12 << 2;
    QTest::newRow("whole part, the whole text counts") << u"12,75"_s << 12 << 5;
    QTest::newRow("negative, cut towards zero") << u"-12,75"_s << -12 << 6;
    QTest::newRow("text after the number") << u"12 y pico"_s << 12 << 9;
    QTest::newRow("no number reads 0") << u"doce"_s << 0 << 4;
    QTest::newRow("zero") << u"0"_s << 0 << 1;
    QTest::newRow("largest") << u"2147483647"_s << 2147483647 << 10;
    QTest::newRow("largest and a fraction") << u"2147483647,9"_s << 2147483647 << 12;
    QTest::newRow("smallest") << u"-2147483648"_s << std::numeric_limits<qint32>::min() << 11;
    QTest::newRow("smallest and a fraction")
        << u"-2147483648,9"_s << std::numeric_limits<qint32>::min() << 13;
}

void LongDivisionTest::typedDividend()
{
    QFETCH(QString, typed);
    QFETCH(qint32, dividend);
    QFETCH(int, digits);
    Drill drill(84, 7, 2);
    QVERIFY(drill.division.typeDividend(typed));
    QCOMPARE(drill.division.Dividendo(), dividend);
    QCOMPARE(drill.division.settings().CifrasDividendo.value(), digits);
    QCOMPARE(drill.division.AnchoLinea().value(), digits + 6);
    QCOMPARE(drill.division.operationText(), u"%1 ÷ 7"_s.arg(dividend));
    QCOMPARE(drill.division.emptyWork(), GridText(u" %1"_s.arg(dividend), digits + 6));
}

void LongDivisionTest::ignoredAnswers()
{
    Drill drill(84, 7);
    for (const QString& typed : {QString(), u"   "_s}) {
        QVERIFY(!drill.division.typeDividend(typed));
        QVERIFY(!drill.division.typeDivisor(typed));
    }
    for (const QString& typed : {u"0"_s, u"000"_s, u"siete"_s, u"0,5"_s, u"-0,9"_s})
        QVERIFY(!drill.division.typeDivisor(typed));
    QCOMPARE(drill.division.operationText(), u"84 ÷ 7"_s);
    QCOMPARE(drill.division.settings().CifrasDividendo.value(), 2);
    QCOMPARE(drill.division.settings().CifrasDivisor.value(), 1);
}

void LongDivisionTest::typedDivisor_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<qint32>("divisor");
    QTest::addColumn<int>("digits");

    QTest::newRow("two digits") << u"12"_s << 12 << 2;
    QTest::newRow("leading zeros count") << u"0012"_s << 12 << 4;
    QTest::newRow("whole part") << u" 3,9 "_s << 3 << 3;
    QTest::newRow("negative") << u"-4"_s << -4 << 2;
}

void LongDivisionTest::typedDivisor()
{
    QFETCH(QString, typed);
    QFETCH(qint32, divisor);
    QFETCH(int, digits);
    Drill drill(84, 7);
    QVERIFY(drill.division.typeDivisor(typed));
    QCOMPARE(drill.division.Divisor(), divisor);
    QCOMPARE(drill.division.settings().CifrasDivisor.value(), digits);
    QCOMPARE(drill.division.operationText(), u"84 ÷ %1"_s.arg(divisor));
    QCOMPARE(drill.division.AnchoLinea().value(), 6);
}

void LongDivisionTest::typedBeyond32BitsChangesNothing()
{
    Drill drill(84, 7);
    for (const QString& typed : {u"2147483648"_s, u"-2147483649"_s, QString(400, u'9'),
             QString(60, u'0') + u'5', QString(33000, u'0') + u'5'}) {
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill.division.typeDividend(typed));
        QVERIFY_THROWS_EXCEPTION(core::OverflowError, drill.division.typeDivisor(typed));
    }
    QCOMPARE(drill.division.operationText(), u"84 ÷ 7"_s);
    QCOMPARE(drill.division.settings().CifrasDividendo.value(), 2);
    QCOMPARE(drill.division.settings().CifrasDivisor.value(), 1);
    QCOMPARE(drill.division.AnchoLinea().value(), 6);
}

void LongDivisionTest::typedOperandsKeepTheExercisesState()
{
    Drill drill(17, 5);
    drill.check(u"4"_s, {});
    drill.division.typeDividend(u"18"_s);
    drill.division.typeDivisor(u"6"_s);
    QVERIFY(counts(drill.division) == (Counts{1, 1, true}));
    QCOMPARE(drill.division.verdict().text(), u"Resultado incorrecto"_s);
    drill.division.showSolution();
    drill.division.typeDividend(u"18"_s);
    drill.division.typeDivisor(u"6"_s);
    QVERIFY(!drill.division.isPending());
}

void LongDivisionTest::smallestNumberByMinusOne()
{
    for (const int decimals : {0, 1}) {
        Drill drill(84, 7, decimals);
        drill.division.typeDividend(u"-2147483648"_s);
        drill.division.typeDivisor(u"-1"_s);
        QCOMPARE(drill.check(u"1"_s, {u" 0"_s}), Verdict::Wrong);
        QCOMPARE(drill.check(u"2147483648"_s, {u" 0"_s}), Verdict::Right);
    }
}

void LongDivisionTest::itsOwnSolutionsAreRight()
{
    core::SeededRandom random;
    random.seed(11);
    for (int i = 0; i < 3000; ++i) {
        LongDivision division(random);
        division.chooseDividendDigits(i % 6 + 1);
        division.chooseDivisorDigits(i / 6 % 6 + 1);
        division.chooseDecimals(i / 36 % 6);
        if (i % 2 == 1)
            division.toggleProducts();
        if (i % 4 == 3)
            division.typeDividend(QString::number(-division.Dividendo()));
        const written::WorkedDivision worked = division.showSolution();
        QVERIFY2(division.judge({worked.quotient, worked.work}) == Verdict::Right,
            qPrintable(division.operationText() + u" = "_s + worked.quotient));
    }
}

void LongDivisionTest::speaksOfDivisionAndSquares()
{
    QCOMPARE(Drill(71, 3).division.spokenExercise(), u"71 entre 3"_s);
    QCOMPARE(Drill(71, 3, 1).division.spokenExercise(), u"71 entre 3, con 1 decimal"_s);
    Drill drill(71, 3, 2);
    QCOMPARE(drill.division.spokenExercise(), u"71 entre 3, con 2 decimales"_s);
    QCOMPARE(LongDivision::spokenSolution(drill.division.showSolution()),
        u"Solución: cociente 23,66, resto 2"_s);

    GridText work(u" 71"_s, 6);
    work.EscribeLinea(u"11 3"_s, 1, 1);
    work.EscribeLinea(u"2"_s, 2, 2);
    QCOMPARE(LongDivision::spokenSquare(work, 1), u"dividendo"_s);
    QCOMPARE(LongDivision::spokenSquare(work, 6 + 1), u"línea 1; del dividendo, 7"_s);
    QCOMPARE(LongDivision::spokenSquare(work, 6 + 4), u"línea 1"_s);
    QCOMPARE(LongDivision::spokenSquare(work, 12 + 1), u"línea 2; encima, 1; del dividendo, 7"_s);
    QCOMPARE(LongDivision::spokenSquare(work, 18 + 2), u"línea 3; encima, 2; del dividendo, 1"_s);
    QCOMPARE(LongDivision::spokenSquare(work, 12 + 4), u"línea 2; encima, 3"_s);
    QCOMPARE(LongDivision::spokenSquare(work, 12 + 5), u"línea 2"_s);
    QCOMPARE( // over a blank
        LongDivision::spokenSquare(work, 18 + 1), u"línea 3; encima, 1; del dividendo, 7"_s);
}

/// And for a line more, but not for many.
void LongDivisionTest::leavesRoomForEverySolution()
{
    core::SeededRandom random;
    random.seed(12);
    int least = 99;
    for (int i = 0; i < 1000; ++i) {
        LongDivision division(random);
        division.chooseDividendDigits(i % 6 + 1);
        division.chooseDecimals(i / 6 % 6);
        division.toggleProducts();
        const GridText work = division.showSolution().work;
        const auto figures = work.text().trimmed().size() + 1; // behind a blank
        const auto lines = static_cast<int>((figures - 1) / work.columns() + 1);
        QVERIFY(lines < division.workLines());
        least = std::min(least, division.workLines() - lines);
    }
    QCOMPARE(least, 1);
}

void LongDivisionTest::leavesRoomForDivisorAndQuotient()
{
    QCOMPARE(Drill(71, 3).division.rightFigures(), 2);
    QCOMPARE(Drill(71, 3, 1).division.rightFigures(), 4); // 23,6
    QCOMPARE(Drill(71, 3, 2).division.rightFigures(), 5); // 23,66
    QCOMPARE(Drill(7, 12345).division.rightFigures(), 5);
}

QTEST_GUILESS_MAIN(LongDivisionTest)
#include "long_division_test.moc"
