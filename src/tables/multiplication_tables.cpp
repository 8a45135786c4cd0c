#include "tables/multiplication_tables.h"

#include "core/defect.h"
#include "core/random.h"

#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace tables {

namespace {

constexpr int Swaps = 100; // of neighbours, after which the ascending order still shows: meant

QString activityName(int activity)
{
    switch (activity) {
    case MultiplicationTables::ViewTable:
        return u"Ver tabla"_s;
    case MultiplicationTables::ReviewInOrder:
        return u"Repasar tabla en orden"_s;
    default:
        return u"repasar tabla salteada"_s; // in small letters: meant
    }
}

} // namespace

MultiplicationTables::MultiplicationTables(core::RandomSource& random)
    : m_random(random)
{
}

int MultiplicationTables::tableAt(int index) const
{
    return core::at(Tablas, index).value();
}

int MultiplicationTables::nextTable() const
{
    return (TablaActual.value() + 1) % Tables;
}

int MultiplicationTables::nextActivity() const
{
    return (ActividadActual.value() + 1) % Activities;
}

QString MultiplicationTables::caption() const
{
    return u"Tabla del %1 - %2"_s.arg(table()).arg(activityName(ActividadActual.value()));
}

QString MultiplicationTables::tableText(int half) const
{
    // The products of the second half may have three digits, so their sign gives way.
    const QString line = half == 0 ? u"%1x%2 = %3\r\n"_s : u"%1x%2 =%3\r\n"_s;
    const int productWidth = half == 0 ? 2 : 3;
    QString text;
    for (int k = 5 * half + 1; k <= 5 * half + 5; ++k)
        text += line.arg(table(), 2).arg(k, 2).arg(table() * k, productWidth);
    return text;
}

void MultiplicationTables::newExercise()
{
    Pregunta = 1;
    for (int i = 0; i < 10; ++i)
        core::at(Orden, i) = i + 1;
    if (ActividadActual == ReviewShuffled)
        shuffle();
    ErroresRepaso = 0;
}

void MultiplicationTables::shuffle()
{
    for (int swap = 0; swap < Swaps; ++swap) {
        const int r = core::randomInteger(m_random, 9, 1).value();
        std::swap(core::at(Orden, r - 1), core::at(Orden, r));
    }
}

int MultiplicationTables::multiplier() const
{
    return !isSeriesOver() ? core::at(Orden, Pregunta.value() - 1).value() : 0;
}

QString MultiplicationTables::seriesReport() const
{
    return u"Has cometido %1 errores. ¿Deseas volver a realizar esta actividad?"_s.arg(
        seriesErrors());
}

shell::Verdict MultiplicationTables::judge(double answer)
{
    if (isSeriesOver())
        return Verdict::NotJudged;
    if (answer != product()) {
        ++ErroresRepaso;
        // The small letter and the blank at the end are meant.
        m_verdict.tell(Verdict::Wrong, u"resultado incorrecto "_s);
        return Verdict::Wrong;
    }
    ++Pregunta;
    m_verdict.tell(Verdict::Right, u"Resultado correcto"_s);
    return Verdict::Right;
}

QString MultiplicationTables::spokenTable() const
{
    QStringList rows;
    for (int k = 1; k <= 10; ++k)
        rows << u"%1 por %2, %3"_s.arg(table()).arg(k).arg(table() * k);
    return u"Tabla del %1: "_s.arg(table()) + rows.join(u"; "_s);
}

QString MultiplicationTables::spokenQuestion() const
{
    return isSeriesOver() ? QString() : u"%1 por %2"_s.arg(table()).arg(multiplier());
}

QString MultiplicationTables::spokenSolution() const
{
    return isSeriesOver() ? QString() : spokenQuestion() + u" igual a %1"_s.arg(product());
}

} // namespace tables
