// How long the pupil waits for the next problem in a bank of the largest size, from the
// click on "&Continuar" to the problem on the screen.

#include "core/clock.h"
#include "core/random.h"
#include "problems/bank.h"
#include "problems/problem_session_screen.h"
#include "ui/application.h"
#include "ui/screen_set.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 500;

/// A bank of the largest size whose last line alone is a division.
QStringList largestBank()
{
    QStringList lines;
    for (int i = 1; i < problems::MostBankLines; ++i)
        lines << u"Una caja tiene [2_9] filas de [3_8] lápices: %1.|{&1*&2}|lápices|%2"_s.arg(i)
                     .arg(QChar(i % 2 == 0 ? u'*' : u'+'));
    lines << u"Se reparten 12 lápices entre [2_4] niños.|{12/&1}|lápices|/"_s;
    return lines;
}

void measure(ui::Screens& screens, const char* what, int mode, problems::OperationMask mask)
{
    auto& form = screens.load<problems::FormProblemas>();
    form.CargaDatos(mode, mask);
    auto* next = form.findChild<QPushButton*>(u"Command2(0)"_s);
    std::vector<double> times;
    for (int i = 0; i < Rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        next->click();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("next problem, %s: median %.2f ms, 99 of 100 within %.2f ms, longest %.2f ms\n",
        what, times[Rounds / 2], times[Rounds * 99 / 100], times.back());
}

} // namespace

int main(int argc, char* argv[])
{
    ui::ignoreDesktopSettings();
    const QApplication application(argc, argv);
    ui::setUpApplication();
    const QTemporaryDir folder;
    problems::GuardarBanco(folder.path(), largestBank());
    core::SeededRandom random;
    const core::SystemClock clock;
    ui::ScreenSet screens(random, clock, folder.path());
    screens.add<problems::FormProblemas>();
    screens.show(problems::FormProblemas::screenName());

    measure(screens, "of all", 0, 0);
    measure(screens, "of every second line", 1, 1);
    measure(screens, "of one line alone", 1, 2);
    return 0;
}
