#include "written/long_multiplication.h"

#include "core/errors.h"
#include "core/numbers.h"
#include "core/random.h"
#include "written/spoken.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace written {

namespace {

QString withoutLeadingBlanks(const QString& text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at] == u' ')
        ++at;
    return text.sliced(at);
}

/// The whole number typed, cut towards minus infinity; infinite when a double cannot hold it.
std::optional<double> readFactor(QStringView typed)
{
    const std::optional<double> number = core::parseNumber(typed);
    if (!number)
        return std::nullopt;
    // The reader answers a number beyond every double with the largest one there is.
    if (std::abs(*number) == std::numeric_limits<double>::max())
        return std::numeric_limits<double>::infinity();
    return std::floor(*number);
}

} // namespace

LongMultiplication::LongMultiplication(core::RandomSource& random)
    : m_random(random)
{
}

void LongMultiplication::newExercise()
{
    const double factor1 = randomFactor(m_CifrasFactor1);
    const double factor2 =
        m_CualquierCifra ? randomFactor(m_CifrasFactor2) : randomFromChosenDigits();
    if (!prepare({factor1, factor2, factor1 * factor2, true, {}}))
        throw core::OverflowError(
            u"Los factores de %1 y %2 cifras son demasiado grandes: elige menos cifras en el menú Opciones."_s
                .arg(m_CifrasFactor1.value())
                .arg(m_CifrasFactor2.value()));
    m_verdict.clear();
}

double LongMultiplication::randomFactor(core::Int16 digits)
{
    const double limit = std::pow(10.0, digits.value());
    if (!std::isfinite(limit))
        return limit;
    const double smallest = std::pow(10.0, digits.value() - 1);
    double factor = 0;
    do
        factor = std::floor(limit * static_cast<double>(m_random.next())) + 1;
    while (factor <= smallest || factor == limit);
    return factor;
}

double LongMultiplication::randomFromChosenDigits()
{
    QString digits;
    QString allowed = m_CifrasElegidas;
    for (int place = 0; place < m_CifrasFactor2.value(); ++place) {
        const core::Int16 drawn =
            core::randomInteger(m_random, static_cast<int>(allowed.size()), 0);
        digits += allowed[drawn.value()];
        allowed = m_CifrasElegidas + u'0'; // zeros everywhere but in front
    }
    return readFactor(digits).value_or(0);
}

bool LongMultiplication::prepare(Exercise exercise)
{
    if (!std::isfinite(exercise.product))
        return false;
    exercise.rows = partialProducts(exercise.factor1, exercise.factor2);
    m_exercise = std::move(exercise);
    return true;
}

QStringList LongMultiplication::partialProducts(double factor1, double factor2) const
{
    QStringList rows;
    const QString digits = core::wholeText(factor2);
    for (qsizetype place = 0; place < digits.size(); ++place) {
        const QChar digit = digits[digits.size() - 1 - place];
        if (m_OcultarCeros && digit == u'0')
            continue;
        const int value = digit.isDigit() ? digit.digitValue() : 0; // a minus has a row too
        rows += core::wholeProductText(value, factor1) + QString(place, u' ');
    }
    return rows;
}

QString LongMultiplication::factor1Text() const
{
    return core::wholeText(Factor1());
}

QString LongMultiplication::factor2Text() const
{
    return (m_exercise.hasSign ? u"x     "_s : QString()) + core::wholeText(Factor2());
}

QString LongMultiplication::resultText() const
{
    return core::wholeProductText(Factor1(), Factor2());
}

bool LongMultiplication::firstRowIsResult() const
{
    return core::wholeText(Factor2()).size() == 1;
}

void LongMultiplication::chooseDigits(const QString& digits)
{
    m_CualquierCifra = digits.isEmpty();
    m_CifrasElegidas = digits;
}

QString LongMultiplication::digitsCaption() const
{
    return u"&Seleccionar (%1) ..."_s.arg(m_CifrasElegidas); // at first without that blank: meant
}

QString LongMultiplication::zerosCaption() const
{
    // Without its accent, and not "(No)" as at first: both are meant.
    return u"&Ocultar ceros intermedios "_s + (m_OcultarCeros ? u"(Si)"_s : u"(no)"_s);
}

TypedFactor LongMultiplication::typeFactor1(QStringView typed)
{
    const std::optional<double> factor = readFactor(typed);
    // The second factor then stands there without its sign: meant.
    return factor ? replaceFactors(*factor, Factor2(), false) : TypedFactor::Ignored;
}

TypedFactor LongMultiplication::typeFactor2(QStringView typed)
{
    const std::optional<double> factor = readFactor(typed);
    if (!factor)
        return TypedFactor::Ignored;
    const TypedFactor outcome = replaceFactors(Factor1(), *factor, true);
    if (outcome == TypedFactor::Accepted) {
        m_CifrasFactor2 = static_cast<int>(core::wholeText(*factor).size());
        m_verdict.clear(); // after factor 1 it stays: meant
    }
    return outcome;
}

TypedFactor LongMultiplication::replaceFactors(double factor1, double factor2, bool hasSign)
{
    return prepare({factor1, factor2, factor1 * factor2, hasSign, {}}) ? TypedFactor::Accepted
                                                                       : TypedFactor::TooLarge;
}

shell::Verdict LongMultiplication::judge(const Answer& answer)
{
    const bool right = core::readNumber(answer.result) == Producto();
    countWhilePending(right ? Verdict::Right : Verdict::Wrong);
    if (right)
        m_verdict.tell(Verdict::Right, u"Resultado correcto "_s); // the last blank is meant
    else
        m_verdict.tell(Verdict::Wrong, u"resultado incorrecto"_s); // so is the small letter
    m_wrongRows = right ? std::vector<int>() : compareRows(answer.rows);
    return *m_verdict.verdict();
}

std::vector<int> LongMultiplication::compareRows(const QStringList& rows) const
{
    std::vector<int> wrong;
    const qsizetype compared = std::min(rows.size(), expectedRows().size());
    for (qsizetype row = 0; row < compared; ++row)
        if (withoutLeadingBlanks(rows[row]) != expectedRows()[row])
            wrong.push_back(static_cast<int>(row));
    return wrong;
}

QString LongMultiplication::spokenExercise() const
{
    return u"%1 por %2"_s.arg(factor1Text(), core::wholeText(Factor2()));
}

QString LongMultiplication::spokenSolution() const
{
    return u"Solución: %1"_s.arg(resultText());
}

QString LongMultiplication::spokenWrongRows() const
{
    QStringList rows;
    for (const int row : m_wrongRows)
        rows << QString::number(row + 1);
    if (rows.isEmpty())
        return {};
    return (rows.size() == 1 ? u"fila equivocada: %1"_s : u"filas equivocadas: %1"_s)
        .arg(spokenList(rows));
}

QString LongMultiplication::spokenCaret(int posicion, int length)
{
    return spokenPlace(length - posicion);
}

bool LongMultiplication::IndicaProducto(int posicion, int fila, int length)
{
    const auto hint = productHint(posicion, fila, length);
    if (hint)
        m_verdict.show(*hint);
    return hint.has_value();
}

std::optional<QString> LongMultiplication::productHint(int posicion, int fila, int length) const
{
    int shift = posicion - length;
    if (shift < 0)
        ++shift; // the digit that is pointed at is the one right of the caret
    const int place = fila + shift; // 0 at the units of factor 1, negative to their left
    if (place >= 1)
        return std::nullopt;
    const QString factor1 = factor1Text();
    const QString factor2 = factor2Text();
    const QString digit1 =
        -place < factor1.size() ? factor1.sliced(factor1.size() + place - 1, 1) : u"0"_s;
    // By the number of the row, whether rows of zeros are hidden or not: meant.
    const QString digit2 = factor2.mid(factor2.size() - fila - 1, 1);
    return digit1 + u" × "_s + digit2;
}

} // namespace written
