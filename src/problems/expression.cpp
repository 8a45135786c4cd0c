#include "problems/expression.h"

#include "core/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

constexpr char16_t ModSign = u'M'; // stands for the word Mod

// From the loosest to the tightest; ^ and the signs in front of a number come after.
constexpr std::array Ranks{
    QStringView(u"+-"), QStringView(u"M"), QStringView(u"\\"), QStringView(u"*/")};

constexpr QStringView ModWord = u"mod";

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool fits32Bits(double whole)
{
    return whole >= std::numeric_limits<qint32>::min()
        && whole <= std::numeric_limits<qint32>::max();
}

class Parser {
public:
    explicit Parser(QStringView text)
        : m_text(text)
    {
    }

    double wholeValue();

private:
    double binary(std::size_t rank);
    double signedPower();
    double power();
    double exponent();
    double primary();
    double bracketed();
    double number();
    double apply(char16_t sign, double a, double b, qsizetype at) const;
    double dividedWhole(char16_t sign, double a, double b, qsizetype at) const;
    double finite(double value, qsizetype at) const;

    QChar peek(); // after any blanks; 0 at the end
    char16_t takeOneOf(QStringView signs); // 0 when none is next
    bool takeMinuses(); // true when they make the number negative
    bool isModNext() const;
    [[noreturn]] void failHere();
    [[noreturn]] void fail(const QString& what, qsizetype at) const;

    QStringView m_text;
    qsizetype m_at = 0;
    int m_depth = 0;
};

double Parser::wholeValue()
{
    if (peek().isNull() && m_at == m_text.size())
        throw ExpressionError(u"La expresión está vacía."_s, m_at + 1);
    const double value = binary(0);
    peek();
    if (m_at < m_text.size())
        failHere();
    return value;
}

double Parser::binary(std::size_t rank)
{
    if (rank == Ranks.size())
        return signedPower();
    double value = binary(rank + 1);
    for (;;) {
        peek();
        const qsizetype at = m_at;
        const char16_t sign = takeOneOf(Ranks[rank]);
        if (sign == 0)
            return value;
        value = apply(sign, value, binary(rank + 1), at);
    }
}

double Parser::signedPower()
{
    const bool negative = takeMinuses();
    const double value = power();
    return negative ? -value : value;
}

double Parser::power()
{
    double value = primary();
    for (;;) {
        peek();
        const qsizetype at = m_at;
        if (takeOneOf(u"^") == 0)
            return value;
        value = apply(u'^', value, exponent(), at);
    }
}

double Parser::exponent()
{
    const bool negative = takeMinuses();
    const double value = primary();
    return negative ? -value : value;
}

double Parser::primary()
{
    const QChar next = peek();
    if (next == u'(')
        return bracketed();
    if (isDigit(next) || next == u'.')
        return number();
    if (m_at == m_text.size())
        fail(u"Falta un número al final"_s, m_at);
    if (next == u')' || isModNext() || QStringView(u"*/\\^").contains(next))
        fail(u"Falta un número"_s, m_at);
    failHere();
}

double Parser::bracketed()
{
    const qsizetype opening = m_at++;
    if (++m_depth > ExpressionEvaluator::DeepestBrackets)
        fail(u"Hay demasiados paréntesis, unos dentro de otros"_s, opening);
    const double value = binary(0);
    if (peek() != u')') {
        if (m_at < m_text.size())
            failHere();
        fail(u"Falta cerrar el paréntesis abierto"_s, opening);
    }
    ++m_at;
    --m_depth;
    return value;
}

double Parser::number()
{
    const qsizetype start = m_at;
    std::string decimal;
    bool hasPoint = false;
    for (; m_at < m_text.size(); ++m_at) {
        const QChar c = m_text[m_at];
        if (c == u'.' && !hasPoint)
            hasPoint = true;
        else if (!isDigit(c))
            break;
        decimal += static_cast<char>(c.unicode());
    }
    if (decimal == ".")
        fail(u"Un punto solo no es un número"_s, start);
    double value = 0;
    const auto result = std::from_chars(decimal.data(), decimal.data() + decimal.size(), value);
    // A fraction too small to be told from 0 is out of range too, and is as good as 0.
    if (result.ec == std::errc::result_out_of_range && !decimal.starts_with('.')
        && decimal.find_first_not_of('0') < decimal.find('.'))
        fail(u"El número es demasiado grande"_s, start);
    return value;
}

double Parser::apply(char16_t sign, double a, double b, qsizetype at) const
{
    switch (sign) {
    case u'+':
        return finite(a + b, at);
    case u'-':
        return finite(a - b, at);
    case u'*':
        return finite(a * b, at);
    case u'/':
        if (b == 0)
            fail(u"División entre 0"_s, at);
        return finite(a / b, at);
    case u'^':
        if (a == 0 && b < 0)
            fail(u"División entre 0"_s, at);
        return finite(std::pow(a, b), at);
    default:
        return dividedWhole(sign, a, b, at);
    }
}

double Parser::dividedWhole(char16_t sign, double a, double b, qsizetype at) const
{
    const double dividend = core::roundHalfEven(a);
    const double divisor = core::roundHalfEven(b);
    if (!fits32Bits(dividend) || !fits32Bits(divisor))
        fail(u"El número es demasiado grande para dividir con \\ o Mod"_s, at);
    if (divisor == 0)
        fail(u"División entre 0"_s, at);
    return sign == ModSign ? std::fmod(dividend, divisor) : std::trunc(dividend / divisor);
}

double Parser::finite(double value, qsizetype at) const
{
    if (std::isnan(value)) // a root of a negative number
        fail(u"Esa potencia no existe"_s, at);
    if (std::isinf(value))
        fail(u"El resultado es demasiado grande"_s, at);
    return value;
}

QChar Parser::peek()
{
    while (m_at < m_text.size() && m_text[m_at].isSpace())
        ++m_at;
    return m_at < m_text.size() ? m_text[m_at] : QChar();
}

char16_t Parser::takeOneOf(QStringView signs)
{
    const QChar next = peek();
    if (signs.front() == ModSign) {
        if (!isModNext())
            return 0;
        m_at += ModWord.size();
        return ModSign;
    }
    if (next.isNull() || !signs.contains(next))
        return 0;
    ++m_at;
    return next.unicode();
}

bool Parser::takeMinuses()
{
    bool negative = false;
    while (const char16_t sign = takeOneOf(u"+-"))
        negative ^= sign == u'-';
    return negative;
}

bool Parser::isModNext() const
{
    const QStringView rest = m_text.mid(m_at);
    // A digit may follow at once: a datum put in for "Mod&1" leaves no blank.
    return rest.startsWith(ModWord, Qt::CaseInsensitive)
        && (rest.size() == ModWord.size() || !rest[ModWord.size()].isLetter());
}

void Parser::failHere()
{
    if (m_text[m_at] == u',')
        fail(u"Los decimales se escriben con punto, no con coma"_s, m_at);
    const bool isPair = m_text[m_at].isHighSurrogate() && m_at + 1 < m_text.size();
    const QStringView character = m_text.mid(m_at, isPair ? 2 : 1);
    fail(u"«%1» no se entiende ahí"_s.arg(character), m_at);
}

void Parser::fail(const QString& what, qsizetype at) const
{
    constexpr qsizetype Longest = 60;
    const QString shown =
        m_text.size() <= Longest ? m_text.toString() : m_text.first(Longest).toString() + u"…"_s;
    throw ExpressionError(
        u"%1 (carácter %2 de «%3»)."_s.arg(what, QString::number(at + 1), shown), at + 1);
}

} // namespace

ExpressionEvaluator::ExpressionEvaluator(const QString& language)
{
    if (language != u"VBScript")
        throw core::Error(u"No se conoce el lenguaje de expresiones «%1»."_s.arg(language));
}

double ExpressionEvaluator::evaluate(QStringView expression) const
{
    return Parser(expression).wholeValue();
}

} // namespace problems
