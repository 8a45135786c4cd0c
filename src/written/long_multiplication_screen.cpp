#include "written/long_multiplication_screen.h"

#include "core/aloud.h"
#include "core/clock.h"
#include "ui/screens.h"
#include "ui/squared_box.h"
#include "written/digit_dialog.h"

using namespace Qt::StringLiterals;
using ui::SquaredBox;

namespace written {

Form3::Form3(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Multiplicaciones"_s,
        MultiplicationColumn::canvasFor(0).width(), MultiplicationColumn::canvasFor(0).height())
    , m_menu(*this, *this, m_model, menuCallbacks())
    , m_unitsFirst(*this, [this](const QString& place) { say(place); })
    , m_board(*this, [this](SquaredBox* row, int fila) { connectRow(row, fila); })
{
    connectFactors();
    connectResult();
    makeCommands(inOrder(MultiplicationColumn::commandPlace));
    // Made behind the buttons: so readers meet it.
    m_column.emplace(
        static_cast<ui::ControlFactory&>(*this), m_board, m_model.counters().FormatoAlineado());
}

MultiplicationMenu::Callbacks Form3::menuCallbacks()
{
    const auto chooseDigits = [this](const Dialog& dialog) {
        m_menu.chooseDigits(dialog.TablasSeleccionadas());
    };
    return {.newExercise =
                [this] {
                    NuevaMultiplicacion();
                    leaveContinue(m_board.row(0));
                },
        .showTypedFactors =
            [this] {
                showExercise();
                leaveContinue(m_board.row(0));
            },
        .showVerdict = [this] { showVerdict(*m_column->Text1, m_model.verdict()); },
        .openDigits = [this, chooseDigits] { screens().showModal<Dialog>(*this, chooseDigits); },
        .leave = [this] { unload(); }};
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
    core::seedByClock(screens().random(), screens().clock());
    NuevaMultiplicacion();
    m_board.row(0)->setFocus();
}

void Form3::NuevaMultiplicacion()
{
    m_model.newExercise();
    showExercise();
    showVerdict(*m_column->Text1, m_model.verdict());
}

void Form3::showExercise()
{
    PreparaFilas();
    m_board.showFactors(m_model.factor1Text(), m_model.factor2Text());
    fitSquares();
    sayExercise();
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
    m_column->follow(m_board);
    const QSizeF canvas = MultiplicationColumn::canvasFor(m_board.rowCount());
    if (canvas.height() != designHeight()) // a window that a person has sized stays as it is
        setDesignSize(canvas.width(), canvas.height());
}

void Form3::fitSquares()
{
    QStringList texts = m_model.expectedRows();
    texts << m_model.resultText();
    m_board.fitSquares(texts);
}

void Form3::chainTabs()
{
    std::vector<QWidget*> chain;
    for (SquaredBox* box : m_board.answerBoxes())
        chain.push_back(box);
    chain.insert(chain.end(), {Command1, m_column->Text1});
    chain.insert(chain.end(), {Command2[1], Command2[0], Command2[2], m_column->Text2});
    for (std::size_t i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

void Form3::check()
{
    const auto verdict = m_model.judge({m_board.TBResultado->text(), m_board.rowTexts()});
    showVerdict(*m_column->Text1, m_model.verdict());
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
    m_column->Text2->setText(m_model.counters().FormatoAlineado());
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
    m_column->Text1->setPlainText(m_model.verdict().text());
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
