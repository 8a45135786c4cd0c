#include "written/long_multiplication_screen.h"

#include "core/aloud.h"
#include "core/clock.h"
#include "ui/screens.h"
#include "ui/squared_box.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using ui::SquaredBox;

namespace written {

namespace {

// In twips. Right of the sheet stand the buttons, two by two, and under them, beside the
// result, the verdict.
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

ui::TwipRect commandPlace(int position)
{
    const int column = position % 2;
    const int row = position / 2;
    return {ColumnLeft + TrayMargin + column * (CommandWidth + CommandGap),
        MultiplicationBoard::top() + TrayMargin + row * (CommandHeight + CommandGap),
        CommandWidth, CommandHeight};
}

/// Beside the result, and below the buttons where that stands high.
double verdictTop(double resultTop)
{
    return std::max(resultTop, commandPlace(3).bottom() + 2 * TrayMargin);
}

double heightFor(int rows)
{
    return MultiplicationBoard::bottomFor(std::min(rows, MostRows)) + CountersGap + CountersHeight
        + CountersGap;
}

} // namespace

QString Form3::screenName()
{
    return u"Form3"_s;
}

Form3::Form3(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Multiplicaciones"_s, Width, heightFor(0))
    , m_unitsFirst(*this, [this](const QString& place) { say(place); })
    , m_board(*this, [this](SquaredBox* row, int fila) { connectRow(row, fila); })
{
    makeMenu();
    connectFactors();
    connectResult();
    makeCommands({.check = commandPlace(0),
        .next = commandPlace(2),
        .clear = commandPlace(1),
        .solution = commandPlace(3)});
    makeTexts();
}

void Form3::makeTexts()
{
    displayBox(u"TbTítulo"_s, {Margin, TitleTop, Width - 2 * Margin, TitleHeight},
        ui::look::Instruction, u"Instrucción"_s, u"Realiza la siguiente operación"_s);
    Text1 = verdictBox(u"Text1"_s,
        {ColumnLeft, verdictTop(m_board.resultTop()), ColumnWidth, VerdictHeight},
        u"Comprobación"_s);
    Text1->setJudged({m_board.TBResultado});
    Text2 = countersBox(u"Text2"_s,
        {Margin, m_board.bottom() + CountersGap, MultiplicationBoard::right() - Margin,
            CountersHeight},
        m_model.counters().FormatoAlineado());
    for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{Text1, Text2})
        box->allowFocus(Qt::TabFocus);
}

void Form3::connectFactors()
{
    for (SquaredBox* factor : m_board.TbFactor)
        onKeyPress(factor, [this](QChar) { return TbFactor_KeyPress(); });
}

void Form3::connectRow(SquaredBox* row, int fila)
{
    onKeyDown(row, [this, fila](int KeyCode, Qt::KeyboardModifiers) {
        TbParcial_KeyDown(fila, KeyCode);
        return ui::KeyResult::Pass;
    });
    m_unitsFirst.connectRow(row);
    on(row, &QLineEdit::textChanged, [this, fila] { TbParcial_Change(fila); });
}

/// Enter checks here alone: in a row, one that is half written would be judged.
void Form3::connectResult()
{
    enterChecks(m_board.TBResultado);
    m_unitsFirst.connectResult(m_board.TBResultado);
    on(m_board.TBResultado, &QLineEdit::textChanged, [this] { TBResultado_Change(); });
}

void Form3::Form_Load()
{
    MnuOpcCi1Lis.check(m_model.CifrasFactor1().value() - 1);
    MnuOpcCi2Lis.check(m_model.CifrasFactor2().value() - 1);
    core::seedByClock(screens().random(), screens().clock());
    NuevaMultiplicacion();
    m_board.row(0)->setFocus();
}

void Form3::NuevaMultiplicacion()
{
    m_model.newExercise();
    PreparaFilas();
    showFactors();
    showVerdict(*Text1, m_model.verdict());
}

void Form3::PreparaFilas()
{
    const auto rows = static_cast<int>(m_model.expectedRows().size());
    m_board.setRowCount(rows);
    // The first row always stays, even for a hidden zero, which needs none.
    if (m_board.rowCount() != rows)
        ui::MessageBox::show(*this, u"desajuste"_s);
    m_board.placeRows();
    placeWindow();
    chainTabs();
}

/// The verdict and the counters go down with the rows, and the window grows for them.
void Form3::placeWindow()
{
    moveTo(Text1, ColumnLeft, verdictTop(m_board.resultTop()));
    moveTo(Text2, Margin, m_board.bottom() + CountersGap);
    const double height = heightFor(m_board.rowCount());
    if (height != designHeight()) // a window that a person has sized stays as it is
        setDesignSize(Width, height);
}

void Form3::fitSquares()
{
    QStringList texts = m_model.expectedRows();
    texts << m_model.resultText();
    const auto longest = std::max_element(texts.cbegin(), texts.cend(),
        [](const QString& a, const QString& b) { return a.size() < b.size(); });
    m_board.fitSquares(longest->size());
}

void Form3::chainTabs()
{
    std::vector<QWidget*> chain;
    for (SquaredBox* box : m_board.answerBoxes())
        chain.push_back(box);
    chain.insert(chain.end(), {Command1, Text1});
    chain.insert(chain.end(), {Command2[1], Command2[0], Command2[2], Text2});
    for (std::size_t i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

void Form3::showFactors()
{
    m_board.showFactors(m_model.factor1Text(), m_model.factor2Text());
    fitSquares();
    sayExercise();
}

void Form3::check()
{
    const auto verdict = m_model.judge({m_board.TBResultado->text(), m_board.rowTexts()});
    showVerdict(*Text1, m_model.verdict());
    if (verdict == shell::Verdict::Right) {
        Command2[0]->setEnabled(true);
        Command2[0]->setFocus();
    } else {
        Command2[2]->setEnabled(true);
        m_board.showWrongResult();
        for (const int row : m_model.wrongRows())
            m_board.showWrongRow(row);
        say(m_model.spokenWrongRows());
    }
    Text2->setText(m_model.counters().FormatoAlineado());
}

void Form3::nextExercise()
{
    newExercise();
    m_model.setPending();
    m_board.row(0)->setFocus();
}

void Form3::clearAnswer()
{
    m_board.empty();
    m_board.row(0)->setFocus();
}

void Form3::showSolution()
{
    const QString result = m_model.showSolution();
    m_board.showSolution(m_model.expectedRows(), result);
    say(m_model.spokenSolution());
    Command2[0]->setEnabled(true);
    Command2[0]->setFocus();
}

ui::KeyResult Form3::TbFactor_KeyPress()
{
    m_board.row(0)->setFocus();
    return ui::KeyResult::Pass; // the box is read-only: copying is all that it answers
}

void Form3::TbParcial_KeyDown(int Index, int KeyCode)
{
    if (KeyCode == ui::key::Shift)
        IndicaProducto(UnitsFirst::caretOf(*m_board.row(Index)), Index);
}

void Form3::IndicaProducto(int posicion, int fila)
{
    const qsizetype length = m_board.row(fila)->text().size();
    if (!m_model.IndicaProducto(posicion, fila, static_cast<int>(length)))
        return;
    Text1->setPlainText(m_model.verdict().text());
    say(core::aloud(m_model.verdict().text()));
}

void Form3::TbParcial_Change(int Index)
{
    if (Index == 0 && m_model.firstRowIsResult())
        m_board.TBResultado->write(m_board.row(0)->text());
    fitSquares();
}

void Form3::TBResultado_Change()
{
    m_board.TBResultado->setAlignment(Qt::AlignRight | Qt::AlignTop);
    fitSquares();
}

} // namespace written
