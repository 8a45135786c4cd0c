#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

namespace {

/// Lets no request to close a window get through to what it holds.
class CloseWatch final : public QObject {
public:
    explicit CloseWatch(QWindow* window) { window->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        asked = asked || event->type() == QEvent::Close;
        return event->type() == QEvent::Close;
    }

    bool asked = false;
};

} // namespace

/// A window manager that takes Alt+F4 for itself, as far as the program hears of it.
class RepeatedCloseTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<QWidget>();
        window->show();
        makeActive(*window);
    }
    void cleanup() { window.reset(); }

    void altF4ThatRepeatsClosesOneWindow()
    {
        for (int time = 0; time < 2; ++time) {
            press(true, Qt::AltModifier);
            QVERIFY(isAskedToClose()); // stays open: the next may be another one
            QVERIFY(!isAskedToClose());
            press(false, Qt::NoModifier);
        }
    }
    void aPressOfAltAloneAllowsTheNextOne()
    {
        press(true, Qt::AltModifier);
        QVERIFY(isAskedToClose());
        press(true, Qt::AltModifier, true); // its release went elsewhere
        QVERIFY(isAskedToClose());
        press(false, Qt::NoModifier);
    }
    void aPressOfAltThatWentElsewhereIsNotWaitedForLong()
    {
        press(true, Qt::AltModifier);
        QVERIFY(isAskedToClose());
        auto* repeats = qApp->findChild<QTimer*>(u"altF4"_s);
        QVERIFY(repeats->isActive());
        repeats->stop(); // as when its time is over
        QVERIFY(isAskedToClose());
        press(false, Qt::NoModifier);
    }
    void aCloseBoxWorksEachTime()
    {
        for (int time = 0; time < 3; ++time)
            QVERIFY(isAskedToClose());
    }

private:
    void press(bool down, Qt::KeyboardModifiers modifiers, bool repeated = false) const
    {
        QTest::simulateEvent(window->windowHandle(), down, Qt::Key_Alt, modifiers, {}, repeated);
    }
    /// Whether a request of the display gets through to the window; which stays open.
    bool isAskedToClose() const
    {
        CloseWatch watch(window->windowHandle());
        QCloseEvent request;
        QSpontaneKeyEvent::setSpontaneous(&request);
        qApp->notify(window->windowHandle(), &request); // sent, it would be the program's own
        return watch.asked;
    }

    std::unique_ptr<QWidget> window;
};

PIZARRIN_SCREEN_TEST_MAIN(RepeatedCloseTest)
#include "repeated_close_test.moc"
