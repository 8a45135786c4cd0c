#include "support/sample_screen.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

namespace {

/// Stands for what the toolkit does beside a screen reader: it keeps each key back until the
/// reader has seen it.
class SlowReader final : public QObject {
public:
    SlowReader() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isKey =
            event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
        if (!isKey || !watched->isWindowType() || !event->spontaneous())
            return false;
        m_keys.emplace_back(watched, static_cast<QKeyEvent*>(event)->clone());
        return true;
    }

    /// Hands back the first keys that it has seen; both their presses and their releases count.
    void handBack(std::size_t count)
    {
        for (; count > 0; --count) {
            auto [window, event] = takeFirst();
            // As the toolkit's are: not from the display.
            QCoreApplication::postEvent(window,
                new QKeyEvent(event->type(), event->key(), event->modifiers(), event->text()));
        }
        runPendingEvents();
    }
    void handBackAll() { handBack(m_keys.size()); }
    void keepForItself(std::size_t count)
    {
        for (; count > 0; --count)
            takeFirst();
    }

private:
    using Key = std::pair<QObject*, std::unique_ptr<QKeyEvent>>;

    Key takeFirst()
    {
        Key first = std::move(m_keys.front());
        m_keys.pop_front();
        return first;
    }

    std::deque<Key> m_keys;
};

} // namespace

/// Digits and access keys typed one after the other, beside a reader that sees them first.
class KeyOrderTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        screen->entry->setFocus();
        checked.clear();
        screen->whenClicked = [this] { checked << screen->entry->text(); };
    }
    void cleanup() { bench.reset(); }

    void digitsAndAnAccessKeyAct()
    {
        type(Qt::Key_4);
        pressAccessKey();
        QTRY_COMPARE(checked, QStringList{u"4"_s}); // in windows the toolkit shows them about too
    }

    void anAccessKeyWaitsForTheDigitsBeforeIt()
    {
        SlowReader reader;
        type(Qt::Key_4);
        type(Qt::Key_2);
        pressAccessKey();
        QCOMPARE(checked, QStringList());
        reader.handBack(4); // both digits
        QCOMPARE(screen->entry->text(), u"42"_s);
        reader.handBack(1); // Alt
        QTRY_COMPARE(checked, QStringList{u"42"_s});
    }

    void allAtOnceActInTheirOrderToo()
    {
        SlowReader reader;
        type(Qt::Key_4);
        pressAccessKey();
        releaseAccessKey();
        type(Qt::Key_5); // on the button, where it means nothing
        reader.handBackAll();
        QCOMPARE(checked, QStringList{u"4"_s});
        QCOMPARE(screen->entry->text(), u"4"_s);
    }

    void twoAccessKeysActOneAfterTheOther()
    {
        SlowReader reader;
        type(Qt::Key_4);
        pressAccessKey();
        releaseAccessKey();
        pressAccessKey();
        reader.handBackAll();
        QCOMPARE(checked, (QStringList{u"4"_s, u"4"_s}));
    }

    void aKeyThatTheReaderKeepsForItselfHoldsUpNothing()
    {
        SlowReader reader;
        type(Qt::Key_4);
        pressAccessKey();
        releaseAccessKey();
        reader.keepForItself(3); // the digit and Alt
        QCOMPARE(checked, QStringList());
        reader.handBackAll();
        QCOMPARE(checked, QStringList{QString()});
    }

    void aButtonBehindABoxThatHasComeUpIsNotPressed()
    {
        SlowReader reader;
        type(Qt::Key_4);
        pressAccessKey();
        releaseAccessKey();
        QDialog box(screen);
        box.open();
        reader.handBackAll();
        QCOMPARE(checked, QStringList());
    }

    void aButtonThatIsGoneIsNotPressed()
    {
        SlowReader reader;
        type(Qt::Key_4);
        pressAccessKey();
        delete screen->command;
        reader.handBackAll();
        QCOMPARE(screen->entry->text(), u"4"_s);
        QCOMPARE(checked, QStringList());
    }

private:
    QWindow* window() const { return screen->windowHandle(); }

    void type(Qt::Key digit) const { QTest::keyClick(window(), digit); }
    // Of "&Hecho"; Alt itself is pressed before it, and released behind it.
    void pressAccessKey() const { QTest::keyPress(window(), Qt::Key_H, Qt::AltModifier); }
    void releaseAccessKey() const { QTest::keyRelease(window(), Qt::Key_H, Qt::AltModifier); }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
    QStringList checked; ///< what stood in the box at each press of the button
};

PIZARRIN_SCREEN_TEST_MAIN(KeyOrderTest)
#include "key_order_test.moc"
