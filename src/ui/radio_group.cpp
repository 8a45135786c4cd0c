#include "ui/radio_group.h"

#include <QAccessibleWidget>

namespace ui {

namespace {

// A button is labelled by the box that is its parent: readers say that label before the button,
// after they have said the caption of the box that the focus has come into. Those that come with
// the newer toolkit look for the label farther up too, but not beyond a list.
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0) && defined(Q_OS_UNIX)
constexpr auto GroupRole = QAccessible::List;
#else
constexpr auto GroupRole = QAccessible::Client;
#endif

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* group = dynamic_cast<RadioGroup*>(object);
    return group != nullptr ? new QAccessibleWidget(group, GroupRole) : nullptr;
}

} // namespace

RadioGroup::RadioGroup(QWidget* box)
    : QWidget(box)
{
    QAccessible::installFactory(makeAccessible); // a second time does nothing
}

} // namespace ui
