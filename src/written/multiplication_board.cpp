#include "written/multiplication_board.h"

#include "core/defect.h"
#include "ui/control_factory.h"
#include "ui/quiet_text.h"
#include "ui/rule.h"
#include "ui/squared_box.h"
#include "ui/squared_paper.h"
#include "written/squares.h"
#include "written/wrong_mark.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using ui::SquaredBox;
using ui::look::Family;

namespace written {

namespace {

// In twips. The lines of the paper begin and end where the rows do.
constexpr double RowLeft = 1250;
constexpr double RowWidth = Squares::RowWidth;
constexpr double RowHeight = Squares::RowHeight;
constexpr double RowsTop = 2600;
constexpr double PaperMargin = 500; // beside the rows, and above the factors
constexpr double PaperLeft = RowLeft - 2 * PaperMargin;
constexpr double PaperTop = RowsTop - 2 * RowHeight - PaperMargin;
constexpr double PaperRight = RowLeft + RowWidth + PaperMargin;
constexpr int RowsWithRoom = 7; // below which the sheet has a free row at its end
constexpr double SignLeft = RowLeft - PaperMargin;
constexpr double SignWidth = RowLeft - SignLeft;

constexpr ui::look::Font DigitFont{Family::CourierNew, 34, true};
constexpr ui::look::Font QuietSignFont{Family::CourierNew, 16};

/// As far as the margins go in whole squares.
ui::TwipRect paperPlace(const Squares& squares, double bottom)
{
    constexpr double Rounding = 1e-6;
    const double width = squares.width();
    const double left = RowLeft - std::floor((RowLeft - PaperLeft) / width + Rounding) * width;
    const double right = RowLeft + RowWidth
        + std::floor((PaperRight - RowLeft - RowWidth) / width + Rounding) * width;
    return {left, PaperTop, right - left, bottom - PaperTop};
}

constexpr int BlanksBehindSign = 5; // drawn as one: the sign stays near factor 2

ui::TwipRect rowPlace(int fila)
{
    return {RowLeft, RowsTop + RowHeight * fila, RowWidth, RowHeight};
}

ui::TwipRect rulePlace(double top)
{
    return {SignLeft, top, RowLeft + RowWidth - SignLeft, ui::Rule::Room};
}

} // namespace

double MultiplicationBoard::right()
{
    return PaperRight;
}

double MultiplicationBoard::left()
{
    return PaperLeft;
}

double MultiplicationBoard::top()
{
    return PaperTop;
}

double MultiplicationBoard::bottomFor(int rows)
{
    const double result = rowPlace(std::max(rows, FewestRows)).bottom();
    return rows <= RowsWithRoom ? result + RowHeight : result;
}

double MultiplicationBoard::resultTop() const
{
    return rowPlace(rowCount()).top;
}

MultiplicationBoard::MultiplicationBoard(ui::ControlFactory& controls, RowMade rowMade)
    : m_controls(controls)
    , m_rowMade(std::move(rowMade))
{
    m_paper = m_controls.add(new ui::SquaredPaper(m_controls.canvas()), u"Sheet"_s,
        {PaperLeft, PaperTop, PaperRight - PaperLeft, bottomFor(FewestRows) - PaperTop});
    WrongMark* resultCross = makeCross(0);
    makeFactors();
    addRow();
    makeResult(*resultCross);
    makeSigns();
    makeRules();
}

void MultiplicationBoard::makeFactors()
{
    const QStringList names{u"Primer factor"_s, u"Segundo factor"_s};
    for (int i = 0; i < 2; ++i) {
        auto* box = m_controls.add(new SquaredBox(SquaredBox::Kind::Display, m_controls.canvas()),
            u"TbFactor(%1)"_s.arg(i), rowPlace(i - 2), DigitFont);
        box->setAccessibleName(names.at(i));
        box->allowFocus(Qt::ClickFocus);
        core::at(TbFactor, i) = box;
    }
    TbFactor[1]->setBlankRun(BlanksBehindSign);
}

void MultiplicationBoard::makeResult(WrongMark& cross)
{
    TBResultado = m_controls.add(new SquaredBox(SquaredBox::Kind::Entry, m_controls.canvas()),
        u"TBResultado"_s, rowPlace(1), DigitFont);
    TBResultado->setAccessibleName(u"Resultado"_s);
    TBResultado->setToolTip(
        u"Escriba desde las unidades hacia la izquierda y pulse Intro al terminar"_s);
    // Said each time that a reader comes by, hence short.
    TBResultado->setAccessibleDescription(u"desde las unidades"_s);
    m_result.emplace(m_controls, *TBResultado, cross);
}

void MultiplicationBoard::makeSigns()
{
    labIgual = m_controls.label(
        u"labIgual"_s, u"="_s, {SignLeft, RowsTop + RowHeight, SignWidth, RowHeight}, DigitFont);
    // Quiet: the times sign that counts is the one in front of factor 2.
    LabX = m_controls.label(u"LabX"_s, u"&X"_s,
        {SignLeft, RowsTop - RowHeight, SignWidth, RowHeight}, QuietSignFont, row(0));
    LabX->setAccessibleName(row(0)->accessibleName()); // readers call the box by its label
    new ui::QuietText(LabX);
    for (QLabel* sign : {labIgual, LabX})
        sign->setAlignment(Qt::AlignCenter);
}

void MultiplicationBoard::makeRules()
{
    m_controls.add(new ui::Rule(m_controls.canvas()), u"Line1"_s, rulePlace(RowsTop));
    Line2 = m_controls.add(
        new ui::Rule(m_controls.canvas()), u"Line2"_s, rulePlace(RowsTop + RowHeight));
}

// --- rows

void MultiplicationBoard::addRow()
{
    const int fila = rowCount();
    QWidget* canvas = m_controls.canvas();
    auto* row = m_controls.add(new SquaredBox(SquaredBox::Kind::Entry, canvas),
        u"TbParcial(%1)"_s.arg(fila), rowPlace(fila), DigitFont);
    row->setAccessibleName(u"Producto parcial %1"_s.arg(fila + 1));
    row->setToolTip(
        u"Escriba desde las unidades hacia la izquierda, pulse donde pulse en una fila "
        "vacía; muévase con las flechas y deje un hueco con la barra espaciadora"_s);
    row->setAccessibleDescription(u"desde las unidades"_s);
    if (TBResultado != nullptr)
        row->stackUnder(TBResultado);
    TbParcial.emplace_back(m_controls, *row, *makeCross(fila + 1));
    m_rowMade(row, fila);
}

WrongMark* MultiplicationBoard::makeCross(int number)
{
    auto* cross = m_controls.add(
        new WrongMark(m_controls.canvas()), u"Cross(%1)"_s.arg(number), rowPlace(0));
    cross->hide();
    return cross;
}

void MultiplicationBoard::removeRow()
{
    const SquaredBox* box = TbParcial.back().box();
    if (box->window()->focusWidget() == box)
        row(0)->setFocus();
    TbParcial.back().remove();
    TbParcial.pop_back();
}

void MultiplicationBoard::setRowCount(int rows)
{
    while (rowCount() > std::max(1, rows))
        removeRow();
    while (rowCount() < rows)
        addRow();
}

void MultiplicationBoard::placeRows()
{
    m_controls.place(TBResultado, rowPlace(rowCount()));
    m_controls.moveTo(Line2, SignLeft, resultTop());
    m_controls.moveTo(labIgual, SignLeft, resultTop());
    empty();
}

double MultiplicationBoard::bottom() const
{
    return bottomFor(rowCount());
}

QStringList MultiplicationBoard::rowTexts() const
{
    QStringList texts;
    for (const BoardRow& row : TbParcial)
        texts << row.box()->text();
    return texts;
}

std::vector<SquaredBox*> MultiplicationBoard::answerBoxes() const
{
    std::vector<SquaredBox*> boxes;
    for (const BoardRow& row : TbParcial)
        boxes.push_back(row.box());
    boxes.push_back(TBResultado);
    return boxes;
}

// --- what is written

void MultiplicationBoard::showFactors(const QString& factor1, const QString& factor2)
{
    TbFactor[0]->write(factor1);
    TbFactor[1]->write(factor2);
    for (SquaredBox* box : TbFactor)
        box->showSelected();
}

void MultiplicationBoard::showSolution(const QStringList& rows, const QString& result)
{
    TBResultado->write(result);
    for (qsizetype fila = 0; fila < rows.size(); ++fila)
        row(static_cast<int>(fila))->write(rows.at(fila));
}

void MultiplicationBoard::empty()
{
    for (BoardRow& row : TbParcial)
        row.empty();
    m_result->empty();
}

void MultiplicationBoard::showWrongRow(int fila)
{
    core::at(TbParcial, fila).showWrong();
}

void MultiplicationBoard::showWrongResult()
{
    m_result->showWrong();
}

void MultiplicationBoard::fitSquares(qsizetype characters)
{
    std::vector<SquaredBox*> boxes = answerBoxes();
    boxes.insert(boxes.end(), TbFactor.begin(), TbFactor.end());
    for (const SquaredBox* box : boxes)
        characters = std::max<qsizetype>(characters, box->columns());
    const Squares& squares = Squares::forCharacters(characters);
    for (SquaredBox* box : boxes)
        box->setSquare(squares.width(), squares.height, squares.top);
    m_controls.place(m_paper, paperPlace(squares, bottom()));
    m_paper->setSquare({RowLeft, RowsTop, squares.width(), squares.height});
    for (QLabel* sign : {LabX, labIgual}) // centred, hence level with the digits
        m_controls.place(
            sign, {SignLeft, m_controls.placeOf(sign).top, SignWidth, 2 * squares.middle()});
    m_controls.setControlFont(labIgual, {Family::CourierNew, squares.signPixels, true});
}

} // namespace written
