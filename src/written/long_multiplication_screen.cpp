#include "written/long_multiplication_screen.h"

#include "core/clock.h"
#include "ui/announcement.h"
#include "ui/screens.h"
#include "ui/squared_box.h"

using namespace Qt::StringLiterals;
using ui::SquaredBox;

namespace written {

namespace {

/// The caret as the rules count it: the start of a selection, where there is one.
int caretOf(const QLineEdit& box)
{
    return box.hasSelectedText() ? box.selectionStart() : box.cursorPosition();
}

void stepLeft(QLineEdit& box)
{
    if (const int caret = caretOf(box); caret > 0)
        box.setCursorPosition(caret - 1);
}

void paint(SquaredBox& box, QRgb colour)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Text, QColor(colour));
    box.setPalette(palette);
}

void empty(SquaredBox& box)
{
    box.write({});
    paint(box, ui::look::Ink);
}

} // namespace

void Form3::Form_Load()
{
    MnuOpcCi1Lis.check(m_model.CifrasFactor1().value() - 1);
    MnuOpcCi2Lis.check(m_model.CifrasFactor2().value() - 1);
    core::seedByClock(screens().random(), screens().clock());
    NuevaMultiplicacion();
    TbParcial[0]->setFocus();
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
    setRowCount(static_cast<int>(m_model.expectedRows().size()));
    placeRows();
    chooseSquares();
    chainTabs();
}

void Form3::showFactors()
{
    TbFactor[0]->write(m_model.factor1Text());
    TbFactor[1]->write(m_model.factor2Text());
    for (SquaredBox* box : TbFactor)
        box->showSelected();
    ui::announce(
        *TbFactor[1], (m_model.factor1Text() + u' ' + m_model.factor2Text()).simplified());
}

std::vector<SquaredBox*> Form3::answerBoxes() const
{
    std::vector<SquaredBox*> boxes = TbParcial;
    boxes.push_back(TBResultado);
    return boxes;
}

void Form3::check()
{
    LongMultiplication::Answer answer{TBResultado->text(), {}};
    for (const SquaredBox* row : TbParcial)
        answer.rows << row->text();
    const auto verdict = m_model.judge(answer);
    showVerdict(*Text1, m_model.verdict());
    if (verdict == shell::Verdict::Right) {
        Command2[0]->setEnabled(true);
        Command2[0]->setFocus();
    } else {
        Command2[2]->setEnabled(true);
        paint(*TBResultado, ui::look::Red);
        for (const int row : m_model.wrongRows())
            paint(*TbParcial.at(static_cast<std::size_t>(row)), ui::look::Red);
    }
    Text2->setText(m_model.counters().FormatoAlineado());
}

void Form3::nextExercise()
{
    newExercise();
    m_model.setPending();
    TbParcial[0]->setFocus();
}

void Form3::emptyRows()
{
    for (SquaredBox* box : answerBoxes())
        empty(*box);
}

void Form3::clearAnswer()
{
    emptyRows();
    TbParcial[0]->setFocus();
}

void Form3::showSolution()
{
    TBResultado->write(m_model.showSolution());
    for (qsizetype row = 0; row < m_model.expectedRows().size(); ++row)
        TbParcial.at(static_cast<std::size_t>(row))->write(m_model.expectedRows().at(row));
    Command2[0]->setEnabled(true);
    Command2[0]->setFocus();
}

ui::KeyResult Form3::TbFactor_KeyPress()
{
    TbParcial[0]->setFocus();
    return ui::KeyResult::Pass; // the box is read-only: copying is all that it answers
}

void Form3::TbParcial_KeyUp(int Index, int KeyCode)
{
    if (KeyCode == ui::key::Space || KeyCode >= ui::key::Digit0)
        stepLeft(*TbParcial.at(static_cast<std::size_t>(Index)));
}

void Form3::TbParcial_KeyDown(int Index, int KeyCode)
{
    if (KeyCode == ui::key::Shift)
        IndicaProducto(caretOf(*TbParcial.at(static_cast<std::size_t>(Index))), Index);
}

void Form3::IndicaProducto(int posicion, int fila)
{
    const qsizetype length = TbParcial.at(static_cast<std::size_t>(fila))->text().size();
    m_model.IndicaProducto(posicion, fila, static_cast<int>(length));
    showVerdict(*Text1, m_model.verdict());
}

void Form3::TbParcial_Change(int Index)
{
    if (Index == 0 && m_model.firstRowIsResult())
        TBResultado->write(TbParcial[0]->text());
    chooseSquares();
}

void Form3::TBResultado_KeyUp(int KeyCode)
{
    const bool digit = KeyCode >= ui::key::Digit0 && KeyCode <= ui::key::Digit9;
    const bool keypadDigit = KeyCode >= ui::key::Keypad0 && KeyCode <= ui::key::Keypad9;
    if (digit || keypadDigit || KeyCode == ui::key::Comma)
        stepLeft(*TBResultado);
}

void Form3::TBResultado_Change()
{
    TBResultado->setAlignment(Qt::AlignRight | Qt::AlignTop);
    chooseSquares();
}

} // namespace written
