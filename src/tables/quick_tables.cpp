#include "tables/quick_tables.h"

#include "core/defect.h"
#include "core/numbers.h"
#include "core/random.h"

using namespace Qt::StringLiterals;
using shell::Verdict;

namespace tables {

namespace {

constexpr int LargestNumber = 10;
constexpr int SmallestSum = 8; // of the two factors: what is easier is never asked

int largestLimit(QuickTables::End end)
{
    switch (end) {
    case QuickTables::End::Minutes:
        return 60;
    case QuickTables::End::Operations:
        return 500;
    case QuickTables::End::Errors:
        return 100;
    case QuickTables::End::Button:
        break;
    }
    return core::Int16::Max;
}

QString numberLine(int number, int right, int wrong, const QLocale& locale)
{
    QString line = u"número %1: %2 errores."_s.arg(number).arg(wrong);
    if (right + wrong > 0)
        line += u" (%1 %)"_s.arg(core::generalText(wrong * 100.0 / (right + wrong), locale));
    return line + u"\r\n"_s;
}

/// What was typed, as it is quoted: a text that is pasted has no end.
QString quoted(const QString& typed)
{
    constexpr int Longest = 20;
    const QString text = typed.trimmed();
    return u'«' + (text.size() > Longest ? text.left(Longest) + u'…' : text) + u'»';
}

} // namespace

QuickTables::QuickTables(core::RandomSource& random)
    : m_random(random)
{
}

void QuickTables::endBy(End end)
{
    if (m_phase == Phase::Idle)
        m_state.FinActividad = end;
}

// A step ends early only by ending the drill or by an overflow, which takes all of it back.
template <typename Step> QuickTables::Events QuickTables::run(Step step)
{
    m_events = {};
    if (m_phase != Phase::Running)
        return m_events;
    const State before = m_state;
    try {
        step();
    } catch (...) {
        m_state = before;
        throw;
    }
    m_events.ended = ended();
    return m_events;
}

QuickTables::Events QuickTables::start(core::Int16 limit)
{
    if (m_phase != Phase::Idle)
        return {};
    m_phase = Phase::Running;
    m_state.Limite = limit;
    return run([this] { NuevaOperacion(); });
}

QuickTables::LimitVerdict QuickTables::setLimit(core::Int16 limit)
{
    if (m_phase != Phase::Running)
        return LimitVerdict::Fine;
    m_state.Limite = limit;
    if (m_state.FinActividad == End::Button)
        return LimitVerdict::Fine;
    if (limit >= 1 && limit <= largestLimit(m_state.FinActividad))
        return LimitVerdict::Fine;
    m_state.FinActividad = End::Button;
    return limit < 1 ? LimitVerdict::TooSmall : LimitVerdict::TooLarge;
}

QString QuickTables::limitWarning(LimitVerdict verdict)
{
    const QString size = verdict == LimitVerdict::TooSmall ? u"pequeño"_s : u"grande"_s;
    // The runs of blanks are meant.
    return u"Ha especificado un valor demasiado %1. La actividad continuará hasta   que se "
           "pulse  el botón salir"_s.arg(size);
}

std::optional<QString> QuickTables::limitFault(const QString& typed) const
{
    const double limit = core::roundHalfEven(core::readNumber(typed));
    if (limit >= core::Int16::Min && limit <= core::Int16::Max)
        return {};
    return u"%1 es demasiado %2. Escribe un número del 1 al %3 y vuelve a empezar."_s.arg(
        quoted(typed), limit < 0 ? u"pequeño"_s : u"grande"_s,
        QString::number(largestLimit(m_state.FinActividad)));
}

QuickTables::Events QuickTables::judge(double answer)
{
    return run([this, answer] {
        ++m_state.Operaciones;
        if (answer == m_state.Producto.value())
            Acierto();
        else
            Fallo();
    });
}

QuickTables::Events QuickTables::tickOperation()
{
    return run([this] {
        --m_state.Restantes;
        if (m_state.Restantes >= 1)
            return;
        Fallo();
        if (ended())
            return; // before this time-out is counted as one
        ++m_state.ErroresTiempo;
        NuevaOperacion(); // the second one, behind that of Fallo: meant
    });
}

QuickTables::Events QuickTables::tickMinute()
{
    return run([this] {
        constexpr int SecondsPerMinute = 60;
        ++m_state.Segundos;
        if (m_state.Segundos < SecondsPerMinute)
            return;
        m_state.Segundos %= SecondsPerMinute;
        advance();
    });
}

void QuickTables::end()
{
    if (m_phase == Phase::Running)
        m_phase = Phase::Ended;
}

void QuickTables::NuevaOperacion()
{
    // The one about to be drawn counts: of five operations the pupil answers four. Meant.
    if (m_state.FinActividad == End::Operations)
        advance();
    if (ended())
        return;
    const core::Int16 previousA = m_state.FactorA;
    const core::Int16 previousB = m_state.FactorB;
    do {
        m_state.FactorA = core::randomInteger(m_random, LargestNumber, 1);
        m_state.FactorB = core::randomInteger(m_random, LargestNumber, 1);
    } while (m_state.FactorA + m_state.FactorB < SmallestSum
        || (m_state.FactorA == previousA && m_state.FactorB == previousB));
    m_state.Producto = m_state.FactorA * m_state.FactorB;
    m_state.Restantes = SecondsPerOperation;
    m_events.newOperation = true;
}

void QuickTables::Acierto()
{
    countUse(Verdict::Right);
    NuevaOperacion();
}

void QuickTables::Fallo()
{
    ++m_state.ErroresTotales;
    countUse(Verdict::Wrong);
    if (m_state.FinActividad == End::Errors)
        advance();
    NuevaOperacion(); // none once the drill has ended
}

void QuickTables::countUse(Verdict verdict)
{
    m_events.verdict = verdict;
    const std::size_t column = verdict == Verdict::Right ? 0 : 1;
    for (const core::Int16 factor : {m_state.FactorA, m_state.FactorB})
        ++core::at(m_state.Usos, factor.value() - 1)[column];
}

void QuickTables::advance()
{
    ++m_state.Progreso;
    // The first operation is drawn before a limit below 1 is turned down.
    if (m_state.Limite >= 1 && m_state.Progreso >= m_state.Limite)
        end();
}

QString QuickTables::verdictText(Verdict verdict)
{
    return verdict == Verdict::Right ? u"BIEN"_s : u"MAL"_s;
}

QString QuickTables::operationText() const
{
    return u"%1 x %2 = "_s.arg(m_state.FactorA.value()).arg(m_state.FactorB.value());
}

QString QuickTables::spokenOperation() const
{
    return u"%1 por %2"_s.arg(m_state.FactorA.value()).arg(m_state.FactorB.value());
}

QString QuickTables::timeText() const
{
    return u"%1/"_s.arg(m_state.Restantes.value());
}

QString QuickTables::report(const QLocale& locale) const
{
    QString text = u"Número de operaciones: %1. Número total de errores: %2.\r\n"_s
                       .arg(m_state.Operaciones.value())
                       .arg(m_state.ErroresTotales.value());
    text += u"Errores cometidos al usar cada número y porcentaje: \r\n"_s;
    for (int number = 1; number <= LargestNumber; ++number) {
        const auto& uses = core::at(m_state.Usos, number - 1);
        text += numberLine(number, uses[0].value(), uses[1].value(), locale);
    }
    return text + u"Errores por tiempo: %1."_s.arg(m_state.ErroresTiempo.value());
}

TimeColour timeColour(int secondsLeft)
{
    // Tenths are not exact in binary: dividing last keeps the halves halves.
    const auto channel = [](int seconds) {
        return static_cast<int>(
            core::roundHalfEven(seconds * 255.0 / QuickTables::SecondsPerOperation));
    };
    return {channel(QuickTables::SecondsPerOperation - secondsLeft), channel(secondsLeft)};
}

} // namespace tables
