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
    static constexpr char FocusIn = 9;
    static constexpr char FocusOut = 10;

    void activated(const QWidget& window) { tell(FocusIn, window); }
    void lost(const QWidget& window) { tell(FocusOut, window); }
    void tell(char kind, const QWidget& window)
    {
        std::array<char, 32> message{kind};
        const auto number = static_cast<quint32>(window.winId());
        std::memcpy(message.data() + 4, &number, sizeof number);
        watch->nativeEventFilter("xcb_generic_event_t", message.data(), nullptr);
    }

    ui::BlockedWindows* watch = nullptr;
    QTimer* settling = nullptr;
    std::unique_ptr<QWidget> menu;
    std::unique_ptr<QDialog> activity;
};

PIZARRIN_SCREEN_TEST_MAIN(BlockedWindowsTest)
#include "blocked_windows_test.moc"
