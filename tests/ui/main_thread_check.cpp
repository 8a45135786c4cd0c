// To the toolkit that thread is the main one which uses it first, until that thread ends: what
// the program does first must leave that to the thread that makes the application object. The
// toolkit's own test library uses it before main() is reached, so no other test can see this.

#include "ui/fonts.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <latch>

namespace {

void takeAsFailure(QtMsgType, const QMessageLogContext&, const QString& remark)
{
    std::fputs(qPrintable(remark + u'\n'), stderr);
    std::exit(EXIT_FAILURE);
}

} // namespace

int main(int argc, char* argv[])
{
    ui::look::readFontSettings().join();

    std::latch used(1);
    std::latch made(1);
    const std::jthread other([&] {
        QThread::currentThread();
        used.count_down();
        made.wait();
    });
    used.wait();
    qInstallMessageHandler(takeAsFailure);
    const QCoreApplication application(argc, argv);
    made.count_down();
    return EXIT_SUCCESS;
}
