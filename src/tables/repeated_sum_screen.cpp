#include "tables/repeated_sum_screen.h"

#include "core/aloud.h"
#include "core/clock.h"
#include "core/numbers.h"
#include "tables/blackboard.h"
#include "ui/ground.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace tables {

namespace {

// Twips.
constexpr double Width = 4680;
constexpr double Height = 7590;

constexpr ui::look::Font SumFont{Family::Arial, 20, true};
constexpr ui::look::Font FactorFont{Family::Arial, 26, true};
// The given places are narrow: these are the largest that fit them. On Windows, where letters
// stand on whole pixels, those of Arial take more room.
constexpr ui::look::Font MessageFont{Family::Arial, 14, false, 95};
constexpr ui::look::Font VerdictFont{Family::Andika, 14, true};
constexpr double VerdictMark = 26;
constexpr ui::look::Font CommandFont{Family::Andika, 14, false, 93};
constexpr ui::look::Font CounterFont{Family::Andika, 14}; // this screen opens small

/// The sign between the factors. The first factor's box covers its left part: its text
/// stands halfway between both boxes.
class Sign final : public ui::TextBox {
public:
    explicit Sign(QWidget* parent)
        : TextBox(Kind::Display, parent)
    {
        constexpr double LeftOut = 500 / ui::TwipsPerPixel;
        setExtraMargins(LeftOut, 0);
    }
};

} // namespace

Form4::Form4(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"SUMA REPETIDA"_s, Width, Height)
{
    makeBoxes();
    makeButtons();
}

void Form4::makeBoxes()
{
    displayBox(u"TbMensaje"_s, {200, 500, 4400, 500}, MessageFont, u"Instrucciones"_s,
        u"Escribe esta suma en forma de multiplicación."_s);

    constexpr ui::TwipRect Sum{500, 1500, 3800, 800};
    add(new Blackboard(canvas()), {}, Blackboard::around(Sum));
    TbSuma = add(new BoardText(canvas()), u"TbSuma"_s, Sum, SumFont);
    TbSuma->setAccessibleName(u"Suma"_s);

    Text3[1] =
        add(new Sign(canvas()), u"Text3(1)"_s, ui::TwipRect{1900, 2800, 1000, 500}, FactorFont);
    Text3[1]->setAccessibleName(u"Por"_s);
    Text3[1]->setText(u"X"_s);
    Text3[0] = entryBox(u"Text3(0)"_s, {1200, 2800, 1000, 500}, FactorFont, u"Primer factor"_s);
    Text3[2] = entryBox(u"Text3(2)"_s, {3100, 2800, 1000, 500}, FactorFont, u"Segundo factor"_s);
    for (ui::TextBox* box : Text3) {
        box->setAlignment(Qt::AlignCenter);
        enterChecks(box);
    }

    Text1 = verdictBox(u"Text1"_s, {900, 5000, 3000, 500}, u"Comprobación"_s);
    Text1->setMarkSize(VerdictMark);
    Text1->setJudged({Text3[0], Text3[2]});
    setControlFont(Text1, VerdictFont);
    tbResultados = countersBox(u"tbResultados"_s, {900, 7000, 3000, 500},
        m_model.counters().FormatoAlineado(), CounterFont);
}

void Form4::makeButtons()
{
    makeCommands({.check = {1650, 4000, 1500, 500},
        .next = {1800, 6000, 1200, 500},
        .clear = {400, 6000, 1200, 500},
        .solution = {3200, 6000, 1200, 500}});
    for (QWidget* command : {Command1, Command2[0], Command2[1], Command2[2]})
        setControlFont(command, CommandFont);
}

void Form4::Form_Load()
{
    core::seedBySecondsTwice(screens().random(), screens().clock());
    ui::Ground::pose(*this, ui::Pose::Waiting);
    newExercise();
    Text3[0]->setFocus();
}

void Form4::NuevaSuma()
{
    m_model.newExercise();
    Command2[0]->setEnabled(m_model.canContinue());
    TbSuma->setPlainText(m_model.sumText());
    showVerdict(*Text1, m_model.verdict());
    emptyFactors();
    TbSuma->setFocus();
    sayExercise();
}

QString Form4::spokenExercise() const
{
    return core::aloud(m_model.sumText());
}

void Form4::emptyFactors()
{
    Text3[0]->clear();
    Text3[2]->clear();
}

void Form4::check()
{
    const auto verdict =
        m_model.judge({core::readNumber(Text3[0]->text()), core::readNumber(Text3[2]->text())});
    showVerdict(*Text1, m_model.verdict());
    Command2[0]->setEnabled(m_model.canContinue());
    tbResultados->setText(m_model.counters().FormatoAlineado());
    if (verdict == shell::Verdict::Right)
        Command2[0]->setFocus(); // it keeps where it is while "&Continuar" is disabled
}

void Form4::nextExercise()
{
    newExercise();
    Text3[0]->setFocus();
}

void Form4::clearAnswer()
{
    emptyFactors();
    Text3[0]->setFocus();
}

void Form4::showSolution()
{
    m_model.showSolution();
    Text3[0]->setText(QString::number(m_model.addend()));
    Text3[2]->setText(QString::number(m_model.times()));
    Command2[0]->setEnabled(m_model.canContinue());
    showVerdict(*Text1, m_model.verdict());
}

} // namespace tables
