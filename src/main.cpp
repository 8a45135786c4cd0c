#include "activities.h"
#include "core/clock.h"
#include "core/random.h"
#include "ui/application.h"
#include "ui/screens.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    ui::prepareApplication();
    QApplication application(argc, argv);
    ui::dress(application);

    core::SeededRandom random;
    const core::SystemClock clock;
    ui::Screens screens(random, clock, QCoreApplication::applicationDirPath() + u"/Recursos"_s);
    addScreens(screens);
    screens.show(shell::Form1::screenName());
    return QApplication::exec();
}
