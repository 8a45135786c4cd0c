#include "core/errors.h"
#include "support/bare_guard.h"
#include "support/standard_error.h"

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

    void aMistakeOfTheProgramIsToldInOneSentenceAndWrittenDownWithItsLine()
    {
        BareGuard guard;
        const StandardError log;
        const int line = __LINE__ + 1;
        guard.guarded([] { throw core::Defect("impossible"); });
        QCOMPARE(guard.reports, {ui::HandlerGuard::mistakeText()});
        QVERIFY2(log.text().endsWith(u"handler_guard_test.cpp:%1: impossible\n"_s.arg(line)),
            qPrintable(log.text()));
    }

    void aForeignExceptionIsWrittenDownWithTheLineOfItsHandler()
    {
        BareGuard guard;
        const core::SourceLine handler{"src/a.cpp", 7};
        const StandardError log;
        guard.guarded([] { throw std::runtime_error("no memory"); }, handler);
        guard.guarded([] { throw 7; }, handler);
        QCOMPARE(guard.reports, QStringList(2, ui::HandlerGuard::mistakeText()));
        QCOMPARE(log.text(), u"src/a.cpp:7: no memory\nsrc/a.cpp:7: unknown exception\n"_s);
    }

    void nothingIsWrittenDownOfAFailureOfTheUsersWorld()
    {
        BareGuard guard;
        const StandardError log;
        guard.guarded([] { throw core::Error(u"No hay banco."_s); });
        QCOMPARE(log.text(), QString());
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
