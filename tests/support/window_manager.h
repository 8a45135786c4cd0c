#pragma once

#include <QGuiApplication>
#include <QtTest>
#include <QWidget>
#include <QWindow>

#include <cstdio>
#include <cstdlib>

[[noreturn]] inline void giveUp(const char* what, const QString& name)
{
    std::fprintf(stderr, "%s %s\n", what, qPrintable(name));
    std::abort();
}

/// Lets a real window manager do all that it has been asked for, and the toolkit hear of it.
/// It takes one request after the other, so when it has put up a window that was asked for
/// last, all is done. That tells the toolkit the display's time too, with which it asks for
/// the focus: the display forgets a request that is older than the last change of the focus.
inline void settleWindows()
{
    if (QGuiApplication::platformName() == u"offscreen") {
        QCoreApplication::processEvents();
        return;
    }
    QWindow probe;
    probe.setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    probe.setProperty("_q_showWithoutActivating", true);
    probe.setGeometry(0, 0, 1, 1);
    probe.show();
    while (!probe.isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Whether a window has the keyboard. That it counts as active is less: a box does as soon as
/// the window behind it is active.
inline bool hasKeyboard(const QWidget& window)
{
    return window.windowHandle() != nullptr
        && QGuiApplication::focusWindow() == window.windowHandle();
}

/// Makes a window the active one; ends the test program when it does not become it.
inline void makeActive(QWidget& window)
{
    settleWindows(); // a window that closes may still hold the focus
    window.activateWindow();
    if (!QTest::qWaitFor([&] { return hasKeyboard(window); }))
        giveUp("did not become active:", window.objectName());
    settleWindows();
}
