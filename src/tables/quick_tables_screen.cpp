#include "tables/quick_tables_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "tables/quick_tables_widgets.h"
#include "ui/screens.h"

#include <QApplication>
#include <QGroupBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using ui::look::Family;
using Mark = ui::VerdictBox::Mark;

namespace tables {

namespace {

constexpr double Width = 5880;
constexpr double Height = 6600;

constexpr ui::look::Font RowFont{Family::CourierNew, 40, true};
constexpr ui::look::Font LineFont{Family::CourierNew, 18};
constexpr ui::look::Font TimeFont{Family::CourierNew, 26, true};
constexpr ui::look::Font CommandFont{Family::Verdana, 15, true};
constexpr ui::look::Font LimitFont{Family::CourierNew, 18, true};

QColor fade(int secondsLeft)
{
    const TimeColour colour = timeColour(secondsLeft);
    return {colour.red, colour.green, 0};
}

} // namespace

QString Form8::screenName()
{
    return u"Form8"_s;
}

Form8::Form8(ui::Screens& screens)
    : Screen(screens, screenName(), u"TABLAS RÁPIDAS"_s, Width, Height)
    , m_model(screens.random())
{
    displayBox(u"TBInstruc"_s, {240, 180, 5400, 420}, ui::look::Instruction, u"Instrucciones"_s,
        u"Escribe el resultado correcto y pulsa enter "_s);
    makeRow();
    makeTime();
    // Both have the same place: the frame is hidden while there are verdicts.
    TBResul = add(new VerdictPatch(canvas()), u"TBResul"_s, ui::TwipRect{240, 2820, 5400, 2520});
    TBResul->setAccessibleName(u"Resultado"_s);
    makeOptions();

    Command1 = button(u"Command1"_s, u"&Empezar"_s, {1890, 5640, 2100, 690},
        QColor(ui::look::Yellow), CommandFont);
    on(Command1, &QPushButton::clicked, &Form8::Command1_Click);

    Timer1 = timer(u"Timer1"_s, 1000);
    on(Timer1, &QTimer::timeout, &Form8::Timer1_Timer);
    Timer2 = timer(u"Timer2"_s, 1000);
    on(Timer2, &QTimer::timeout, &Form8::Timer2_Timer);
}

void Form8::makeRow()
{
    constexpr double Top = 780;
    constexpr double BoxHeight = 960;
    TbDatos = {
        displayBox(u"TbDatos(0)"_s, {240, Top, 900, BoxHeight}, RowFont, u"Primer factor"_s),
        displayBox(u"TbDatos(1)"_s, {1140, Top, 540, BoxHeight}, RowFont, u"Por"_s, u"x"_s),
        displayBox(u"TbDatos(2)"_s, {1680, Top, 900, BoxHeight}, RowFont, u"Segundo factor"_s),
        displayBox(u"TbDatos(3)"_s, {2580, Top, 540, BoxHeight}, RowFont, u"Igual a"_s, u"="_s),
        entryBox(u"TbDatos(4)"_s, {3300, Top, 2340, BoxHeight}, RowFont, u"Respuesta"_s)};
    for (ui::TextBox* box : TbDatos) {
        box->setAlignment(Qt::AlignCenter);
        onEnter(box, [this] { TbDatos_KeyPress(); });
    }
}

void Form8::makeTime()
{
    constexpr double Top = 1980;
    constexpr double RowHeight = 600;
    LBOperacion = label(u"LBOperación"_s, {}, {240, Top, 1860, RowHeight}, LineFont);
    LBTiempo = label(u"LBTiempo"_s, {}, {2160, Top, 960, RowHeight}, TimeFont);
    LBTiempo->setAlignment(Qt::AlignCenter);
    m_bar = add(new CountdownBar(canvas()), {}, ui::TwipRect{3300, Top, 2340, RowHeight});
}

void Form8::makeOptions()
{
    Frame1 = add(new QGroupBox(u"Acabar la actividad"_s, canvas()), u"Frame1"_s,
        ui::TwipRect{240, 2820, 5400, 2580});
    const QStringList captions{u"Al pulsar Salir"_s, u"Tiempo"_s, u"Operaciones"_s, u"Errores"_s};
    for (int i = 0; i < 4; ++i) {
        auto* option = add(new QRadioButton(captions.at(i), Frame1), u"Option1(%1)"_s.arg(i),
            ui::TwipRect{240, 420 + 510.0 * i, 2100, 510});
        on(option, &QRadioButton::toggled, [this, option, i] {
            if (option->isChecked())
                Option1_Click(i);
        });
        // One stop of the tab order: the toolkit sees to it only once an option has had the
        // focus.
        option->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        Option1.at(static_cast<std::size_t>(i)) = option;
    }
    Label1 = add(new QLabel(Frame1), u"Label1"_s, ui::TwipRect{2520, 600, 2640, 480});
    Text1 = add(new ui::TextBox(ui::TextBox::Kind::Entry, Frame1), u"Text1"_s,
        ui::TwipRect{2520, 1110, 1380, 600}, LimitFont);
    Text1->setAccessibleName(u"Límite"_s);
}

void Form8::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    for (ui::TextBox* box : TbDatos)
        box->setEnabled(false);
    Option1[0]->setChecked(true); // runs its handler: no limit to type
    Command1->setFocus();
}

void Form8::Option1_Click(int Index)
{
    m_model.endBy(static_cast<QuickTables::End>(Index));
    const bool limited = Index != 0;
    const QStringList captions{{}, u"Mihnutos: "_s, u"Operaciones: "_s, u"Errores: "_s};
    Label1->setText(captions.at(Index));
    Label1->setEnabled(limited);
    Text1->setEnabled(limited);
    if (!limited)
        Text1->clear();
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
    if (const auto fault = m_model.limitFault(Text1->text())) {
        ui::MessageBox::show(
            *this, *fault, ui::MessageBox::programTitle(), ui::Icon::Exclamation);
        return;
    }
    play(m_model.start(core::readInt16(Text1->text())));
    if (m_model.ended())
        return;
    Command1->setText(u"&Salir"_s);
    Frame1->hide();
    for (ui::TextBox* box : TbDatos)
        box->setEnabled(true);
    warnOfLimit(m_model.setLimit(core::readInt16(Text1->text())));
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
    QApplication::beep();
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
    return m_model.isRunning() ? m_model.spokenOperation() : QString();
}

void Form8::showTime()
{
    showRemaining();
    const QColor colour = fade(m_model.state().Restantes.value());
    QPalette palette = LBTiempo->palette();
    palette.setColor(QPalette::Window, colour);
    palette.setColor(QPalette::WindowText, ui::look::inkOn(colour));
    LBTiempo->setPalette(palette);
    LBTiempo->setAutoFillBackground(true);
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
