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

constexpr double SheetLeft = 240;
constexpr double SheetTop = 240;
constexpr int SheetRows = 27;
constexpr int MarginRows = 1; // above the dividend and below the last line of the work
constexpr int MarginColumns = 2; // beside what is written
constexpr int LeftColumns = 12; // of the bracket, at first
constexpr int RightColumns = 14;
constexpr double WorkTop = SheetTop + MarginRows * Square;
constexpr int WorkRows = SheetRows - 2 * MarginRows;
constexpr int DivisorIndent = 2; // squares between the bracket and the figures right of it
constexpr int QuotientRow = 2; // one stays free below the bracket's line
constexpr double DivisorGap = 5; // between the work and the divisor's box
constexpr double TouchRows = 0.6; // beyond a row, above and below, that count as its box

constexpr QRgb Tint = 0xFFEAF1F6; // cool, so that the white of what can be written is seen

constexpr ui::look::Font Figures{Family::CourierNew, 18, true};

} // namespace

ui::TwipRect DivisionBoard::firstPlace()
{
    return {SheetLeft, SheetTop, (LeftColumns + RightColumns) * Square, SheetRows * Square};
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

void DivisionBoard::fit(int lineCharacters, int rightFigures)
{
    const int left = std::max(LeftColumns, lineCharacters + MarginColumns);
    const int right = std::max(RightColumns, DivisorIndent + rightFigures + MarginColumns);
    const double bracket = SheetLeft + left * Square;
    m_place.width = (left + right) * Square;
    m_controls.place(m_sheet, m_place);

    const ui::TwipRect square{bracket, WorkTop, Square, Square};
    for (ui::SquaredPaper* paper :
        {static_cast<ui::SquaredPaper*>(m_sheet), m_workStrip, m_quotientStrip})
        paper->setSquare(square);

    placeNumbers(bracket, right - DivisorIndent - 1);
    const double width = lineCharacters * Square;
    const ui::TwipRect work{
        m_controls.placeOf(Text2).left - width - DivisorGap, WorkTop, width, WorkRows * Square};
    m_controls.place(Text1, work);
    Text1->setFirstCell({work.left, WorkTop, Square, Square});
    // The dividend's line cannot be written.
    m_controls.place(m_workStrip, {work.left, WorkTop + Square, width, (WorkRows - 1) * Square});

    m_controls.place(Line1, {bracket, WorkTop - Square / 2, ui::Rule::Room, 1.5 * Square});
    m_controls.place(Line2, {bracket, WorkTop + Square, (right - 1) * Square, ui::Rule::Room});
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
    m_controls.place(m_quotientStrip, quotient);
    m_controls.place(
        Text3, {quotient.left, quotient.top - touch, quotient.width, Square + 2 * touch});
    Text3->setSquare(Square, Square, touch);
    Text3->setLeftAligned(indent - Square);
}

} // namespace written
