#include "support/box_answerer.h"
#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "ui/display_event.h"

#include <QAbstractNativeEventFilter>
#include <QProcess>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Counts what the display sends, whatever becomes of it.
class InputWatch final : public QObject {
public:
    InputWatch() { comeFirst(); }

    /// Before whatever has begun to filter events meanwhile.
    void comeFirst() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!watched->isWindowType())
            return false;
        if (event->type() == QEvent::KeyPress)
            ++(static_cast<QKeyEvent*>(event)->isAutoRepeat() ? repeats : presses);
        else if (event->type() == QEvent::KeyRelease)
            releases += static_cast<QKeyEvent*>(event)->isAutoRepeat() ? 0 : 1;
        else if (event->type() == QEvent::MouseButtonRelease)
            ++clicks;
        else if (event->type() == QEvent::Close)
            ++requestsToClose;
        return false;
    }

    int presses = 0;
    int repeats = 0;
    int releases = 0;
    int clicks = 0;
    int requestsToClose = 0;
};

/// Counts the presses on a window that is blocked: the toolkit keeps them to itself.
class PressWatch final : public QAbstractNativeEventFilter {
public:
    explicit PressWatch(const QWidget& window)
        : m_window(window.winId())
    {
        qApp->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override
    {
        const ui::DisplayEvent event = ui::readDisplayEvent(type, message);
        if (event.window == m_window && event.kind == ui::DisplayEvent::Kind::Press)
            ++count;
        return false;
    }

    int count = 0;

private:
    quintptr m_window;
};

} // namespace

/// The program under the display's own keys and clicks, with a window manager.
class RealKeysTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        program = std::make_unique<ProgramBench>();
        watch = std::make_unique<InputWatch>();
        menu = &open(u"Form1"_s);
    }
    void cleanup()
    {
        display({u"keyup"_s, u"Return"_s});
        watch.reset();
        program.reset();
    }

    // --- a held key acts once

    void enterHeldOnTheMenuOpensAnActivityAndNoMore()
    {
        button(*menu, u"Command1(0)"_s).setFocus();
        display({u"keydown"_s, u"Return"_s});
        QTRY_VERIFY(screenHasKeyboard(u"Form4"_s));
        seeRepeats();
        release();
        QCOMPARE(text(u"Form4"_s, u"tbResultados"_s), u"Ejercicios:  0; Errores:  0"_s);
    }

    void enterHeldInTheResultOfAMultiplicationCountsOneError()
    {
        ui::Screen& screen = open(u"Form3"_s);
        ScreenBench::find<QLineEdit>(screen, u"TBResultado"_s).setFocus();
        holdEnter();
        QCOMPARE(text(u"Form3"_s, u"Text2"_s), u"Ejercicios:  1; Errores:  1"_s);
    }

    void enterHeldOnTheLastAnswerOfADrillLeavesItsReportToBeRead()
    {
        startDrill(u"Option1(2)"_s);
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) {
            QTRY_VERIFY(hasKeyboard(box));
            seeRepeats();
            release();
            QVERIFY(box.isVisible());
        };
        display({u"keydown"_s, u"Return"_s});
        QTRY_VERIFY(!program->screens.loaded(u"Form8"_s));
        QVERIFY(boxes.texts.first().startsWith(u"Número de operaciones: 1. "_s));
    }

    void enterHeldAfterABoxDoesNothingBehindIt()
    {
        startDrill(u"Option1(2)"_s);
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) {
            QTRY_VERIFY(hasKeyboard(box));
            release();
            display({u"keydown"_s, u"Return"_s});
            QTRY_VERIFY(!box.isVisible());
        };
        display({u"keydown"_s, u"Return"_s});
        QTRY_VERIFY(hasKeyboard(*menu));
        seeRepeats();
        release();
        QVERIFY(!program->screens.loaded(u"Form8"_s));
    }

    void enterHeldAnswersNoQuestion()
    {
        button(*menu, wayOut()).setFocus();
        bool answer = false;
        BoxAnswerer boxes{u"No"_s};
        boxes.whileOpen = [&](QDialog& box) {
            QTRY_VERIFY(hasKeyboard(box));
            seeRepeats();
            release();
            QVERIFY(box.isVisible());
        };
        button(*menu, wayOut()).disconnect();
        connect(&button(*menu, wayOut()), &QPushButton::clicked, menu,
            [&] { answer = ui::MessageBox::ask(*menu, u"¿Otra vez?"_s); });
        display({u"keydown"_s, u"Return"_s});
        QTRY_COMPARE(boxes.texts.size(), 1);
        QTRY_VERIFY(hasKeyboard(*menu));
        QVERIFY(!answer);
    }

    void enterHeldOnARightAnswerOfTheRaceIsNoWrongOneToo()
    {
        startRace();
        typeResult();
        holdEnter();
        QCOMPARE(text(u"FrmCarrera"_s, u"Text4"_s).trimmed(), u"Correcto"_s);
    }

    void heldAccessKeyOfAButtonPressesItOnce()
    {
        open(u"Form4"_s);
        display({u"keydown"_s, u"Alt_L"_s, u"keydown"_s, u"h"_s}); // "&Hecho"
        seeRepeats();
        display({u"keyup"_s, u"h"_s, u"keyup"_s, u"Alt_L"_s});
        QCOMPARE(text(u"Form4"_s, u"tbResultados"_s), u"Ejercicios:  1; Errores:  1"_s);
    }

    void altF4HeldClosesOneWindow()
    {
        button(*menu, u"Command1(0)"_s).click();
        QTRY_VERIFY(screenHasKeyboard(u"Form4"_s));
        watch->comeFirst();
        display({u"keydown"_s, u"Alt_L"_s, u"keydown"_s, u"F4"_s});
        QTRY_VERIFY(watch->requestsToClose >= 4); // the window manager's, one a repeat
        display({u"keyup"_s, u"F4"_s, u"keyup"_s, u"Alt_L"_s});
        QVERIFY(program->screens.loaded(u"Form4"_s) == nullptr);
        QVERIFY(program->screens.loaded(u"Form1"_s) != nullptr);
    }

    // --- boxes that come up by themselves

    void theEndOfADrillByTimeIsNotAnsweredByAnAnswersEnter()
    {
        startDrill(u"Option1(1)"_s);
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) { hurry(box); };
        program->clock.passingWithEachLook = 0ms;
        for (int second = 0; second < 2 * 60; ++second)
            tick(u"Form8"_s, u"Timer2"_s);
        QCOMPARE(boxes.texts.size(), 1);
    }

    void aLostRaceIsNotAnsweredByAnAnswersEnterAndTheNextOneStartsNoOther()
    {
        startRace();
        typeResult();
        pressEnter();
        loseRace();
        const QString operation = text(u"FrmCarrera"_s, u"TBOperación"_s);
        QTRY_VERIFY(screenHasKeyboard(u"FrmCarrera"_s));
        pressEnter();
        QCOMPARE(text(u"FrmCarrera"_s, u"TBOperación"_s), operation);
        QVERIFY(
            !ScreenBench::find<QLineEdit>(loaded(u"FrmCarrera"_s), u"TBResultado"_s).isEnabled());
    }

    // --- number rain

    void spaceMeantForTheNumberBeforeHitsNotTheNewOne()
    {
        ui::Screen& rain = open(u"Form5"_s);
        program->clock.passingWithEachLook = 0ms;
        button(rain, u"CbEmpezar"_s).click();
        ScreenBench::find<QTimer>(rain, u"Timer1"_s).stop();
        for (int step = 0; step < 12; ++step)
            tick(u"Form5"_s, u"Timer1"_s);
        auto& second = button(rain, u"CbNave(1)"_s);
        QTRY_VERIFY(second.hasFocus());
        const QString points = text(u"Form5"_s, u"Text2(0)"_s);
        press(u"space"_s);
        QCOMPARE(text(u"Form5"_s, u"Text2(0)"_s), points);
        program->clock.passed += 250ms;
        press(u"space"_s);
        QVERIFY(text(u"Form5"_s, u"Text2(0)"_s) != points);
    }

    // --- lost windows

    void theMenuBringsAMinimisedActivityBack_data()
    {
        QTest::addColumn<bool>("clicked");
        QTest::newRow("clicked") << true;
        QTest::newRow("activated") << false;
    }
    void theMenuBringsAMinimisedActivityBack()
    {
        QFETCH(bool, clicked);
        button(*menu, u"Command1(0)"_s).click();
        QTRY_VERIFY(screenHasKeyboard(u"Form4"_s));
        ui::Screen& activity = loaded(u"Form4"_s);
        minimise(activity);
        if (clicked) {
            QTRY_COMPARE(activeOnDisplay(), menu->winId()); // else the click may come too early
            clickMenu(menu->rect().center());
        } else {
            minimise(*menu);
            display({u"windowactivate"_s, QString::number(menu->winId())});
        }
        QTRY_VERIFY(!activity.isMinimized() && hasKeyboard(activity));
        QCOMPARE(menu->isVisible(), true);
    }

    void aRaceThatIsLostWhileMinimisedComesBackBehindItsBox()
    {
        startRace();
        typeResult();
        pressEnter();
        minimise(loaded(u"FrmCarrera"_s));
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) {
            QTRY_VERIFY(hasKeyboard(box));
            const PressWatch presses(*menu);
            clickMenu(menu->rect().bottomLeft() + QPoint(8, -8));
            QTRY_VERIFY(presses.count > 0);
            program->clock.passed += 800ms;
            pressEnter();
            QVERIFY(!box.isVisible());
        };
        tickUntilLost();
        QCOMPARE(boxes.texts.size(), 1);
        QTRY_VERIFY(screenHasKeyboard(u"FrmCarrera"_s));
        QVERIFY(!loaded(u"FrmCarrera"_s).isMinimized());
    }

    void theMenuBringsTheAboutBoxBack()
    {
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) {
            QTRY_VERIFY(hasKeyboard(box));
            minimise(box);
            display({u"windowactivate"_s, QString::number(menu->winId())});
            QTRY_VERIFY(hasKeyboard(box) && !box.isMinimized());
        };
        ScreenBench::find<QAction>(*menu, u"MnuAce"_s).trigger();
        QCOMPARE(boxes.texts.size(), 1);
    }

private:
    static constexpr int EnoughRepeats = 10;

    /// Lets xdotool do something with the display.
    static void display(const QStringList& commands)
    {
        QCOMPARE(QProcess::execute(u"xdotool"_s, commands), 0);
    }

    ui::Screen& loaded(const QString& name) const { return *program->screens.loaded(name); }
    ui::Screen& open(const QString& name) const
    {
        program->screens.show(name);
        makeActive(loaded(name));
        return loaded(name);
    }
    bool screenHasKeyboard(const QString& name) const
    {
        const ui::Screen* screen = program->screens.loaded(name);
        return screen != nullptr && hasKeyboard(*screen);
    }
    static QPushButton& button(const ui::Screen& screen, const QString& name)
    {
        return ScreenBench::find<QPushButton>(screen, name);
    }
    QString text(const QString& screen, const QString& box) const
    {
        return ScreenBench::find<QLineEdit>(loaded(screen), box).text();
    }
    void tick(const QString& screen, const QString& timer) const
    {
        QMetaObject::invokeMethod(
            &ScreenBench::find<QTimer>(loaded(screen), timer), "timeout", Qt::DirectConnection);
    }

    // --- keys

    void seeRepeats() const
    {
        const int before = watch->repeats;
        QTRY_VERIFY(watch->repeats >= before + EnoughRepeats);
    }
    void release() const
    {
        const int before = watch->releases;
        display({u"keyup"_s, u"Return"_s});
        QTRY_COMPARE(watch->releases, before + 1);
    }
    void holdEnter() const
    {
        display({u"keydown"_s, u"Return"_s});
        seeRepeats();
        release();
    }
    void press(const QString& key) const
    {
        const int before = watch->releases;
        display({u"key"_s, key});
        QTRY_COMPARE(watch->releases, before + 1);
    }
    void pressEnter() const { press(u"Return"_s); }

    /// Answers a box too early, by key and by click; then it is old enough to be answered.
    void hurry(QDialog& box) const
    {
        QTRY_VERIFY(hasKeyboard(box));
        watch->comeFirst();
        pressEnter();
        const auto* accept = box.findChild<QPushButton*>();
        const QPoint place = accept->mapToGlobal(accept->rect().center());
        const int clicks = watch->clicks;
        display({u"mousemove"_s, QString::number(place.x()), QString::number(place.y()),
            u"click"_s, u"1"_s});
        QTRY_COMPARE(watch->clicks, clicks + 1);
        QVERIFY(box.isVisible());
        program->clock.passed += 800ms;
        pressEnter();
        QVERIFY(!box.isVisible());
    }

    // --- activities

    /// A drill that ends at 2 of what the option limits, with the answer of its first
    /// operation typed.
    void startDrill(const QString& option) const
    {
        button(*menu, u"Command1(2)"_s).setFocus();
        button(*menu, u"Command1(2)"_s).click();
        QTRY_VERIFY(screenHasKeyboard(u"Form8"_s));
        const ui::Screen& drill = loaded(u"Form8"_s);
        ScreenBench::find<QAbstractButton>(drill, option).click();
        ScreenBench::find<QLineEdit>(drill, u"Text1"_s).setText(u"2"_s);
        button(drill, u"Command1"_s).click();
        for (const QString& timer : {u"Timer1"_s, u"Timer2"_s})
            ScreenBench::find<QTimer>(drill, timer).stop();
    }

    void startRace() const
    {
        button(*menu, u"Command1(10)"_s).click();
        QTRY_VERIFY(screenHasKeyboard(u"DlgCarrera"_s));
        loaded(u"DlgCarrera"_s).close();
        QTRY_VERIFY(screenHasKeyboard(u"FrmCarrera"_s));
    }
    void typeResult() const
    {
        const QStringList operation =
            text(u"FrmCarrera"_s, u"TBOperación"_s).split(u' ', Qt::SkipEmptyParts);
        const int result = operation.at(0).toInt() * operation.at(2).toInt();
        ScreenBench::find<QLineEdit>(loaded(u"FrmCarrera"_s), u"TBResultado"_s)
            .setText(QString::number(result));
    }
    void loseRace() const
    {
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) { hurry(box); };
        tickUntilLost();
        QCOMPARE(boxes.texts.size(), 1);
    }
    void tickUntilLost() const
    {
        program->clock.passingWithEachLook = 0ms;
        ScreenBench::find<QTimer>(loaded(u"FrmCarrera"_s), u"Timer2"_s).stop();
        for (int step = 0; step < 60; ++step)
            tick(u"FrmCarrera"_s, u"Timer2"_s);
    }

    void clickMenu(const QPoint& where) const
    {
        const QPoint place = menu->mapToGlobal(where);
        display({u"mousemove"_s, QString::number(place.x()), QString::number(place.y()),
            u"click"_s, u"1"_s});
    }
    /// The window that has the keyboard, as the window manager tells.
    static WId activeOnDisplay()
    {
        QProcess asked;
        asked.start(u"xdotool"_s, {u"getactivewindow"_s});
        asked.waitForFinished();
        return asked.readAllStandardOutput().trimmed().toULongLong();
    }
    static void minimise(const QWidget& window)
    {
        settleWindows(); // it may still be asking to be activated
        display({u"windowminimize"_s, QString::number(window.winId())});
        QTRY_VERIFY2(window.isMinimized(), qPrintable(window.objectName()));
    }

    std::unique_ptr<ProgramBench> program;
    std::unique_ptr<InputWatch> watch;
    ui::Screen* menu = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(RealKeysTest)
#include "real_keys_test.moc"
