#include "core/errors.h"
#include "written/long_division_solution.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using written::GridText;
using written::ResuelveDivision;
using written::WorkedDivision;

/// Every row was worked by hand, on squared paper.
class LongDivisionSolutionTest : public QObject {
    Q_OBJECT

private slots:
    void workedByHand_data();
    void workedByHand();
    void everythingBelowTheSolutionIsBlank();
    void divisorZeroIsAnError();

private:
    static void addRemaindersOnly();
    static void addDecimals();
    static void addWithProducts();
    static void addSignsAndLimits();
};

namespace {

constexpr bool RemaindersOnly = false;
constexpr bool WithProducts = true;

QStringList writtenLines(const GridText& work)
{
    QStringList lines;
    for (int row = 0; !work.line(row).trimmed().isEmpty(); ++row) {
        QString line = work.line(row);
        while (line.endsWith(u' '))
            line.chop(1);
        lines += line;
    }
    return lines;
}

void add(const char* name, qint32 divisor, int decimals, bool products, const QString& quotient,
    const QStringList& work)
{
    QTest::newRow(name) << divisor << decimals << products << quotient << work;
}

} // namespace

void LongDivisionSolutionTest::addRemaindersOnly()
{
    add("84 / 7, exact", 7, 0, RemaindersOnly, u"12"_s,
        {
            u" 84"_s,
            u" 14"_s,
            u"  0"_s,
        });
    add("99 / 9, nothing left on the way", 9, 0, RemaindersOnly, u"11"_s,
        {
            u" 99"_s,
            u" 09"_s,
            u"  0"_s,
        });
    add("17 / 5, two digits taken at once", 5, 0, RemaindersOnly, u"3"_s,
        {
            u" 17"_s,
            u"  2"_s,
        });
    add("3 / 8, smaller than the divisor", 8, 0, RemaindersOnly, u"0"_s,
        {
            u" 3"_s,
            u" 3"_s,
        });
    add("47 / 950, smaller than the divisor", 950, 0, RemaindersOnly, u"0"_s,
        {
            u" 47"_s,
            u" 47"_s,
        });
    add("612 / 6, zero inside the quotient", 6, 0, RemaindersOnly, u"102"_s,
        {
            u" 612"_s,
            u" 01"_s,
            u"  12"_s,
            u"   0"_s,
        });
    add("800 / 8, zeros at the end of the quotient", 8, 0, RemaindersOnly, u"100"_s,
        {
            u" 800"_s,
            u" 00"_s,
            u"  00"_s,
            u"   0"_s,
        });
    add("1005 / 5, zero inside, two digits at first", 5, 0, RemaindersOnly, u"201"_s,
        {
            u" 1005"_s,
            u"  00"_s,
            u"   05"_s,
            u"    0"_s,
        });
    add("7391 / 24, zero inside, with a remainder", 24, 0, RemaindersOnly, u"307"_s,
        {
            u" 7391"_s,
            u"  19"_s,
            u"  191"_s,
            u"   23"_s,
        });
    add("98765 / 432, three-digit divisor", 432, 0, RemaindersOnly, u"228"_s,
        {
            u" 98765"_s,
            u" 1236"_s,
            u"  3725"_s,
            u"   269"_s,
        });
    add("654321 / 6, six digits", 6, 0, RemaindersOnly, u"109053"_s,
        {
            u" 654321"_s,
            u" 05"_s,
            u"  54"_s,
            u"   03"_s,
            u"    32"_s,
            u"     21"_s,
            u"      3"_s,
        });
    add("999999 / 99, a zero at every other digit", 99, 0, RemaindersOnly, u"10101"_s,
        {
            u" 999999"_s,
            u"  09"_s,
            u"   99"_s,
            u"    09"_s,
            u"     99"_s,
            u"      0"_s,
        });
}

void LongDivisionSolutionTest::addDecimals()
{
    add("10 / 4, one decimal, exact", 4, 1, RemaindersOnly, u"2,5"_s,
        {
            u" 10"_s,
            u"  20"_s,
            u"   0"_s,
        });
    add("10 / 4, three decimals, exact after one", 4, 3, RemaindersOnly, u"2,500"_s,
        {
            u" 10"_s,
            u"  20"_s,
            u"   00"_s,
            u"    00"_s,
            u"     0"_s,
        });
    add("5 / 12, two decimals, smaller than the divisor", 12, 2, RemaindersOnly, u"0,41"_s,
        {
            u" 5"_s,
            u" 50"_s,
            u"  20"_s,
            u"   8"_s,
        });
    add("47 / 123456, two decimals, both zero", 123456, 2, RemaindersOnly, u"0,00"_s,
        {
            u" 47"_s,
            u" 470"_s,
            u" 4700"_s,
            u" 4700"_s,
        });
    add("123456 / 789, two decimals", 789, 2, RemaindersOnly, u"156,47"_s,
        {
            u" 123456"_s,
            u"  4455"_s,
            u"   5106"_s,
            u"    3720"_s,
            u"     5640"_s,
            u"      117"_s,
        });
    add("22 / 7, five decimals", 7, 5, RemaindersOnly, u"3,14285"_s,
        {
            u" 22"_s,
            u"  10"_s,
            u"   30"_s,
            u"    20"_s,
            u"     60"_s,
            u"      40"_s,
            u"       5"_s,
        });
    add("1 / 8, five decimals, exact after three", 8, 5, RemaindersOnly, u"0,12500"_s,
        {
            u" 1"_s,
            u" 10"_s,
            u"  20"_s,
            u"   40"_s,
            u"    00"_s,
            u"     00"_s,
            u"      0"_s,
        });
}

void LongDivisionSolutionTest::addWithProducts()
{
    add("84 / 7, products", 7, 0, WithProducts, u"12"_s,
        {
            u" 84"_s,
            u" 7-"_s,
            u" 14"_s,
            u" 14-"_s,
            u"  0"_s,
        });
    add("17 / 5, products", 5, 0, WithProducts, u"3"_s,
        {
            u" 17"_s,
            u" 15-"_s,
            u"  2"_s,
        });
    add("3 / 8, products", 8, 0, WithProducts, u"0"_s,
        {
            u" 3"_s,
            u" 0-"_s,
            u" 3"_s,
        });
    add("612 / 6, products, zero inside", 6, 0, WithProducts, u"102"_s,
        {
            u" 612"_s,
            u" 6-"_s,
            u" 01"_s,
            u"  0-"_s,
            u"  12"_s,
            u"  12-"_s,
            u"   0"_s,
        });
    add("7391 / 24, products, zero inside", 24, 0, WithProducts, u"307"_s,
        {
            u" 7391"_s,
            u" 72-"_s,
            u"  19"_s,
            u"   0-"_s,
            u"  191"_s,
            u"  168-"_s,
            u"   23"_s,
        });
    add("2025 / 45, products, three digits at first", 45, 0, WithProducts, u"45"_s,
        {
            u" 2025"_s,
            u" 180-"_s,
            u"  225"_s,
            u"  225-"_s,
            u"    0"_s,
        });
    add("98765 / 432, products", 432, 0, WithProducts, u"228"_s,
        {
            u" 98765"_s,
            u" 864-"_s,
            u" 1236"_s,
            u"  864-"_s,
            u"  3725"_s,
            u"  3456-"_s,
            u"   269"_s,
        });
    add("50 / 11, products, two decimals", 11, 2, WithProducts, u"4,54"_s,
        {
            u" 50"_s,
            u" 44-"_s,
            u"  60"_s,
            u"  55-"_s,
            u"   50"_s,
            u"   44-"_s,
            u"    6"_s,
        });
    add("5 / 12, products, two decimals, smaller", 12, 2, WithProducts, u"0,41"_s,
        {
            u" 5"_s,
            u" 0-"_s,
            u" 50"_s,
            u" 48-"_s,
            u"  20"_s,
            u"  12-"_s,
            u"   8"_s,
        });
    add("1 / 3, products, five decimals", 3, 5, WithProducts, u"0,33333"_s,
        {
            u" 1"_s,
            u" 0-"_s,
            u" 10"_s,
            u"  9-"_s,
            u"  10"_s,
            u"   9-"_s,
            u"   10"_s,
            u"    9-"_s,
            u"    10"_s,
            u"     9-"_s,
            u"     10"_s,
            u"      9-"_s,
            u"      1"_s,
        });
}

void LongDivisionSolutionTest::addSignsAndLimits()
{
    add("-17 / 5, remainder with the dividend's sign", 5, 0, WithProducts, u"-3"_s,
        {
            u" -17"_s,
            u" -15-"_s,
            u"  -2"_s,
        });
    add("17 / -5", -5, 0, RemaindersOnly, u"-3"_s,
        {
            u" 17"_s,
            u"  2"_s,
        });
    add("-5 / 12, one decimal", 12, 1, RemaindersOnly, u"-0,4"_s,
        {
            u" -5"_s,
            u" -50"_s,
            u"  -2"_s,
        });
    add("-1 / 12, a quotient of 0 has no sign", 12, 0, RemaindersOnly, u"0"_s,
        {
            u" -1"_s,
            u" -1"_s,
        });
    add("0 / 7", 7, 0, RemaindersOnly, u"0"_s,
        {
            u" 0"_s,
            u" 0"_s,
        });
    add("the largest by itself", 2147483647, 0, RemaindersOnly, u"1"_s,
        {
            u" 2147483647"_s,
            u"          0"_s,
        });
    add("the smallest by -1", -1, 0, RemaindersOnly, u"2147483648"_s,
        {
            u" -2147483648"_s,
            u"  01"_s,
            u"   04"_s,
            u"    07"_s,
            u"     04"_s,
            u"      08"_s,
            u"       03"_s,
            u"        06"_s,
            u"         04"_s,
            u"          08"_s,
            u"           0"_s,
        });
}

void LongDivisionSolutionTest::workedByHand_data()
{
    QTest::addColumn<qint32>("divisor");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("products");
    QTest::addColumn<QString>("quotient");
    QTest::addColumn<QStringList>("work");

    addRemaindersOnly();
    addDecimals();
    addWithProducts();
    addSignsAndLimits();
}

void LongDivisionSolutionTest::workedByHand()
{
    QFETCH(qint32, divisor);
    QFETCH(int, decimals);
    QFETCH(bool, products);
    QFETCH(QStringList, work);
    const QString operation = work.first();
    const int columns = static_cast<int>(operation.size()) - 1 + 4 + decimals;

    const WorkedDivision worked =
        ResuelveDivision(GridText(operation, columns), divisor, decimals, products);
    QTEST(worked.quotient, "quotient");
    QCOMPARE(writtenLines(worked.work), work);
    QCOMPARE(worked.work.columns(), columns);
}

void LongDivisionSolutionTest::everythingBelowTheSolutionIsBlank()
{
    GridText used(u" 84"_s, 6);
    used.overtype(1500, u'x');
    const WorkedDivision worked = ResuelveDivision(used, 7, 0, RemaindersOnly);
    QCOMPARE(worked.work.text(), u" 84    14     0"_s + QString(2000, u' '));
}

void LongDivisionSolutionTest::divisorZeroIsAnError()
{
    QVERIFY_THROWS_EXCEPTION(
        core::DivisionByZeroError, ResuelveDivision(GridText(u" 84"_s, 6), 0, 0, RemaindersOnly));
}

QTEST_GUILESS_MAIN(LongDivisionSolutionTest)
#include "long_division_solution_test.moc"
