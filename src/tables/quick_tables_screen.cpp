#include "tables/quick_tables_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "tables/limit_options.h"
#include "tables/quick_tables_widgets.h"
#include "ui/ground.h"
#include "ui/screens.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;
using ui::look::Family;
using Mark = ui::VerdictBox::Mark;

namespace tables {

namespace {

// Twips.
constexpr double Width = 5880;
constexpr double Height = 6600;

constexpr ui::look::Font RowFont{Family::CourierNew, 52, true};
constexpr ui::look::Font LineFont{Family::CourierNew, 22, true};
constexpr ui::look::Font TimeFont{Family::CourierNew, 26, true};
constexpr ui::look::Font CommandFont{Family::Verdana, 15, true};

QColor fade(int secondsLeft)
{
    const TimeColour colour = timeColour(secondsLeft);
    return {colour.red, colour.green, 0};
}

} // namespace

Form8::Form8(ui::Screens& screens)
    : Screen(screens, screenName(), u"TABLAS RÁPIDAS"_s, Width, Height)
    , m_model(screens.random())
{
    TBInstruc = displayBox(u"TBInstruc"_s, {240, 180, 5400, 420}, ui::look::Instruction,
        u"Instrucciones"_s,
        u"Escribe el resultado correcto y pulsa enter "_s); // the last blank is meant
    makeRow();
    TBResul = add(new VerdictPatch(canvas()), u"TBResul"_s, ui::TwipRect{240, 1980, 5400, 540});
    TBResul->setAccessibleName(u"Resultado"_s);
    makeTime();
    // In the place of what shows only while they are hidden.
    m_limits = new LimitOptions(*this, {240, 1980, 5400, 3240}, this);
    on(m_limits, &LimitOptions::chosen, &Form8::Option1_Click);

    Command1 = button(u"Command1"_s, u"&Empezar"_s, {1890, 5640, 2100, 690},
        QColor(ui::look::Yellow), CommandFont);
    on(Command1, &QPushButton::clicked, &Form8::Command1_Click);
    new ui::Tray({Command1});

    Timer1 = timer(u"Timer1"_s, 1000);
    on(Timer1, &QTimer::timeout, &Form8::Timer1_Timer);
    Timer2 = timer(u"Timer2"_s, 1000);
    on(Timer2, &QTimer::timeout, &Form8::Timer2_Timer);
}

void Form8::makeRow()
{
    constexpr double Top = 720;
    constexpr double BoxHeight = 1080;
    TbDatos = {
        displayBox(u"TbDatos(0)"_s, {240, Top, 1020, BoxHeight}, RowFont, u"Primer factor"_s),
        displayBox(u"TbDatos(1)"_s, {1260, Top, 570, BoxHeight}, RowFont, u"Por"_s, u"x"_s),
        displayBox(u"TbDatos(2)"_s, {1830, Top, 1020, BoxHeight}, RowFont, u"Segundo factor"_s),
        displayBox(u"TbDatos(3)"_s, {2850, Top, 570, BoxHeight}, RowFont, u"Igual a"_s, u"="_s),
        entryBox(u"TbDatos(4)"_s, {3510, Top, 2130, BoxHeight}, RowFont, u"Respuesta"_s)};
    for (ui::TextBox* box : TbDatos) {
        box->setAlignment(Qt::AlignCenter);
        onEnter(box, [this] { TbDatos_KeyPress(); });
    }
}

void Form8::makeTime()
{
    constexpr double Top = 3060;
    constexpr double BarHeight = 720;
    LBTiempo = add(new TimeLabel(canvas()), u"LBTiempo"_s,
        ui::TwipRect{240, Top, 1200, BarHeight}, TimeFont);
    m_bar = add(new CountdownBar(canvas()), {}, ui::TwipRect{1560, Top, 4080, BarHeight});
    LBOperacion = label(u"LBOperación"_s, {}, {240, 4260, 5400, 600}, LineFont);
    LBOperacion->setAlignment(Qt::AlignCenter);
}

void Form8::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    ui::Ground::pose(*this, ui::Pose::Waiting);
    for (ui::TextBox* box : TbDatos)
        box->setEnabled(false);
    m_limits->chooseNone(); // runs its handler: no limit to type
    Command1->setFocus();
}

void Form8::Option1_Click(int Index)
{
    m_model.endBy(static_cast<QuickTables::End>(Index));
    m_limits->askLimit(Index);
}

void Form8::Command1_Click()
{
    if (m_model.isRunning())
        finish();
    else
        start();
}

void Form8::start()
{
    if (const auto fault = m_model.limitFault(m_limits->limit())) {
        ui::MessageBox::show(
            *this, *fault, ui::MessageBox::programTitle(), ui::Icon::Exclamation);
        return;
    }
    play(m_model.start(core::readInt16(m_limits->limit())));
    if (m_model.ended())
        return;
    Command1->setText(u"&Salir"_s);
    m_limits->hide();
    for (ui::TextBox* box : TbDatos)
        box->setEnabled(true);
    warnOfLimit(m_model.setLimit(core::readInt16(m_limits->limit())));
    TbDatos[4]->setFocus();
    Timer1->start();
    if (m_model.state().FinActividad == QuickTables::End::Minutes)
        Timer2->start();
}

void Form8::warnOfLimit(QuickTables::LimitVerdict verdict)
{
    if (verdict != QuickTables::LimitVerdict::Fine)
        ui::MessageBox::show(*this, QuickTables::limitWarning(verdict),
            ui::MessageBox::programTitle(), ui::Icon::Exclamation);
}

void Form8::TbDatos_KeyPress()
{
    play(m_model.judge(core::readNumber(TbDatos[4]->text())));
}

void Form8::Timer1_Timer()
{
    const QuickTables::Events events = m_model.tickOperation();
    if (events.verdict)
        say(u"Tiempo agotado"_s);
    play(events);
    if (events.ended)
        return;
    if (events.verdict)
        Timer1->start(); // the new operation gets its seconds whole
    else
        showTime();
}

void Form8::Timer2_Timer()
{
    play(m_model.tickMinute());
}

void Form8::play(const QuickTables::Events& events)
{
    if (events.verdict)
        showVerdict(*events.verdict);
    if (events.newOperation)
        showOperation();
    if (events.ended)
        finish();
}

void Form8::showVerdict(shell::Verdict verdict)
{
    const QString text = QuickTables::verdictText(verdict);
    if (verdict == shell::Verdict::Right) {
        TBResul->setPatch(text, Mark::Right, QColor(ui::look::Green));
        return;
    }
    beep();
    TBResul->setPatch(text, Mark::Wrong, QColor(ui::look::Red));
}

void Form8::showOperation()
{
    TbDatos[0]->setText(QString::number(m_model.state().FactorA.value()));
    TbDatos[2]->setText(QString::number(m_model.state().FactorB.value()));
    TbDatos[4]->clear();
    LBOperacion->setText(m_model.operationText());
    showRemaining(); // the label keeps its colour until the next second
    sayExercise();
}

QString Form8::spokenExercise() const
{
    return m_model.isRunning() ? m_model.spokenOperation() : TBInstruc->text();
}

void Form8::showTime()
{
    showRemaining();
    LBTiempo->setColour(fade(m_model.state().Restantes.value()));
}

void Form8::showRemaining()
{
    LBTiempo->setText(m_model.timeText());
    const int left = m_model.state().Restantes.value();
    m_bar->setRemaining(static_cast<double>(left) / QuickTables::SecondsPerOperation, fade(left));
}

void Form8::finish()
{
    m_model.end();
    ui::MessageBox::show(*this, m_model.report(QLocale()));
    Timer1->stop();
    Timer2->stop();
    unload();
}

} // namespace tables
