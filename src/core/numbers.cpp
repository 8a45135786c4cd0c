#include "core/numbers.h"

#include "core/errors.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr double Smallest32 = std::numeric_limits<qint32>::min();
constexpr double Largest32 = std::numeric_limits<qint32>::max();

struct Prefix {
    double value;
    bool hasDigits;
    qsizetype length; // from the start of the text, blanks included
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

double finiteValue(const std::string& decimal)
{
    double value = 0;
    const auto result = std::from_chars(decimal.data(), decimal.data() + decimal.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    // Without an exponent, only digits before the point can make a text this long too large;
    // a tiny fraction is out of range too and is as good as 0.
    return decimal.starts_with('0') || decimal.starts_with('.')
        ? 0
        : std::numeric_limits<double>::max();
}

/// The digits from a place in a text on, with the one separator as a point; moves the place
/// behind them.
std::string takeDecimal(QStringView text, qsizetype& at)
{
    std::string decimal;
    bool hasSeparator = false;
    for (; at < text.size(); ++at) {
        if (isDigit(text[at])) {
            if (decimal == "0")
                decimal.clear(); // leading zeros say nothing about the size
            decimal += static_cast<char>(text[at].unicode());
        } else if (!hasSeparator && (text[at] == u',' || text[at] == u'.')) {
            hasSeparator = true;
            decimal += '.';
        } else {
            break;
        }
    }
    return decimal;
}

Prefix readPrefix(QStringView text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        negative = text[at++] == u'-';
    const std::string decimal = takeDecimal(text, at);

    const bool hasDigits = !decimal.empty() && decimal != ".";
    const double value = hasDigits ? finiteValue(decimal) : 0;
    return {negative && value != 0 ? -value : value, hasDigits, at}; // never -0
}

QString quoted(QStringView text)
{
    constexpr qsizetype Longest = 40;
    const QString shown = text.trimmed().toString();
    return shown.size() <= Longest ? shown : shown.left(Longest) + u"…"_s;
}

std::vector<int> digitsFromUnits(double whole)
{
    const QString text = wholeText(std::abs(whole));
    std::vector<int> digits;
    std::transform(text.crbegin(), text.crend(), std::back_inserter(digits),
        [](QChar digit) { return digit.digitValue(); });
    return digits;
}

double roundWithin(double value, double smallest, double largest)
{
    const double rounded = roundHalfEven(value);
    if (!(rounded >= smallest && rounded <= largest)) // false for NaN too
        throw OverflowError(u"El resultado %1 no cabe: debe estar entre %2 y %3."_s.arg(
            generalText(value, QLocale(QLocale::Spanish)), wholeText(smallest),
            wholeText(largest)));
    return rounded;
}

double readWithin(QStringView text, double smallest, double largest)
{
    try {
        return roundWithin(readNumber(text), smallest, largest);
    } catch (const OverflowError&) {
        throw OverflowError(u"«%1» no es un número entero de %2 a %3."_s.arg(
            quoted(text), wholeText(smallest), wholeText(largest)));
    }
}

} // namespace

double readNumber(QStringView text)
{
    return readPrefix(text).value;
}

std::optional<double> parseNumber(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const Prefix prefix = readPrefix(trimmed);
    if (!prefix.hasDigits || prefix.length != trimmed.size())
        return std::nullopt;
    return prefix.value;
}

Int16 readInt16(QStringView text)
{
    return {static_cast<int>(readWithin(text, Int16::Min, Int16::Max))};
}

qint32 readInt32(QStringView text)
{
    return static_cast<qint32>(readWithin(text, Smallest32, Largest32));
}

double roundHalfEven(double value)
{
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction < 0.5)
        return below;
    if (fraction > 0.5)
        return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

Int16 toInt16(double value)
{
    return {static_cast<int>(roundWithin(value, Int16::Min, Int16::Max))};
}

qint32 toInt32(double value)
{
    return static_cast<qint32>(roundWithin(value, Smallest32, Largest32));
}

QString generalText(double value, const QLocale& locale)
{
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return plain.toString(value == 0 ? 0.0 : value, 'g', 15); // 0 never shows a sign
}

QString wholeText(double value)
{
    return QString::number(value == 0 ? 0.0 : value, 'f', 0);
}

QString wholeProductText(double a, double b)
{
    const std::vector<int> first = digitsFromUnits(a);
    const std::vector<int> second = digitsFromUnits(b);
    std::vector<int> places(first.size() + second.size());
    for (std::size_t i = 0; i < first.size(); ++i)
        for (std::size_t j = 0; j < second.size(); ++j)
            places[i + j] += first[i] * second[j]; // 309 times 81 at most
    QString text;
    int carried = 0;
    for (const int place : places) {
        text.prepend(QChar(u'0' + (place + carried) % 10));
        carried = (place + carried) / 10;
    }
    while (text.size() > 1 && text.front() == u'0')
        text.remove(0, 1);
    return text != u"0" && (a < 0) != (b < 0) ? u'-' + text : text;
}

} // namespace core
