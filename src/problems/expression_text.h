#pragma once

#include <QString>

namespace problems {

/// The text of an expression, read from left to right. Blanks are passed over by what looks for
/// the next character.
class ExpressionText {
public:
    static constexpr char16_t ModSign = u'M'; ///< stands for the word Mod

    explicit ExpressionText(QStringView text)
        : m_text(text)
    {
    }

    qsizetype at() const { return m_at; }
    bool atEnd() const { return m_at == m_text.size(); }
    void step() { ++m_at; }

    /// After any blanks; 0 at the end.
    QChar peek();
    /// 0 when none is next. ModSign alone stands for the word.
    char16_t takeOneOf(QStringView signs);
    /// True when they make the number negative.
    bool takeMinuses();
    bool isModNext() const;
    bool isNumberNext() const;
    /// Throws ExpressionError when it is none that a double has room for.
    double takeNumber();

    // Both throw an ExpressionError, which names the place and shows the text.

    /// Says that the next character has no place there.
    [[noreturn]] void failHere() const;
    [[noreturn]] void fail(const QString& what, qsizetype at) const;

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace problems
