#include "written/combined_operations_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "ui/announcement.h"
#include "ui/screens.h"
#include "written/scratch_area.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

constexpr double Width = 10500;
constexpr double Height = 7290;

constexpr ui::look::Font ExpressionFont{Family::CourierNew, 32, true};
constexpr ui::look::Font ScratchFont{Family::CourierNew, 20};
constexpr ui::look::Font AnswerFont{Family::CourierNew, 26, true};
constexpr ui::look::Font LabelFont{Family::Arial, 17, true};

} // namespace

QString FRMCombi::screenName()
{
    return u"FRMCombi"_s;
}

FRMCombi::FRMCombi(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Operaciones combinadas "_s, Width, Height)
{
    makeExpression();
    makeAnswer();
    makeCommands({.check = {3660, 5460, 3180, 600},
                     .next = {3660, 6420, 3180, 600},
                     .clear = {240, 6420, 3180, 600},
                     .solution = {7080, 6420, 3180, 600}},
        u"&Ver Solución"_s);
}

void FRMCombi::makeExpression()
{
    const QString sample = u"2 x 8 + (5 * 9 - 2 -3)"_s;
    displayBox(u"TBInfo"_s, {240, 180, 10020, 420}, ui::look::Instruction, u"Instrucción"_s,
        u"Resuelva la operación siguiendo las reglas de precedencia"_s);

    TBOperacion = displayBox(
        u"TBOperación"_s, {240, 720, 10020, 840}, ExpressionFont, u"Operación"_s, sample);
    TBOperacion->setAlignment(Qt::AlignCenter);
    TBOperacion->setToolTip(u"Operación a realizar"_s);

    TBCalculos =
        add(new ScratchArea(canvas()), u"TBCálculos"_s, {240, 1680, 10020, 3420}, ScratchFont);
    TBCalculos->setAccessibleName(u"Cálculos"_s);
    TBCalculos->setToolTip(u"Haga aquí sus cálculos"_s);
    TBCalculos->setPlainText(sample);
}

void FRMCombi::makeAnswer()
{
    TBResultado = entryBox(u"TBResultado"_s, {1680, 5400, 1740, 720}, AnswerFont, u"Resultado"_s);
    TBResultado->setAlignment(Qt::AlignCenter);
    enterChecks(TBResultado);
    on(TBResultado, &QLineEdit::textChanged, [this] { showAnswerAsPast(false); });
    label(u"Label1"_s, u"&Resultado"_s, {240, 5400, 1380, 720}, LabelFont, TBResultado);
    Text1 = verdictBox(u"Text1"_s, {7080, 5400, 3180, 720}, u"Comprobación"_s);
}

void FRMCombi::Form_Load()
{
    core::seedByTimer(screens().random(), screens().clock());
    newExercise();
}

void FRMCombi::newExercise()
{
    m_model.newExercise();
    Text1->retire();
    showAnswerAsPast(true);
    TBOperacion->setText(m_model.text());
    ui::announce(*TBOperacion, m_model.text());
    TBCalculos->setPlainText(m_model.text());
    TBCalculos->moveCursor(QTextCursor::End);
    TBResultado->setFocus();
    TBResultado->selectAll(); // an answer that still stands there gives way to the next one
}

/// The answer to an expression that has gone stays, faded, until it is changed or judged anew.
void FRMCombi::showAnswerAsPast(bool past)
{
    QPalette palette = ui::look::palette();
    if (past) {
        const QColor quiet(ui::look::Quiet);
        palette.setColor(QPalette::Text, quiet);
        palette.setColor(QPalette::Highlight, ui::look::displayed().color(QPalette::Highlight));
        palette.setColor(QPalette::HighlightedText, quiet);
    }
    TBResultado->setPalette(palette);
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
    TBResultado->setText(QString::number(m_model.showSolution()));
}

} // namespace written
