#include "ui/list_box.h"

#include <QStyledItemDelegate>

namespace ui {

namespace {

class LineDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {0, option.fontMetrics.height() * 3 / 2};
    }
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text.prepend(QChar::Nbsp); // room at the left, at every factor
    }
};

} // namespace

ListBox::ListBox(QWidget* parent)
    : QListWidget(parent)
{
    setItemDelegate(new LineDelegate(this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(
    const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

} // namespace ui
