#include "tables/multiplication_tables_screen.h"

#include "ui/screens.h"

#include <QAction>

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of the tables: where they are and what they are connected to.

namespace tables {

namespace {

constexpr double Width = 5900;
constexpr double Height = 5150;

constexpr ui::look::Font TableFont{Family::CourierNew, 24, true};
constexpr ui::look::Font QuestionFont{Family::CourierNew, 26, true};

} // namespace

Form2::Form2(ui::Screens& screens)
    : DrillScreen(screens, screenName(), QString(), Width, Height)
{
    makeMenu();
    makeTables();
    makeQuestion();
    makeCommands({.check = {2200, 2350, 1500, 560},
        .next = {2170, 3150, 1560, 560},
        .clear = {460, 3150, 1560, 560},
        .solution = {3880, 3150, 1560, 560}});

    const QColor neutral = ui::look::palette().color(QPalette::Button);
    Command3 = {
        button(u"Command3(0)"_s, u"Siguiente &actividad"_s, {460, 4250, 2415, 560}, neutral),
        button(u"Command3(1)"_s, u"Siguiente &tabla"_s, {3025, 4250, 2415, 560}, neutral)};
    for (int i = 0; i < 2; ++i)
        on(Command3.at(static_cast<std::size_t>(i)), &QPushButton::clicked,
            &Form2::Command3_Click, i);
}

void Form2::makeMenu()
{
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
    TbTabla1 =
        memo(u"TbTabla1"_s, {410, 750, 2490, 2500}, TableFont, u"Primera mitad de la tabla"_s);
    TbTabla2 =
        memo(u"TbTabla2"_s, {3000, 750, 2490, 2500}, TableFont, u"Segunda mitad de la tabla"_s);
    for (ui::Memo* table : {TbTabla1, TbTabla2}) {
        table->setReadOnly(true);
        table->setLineWrapMode(QPlainTextEdit::NoWrap);
        // The text ends with a line end: only an empty line may be cut off.
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
}

void Form2::makeQuestion()
{
    constexpr double Top = 900;
    constexpr double BoxHeight = 500;
    TbOperacion = {
        displayBox(u"TbOperación(0)"_s, {770, Top, 1000, BoxHeight}, QuestionFont, u"Tabla"_s),
        displayBox(
            u"TbOperación(1)"_s, {1810, Top, 500, BoxHeight}, QuestionFont, u"Por"_s, u"×"_s),
        displayBox(
            u"TbOperación(2)"_s, {2350, Top, 1000, BoxHeight}, QuestionFont, u"Multiplicador"_s),
        displayBox(
            u"TbOperación(3)"_s, {3390, Top, 500, BoxHeight}, QuestionFont, u"Igual a"_s, u"="_s),
        entryBox(
            u"TbOperación(4)"_s, {4030, Top, 1000, BoxHeight}, QuestionFont, u"Respuesta"_s)};
    for (ui::TextBox* box : TbOperacion)
        box->setAlignment(Qt::AlignCenter);
    enterChecks(TbOperacion[4]);
    onKeyDown(TbOperacion[4],
        [this](int keyCode, Qt::KeyboardModifiers) { return TbOperacion_KeyDown(keyCode); });

    Text1 = verdictBox(u"Text1"_s, {1150, 1650, 3600, 450}, u"Comprobación"_s);
}

} // namespace tables
