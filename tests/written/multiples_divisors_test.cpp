#include "written/multiples_divisors.h"

#include "support/scripted_random.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <vector>

using namespace Qt::StringLiterals;
using written::MultiplesDivisors;
using Mode = MultiplesDivisors::Mode;
using shell::Verdict;
using Answers = std::array<double, 3>;

namespace {

MultiplesDivisors multiplesOf(int number)
{
    static ScriptedRandom random;
    random.append({0.0f});
    random.appendInteger(number, 9, 2);
    MultiplesDivisors model(random);
    model.newExercise();
    return model;
}

MultiplesDivisors divisorsOf(const std::array<int, 3>& factors)
{
    static ScriptedRandom random;
    random.append({0.5f});
    for (const int factor : factors)
        random.appendInteger(factor, 10, 1);
    MultiplesDivisors model(random);
    model.newExercise();
    return model;
}

/// Index of the first wrong answer; 0 where there is none.
int firstWrong(const MultiplesDivisors& model)
{
    return model.wrongAnswers().empty() ? 0 : model.wrongAnswers().front();
}

/// The divisors of a number other than 1 and itself, found without dividing.
std::set<int> properDivisors(int number)
{
    std::set<int> divisors;
    for (int a = 2; a < number; ++a) {
        for (int b = 2; a * b <= number; ++b) {
            if (a * b == number)
                divisors.insert(a);
        }
    }
    return divisors;
}

/// Every number that divisors are asked of, with one triple of factors that makes it.
std::map<int, std::array<int, 3>> divisorNumbers()
{
    std::map<int, std::array<int, 3>> numbers;
    for (int a = 1; a <= 10; ++a) {
        for (int b = a + 1; b <= 10; ++b) {
            for (int c = b + 1; c <= 10; ++c)
                numbers[a * b * c] = {a, b, c};
        }
    }
    return numbers;
}

} // namespace

class MultiplesDivisorsTest : public QObject {
    Q_OBJECT

private slots:
    void kindsAreDrawnWithEqualChance_data();
    void kindsAreDrawnWithEqualChance();
    void drawsTheNumberOfMultiplesFrom2To10();
    void redrawsFactorsUntilTheyDiffer();
    void everyTripleOfFactorsMakesItsNumber();
    void everyMultipleIsAccepted();
    void everyDivisorIsAccepted();
    void answers_data();
    void answers();
    void shownMultiplesAreRight();
    void shownDivisorsAreWrongWhenOneOfThemIs1();
    void threeInTenShownDivisorsHoldA1();
    void eightNumbersHaveNoThreeDivisors();
    void aRepeatedVerdictChanges();
    void speaksInOneLine();
    void namesEveryWrongAnswer();
};

void MultiplesDivisorsTest::kindsAreDrawnWithEqualChance_data()
{
    QTest::addColumn<float>("draw");
    QTest::addColumn<Mode>("mode");
    QTest::newRow("lowest draw") << 0.0f << Mode::Multiples;
    QTest::newRow("below the half") << std::nextafter(0.5f, 0.0f) << Mode::Multiples;
    QTest::newRow("the half") << 0.5f << Mode::Divisors;
    QTest::newRow("highest draw") << std::nextafter(1.0f, 0.0f) << Mode::Divisors;
}

void MultiplesDivisorsTest::kindsAreDrawnWithEqualChance()
{
    QFETCH(float, draw);
    QFETCH(Mode, mode);
    ScriptedRandom random{draw, 0.25f, 0.35f, 0.45f}; // 3, 4, 5 as factors, 4 for multiples
    MultiplesDivisors model(random);
    QCOMPARE(random.left(), 4u); // nothing is drawn before the generator is seeded
    model.newExercise();
    QCOMPARE(model.mode(), mode);
    const bool multiples = mode == Mode::Multiples;
    QCOMPARE(model.number(), multiples ? 4 : 60);
    QCOMPARE(random.left(), multiples ? 2u : 0u);
    QCOMPARE(model.instruction(),
        multiples ? u"Introduzca tres múltiplos diferentes del número indicado"_s
                  : u"Introduzca tres divisores diferentes del número indicado.\n"
                    "No puede usar el 1 ni el número que se proporciona"_s);
}

void MultiplesDivisorsTest::drawsTheNumberOfMultiplesFrom2To10()
{
    ScriptedRandom random{
        0.0f, 0.0f, 0.0f, 0.1111f, 0.0f, 0.1112f, 0.0f, std::nextafter(1.0f, 0.0f)};
    MultiplesDivisors model(random);
    for (const int expected : {2, 2, 3, 10}) {
        model.newExercise();
        QCOMPARE(model.number(), expected);
    }
    QCOMPARE(random.left(), 0u);
}

void MultiplesDivisorsTest::redrawsFactorsUntilTheyDiffer()
{
    ScriptedRandom random{
        0.9f, 0.0f, 0.0f, 0.0999f, std::nextafter(1.0f, 0.0f), 0.0f, 0.95f, 0.35f};
    MultiplesDivisors model(random);
    model.newExercise();
    QCOMPARE(model.showSolution(), (std::array{1, 10, 4}));
    QCOMPARE(model.number(), 40);
    QCOMPARE(random.left(), 0u);
    // Factors of the exercise before do not count.
    random.append({0.9f, 0.0f, 0.95f, 0.35f});
    model.newExercise();
    QCOMPARE(model.showSolution(), (std::array{1, 10, 4}));
    QCOMPARE(random.left(), 0u);
}

void MultiplesDivisorsTest::everyTripleOfFactorsMakesItsNumber()
{
    int highest = 0;
    for (int a = 1; a <= 10; ++a) {
        for (int b = 1; b <= 10; ++b) {
            for (int c = 1; c <= 10; ++c) {
                if (a == b || a == c || b == c)
                    continue;
                auto model = divisorsOf({a, b, c});
                QCOMPARE(model.number(), a * b * c);
                QCOMPARE(model.showSolution(), (std::array{a, b, c}));
                highest = std::max(highest, model.number());
            }
        }
    }
    QCOMPARE(highest, 720);
}

void MultiplesDivisorsTest::everyMultipleIsAccepted()
{
    for (int number = 2; number <= 10; ++number) {
        auto model = multiplesOf(number);
        QCOMPARE(model.number(), number);
        std::set<int> multiples;
        for (int multiple = 2 * number; multiple <= 400; multiple += number)
            multiples.insert(multiple);
        // Beside two right answers further up, the third decides.
        const Answers others{0, 41.0 * number * 10, 42.0 * number * 10};
        for (int answer = 1; answer <= 400; ++answer) {
            for (std::size_t place = 0; place < 3; ++place) {
                Answers typed = others;
                std::swap(typed[0], typed.at(place));
                typed.at(place) = answer;
                const auto verdict = model.judge(typed);
                QCOMPARE(verdict, multiples.contains(answer) ? Verdict::Right : Verdict::Wrong);
                if (verdict == Verdict::Wrong)
                    QCOMPARE(firstWrong(model), static_cast<int>(place));
            }
        }
    }
}

void MultiplesDivisorsTest::everyDivisorIsAccepted()
{
    int withTooFew = 0;
    for (const auto& [number, factors] : divisorNumbers()) {
        auto model = divisorsOf(factors);
        const std::set<int> divisors = properDivisors(number);
        if (divisors.size() < 3) {
            ++withTooFew;
            for (int answer = 1; answer <= number + 1; ++answer)
                QCOMPARE(model.judge({2, 3, static_cast<double>(answer)}), Verdict::Wrong);
            continue;
        }
        for (int answer = 1; answer <= number + 1; ++answer) {
            std::vector<int> others;
            for (const int divisor : divisors) {
                if (divisor != answer && others.size() < 2)
                    others.push_back(divisor);
            }
            const auto verdict = model.judge({static_cast<double>(others[0]),
                static_cast<double>(others[1]), static_cast<double>(answer)});
            QCOMPARE(verdict, divisors.contains(answer) ? Verdict::Right : Verdict::Wrong);
            if (verdict == Verdict::Wrong)
                QCOMPARE(firstWrong(model), 2);
        }
    }
    QVERIFY(withTooFew > 0); // 6, 8, 10, 14 …
}

void MultiplesDivisorsTest::answers_data()
{
    QTest::addColumn<bool>("divisors");
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<Verdict>("verdict");
    QTest::addColumn<int>("wrongAnswer");
    const auto four = [](const char* name, const Answers& answers, Verdict verdict,
                          int wrong = 0) {
        QTest::newRow(name) << false << answers << verdict << wrong;
    };
    four("4: three multiples", {8, 12, 16}, Verdict::Right);
    four("4: in any order", {400, 8, 12}, Verdict::Right);
    four("4: the number itself", {4, 8, 12}, Verdict::Wrong, 0);
    four("4: repeated", {8, 8, 12}, Verdict::Wrong, 1);
    four("4: repeated apart", {8, 12, 8}, Verdict::Wrong, 2);
    four("4: not a multiple", {8, 13, 16}, Verdict::Wrong, 1);
    four("4: wrong before repeated", {9, 8, 8}, Verdict::Wrong, 0);
    four("4: the same wrong one twice", {9, 9, 8}, Verdict::Wrong, 0);
    four("4: the number beside its multiples", {8, 12, 4}, Verdict::Wrong, 2);
    four("4: a divisor", {8, 2, 16}, Verdict::Wrong, 1);
    four("4: a fraction", {8.5, 12, 16}, Verdict::Wrong, 0);
    four("4: beyond 16 and 32 bits", {40000, 4294967296.0, 1e18}, Verdict::Right);
    four("4: the largest number there is", {std::numeric_limits<double>::max(), 8, 9},
        Verdict::Wrong, 2);
    four("4: nothing typed", {0, 8, 12}, Verdict::NotJudged);
    four("4: below 1", {8, 0.5, 12}, Verdict::NotJudged);
    four("4: negative", {8, 12, -16}, Verdict::NotJudged);
    four("4: invalid and wrong", {4, 4, 0}, Verdict::NotJudged);

    const auto sixty = [](const char* name, const Answers& answers, Verdict verdict,
                           int wrong = 0) {
        QTest::newRow(name) << true << answers << verdict << wrong;
    };
    sixty("60: three divisors", {2, 3, 4}, Verdict::Right);
    sixty("60: the factors", {3, 4, 5}, Verdict::Right);
    sixty("60: 1", {1, 2, 3}, Verdict::Wrong, 0);
    sixty("60: the number itself", {60, 2, 3}, Verdict::Wrong, 0);
    sixty("60: repeated", {5, 3, 5}, Verdict::Wrong, 2);
    sixty("60: not a divisor", {2, 3, 7}, Verdict::Wrong, 2);
    sixty("60: a multiple", {2, 120, 3}, Verdict::Wrong, 1);
    sixty("60: a fraction that goes into it", {2, 3, 2.5}, Verdict::Wrong, 2);
    sixty("60: beyond 16 bits", {2, 3, 6000000}, Verdict::Wrong, 2);
    sixty("60: nothing typed", {2, 3, 0}, Verdict::NotJudged);
}

void MultiplesDivisorsTest::answers()
{
    QFETCH(bool, divisors);
    QFETCH(Answers, answers);
    auto model = divisors ? divisorsOf({3, 4, 5}) : multiplesOf(4);
    const auto verdict = model.judge(answers);
    QTEST(verdict, "verdict");
    if (verdict == Verdict::Wrong)
        QTEST(firstWrong(model), "wrongAnswer");
}

void MultiplesDivisorsTest::shownMultiplesAreRight()
{
    for (int number = 2; number <= 10; ++number) {
        auto model = multiplesOf(number);
        const auto [a, b, c] = model.showSolution();
        QCOMPARE((std::array{a, b, c}), (std::array{3 * number, 4 * number, 5 * number}));
        QCOMPARE(model.judge({double(a), double(b), double(c)}), Verdict::Right);
    }
}

void MultiplesDivisorsTest::shownDivisorsAreWrongWhenOneOfThemIs1()
{
    const auto judge = [](MultiplesDivisors model) {
        const auto [a, b, c] = model.showSolution();
        const auto verdict = model.judge({double(a), double(b), double(c)});
        return std::pair(verdict, firstWrong(model));
    };
    QCOMPARE(divisorsOf({1, 2, 3}).number(), 6);
    QCOMPARE(judge(divisorsOf({1, 2, 3})).first, Verdict::Wrong);
    QCOMPARE(judge(divisorsOf({2, 3, 1})).second, 2);
    QCOMPARE(judge(divisorsOf({2, 3, 5})).first, Verdict::Right);
}

void MultiplesDivisorsTest::threeInTenShownDivisorsHoldA1()
{
    int triples = 0;
    int withA1 = 0;
    for (int a = 1; a <= 10; ++a) {
        for (int b = a + 1; b <= 10; ++b) {
            for (int c = b + 1; c <= 10; ++c) {
                ++triples;
                withA1 += std::ranges::count(divisorsOf({a, b, c}).showSolution(), 1) > 0 ? 1 : 0;
            }
        }
    }
    QCOMPARE(triples, 120); // every order of a triple is as likely
    QCOMPARE(withA1, 36);
}

void MultiplesDivisorsTest::eightNumbersHaveNoThreeDivisors()
{
    std::set<int> numbers;
    for (const auto& [number, factors] : divisorNumbers()) {
        if (properDivisors(number).size() < 3)
            numbers.insert(number);
    }
    QCOMPARE(numbers, (std::set{6, 8, 10, 14, 15, 21, 27, 35}));
}

void MultiplesDivisorsTest::aRepeatedVerdictChanges()
{
    auto model = multiplesOf(4);
    const auto textOf = [&model](const Answers& answers) {
        model.judge(answers);
        return model.verdict().text();
    };
    const Answers right{8, 12, 16};
    const Answers wrong{8, 12, 4};
    QCOMPARE(textOf(right), u"Resultado correcto"_s);
    QCOMPARE(textOf(right), u"Resultado correcto "_s);
    QCOMPARE(textOf(right), u"Resultado correcto"_s);
    QCOMPARE(textOf(wrong), u"Resultado incorrecto"_s);
    QCOMPARE(textOf(wrong), u"Resultado incorrecto "_s);
    QCOMPARE(textOf({0, 0, 0}), u"Resultado incorrecto "_s); // not judged: it stays
    QCOMPARE(textOf(wrong), u"Resultado incorrecto"_s);
    QCOMPARE(textOf(right), u"Resultado correcto"_s);
}

void MultiplesDivisorsTest::speaksInOneLine()
{
    QCOMPARE(multiplesOf(4).spokenExercise(),
        u"Introduzca tres múltiplos diferentes del número indicado: 4"_s);
    QCOMPARE(multiplesOf(4).spokenSolution(), u"Solución: 12, 16 y 20"_s);
    QCOMPARE(divisorsOf({3, 4, 5}).spokenExercise(),
        u"Introduzca tres divisores diferentes del número indicado. No puede usar el 1 ni el "
        "número que se proporciona: 60"_s);
    QCOMPARE(divisorsOf({3, 4, 5}).spokenSolution(), u"Solución: 3, 4 y 5"_s);
}

void MultiplesDivisorsTest::namesEveryWrongAnswer()
{
    auto model = multiplesOf(4);
    QVERIFY(model.wrongAnswers().empty());
    model.judge({5, 8, 8});
    QCOMPARE(model.wrongAnswers(), (std::vector{0, 2}));
    model.judge({8, 12, 4});
    QCOMPARE(model.wrongAnswers(), (std::vector{2}));
    model.judge({8, 12, 16});
    QVERIFY(model.wrongAnswers().empty());
}

QTEST_GUILESS_MAIN(MultiplesDivisorsTest)
#include "multiples_divisors_test.moc"
