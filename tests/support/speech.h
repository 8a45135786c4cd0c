#pragma once

#include <QAccessible>
#include <QCoreApplication>

#include <utility>

// What the program has a screen reader say. Only a real desktop hands it on.

/// What has been said since the last call of heard().
inline QStringList spoken;

/// From here on, whatever is said is collected.
inline void listenToSpeech()
{
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        if (event->type() == QAccessible::Announcement)
            spoken << static_cast<QAccessibleAnnouncementEvent*>(event)->message();
#else
        const QAccessibleInterface* face = event->accessibleInterface();
        if (event->type() == QAccessible::ObjectShow && face->role() == QAccessible::Notification)
            spoken << face->text(QAccessible::Name);
#endif
    });
}

/// What has been said since the last call, and what is about to be said.
inline QStringList heard()
{
    QCoreApplication::sendPostedEvents();
    return std::exchange(spoken, {});
}
