#include "problems/expression_text.h"

#include "problems/expression.h"

#include <charconv>
#include <string>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

constexpr QStringView ModWord = u"mod";

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

QChar ExpressionText::peek()
{
    while (m_at < m_text.size() && m_text[m_at].isSpace())
        ++m_at;
    return m_at < m_text.size() ? m_text[m_at] : QChar();
}

char16_t ExpressionText::takeOneOf(QStringView signs)
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

bool ExpressionText::takeMinuses()
{
    bool negative = false;
    while (const char16_t sign = takeOneOf(u"+-"))
        negative ^= sign == u'-';
    return negative;
}

bool ExpressionText::isNumberNext() const
{
    return !atEnd() && (isDigit(m_text[m_at]) || m_text[m_at] == u'.');
}

double ExpressionText::takeNumber()
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

bool ExpressionText::isModNext() const
{
    const QStringView rest = m_text.mid(m_at);
    // A digit may follow at once: a datum put in for "Mod&1" leaves no blank.
    return rest.startsWith(ModWord, Qt::CaseInsensitive)
        && (rest.size() == ModWord.size() || !rest[ModWord.size()].isLetter());
}

void ExpressionText::failHere() const
{
    if (m_text[m_at] == u',')
        fail(u"Los decimales se escriben con punto, no con coma"_s, m_at);
    const QStringView character = m_text.mid(m_at, m_text[m_at].isHighSurrogate() ? 2 : 1);
    fail(u"«%1» no se entiende ahí"_s.arg(character), m_at);
}

void ExpressionText::fail(const QString& what, qsizetype at) const
{
    constexpr qsizetype Longest = 60;
    const QString shown =
        m_text.size() <= Longest ? m_text.toString() : m_text.first(Longest).toString() + u"…"_s;
    throw ExpressionError(
        u"%1 (carácter %2 de «%3»)."_s.arg(what, QString::number(at + 1), shown), at + 1);
}

} // namespace problems
