#include "core/errors.h"
#include "support/bare_guard.h"

#include <QDialog>
#include <QtTest>

using namespace Qt::StringLiterals;

class HandlerGuardTest : public QObject {
    Q_OBJECT

private slots:
    void whatLeavesAHandlerIsReportedOnce()
    {
        BareGuard guard;
        guard.guarded([] { throw core::Error(u"No hay banco."_s); });
        QCOMPARE(guard.reports, {u"No hay banco."_s});
        QVERIFY(!guard.isRunning());
    }

    void nothingIsReportedOfAHandlerThatEndsWell()
    {
        BareGuard guard;
        bool ran = false;
        guard.guarded([&] { ran = guard.isRunning(); });
        QVERIFY(ran);
        QCOMPARE(guard.reports, QStringList());
    }

    void aReportIsNotInterruptedByAnother()
    {
        BareGuard guard;
        const auto fail = [] { throw core::Error(u"a"_s); };
        guard.whenReporting = [&] { guard.run(fail); };
        guard.guarded(fail);
        QCOMPARE(guard.reports, {u"a"_s});
        guard.whenReporting = {};
        guard.guarded(fail);
        QCOMPARE(guard.reports.size(), 2);
    }

    void noHandlerStartsWhileAnotherWaits()
    {
        BareGuard guard;
        QStringList ran;
        guard.guarded([&] {
            guard.wait(nullptr, [&] {
                guard.guarded([&] { ran << u"guarded"_s; });
                guard.run([&] { ran << u"run"_s; });
            });
            ran << u"behind"_s;
        });
        QCOMPARE(ran, (QStringList{u"run"_s, u"behind"_s}));
        guard.guarded([&] { ran << u"again"_s; });
        QCOMPARE(ran.last(), u"again"_s);
    }

    void shuttingClosesTheBoxAndEndsTheHandlerThatWaitsForIt()
    {
        BareGuard guard;
        QDialog box;
        bool wentOn = false;
        guard.guarded([&] {
            guard.wait(&box, [&] {
                box.show();
                guard.shut();
                QVERIFY(!box.isVisible());
                QCOMPARE(guard.ended, 0);
            });
            wentOn = true;
        });
        QVERIFY(!wentOn);
        QCOMPARE(guard.reports, QStringList());
        QCOMPARE(guard.ended, 1);
    }

    void theOuterBoxIsClosedWhenTheInnerOneHasGone()
    {
        BareGuard guard;
        QDialog outer;
        QDialog inner;
        guard.guarded([&] {
            guard.wait(&outer, [&] {
                outer.show();
                guard.wait(&inner, [] {});
                guard.shut();
                QVERIFY(!outer.isVisible());
            });
        });
        QCOMPARE(guard.ended, 1);
    }

    void noHandlerStartsBehindAShutGuard()
    {
        BareGuard guard;
        guard.shut();
        bool ran = false;
        guard.guarded([&] { ran = true; });
        QVERIFY(!ran);
        QVERIFY_THROWS_EXCEPTION(ui::ScreenUnloaded, guard.letEventsRun());
    }

    void anExceptionOfTheWaitComesThrough()
    {
        BareGuard guard;
        const auto failBehindTheShutGuard = [&] {
            guard.shut();
            throw core::Error(u"a"_s);
        };
        QVERIFY_THROWS_EXCEPTION(core::Error, guard.wait(nullptr, failBehindTheShutGuard));
        QCOMPARE(guard.ended, 1);
    }

    void finishingRunsAgainAsLongAsThereIsMoreToDo()
    {
        BareGuard guard;
        QList<bool> stillRunning;
        guard.whenFinishing = [&] {
            stillRunning << guard.isRunning();
            return stillRunning.size() < 3;
        };
        guard.guarded([&] { guard.run([] {}); }); // the inner one is not the last
        QCOMPARE(stillRunning, (QList<bool>{true, true, true}));
    }
};

QTEST_MAIN(HandlerGuardTest)
#include "handler_guard_test.moc"
