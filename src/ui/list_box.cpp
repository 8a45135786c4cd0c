#include "ui/list_box.h"

namespace ui {

ListBox::ListBox(QWidget* parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(
    const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

} // namespace ui
