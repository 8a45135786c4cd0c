#include "core/numbers.h"

#include "core/errors.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

using namespace Qt::StringLiterals;

namespace core {

namespace {

struct Prefix {
    double value = 0;
    bool hasDigits = false;
    qsizetype length = 0; // from the start of the text, blanks included
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

Prefix readPrefix(QStringView text)
{
    Prefix prefix;
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        negative = text[at++] == u'-';

    std::string decimal;
    bool hasSeparator = false;
    for (; at < text.size(); ++at) {
        if (isDigit(text[at])) {
            prefix.hasDigits = true;
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
    prefix.length = at;
    if (prefix.hasDigits)
        prefix.value = finiteValue(decimal);
    if (negative && prefix.value != 0) // never -0
        prefix.value = -prefix.value;
    return prefix;
}

QString quoted(QStringView text)
{
    constexpr qsizetype Longest = 40;
    const QString shown = text.trimmed().toString();
    return shown.size() <= Longest ? shown : shown.left(Longest) + u"…"_s;
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
    try {
        return toInt16(readNumber(text));
    } catch (const OverflowError&) {
        throw OverflowError(
            u"«%1» no es un número entero de -32768 a 32767."_s.arg(quoted(text)));
    }
}

qint32 readInt32(QStringView text)
{
    try {
        return toInt32(readNumber(text));
    } catch (const OverflowError&) {
        throw OverflowError(
            u"«%1» no es un número entero de -2147483648 a 2147483647."_s.arg(quoted(text)));
    }
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
    const double rounded = roundHalfEven(value);
    if (!(rounded >= Int16::Min && rounded <= Int16::Max)) // false for NaN too
        throw OverflowError(u"El resultado %1 no cabe: debe estar entre -32768 y 32767."_s.arg(
            generalText(value, QLocale(QLocale::Spanish))));
    return {static_cast<int>(rounded)};
}

qint32 toInt32(double value)
{
    const double rounded = roundHalfEven(value);
    if (!(rounded >= std::numeric_limits<qint32>::min()
            && rounded <= std::numeric_limits<qint32>::max()))
        throw OverflowError(
            u"El resultado %1 no cabe: debe estar entre -2147483648 y 2147483647."_s.arg(
                generalText(value, QLocale(QLocale::Spanish))));
    return static_cast<qint32>(rounded);
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

} // namespace core
