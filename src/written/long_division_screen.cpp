#include "written/long_division_screen.h"

#include "core/clock.h"
#include "ui/screens.h"
#include "ui/squared_box.h"
#include "written/division_sheet.h"
#include "written/work_area.h"

#include <QAction>

using namespace Qt::StringLiterals;
using Mark = ui::VerdictBox::Mark;

namespace written {

void Form6::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    newExercise();
    Text1->setFocus();
}

// --- showing

void Form6::NuevaDivision()
{
    m_model.newExercise();
    showExercise();
}

void Form6::showExercise()
{
    showWork();
    Text2->setText(QString::number(m_model.Divisor()));
    Text3->clear();
    showOperation();
}

void Form6::showWork()
{
    placeOperation();
    clearWork();
}

/// The caret waits under the dividend's first digit: on its line nothing can be written.
void Form6::clearWork()
{
    Text1->setGrid(m_model.emptyWork());
    Text1->setCursorPosition(m_model.AnchoLinea().value() + 1);
}

void Form6::showOperation()
{
    Text4->setVerdict(m_model.operationText(), Mark::None);
}

// --- commands

void Form6::check()
{
    const auto verdict = m_model.judge({Text3->text(), Text1->grid()});
    if (verdict == shell::Verdict::NotJudged) {
        ui::MessageBox::show(
            *this, m_model.tooFewDecimals(), u"Atención"_s, ui::Icon::Information);
        return;
    }
    tbResultados->setText(m_model.counters().FormatoAlineado());
    showVerdict(*Text4, m_model.verdict());
    if (verdict == shell::Verdict::Right)
        Command2[0]->setFocus();
}

void Form6::nextExercise()
{
    m_model.nextExercise();
    showExercise();
    Text1->setFocus();
}

void Form6::clearAnswer()
{
    Text3->clear();
    clearWork();
    Text3->setFocus();
}

void Form6::showSolution()
{
    const WorkedDivision worked = m_model.showSolution();
    showVerdict(*Text4, m_model.verdict());
    Text3->setText(worked.quotient);
    Text1->setGrid(worked.work);
}

// --- boxes

void Form6::writeNear(const QPoint& point)
{
    Text1->writeNear(Text1->mapFromGlobal(m_sheet->mapToGlobal(point)));
}

ui::KeyResult Form6::Text1_KeyDown(int KeyCode)
{
    // Enter and Backspace do nothing on the way down either, but their press writes a blank.
    return KeyCode == ui::key::Delete ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
}

ui::KeyResult Form6::Text1_KeyPress(QChar KeyAscii)
{
    const bool blanks =
        KeyAscii == QChar(ui::key::Enter) || KeyAscii == QChar(ui::key::Backspace);
    if (!blanks && !KeyAscii.isPrint())
        return ui::KeyResult::Pass; // Escape, and the shortcuts of a text box
    Text1->overtype(KeyAscii);
    return ui::KeyResult::Swallow;
}

void Form6::Text1_GotFocus()
{
    if (!Text4->text().contains(u'÷')) {
        const bool isNamed = Text4->text() == u"Dividendo"_s;
        Text4->setVerdict(isNamed ? u" Dividendo"_s : u"Dividendo"_s, Mark::None);
    }
    Text4->showSelected();
}

void Form6::Text2_GotFocus()
{
    Text4->setVerdict(u"Divisor"_s, Mark::None);
}

void Form6::Text3_GotFocus()
{
    Text4->setVerdict(u"Cociente"_s, Mark::None);
}

// --- menu

void Form6::MnuOpcDivLis_Click(int Index)
{
    m_model.chooseDividendDigits(Index + 1);
    MnuOpcDivLis.check(Index);
}

void Form6::MnuOpcDisLis_Click(int Index)
{
    m_model.chooseDivisorDigits(Index + 1);
    MnuOpcDisLis.check(Index);
}

void Form6::MnuOpcDecLis_Click(int Index)
{
    m_model.chooseDecimals(Index);
    MnuOpcDecLis.check(Index);
    showExercise();
}

void Form6::MnuOpcRes_Click()
{
    m_model.toggleProducts();
    MnuOpcRes->setChecked(m_model.settings().RestasIntermedias);
    showExercise();
}

void Form6::MnuOpcFor_Click()
{
    m_model.toggleForcedZeros();
    MnuOpcFor->setChecked(m_model.settings().ForzarCeros);
    showExercise();
}

void Form6::IntroduceDividendo()
{
    if (!m_model.typeDividend(ui::InputBox::ask(*this, QString(), u"Introducir dividendo"_s)))
        return;
    showWork();
    MnuOpcDivLis.check(m_model.settings().CifrasDividendo.value() - 1);
    showOperation();
}

void Form6::IntroduceDivisor()
{
    if (!m_model.typeDivisor(ui::InputBox::ask(*this, QString(), u"Introducir divisor"_s)))
        return;
    Text2->setText(QString::number(m_model.Divisor()));
    MnuOpcDisLis.check(m_model.settings().CifrasDivisor.value() - 1);
    showOperation();
}

} // namespace written
