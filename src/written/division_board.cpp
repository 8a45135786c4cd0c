#include "written/division_board.h"

#include "ui/control_factory.h"
#include "ui/rule.h"
#include "ui/squared_box.h"
#include "ui/squared_paper.h"
#include "written/division_sheet.h"
#include "written/work_area.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

constexpr double Square = 165; // a character of the work area; everything stands on squares

constexpr double SheetLeft = 180;
constexpr double SheetTop = 180;
constexpr int WorkRows = 17; // at first
constexpr int MostWorkRows = 23; // of the longest solution that is drawn
constexpr int MarginRows = 1; // above the dividend and below the last line of the work
constexpr int MarginColumns = 2; // beside what is written
constexpr int LeftColumns = 12; // of the bracket, at first
constexpr int RightColumns = 14;
constexpr double WorkTop = SheetTop + MarginRows * Square;
constexpr int DivisorIndent = 2; // squares between the bracket and the figures right of it
constexpr int QuotientRow = 2; // one stays free below the bracket's line
constexpr double DivisorGap = 5; // between the work and the divisor's box
constexpr double TouchRows = 0.6; // beyond a row, above and below, that count as its box
// Half the edge of a strip lies beyond its squares, so that no digit stands on it.
constexpr double StripEdge = 0.75; // pixels at factor 1
constexpr double HalfEdge = StripEdge * ui::TwipsPerPixel / 2;

constexpr QRgb Tint = 0xFFEAF1F6; // cool, so that the white of what can be written is seen

constexpr ui::look::Font Figures{Family::CourierNew, 18, true};

/// The strip of paper on which these squares can be written.
ui::TwipRect stripOf(const ui::TwipRect& squares)
{
    return {squares.left - HalfEdge, squares.top - HalfEdge, squares.width + 2 * HalfEdge,
        squares.height + 2 * HalfEdge};
}

double sheetHeight(int workRows)
{
    return (workRows + 2 * MarginRows) * Square;
}

} // namespace

ui::TwipRect DivisionBoard::firstPlace()
{
    return {SheetLeft, SheetTop, (LeftColumns + RightColumns) * Square, sheetHeight(WorkRows)};
}

double DivisionBoard::quotientMiddle()
{
    return WorkTop + (QuotientRow + 0.5) * Square;
}

DivisionBoard::DivisionBoard(ui::ControlFactory& controls)
    : m_controls(controls)
    , m_place(firstPlace())
{
    makeSheet();
    makeWork();
    makeNumbers();
    makeLines();
}

void DivisionBoard::makeSheet()
{
    QWidget* canvas = m_controls.canvas();
    m_sheet = m_controls.add(new DivisionSheet(canvas), u"Sheet"_s, m_place);
    m_sheet->setFill(QColor(Tint));
    m_workStrip = m_controls.add(new ui::SquaredPaper(canvas), u"WorkStrip"_s, m_place);
    m_quotientStrip = m_controls.add(new ui::SquaredPaper(canvas), u"QuotientStrip"_s, m_place);
    for (ui::SquaredPaper* strip : {m_workStrip, m_quotientStrip})
        strip->setEdge(StripEdge);
}

void DivisionBoard::makeWork()
{
    Text1 = m_controls.add(new WorkArea(m_controls.canvas()), u"Text1"_s, m_place, Figures);
    Text1->setAccessibleName(u"Dividendo y cuentas"_s);
    Text1->setToolTip(
        u"Pulse un cuadro o muévase con las flechas y escriba; la barra espaciadora "
        "deja el cuadro en blanco"_s);
    // A sample until the first exercise replaces it.
    constexpr int SampleColumns = 12;
    Text1->setGrid(GridText(u" 12053041   "_s, SampleColumns)); // until there is an exercise
}

void DivisionBoard::makeNumbers()
{
    const auto box = [this](ui::TextBox::Kind kind, const QString& name, const QString& says) {
        auto* made =
            m_controls.add(new ui::SquaredBox(kind, m_controls.canvas()), name, m_place, Figures);
        made->setAccessibleName(says);
        return made;
    };
    Text2 = box(ui::TextBox::Kind::Display, u"Text2"_s, u"Divisor"_s);
    Text2->allowFocus(Qt::StrongFocus);
    Text3 = box(ui::TextBox::Kind::Entry, u"Text3"_s, u"Cociente"_s);
}

void DivisionBoard::makeLines()
{
    Line1 = m_controls.add(new ui::Rule(m_controls.canvas()), u"Line1"_s, m_place);
    Line2 = m_controls.add(new ui::Rule(m_controls.canvas()), u"Line2"_s, m_place);
}

void DivisionBoard::fit(const Room& room)
{
    const int left = std::max(LeftColumns, room.lineCharacters + MarginColumns);
    const int right = std::max(RightColumns, DivisorIndent + room.rightFigures + MarginColumns);
    const int lines = std::clamp(room.lines, WorkRows, MostWorkRows);
    const double bracket = SheetLeft + left * Square;
    m_place.width = (left + right) * Square;
    m_place.height = sheetHeight(lines);
    m_controls.place(m_sheet, m_place);

    const ui::TwipRect square{bracket, WorkTop, Square, Square};
    for (ui::SquaredPaper* paper :
        {static_cast<ui::SquaredPaper*>(m_sheet), m_workStrip, m_quotientStrip})
        paper->setSquare(square);

    placeNumbers(bracket, right - DivisorIndent - 1);
    placeWork(room.lineCharacters, lines);
    m_controls.place(Line1, {bracket, WorkTop - Square / 2, ui::Rule::Room, 1.5 * Square});
    m_controls.place(Line2, {bracket, WorkTop + Square, (right - 1) * Square, ui::Rule::Room});
}

void DivisionBoard::placeWork(int lineCharacters, int lines)
{
    const double width = lineCharacters * Square;
    const ui::TwipRect work{
        m_controls.placeOf(Text2).left - width - DivisorGap, WorkTop, width, lines * Square};
    m_controls.place(Text1, work);
    Text1->setFirstCell({work.left, WorkTop, Square, Square});
    // The dividend's line cannot be written.
    m_controls.place(
        m_workStrip, stripOf({work.left, WorkTop + Square, width, (lines - 1) * Square}));
}

/// The boxes reach beyond their row, so that they are easily hit. In front of the quotient the
/// strip has a free square, as the work has in front of the dividend.
void DivisionBoard::placeNumbers(double bracket, int figures)
{
    const double indent = DivisorIndent * Square;
    const double width = indent + figures * Square;
    const double touch = TouchRows * Square;
    m_controls.place(
        Text2, {bracket + DivisorGap, WorkTop - touch, width - DivisorGap, Square + touch});
    Text2->setSquare(Square, Square, touch);
    Text2->setLeftAligned(indent - DivisorGap);

    const ui::TwipRect quotient{
        bracket + Square, WorkTop + QuotientRow * Square, width - Square, Square};
    m_controls.place(m_quotientStrip, stripOf(quotient));
    m_controls.place(
        Text3, {quotient.left, quotient.top - touch, quotient.width, Square + 2 * touch});
    Text3->setSquare(Square, Square, touch);
    Text3->setLeftAligned(indent - Square);
}

} // namespace written
