#include "written/long_division_screen.h"

#include "core/clock.h"
#include "ui/screens.h"
#include "ui/squared_box.h"
#include "written/division_sheet.h"
#include "written/work_area.h"

using namespace Qt::StringLiterals;

namespace written {

namespace {

QSizeF firstCanvas()
{
    return DivisionColumn::canvasFor(DivisionBoard::firstPlace());
}

} // namespace

Form6::Form6(ui::Screens& screens)
    : DrillScreen(
        screens, screenName(), u"DIVISIONES"_s, firstCanvas().width(), firstCanvas().height())
    , m_menu(*this, *this, m_model, menuCallbacks())
    , m_board(*this)
    , m_column(*this, m_board.Text3, m_model.counters().FormatoAlineado())
{
    connectBoard();
    makeCommands(inOrder(DivisionColumn::commandPlace),
        u"&Ver solucióm"_s); // misspelled: meant
    m_column.take({Command1, Command2[0], Command2[1], Command2[2]});
}

DivisionMenu::Callbacks Form6::menuCallbacks()
{
    return {.showExercise =
                [this] {
                    showExercise();
                    leaveContinue(m_board.Text1);
                },
        .showTypedDividend =
            [this] {
                showWork();
                showOperation();
                leaveContinue(m_board.Text1);
            },
        .showTypedDivisor =
            [this] {
                fitSheet();
                showDivisor();
                showOperation();
                leaveContinue(m_board.Text1);
            },
        .leave = [this] { unload(); }};
}

void Form6::connectBoard()
{
    on(m_board.m_sheet, &DivisionSheet::pressed, &Form6::writeNear);
    onKeyDown(m_board.Text1,
        [this](int keyCode, Qt::KeyboardModifiers) { return Text1_KeyDown(keyCode); });
    onKeyPress(m_board.Text1, [this](QChar character) { return Text1_KeyPress(character); });
    onGotFocus(m_board.Text1, [this] { Text1_GotFocus(); });
    on(m_board.Text1, &WorkArea::cursorPositionChanged, &Form6::saySquare);
    onGotFocus(m_board.Text2, [this] { Text2_GotFocus(); });
    enterChecks(m_board.Text3);
    onGotFocus(m_board.Text3, [this] { Text3_GotFocus(); });
}

void Form6::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    newExercise();
    m_board.Text1->setFocus();
}

// --- showing

void Form6::NuevaDivision()
{
    m_model.newExercise();
    showExercise();
}

void Form6::showExercise()
{
    showWork();
    showDivisor();
    m_board.Text3->clear();
    showOperation();
}

void Form6::showWork()
{
    fitSheet();
    clearWork();
}

/// What stands beside the sheet and below it moves with its edges.
void Form6::fitSheet()
{
    m_board.fit({m_model.AnchoLinea().value(), m_model.workLines(), m_model.rightFigures()});
    const QSizeF canvas = DivisionColumn::canvasFor(m_board.place());
    if (canvas.width() == designWidth() && canvas.height() == designHeight())
        return;
    m_column.follow(m_board.place());
    setDesignSize(canvas.width(), canvas.height());
}

void Form6::showDivisor()
{
    m_board.Text2->setText(QString::number(m_model.Divisor()));
}

/// The caret waits under the dividend's first digit: on its line nothing can be written.
void Form6::clearWork()
{
    m_board.Text1->setGrid(m_model.emptyWork(), m_model.AnchoLinea().value() + 1);
}

void Form6::showOperation()
{
    m_column.showOperation(m_model.operationText());
    sayExercise();
}

// --- commands

void Form6::check()
{
    const auto verdict = m_model.judge({m_board.Text3->text(), m_board.Text1->grid()});
    if (verdict == shell::Verdict::NotJudged) {
        ui::MessageBox::show(
            *this, m_model.tooFewDecimals(), u"Atención"_s, ui::Icon::Information);
        return;
    }
    m_column.tbResultados->setText(m_model.counters().FormatoAlineado());
    showVerdict(*m_column.Text4, m_model.verdict());
    if (verdict == shell::Verdict::Right)
        Command2[0]->setFocus();
}

void Form6::nextExercise()
{
    m_model.nextExercise();
    showExercise();
    m_board.Text1->setFocus();
}

void Form6::clearAnswer()
{
    m_board.Text3->clear();
    clearWork();
    m_board.Text3->setFocus();
}

void Form6::showSolution()
{
    const WorkedDivision worked = m_model.showSolution();
    showVerdict(*m_column.Text4, m_model.verdict());
    m_board.Text3->setText(worked.quotient);
    m_board.Text1->setGrid(worked.work);
    say(LongDivision::spokenSolution(worked));
}

// --- boxes

void Form6::writeNear(const QPoint& point)
{
    m_board.Text1->writeNear(m_board.Text1->mapFromGlobal(m_board.m_sheet->mapToGlobal(point)));
}

ui::KeyResult Form6::Text1_KeyDown(int KeyCode)
{
    // Enter and Backspace do nothing on the way down either, but their press writes a blank.
    return KeyCode == ui::key::Delete ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
}

ui::KeyResult Form6::Text1_KeyPress(QChar KeyAscii)
{
    const bool blanks =
        KeyAscii == QChar(ui::key::Enter) || KeyAscii == QChar(ui::key::Backspace);
    if (!blanks && !KeyAscii.isPrint())
        return ui::KeyResult::Pass; // Escape, and the shortcuts of a text box
    m_board.Text1->overtype(KeyAscii);
    return ui::KeyResult::Swallow;
}

void Form6::Text1_GotFocus()
{
    if (!m_column.Text4->text().contains(u'÷')) {
        const bool isNamed = m_column.Text4->text() == u"Dividendo"_s;
        m_column.Text4->setPlainText(isNamed ? u" Dividendo"_s : u"Dividendo"_s);
    }
    m_column.Text4->showSelected();
    saySquare();
}

/// Says the line of the caret and what stands above it.
void Form6::saySquare()
{
    const WorkArea& work = *m_board.Text1;
    if (work.hasFocus())
        say(LongDivision::spokenSquare(work.grid(), work.cursorPosition()));
}

void Form6::Text2_GotFocus()
{
    m_column.Text4->setPlainText(u"Divisor"_s);
}

void Form6::Text3_GotFocus()
{
    m_column.Text4->setPlainText(u"Cociente"_s);
}

} // namespace written
