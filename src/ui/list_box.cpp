#include "ui/list_box.h"

#include "ui/look.h"

#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr int PictureGap = 4; // between the pictures of two lines, in pixels at factor 1

/// Lines of one height and any width: none has to be measured, however many there are.
class LineDelegate final : public QStyledItemDelegate {
public:
    LineDelegate(ListBox* list, ListBox::Start start)
        : QStyledItemDelegate(list)
        , m_list(list)
        , m_start(start)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {0, m_list->lineHeight(option.fontMetrics.height() * 3 / 2)};
    }
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (m_start == ListBox::Start::Indented)
            option->text.prepend(QChar::Nbsp); // room at the left, at every factor
    }
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override
    {
        if (event->type() != QEvent::ToolTip || !index.isValid())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        // As rich text, for only that is wrapped.
        QToolTip::showText(event->globalPos(),
            u"<p>%1</p>"_s.arg(index.data().toString().toHtmlEscaped()), view);
        return true;
    }

private:
    const ListBox* m_list;
    ListBox::Start m_start;
};

} // namespace

ListBox::ListBox(QWidget* parent, Start start)
    : QListWidget(parent)
{
    setItemDelegate(new LineDelegate(this, start));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListBox::setPictureSize(QSize size)
{
    m_pictureSize = size;
    setFactor(factor());
}

int ListBox::lineHeight(int caption) const
{
    if (m_pictureSize.isEmpty())
        return caption;
    return std::max(caption, qRound((m_pictureSize.height() + PictureGap) * factor()));
}

void ListBox::setFactor(double factor)
{
    Scalable::setFactor(factor);
    if (!m_pictureSize.isEmpty())
        setIconSize(m_pictureSize * factor);
    const int corner = qRound(look::CornerMargin * factor);
    setViewportMargins(corner, corner, corner, corner);
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(
    const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

} // namespace ui
