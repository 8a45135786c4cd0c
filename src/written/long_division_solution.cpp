#include "written/long_division_solution.h"

#include "core/errors.h"
#include "core/numbers.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace written {

namespace {

/// One pass over the digits of a dividend. The numbers below a negative dividend carry its
/// sign, so that every product and remainder is what it says.
class Walk {
public:
    Walk(const GridText& work, qint32 divisor, int decimals, bool withProducts)
        : m_work(work)
        , m_divisor(divisor)
        , m_withProducts(withProducts)
        , m_negative(work.line(0).contains(u'-'))
    {
        const QString operation = work.line(0);
        while (!operation[m_firstColumn].isDigit())
            ++m_firstColumn;
        m_dividend = operation.mid(m_firstColumn).trimmed();
        m_digits = m_dividend + QString(decimals, u'0');
    }

    WorkedDivision run()
    {
        for (int i = 0; i < m_digits.size(); ++i)
            step(i);
        if (m_negative != (m_divisor < 0) && core::readNumber(m_quotient) != 0)
            m_quotient.prepend(u'-');
        return {m_quotient, m_work};
    }

private:
    bool isLastOfDividend(int index) const { return index == m_dividend.size() - 1; }

    void step(int index)
    {
        const int digit = m_digits[index].digitValue();
        m_partial = m_partial * 10 + (m_negative ? -digit : digit);
        const qint64 quotientDigit = m_partial / m_divisor;
        if (m_quotient.isEmpty() && quotientDigit == 0 && !isLastOfDividend(index))
            return;
        m_quotient += QString::number(std::abs(quotientDigit));
        if (isLastOfDividend(index) && m_digits.size() > m_dividend.size())
            m_quotient += u',';
        const int column = m_firstColumn + index;
        if (m_withProducts)
            write(quotientDigit * m_divisor, u"-"_s, column);
        m_partial %= m_divisor;
        write(m_partial, m_digits.mid(index + 1, 1), column);
    }

    /// A number with its units in column, and what stands beside it.
    void write(qint64 number, const QString& beside, int column)
    {
        const QString text = QString::number(number);
        const int start = column + 1 - static_cast<int>(text.size());
        m_work.EscribeLinea(text + beside, ++m_row, start);
    }

    GridText m_work;
    qint64 m_divisor;
    bool m_withProducts;
    bool m_negative;
    int m_firstColumn = 0;
    QString m_dividend;
    QString m_digits; // of the dividend and, after them, one zero for each decimal
    QString m_quotient;
    qint64 m_partial = 0;
    int m_row = 0;
};

} // namespace

WorkedDivision ResuelveDivision(
    const GridText& work, qint32 Divisor, int DecimalesCociente, bool RestasIntermedias)
{
    if (Divisor == 0)
        throw core::DivisionByZeroError();
    return Walk(work, Divisor, DecimalesCociente, RestasIntermedias).run();
}

} // namespace written
