#pragma once

#include "core/int16.h"

#include <QLocale>
#include <QString>

#include <optional>

namespace core {

/// The number at the start of a text, as "&Hecho" compares it: blanks in front are skipped,
/// then a sign, digits, and one comma or point with decimals; the first character that does
/// not go on with the number ends it. No number there gives 0. There are no exponents, no
/// "inf", "nan" or hexadecimal; the result is always finite and never -0.
double readNumber(QStringView text);

/// The number that the whole text is, blanks around it aside; nothing when there is any
/// other character in it or no digit at all.
std::optional<double> parseNumber(QStringView text);

/// readNumber, rounded half to even. Throws OverflowError outside 16 bits.
Int16 readInt16(QStringView text);

/// readNumber, rounded half to even. Throws OverflowError outside 32 bits.
qint32 readInt32(QStringView text);

/// The nearest whole number; a half goes to the even neighbour (2.5 gives 2, 3.5 gives 4).
double roundHalfEven(double value);

/// roundHalfEven to 16 bits. Throws OverflowError outside the range or when not finite.
Int16 toInt16(double value);

/// roundHalfEven to 32 bits. Throws OverflowError outside the range or when not finite.
qint32 toInt32(double value);

/// A number as the locale writes it in general format: at most 15 significant digits, no
/// group separators, no trailing zeros.
QString generalText(double value, const QLocale& locale);

/// The exact whole value in plain decimal, never with an exponent. value must be whole.
QString wholeText(double value);

/// The exact product of two whole values, as wholeText writes one: a double would round it
/// beyond 2^53.
QString wholeProductText(double a, double b);

} // namespace core
