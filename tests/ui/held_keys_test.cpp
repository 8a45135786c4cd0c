#include "support/sample_screen.h"
#include "support/screen_bench.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

class HeldKeysTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        clicks = 0;
        screen->whenClicked = [this] { ++clicks; };
    }
    void cleanup() { bench.reset(); }

    void heldEnterPressesAButtonOnce()
    {
        screen->command->setFocus();
        hold(Qt::Key_Return, u"\r"_s);
        QCOMPARE(clicks, 1);
    }

    void heldEnterChecksAnAnswerOnce()
    {
        screen->onEnter(screen->entry, [this] { ++clicks; });
        screen->entry->setFocus();
        hold(Qt::Key_Return, u"\r"_s);
        QCOMPARE(clicks, 1);
    }

    void heldEnterStopsWhereItsFirstPressMovesTheFocus()
    {
        screen->onEnter(screen->entry, [this] { screen->command->setFocus(); });
        screen->entry->setFocus();
        hold(Qt::Key_Return, u"\r"_s);
        QVERIFY(screen->command->hasFocus());
        QCOMPARE(clicks, 0);
    }

    void heldDigitIsWrittenOnce()
    {
        screen->entry->setFocus();
        hold(Qt::Key_7, u"7"_s);
        QCOMPARE(screen->entry->text(), u"7"_s);
    }

    void heldArrowMovesTheCaretOnAndHeldBackspaceErasesOn()
    {
        screen->entry->setText(u"123456789"_s);
        screen->entry->setFocus();
        screen->entry->setCursorPosition(9);
        hold(Qt::Key_Left, {});
        QCOMPARE(screen->entry->cursorPosition(), 9 - 1 - Repeats);
        screen->entry->setCursorPosition(9);
        hold(Qt::Key_Backspace, u"\b"_s);
        QCOMPARE(screen->entry->text().size(), 9 - 1 - Repeats);
    }

    void heldBackspaceStaysInTheBoxThatItWasPressedIn()
    {
        screen->onKeyDown(screen->lines, [this](int, Qt::KeyboardModifiers) {
            screen->entry->setFocus();
            return ui::KeyResult::Swallow;
        });
        screen->entry->setText(u"123456789"_s);
        screen->lines->setFocus();
        hold(Qt::Key_Backspace, u"\b"_s);
        QVERIFY(screen->entry->hasFocus());
        QCOMPARE(screen->entry->text(), u"123456789"_s);
    }

    void heldAccessKeyClicksOnce()
    {
        hold(Qt::Key_H, {}, Qt::AltModifier);
        QCOMPARE(clicks, 1);
    }

    void heldShortcutRunsOnce()
    {
        QShortcut shortcut(QKeySequence(Qt::Key_F6), screen);
        connect(&shortcut, &QShortcut::activated, this, [this] { ++clicks; });
        hold(Qt::Key_F6, {});
        QCOMPARE(clicks, 1);
    }

    void aNewPressActsAgain()
    {
        screen->command->setFocus();
        hold(Qt::Key_Return, u"\r"_s);
        hold(Qt::Key_Return, u"\r"_s);
        QCOMPARE(clicks, 2);
    }

    void aKeyIsDeadInAWindowThatComesUpWhileItIsDown()
    {
        screen->entry->setFocus();
        down(Qt::Key_Backspace, u"\b"_s);
        QWidget other;
        auto* box = new QLineEdit(u"123"_s, &other);
        other.show();
        makeActive(other);
        box->setFocus();
        repeat(Qt::Key_Backspace, u"\b"_s);
        QCOMPARE(box->text(), u"123"_s);

        up(Qt::Key_Backspace);
        down(Qt::Key_Backspace, u"\b"_s);
        up(Qt::Key_Backspace);
        QCOMPARE(box->text(), u"12"_s);
    }

    void aDeadKeyStaysDeadWhenItsOwnWindowIsBack()
    {
        screen->entry->setText(u"123"_s);
        screen->entry->setFocus();
        down(Qt::Key_Right, {});
        {
            QWidget other;
            other.show();
            makeActive(other);
        }
        makeActive(*screen);
        screen->entry->setCursorPosition(0);
        repeat(Qt::Key_Right, {});
        QCOMPARE(screen->entry->cursorPosition(), 0);
    }

    void theReleaseOfADeadKeyMeansNothing()
    {
        int released = 0;
        screen->onKeyUp(screen->entry, [&](int, Qt::KeyboardModifiers) { ++released; });
        screen->entry->setFocus();
        up(Qt::Key_7); // pressed in another program
        QCOMPARE(released, 0);
        down(Qt::Key_7, u"7"_s);
        up(Qt::Key_7);
        QCOMPARE(released, 1);
    }

    void aReleaseAndAPressOfTheSameTimeAreARepeat()
    {
        int released = 0;
        screen->onKeyUp(screen->command, [&](int, Qt::KeyboardModifiers) { ++released; });
        screen->command->setFocus();
        constexpr ulong Time = 1000;
        sendAt(Time, QEvent::KeyPress);
        sendAt(Time + 500, QEvent::KeyRelease);
        sendAt(Time + 500, QEvent::KeyPress);
        QCOMPARE(clicks, 1);
        sendAt(Time + 540, QEvent::KeyRelease);
        QCOMPARE(released, 1);
        sendAt(Time + 541, QEvent::KeyPress);
        QCOMPARE(clicks, 2);
    }

    void aReleaseOfAnUnknownPressAndAPressOfTheSameTimeAreARepeat()
    {
        screen->command->setFocus();
        constexpr ulong Time = 1000;
        sendAt(Time, QEvent::KeyRelease, Qt::Key_Enter); // pressed in another program
        sendAt(Time, QEvent::KeyPress, Qt::Key_Enter);
        QCOMPARE(clicks, 0);
        sendAt(Time + 500, QEvent::KeyRelease, Qt::Key_Enter);
        sendAt(Time + 501, QEvent::KeyPress, Qt::Key_Enter);
        QCOMPARE(clicks, 1);
        sendAt(Time + 502, QEvent::KeyRelease, Qt::Key_Enter);

        sendAt(Time + 900, QEvent::KeyRelease, Qt::Key_Enter); // pressed where a box took no keys
        sendAt(Time + 900, QEvent::KeyPress, Qt::Key_Enter);
        QCOMPARE(clicks, 1);
    }

    void aProgramMayPressAKeyAgainInTheSameInstant()
    {
        screen->command->setFocus();
        constexpr ulong Time = 1000;
        for (int i = 0; i < 3; ++i) {
            sendAt(Time, QEvent::KeyPress);
            sendAt(Time, QEvent::KeyRelease);
        }
        QCOMPARE(clicks, 3);
    }

private:
    static constexpr int Repeats = 4;

    // To the window that has the keyboard, as the display sends keys.
    static void send(bool press, Qt::Key key, const QString& text, bool repeated,
        Qt::KeyboardModifiers modifiers = {})
    {
        QTest::simulateEvent(
            QGuiApplication::focusWindow(), press, key, modifiers, text, repeated);
    }
    static void down(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::qSleep(1); // in the millisecond of the release before, it would be a repeat
        send(true, key, text, false, modifiers);
    }
    static void repeat(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers = {})
    {
        for (int i = 0; i < Repeats; ++i) {
            send(false, key, text, true, modifiers);
            send(true, key, text, true, modifiers);
        }
    }
    static void up(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        send(false, key, {}, false, modifiers);
    }
    static void hold(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers = {})
    {
        down(key, text, modifiers);
        repeat(key, text, modifiers);
        up(key, modifiers);
    }
    static void sendAt(ulong time, QEvent::Type type, Qt::Key key = Qt::Key_Return)
    {
        QList<QEvent::Type> types{type};
        if (type == QEvent::KeyPress)
            types.prepend(QEvent::ShortcutOverride);
        for (const QEvent::Type each : types) {
            QKeyEvent event(each, key, Qt::NoModifier, u"\r"_s);
            event.setTimestamp(time);
            QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &event);
        }
    }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
    int clicks = 0;
};

PIZARRIN_SCREEN_TEST_MAIN(HeldKeysTest)
#include "held_keys_test.moc"
