#include "tables/multiplication_tables_screen.h"

#include "core/defect.h"
#include "tables/poster.h"
#include "ui/marker_stripe.h"
#include "ui/screens.h"
#include "ui/tray.h"

#include <QAction>

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of the tables: where they are and what they are connected to.

namespace tables {

namespace {

// What is hidden goes 5500 or 6000 twips to the right: no control that ever is may stand
// further left than that leaves it out of the canvas, its tray included.
constexpr double Width = 6400;
constexpr double Height = 5325;

constexpr int MenuType = 12;
constexpr ui::look::Font TableFont{Family::CourierNew, 22, true};
constexpr ui::look::Font QuestionFont{Family::CourierNew, 26, true};

} // namespace

Form2::Form2(ui::Screens& screens)
    : DrillScreen(screens, screenName(), QString(), Width, Height)
{
    makeMenu();
    makeTables();
    makeQuestion();
    makeVerdict();
    constexpr double Top = 2760;
    constexpr double ButtonHeight = 480;
    makeCommands({.check = {597, Top, 990, ButtonHeight},
        .next = {2907, Top, 1260, ButtonHeight},
        .clear = {1752, Top, 990, ButtonHeight},
        .solution = {4332, Top, 1470, ButtonHeight}});
    makeWayOn();
}

void Form2::makeWayOn()
{
    constexpr double Top = 4500;
    constexpr double ButtonHeight = 480;
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    Command3 = {button(u"Command3(0)"_s, u"Siguiente &actividad"_s,
                    {597, Top, 2515, ButtonHeight}, neutral),
        button(
            u"Command3(1)"_s, u"Siguiente &tabla"_s, {3287, Top, 2515, ButtonHeight}, neutral)};
    for (int i = 0; i < 2; ++i)
        on(core::at(Command3, i), &QPushButton::clicked, &Form2::Command3_Click, i);
    new ui::Tray({Command3[0], Command3[1]});
}

void Form2::makeMenu()
{
    setMenuType(MenuType);
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    QStringList captions;
    for (int i = 0; i < MultiplicationTables::Tables; ++i)
        captions << u"&%1"_s.arg(m_model.tableAt(i));
    MnuOpcTabLis =
        menuList(submenu(options, u"MnuOpcTab"_s, u"&Tabla"_s), u"MnuOpcTabLis"_s, captions);
    onList(MnuOpcTabLis, &Form2::MnuOpcTabLis_Click);

    QMenu* activities = submenu(options, u"MnuOpcact"_s, u"&Actividad"_s);
    const QStringList names{
        u"&Ver tabla"_s, u"&Repasar tabla en orden"_s, u"&Repasar tabla salteada"_s};
    for (int i = 0; i < MultiplicationTables::Activities; ++i)
        on(item(activities, u"MnuOpcActLis(%1)"_s.arg(i), names.at(i)), &QAction::triggered,
            &Form2::MnuOpcActLis_Click, i);

    on(item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form2::makeTables()
{
    constexpr ui::TwipRect Rows{900, 640, 4600, 3100};
    constexpr double Half = Rows.width / 2;
    m_poster = add(new Poster(canvas()), {}, Poster::around(Rows));
    TbTabla1 = add(new PosterHalf(PosterHalf::Side::Left, canvas()), u"TbTabla1"_s,
        ui::TwipRect{Rows.left, Rows.top, Half, Rows.height}, TableFont);
    TbTabla1->setAccessibleName(u"Primera mitad de la tabla"_s);
    TbTabla2 = add(new PosterHalf(PosterHalf::Side::Right, canvas()), u"TbTabla2"_s,
        ui::TwipRect{Rows.left + Half, Rows.top, Half, Rows.height}, TableFont);
    TbTabla2->setAccessibleName(u"Segunda mitad de la tabla"_s);
}

void Form2::makeQuestion()
{
    constexpr double Top = 700;
    constexpr double BoxHeight = 500;
    TbOperacion = {
        displayBox(u"TbOperación(0)"_s, {1150, Top, 1000, BoxHeight}, QuestionFont, u"Tabla"_s),
        displayBox(
            u"TbOperación(1)"_s, {2175, Top, 500, BoxHeight}, QuestionFont, u"Por"_s, u"×"_s),
        displayBox(
            u"TbOperación(2)"_s, {2700, Top, 1000, BoxHeight}, QuestionFont, u"Multiplicador"_s),
        displayBox(
            u"TbOperación(3)"_s, {3725, Top, 500, BoxHeight}, QuestionFont, u"Igual a"_s, u"="_s),
        entryBox(
            u"TbOperación(4)"_s, {4250, Top, 1000, BoxHeight}, QuestionFont, u"Respuesta"_s)};
    for (ui::TextBox* box : TbOperacion)
        box->setAlignment(Qt::AlignCenter);
    enterChecks(TbOperacion[4]);
    onKeyDown(TbOperacion[4],
        [this](int keyCode, Qt::KeyboardModifiers) { return TbOperacion_KeyDown(keyCode); });
    new ui::MarkerStripe({TbOperacion[0], TbOperacion[1], TbOperacion[2], TbOperacion[3]},
        ui::MarkerStripe::Kind::Marker);
}

void Form2::makeVerdict()
{
    Text1 = verdictBox(u"Text1"_s, {1150, 1500, 4650, 500}, u"Comprobación"_s);
    Text1->setJudged({TbOperacion[4]});
    new ui::MarkerStripe({Text1}, ui::MarkerStripe::Kind::Marker);
}

} // namespace tables
