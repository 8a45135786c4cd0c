#include "problems/problem_list.h"

#include <QStyledItemDelegate>

namespace problems {

namespace {

/// Lines of one height and any width: none has to be measured, however many there are.
class LineDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {0, option.fontMetrics.height() * 3 / 2};
    }
};

} // namespace

ProblemList::ProblemList(QWidget* parent)
    : QListWidget(parent)
{
    setItemDelegate(new LineDelegate(this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QItemSelectionModel::SelectionFlags ProblemList::selectionCommand(
    const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

} // namespace problems
