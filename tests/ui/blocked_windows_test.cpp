#include "support/screen_bench.h"
#include "ui/blocked_windows.h"

#include <QDialog>
#include <QTimer>

#include <array>
#include <cstring>

using namespace Qt::StringLiterals;

/// Of the display only its messages: which window gets the keyboard, and which one loses it.
class BlockedWindowsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        settling = qApp->findChild<QTimer*>(u"settling"_s);
        watch = dynamic_cast<ui::BlockedWindows*>(settling->parent());
    }
    void init()
    {
        menu = std::make_unique<QWidget>();
        menu->show();
        activity = std::make_unique<QDialog>();
        activity->setModal(true);
        activity->show();
        settleWindows();
    }
    void cleanup()
    {
        settling->stop();
        activity.reset();
        menu.reset();
    }

    void activatedMenuBringsTheMinimisedActivityBack()
    {
        activity->setWindowState(Qt::WindowMinimized);
        activated(*menu);
        QTRY_VERIFY(!activity->isMinimized());
    }
    void pressOrKeyOnTheMenuBringsTheMinimisedActivityBack()
    {
        for (const char kind : {ButtonPress, KeyPress}) {
            activity->setWindowState(Qt::WindowMinimized);
            pressed(kind, *menu);
            QVERIFY(!isMinimised(*activity));
        }
    }
    void keyOfAChordLeavesTheActivityMinimised()
    {
        activity->setWindowState(Qt::WindowMinimized);
        QTest::simulateEvent(
            activity->windowHandle(), true, Qt::Key_Alt, Qt::AltModifier, {}, false);
        pressed(KeyPress, *menu);
        QVERIFY(isMinimised(*activity));
        QTest::simulateEvent(
            activity->windowHandle(), false, Qt::Key_Alt, Qt::NoModifier, {}, false);
        pressed(KeyPress, *menu);
        QVERIFY(!isMinimised(*activity));
    }
    void boxOverAMinimisedActivityLeavesItSo()
    {
        activity->setWindowState(Qt::WindowMinimized);
        QDialog box(activity.get());
        box.setModal(true);
        box.show();
        pressed(ButtonPress, *menu);
        QVERIFY(isMinimised(*activity));
        box.setWindowState(Qt::WindowMinimized);
        pressed(ButtonPress, *menu);
        QVERIFY(!isMinimised(box) && !isMinimised(*activity));
    }
    void boxThatIsAnsweredAtOnceLeavesTheKeyboardToTheMinimisedActivity()
    {
        activity->setWindowState(Qt::WindowMinimized);
        QDialog box(activity.get());
        box.setModal(true);
        box.show();
        lost(box);
        activated(*menu);
        box.close();
        QVERIFY(settling->isActive());
        QTRY_VERIFY(!activity->isMinimized());
    }
    void keyboardThatIsLeftOverLeavesTheActivityMinimised()
    {
        lost(*activity);
        activity->setWindowState(Qt::WindowMinimized);
        activated(*menu);
        QTRY_VERIFY(!settling->isActive());
        QVERIFY(activity->isMinimized());
    }
    void menuActivatedAfterAnotherProgramBringsTheActivityBackAtOnce()
    {
        lost(*activity);
        activity->setWindowState(Qt::WindowMinimized);
        activated(*menu);
        lost(*menu);
        activated(*menu);
        QTRY_VERIFY(!activity->isMinimized());
    }
    void minimisingIsNotUndoneOnceTheActivityHasTheKeyboardAgain()
    {
        activated(*menu);
        QVERIFY(settling->isActive());
        activated(*activity);
        QVERIFY(!settling->isActive());
    }
    void menuThatLosesTheKeyboardAgainBringsNothingBack()
    {
        activated(*menu);
        lost(*menu);
        QVERIFY(!settling->isActive());
    }
    void keyboardOfAWindowThatNothingBlocksEndsTheWaiting()
    {
        activated(*menu);
        activity->close();
        activated(*menu);
        QVERIFY(!settling->isActive());
    }

private:
    /// Asked at once: the toolkit tells the control of it later.
    static bool isMinimised(const QWidget& window)
    {
        return window.windowHandle()->windowStates() & Qt::WindowMinimized;
    }

    static constexpr char KeyPress = 2;
    static constexpr char ButtonPress = 4;
    static constexpr char FocusIn = 9;
    static constexpr char FocusOut = 10;

    void activated(const QWidget& window) { tell(FocusIn, window, 4); }
    void lost(const QWidget& window) { tell(FocusOut, window, 4); }
    void pressed(char kind, const QWidget& window) { tell(kind, window, 12); }
    /// The number of the window stands at a place of its own in each kind of message.
    void tell(char kind, const QWidget& window, std::size_t place)
    {
        std::array<char, 32> message{kind};
        const auto number = static_cast<quint32>(window.winId());
        std::memcpy(message.data() + place, &number, sizeof number);
        watch->nativeEventFilter("xcb_generic_event_t", message.data(), nullptr);
    }

    ui::BlockedWindows* watch = nullptr;
    QTimer* settling = nullptr;
    std::unique_ptr<QWidget> menu;
    std::unique_ptr<QDialog> activity;
};

PIZARRIN_SCREEN_TEST_MAIN(BlockedWindowsTest)
#include "blocked_windows_test.moc"
