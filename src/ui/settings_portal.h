#pragma once

#include <QMap>
#include <QObject>
#include <QVariantMap>

#include <functional>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace ui {

/// The desktop's settings as its portal hands them out, whatever the desktop: whether it asks for
/// high contrast. No theme of the desktop is loaded for it.
class SettingsPortal final : public QObject {
    Q_OBJECT

public:
    /// Groups of settings, each with its settings and their values.
    using Settings = QMap<QString, QVariantMap>;

    /// asked is told whether high contrast is asked for: once the portal has answered, and at
    /// every change; never where there is no portal.
    SettingsPortal(QObject* parent, std::function<void(bool)> asked);

    static bool asksForHighContrast(const Settings& settings);

private:
    void answered(const QDBusPendingCallWatcher& answer);
    Q_SLOT void changed(const QString& group, const QString& key, const QDBusVariant& value);

    std::function<void(bool)> m_asked;
    Settings m_settings;
};

} // namespace ui
