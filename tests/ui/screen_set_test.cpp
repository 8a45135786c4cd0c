#include "support/sample_screen.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

namespace {

/// A screen that writes down when it is made and unloaded.
class LoggingScreen final : public ui::Screen {
public:
    LoggingScreen(ui::Screens& screens, const QString& name, QStringList& log)
        : Screen(screens, name, name, 3000, 3000)
        , m_log(log)
    {
        m_log << u"made "_s + name;
    }

protected:
    void Form_QueryUnload() override { m_log << u"unload "_s + objectName(); }

private:
    QStringList& m_log;
};

} // namespace

class ScreenSetTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        log.clear();
        for (const QString& name : {u"A"_s, u"B"_s, u"Main"_s}) {
            bench->screens.add(name, [this, name](ui::Screens& screens) -> ui::Screen* {
                return new LoggingScreen(screens, name, log);
            });
        }
    }
    void cleanup() { bench.reset(); }

    void screenIsMadeOnFirstUseAndOnce()
    {
        QCOMPARE(log, QStringList());
        QCOMPARE(bench->screens.loaded(u"A"_s), nullptr);
        bench->screens.show(u"A"_s);
        ui::Screen* first = bench->screens.loaded(u"A"_s);
        bench->screens.show(u"A"_s);
        QCOMPARE(bench->screens.loaded(u"A"_s), first);
        QCOMPARE(log, {u"made A"_s});
    }

    void unloadDropsItAndTheNextUseMakesItAfresh()
    {
        bench->screens.show(u"A"_s);
        bench->screens.unload(u"A"_s);
        bench->screens.unload(u"A"_s); // not loaded: nothing
        bench->screens.show(u"A"_s);
        QCOMPARE(log, (QStringList{u"made A"_s, u"unload A"_s, u"made A"_s}));
    }

    void modalScreenBlocksUntilItIsClosed()
    {
        bench->screens.show(u"A"_s);
        ui::Screen& owner = *bench->screens.loaded(u"A"_s);
        bool closed = false;
        bench->screens.showModal(u"B"_s, owner, [&] { closed = true; });
        ui::Screen& modal = *bench->screens.loaded(u"B"_s);
        QVERIFY(modal.isModal());
        QCOMPARE(modal.windowHandle()->transientParent(), owner.windowHandle());
        QVERIFY(!closed);
        modal.close();
        QVERIFY(closed);
    }

    void whatWasChosenIsReadFromTheDialogThatHasClosed_data()
    {
        QTest::addColumn<bool>("closed");
        QTest::newRow("hidden") << false;
        QTest::newRow("closed, and so unloaded") << true;
    }
    void whatWasChosenIsReadFromTheDialogThatHasClosed()
    {
        QFETCH(bool, closed);
        addSample({});
        bench->screens.show(u"A"_s);
        QList<QList<int>> choices;
        bench->screens.showModal<SampleScreen>(*bench->screens.loaded(u"A"_s),
            [&](const SampleScreen& dialog) { choices << dialog.picked; });
        auto& dialog = bench->screens.load<SampleScreen>();
        QVERIFY(dialog.isModal());
        dialog.list.at(2)->trigger();
        QCOMPARE(choices, QList<QList<int>>());
        if (closed)
            dialog.close();
        else
            dialog.hide();
        QCOMPARE(choices, QList<QList<int>>{{2}});
    }

    void hiddenDialogTellsItsOwnerAndStaysLoaded()
    {
        bench->screens.show(u"A"_s);
        int closed = 0;
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s), [&] { ++closed; });
        bench->screens.loaded(u"B"_s)->hide();
        QCOMPARE(closed, 1);
        QVERIFY(bench->screens.loaded(u"B"_s));
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s), [&] { closed += 10; });
        bench->screens.loaded(u"B"_s)->hide();
        QCOMPARE(closed, 11);
    }

    void ownerHearsOfTheCloseWhenTheHandlerThatClosedHasEnded()
    {
        bench->screens.show(u"A"_s);
        QStringList order;
        bench->screens.showModal(
            u"B"_s, *bench->screens.loaded(u"A"_s), [&] { order << u"then"_s; });
        ui::Screen& dialog = *bench->screens.loaded(u"B"_s);
        dialog.guarded([&] {
            dialog.hide();
            order << u"behind hide"_s;
        });
        QCOMPARE(order, (QStringList{u"behind hide"_s, u"then"_s}));
    }

    void whoHearsOfAHiddenDialogMayOpenABox_data()
    {
        QTest::addColumn<bool>("inItsHandler");
        QTest::newRow("hidden from outside") << false;
        QTest::newRow("hidden by its own handler") << true;
    }
    void whoHearsOfAHiddenDialogMayOpenABox()
    {
        QFETCH(bool, inItsHandler);
        int told = 0;
        openDialog([&] {
            ui::MessageBox::show(*bench->screens.loaded(u"A"_s), u"hola"_s);
            ++told;
        });
        const QPointer<ui::Screen> dialog(bench->screens.loaded(u"B"_s));
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s});
        boxes.whileOpen = [&](QDialog&) { QVERIFY(!dialog->isVisible()); };
        hideDialog(*dialog, inItsHandler);
        QCOMPARE(told, 1);
        QCOMPARE(bench->screens.loaded(u"B"_s), dialog);

        openDialog([&] {
            ui::MessageBox::show(*bench->screens.loaded(u"A"_s), u"otra vez"_s);
            told += 10;
        });
        hideDialog(*dialog, inItsHandler);
        QCOMPARE(told, 11);
        QCOMPARE(boxes.texts, (QStringList{u"hola"_s, u"otra vez"_s}));
    }

    void dialogUnloadedBehindTheBoxOfItsHidingOutlivesTheHiding_data()
    {
        whoHearsOfAHiddenDialogMayOpenABox_data();
    }
    void dialogUnloadedBehindTheBoxOfItsHidingOutlivesTheHiding()
    {
        QFETCH(bool, inItsHandler);
        bool wentOn = false;
        openDialog([&] {
            ui::MessageBox::show(*bench->screens.loaded(u"A"_s), u"hola"_s);
            wentOn = true;
        });
        const QPointer<ui::Screen> dialog(bench->screens.loaded(u"B"_s));
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            bench->screens.unload(u"B"_s);
            runPendingEvents(); // lets what is to be destroyed go
            QVERIFY(dialog);
        };
        hideDialog(*dialog, inItsHandler);
        QVERIFY(wentOn);
        QTRY_VERIFY(!dialog);
    }

    void ownerClosedBehindTheBoxOfAHiddenDialogEndsIt()
    {
        bool wentOn = false;
        openDialog([&] {
            ui::MessageBox::show(*bench->screens.loaded(u"A"_s), u"hola"_s);
            wentOn = true;
        });
        const QPointer<ui::Screen> owner(bench->screens.loaded(u"A"_s));
        BoxAnswerer boxes(u"none"_s);
        boxes.whileOpen = [&](QDialog&) { owner->close(); };
        bench->screens.loaded(u"B"_s)->hide();
        QVERIFY(!wentOn);
        QTRY_VERIFY(!owner);
        QVERIFY(bench->screens.loaded(u"B"_s));
    }

    void unloadedOwnerHearsNothing()
    {
        bench->screens.show(u"A"_s);
        bool closed = false;
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s), [&] { closed = true; });
        bench->screens.unload(u"A"_s);
        bench->screens.unload(u"B"_s);
        QVERIFY(!closed);
    }

    void failedLoadLeavesNothingBehind()
    {
        bench->screens.add(u"Sample"_s, [](ui::Screens& screens) -> ui::Screen* {
            auto* screen = new SampleScreen(screens);
            screen->whenLoading = [] { throw core::Error(u"No hay banco."_s); };
            return screen;
        });
        QVERIFY_THROWS_EXCEPTION(core::Error, bench->screens.show(u"Sample"_s));
        QCOMPARE(bench->screens.loaded(u"Sample"_s), nullptr);
    }

    void screenThatIsLoadingIsNotMadeTwice()
    {
        addSample([this](SampleScreen& screen) {
            QMetaObject::invokeMethod(
                this, [this] { bench->screens.show(u"Sample"_s); }, Qt::QueuedConnection);
            screen.letEventsRun();
            QVERIFY(!screen.isVisible());
        });
        bench->screens.show(u"Sample"_s);
        QCOMPARE(samples, 1);
        QVERIFY(bench->screens.loaded(u"Sample"_s)->isVisible());
    }

    void screenUnloadedWhileItLoadsIsGone()
    {
        QPointer<ui::Screen> sample;
        addSample([&](SampleScreen& screen) {
            sample = &screen;
            QMetaObject::invokeMethod(
                this, [this] { bench->screens.unload(u"Sample"_s); }, Qt::QueuedConnection);
            screen.letEventsRun();
        });
        QVERIFY_THROWS_EXCEPTION(ui::ScreenUnloaded, bench->screens.show(u"Sample"_s));
        QCOMPARE(bench->screens.loaded(u"Sample"_s), nullptr);
        QVERIFY(!sample);
    }

    void mainScreenTakesTheOthersWithIt()
    {
        bench->screens.setMainScreen(u"Main"_s);
        for (const QString& name : {u"Main"_s, u"A"_s, u"B"_s})
            bench->screens.show(name);
        log.clear();
        QTimer::singleShot(0, [&] { bench->screens.loaded(u"Main"_s)->close(); });
        QCOMPARE(QApplication::exec(), 0); // and it ends
        QCOMPARE(log, (QStringList{u"unload Main"_s, u"unload B"_s, u"unload A"_s}));
    }

    void mainScreenClosedBehindABoxEndsTheProgram()
    {
        bench->screens.setMainScreen(u"Main"_s);
        bench->screens.show(u"Main"_s);
        bench->screens.show(u"A"_s);
        bool wentOn = false;
        BoxAnswerer boxes(u"none"_s);
        boxes.whileOpen = [&](QDialog&) { bench->screens.unload(u"Main"_s); };
        QTimer::singleShot(0, [&] {
            bench->screens.loaded(u"A"_s)->guarded([&] {
                ui::MessageBox::show(*bench->screens.loaded(u"A"_s), u"hola"_s);
                wentOn = true;
            });
        });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!wentOn);
        QCOMPARE(bench->screens.loaded(u"A"_s), nullptr);
    }

    void shownAgainAMinimisedScreenIsRestored()
    {
        bench->screens.show(u"A"_s);
        ui::Screen& screen = *bench->screens.loaded(u"A"_s);
        screen.showMinimized();
        QVERIFY(screen.isMinimized());
        bench->screens.show(u"A"_s);
        QVERIFY(!screen.isMinimized());
        QVERIFY(screen.isVisible());
        makeActive(screen);
        QCOMPARE(bench->screens.loaded(u"A"_s), &screen);
    }

    void shownAgainAMaximisedScreenStaysSo()
    {
        bench->screens.show(u"A"_s);
        ui::Screen& screen = *bench->screens.loaded(u"A"_s);
        screen.showMaximized();
        screen.setWindowState(screen.windowState() | Qt::WindowMinimized);
        bench->screens.show(u"A"_s);
        QVERIFY(!screen.isMinimized());
        QVERIFY(screen.isMaximized());
    }

    void aDialogOpensAtTheFactorOfTheScreenBelowIt()
    {
        openScreenAt(u"A"_s, 1.35);
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s));
        QCOMPARE(bench->screens.loaded(u"B"_s)->factor(), 1.35);
        bench->screens.show(u"Main"_s, bench->screens.loaded(u"A"_s));
        QCOMPARE(bench->screens.loaded(u"Main"_s)->factor(), 1.35);
    }

    void whatTheMainScreenShowsModallyIsNoDialog()
    {
        bench->screens.setMainScreen(u"Main"_s);
        openScreenAt(u"Main"_s, 1.35);
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"Main"_s));
        QVERIFY(bench->screens.loaded(u"B"_s)->factor() > 1.35); // 200 pixels on any display
    }

    void aDialogThatDoesNotFitOpensAtASmallerFactor()
    {
        addSample({});
        auto& dialog = bench->screens.load<SampleScreen>();
        const double largest = dialog.factor();
        openScreenAt(u"A"_s, largest + 0.2);
        bench->screens.showModal(u"Sample"_s, *bench->screens.loaded(u"A"_s));
        QCOMPARE(dialog.factor(), largest);
    }

    void aDialogThatIsShownAgainKeepsTheSizeThatItWasGiven()
    {
        openScreenAt(u"A"_s, 1.35);
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s));
        ui::Screen& dialog = *bench->screens.loaded(u"B"_s);
        dialog.resize(300, 300);
        dialog.hide();
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s));
        QCOMPARE(dialog.size(), QSize(300, 300));
    }

private:
    void openScreenAt(const QString& name, double factor)
    {
        bench->screens.show(name);
        ui::Screen& screen = *bench->screens.loaded(name);
        screen.resize((QSizeF(screen.size()) * factor / screen.factor()).toSize());
        QCOMPARE(screen.factor(), factor);
    }

    /// Shows B as a dialog of A.
    void openDialog(const std::function<void()>& then)
    {
        bench->screens.show(u"A"_s);
        bench->screens.showModal(u"B"_s, *bench->screens.loaded(u"A"_s), then);
    }
    static void hideDialog(ui::Screen& dialog, bool inItsHandler)
    {
        if (inItsHandler)
            dialog.guarded([&] { dialog.hide(); });
        else
            dialog.hide();
    }

    /// Makes the sample screen known, with what it does when it loads.
    void addSample(const std::function<void(SampleScreen&)>& whenLoading)
    {
        samples = 0;
        bench->screens.add(u"Sample"_s, [this, whenLoading](ui::Screens& screens) -> ui::Screen* {
            ++samples;
            auto* screen = new SampleScreen(screens);
            if (whenLoading)
                screen->whenLoading = [screen, whenLoading] { whenLoading(*screen); };
            return screen;
        });
    }

    std::unique_ptr<ScreenBench> bench;
    QStringList log;
    int samples = 0;
};

PIZARRIN_SCREEN_TEST_MAIN(ScreenSetTest)
#include "screen_set_test.moc"
