#include "core/defect.h"
#include "written/combined_operations.h"

#include "core/random.h"
#include "support/scripted_random.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using written::CombinedOperations;

namespace {

enum { Plus = 1, Minus, Times, DividedBy };

/// What a group is drawn as.
struct Group {
    int first;
    int second;
    int oper;
};

const Group NoGroup{2, 2, Minus};

/// An expression as a reader takes it apart, blanks, brackets and signs where they belong.
struct Parsed {
    bool valid = false;
    std::array<int, 3> values{};
    std::array<QString, 2> links;
    int result = 0;
    bool wholeAndNotNegative = true; ///< every value on the way, and the result
};

int groupValue(const QString& text, Parsed& parsed)
{
    static const QRegularExpression bracketed(u"^\\((\\d+) ([+-]) (\\d+)\\)$"_s);
    static const QRegularExpression plain(u"^(\\d+) ([x÷]) (\\d+)$"_s);
    auto match = bracketed.match(text);
    if (!match.hasMatch())
        match = plain.match(text);
    parsed.valid = parsed.valid && match.hasMatch();
    const int first = match.captured(1).toInt();
    const int second = match.captured(3).toInt();
    const QString oper = match.captured(2);
    if (oper == u"÷"_s) {
        parsed.wholeAndNotNegative = parsed.wholeAndNotNegative && first % second == 0;
        return first / second;
    }
    return oper == u"x"_s ? first * second : oper == u"+"_s ? first + second : first - second;
}

Parsed parse(const QString& text)
{
    static const QString group = u"(\\([^()]*\\)|\\d+ [x÷] \\d+)"_s;
    static const QRegularExpression whole(
        u'^' + group + u" ([+-]) "_s + group + u" ([+-]) "_s + group + u'$');
    const auto match = whole.match(text);
    Parsed parsed;
    parsed.valid = match.hasMatch();
    for (int i = 0; i < 3; ++i)
        core::at(parsed.values, i) = groupValue(match.captured(2 * i + 1), parsed);
    parsed.links = {match.captured(2), match.captured(4)};
    parsed.result = parsed.values[0];
    for (std::size_t i = 0; i < 2; ++i) {
        const int value = parsed.values.at(i + 1);
        parsed.result += parsed.links.at(i) == u"+"_s ? value : -value;
        parsed.wholeAndNotNegative =
            parsed.wholeAndNotNegative && value >= 0 && parsed.result >= 0;
    }
    return parsed;
}

void script(ScriptedRandom& random, const std::array<Group, 3>& groups)
{
    for (const Group& group : groups) {
        random.appendInteger(group.first, 8, 2);
        random.appendInteger(group.second, 8, 2);
    }
    for (const Group& group : groups)
        random.appendInteger(group.oper, 4, 1);
}

CombinedOperations made(const std::array<Group, 3>& groups)
{
    static ScriptedRandom random;
    script(random, groups);
    CombinedOperations model(random);
    model.newExercise();
    return model;
}

/// One way of drawing each value that a group can have.
std::map<int, Group> groupsByValue()
{
    std::map<int, Group> groups;
    for (int a = 2; a <= 9; ++a) {
        for (int b = 2; b <= 9; ++b) {
            groups[a + b] = {a, b, Plus};
            groups[std::abs(a - b)] = {a, b, Minus};
            groups[a * b] = {a, b, Times};
        }
    }
    return groups;
}

} // namespace

class CombinedOperationsTest : public QObject {
    Q_OBJECT

private slots:
    void drawsNumbersFirstThenOperators();
    void drawRanges_data();
    void drawRanges();
    void everyGroupReadsAsDrawn();
    void everyTripleOfValuesIsJoinedByTheRule();
    void expressions_data();
    void expressions();
    void seededExpressionsKeepTheirPromises();
    void answersAreComparedAsNumbers();
    void verdictTexts();
    void speaksInWords();
};

void CombinedOperationsTest::drawsNumbersFirstThenOperators()
{
    ScriptedRandom random;
    for (const int number : {2, 3, 4, 5, 6, 7})
        random.appendInteger(number, 8, 2);
    for (const int oper : {Times, Plus, Times})
        random.appendInteger(oper, 4, 1);
    CombinedOperations model(random);
    QCOMPARE(random.left(), 9u); // nothing is drawn before the generator is seeded
    model.newExercise();
    QCOMPARE(random.left(), 0u);
    QCOMPARE(model.text(), u"2 x 3 + (4 + 5) + 6 x 7"_s);
    QVERIFY(random.seeds.empty());
}

void CombinedOperationsTest::drawRanges_data()
{
    QTest::addColumn<float>("draw");
    QTest::addColumn<QString>("text");
    const float highest = std::nextafter(1.0f, 0.0f);
    QTest::newRow("lowest draw") << 0.0f << u"(2 + 2) + (2 + 2) - (2 + 2)"_s;
    QTest::newRow("below a step") << 0.2499f << u"(3 + 3) + (3 + 3) - (3 + 3)"_s;
    QTest::newRow("on a step") << 0.25f << u"(4 - 4) + (4 - 4) + (4 - 4)"_s;
    QTest::newRow("third operator") << 0.5f << u"6 x 6 + 6 x 6 - 6 x 6"_s;
    QTest::newRow("highest draw") << highest << u"81 ÷ 9 + 81 ÷ 9 - 81 ÷ 9"_s;
}

void CombinedOperationsTest::drawRanges()
{
    QFETCH(float, draw);
    ScriptedRandom random;
    for (int i = 0; i < 9; ++i)
        random.append({draw});
    CombinedOperations model(random);
    model.newExercise();
    QTEST(model.text(), "text");
}

// Every pair of numbers with every operator, in each of the three places.
void CombinedOperationsTest::everyGroupReadsAsDrawn()
{
    for (int a = 2; a <= 9; ++a) {
        for (int b = 2; b <= 9; ++b) {
            const int high = std::max(a, b);
            const int low = std::min(a, b);
            const std::array expected{u"(%1 + %2)"_s.arg(a).arg(b),
                u"(%1 - %2)"_s.arg(high).arg(low), u"%1 x %2"_s.arg(a).arg(b),
                u"%1 ÷ %2"_s.arg(a * b).arg(b)};
            const std::array values{a + b, high - low, a * b, a};
            for (std::size_t oper = 0; oper < 4; ++oper) {
                const Group group{a, b, static_cast<int>(oper) + 1};
                // Beside groups of value 0 the expression has the group's own value.
                const auto first = made({group, NoGroup, NoGroup});
                const auto second = made({NoGroup, group, NoGroup});
                const auto third = made({NoGroup, NoGroup, group});
                const int value = values.at(oper);
                QVERIFY(first.text().startsWith(expected.at(oper) + u' '));
                QVERIFY(second.text().contains(u' ' + expected.at(oper) + u' '));
                QVERIFY(third.text().endsWith(u' ' + expected.at(oper)));
                QCOMPARE(first.solution(), value);
                QCOMPARE(second.solution(), value);
                QCOMPARE(third.solution(), value);
            }
        }
    }
}

void CombinedOperationsTest::everyTripleOfValuesIsJoinedByTheRule()
{
    const auto groups = groupsByValue();
    QCOMPARE(groups.begin()->first, 0);
    QCOMPARE(groups.rbegin()->first, 81);
    std::set<int> solutions;
    for (const auto& [g1, first] : groups) {
        for (const auto& [g2, second] : groups) {
            for (const auto& [g3, third] : groups) {
                const auto model = made({first, second, third});
                const Parsed parsed = parse(model.text());
                const auto text = model.text().toUtf8();
                QVERIFY2(parsed.valid, text);
                QVERIFY2((parsed.values == std::array{g1, g2, g3}), text);
                const std::array links = g1 > g2 + g3 ? std::array{u"-"_s, u"-"_s}
                    : g1 + g2 > g3                    ? std::array{u"+"_s, u"-"_s}
                                                      : std::array{u"+"_s, u"+"_s};
                QVERIFY2(parsed.links == links, text);
                QVERIFY2(parsed.wholeAndNotNegative, text);
                QVERIFY2(model.solution() == parsed.result, text);
                solutions.insert(model.solution());
            }
        }
    }
    QCOMPARE(*solutions.begin(), 0);
    QCOMPARE(*solutions.rbegin(), 162); // 81 + 81 - 0; a third 81 would be taken away
}

void CombinedOperationsTest::expressions_data()
{
    using Groups = std::array<Group, 3>;
    QTest::addColumn<Groups>("groups");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("solution");
    const auto row = [](const char* name, const Groups& groups, const QString& text, int result) {
        QTest::newRow(name) << groups << text << result;
    };
    const Group two{9, 7, Minus};
    const Group nine{9, 2, DividedBy};
    const Group eightyOne{9, 9, Times};
    const Group eight{4, 4, Plus};
    const Group four{4, 3, DividedBy};
    row("usual", {{{5, 3, Plus}, {4, 2, Times}, {6, 3, DividedBy}}},
        u"(5 + 3) + 4 x 2 - 18 ÷ 3"_s, 10);
    row("3 and 7 are swapped", {{{3, 7, Minus}, {2, 2, Plus}, {2, 3, Plus}}},
        u"(7 - 3) + (2 + 2) - (2 + 3)"_s, 3);
    row("6 and 4 divide exactly", {{{6, 4, DividedBy}, two, two}},
        u"24 ÷ 4 - (9 - 7) - (9 - 7)"_s, 2);
    row("2, 9, 81", {{two, nine, eightyOne}}, u"(9 - 7) + 18 ÷ 2 + 9 x 9"_s, 92);
    row("81, 2, 9", {{eightyOne, two, nine}}, u"9 x 9 - (9 - 7) - 18 ÷ 2"_s, 70);
    row("5, 9, 12", {{{5, 9, DividedBy}, nine, {3, 4, Times}}}, u"45 ÷ 9 + 18 ÷ 2 - 3 x 4"_s, 2);
    row("first equals the others", {{eight, four, four}}, u"(4 + 4) + 12 ÷ 3 - 12 ÷ 3"_s, 8);
    row("third equals the others", {{four, four, eight}}, u"12 ÷ 3 + 12 ÷ 3 + (4 + 4)"_s, 16);
    row("three products of 81", {{{9, 9, Times}, {9, 9, Times}, {9, 9, Times}}},
        u"9 x 9 + 9 x 9 - 9 x 9"_s, 81);
    row("largest", {{{9, 9, Times}, {9, 9, Times}, NoGroup}}, u"9 x 9 + 9 x 9 - (2 - 2)"_s, 162);
    row("smallest", {{NoGroup, NoGroup, NoGroup}}, u"(2 - 2) + (2 - 2) + (2 - 2)"_s, 0);
    row("longest", {{{9, 9, Plus}, {9, 9, Plus}, {9, 9, Plus}}}, u"(9 + 9) + (9 + 9) - (9 + 9)"_s,
        18);
}

void CombinedOperationsTest::expressions()
{
    using Groups = std::array<Group, 3>;
    QFETCH(Groups, groups);
    const auto model = made(groups);
    QTEST(model.text(), "text");
    QTEST(model.solution(), "solution");
}

void CombinedOperationsTest::seededExpressionsKeepTheirPromises()
{
    core::SeededRandom random;
    random.seed(37530.5);
    CombinedOperations model(random);
    std::set<QString> texts;
    for (int i = 0; i < 20000; ++i) {
        model.newExercise();
        const Parsed parsed = parse(model.text());
        const auto text = model.text().toUtf8();
        QVERIFY2(parsed.valid && parsed.wholeAndNotNegative, text);
        QVERIFY2(model.solution() == parsed.result, text);
        QVERIFY2(model.solution() >= 0 && model.solution() <= 162, text);
        QVERIFY2(model.text().size() <= 27, text);
        texts.insert(model.text());
    }
    QVERIFY(texts.size() > 19000);
}

void CombinedOperationsTest::answersAreComparedAsNumbers()
{
    using shell::Verdict;
    auto model = made({{{5, 3, Plus}, {4, 2, Times}, {6, 3, DividedBy}}});
    QCOMPARE(model.judge(10), Verdict::Right);
    QCOMPARE(model.judge(10.25), Verdict::Wrong);
    QCOMPARE(model.judge(-10), Verdict::Wrong);
    QCOMPARE(model.judge(0), Verdict::Wrong);
    QCOMPARE(model.judge(1e300), Verdict::Wrong);
    QCOMPARE(model.judge(10), Verdict::Right); // judging changes nothing
    QCOMPARE(made({NoGroup, NoGroup, NoGroup}).judge(0), Verdict::Right);
}

void CombinedOperationsTest::verdictTexts()
{
    auto model = made({{{5, 3, Plus}, {4, 2, Times}, {6, 3, DividedBy}}});
    QCOMPARE(model.verdict().text(), QString());
    model.judge(10);
    QCOMPARE(model.verdict().text(), u"Resultado correcto"_s);
    model.judge(11);
    QCOMPARE(model.verdict().text(), u"Resultado incorrecto"_s);
    QCOMPARE(model.showSolution(), 10);
}

void CombinedOperationsTest::speaksInWords()
{
    const CombinedOperations model = made({Group{5, 3, Plus}, {4, 2, Times}, {6, 3, DividedBy}});
    QCOMPARE(model.spokenExercise(),
        u"abre paréntesis 5 más 3 cierra paréntesis más 4 por 2 menos 18 entre 3"_s);
    QCOMPARE(model.spokenSolution(), u"Solución: 10"_s);
}

QTEST_GUILESS_MAIN(CombinedOperationsTest)
#include "combined_operations_test.moc"
