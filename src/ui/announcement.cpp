#include "ui/announcement.h"

#include <QAccessible>
#include <QWidget>

namespace ui {

void announce(QWidget& control, const QString& text)
{
    QAccessibleEvent alert(&control, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // An alert does not reach every desktop's screen reader; this does.
    QAccessibleAnnouncementEvent spoken(&control, text);
    QAccessible::updateAccessibility(&spoken);
#else
    Q_UNUSED(text)
#endif
}

} // namespace ui
