#include "written/long_division_screen.h"

#include "ui/screens.h"
#include "ui/squared_box.h"
#include "written/division_sheet.h"
#include "written/work_area.h"

#include <QAction>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using ui::look::Family;

// How the board of Form6 is built: its menu, its controls and where they stand.

namespace written {

namespace {

constexpr double Square = 165; // a character of the work area
constexpr double Row = 240;

constexpr double Margin = 240;
constexpr double SheetTop = 840;
constexpr int SheetColumns = 42;
constexpr int SheetRows = 25;
constexpr double SheetWidth = SheetColumns * Square;
constexpr double SheetHeight = SheetRows * Row;
constexpr double Width = SheetWidth + 2 * Margin;
constexpr double CommandTop = SheetTop + SheetHeight + Margin;
constexpr double CommandWidth = 1620;
constexpr double CommandHeight = 560;
constexpr double CommandGap = (SheetWidth - 4 * CommandWidth) / 3;
constexpr double Height = CommandTop + CommandHeight + Margin;

constexpr double WorkTop = SheetTop + Row;
constexpr double WorkHeight = (SheetRows - 2) * Row;
constexpr int WorkColumns = 22; // what fits left of the bracket
constexpr double Bracket = Margin + WorkColumns * Square;
constexpr double DivisorGap = 5;
constexpr double QuotientGap = Square / 2;
constexpr double FiguresRight = 18 * Square; // of the bracket
constexpr double LineWidth = 30;

constexpr ui::look::Font Figures{Family::CourierNew, 18};

ui::TwipRect commandPlace(int position)
{
    return {
        Margin + position * (CommandWidth + CommandGap), CommandTop, CommandWidth, CommandHeight};
}

QWidget* inkLine(QWidget* parent)
{
    auto* line = new QWidget(parent);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    line->setAutoFillBackground(true);
    QPalette ink = line->palette();
    ink.setColor(QPalette::Window, QColor(ui::look::Ink));
    line->setPalette(ink);
    return line;
}

} // namespace

QString Form6::screenName()
{
    return u"Form6"_s;
}

Form6::Form6(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"DIVISIONES"_s, Width, Height)
{
    makeMenu();
    makeSheet();
    makeWork();
    makeNumbers();
    makeLines();
    makeTexts();
    makeCommands({.check = commandPlace(0),
                     .next = commandPlace(2),
                     .clear = commandPlace(1),
                     .solution = commandPlace(3)},
        u"&Ver solucióm"_s);
}

void Form6::makeMenu()
{
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    MnuOpcDivLis = menuList(submenu(options, u"MnuOpcDiv"_s, u"&Cifras del dividendo"_s),
        u"MnuOpcDivLis"_s, numberedCaptions(1, 6));
    MnuOpcDisLis = menuList(submenu(options, u"MnuOpcDis"_s, u"C&ifras del divisor"_s),
        u"MnuOpcDisLis"_s, numberedCaptions(1, 6));
    MnuOpcDecLis = menuList(submenu(options, u"MnuOpcDec"_s, u"&Decimales del cociente"_s),
        u"MnuOpcDecLis"_s, numberedCaptions(0, 5));
    MnuOpcDivLis.check(1);
    onList(MnuOpcDivLis, &Form6::MnuOpcDivLis_Click);
    onList(MnuOpcDisLis, &Form6::MnuOpcDisLis_Click);
    onList(MnuOpcDecLis, &Form6::MnuOpcDecLis_Click);

    MnuOpcRes = checkItem(options, u"MnuOpcRes"_s, u"&Restas intermedias"_s);
    MnuOpcFor = checkItem(options, u"MnuOpcFor"_s, u"&Forzar ceros en el cociente"_s);
    on(MnuOpcRes, &QAction::triggered, &Form6::MnuOpcRes_Click);
    on(MnuOpcFor, &QAction::triggered, &Form6::MnuOpcFor_Click);
    on(item(options, u"MnuOpcInt"_s, u"I&ntroducir dividendo"_s), &QAction::triggered,
        &Form6::IntroduceDividendo);
    on(item(options, u"MnuOpcInd"_s, u"In&troducir divisor"_s), &QAction::triggered,
        &Form6::IntroduceDivisor);
    on(item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form6::makeSheet()
{
    m_sheet =
        add(new DivisionSheet(canvas()), u"Sheet"_s, {Margin, SheetTop, SheetWidth, SheetHeight});
    on(m_sheet, &DivisionSheet::pressed, &Form6::writeNear);
}

void Form6::makeWork()
{
    Text1 = add(new WorkArea(canvas()), u"Text1"_s,
        {Bracket - 12 * Square, WorkTop, 12 * Square, WorkHeight}, Figures);
    Text1->setAccessibleName(u"Dividendo y cuentas"_s);
    Text1->setToolTip(
        u"Pulsa un cuadro o muévete con las flechas y escribe; la barra espaciadora "
        "deja el cuadro en blanco"_s);
    Text1->setGrid(GridText(u" 12053041   "_s, 12));
    onKeyDown(
        Text1, [this](int keyCode, Qt::KeyboardModifiers) { return Text1_KeyDown(keyCode); });
    onKeyPress(Text1, [this](QChar character) { return Text1_KeyPress(character); });
    onGotFocus(Text1, [this] { Text1_GotFocus(); });
}

void Form6::makeNumbers()
{
    Text2 = squaredBox(u"Text2"_s, ui::TextBox::Kind::Display, u"Divisor"_s,
        {Bracket + DivisorGap, WorkTop - Row / 2, FiguresRight - DivisorGap, 1.5 * Row});
    Text2->allowFocus(Qt::StrongFocus);
    onGotFocus(Text2, [this] { Text2_GotFocus(); });

    constexpr double Padding = 0.625 * Row;
    Text3 = squaredBox(u"Text3"_s, ui::TextBox::Kind::Entry, u"Cociente"_s,
        {Bracket + QuotientGap, WorkTop + 2 * Row - Padding, FiguresRight - QuotientGap,
            Row + 2 * Padding});
    enterChecks(Text3);
    onGotFocus(Text3, [this] { Text3_GotFocus(); });
}

void Form6::makeLines()
{
    Line1 = add(inkLine(canvas()), u"Line1"_s,
        {Bracket - LineWidth / 2, SheetTop + Row / 2, LineWidth, 1.5 * Row});
    Line2 = add(inkLine(canvas()), u"Line2"_s,
        {Bracket - LineWidth / 2, WorkTop + Row, FiguresRight, LineWidth});
}

void Form6::makeTexts()
{
    Text4 = verdictBox(u"Text4"_s, {Margin, Margin, 4150, 450}, u"Operación y resultado"_s);
    tbResultados = displayBox(u"tbResultados"_s, {Margin + SheetWidth - 2700, Margin, 2700, 450},
        ui::look::Counters, u"Ejercicios y errores"_s, m_model.counters().FormatoAlineado());
    tbResultados->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

/// A box whose figures stand on the squares of the sheet from one square right of the
/// bracket on, in the row that begins nearest below its top.
ui::SquaredBox* Form6::squaredBox(const QString& name, ui::TextBox::Kind kind,
    const QString& accessibleName, const ui::TwipRect& place)
{
    auto* box = add(new ui::SquaredBox(kind, canvas()), name, place, Figures);
    box->setAccessibleName(accessibleName);
    const double rows = std::ceil((place.top - WorkTop) / Row);
    box->setSquare(Square, Row, WorkTop + rows * Row - place.top);
    box->setLeftAligned(Bracket + Square - place.left);
    return box;
}

/// The bracket moves to the right, and the sheet grows, for a line that is too long to stand
/// at its left.
void Form6::placeOperation()
{
    const double width = m_model.AnchoLinea().value() * Square;
    const double extra = std::max(0.0, width - (WorkColumns - 1) * Square); // a margin of one
    const double bracket = Bracket + extra;
    const auto shift = [this](QWidget* control, double left) {
        moveTo(control, left, placeOf(control).top);
    };
    shift(Text2, bracket + DivisorGap);
    shift(Text3, bracket + QuotientGap);
    shift(Line1, bracket - LineWidth / 2);
    shift(Line2, bracket - LineWidth / 2);
    place(m_sheet, {Margin, SheetTop, SheetWidth + extra, SheetHeight});
    m_sheet->setSquare({bracket, WorkTop, Square, Row});
    const double left = placeOf(Text2).left - width - DivisorGap;
    place(Text1, {left, WorkTop, width, WorkHeight});
    Text1->setFirstCell({left, WorkTop, Square, Row});
    if (designWidth() != Width + extra)
        setDesignSize(Width + extra, Height);
}

} // namespace written
