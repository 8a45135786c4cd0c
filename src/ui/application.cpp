#include "ui/application.h"

#include "ui/blocked_windows.h"
#include "ui/held_keys.h"
#include "ui/look.h"
#include "ui/style.h"

#include <QApplication>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace ui {

void ignoreDesktopSettings()
{
    QApplication::setDesktopSettingsAware(false);
    QApplication::setAttribute(Qt::AA_DontShowIconsInMenus); // some desktops have them
}

void setUpApplication()
{
    QApplication::setStyle(new Style);
    look::setContrast(look::Contrast::Usual);
    QApplication::setFont(look::scaled(look::Instruction, 1));
    QApplication::setQuitOnLastWindowClosed(false);
    new HeldKeys(qApp);
    new BlockedWindows(qApp);
}

void installToolkitTexts()
{
    const QString name = u"toolkit texts"_s;
    if (qApp->findChild<QTranslator*>(name) != nullptr)
        return;
    auto* spanish = new QTranslator(qApp);
    spanish->setObjectName(name);
    if (spanish->load(u":/toolkit_es.qm"_s))
        QApplication::installTranslator(spanish);
}

} // namespace ui
