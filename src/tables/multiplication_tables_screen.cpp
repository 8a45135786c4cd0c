#include "tables/multiplication_tables_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "tables/poster.h"
#include "ui/ground.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;

namespace tables {

namespace {

// Out of the canvas to the right: what hides a control.
constexpr double BoxShift = 5500;
constexpr double CommandShift = 6000;
constexpr double HiddenFrom = 5900;

} // namespace

QString Form2::screenName()
{
    return u"Form2"_s;
}

void Form2::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    ui::Ground::pose(*this, ui::Pose::Waiting);
    MnuOpcActLis_Click(MultiplicationTables::ViewTable);
    EscribeTabla();
}

void Form2::EscribeTabla()
{
    TbTabla1->setPlainText(m_model.tableText(0));
    TbTabla2->setPlainText(m_model.tableText(1));
}

void Form2::MnuOpcTabLis_Click(int Index)
{
    MnuOpcTabLis.check(Index);
    m_model.chooseTable(Index);
    EscribeTabla();
    takeUpActivity();
}

void Form2::MnuOpcActLis_Click(int Index)
{
    m_model.chooseActivity(Index);
    placeForActivity();
    takeUpActivity();
}

void Form2::takeUpActivity()
{
    setWindowTitle(m_model.caption());
    if (m_model.isReview()) {
        newExercise();
    } else {
        TbTabla1->setFocus();
        sayExercise();
    }
}

void Form2::placeForActivity()
{
    const auto show = [this](QWidget* control, bool shown, double shift) {
        const ui::TwipRect place = placeOf(control);
        const bool isShown = place.left < HiddenFrom;
        if (shown != isShown)
            moveTo(control, place.left + (shown ? -shift : shift), place.top);
        control->setEnabled(shown);
    };
    const bool review = m_model.isReview();
    m_poster->setVisible(!review);
    for (QWidget* table : {TbTabla1, TbTabla2})
        show(table, !review, BoxShift);
    for (QWidget* box : TbOperacion)
        show(box, review, BoxShift);
    for (QWidget* command : Command2)
        show(command, review, CommandShift);
    show(Command1, review, CommandShift);
    show(Text1, review, CommandShift);
}

void Form2::EmpiezaRepaso()
{
    m_model.newExercise();
    showQuestion();
}

void Form2::showQuestion()
{
    TbOperacion[0]->setText(QString::number(m_model.table()));
    TbOperacion[2]->setText(QString::number(m_model.multiplier()));
    TbOperacion[4]->clear();
    TbOperacion[4]->setEdge({}); // a verdict that still stands is about the last question
    TbOperacion[4]->setFocus();
    showSigns();
    Command2[2]->setEnabled(false);
    sayExercise();
}

QString Form2::spokenExercise() const
{
    return m_model.isReview() ? m_model.spokenQuestion() : m_model.spokenTable();
}

void Form2::showSigns()
{
    for (std::size_t i = 0; i < 4; ++i)
        TbOperacion.at(i)->showSelected();
}

void Form2::check()
{
    const auto verdict = m_model.judge(core::readNumber(TbOperacion[4]->text()));
    if (verdict == shell::Verdict::NotJudged) {
        if (askToRepeat())
            newExercise();
        return;
    }
    showVerdict(*Text1, m_model.verdict());
    Text1->showSelected();
    if (verdict == shell::Verdict::Right) {
        SiguientePregunta();
    } else {
        TbOperacion[4]->clear();
        Command2[2]->setEnabled(true);
    }
}

void Form2::SiguientePregunta()
{
    if (!m_model.isSeriesOver())
        showQuestion();
    else if (ui::MessageBox::ask(*this, m_model.seriesReport(), u"Repaso terminado"_s))
        newExercise();
    else
        Command3_Click(0);
}

/// "&Continuar" checks here, as "&Hecho" does: meant.
void Form2::nextExercise()
{
    check();
    TbOperacion[4]->setFocus();
}

void Form2::clearAnswer()
{
    TbOperacion[4]->clear();
    TbOperacion[4]->setFocus();
}

void Form2::showSolution()
{
    TbOperacion[4]->setText(QString::number(m_model.showSolution()));
    TbOperacion[4]->selectAll();
    TbOperacion[4]->setFocus();
    say(m_model.spokenSolution());
}

void Form2::Command3_Click(int Index)
{
    m_model.clearVerdict();
    showVerdict(*Text1, m_model.verdict());
    if (Index == 0)
        MnuOpcActLis_Click(m_model.nextActivity());
    else
        MnuOpcTabLis_Click(m_model.nextTable());
}

ui::KeyResult Form2::TbOperacion_KeyDown(int KeyCode)
{
    if (KeyCode == ui::key::F5) {
        showSigns();
    } else {
        for (std::size_t i = 0; i < 4; ++i)
            TbOperacion.at(i)->deselect();
    }
    return ui::KeyResult::Pass;
}

} // namespace tables
