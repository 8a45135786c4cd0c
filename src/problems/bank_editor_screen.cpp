#include "problems/bank_editor_screen.h"

#include "core/clock.h"
#include "problems/bank.h"
#include "ui/list_box.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;

namespace problems {

namespace {

const QString NewEntry = u"(Nuevo)"_s;

} // namespace

QString DLGProblemas::screenName()
{
    return u"DLGProblemas"_s;
}

void DLGProblemas::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    if (const auto bank = LeerBanco(screens().bankFolder().toRead())) {
        m_model.load(bank->lines);
        List1->clear();
        List1->addItems(bank->lines);
    }
    List1->addItem(NewEntry);
    selectEntry(m_model.newEntry());
    List1->setFocus();
}

void DLGProblemas::Form_Activate()
{
    List1->scrollToItem(List1->item(m_model.newEntry()));
}

void DLGProblemas::closeRequested()
{
    guarded([this] { CancelButton_Click(); });
}

void DLGProblemas::List1_Click()
{
    const int entry = selectedEntry();
    CBAccion[static_cast<std::size_t>(Action::Delete)]->setEnabled(entry != m_model.newEntry());
    if (!m_model.isLine(entry))
        return;
    m_form.show(m_model.show(entry));
    showWhetherSaved();
}

void DLGProblemas::Text1_Validate()
{
    TemplateFields left = m_form.fields();
    markFromStatement(left);
    m_form.showOperations(left);
}

void DLGProblemas::Text2_Validate()
{
    TemplateFields left = m_form.fields();
    markFromAnswer(left);
    m_form.showOperations(left);
}

void DLGProblemas::Command2_Click()
{
    insertComputed(Target::Statement, u". No deje espacios tras el signo &."_s);
}

void DLGProblemas::Command4_Click()
{
    insertComputed(Target::Answer, u":"_s);
}

void DLGProblemas::insertDatum(Target target)
{
    const QString title = u"Insertar dato variable"_s;
    const QString minimum = ui::InputBox::ask(*this, u"valor mínimo posible: "_s, title);
    if (minimum.isEmpty())
        return;
    const QString maximum = ui::InputBox::ask(*this, u"valor máximo posible: "_s, title);
    if (!maximum.isEmpty())
        m_form.insertAtCaret(target, u'[' + minimum + u'_' + maximum + u']');
}

void DLGProblemas::insertComputed(Target target, const QString& promptEnd)
{
    const QString prompt =
        // The two blanks before "y" are meant.
        u"Escriba la expresión a insertar. Utilice &1 para insertar el primer dato, "
        "&2 para el segundo  y así sucesivamente hasta &9"_s;
    const QString expression =
        ui::InputBox::ask(*this, prompt + promptEnd, u"Reinsertar dato variable"_s);
    if (hasLooseAmpersand(expression))
        ui::MessageBox::show(*this,
            u"Error en la expresión, no debe dejar espacios en blanco tras el signo &"_s,
            u"Error"_s, ui::Icon::Critical);
    else if (!expression.isEmpty())
        m_form.insertAtCaret(target, u'{' + expression + u'}');
}

void DLGProblemas::CBProbar_Click()
{
    const TryOut tried = tryOut(m_form.fields(), screens().random(), m_evaluator);
    ui::MessageBox::show(
        *this, tried.text, ui::MessageBox::programTitle(), ui::Icon::None, tried.notes);
}

void DLGProblemas::CBAccion_Click(int Index)
{
    switch (static_cast<Action>(Index)) {
    case Action::Store:
        storeEntry();
        break;
    case Action::Empty:
        m_form.empty();
        break;
    case Action::Delete:
        deleteEntry();
        break;
    }
}

void DLGProblemas::storeEntry()
{
    const TemplateFields stored = m_form.fields();
    const QString refusal = BankEditor::refusal(stored);
    if (!refusal.isEmpty()) {
        ui::MessageBox::show(*this, refusal);
        return;
    }
    if (selectedEntry() == BankEditor::NoEntry)
        selectEntry(0); // shows the problem that is about to be replaced
    const int entry = m_model.store(selectedEntry(), stored);
    List1->item(entry)->setText(m_model.line(entry));
    if (List1->count() == m_model.newEntry())
        List1->addItem(NewEntry);
    selectEntry(m_model.newEntry());
    showWhetherSaved();
    m_form.Text1->setFocus();
}

void DLGProblemas::deleteEntry()
{
    const int entry = selectedEntry();
    if (!m_model.isLine(entry))
        return;
    // Before the entry goes: the list would select, and so show, its neighbour.
    List1->setCurrentRow(BankEditor::NoEntry);
    delete List1->takeItem(entry);
    m_model.remove(entry);
    showWhetherSaved();
}

void DLGProblemas::OKButton_Click()
{
    GuardarBanco(screens().bankFolder().toSave(), m_model.lines());
    closeDialog();
}

void DLGProblemas::CancelButton_Click()
{
    closeDialog();
}

void DLGProblemas::closeDialog()
{
    const auto closed = onClosed;
    unload();
    if (closed)
        closed();
}

void DLGProblemas::selectEntry(int entry)
{
    List1->setCurrentRow(entry);
    List1_Click();
}

int DLGProblemas::selectedEntry() const
{
    const QModelIndexList selected = List1->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? BankEditor::NoEntry : selected.front().row();
}

void DLGProblemas::showWhetherSaved()
{
    m_unsaved->setVisible(m_model.isUnsaved(m_form.fields()));
}

} // namespace problems
