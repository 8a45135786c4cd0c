#include "written/multiplication_column.h"

#include "ui/control_factory.h"
#include "ui/squared_box.h"
#include "written/multiplication_board.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace written {

namespace {

// In twips.
constexpr double Margin = 250;
constexpr double TitleTop = 420;
constexpr double TitleHeight = 480;
constexpr double TrayMargin = 180; // around the buttons
constexpr double ColumnLeft = 5000;
constexpr double CommandWidth = 2440;
constexpr double CommandHeight = 640;
constexpr double CommandGap = 120;
constexpr double ColumnWidth = 2 * TrayMargin + 2 * CommandWidth + CommandGap;
constexpr double VerdictHeight = 640;
constexpr double CountersGap = 100;
constexpr double CountersHeight = 330;
constexpr double Width = ColumnLeft + ColumnWidth + Margin;
constexpr int MostRows = 40; // that the window grows for

/// Beside the result, and below the buttons where that stands high.
double verdictTop(const MultiplicationBoard& board)
{
    const double below = MultiplicationColumn::commandPlace(3).bottom() + 2 * TrayMargin;
    return std::max(board.resultTop(), below);
}

} // namespace

MultiplicationColumn::MultiplicationColumn(
    ui::ControlFactory& controls, const MultiplicationBoard& board, const QString& countersText)
    : m_controls(controls)
{
    controls.displayBox(u"TbTítulo"_s, {Margin, TitleTop, Width - 2 * Margin, TitleHeight},
        ui::look::Instruction, u"Instrucción"_s, u"Realiza la siguiente operación"_s);
    Text1 = controls.verdictBox(u"Text1"_s,
        {ColumnLeft, verdictTop(board), ColumnWidth, VerdictHeight}, u"Comprobación"_s);
    Text1->setJudged({board.TBResultado});
    Text2 = controls.countersBox(u"Text2"_s,
        {Margin, board.bottom() + CountersGap, MultiplicationBoard::right() - Margin,
            CountersHeight},
        countersText);
    for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{Text1, Text2})
        box->allowFocus(Qt::TabFocus);
}

ui::TwipRect MultiplicationColumn::commandPlace(int position)
{
    const int column = position % 2;
    const int row = position / 2;
    return {ColumnLeft + TrayMargin + column * (CommandWidth + CommandGap),
        MultiplicationBoard::top() + TrayMargin + row * (CommandHeight + CommandGap),
        CommandWidth, CommandHeight};
}

QSizeF MultiplicationColumn::canvasFor(int rows)
{
    return {Width,
        MultiplicationBoard::bottomFor(std::min(rows, MostRows)) + CountersGap + CountersHeight
            + CountersGap};
}

void MultiplicationColumn::follow(const MultiplicationBoard& board)
{
    m_controls.moveTo(Text1, ColumnLeft, verdictTop(board));
    m_controls.moveTo(Text2, Margin, board.bottom() + CountersGap);
}

} // namespace written
