#include "tables/multiplication_tables_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "ui/announcement.h"
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
    MnuOpcActLis_Click(0);
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
    if (m_model.isReview())
        EmpiezaRepaso();
    else
        TbTabla1->setFocus();
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
    for (QWidget* table : {TbTabla1, TbTabla2})
        show(table, !review, BoxShift);
    for (QWidget* box : TbOperación)
        show(box, review, BoxShift);
    for (QWidget* command : Command2)
        show(command, review, CommandShift);
    show(Command1, review, CommandShift);
    show(Text1, review, CommandShift);
}

void Form2::EmpiezaRepaso()
{
    m_model.EmpiezaRepaso();
    showQuestion();
}

void Form2::showQuestion()
{
    TbOperación[0]->setText(QString::number(m_model.table()));
    TbOperación[2]->setText(QString::number(m_model.multiplier()));
    TbOperación[4]->clear();
    TbOperación[4]->setFocus();
    showSigns();
    Command2[2]->setEnabled(false);
    ui::announce(*TbOperación[2], u"%1 × %2"_s.arg(m_model.table()).arg(m_model.multiplier()));
}

void Form2::showSigns()
{
    for (std::size_t i = 0; i < 4; ++i)
        TbOperación.at(i)->showSelected();
}

void Form2::Command1_Click()
{
    using Verdict = MultiplicationTables::Verdict;
    using Mark = ui::VerdictBox::Mark;
    const Verdict verdict = m_model.check(core::readNumber(TbOperación[4]->text()));
    if (verdict == Verdict::AlreadyOver) {
        if (askToRepeat())
            EmpiezaRepaso();
        return;
    }
    if (verdict == Verdict::Wrong) {
        Text1->setVerdict(u"resultado incorrecto "_s, Mark::Wrong);
        TbOperación[4]->clear();
        Command2[2]->setEnabled(true);
    } else {
        Text1->setVerdict(u"Resultado correcto"_s, Mark::Right);
    }
    Text1->showSelected();
    if (verdict != Verdict::Wrong)
        SiguientePregunta(verdict == Verdict::SeriesOver);
}

void Form2::SiguientePregunta(bool seriesOver)
{
    if (!seriesOver) {
        showQuestion();
        return;
    }
    const bool again = ui::MessageBox::ask(*this,
        u"Has cometido %1 errores. ¿Deseas volver a realizar esta actividad?"_s.arg(
            m_model.seriesErrors()),
        u"Repaso terminado"_s);
    if (again)
        EmpiezaRepaso();
    else
        Command3_Click(0);
}

void Form2::Command2_Click(int Index)
{
    switch (Index) {
    case 0:
        Command1_Click();
        break;
    case 1:
        TbOperación[4]->clear();
        break;
    default:
        TbOperación[4]->setText(QString::number(m_model.product()));
        TbOperación[4]->selectAll();
        break;
    }
    TbOperación[4]->setFocus();
}

void Form2::Command3_Click(int Index)
{
    Text1->setVerdict({}, ui::VerdictBox::Mark::None);
    if (Index == 0)
        MnuOpcActLis_Click(m_model.nextActivity());
    else
        MnuOpcTabLis_Click(m_model.nextTable());
}

ui::KeyResult Form2::TbOperación_KeyDown(int KeyCode)
{
    if (KeyCode == ui::key::F5) {
        showSigns();
    } else {
        for (std::size_t i = 0; i < 4; ++i)
            TbOperación.at(i)->deselect();
    }
    return ui::KeyResult::Pass;
}

} // namespace tables
