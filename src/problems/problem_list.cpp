#include "problems/problem_list.h"

#include <QStyledItemDelegate>

namespace problems {

namespace {

constexpr double CornerMargin = 3; // pixels at factor 1; keeps the lines off the round corners

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

void ProblemList::setFactor(double factor)
{
    const int corner = qRound(CornerMargin * factor);
    setViewportMargins(corner, corner, corner, corner);
}

QItemSelectionModel::SelectionFlags ProblemList::selectionCommand(
    const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

} // namespace problems
