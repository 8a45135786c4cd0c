#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

/// Makes loops of events further out look whether they have been told to end: on Windows they
/// forget it when events run within one of their events, and would wait for the next message.
inline void remindOuterLoops()
{
    QAbstractEventDispatcher::instance()->wakeUp();
}

/// Lets all happen that is pending, and what waits to be destroyed go, however deep in event
/// loops the test is.
inline void runPendingEvents()
{
    constexpr int LongEnough = 1000; // milliseconds, if something were always pending
    QCoreApplication::processEvents(QEventLoop::AllEvents, LongEnough);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    remindOuterLoops();
}
