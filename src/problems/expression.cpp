#include "problems/expression.h"

#include "core/numbers.h"
#include "problems/expression_text.h"

#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

// From the loosest to the tightest; ^ and the signs in front of a number come after.
constexpr std::array Ranks{
    QStringView(u"+-"), QStringView(u"M"), QStringView(u"\\"), QStringView(u"*/")};

bool fits32Bits(double whole)
{
    return whole >= std::numeric_limits<qint32>::min()
        && whole <= std::numeric_limits<qint32>::max();
}

class Parser {
public:
    explicit Parser(QStringView expression)
        : m_text(expression)
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
    double apply(char16_t sign, double a, double b, qsizetype at) const;
    double dividedWhole(char16_t sign, double a, double b, qsizetype at) const;
    double finite(double value, qsizetype at) const;

    ExpressionText m_text;
    int m_depth = 0;
};

double Parser::wholeValue()
{
    m_text.peek();
    if (m_text.atEnd())
        throw ExpressionError(u"La expresión está vacía."_s, m_text.at() + 1);
    const double value = binary(0);
    m_text.peek();
    if (!m_text.atEnd())
        m_text.failHere();
    return value;
}

double Parser::binary(std::size_t rank)
{
    if (rank == Ranks.size())
        return signedPower();
    double value = binary(rank + 1);
    for (;;) {
        m_text.peek();
        const qsizetype at = m_text.at();
        const char16_t sign = m_text.takeOneOf(Ranks[rank]);
        if (sign == 0)
            return value;
        value = apply(sign, value, binary(rank + 1), at);
    }
}

double Parser::signedPower()
{
    const bool negative = m_text.takeMinuses();
    const double value = power();
    return negative ? -value : value;
}

double Parser::power()
{
    double value = primary();
    for (;;) {
        m_text.peek();
        const qsizetype at = m_text.at();
        if (m_text.takeOneOf(u"^") == 0)
            return value;
        value = apply(u'^', value, exponent(), at);
    }
}

double Parser::exponent()
{
    const bool negative = m_text.takeMinuses();
    const double value = primary();
    return negative ? -value : value;
}

double Parser::primary()
{
    const QChar next = m_text.peek();
    if (next == u'(')
        return bracketed();
    if (m_text.isNumberNext())
        return m_text.takeNumber();
    if (m_text.atEnd())
        m_text.fail(u"Falta un número al final"_s, m_text.at());
    if (next == u')' || m_text.isModNext() || QStringView(u"*/\\^").contains(next))
        m_text.fail(u"Falta un número"_s, m_text.at());
    m_text.failHere();
}

double Parser::bracketed()
{
    const qsizetype opening = m_text.at();
    m_text.step();
    if (++m_depth > ExpressionEvaluator::DeepestBrackets)
        m_text.fail(u"Hay demasiados paréntesis, unos dentro de otros"_s, opening);
    const double value = binary(0);
    if (m_text.peek() != u')') {
        if (!m_text.atEnd())
            m_text.failHere();
        m_text.fail(u"Falta cerrar el paréntesis abierto"_s, opening);
    }
    m_text.step();
    --m_depth;
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
            m_text.fail(u"División entre 0"_s, at);
        return finite(a / b, at);
    case u'^':
        if (a == 0 && b < 0)
            m_text.fail(u"División entre 0"_s, at);
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
        m_text.fail(u"El número es demasiado grande para dividir con \\ o Mod"_s, at);
    if (divisor == 0)
        m_text.fail(u"División entre 0"_s, at);
    return sign == ExpressionText::ModSign ? std::fmod(dividend, divisor)
                                           : std::trunc(dividend / divisor);
}

double Parser::finite(double value, qsizetype at) const
{
    if (std::isnan(value)) // a root of a negative number
        m_text.fail(u"Esa potencia no existe"_s, at);
    if (std::isinf(value))
        m_text.fail(u"El resultado es demasiado grande"_s, at);
    return value;
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
