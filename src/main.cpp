#include "activities.h"
#include "core/clock.h"
#include "core/random.h"
#include "core/system.h"
#include "shell/main_menu_screen.h"
#include "shell/pictograms.h"
#include "ui/application.h"
#include "ui/desktop_contrast.h"
#include "ui/fonts.h"
#include "ui/screen_set.h"

#include <QApplication>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    core::shareTwoHeaps();
    ui::ignoreDesktopSettings();
    std::jthread fontSettings = ui::look::readFontSettings();
    int nameAlone = std::min(argc, 1); // the toolkit's own options are not the program's
    QApplication application(nameAlone, argv);
    const std::jthread fonts = ui::look::readFontList(std::move(fontSettings));
    // Of two cores the thread that asks the desktop's bus is to get one at once.
    shell::PictogramsAhead pictograms(
        shell::Form1::pictogramSide(*QGuiApplication::primaryScreen()), QThread::IdlePriority);
    ui::setUpApplication();
    QApplication::setDesktopFileName(u"org.pizarrin.Pizarrin"_s);

    core::SeededRandom random;
    const core::SystemClock clock;
    ui::ScreenSet screens(random, clock, QCoreApplication::applicationDirPath() + u"/Recursos"_s,
        core::commonBankFolder());
    addScreens(screens, &pictograms);
    screens.show(shell::Form1::screenName());
    ui::followDesktopContrast();
    return QApplication::exec();
}
