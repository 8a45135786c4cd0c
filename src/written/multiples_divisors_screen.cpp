#include "written/multiples_divisors_screen.h"

#include "core/clock.h"
#include "core/defect.h"
#include "core/numbers.h"
#include "ui/screens.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

// In twips. Everything stands on one axis, from the instruction down to the buttons.
constexpr double Width = 11000;
constexpr double Margin = 240;
constexpr double FullWidth = Width - 2 * Margin;
constexpr double AnswerTop = 2640;
constexpr double AnswerWidth = 2800;
constexpr double AnswerHeight = 900;
constexpr double VerdictWidth = 4200;
constexpr double TrayMargin = 180; // around the buttons
constexpr double CommandWidth = 2440;
constexpr double CommandHeight = 600;
constexpr double CommandTop = 4560;
constexpr double CountersTop = CommandTop + CommandHeight + 2 * TrayMargin;
constexpr double CountersHeight = 330;
constexpr double Height = CountersTop + CountersHeight + Margin / 2;

/// In the middle of the screen.
ui::TwipRect centred(double top, double width, double height)
{
    return {(Width - width) / 2, top, width, height};
}

/// One of several things of the same size side by side, in the middle of the screen.
ui::TwipRect inRow(int index, int count, double top, double width, double height)
{
    constexpr double Gap = 120;
    const double all = count * width + (count - 1) * Gap;
    return {(Width - all) / 2 + index * (width + Gap), top, width, height};
}

constexpr ui::look::Font NumberFont{Family::CourierNew, 72, true};
constexpr ui::look::Font AnswerFont{Family::CourierNew, 30, true};

} // namespace

FrmMultidivi::FrmMultidivi(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Múltiplos y divisores"_s, Width, Height)
{
    makeBoxes();
    makeCommands(inOrder([](int position) {
        return inRow(position, 4, CommandTop, CommandWidth, CommandHeight);
    }));
}

void FrmMultidivi::makeBoxes()
{
    Text1 = displayMemo(u"Text1"_s, centred(180, FullWidth, 800), ui::look::Instruction,
        u"Instrucción"_s, u"Calcula y escribe 3 múltiplos del número que se indica"_s);
    Text1->document()->setDefaultTextOption(QTextOption(Qt::AlignHCenter));
    Text1->setToolTip(u"No debes introducir el mismo número indicado"_s);

    Text2 =
        displayBox(u"Text2"_s, centred(1040, FullWidth, 1560), NumberFont, u"Número indicado"_s);
    Text2->setAlignment(Qt::AlignCenter);

    for (int i = 0; i < MultiplesDivisors::Answers; ++i) {
        ui::TextBox* box = entryBox(u"Text3(%1)"_s.arg(i),
            inRow(i, MultiplesDivisors::Answers, AnswerTop, AnswerWidth, AnswerHeight),
            AnswerFont, u"Respuesta %1"_s.arg(i + 1));
        box->setAlignment(Qt::AlignCenter);
        enterChecks(box);
        core::at(Text3, i) = box;
    }

    TBMensajes = verdictBox(u"TBMensajes"_s,
        centred(AnswerTop + AnswerHeight + TrayMargin / 2, VerdictWidth, 640), u"Comprobación"_s);
    TBMensajes->setJudged({Text3.begin(), Text3.end()});
    // Nothing is counted here, and the line stays as it is: meant.
    countersBox(u"TbResultados"_s, {Margin, CountersTop, FullWidth, CountersHeight},
        u"Ejercicios: 0; Errores: 0"_s);
}

void FrmMultidivi::Form_Load()
{
    core::seedBySecondsOfDay(screens().random(), screens().clock());
    newExercise();
}

void FrmMultidivi::newExercise()
{
    clearAnswer();
    m_model.newExercise();
    TBMensajes->retire();
    Text1->setPlainText(m_model.instruction());
    Text2->setText(QString::number(m_model.number()));
    sayExercise();
}

void FrmMultidivi::check()
{
    MultiplesDivisors::Answer answers{};
    std::transform(Text3.begin(), Text3.end(), answers.begin(),
        [](const ui::TextBox* box) { return core::readNumber(box->text()); });
    const auto verdict = m_model.judge(answers);
    if (verdict == shell::Verdict::NotJudged) {
        ui::MessageBox::show(*this, u"Los datos introducidos no son válidos"_s, u"error"_s);
        return;
    }
    showVerdict(*TBMensajes, m_model.verdict());
    if (verdict == shell::Verdict::Right) {
        Command2[0]->setFocus();
    } else {
        edgeWrongAnswers();
        ui::TextBox* wrong = core::at(Text3, m_model.wrongAnswers().front());
        wrong->setFocus();
        wrong->selectAll();
    }
}

/// Of a wrong verdict the edges tell which answers are meant.
void FrmMultidivi::edgeWrongAnswers()
{
    const std::vector<int>& wrong = m_model.wrongAnswers();
    for (std::size_t i = 0; i < Text3.size(); ++i) {
        if (std::find(wrong.begin(), wrong.end(), static_cast<int>(i)) == wrong.end())
            Text3.at(i)->setEdge({});
    }
}

void FrmMultidivi::nextExercise()
{
    newExercise();
}

void FrmMultidivi::clearAnswer()
{
    for (ui::TextBox* box : Text3)
        box->clear();
    Text3[0]->setFocus();
}

void FrmMultidivi::showSolution()
{
    const auto solution = m_model.showSolution();
    for (std::size_t i = 0; i < solution.size(); ++i)
        Text3.at(i)->setText(QString::number(solution.at(i)));
    say(m_model.spokenSolution());
}

} // namespace written
