#pragma once

#include "ui/application.h"

#include <QApplication>
#include <QScreen>
#include <QTemporaryFile>
#include <QtTest>

/// A description of one display, for the toolkit's offscreen platform.
inline QByteArray displayOf(const QList<QByteArray>& size)
{
    return R"({"windowFrameMargins": false, "screens": [{"name": "display", "x": 0, "y": 0,
        "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1, "width": )"
        + size.value(0) + R"(, "height": )" + size.value(1) + "}]}";
}

/// Runs a test on the display that there is, or, where the first argument is a size like
/// 1366x768, on an offscreen one of that size.
template <typename Test> int runOnDisplay(int argc, char* argv[])
{
    const bool sized = argc > 1 && QByteArray(argv[1]).contains('x') && argv[1][0] != '-';
    // In the current folder: the platform takes the colon of a drive for the end of a name.
    QTemporaryFile description(QStringLiteral("display"));
    if (sized) {
        if (!description.open()
            || description.write(displayOf(QByteArray(argv[1]).split('x'))) <= 0)
            return 1;
        description.close();
        qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" + QFileInfo(description).fileName().toUtf8());
    }
    ui::ignoreDesktopSettings();
    QApplication application(argc, argv);
    ui::setUpApplication();
    if (sized && QGuiApplication::primaryScreen()->name() != QStringLiteral("display"))
        return 1; // this platform takes no description
    QStringList arguments = QCoreApplication::arguments();
    if (sized)
        arguments.removeAt(1);
    Test test;
    return QTest::qExec(&test, arguments);
}

#define DISPLAY_TEST_MAIN(TestClass)                                                             \
    int main(int argc, char* argv[])                                                             \
    {                                                                                            \
        return runOnDisplay<TestClass>(argc, argv);                                              \
    }
