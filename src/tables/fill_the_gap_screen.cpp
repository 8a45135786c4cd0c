#include "tables/fill_the_gap_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "tables/blackboard.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace tables {

namespace {

constexpr double Width = 4680;
constexpr double Height = 4590;

constexpr ui::look::Font RowFont{Family::CourierNew, 30, true};
constexpr ui::look::Font CounterFont{Family::CourierNew, 12};

} // namespace

QString FrmMultHuecos::screenName()
{
    return u"FrmMultHuecos"_s;
}

FrmMultHuecos::FrmMultHuecos(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Completa el hueco"_s, Width, Height)
{
    displayBox(u"TbInstruc"_s, {240, 300, 4200, 400}, ui::look::Instruction, u"Instrucciones"_s,
        u"Completa el Cuadro vacío "_s)
        ->setAlignment(Qt::AlignCenter);
    makeRow();
    makeButtons();
    TbResultado = verdictBox(u"TbResultado"_s, {240, 2610, 4200, 480}, u"Comprobación"_s);
    TbEjercicios = displayBox(u"TbEjercicios"_s, {240, 4020, 4200, 390}, CounterFont,
        u"Ejercicios y errores"_s, m_model.counters().FormatoSimple());
    TbEjercicios->setAlignment(Qt::AlignCenter);
}

void FrmMultHuecos::makeRow()
{
    // The board is in two pieces: between them is the gap.
    add(new Blackboard(canvas()), {}, ui::TwipRect{180, 900, 1380, 840});
    add(new Blackboard(canvas()), {}, ui::TwipRect{3000, 900, 1500, 840});
    TbTermin[0] = onBoard(u"TbTermin(0)"_s, {300, 960, 690, 720}, u"Primer factor"_s);
    TbSignos[0] = onBoard(u"TbSignos(0)"_s, {990, 960, 450, 720}, u"Por"_s);
    TbTermin[1] = entryBox(
        u"TbTermin(1)"_s, {1680, 900, 1200, 840}, RowFont, u"Segundo factor, el que falta"_s);
    TbSignos[1] = onBoard(u"TbSignos(1)"_s, {3090, 960, 390, 720}, u"Igual a"_s);
    TbTermin[2] = onBoard(u"TbTermin(2)"_s, {3495, 960, 930, 720}, u"Producto"_s);
    for (ui::TextBox* box : TbTermin) {
        box->setAlignment(Qt::AlignCenter);
        enterChecks(box);
    }
}

ui::TextBox* FrmMultHuecos::onBoard(
    const QString& name, const ui::TwipRect& place, const QString& accessibleName)
{
    ui::TextBox* box = displayBox(name, place, RowFont, accessibleName);
    box->setPalette(chalk());
    box->setAlignment(Qt::AlignCenter);
    return box;
}

void FrmMultHuecos::makeButtons()
{
    makeCommands({.check = {1590, 1950, 1500, 540},
        .next = {1650, 3270, 1380, 540},
        .clear = {180, 3270, 1380, 540},
        .solution = {3120, 3270, 1380, 540}});
}

void FrmMultHuecos::Form_Load()
{
    core::seedByTimer(screens().random(), screens().clock());
    newExercise();
    TbTermin[1]->setFocus();
}

void FrmMultHuecos::NuevoHueco()
{
    m_model.newExercise();
    TbTermin[0]->setText(QString::number(m_model.shownFactor()));
    TbSignos[0]->setText(u"x"_s);
    TbTermin[1]->clear();
    TbSignos[1]->setText(u"="_s);
    TbTermin[2]->setText(QString::number(m_model.product()));
    for (ui::TextBox* shown : {TbTermin[0], TbSignos[0], TbSignos[1], TbTermin[2]})
        shown->showSelected();
    sayExercise();
}

QString FrmMultHuecos::spokenExercise() const
{
    return m_model.spokenExercise();
}

void FrmMultHuecos::check()
{
    const auto verdict = m_model.judge(core::readNumber(TbTermin[1]->text()));
    showVerdict(*TbResultado, m_model.verdict());
    if (verdict == shell::Verdict::Right)
        Command2[0]->setFocus();
    else
        TbTermin[1]->clear();
    TbEjercicios->setText(m_model.counters().FormatoSimple());
}

void FrmMultHuecos::nextExercise()
{
    newExercise();
    showVerdict(*TbResultado, m_model.verdict());
    TbTermin[1]->setFocus();
}

void FrmMultHuecos::clearAnswer()
{
    TbTermin[1]->clear();
    TbTermin[1]->setFocus();
}

void FrmMultHuecos::showSolution()
{
    TbTermin[1]->setText(QString::number(m_model.showSolution()));
    say(m_model.spokenSolution());
    Command2[0]->setFocus();
}

} // namespace tables
