#include "written/multiples_divisors_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "ui/announcement.h"
#include "ui/screens.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

constexpr double Width = 10500;
constexpr double Height = 6060;
constexpr double ColumnWidth = 3180;
constexpr double ColumnPitch = 3420;

constexpr ui::look::Font NumberFont{Family::CourierNew, 72, true};
constexpr ui::look::Font AnswerFont{Family::CourierNew, 30, true};

} // namespace

QString FrmMultidivi::screenName()
{
    return u"FrmMultidivi"_s;
}

FrmMultidivi::FrmMultidivi(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Múltiplos y divisores"_s, Width, Height)
{
    makeBoxes();
    const auto column = [](int index, double top) {
        return ui::TwipRect{240 + index * ColumnPitch, top, ColumnWidth, 600};
    };
    makeCommands({.check = column(1, 3900),
        .next = column(1, 4740),
        .clear = column(0, 4740),
        .solution = column(2, 4740)});
}

void FrmMultidivi::makeBoxes()
{
    Text1 = displayMemo(u"Text1"_s, {240, 240, 10020, 660}, ui::look::Instruction,
        u"Instrucción"_s, u"Calcula y escribe 3 múltiplos del número que se indica"_s);
    Text1->setToolTip(u"No debes introducir el mismo número indicado"_s);

    Text2 = displayBox(u"Text2"_s, {240, 1020, 10020, 1440}, NumberFont, u"Número indicado"_s);
    Text2->setAlignment(Qt::AlignCenter);

    for (int i = 0; i < MultiplesDivisors::Answers; ++i) {
        ui::TextBox* box =
            entryBox(u"Text3(%1)"_s.arg(i), {240 + i * ColumnPitch, 2700, ColumnWidth, 900},
                AnswerFont, u"Respuesta %1"_s.arg(i + 1));
        box->setAlignment(Qt::AlignCenter);
        enterChecks(box);
        Text3.at(static_cast<std::size_t>(i)) = box;
    }

    TBMensajes = verdictBox(
        u"TBMensajes"_s, {240 + 2 * ColumnPitch, 3900, ColumnWidth, 600}, u"Comprobación"_s);
    displayBox(u"TbResultados"_s, {240, 5520, 10020, 330}, ui::look::Counters, u"Ejercicios y errores"_s,
        u"Ejercicios: 0; Errores: 0"_s);
}

void FrmMultidivi::Form_Load()
{
    core::seedByTimer(screens().random(), screens().clock());
    newExercise();
}

void FrmMultidivi::newExercise()
{
    clearAnswer();
    m_model.newExercise();
    TBMensajes->retire();
    Text1->setPlainText(m_model.instruction());
    Text2->setText(QString::number(m_model.number()));
    ui::announce(*Text2, m_model.instruction() + u' ' + Text2->text());
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
        ui::TextBox* wrong = Text3.at(static_cast<std::size_t>(m_model.wrongAnswer()));
        wrong->setFocus();
        wrong->selectAll();
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
}

} // namespace written
