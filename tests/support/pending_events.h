#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

/// Lets all happen that is pending, and what waits to be destroyed go, however deep in event
/// loops the test is.
inline void runPendingEvents()
{
    constexpr int LongEnough = 1000; // milliseconds, if something were always pending
    QCoreApplication::processEvents(QEventLoop::AllEvents, LongEnough);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // A loop further out that has been told to end must look: on Windows it forgets it here.
    QAbstractEventDispatcher::instance()->wakeUp();
}
