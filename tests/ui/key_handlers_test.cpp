#include "support/bare_guard.h"
#include "ui/key_handlers.h"

#include "core/errors.h"

#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;

class KeyHandlersTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        guard = std::make_unique<BareGuard>();
        keys = std::make_unique<ui::KeyHandlers>(*guard);
        box = new QLineEdit(guard.get());
    }
    void cleanup() { guard.reset(); }

    void aSwallowedKeyDoesNotReachTheControl()
    {
        keys->onKeyPress(box, [](QChar character) {
            return character == u'7' ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
        });
        QTest::keyClicks(box, u"678"_s);
        QCOMPARE(box->text(), u"68"_s);
    }

    void oneControlHasAllItsHandlers()
    {
        QStringList events;
        keys->onKeyDown(box, [&](int code, Qt::KeyboardModifiers) {
            events << u"down %1"_s.arg(code);
            return ui::KeyResult::Pass;
        });
        keys->onKeyPress(box, [&](QChar character) {
            events << u"press "_s + character;
            return ui::KeyResult::Pass;
        });
        keys->onKeyUp(
            box, [&](int code, Qt::KeyboardModifiers) { events << u"up %1"_s.arg(code); });
        QTest::keyClick(box, Qt::Key_7);
        QCOMPARE(events, (QStringList{u"down 55"_s, u"press 7"_s, u"up 55"_s}));
    }

    void enterRunsItsHandlerAndIsSwallowed()
    {
        int times = 0;
        keys->onEnter(box, [&] { ++times; });
        QSignalSpy reached(box, &QLineEdit::returnPressed);
        QTest::keyClick(box, Qt::Key_Return);
        QTest::keyClick(box, Qt::Key_Enter);
        QCOMPARE(times, 2);
        QCOMPARE(reached.size(), 0);
    }

    void aFailedHandlerIsReportedAndSwallowsTheKey()
    {
        keys->onKeyPress(box, [](QChar) -> ui::KeyResult { throw core::Error(u"No."_s); });
        QTest::keyClick(box, Qt::Key_7);
        QCOMPARE(guard->reports, {u"No."_s});
        QCOMPARE(box->text(), QString());
    }

    void noKeyReachesTheControlOfAShutGuard()
    {
        keys->onKeyPress(box, [](QChar) { return ui::KeyResult::Pass; });
        guard->shut();
        QTest::keyClick(box, Qt::Key_7);
        QCOMPARE(box->text(), QString());
    }

private:
    std::unique_ptr<BareGuard> guard;
    std::unique_ptr<ui::KeyHandlers> keys;
    QLineEdit* box = nullptr;
};

QTEST_MAIN(KeyHandlersTest)
#include "key_handlers_test.moc"
