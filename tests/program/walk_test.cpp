#include "support/display.h"
#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "support/text_fit.h"

#include <QAbstractButton>
#include <QDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

enum class Hand { Mouse, Keyboard };

QString textOf(const QRect& place)
{
    return u"%1×%2 at %3, %4"_s.arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y());
}

/// Answers every box with its button of this index, or its last, and keeps what was wrong
/// with the boxes.
class Answerer {
public:
    explicit Answerer(int choice)
        : m_choice(choice)
    {
    }

    QStringList faults;
    int mostButtons = 0; ///< of all boxes that came up

private:
    void answer(QDialog& box)
    {
        const auto buttons = box.findChildren<QPushButton*>();
        for (const QPushButton* button : buttons)
            if (!QStringList{u"Aceptar"_s, u"Cancelar"_s, u"Sí"_s, u"No"_s}.contains(
                    button->text()))
                faults << u"a button reads "_s + button->text();
        const QRect display = QGuiApplication::primaryScreen()->geometry();
        // A window manager tells where it has put the frame after the window is active.
        if (!QTest::qWaitFor([&] { return display.contains(box.frameGeometry()); }))
            faults << u"a box leaves the display: %1"_s.arg(textOf(box.frameGeometry()));
        if (box.width() > 0.7 * display.width())
            faults << u"a box is too wide: %1"_s.arg(textOf(box.geometry()));
        mostButtons = std::max(mostButtons, static_cast<int>(buttons.size()));
        QTest::mouseClick(
            buttons.at(std::min<qsizetype>(m_choice, buttons.size() - 1)), Qt::LeftButton);
    }

    int m_choice;
    BoxWatcher m_watcher{[this](QDialog& box) { answer(box); }};
};

/// The leaves of a screen's menus.
QList<QAction*> itemsOf(const QWidget& screen)
{
    QList<QAction*> items;
    for (QAction* action : screen.findChildren<QAction*>())
        if (!action->objectName().isEmpty() && action->menu() == nullptr)
            items << action;
    return items;
}

/// The menus that lead to an item, the one on the bar first.
QList<QMenu*> pathTo(const QAction& item)
{
    QList<QMenu*> path;
    for (auto* menu = qobject_cast<QMenu*>(item.parent()); menu != nullptr;
         menu = qobject_cast<QMenu*>(menu->parent()))
        path.prepend(menu);
    return path;
}

} // namespace

/// Presses every button and picks every menu item of every screen, with the mouse and with
/// keys alone, answers every box with each of its buttons, and looks at what is left on the
/// display each time.
class WalkTest : public QObject {
    Q_OBJECT

private slots:
    void everyButton_data() { addRows(); }
    void everyButton()
    {
        for (const QString& name : names<QAbstractButton>())
            withEveryAnswer([&] { press(ScreenBench::find<QAbstractButton>(*screen, name)); });
    }

    void everyMenuItem_data() { addRows(); }
    void everyMenuItem()
    {
        open();
        QStringList items;
        for (const QAction* item : itemsOf(*screen))
            items << item->objectName();
        for (const QString& name : items)
            withEveryAnswer([&] { pick(ScreenBench::find<QAction>(*screen, name)); });
    }

private:
    static void addRows()
    {
        QTest::addColumn<QString>("screenName");
        QTest::addColumn<Hand>("hand");
        for (const QString& name : screenNames()) {
            QTest::addRow("%s, mouse", qPrintable(name)) << name << Hand::Mouse;
            QTest::addRow("%s, keys", qPrintable(name)) << name << Hand::Keyboard;
        }
    }

    void open()
    {
        QFETCH(QString, screenName);
        program = std::make_unique<ProgramBench>();
        program->screens.show(screenName);
        screen = program->screens.loaded(screenName);
        QCoreApplication::processEvents();
        if (auto* options = program->screens.loaded(u"DlgCarrera"_s);
            options != nullptr && options != screen) {
            makeActive(*options);
            ScreenBench::find<QPushButton>(*options, u"OKButton"_s).click();
        }
        makeActive(*screen);
        QVERIFY(QApplication::focusWidget());
    }

    /// Those that a person can press as the screen comes up.
    template <typename Control> QStringList names()
    {
        open();
        QStringList found;
        for (const Control* control : screen->findChildren<Control*>())
            if (control->isVisible() && control->isEnabled() && !control->objectName().isEmpty()
                && screen->rect().contains(control->mapTo(screen, control->rect().center())))
                found << control->objectName();
        return found;
    }

    void withEveryAnswer(const std::function<void()>& act)
    {
        int answers = 1;
        for (int choice = 0; choice < answers; ++choice) {
            open();
            Answerer answerer(choice);
            act();
            QCoreApplication::processEvents();
            QVERIFY2(answerer.faults.isEmpty(), qPrintable(answerer.faults.join(u"; "_s)));
            lookAround();
            answers = std::max(answers, answerer.mostButtons);
        }
    }

    void press(QAbstractButton& button)
    {
        QFETCH(Hand, hand);
        int presses = 0;
        connect(&button, &QAbstractButton::pressed, this, [&presses] { ++presses; });
        if (hand == Hand::Mouse)
            QTest::mouseClick(&button, Qt::LeftButton, {}, placeToPress(button));
        else
            pressByKeys(button);
        QVERIFY2(presses >= 1, qPrintable(button.objectName())); // arrows press options too
    }

    /// Options and check boxes are pressed on their sign or their text.
    static QPoint placeToPress(const QAbstractButton& button)
    {
        const int middle = button.height() / 2;
        return {button.inherits("QPushButton") ? button.width() / 2 : middle, middle};
    }

    static void pressByKeys(QAbstractButton& button)
    {
        constexpr int MostStops = 60;
        for (int i = 0; i < MostStops && QApplication::focusWidget() != &button; ++i) {
            QVERIFY2(QApplication::focusWidget(), qPrintable(button.objectName()));
            QTest::keyClick(
                QApplication::focusWidget(), goesByArrows(button) ? Qt::Key_Down : Qt::Key_Tab);
        }
        QVERIFY2(button.hasFocus(), qPrintable(button.objectName()));
        QTest::keyClick(&button, Qt::Key_Space);
    }

    /// Options are one stop of the Tab key: among them, arrows lead on.
    static bool goesByArrows(const QAbstractButton& button)
    {
        const QWidget* focus = QApplication::focusWidget();
        return button.inherits("QRadioButton") && focus->inherits("QRadioButton");
    }

    void pick(QAction& item)
    {
        QFETCH(Hand, hand);
        const QList<QMenu*> path = pathTo(item);
        int picks = 0;
        connect(&item, &QAction::triggered, this, [&picks] { ++picks; });
        hand == Hand::Mouse ? pickByMouse(item, path) : pickByKeys(item, path);
        QCOMPARE(picks, 1);
    }

    void pickByMouse(QAction& item, const QList<QMenu*>& path)
    {
        auto* bar = screen->findChild<QMenuBar*>();
        QAction* onBar = path.isEmpty() ? &item : path.first()->menuAction();
        clickOn(*bar, bar->actionGeometry(onBar).center());
        for (qsizetype i = 0; i < path.size(); ++i) {
            QTRY_VERIFY(path.at(i)->isVisible());
            // The first menu takes the keyboard, so the display gives it the focus, and in 6.11
            // a menu that hears of this takes the mouse from those that it has opened since. A
            // person's click comes after it by way of the display, these overtake it.
            settleWindows();
            verifyMenu(*path.at(i));
            QAction* next = i + 1 < path.size() ? path.at(i + 1)->menuAction() : &item;
            clickOn(*path.at(i), path.at(i)->actionGeometry(next).center());
        }
    }

    /// Clicks by way of the window, which tells the toolkit where the pointer is: from 6.8 on,
    /// a menu closes when it is pressed without the pointer having moved since it came up.
    static void clickOn(QWidget& widget, QPoint place)
    {
        QWindow* window = widget.window()->windowHandle();
        place = widget.mapTo(widget.window(), place);
        QTest::mouseMove(window, place);
        QTest::mouseClick(window, Qt::LeftButton, {}, place);
    }

    void pickByKeys(QAction& item, const QList<QMenu*>& path)
    {
        if (path.isEmpty()) {
            auto* bar = screen->findChild<QMenuBar*>();
            QTest::keyClick(screen, Qt::Key_F10);
            QVERIFY(bar->hasFocus());
            QCOMPARE(bar->activeAction(), &item);
            QTest::keyClick(bar, Qt::Key_Return);
            return;
        }
        QTest::keyClick(screen, Qt::Key_O, Qt::AltModifier); // "&Opciones", on every screen
        for (qsizetype i = 0; i < path.size(); ++i) {
            QTRY_VERIFY(path.at(i)->isVisible());
            QAction* next = i + 1 < path.size() ? path.at(i + 1)->menuAction() : &item;
            constexpr int MostItems = 20;
            for (int down = 0; down < MostItems && path.at(i)->activeAction() != next; ++down)
                QTest::keyClick(path.at(i), Qt::Key_Down);
            QCOMPARE(path.at(i)->activeAction(), next);
            QTest::keyClick(path.at(i), Qt::Key_Return);
        }
    }

    static void verifyMenu(const QMenu& menu)
    {
        QVERIFY2(QGuiApplication::primaryScreen()->geometry().contains(menu.geometry()),
            qPrintable(menu.objectName()));
    }

    /// No menu stays open, every screen is whole on the display, and a key goes somewhere.
    void lookAround() const
    {
        QVERIFY(!QApplication::activePopupWidget());
        for (QWidget* window : QApplication::topLevelWidgets()) {
            const auto* shown = dynamic_cast<ui::Screen*>(window);
            if (shown == nullptr || !shown->isVisible())
                continue;
            if (shown->objectName() != u"Form3"_s) // whose digits shrink with their squares
                QCOMPARE(textsCutOff(*shown).join(u' '), QString());
            const QRect display = QGuiApplication::primaryScreen()->geometry();
            QVERIFY2(display.adjusted(0, 0, 1, 1).contains(shown->geometry()),
                qPrintable(shown->objectName()));
            if (shown->isActiveWindow())
                QVERIFY2(shown->focusWidget(), qPrintable(shown->objectName()));
        }
    }

    std::unique_ptr<ProgramBench> program;
    QPointer<ui::Screen> screen;
};

DISPLAY_TEST_MAIN(WalkTest)
#include "walk_test.moc"
