// From the click on a menu button to the painted screen, for every activity.
#include "activities.h"
#include "core/clock.h"
#include "core/random.h"
#include "ui/application.h"
#include "ui/screen.h"
#include "ui/screen_set.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 5;

/// Sees the first paint event of any window but the menu.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(const QWidget* menu)
        : m_menu(menu)
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = qobject_cast<const QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget != nullptr && widget->window() != m_menu)
            painted = true;
        return false;
    }
    bool painted = false;

private:
    const QWidget* m_menu;
};

void settle()
{
    QElapsedTimer rest;
    rest.start();
    while (rest.elapsed() < 100)
        QApplication::processEvents();
}

double open(ui::Screens& screens, QPushButton& button, PaintWatch& watch)
{
    watch.painted = false;
    QElapsedTimer timer;
    timer.start();
    button.click();
    while (!watch.painted)
        QApplication::processEvents();
    QApplication::processEvents(); // what else the first frame paints
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    settle();
    screens.unload(u"DlgCarrera"_s);
    return milliseconds;
}

/// Prints how long the activity of a menu button takes to open.
void measure(ui::Screens& screens, QPushButton& button, const QString& screen, PaintWatch& watch)
{
    double longest = 0;
    double first = 0;
    for (int round = 0; round < Rounds; ++round) {
        const double taken = open(screens, button, watch);
        first = round == 0 ? taken : first;
        longest = std::max(longest, taken);
        screens.unload(screen);
        settle();
    }
    std::printf("%-14s first %6.1f ms, longest of %d %6.1f ms\n", qPrintable(screen), first,
        Rounds, longest);
}

} // namespace

int main(int argc, char* argv[])
{
    ui::ignoreDesktopSettings();
    QApplication application(argc, argv);
    ui::setUpApplication();
    core::SeededRandom random;
    const core::SystemClock clock;
    ui::ScreenSet screens(random, clock, QString::fromUtf8(PIZARRIN_RESOURCES));
    addScreens(screens);
    screens.show(u"Form1"_s);
    settle();
    const ui::Screen& menu = *screens.loaded(u"Form1"_s);
    PaintWatch watch(&menu);
    const auto entries = activities();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        auto* button = menu.findChild<QPushButton*>(u"Command1(%1)"_s.arg(i));
        measure(screens, *button, entries.at(i).screen, watch);
    }
    return 0;
}
