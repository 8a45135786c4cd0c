#include "support/sample_screen.h"
#include "support/screen_bench.h"

#include <QAccessible>
#include <QMenuBar>

using namespace Qt::StringLiterals;

class AccessKeysTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
    }
    void cleanup() { bench.reset(); }

    void areUnderlinedWhileAltIsHeld()
    {
        const QImage plain = screen->grab().toImage();
        QTest::keyPress(screen, Qt::Key_Alt, Qt::AltModifier);
        const QImage held = screen->grab().toImage();
        for (const QWidget* control :
            {static_cast<QWidget*>(screen->command), static_cast<QWidget*>(screen->title)}) {
            const QRect place(control->mapTo(screen, QPoint(0, 0)), control->size());
            QVERIFY(held.copy(place) != plain.copy(place));
        }
        QTest::keyRelease(screen, Qt::Key_Alt); // which leads to the menu bar, as ever
        const QRect command(
            screen->command->mapTo(screen, QPoint(0, 0)), screen->command->size());
        QCOMPARE(screen->grab().toImage().copy(command), plain.copy(command));
    }

    void areNotUnderlinedForAnotherKey()
    {
        const QImage plain = screen->grab().toImage();
        QTest::keyPress(screen, Qt::Key_Control, Qt::ControlModifier);
        QCOMPARE(screen->grab().toImage(), plain);
        QTest::keyRelease(screen, Qt::Key_Control);
    }

    void areForgottenWithTheActiveWindow()
    {
        const QImage plain = screen->grab().toImage();
        QTest::keyPress(screen, Qt::Key_Alt, Qt::AltModifier);
        QEvent deactivated(QEvent::WindowDeactivate);
        QApplication::sendEvent(screen, &deactivated); // Alt+Tab: the release goes elsewhere
        QCOMPARE(screen->grab().toImage(), plain);
    }

    void leadToTheMenuBarWithAltAloneUnlessAReaderListens()
    {
        screen->entry->setFocus();
        QTest::keyPress(screen->entry, Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(screen->entry, Qt::Key_Alt);
        QCOMPARE(screen->findChild<QMenuBar*>()->hasFocus(), !QAccessible::isActive());
    }

    void workWithoutBeingSeen()
    {
        screen->entry->setFocus();
        int clicks = 0;
        screen->whenClicked = [&] { ++clicks; };
        QTest::keyClick(screen, Qt::Key_H, Qt::AltModifier);
        QCOMPARE(clicks, 1);
    }

    void areUnderlinedInAMenuThatTheKeyboardOpened()
    {
        const auto underlined = [&] {
            auto& menu = bench->control<QMenu>(u"MnuOpc"_s);
            return menu.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &menu) == 1;
        };
        QTest::mouseClick(screen->entry, Qt::LeftButton);
        QVERIFY(!underlined());
        QTest::keyClick(screen->entry, Qt::Key_1);
        QVERIFY(underlined());
    }

private:
    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(AccessKeysTest)
#include "access_keys_test.moc"
