#include "ui/signal_handlers.h"

#include "core/errors.h"
#include "support/bare_guard.h"
#include "support/standard_error.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// A part of a window with handlers of its own.
class Part : public QObject, private ui::SignalHandlers {
public:
    explicit Part(ui::HandlerGuard& guard)
        : SignalHandlers(guard, static_cast<QObject&>(*this))
    {
    }

    using SignalHandlers::on;
    using SignalHandlers::onList;

    void take(int value) { taken << value; }
    void takeTwice() { taken << 2 << 2; }

    QList<int> taken;
};

} // namespace

class SignalHandlersTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        guard = std::make_unique<BareGuard>();
        part = std::make_unique<Part>(*guard);
        action = std::make_unique<QAction>();
    }
    void cleanup()
    {
        part.reset();
        guard.reset();
    }

    void aMemberIsHandedWhatTheSignalHas()
    {
        QSignalMapper mapper;
        mapper.setMapping(action.get(), 7);
        part->on(&mapper, &QSignalMapper::mappedInt, &Part::take);
        mapper.map(action.get());
        QCOMPARE(part->taken, {7});
    }

    void aMemberMayTakeNothing()
    {
        part->on(action.get(), &QAction::changed, &Part::takeTwice);
        action->setText(u"a"_s);
        QCOMPARE(part->taken, (QList<int>{2, 2}));
    }

    void anElementOfAnArrayTellsItsIndex()
    {
        part->on(action.get(), &QAction::triggered, &Part::take, 3);
        action->trigger();
        QCOMPARE(part->taken, {3});
    }

    void everyItemOfAListTellsItsIndex()
    {
        const ui::MenuList list({new QAction(action.get()), new QAction(action.get())});
        part->onList(list, &Part::take);
        list.at(1)->trigger();
        list.at(0)->trigger();
        QCOMPARE(part->taken, (QList<int>{1, 0}));
    }

    void aFailedHandlerIsReported()
    {
        part->on(action.get(), &QAction::triggered, [] { throw core::Error(u"No."_s); });
        action->trigger();
        QCOMPARE(guard->reports, {u"No."_s});
    }

    void aMistakeIsWrittenDownWithTheLineThatConnects()
    {
        const StandardError log;
        const int line = __LINE__ + 1;
        part->on(action.get(), &QAction::triggered, [] { throw 7; });
        action->trigger();
        QVERIFY2(log.text().contains(u"signal_handlers_test.cpp:%1: "_s.arg(line)),
            qPrintable(log.text()));
    }

    void nothingStartsBehindAShutGuard()
    {
        part->on(action.get(), &QAction::triggered, &Part::take, 3);
        guard->shut();
        action->trigger();
        QCOMPARE(part->taken, {});
    }

    void aTimersHandlerIsATick()
    {
        QTimer timer;
        QList<bool> ticks;
        const auto note = [&] { ticks << guard->isInTick(); };
        part->on(&timer, &QTimer::timeout, note);
        part->on(action.get(), &QAction::triggered, note);
        QMetaObject::invokeMethod(&timer, "timeout", Qt::DirectConnection);
        action->trigger();
        QCOMPARE(ticks, (QList<bool>{true, false}));
    }

    void theHandlersEndWithTheirOwner()
    {
        int times = 0;
        part->on(action.get(), &QAction::triggered, [&] { ++times; });
        part.reset();
        action->trigger();
        QCOMPARE(times, 0);
    }

private:
    std::unique_ptr<BareGuard> guard;
    std::unique_ptr<Part> part;
    std::unique_ptr<QAction> action;
};

QTEST_MAIN(SignalHandlersTest)
#include "signal_handlers_test.moc"
