#include "ui/application.h"

#include "ui/blocked_windows.h"
#include "ui/held_keys.h"
#include "ui/key_order.h"
#include "ui/look.h"
#include "ui/style.h"

#include <QAccessible>
#include <QApplication>
#include <QResource>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr int IconSide = 64; // pixels of the file

/// Not as a PNG file: the toolkit would load what reads all its other kinds of picture first.
QIcon windowIcon()
{
    const QResource pixels(u":/pizarrin.rgba"_s);
    const QImage image(pixels.data(), IconSide, IconSide, QImage::Format_RGBA8888);
    return QIcon(QPixmap::fromImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied)));
}

} // namespace

void ignoreDesktopSettings()
{
    QApplication::setDesktopSettingsAware(false);
    QApplication::setAttribute(Qt::AA_DontShowIconsInMenus); // some desktops have them
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar); // some desktops show it elsewhere
}

void setUpApplication()
{
    new KeyOrder(qApp); // before the toolkit begins to show keys to a reader
    QAccessible::isActive(); // waits for the desktop's bus, while the fonts are read beside it
    QApplication::setStyle(new Style);
    look::setContrast(look::Contrast::Usual);
    QApplication::setFont(look::scaled(look::Instruction, 1));
    QApplication::setWindowIcon(windowIcon());
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
