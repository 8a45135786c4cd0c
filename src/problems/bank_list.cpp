#include "problems/bank_list.h"

#include "problems/bank_editor.h"
#include "problems/template_form.h"
#include "ui/control_factory.h"
#include "ui/list_box.h"

using namespace Qt::StringLiterals;

namespace problems {

namespace {

constexpr ui::look::Font ListFont{ui::look::Family::Andika, 14};

const QString NewEntry = u"(Nuevo)"_s;

ui::TwipRect below(const ui::TwipRect& place, double height)
{
    return {place.left, place.top + height, place.width, place.height - height};
}

} // namespace

BankList::BankList(ui::ControlFactory& controls, const ui::TwipRect& place)
    : List1(controls.add(new ui::ListBox(controls.canvas(), ui::ListBox::Start::Flush),
        u"List1"_s, below(place, TemplateForm::LabelStep), ListFont))
{
    List1->setAccessibleName(u"Problemas disponibles"_s);
    controls.label(u"Label4"_s, u"Problemas &disponibles"_s,
        {place.left, place.top, place.width, TemplateForm::LabelHeight}, ui::look::Instruction,
        List1);
}

void BankList::fill(const QStringList& lines)
{
    List1->clear();
    List1->addItems(lines);
    List1->addItem(NewEntry);
}

int BankList::newEntry() const
{
    return List1->count() - 1;
}

void BankList::write(int entry, const QString& line)
{
    if (entry == newEntry())
        List1->addItem(NewEntry);
    List1->item(entry)->setText(line);
}

void BankList::remove(int entry)
{
    // Before the entry goes: the list would select, and so show, its neighbour.
    List1->setCurrentRow(BankEditor::NoEntry);
    delete List1->takeItem(entry);
}

void BankList::select(int entry)
{
    List1->setCurrentRow(entry);
}

int BankList::selected() const
{
    const QModelIndexList selected = List1->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? BankEditor::NoEntry : selected.front().row();
}

void BankList::scrollToNewEntry()
{
    List1->scrollToItem(List1->item(newEntry()));
}

} // namespace problems
