#pragma once

#include "support/box_answerer.h"
#include "support/fake_clock.h"
#include "support/pending_events.h"
#include "support/scripted_random.h"
#include "support/window_manager.h"
#include "ui/application.h"
#include "ui/screen.h"
#include "ui/screen_set.h"

#include <QAction>
#include <QMenu>
#include <QTemporaryDir>
#include <QtTest>

/// What a screen under test stands on: scripted draws, a clock that stands, an empty folder
/// for the bank and the pictures, and the set of screens.
class ScreenBench {
public:
    ScreenBench()
        : screens(random, clock, folder.path())
    {
    }

    /// Loads, shows and activates a screen at factor 1.
    template <typename S> S& open()
    {
        screens.add<S>();
        auto& screen = show(S::screenName());
        makeActive(screen);
        m_screen = &screen;
        return static_cast<S&>(screen);
    }

    /// Loads and shows a screen at factor 1, at which measures are written, on whatever display.
    ui::Screen& show(const QString& name)
    {
        ui::Screen& screen = screens.load(name);
        screen.resize((QSizeF(screen.size()) / screen.factor()).toSize());
        screens.show(name);
        return screen;
    }

    /// Looks for controls in this screen, which the test has opened by itself.
    void attach(ui::Screen& screen) { m_screen = &screen; }

    /// A control or menu item of the opened screen by its object name; ends the test program
    /// with the name when there is none of this kind.
    template <typename T> T& control(QStringView name) const { return find<T>(*m_screen, name); }

    template <typename T> static T& find(const QObject& parent, QStringView name)
    {
        // A menu and its action share a name.
        for (QObject* object : parent.findChildren<QObject*>(name.toString())) {
            if (auto* found = dynamic_cast<T*>(object))
                return *found;
        }
        giveUp("no control", name.toString());
    }

    void click(const QString& name) const
    {
        QTest::mouseClick(&control<QPushButton>(name), Qt::LeftButton);
    }
    /// Picks a menu item.
    void pick(const QString& name) const { control<QAction>(name).trigger(); }
    QString text(const QString& name) const { return control<QLineEdit>(name).text(); }
    void type(const QString& name, const QString& keys) const
    {
        typeInto(&control<QWidget>(name), keys);
    }
    void key(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&control<QWidget>(name), key, modifiers);
    }
    /// Lets a timer of the screen fire once, now.
    void tick(const QString& name) const
    {
        QMetaObject::invokeMethod(&control<QTimer>(name), "timeout", Qt::DirectConnection);
    }
    QString focusName() const
    {
        const QWidget* focus = QApplication::focusWidget();
        return focus != nullptr ? focus->objectName() : QString();
    }

    /// What fills a button of an active window.
    QColor fill(const QString& name) const
    {
        return control<QPushButton>(name).palette().color(QPalette::Active, QPalette::Button);
    }
    /// Fails the test unless the four buttons of a drill have their colours.
    void verifyCommandColours() const
    {
        QCOMPARE(fill(QStringLiteral("Command1")), QColor(255, 255, 0));
        QCOMPARE(fill(QStringLiteral("Command2(0)")), QColor(0, 255, 255));
        QCOMPARE(fill(QStringLiteral("Command2(1)")), QColor(0, 255, 0));
        QCOMPARE(fill(QStringLiteral("Command2(2)")), QColor(255, 0, 0));
    }

    QTemporaryDir folder;
    ScriptedRandom random;
    FakeClock clock;
    ui::ScreenSet screens;

private:
    QPointer<ui::Screen> m_screen;
};

/// main() of a screen test: the application looks and behaves as the program's.
#define PIZARRIN_SCREEN_TEST_MAIN(TestClass)                                                     \
    int main(int argc, char* argv[])                                                             \
    {                                                                                            \
        ui::ignoreDesktopSettings();                                                             \
        QApplication application(argc, argv);                                                    \
        ui::setUpApplication();                                                                  \
        TestClass test;                                                                          \
        return QTest::qExec(&test, argc, argv);                                                  \
    }
