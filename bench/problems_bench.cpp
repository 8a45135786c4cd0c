// What a bank of the largest size costs: reading it against converting the same file with
// iconv, instantiating its templates, opening the editor on it.

#include "core/clock.h"
#include "core/random.h"
#include "problems/bank.h"
#include "problems/bank_editor_screen.h"
#include "problems/expression.h"
#include "problems/problem_template.h"
#include "ui/application.h"
#include "ui/screen_set.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 9;

/// The median time of a few rounds, in milliseconds.
double milliseconds(const std::function<void()>& work)
{
    std::array<double, Rounds> times{};
    for (double& time : times) {
        QElapsedTimer timer;
        timer.start();
        work();
        time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times[Rounds / 2];
}

/// Writes a bank of the largest size with the lines of the starter bank, over and over.
void writeLargestBank(const QString& folder)
{
    const QStringList starter =
        problems::LeerBanco(QString::fromUtf8(PIZARRIN_RESOURCES)).value().lines;
    QStringList lines;
    while (lines.size() < problems::MostBankLines)
        lines.append(starter.at(lines.size() % starter.size()));
    problems::GuardarBanco(folder, lines);
}

void measureReading(const QString& folder)
{
    const double ours = milliseconds([&] { problems::LeerBanco(folder); });
    const QString file = folder + u"/Problemas3.dat"_s;
    const double iconv = milliseconds([&] {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(u"iconv"_s, {u"-f"_s, u"CP1252"_s, u"-t"_s, u"UTF-8"_s, file});
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("iconv does not run");
    });
    std::printf("reading %d lines (%.1f MB): %.1f ms; iconv of the file: %.1f ms (%.1f times)\n",
        problems::MostBankLines, static_cast<double>(QFile(file).size()) / 1e6, ours, iconv,
        ours / iconv);
}

void measureInstantiation(const QString& folder, core::RandomSource& random)
{
    const QStringList lines = problems::LeerBanco(folder).value().lines;
    const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
    const double all = milliseconds([&] {
        for (const QString& line : lines)
            problems::InstanciarProblema(line, random, evaluator);
    });
    std::printf("instantiating: %.0f problems a second\n",
        static_cast<double>(lines.size()) / all * 1000);
}

void measureOpening(ui::ScreenSet& screens)
{
    const QString name = problems::DLGProblemas::screenName();
    const double opening = milliseconds([&] {
        screens.load(name);
        screens.show(name);
        screens.loaded(name)->grab(); // laid out and painted
        screens.unload(name);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    std::printf("opening the editor: %.1f ms\n", opening);
}

} // namespace

int main(int argc, char* argv[])
{
    ui::ignoreDesktopSettings();
    QApplication application(argc, argv);
    ui::setUpApplication();
    const QTemporaryDir folder;
    core::SeededRandom random;
    const core::SystemClock clock;
    ui::ScreenSet screens(random, clock, folder.path());
    screens.add<problems::DLGProblemas>();

    writeLargestBank(folder.path());
    measureReading(folder.path());
    measureInstantiation(folder.path(), random);
    measureOpening(screens);
    return 0;
}
