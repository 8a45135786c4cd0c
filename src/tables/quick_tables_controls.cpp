#include "tables/quick_tables_screen.h"

#include "tables/limit_options.h"
#include "tables/quick_tables_widgets.h"
#include "ui/screens.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of the quick tables: where they are and what they are connected to.

namespace tables {

namespace {

// Twips.
constexpr double Width = 5880;
constexpr double Height = 6600;

constexpr ui::look::Font RowFont{Family::CourierNew, 52, true};
constexpr ui::look::Font LineFont{Family::CourierNew, 22, true};
constexpr ui::look::Font TimeFont{Family::CourierNew, 26, true};
constexpr ui::look::Font CommandFont{Family::Verdana, 15, true};

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

} // namespace tables
