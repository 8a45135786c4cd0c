#include "ui/settings_portal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

const QString Service = u"org.freedesktop.portal.Desktop"_s;
const QString Path = u"/org/freedesktop/portal/desktop"_s;
const QString Interface = u"org.freedesktop.portal.Settings"_s;

// The desktops' common group, and the one of desktops that have no such key in it yet.
const QString Common = u"org.freedesktop.appearance"_s;
const QString CommonKey = u"contrast"_s;
const QString Gnome = u"org.gnome.desktop.a11y.interface"_s;
const QString GnomeKey = u"high-contrast"_s;

} // namespace

SettingsPortal::SettingsPortal(QObject* parent, std::function<void(bool)> asked)
    : QObject(parent)
    , m_asked(std::move(asked))
{
    qDBusRegisterMetaType<Settings>();
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(Service, Path, Interface, u"SettingChanged"_s, this,
        SLOT(changed(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(Service, Path, Interface, u"ReadAll"_s);
    question << QStringList{Common, Gnome};
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answered(*answer);
        answer->deleteLater();
    });
}

bool SettingsPortal::asksForHighContrast(const Settings& settings)
{
    return settings.value(Common).value(CommonKey).toUInt() == 1
        || settings.value(Gnome).value(GnomeKey).toBool();
}

void SettingsPortal::answered(const QDBusPendingCallWatcher& answer)
{
    const QDBusPendingReply<Settings> reply = answer;
    if (reply.isError())
        return;
    m_settings = reply.value();
    m_asked(asksForHighContrast(m_settings));
}

void SettingsPortal::changed(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (!(group == Common && key == CommonKey) && !(group == Gnome && key == GnomeKey))
        return;
    m_settings[group][key] = value.variant();
    m_asked(asksForHighContrast(m_settings));
}

} // namespace ui
