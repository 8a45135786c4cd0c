#include "ui/keys.h"

#include "support/sample_screen.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

class KeysTest : public QObject {
    Q_OBJECT

private slots:
    void keysHaveTheCodesThatTheRulesSpeakOf_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code");

        const Qt::KeyboardModifiers none;
        const Qt::KeyboardModifiers keypad = Qt::KeypadModifier;
        QTest::newRow("0") << int(Qt::Key_0) << none << u"0"_s << 48;
        QTest::newRow("9") << int(Qt::Key_9) << none << u"9"_s << 57;
        QTest::newRow("keypad 0") << int(Qt::Key_0) << keypad << u"0"_s << 96;
        QTest::newRow("keypad 9") << int(Qt::Key_9) << keypad << u"9"_s << 105;
        QTest::newRow("keypad point") << int(Qt::Key_Period) << keypad << u"."_s << 110;
        QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << keypad << u"\r"_s << 13;
        QTest::newRow("Enter") << int(Qt::Key_Return) << none << u"\r"_s << 13;
        QTest::newRow("comma") << int(Qt::Key_Comma) << none << u","_s << 188;
        QTest::newRow("point") << int(Qt::Key_Period) << none << u"."_s << 190;
        QTest::newRow("space") << int(Qt::Key_Space) << none << u" "_s << 32;
        QTest::newRow("letter") << int(Qt::Key_A) << none << u"a"_s << 65;
        QTest::newRow("ñ") << int(Qt::Key_Ntilde) << none << u"ñ"_s << 231;
        QTest::newRow("sign over 1")
            << int(Qt::Key_Exclam) << Qt::KeyboardModifiers(Qt::ShiftModifier) << u"!"_s << 49;
        QTest::newRow("sign over 0")
            << int(Qt::Key_Equal) << Qt::KeyboardModifiers(Qt::ShiftModifier) << u"="_s << 48;
        QTest::newRow("keypad slash") << int(Qt::Key_Slash) << keypad << u"/"_s << 111;
        QTest::newRow("accent") << int(Qt::Key_Dead_Acute) << none << QString() << 231;
        QTest::newRow("left") << int(Qt::Key_Left) << none << QString() << 37;
        QTest::newRow("keypad left") << int(Qt::Key_Left) << keypad << QString() << 37;
        QTest::newRow("Delete") << int(Qt::Key_Delete) << none << u"\x7f"_s << 46;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << none << u"\b"_s << 8;
        QTest::newRow("Shift") << int(Qt::Key_Shift) << Qt::KeyboardModifiers(Qt::ShiftModifier)
                               << QString() << 16;
        QTest::newRow("Ctrl") << int(Qt::Key_Control) << none << QString() << 17;
        QTest::newRow("F4") << int(Qt::Key_F4) << none << QString() << 115;
        QTest::newRow("F5") << int(Qt::Key_F5) << none << QString() << 116;
        QTest::newRow("unknown") << int(Qt::Key_LaunchMail) << none << QString() << 0;
    }
    void keysHaveTheCodesThatTheRulesSpeakOf()
    {
        QFETCH(int, qtKey);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, text);
        const QKeyEvent event(QEvent::KeyPress, qtKey, modifiers, text);
        QTEST(ui::keyCode(event), "code");
    }

    void typedCharacters()
    {
        const auto typed = [](int key, const QString& text,
                               Qt::KeyboardModifiers modifiers = {}) {
            return ui::typedCharacter(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
        };
        QCOMPARE(typed(Qt::Key_Enter, {}), QChar(13));
        QCOMPARE(typed(Qt::Key_Backspace, {}), QChar(8));
        QCOMPARE(typed(Qt::Key_Escape, {}), QChar(27));
        QCOMPARE(typed(Qt::Key_7, u"7"_s), QChar(u'7'));
        QCOMPARE(typed(Qt::Key_Delete, u"\x7f"_s), QChar());
        QCOMPARE(typed(Qt::Key_Left, {}), QChar());
        QCOMPARE(typed(Qt::Key_H, u"h"_s, Qt::AltModifier), QChar());
        QCOMPARE(typed(Qt::Key_V, u"v"_s, Qt::ControlModifier), QChar());
        QCOMPARE(typed(Qt::Key_V, u"\x16"_s, Qt::ControlModifier), QChar());
        // What AltGr is on some systems.
        constexpr auto AltGr = Qt::AltModifier | Qt::ControlModifier;
        QCOMPARE(typed(Qt::Key_BracketLeft, u"["_s, AltGr), QChar(u'['));
        QCOMPARE(typed(Qt::Key_BraceLeft, u"{"_s, AltGr | Qt::ShiftModifier), QChar(u'{'));
        QCOMPARE(typed(Qt::Key_V, u"\x16"_s, AltGr), QChar());
        QCOMPARE(typed(Qt::Key_V, {}, AltGr), QChar());
    }

    void downPressAndUpAreThreeEvents()
    {
        ScreenBench bench;
        auto& screen = bench.open<SampleScreen>();
        QStringList events;
        screen.onKeyDown(screen.entry, [&](int code, Qt::KeyboardModifiers) {
            events << u"down %1 «%2»"_s.arg(code).arg(screen.entry->text());
            return ui::KeyResult::Pass;
        });
        screen.onKeyPress(screen.entry, [&](QChar character) {
            events << u"press %1 «%2»"_s.arg(character).arg(screen.entry->text());
            return ui::KeyResult::Pass;
        });
        screen.onKeyUp(screen.entry, [&](int code, Qt::KeyboardModifiers) {
            events << u"up %1 «%2»"_s.arg(code).arg(screen.entry->text());
        });
        QTest::keyClick(screen.entry, Qt::Key_7);
        QTest::keyClick(screen.entry, Qt::Key_Left);
        QCOMPARE(events,
            (QStringList{u"down 55 «»"_s, u"press 7 «»"_s, u"up 55 «7»"_s, u"down 37 «7»"_s,
                u"up 37 «7»"_s}));
    }

    void swallowedKeysTypeNothing()
    {
        ScreenBench bench;
        auto& screen = bench.open<SampleScreen>();
        screen.onKeyDown(screen.entry, [&](int code, Qt::KeyboardModifiers) {
            return code == ui::key::Delete ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
        });
        screen.onKeyPress(screen.entry, [&](QChar character) {
            return character == u'8' ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
        });
        QTest::keyClicks(screen.entry, u"789"_s);
        QTest::keyClick(screen.entry, Qt::Key_Home);
        QTest::keyClick(screen.entry, Qt::Key_Delete);
        QCOMPARE(screen.entry->text(), u"79"_s);
    }

    void heldKeysGiveOneRelease()
    {
        ScreenBench bench;
        auto& screen = bench.open<SampleScreen>();
        int releases = 0;
        screen.onKeyUp(screen.entry, [&](int, Qt::KeyboardModifiers) { ++releases; });
        for (int repeat = 0; repeat < 3; ++repeat) {
            QKeyEvent up(QEvent::KeyRelease, Qt::Key_7, Qt::NoModifier, u"7"_s, true);
            QApplication::sendEvent(screen.entry, &up);
        }
        QCOMPARE(releases, 0);
        QTest::keyClick(screen.entry, Qt::Key_7);
        QCOMPARE(releases, 1);
    }

    void enterRunsItsHandlerAndIsSwallowed_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("keypad Enter") << Qt::Key_Enter;
    }
    void enterRunsItsHandlerAndIsSwallowed()
    {
        QFETCH(Qt::Key, key);
        ScreenBench bench;
        auto& screen = bench.open<SampleScreen>();
        int runs = 0;
        screen.onEnter(screen.lines, [&] { ++runs; });
        QTest::keyClicks(screen.lines, u"12"_s);
        QTest::keyClick(screen.lines, key);
        QCOMPARE(runs, 1);
        QCOMPARE(screen.lines->toPlainText(), u"12"_s);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(KeysTest)
#include "keys_test.moc"
