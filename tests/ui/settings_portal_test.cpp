#include "ui/settings_portal.h"

#include "support/screen_bench.h"
#include "ui/desktop_contrast.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>

using namespace Qt::StringLiterals;
namespace look = ui::look;

namespace {

const QString Common = u"org.freedesktop.appearance"_s;
const QString Gnome = u"org.gnome.desktop.a11y.interface"_s;

} // namespace

/// A desktop's portal with the settings that a test gives it.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    ui::SettingsPortal::Settings settings;

public slots:
    ui::SettingsPortal::Settings ReadAll(const QStringList& groups)
    {
        emit asked(groups);
        return settings;
    }

signals:
    void asked(const QStringList& groups);
    Q_SCRIPTABLE void SettingChanged(
        const QString& group, const QString& key, const QDBusVariant& value);
};

class SettingsPortalTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        qDBusRegisterMetaType<ui::SettingsPortal::Settings>();
        portal = std::make_unique<Portal>();
        QVERIFY(bus.registerObject(u"/org/freedesktop/portal/desktop"_s, portal.get(),
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportScriptableSignals));
        QVERIFY(bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    void cleanup()
    {
        bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
        bus.unregisterObject(u"/org/freedesktop/portal/desktop"_s);
        portal.reset();
        look::setContrast(look::Contrast::Usual);
    }

    void readsWhatTheDesktopAsksFor_data()
    {
        QTest::addColumn<ui::SettingsPortal::Settings>("settings");
        QTest::addColumn<bool>("high");
        using Settings = ui::SettingsPortal::Settings;
        QTest::newRow("nothing") << Settings{} << false;
        QTest::newRow("usual") << Settings{{Common, {{u"contrast"_s, 0U}}}} << false;
        QTest::newRow("high") << Settings{{Common, {{u"contrast"_s, 1U}}}} << true;
        QTest::newRow("dark") << Settings{{Common, {{u"color-scheme"_s, 1U}}}} << false;
        QTest::newRow("GNOME's usual")
            << Settings{{Gnome, {{u"high-contrast"_s, false}}}} << false;
        QTest::newRow("GNOME's high") << Settings{{Gnome, {{u"high-contrast"_s, true}}}} << true;
    }
    void readsWhatTheDesktopAsksFor()
    {
        QFETCH(ui::SettingsPortal::Settings, settings);
        QFETCH(bool, high);
        portal->settings = settings;
        QCOMPARE(ui::SettingsPortal::asksForHighContrast(settings), high);
        QList<bool> told;
        const ui::SettingsPortal reader(nullptr, [&](bool asked) { told << asked; });
        QVERIFY(told.isEmpty()); // nobody has waited
        QTRY_COMPARE(told, QList{high});
    }

    void followsAChange()
    {
        QList<bool> told;
        const ui::SettingsPortal reader(nullptr, [&](bool asked) { told << asked; });
        QTRY_COMPARE(told, QList{false});
        emit portal->SettingChanged(Gnome, u"high-contrast"_s, QDBusVariant(true));
        QTRY_COMPARE(told, QList({false, true}));
        emit portal->SettingChanged(Common, u"color-scheme"_s, QDBusVariant(1U)); // not followed
        emit portal->SettingChanged(Gnome, u"high-contrast"_s, QDBusVariant(false));
        QTRY_COMPARE(told, QList({false, true, false}));
    }

    void theProgramTakesItOn()
    {
        portal->settings = {{Gnome, {{u"high-contrast"_s, true}}}};
        ui::followDesktopContrast();
        QTRY_COMPARE(look::paper(), QColor(Qt::white));
        emit portal->SettingChanged(Gnome, u"high-contrast"_s, QDBusVariant(false));
        QTRY_COMPARE(look::paper(), QColor(look::Paper));
    }

private:
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
    std::unique_ptr<Portal> portal;
};

PIZARRIN_SCREEN_TEST_MAIN(SettingsPortalTest)
#include "settings_portal_test.moc"
