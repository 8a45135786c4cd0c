#include "support/digit_sum_screen.h"

#include "core/clock.h"
#include "core/numbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double Width = 6000;
constexpr double Height = 3600;

} // namespace

FrmSuma::FrmSuma(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Suma"_s, Width, Height)
{
    TbSuma = displayBox(u"TbSuma"_s, {300, 300, 2400, 510}, ui::look::Instruction, u"Suma"_s);
    TbRespuesta =
        entryBox(u"TbRespuesta"_s, {3000, 300, 1500, 510}, ui::look::Instruction, u"Respuesta"_s);
    enterChecks(TbRespuesta);
    TbResultado = verdictBox(u"TbResultado"_s, {300, 1050, 4200, 510}, u"Comprobación"_s);
    TbResultado->setJudged({TbRespuesta});
    TbEjercicios = displayBox(u"TbEjercicios"_s, {300, 2850, 5400, 510}, ui::look::Counters,
        u"Ejercicios y errores"_s, m_model.counters().FormatoSimple());
    makeCommands({.check = {300, 1950, 1200, 510},
        .next = {3000, 1950, 1200, 510},
        .clear = {1650, 1950, 1200, 510},
        .solution = {4350, 1950, 1350, 510}});
}

void FrmSuma::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    newExercise();
    TbRespuesta->setFocus();
}

void FrmSuma::newExercise()
{
    m_model.newExercise();
    TbSuma->setText(m_model.text());
    showVerdict(*TbResultado, m_model.verdict());
    sayExercise();
}

void FrmSuma::check()
{
    const auto verdict = m_model.judge(core::readNumber(TbRespuesta->text()));
    showVerdict(*TbResultado, m_model.verdict());
    TbEjercicios->setText(m_model.counters().FormatoSimple());
    if (verdict == shell::Verdict::Right)
        Command2[0]->setFocus();
}

void FrmSuma::nextExercise()
{
    newExercise();
    clearAnswer();
}

void FrmSuma::clearAnswer()
{
    TbRespuesta->clear();
    TbRespuesta->setFocus();
}

void FrmSuma::showSolution()
{
    TbRespuesta->setText(QString::number(m_model.showSolution()));
    say(m_model.spokenSolution());
}
