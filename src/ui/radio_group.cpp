#include "ui/radio_group.h"

#include "core/system.h"

#include <QAccessibleWidget>

namespace ui {

namespace {

// Readers that come with the newer toolkit look for the caption farther up too, not beyond a
// list.
QAccessible::Role groupRole()
{
    const bool farther = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0) && core::readersUseAtSpi();
    return farther ? QAccessible::List : QAccessible::Client;
}

/// Without what the toolkit gives all that stands in a group box: its caption as a name and as
/// a label. Readers say the label of a button, after the caption of the box around it.
class RadioGroupAccessible final : public QAccessibleWidget {
public:
    explicit RadioGroupAccessible(RadioGroup* group)
        : QAccessibleWidget(group, groupRole())
    {
    }

    QString text(QAccessible::Text) const override { return {}; }
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation) const override
    {
        return {};
    }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* group = dynamic_cast<RadioGroup*>(object);
    return group != nullptr ? new RadioGroupAccessible(group) : nullptr;
}

} // namespace

RadioGroup::RadioGroup(QWidget* box)
{
    QAccessible::installFactory(makeAccessible); // a second time does nothing
    setParent(box); // last: newer toolkits ask for what is above as soon as there is a parent
}

} // namespace ui
