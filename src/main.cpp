#include "activities.h"
#include "core/clock.h"
#include "core/random.h"
#include "shell/main_menu_screen.h"
#include "ui/application.h"
#include "ui/screens.h"

#include <QApplication>
#include <QIcon>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    ui::prepareApplication();
    QApplication application(argc, argv);
    ui::dress();
    QApplication::setDesktopFileName(u"org.pizarrin.Pizarrin"_s);
    QApplication::setWindowIcon(QIcon(u":/pizarrin.png"_s));

    core::SeededRandom random;
    const core::SystemClock clock;
    ui::Screens screens(random, clock, QCoreApplication::applicationDirPath() + u"/Recursos"_s);
    addScreens(screens);
    screens.show(shell::Form1::screenName());
    return QApplication::exec();
}
