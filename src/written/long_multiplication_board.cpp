#include "written/long_multiplication_screen.h"

#include "ui/rule.h"
#include "ui/screens.h"
#include "ui/squared_box.h"
#include "ui/squared_paper.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using ui::SquaredBox;
using ui::look::Family;

// How the board of Form3 is built: its controls and where they stand.

namespace written {

namespace {

// The sheet, in twips.
constexpr double RowLeft = 1250;
constexpr double RowWidth = 3000;
constexpr double RowHeight = 500;
constexpr double RowsTop = 2600;
constexpr double SignLeft = 750;
constexpr double SignWidth = RowLeft - SignLeft;
constexpr double PaperLeft = 250;
constexpr double PaperTop = 1100;
constexpr double PaperWidth = 4500;
constexpr double PaperMargin = 500; // below the result
constexpr double Margin = 300; // around everything

constexpr double SideLeft = 5150; // buttons, verdict, counters
constexpr double SideWidth = 3000;
constexpr double Width = SideLeft + SideWidth + Margin;
constexpr int FewestRows = 3; // the window is made for; it grows for more
constexpr int MostRows = 40; // that it grows for

constexpr ui::look::Font DigitFont{Family::CourierNew, 34, true};
constexpr ui::look::Font CounterFont{Family::CourierNew, 12};

/// Squares that fill a row exactly: so many side by side, one to three on top of each other.
/// The digits stand in the ones that begin top twips below the top of the row.
struct Squares {
    int columns;
    double height;
    double top;
    int signPixels; // type of the signs beside the rows, at factor 1

    double width() const { return RowWidth / columns; }
    double middle() const { return top + height / 2; }
};
constexpr std::array SquareSizes{Squares{6, RowHeight, 0, 34},
    Squares{12, RowHeight / 2, RowHeight / 2, 18}, Squares{20, RowHeight / 3, RowHeight / 3, 17}};

constexpr int BlanksBehindSign = 5; // drawn as one: the sign stays near factor 2

QString rowName(int fila)
{
    return u"TbParcial(%1)"_s.arg(fila);
}

ui::TwipRect rowPlace(int fila)
{
    return {RowLeft, RowsTop + RowHeight * fila, RowWidth, RowHeight};
}

double sheetBottom(int rows)
{
    return rowPlace(rows).bottom() + PaperMargin;
}

} // namespace

QString Form3::screenName()
{
    return u"Form3"_s;
}

Form3::Form3(ui::Screens& screens)
    : DrillScreen(
        screens, screenName(), u"Multiplicaciones"_s, Width, sheetBottom(FewestRows) + Margin)
{
    makeMenu();
    makeSheet();
    makeCommands({.check = {SideLeft, 1100, 2400, 600},
        .next = {SideLeft, 1980, 2400, 560},
        .clear = {SideLeft, 2680, 2400, 560},
        .solution = {SideLeft, 3380, 2400, 560}});
    makeTexts();
}

void Form3::makeSheet()
{
    m_paper = add(new ui::SquaredPaper(canvas()), u"Sheet"_s,
        {PaperLeft, PaperTop, PaperWidth, sheetBottom(FewestRows) - PaperTop});
    makeFactors();
    TbParcial = {makeRow(0)};
    TBResultado = add(new SquaredBox(SquaredBox::Kind::Entry, canvas()), u"TBResultado"_s,
        rowPlace(1), DigitFont);
    TBResultado->setAccessibleName(u"Resultado"_s);
    TBResultado->setToolTip(
        u"Escribe desde las unidades hacia la izquierda y pulsa Intro al terminar"_s);
    connectResult();
    labIgual = label(
        u"labIgual"_s, u"="_s, {SignLeft, RowsTop + RowHeight, SignWidth, RowHeight}, DigitFont);
    LabX = label(u"LabX"_s, u"&X"_s, {SignLeft, RowsTop - RowHeight, SignWidth, RowHeight},
        DigitFont, TbParcial[0]);
    for (QLabel* sign : {labIgual, LabX})
        sign->setAlignment(Qt::AlignCenter);
    add(new ui::Rule(canvas()), u"Line1"_s,
        {SignLeft, RowsTop, RowLeft + RowWidth - SignLeft, ui::Rule::Height});
    Line2 = add(new ui::Rule(canvas()), u"Line2"_s,
        {SignLeft, RowsTop + RowHeight, RowLeft + RowWidth - SignLeft, ui::Rule::Height});
}

void Form3::makeFactors()
{
    const QStringList names{u"Primer factor"_s, u"Segundo factor"_s};
    for (int i = 0; i < 2; ++i) {
        auto* box = add(new SquaredBox(SquaredBox::Kind::Display, canvas()),
            u"TbFactor(%1)"_s.arg(i), rowPlace(i - 2), DigitFont);
        box->setAccessibleName(names.at(i));
        box->allowFocus(Qt::ClickFocus);
        onKeyPress(box, [this](QChar) { return TbFactor_KeyPress(); });
        TbFactor.at(static_cast<std::size_t>(i)) = box;
    }
    TbFactor[1]->setBlankRun(BlanksBehindSign);
}

void Form3::makeTexts()
{
    displayBox(u"TbTítulo"_s, {PaperLeft, 420, PaperWidth, 450}, ui::look::Instruction,
        u"Instrucción"_s, u"Realiza la siguiente operación"_s);
    Text1 = verdictBox(u"Text1"_s, {SideLeft, 4180, SideWidth, 420}, u"Comprobación"_s);
    Text2 = displayBox(u"Text2"_s, {SideLeft, 4740, SideWidth, 300}, CounterFont, u"Ejercicios y errores"_s,
        m_model.counters().FormatoAlineado());
    for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{Text1, Text2})
        box->allowFocus(Qt::TabFocus);
}

SquaredBox* Form3::makeRow(int fila)
{
    auto* row = add(new SquaredBox(SquaredBox::Kind::Entry, canvas()), rowName(fila),
        rowPlace(fila), DigitFont);
    row->setAccessibleName(u"Producto parcial %1"_s.arg(fila + 1));
    row->setToolTip(
        u"Escribe desde las unidades hacia la izquierda, pulses donde pulses en una fila "
        "vacía; muévete con las flechas y deja un hueco con la barra espaciadora"_s);
    connectRow(row, fila);
    return row;
}

void Form3::connectRow(SquaredBox* row, int fila)
{
    onKeyDown(row, [this, fila](int KeyCode, Qt::KeyboardModifiers) {
        TbParcial_KeyDown(fila, KeyCode);
        return ui::KeyResult::Pass;
    });
    onKeyUp(row,
        [this, fila](int KeyCode, Qt::KeyboardModifiers) { TbParcial_KeyUp(fila, KeyCode); });
    on(row, &QLineEdit::textChanged, [this, fila] { TbParcial_Change(fila); });
}

/// Enter checks here alone: in a row, one that is half written would be judged.
void Form3::connectResult()
{
    enterChecks(TBResultado);
    onKeyUp(
        TBResultado, [this](int KeyCode, Qt::KeyboardModifiers) { TBResultado_KeyUp(KeyCode); });
    on(TBResultado, &QLineEdit::textChanged, [this] { TBResultado_Change(); });
}

void Form3::setRowCount(int rows)
{
    while (TbParcial.size() > 1 && static_cast<int>(TbParcial.size()) > rows) {
        SquaredBox* row = TbParcial.back();
        TbParcial.pop_back();
        if (focusWidget() == row)
            TbParcial[0]->setFocus();
        row->hide();
        row->setObjectName({}); // its name is free before it is gone
        row->deleteLater(); // the key that brought us here may be on its way through it
    }
    while (static_cast<int>(TbParcial.size()) < rows) {
        TbParcial.push_back(makeRow(static_cast<int>(TbParcial.size())));
        TbParcial.back()->stackUnder(TBResultado);
    }
    // The first row always stays, even for a hidden zero, which needs none.
    if (static_cast<int>(TbParcial.size()) != rows)
        ui::MessageBox::show(*this, u"desajuste"_s);
}

void Form3::placeRows()
{
    const int rows = static_cast<int>(TbParcial.size());
    const double resultTop = rowPlace(rows).top;
    place(TBResultado, rowPlace(rows));
    moveTo(Line2, SignLeft, resultTop);
    moveTo(labIgual, SignLeft, resultTop);
    emptyRows();
    const double bottom = sheetBottom(std::max(rows, FewestRows));
    place(m_paper, {PaperLeft, PaperTop, PaperWidth, bottom - PaperTop});
    const double height = sheetBottom(std::clamp(rows, FewestRows, MostRows)) + Margin;
    if (height != designHeight()) // a window that a person has sized stays as it is
        setDesignSize(Width, height);
}

void Form3::chooseSquares()
{
    const qsizetype needed = columnsNeeded();
    std::size_t size = 0;
    while (size + 1 < SquareSizes.size() && SquareSizes[size].columns < needed)
        ++size;
    const Squares& squares = SquareSizes[size];
    m_paper->setSquare({RowLeft, RowsTop, squares.width(), squares.height});
    std::vector<SquaredBox*> boxes = answerBoxes();
    boxes.insert(boxes.end(), TbFactor.begin(), TbFactor.end());
    for (SquaredBox* box : boxes)
        box->setSquare(squares.width(), squares.height, squares.top);
    for (QLabel* sign : {LabX, labIgual}) { // centred, hence level with the digits
        place(sign, {SignLeft, placeOf(sign).top, SignWidth, 2 * squares.middle()});
        setControlFont(sign, {Family::CourierNew, squares.signPixels, true});
    }
}

qsizetype Form3::columnsNeeded() const
{
    QString factor2 = m_model.factor2Text();
    factor2.replace(QString(BlanksBehindSign, u' '), u" "_s);
    QStringList texts = m_model.expectedRows();
    texts << m_model.factor1Text() << factor2 << m_model.resultText();
    for (const SquaredBox* box : answerBoxes())
        texts << box->text();
    const auto longest = std::max_element(texts.cbegin(), texts.cend(),
        [](const QString& a, const QString& b) { return a.size() < b.size(); });
    return longest->size();
}

void Form3::chainTabs()
{
    std::vector<QWidget*> chain(TbParcial.begin(), TbParcial.end());
    chain.insert(chain.end(), {TBResultado, Command1, Text1});
    chain.insert(chain.end(), Command2.begin(), Command2.end());
    chain.push_back(Text2);
    for (std::size_t i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

} // namespace written
