#include "tables/fill_the_gap_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "tables/blackboard.h"
#include "ui/ground.h"
#include "ui/marker_stripe.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace tables {

namespace {

// Twips.
constexpr double Width = 4680;
constexpr double Height = 4590;

constexpr ui::look::Font RowFont{Family::CourierNew, 30, true};
constexpr ui::look::Font CommandFont{Family::Andika, 11, true};
constexpr ui::look::Font CounterFont{Family::Andika, 9}; // this screen opens large

} // namespace

FrmMultHuecos::FrmMultHuecos(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Completa el hueco"_s, Width, Height)
{
    displayBox(u"TbInstruc"_s, {180, 180, 4320, 420}, ui::look::Instruction, u"Instrucciones"_s,
        u"Completa el Cuadro vacío "_s) // capital and last blank are meant
        ->setAlignment(Qt::AlignCenter);
    makeRow();
    TbResultado = verdictBox(u"TbResultado"_s, {180, 2400, 4320, 540}, u"Comprobación"_s);
    TbResultado->setJudged({TbTermin[1]});
    makeButtons();
    TbEjercicios = countersBox(u"TbEjercicios"_s, {180, 4140, 4320, 300},
        m_model.counters().FormatoSimple(), CounterFont);
}

void FrmMultHuecos::makeRow()
{
    constexpr ui::TwipRect Writing{360, 840, 3960, 1140};
    constexpr ui::TwipRect Gap{1635, 1020, 1140, 780};
    constexpr double Top = Writing.top + 120;
    constexpr double BoxHeight = Writing.height - 240;
    add(new Blackboard(canvas()), {}, Blackboard::around(Writing));
    add(new Slip(canvas()), {}, Slip::under(Gap));
    TbTermin[0] = onBoard(u"TbTermin(0)"_s, {405, Top, 645, BoxHeight}, u"Primer factor"_s);
    TbSignos[0] = onBoard(u"TbSignos(0)"_s, {1020, Top, 465, BoxHeight}, u"Por"_s);
    TbTermin[1] = entryBox(u"TbTermin(1)"_s, Gap, RowFont, u"Segundo factor, el que falta"_s);
    TbSignos[1] = onBoard(u"TbSignos(1)"_s, {2925, Top, 465, BoxHeight}, u"Igual a"_s);
    TbTermin[2] = onBoard(u"TbTermin(2)"_s, {3360, Top, 915, BoxHeight}, u"Producto"_s);
    alignRow();
    for (ui::TextBox* box : TbTermin)
        enterChecks(box);
    using Kind = ui::MarkerStripe::Kind;
    new ui::MarkerStripe({TbTermin[0], TbSignos[0]}, Kind::Chalk);
    new ui::MarkerStripe({TbSignos[1], TbTermin[2]}, Kind::Chalk);
}

/// The outer numbers stand next to their signs, whether they have one digit or more.
void FrmMultHuecos::alignRow()
{
    TbTermin[0]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    TbTermin[1]->setAlignment(Qt::AlignCenter);
    TbTermin[2]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (ui::TextBox* sign : TbSignos)
        sign->setAlignment(Qt::AlignCenter);
}

ui::TextBox* FrmMultHuecos::onBoard(
    const QString& name, const ui::TwipRect& place, const QString& accessibleName)
{
    ui::TextBox* box = displayBox(name, place, RowFont, accessibleName);
    box->setPalette(chalk());
    return box;
}

void FrmMultHuecos::makeButtons()
{
    constexpr double Top = 3360;
    constexpr double ButtonHeight = 420;
    makeCommands({.check = {300, Top, 720, ButtonHeight},
        .next = {1950, Top, 1020, ButtonHeight},
        .clear = {1110, Top, 750, ButtonHeight},
        .solution = {3060, Top, 1320, ButtonHeight}});
    for (QWidget* command : {Command1, Command2[0], Command2[1], Command2[2]})
        setControlFont(command, CommandFont);
}

void FrmMultHuecos::Form_Load()
{
    core::seedBySecondsOfDay(screens().random(), screens().clock());
    ui::Ground::pose(*this, ui::Pose::Waiting);
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
