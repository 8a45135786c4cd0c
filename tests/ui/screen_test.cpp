#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "support/standard_error.h"

#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

class ScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
    }
    void cleanup() { bench.reset(); }

    void controlsStandWhereTheirTwipsSay()
    {
        QCOMPARE(screen->factor(), 1.0);
        QCOMPARE(screen->canvas()->size(), QSize(300, 200));
        QCOMPARE(screen->entry->geometry(), QRect(20, 20, 100, 34));
        QCOMPARE(screen->entry->font().pixelSize(), 28);
        QCOMPARE(screen->entry->objectName(), u"Entry"_s);
        QCOMPARE(screen->entry->accessibleName(), u"Respuesta"_s);
    }

    void doubledWindowDoublesEveryControlAndFont()
    {
        struct Before {
            QWidget* control;
            QRect place;
            int font;
        };
        QList<Before> before;
        for (QWidget* control :
            screen->canvas()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!control->objectName().isEmpty())
                before.append({control, control->geometry(), control->font().pixelSize()});
        }
        QCOMPARE(before.size(), 5);
        const int menuFont = screen->findChild<QMenuBar*>()->font().pixelSize();
        screen->resize(screen->size() * 2);
        QCOMPARE(screen->factor(), 2.0);
        for (const auto& [control, place, font] : before) {
            QCOMPARE(control->geometry(), QRect(place.topLeft() * 2, place.size() * 2));
            QCOMPARE(control->font().pixelSize(), font * 2);
        }
        QCOMPARE(screen->findChild<QMenuBar*>()->font().pixelSize(), menuFont * 2);
        QCOMPARE(bench->control<QMenu>(u"MnuOpc"_s).font().pixelSize(), menuFont * 2);
    }

    void wideWindowCentresTheCanvas()
    {
        screen->resize(screen->width() * 3, screen->height());
        QCOMPARE(screen->factor(), 1.0);
        QCOMPARE(screen->canvas()->x(), 300);
        QCOMPARE(screen->canvas()->width(), 300);
    }

    void movedControlFollowsTheFactor()
    {
        screen->resize(screen->size() * 2);
        screen->moveTo(screen->entry, 600, 450);
        QCOMPARE(screen->entry->geometry(), QRect(80, 60, 200, 68));
        QCOMPARE(screen->placeOf(screen->entry).left, 600.0);
        screen->resize(screen->size() / 2);
        QCOMPARE(screen->entry->geometry(), QRect(40, 30, 100, 34));
    }

    void anotherDesignSizeKeepsTheFactor()
    {
        screen->setDesignSize(4500, 4500);
        QCOMPARE(screen->factor(), 1.0);
        QCOMPARE(screen->canvas()->size(), QSize(300, 300));
        QCOMPARE(screen->height(), 300 + 28);
    }

    void anotherDesignSizeKeepsTheMiddle()
    {
        const QRect available = screen->screen()->availableGeometry();
        screen->move(available.center() - screen->rect().center());
        const QPoint before = screen->frameGeometry().center();
        screen->setDesignSize(6000, 4500);
        QVERIFY((screen->frameGeometry().center() - before).manhattanLength() <= 2);
        screen->move(available.topLeft());
        screen->setDesignSize(9000, 6000);
        QVERIFY(available.contains(screen->frameGeometry()));
    }

    void noCrackOfGroundBesideTheCanvas()
    {
        for (int width = 300; width < 340; ++width) {
            screen->resize(width, width * screen->height() / screen->width());
            const QRect canvas = screen->canvas()->geometry();
            for (const int ground :
                {screen->width() - canvas.width(), screen->height() - 28 - canvas.height()})
                QVERIFY2(ground <= 0 || ground > 2, qPrintable(QString::number(width)));
        }
    }

    void designTooLargeForTheDisplayGivesASmallerFactor()
    {
        screen->setDesignSize(4500, 30000);
        const int available = screen->screen()->availableGeometry().height();
        QVERIFY(screen->height() <= available);
        QVERIFY(screen->factor() < 1);
        QCOMPARE(screen->canvas()->height(), qRound(2000 * screen->factor()));
        screen->setDesignSize(4500, 3000);
        QCOMPARE(screen->factor(), 1.0); // it only gave way
    }

    void sizeThatAPersonChoseStays()
    {
        screen->setDesignSize(4500, 30000);
        screen->resize(screen->width() + 50, screen->height() + 30);
        const double chosen = screen->factor();
        screen->setDesignSize(4500, 3000);
        QVERIFY(std::abs(screen->factor() - chosen) < 0.01); // but for whole pixels
    }

    void escapeDoesNotClose()
    {
        QTest::keyClick(screen->entry, Qt::Key_Escape);
        QVERIFY(screen->isVisible());
    }

    void altF4Closes()
    {
        QTest::keyClick(screen->entry, Qt::Key_F4, Qt::AltModifier);
        QCOMPARE(bench->screens.loaded(u"Sample"_s), nullptr);
    }

    void exceptionInAHandlerShowsOneBoxAndTheScreenGoesOn_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::newRow("own") << 0 << u"El banco no se puede leer."_s;
        QTest::newRow("standard") << 1 << ui::HandlerGuard::mistakeText();
        QTest::newRow("unknown") << 2 << ui::HandlerGuard::mistakeText();
    }
    void exceptionInAHandlerShowsOneBoxAndTheScreenGoesOn()
    {
        QFETCH(int, kind);
        QFETCH(QString, text);
        screen->whenClicked = [&] {
            if (kind == 0)
                throw core::Error(u"El banco no se puede leer."_s);
            if (kind == 1)
                throw std::runtime_error("bad_alloc");
            throw kind;
        };
        const StandardError log;
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(boxes.texts, {text});
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        // Where the handler was connected, whatever the toolkit did in between.
        QCOMPARE(log.text().contains(u"sample_screen.h:"_s), kind > 0);
        QVERIFY(screen->isVisible());
        bool again = false;
        screen->whenClicked = [&] { again = true; };
        bench->click(u"Command1"_s);
        QVERIFY(again);
    }

    void exceptionInAKeyHandlerSwallowsTheKey()
    {
        screen->onKeyPress(
            screen->entry, [](QChar) -> ui::KeyResult { throw core::Error(u"No puede ser."_s); });
        BoxAnswerer boxes(u"Aceptar"_s);
        QTest::keyClick(screen->entry, Qt::Key_7);
        QCOMPARE(boxes.texts, {u"No puede ser."_s});
        QCOMPARE(screen->entry->text(), QString());
    }

    void tickingTimerStacksNoBoxes()
    {
        int ticks = 0;
        screen->whenTicked = [&] {
            ++ticks;
            throw core::Error(u"Otra vez."_s);
        };
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            QVERIFY(screen->clock->isActive());
            for (int i = 0; i < 3; ++i)
                bench->tick(u"Timer1"_s);
            screen->clock->stop();
        };
        screen->clock->start();
        QTRY_VERIFY(!boxes.texts.isEmpty());
        runPendingEvents();
        QCOMPARE(ticks, 1);
        QCOMPARE(boxes.texts.size(), 1);
    }

    void unloadedScreenHidesStopsAndIsDestroyed()
    {
        const QPointer<SampleScreen> alive(screen);
        QStringList order;
        screen->whenUnloading = [&] { order << u"unloading"_s; };
        screen->clock->start();
        screen->close();
        QCOMPARE(order, {u"unloading"_s});
        QVERIFY(!screen->isVisible());
        QVERIFY(!screen->clock->isActive());
        QTRY_VERIFY(!alive);
        QCOMPARE(bench->screens.loaded(u"Sample"_s), nullptr);
    }

    void unloadingInAHandlerLeavesTheScreenAliveUntilItEnds()
    {
        const QPointer<SampleScreen> alive(screen);
        int later = 0;
        screen->whenClicked = [&] {
            screen->unload();
            runPendingEvents(); // nested events do not destroy it either
            QVERIFY(alive);
            screen->whenTicked = [&] { ++later; };
            QMetaObject::invokeMethod(screen->clock, "timeout", Qt::DirectConnection);
        };
        screen->command->click();
        QCOMPARE(later, 0);
        QTRY_VERIFY(!alive);
    }

    void waitingHandlerEndsWhenItsScreenIsUnloaded()
    {
        bool wentOn = false;
        screen->whenClicked = [&] {
            QMetaObject::invokeMethod(
                screen, [this] { screen->unload(); }, Qt::QueuedConnection);
            screen->letEventsRun();
            wentOn = true;
        };
        screen->command->click();
        QVERIFY(!wentOn);
    }

    void noHandlerStartsWhileEventsRun()
    {
        int clicks = 0;
        screen->whenClicked = [&] {
            ++clicks;
            QMetaObject::invokeMethod(
                screen, [this] { screen->command->click(); }, Qt::QueuedConnection);
            QMetaObject::invokeMethod(
                screen, [this] { screen->list.at(1)->trigger(); }, Qt::QueuedConnection);
            screen->letEventsRun();
        };
        screen->command->click();
        QCOMPARE(clicks, 1);
        QCOMPARE(screen->picked, QList<int>());
        screen->list.at(1)->trigger();
        QCOMPARE(screen->picked, QList<int>{1});
    }

    void pickedItemChangesNoCheckByItself()
    {
        QVERIFY(screen->list.at(0)->isChecked());
        screen->list.at(0)->trigger();
        screen->list.at(2)->trigger();
        QCOMPARE(screen->picked, (QList<int>{0, 2}));
        QVERIFY(screen->list.at(0)->isChecked());
        QVERIFY(!screen->list.at(2)->isChecked());
        screen->list.check(2);
        QVERIFY(!screen->list.at(0)->isChecked());
        QVERIFY(screen->list.at(2)->isChecked());
    }

    void menusCarryTheirNames()
    {
        QCOMPARE(bench->control<QAction>(u"MnuOpc"_s).text(), u"&Opciones"_s);
        QCOMPARE(bench->control<QMenu>(u"MnuOpc"_s).actions().size(), 3);
        QCOMPARE(bench->control<QAction>(u"MnuOpcLis(2)"_s).text(), u"&3"_s);
    }

    void focusComesOnceHoweverOftenItIsLent()
    {
        int times = 0;
        screen->onGotFocus(screen->entry, [&] { ++times; });
        screen->command->setFocus();
        screen->entry->setFocus();
        QCOMPARE(times, 1);
        QWidget other;
        other.show();
        makeActive(other);
        QVERIFY(!screen->entry->hasFocus());
        makeActive(*screen);
        QVERIFY(screen->entry->hasFocus());
        QCOMPARE(times, 1);
        screen->command->setFocus();
        screen->entry->setFocus();
        QCOMPARE(times, 2);
    }

    void ringSurroundsTheFocus()
    {
        const auto hasRing = [&](const QWidget* control) {
            const QRect place = control->geometry();
            const QImage image = screen->canvas()->grab().toImage();
            return image.pixel(place.left() - 2, place.center().y()) == ui::look::Focus;
        };
        screen->entry->setFocus();
        QVERIFY(hasRing(screen->entry));
        screen->command->setFocus();
        QVERIFY(hasRing(screen->command));
        QVERIFY(!hasRing(screen->entry));
        screen->resize(screen->size() * 2);
        QVERIFY(hasRing(screen->command));
    }

private:
    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(ScreenTest)
#include "screen_test.moc"
