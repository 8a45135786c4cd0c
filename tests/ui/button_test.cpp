#include "support/sample_screen.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

class ButtonTest : public QObject {
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

    void focusedButtonAnswersEnterAndSpace()
    {
        screen->command->setFocus();
        QTest::keyClick(screen->command, Qt::Key_Return);
        QTest::keyClick(screen->command, Qt::Key_Enter, Qt::KeypadModifier);
        QTest::keyClick(screen->command, Qt::Key_Space);
        QCOMPARE(clicks, 3);
    }

    void enterInAnotherBoxClicksNothing()
    {
        screen->entry->setFocus();
        QTest::keyClick(screen->entry, Qt::Key_Return);
        QCOMPARE(clicks, 0);
    }

    void accessKeyClicksAtOnceAndTakesTheFocus()
    {
        screen->entry->setFocus();
        QTest::keyClick(screen, Qt::Key_H, Qt::AltModifier);
        QCOMPARE(clicks, 1);
        QVERIFY(screen->command->hasFocus());
    }

    void accessKeyOfALabelLeadsToItsBox()
    {
        screen->command->setFocus();
        QTest::keyClick(screen, Qt::Key_R, Qt::AltModifier);
        QVERIFY(screen->entry->hasFocus());
    }

    void disabledButtonIgnoresItsAccessKey()
    {
        screen->command->setEnabled(false);
        QTest::keyClick(screen, Qt::Key_H, Qt::AltModifier);
        QCOMPARE(clicks, 0);
    }

private:
    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
    int clicks = 0;
};

PIZARRIN_SCREEN_TEST_MAIN(ButtonTest)
#include "button_test.moc"
