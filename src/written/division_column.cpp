#include "written/division_column.h"

#include "ui/control_factory.h"
#include "written/division_board.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

// In twips. The squares are small by nature: all else is small too, so that the screen opens at
// a large factor, and is large with it.
constexpr double Margin = 180;
constexpr double TrayMargin = 180; // around the buttons
constexpr double ColumnGap = 180;
constexpr double ColumnWidth = 2895;
constexpr double OperationHeight = 480;
constexpr double CommandHeight = 400;
constexpr double CommandPitch = 485;
constexpr double CountersGap = 90;
constexpr double CountersHeight = 240;

constexpr ui::look::Font OperationFont{Family::Andika, 14, true};
constexpr qsizetype LongOperation = 18; // characters, with which it needs a smaller type
constexpr ui::look::Font LongOperationFont{Family::Andika, 10, true};
constexpr double VerdictMark = 25;
constexpr ui::look::Font CommandFont{Family::Andika, 10, true};
constexpr ui::look::Font CounterFont{Family::Andika, 9};

double columnLeft()
{
    return DivisionBoard::firstPlace().right() + ColumnGap;
}

/// At the height of the quotient.
ui::TwipRect operationPlace()
{
    return {columnLeft(), DivisionBoard::quotientMiddle() - OperationHeight / 2, ColumnWidth,
        OperationHeight};
}

ui::TwipRect countersPlace(const ui::TwipRect& sheet)
{
    return {Margin, sheet.bottom() + CountersGap, sheet.width, CountersHeight};
}

} // namespace

DivisionColumn::DivisionColumn(
    ui::ControlFactory& controls, ui::TextBox* quotient, const QString& countersText)
    : Text4(controls.verdictBox(u"Text4"_s, operationPlace(), u"Operación y resultado"_s))
    , tbResultados(controls.countersBox(u"tbResultados"_s,
          countersPlace(DivisionBoard::firstPlace()), countersText, CounterFont))
    , m_controls(controls)
    , m_column{Text4}
{
    Text4->setMarkSize(VerdictMark);
    Text4->setJudged({quotient});
    controls.setControlFont(Text4, OperationFont);
}

/// The tray of the four ends where the sheet does at first.
ui::TwipRect DivisionColumn::commandPlace(int position)
{
    const double bottom = DivisionBoard::firstPlace().bottom() - TrayMargin;
    return {columnLeft() + TrayMargin, bottom - CommandHeight - (3 - position) * CommandPitch,
        ColumnWidth - 2 * TrayMargin, CommandHeight};
}

void DivisionColumn::take(const std::vector<QWidget*>& commands)
{
    for (QWidget* command : commands)
        m_controls.setControlFont(command, CommandFont);
    m_column.insert(m_column.end(), commands.begin(), commands.end());
}

QSizeF DivisionColumn::canvasFor(const ui::TwipRect& sheet)
{
    const double wider = sheet.width - DivisionBoard::firstPlace().width;
    return {
        columnLeft() + ColumnWidth + Margin + wider, countersPlace(sheet).bottom() + CountersGap};
}

void DivisionColumn::follow(const ui::TwipRect& sheet)
{
    const double wider = sheet.width - DivisionBoard::firstPlace().width;
    for (QWidget* control : m_column) {
        const ui::TwipRect place = m_controls.placeOf(control);
        m_controls.moveTo(control, place.left + wider - m_moved, place.top);
    }
    m_moved = wider;
    m_controls.moveTo(tbResultados, Margin, countersPlace(sheet).top);
}

void DivisionColumn::showOperation(const QString& operation)
{
    const bool isLong = operation.size() > LongOperation;
    m_controls.setControlFont(Text4, isLong ? LongOperationFont : OperationFont);
    Text4->setPlainText(operation);
}

} // namespace written
