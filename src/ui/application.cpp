#include "ui/application.h"

#include "ui/look.h"
#include "ui/style.h"

#include <QApplication>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace ui {

void prepareApplication()
{
    QApplication::setDesktopSettingsAware(false);
}

void dress(QApplication& application)
{
    QApplication::setStyle(new Style);
    QApplication::setPalette(look::palette());
    QApplication::setFont(look::scaled(look::Instruction, 1));
    QApplication::setQuitOnLastWindowClosed(false);

    auto* spanish = new QTranslator(&application);
    if (spanish->load(u":/toolkit_es.qm"_s))
        QApplication::installTranslator(spanish);
}

} // namespace ui
