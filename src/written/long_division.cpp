#include "written/long_division.h"

#include "core/errors.h"
#include "core/numbers.h"
#include "core/random.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace written {

namespace {

/// From 10^(digits-1) + 1 to 10^digits - 1; the largest is deliberately twice as likely.
double randomNumber(core::RandomSource& random, int digits)
{
    const double limit = std::pow(10.0, digits);
    const double excluded = std::pow(10.0, digits - 1);
    double number = 0;
    do {
        number = std::floor(limit * static_cast<double>(random.next())) + 1;
        if (!(number <= std::numeric_limits<qint32>::max()))
            throw core::OverflowError(
                u"Los números de %1 cifras son demasiado grandes para proponer una división. "
                "Elija otro número de cifras en el menú Opciones."_s.arg(digits));
    } while (number <= excluded);
    return number == limit ? limit - 1 : number;
}

/// The text has the seven digits of single precision: 200 ÷ 17 is 11.76471, with no zero,
/// though further digits of it are zeros.
bool hasZeroOrIsShort(qint32 dividend, qint32 divisor)
{
    const auto quotient = static_cast<float>(static_cast<double>(dividend) / divisor);
    return quotient < 10 || QString::number(static_cast<double>(quotient), 'g', 7).contains(u'0');
}

qint32 readWholePart(const QString& typed)
{
    const double whole = std::trunc(core::readNumber(typed));
    if (whole < std::numeric_limits<qint32>::min() || whole > std::numeric_limits<qint32>::max())
        return core::readInt32(typed); // words the error
    return static_cast<qint32>(whole);
}

/// A line of squared paper has no room for more.
core::Int16 typedLength(const QString& typed)
{
    constexpr qsizetype Longest = 60;
    const qsizetype length = typed.trimmed().size();
    if (length > Longest)
        throw core::OverflowError(
            u"El número tiene %1 caracteres: escriba como mucho %2."_s.arg(length).arg(Longest));
    return {static_cast<int>(length)};
}

core::Int16 lineWidth(const DivisionSettings& settings)
{
    return settings.CifrasDividendo + 4 + settings.DecimalesCociente;
}

} // namespace

LongDivision::LongDivision(core::RandomSource& random)
    : m_random(random)
{
}

int LongDivision::rightFigures() const
{
    const int decimals = m_settings.DecimalesCociente.value();
    const auto quotient = QString::number(Dividendo()).size() + (decimals > 0 ? 1 + decimals : 0);
    return static_cast<int>(std::max(QString::number(Divisor()).size(), quotient));
}

int LongDivision::workLines() const
{
    const int figures = m_settings.CifrasDividendo.value() + m_settings.DecimalesCociente.value();
    return 1 + 2 * figures + 1;
}

QString LongDivision::operationText() const
{
    return u"%1 ÷ %2"_s.arg(Dividendo()).arg(Divisor());
}

QString LongDivision::spokenExercise() const
{
    const int decimals = m_settings.DecimalesCociente.value();
    QString division = u"%1 entre %2"_s.arg(Dividendo()).arg(Divisor());
    if (decimals == 0)
        return division;
    return decimals == 1 ? division + u", con 1 decimal"_s
                         : u"%1, con %2 decimales"_s.arg(division).arg(decimals);
}

QString LongDivision::spokenSolution(const WorkedDivision& worked)
{
    return u"Solución: cociente %1, resto %2"_s.arg(
        worked.quotient, worked.work.lastWrittenLine());
}

QString LongDivision::spokenSquare(const GridText& work, int position)
{
    const int row = position / work.columns();
    const int column = position % work.columns();
    const auto figure = [&](int line) { return work.line(line).mid(column, 1).trimmed(); };
    if (row == 0)
        return u"dividendo"_s;
    QStringList words{u"línea %1"_s.arg(row)};
    int above = row - 1;
    while (above > 0 && figure(above).isEmpty())
        --above;
    if (above > 0)
        words << u"encima, %1"_s.arg(figure(above));
    if (!figure(0).isEmpty())
        words << u"del dividendo, %1"_s.arg(figure(0));
    return words.join(u"; "_s);
}

GridText LongDivision::emptyWork() const
{
    return {u" %1"_s.arg(Dividendo()), m_AnchoLinea.value()};
}

void LongDivision::newExercise()
{
    start(m_settings);
}

void LongDivision::nextExercise()
{
    newExercise();
    Pendiente = true;
}

void LongDivision::chooseDecimals(core::Int16 decimals)
{
    DivisionSettings settings = m_settings;
    settings.DecimalesCociente = decimals;
    start(settings);
}

void LongDivision::toggleProducts()
{
    DivisionSettings settings = m_settings;
    settings.RestasIntermedias = !settings.RestasIntermedias;
    start(settings);
}

void LongDivision::toggleForcedZeros()
{
    DivisionSettings settings = m_settings;
    settings.ForzarCeros = !settings.ForzarCeros;
    start(settings);
}

void LongDivision::start(const DivisionSettings& settings)
{
    const core::Int16 width = lineWidth(settings);
    m_operands = randomOperands(settings);
    m_AnchoLinea = width;
    m_settings = settings;
}

LongDivision::Operands LongDivision::randomOperands(const DivisionSettings& settings) const
{
    Operands drawn;
    do {
        drawn.Dividendo = core::toInt32(randomNumber(m_random, settings.CifrasDividendo.value()));
        drawn.Divisor = core::toInt32(randomNumber(m_random, settings.CifrasDivisor.value()));
    } while (settings.ForzarCeros && !hasZeroOrIsShort(drawn.Dividendo, drawn.Divisor));
    return drawn;
}

bool LongDivision::typeDividend(const QString& typed)
{
    if (typed.trimmed().isEmpty())
        return false;
    const qint32 dividend = readWholePart(typed);
    DivisionSettings settings = m_settings;
    settings.CifrasDividendo = typedLength(typed);
    m_AnchoLinea = lineWidth(settings);
    m_operands.Dividendo = dividend;
    m_settings = settings;
    return true;
}

bool LongDivision::typeDivisor(const QString& typed)
{
    const qint32 divisor = readWholePart(typed); // 0,5 would divide by 0 too
    if (divisor == 0)
        return false;
    m_settings.CifrasDivisor = typedLength(typed);
    m_operands.Divisor = divisor;
    return true;
}

shell::Verdict LongDivision::judge(const Answer& answer)
{
    const double remainder = core::readNumber(answer.work.lastWrittenLine());
    // Without a comma the position is 0, so that every character counts as a decimal: meant.
    const auto decimals =
        static_cast<int>(answer.quotient.size() - (answer.quotient.indexOf(u',') + 1));
    const int wanted = m_settings.DecimalesCociente.value();
    if (wanted > 0 && decimals < wanted && remainder > 0)
        return Verdict::NotJudged;
    const bool right = isRight(core::readNumber(answer.quotient), remainder, decimals);
    countWhilePending(right ? Verdict::Right : Verdict::Wrong);
    if (right) // the capitals of the two differ: meant
        m_verdict.tell(Verdict::Right, u"resultado correcto"_s);
    else
        m_verdict.tell(Verdict::Wrong, u"Resultado incorrecto"_s);
    return *m_verdict.verdict();
}

QString LongDivision::tooFewDecimals() const
{
    return u"Debe sacar al menos %1 decimales."_s.arg(m_settings.DecimalesCociente.value());
}

bool LongDivision::isRight(double quotient, double remainder, int decimals) const
{
    const qint64 dividend = Dividendo(); // 64 bits: the smallest number ÷ -1 has room
    const qint64 divisor = Divisor();
    if (m_settings.DecimalesCociente == 0) {
        const qint64 whole = dividend / divisor;
        return remainder == static_cast<double>(dividend % divisor)
            && quotient == static_cast<double>(whole);
    }
    const double product = quotient * 100000 * static_cast<double>(divisor) / 100000;
    const double sum = product + remainder / std::pow(10.0, decimals);
    return core::roundHalfEven(sum) == static_cast<double>(dividend);
}

WorkedDivision LongDivision::showSolution()
{
    WorkedDivision worked = ResuelveDivision(emptyWork(), Divisor(),
        m_settings.DecimalesCociente.value(), m_settings.RestasIntermedias);
    Pendiente = false;
    m_verdict.clear();
    return worked;
}

} // namespace written
