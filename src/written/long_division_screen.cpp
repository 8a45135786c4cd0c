#include "written/long_division_screen.h"

#include "core/clock.h"
#include "ui/screens.h"
#include "ui/squared_box.h"
#include "written/division_sheet.h"
#include "written/work_area.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

// In twips. At the right of the sheet stand the operation, at the height of the quotient, and
// under it the buttons; they move with the sheet's edge. The squares are small by nature: all
// else is small too, so that the screen opens at a large factor, and is large with it.
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
constexpr int MenuType = 9;

double columnLeft()
{
    return DivisionBoard::firstPlace().right() + ColumnGap;
}

double designHeightFor(const ui::TwipRect& sheet)
{
    return sheet.bottom() + CountersGap + CountersHeight + CountersGap;
}

double designWidthAtFirst()
{
    return columnLeft() + ColumnWidth + Margin;
}

ui::TwipRect operationPlace()
{
    return {columnLeft(), DivisionBoard::quotientMiddle() - OperationHeight / 2, ColumnWidth,
        OperationHeight};
}

/// The tray of the four ends where the sheet does at first.
ui::TwipRect commandPlace(int position)
{
    const double bottom = DivisionBoard::firstPlace().bottom() - TrayMargin;
    return {columnLeft() + TrayMargin, bottom - CommandHeight - (3 - position) * CommandPitch,
        ColumnWidth - 2 * TrayMargin, CommandHeight};
}

} // namespace

QString Form6::screenName()
{
    return u"Form6"_s;
}

Form6::Form6(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"DIVISIONES"_s, designWidthAtFirst(),
        designHeightFor(DivisionBoard::firstPlace()))
    , m_board(*this)
{
    setMenuType(MenuType);
    makeMenu();
    connectBoard();
    makeTexts();
    makeCommands({.check = commandPlace(0),
                     .next = commandPlace(2),
                     .clear = commandPlace(1),
                     .solution = commandPlace(3)},
        u"&Ver solucióm"_s); // misspelled: meant
    for (QWidget* command : {Command1, Command2[0], Command2[1], Command2[2]})
        setControlFont(command, CommandFont);
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

void Form6::makeTexts()
{
    Text4 = verdictBox(u"Text4"_s, operationPlace(), u"Operación y resultado"_s);
    Text4->setMarkSize(VerdictMark);
    Text4->setJudged({m_board.Text3});
    setControlFont(Text4, OperationFont);
    const ui::TwipRect sheet = DivisionBoard::firstPlace();
    tbResultados = countersBox(u"tbResultados"_s,
        {Margin, sheet.bottom() + CountersGap, sheet.width, CountersHeight},
        m_model.counters().FormatoAlineado(), CounterFont);
}

/// What stands at the right of the sheet and below it moves with its edges.
void Form6::fitSheet()
{
    m_board.fit({m_model.AnchoLinea().value(), m_model.workLines(), m_model.rightFigures()});
    const ui::TwipRect& sheet = m_board.place();
    const double width = designWidthAtFirst() + sheet.width - DivisionBoard::firstPlace().width;
    const double height = designHeightFor(sheet);
    const double moved = width - designWidth();
    if (moved == 0 && height == designHeight())
        return;
    for (QWidget* control :
        std::initializer_list<QWidget*>{Text4, Command1, Command2[0], Command2[1], Command2[2]})
        moveTo(control, placeOf(control).left + moved, placeOf(control).top);
    moveTo(tbResultados, Margin, sheet.bottom() + CountersGap);
    setDesignSize(width, height);
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
    m_board.Text2->setText(QString::number(m_model.Divisor()));
    m_board.Text3->clear();
    showOperation();
}

void Form6::showWork()
{
    fitSheet();
    clearWork();
}

/// The caret waits under the dividend's first digit: on its line nothing can be written.
void Form6::clearWork()
{
    m_board.Text1->setGrid(m_model.emptyWork(), m_model.AnchoLinea().value() + 1);
}

void Form6::showOperation()
{
    const QString operation = m_model.operationText();
    setControlFont(Text4, operation.size() > LongOperation ? LongOperationFont : OperationFont);
    Text4->setPlainText(operation);
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
    tbResultados->setText(m_model.counters().FormatoAlineado());
    showVerdict(*Text4, m_model.verdict());
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
    showVerdict(*Text4, m_model.verdict());
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
    if (!Text4->text().contains(u'÷')) {
        const bool isNamed = Text4->text() == u"Dividendo"_s;
        Text4->setPlainText(isNamed ? u" Dividendo"_s : u"Dividendo"_s);
    }
    Text4->showSelected();
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
    Text4->setPlainText(u"Divisor"_s);
}

void Form6::Text3_GotFocus()
{
    Text4->setPlainText(u"Cociente"_s);
}

} // namespace written
