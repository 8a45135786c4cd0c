#include "written/combined_operations_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "ui/quiet_text.h"
#include "ui/screens.h"
#include "written/scratch_area.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

// In twips. Everything stands on one axis, from the expression down to the buttons.
constexpr double Width = 11400;
constexpr double Margin = 240;
constexpr double FullWidth = Width - 2 * Margin;
constexpr double AnswerWidth = 2400;
constexpr double AnswerTop = 3960;
constexpr double AnswerHeight = 780;
constexpr double LabelWidth = 2100;
constexpr double VerdictWidth = 4200;
constexpr double TrayMargin = 180; // around the buttons
constexpr double CommandGap = 120;
constexpr double CommandWidth = (FullWidth - 2 * TrayMargin - 3 * CommandGap) / 4;
constexpr double CommandPitch = CommandWidth + CommandGap;
constexpr double CommandTop = 5760;
constexpr double CommandHeight = 600;
constexpr double Height = CommandTop + CommandHeight + 2 * TrayMargin;

/// In the middle of the screen.
ui::TwipRect centred(double top, double width, double height)
{
    return {(Width - width) / 2, top, width, height};
}

ui::TwipRect commandPlace(int position)
{
    return {
        Margin + TrayMargin + position * CommandPitch, CommandTop, CommandWidth, CommandHeight};
}

constexpr ui::look::Font ExpressionFont{Family::CourierNew, 32, true};
constexpr ui::look::Font ScratchFont{Family::CourierNew, 16, true};
constexpr ui::look::Font AnswerFont{Family::CourierNew, 26, true};
constexpr ui::look::Font LabelFont{Family::Andika, 18, true};

} // namespace

// The blank at the end of the caption is meant.
FRMCombi::FRMCombi(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Operaciones combinadas "_s, Width, Height)
{
    makeExpression();
    makeAnswer();
    makeCommands(inOrder(commandPlace),
        u"&Ver Solución"_s); // with a capital here alone: meant
}

void FRMCombi::makeExpression()
{
    const QString sample = u"2 x 8 + (5 * 9 - 2 -3)"_s; // uneven, and never seen: meant
    displayBox(u"TBInfo"_s, centred(180, FullWidth, 480), ui::look::Instruction, u"Instrucción"_s,
        u"Resuelva la operación siguiendo las reglas de precedencia"_s)
        ->setAlignment(Qt::AlignCenter);

    TBOperacion = displayBox(
        u"TBOperación"_s, centred(720, FullWidth, 800), ExpressionFont, u"Operación"_s, sample);
    TBOperacion->setAlignment(Qt::AlignCenter);
    TBOperacion->setToolTip(u"Operación a realizar"_s);

    TBCalculos = add(
        new ScratchArea(canvas()), u"TBCálculos"_s, centred(1620, FullWidth, 2220), ScratchFont);
    TBCalculos->setAccessibleName(u"Cálculos"_s);
    TBCalculos->setToolTip(u"Haga aquí sus cálculos"_s);
    TBCalculos->setPlainText(sample);
}

void FRMCombi::makeAnswer()
{
    TBResultado = entryBox(u"TBResultado"_s, centred(AnswerTop, AnswerWidth, AnswerHeight),
        AnswerFont, u"Resultado"_s);
    TBResultado->setAlignment(Qt::AlignCenter);
    m_past = new ui::QuietText(TBResultado, false);
    enterChecks(TBResultado);
    on(TBResultado, &QLineEdit::textChanged, [this] { showAnswerAsPast(false); });
    const double answerLeft = (Width - AnswerWidth) / 2;
    label(u"Label1"_s, u"&Resultado"_s,
        {answerLeft - TrayMargin - LabelWidth, AnswerTop, LabelWidth, AnswerHeight}, LabelFont,
        TBResultado)
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Text1 = verdictBox(u"Text1"_s,
        centred(AnswerTop + AnswerHeight + TrayMargin / 2, VerdictWidth, 640), u"Comprobación"_s);
    Text1->setJudged({TBResultado});
}

void FRMCombi::Form_Load()
{
    core::seedBySecondsOfDay(screens().random(), screens().clock());
    newExercise();
}

void FRMCombi::newExercise()
{
    m_model.newExercise();
    Text1->retire();
    showAnswerAsPast(true);
    TBOperacion->setText(m_model.text());
    sayExercise();
    TBCalculos->setPlainText(m_model.text());
    TBCalculos->moveCursor(QTextCursor::End);
    TBResultado->setFocus();
    TBResultado->selectAll(); // an answer that still stands there gives way to the next one
}

/// The answer to an expression that has gone stays, faded, until it is changed or judged anew.
void FRMCombi::showAnswerAsPast(bool past)
{
    m_past->setQuiet(false);
    QPalette colours = ui::look::palette();
    if (past)
        colours.setColor(QPalette::Highlight, QColor(ui::look::Marker));
    TBResultado->setPalette(colours);
    m_past->setQuiet(past);
}

void FRMCombi::check()
{
    showAnswerAsPast(false);
    m_model.judge(core::readNumber(TBResultado->text()));
    showVerdict(*Text1, m_model.verdict());
}

void FRMCombi::nextExercise()
{
    newExercise();
}

void FRMCombi::clearAnswer()
{
    TBResultado->clear();
    TBResultado->setFocus();
}

void FRMCombi::showSolution()
{
    showAnswerAsPast(false);
    TBResultado->setText(QString::number(m_model.showSolution()));
    say(m_model.spokenSolution());
}

} // namespace written
