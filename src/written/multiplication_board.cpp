#include "written/multiplication_board.h"

#include "core/defect.h"
#include "ui/control_factory.h"
#include "ui/squared_box.h"
#include "ui/squared_paper.h"
#include "written/squares.h"
#include "written/wrong_mark.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using ui::SquaredBox;

namespace written {

namespace {

// In twips. The lines of the paper begin and end where the rows do.
constexpr double RowLeft = 1250;
constexpr double RowWidth = Squares::RowWidth;
constexpr double RowHeight = Squares::RowHeight;
constexpr double RowsTop = 2600;
constexpr double PaperMargin = BoardSigns::Width; // beside the rows, and above the factors
constexpr double PaperLeft = RowLeft - 2 * PaperMargin;
constexpr double PaperTop = RowsTop - 2 * RowHeight - PaperMargin;
constexpr double PaperRight = RowLeft + RowWidth + PaperMargin;
constexpr int RowsWithRoom = 7; // below which the sheet has a free row at its end

constexpr ui::look::Font DigitFont{ui::look::Family::CourierNew, 34, true};

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
    m_signs.emplace(m_controls, *row(0));
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
    m_signs->placeResult(resultTop());
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

void MultiplicationBoard::fitSquares(const QStringList& texts)
{
    std::vector<SquaredBox*> boxes = answerBoxes();
    boxes.insert(boxes.end(), TbFactor.begin(), TbFactor.end());
    qsizetype characters = 0;
    for (const QString& text : texts)
        characters = std::max(characters, text.size());
    for (const SquaredBox* box : boxes)
        characters = std::max<qsizetype>(characters, box->columns());
    const Squares& squares = Squares::forCharacters(characters);
    for (SquaredBox* box : boxes)
        box->setSquare(squares.width(), squares.height, squares.top);
    m_controls.place(m_paper, paperPlace(squares, bottom()));
    m_paper->setSquare({RowLeft, RowsTop, squares.width(), squares.height});
    m_signs->fit(squares);
}

} // namespace written
