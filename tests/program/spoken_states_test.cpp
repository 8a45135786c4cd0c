#include "support/program_bench.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

/// Whatever state an activity is in, there is something for a reader to say at F2.
class SpokenStatesTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        program = std::make_unique<ProgramBench>();
        boxes = 0;
    }
    void cleanup() { program.reset(); }

    void everyButtonLeavesSomethingToSay_data()
    {
        QTest::addColumn<QString>("name");
        for (const shell::Activity& activity : activities())
            QTest::newRow(qPrintable(activity.screen)) << activity.screen;
    }
    void everyButtonLeavesSomethingToSay()
    {
        QFETCH(QString, name);
        verifySpoken(open(name), u"opening"_s);
        QStringList buttons;
        for (const auto* button : open(name).findChildren<QPushButton*>())
            buttons << button->objectName();
        for (const QString& button : buttons + buttons) // whatever the others have done before
            press(button);
    }

    void everyOptionLeavesSomethingToSay_data() { everyButtonLeavesSomethingToSay_data(); }
    void everyOptionLeavesSomethingToSay()
    {
        QFETCH(QString, name);
        QStringList options;
        for (const auto* action : open(name).findChildren<QAction*>()) {
            if (!action->objectName().isEmpty() && action->menu() == nullptr)
                options << action->objectName();
        }
        for (const QString& option : options) {
            ui::Screen& screen = open(name);
            ScreenBench::find<QAction>(screen, option).trigger();
            verifySpoken(open(name), option);
        }
    }

    void quickTablesSayWhatToDoBeforeTheStartToo()
    {
        ui::Screen& screen = open(u"Form8"_s);
        QCOMPARE(screen.spokenExercise(), u"Escribe el resultado correcto y pulsa enter "_s);
        ScreenBench::find<QPushButton>(screen, u"Command1"_s).click();
        QVERIFY(screen.spokenExercise().contains(u" por "_s));
    }

    void aLifeLostLeavesTheRule()
    {
        ui::Screen& screen = open(u"Form5"_s);
        const QString rule = screen.spokenExercise();
        QVERIFY(rule.startsWith(u"Elimina"_s));
        ScreenBench::find<QPushButton>(screen, u"CbEmpezar"_s).click();
        while (boxes == 0)
            tick(screen, u"Timer1"_s);
        QCOMPARE(screen.spokenExercise(), rule);
    }

    void aRaceThatIsOverSaysSo()
    {
        ui::Screen& screen = open(u"FrmCarrera"_s);
        const QString operation = screen.spokenExercise();
        QVERIFY(operation.contains(u" por "_s));
        const QStringList factors = operation.split(u" por "_s);
        auto& answer = ScreenBench::find<QLineEdit>(screen, u"TBResultado"_s);
        answer.setText(QString::number(factors.first().toInt() * factors.last().toInt()));
        QTest::keyClick(&answer, Qt::Key_Return); // the rival starts
        while (boxes == 0)
            tick(screen, u"Timer2"_s);
        QCOMPARE(screen.spokenExercise(),
            u"La carrera ha terminado. Pulsa en uno de los botones inferiores."_s);
        ScreenBench::find<QPushButton>(screen, u"Command1(1)"_s).click();
        QVERIFY(screen.spokenExercise().contains(u" por "_s));
    }

private:
    /// The screen of an activity, opened unless it is; of a race, with its cars chosen.
    ui::Screen& open(const QString& name)
    {
        if (program->screens.loaded(name) == nullptr) {
            program->screens.show(name);
            runPendingEvents();
        }
        for (const QString& dialog : dialogs()) {
            ui::Screen* open = program->screens.loaded(dialog);
            if (open != nullptr && open->isVisible())
                accept(*open);
        }
        return *program->screens.loaded(name);
    }
    static void accept(const ui::Screen& dialog)
    {
        ScreenBench::find<QPushButton>(dialog, u"OKButton"_s).click();
        runPendingEvents();
    }
    void press(const QString& button)
    {
        QFETCH(QString, name);
        auto& pressed = ScreenBench::find<QPushButton>(open(name), button);
        if (!pressed.isVisible() || !pressed.isEnabled())
            return;
        pressed.click();
        runPendingEvents();
        verifySpoken(open(name), button);
    }
    static void verifySpoken(const ui::Screen& screen, const QString& behind)
    {
        QVERIFY2(!screen.spokenExercise().trimmed().isEmpty(), qPrintable(behind));
    }
    static void tick(const ui::Screen& screen, const QString& timer)
    {
        QMetaObject::invokeMethod(
            &ScreenBench::find<QTimer>(screen, timer), "timeout", Qt::DirectConnection);
    }

    std::unique_ptr<ProgramBench> program;
    int boxes = 0;
    BoxWatcher watcher{[this](QDialog& box) {
        ++boxes;
        box.done(QDialog::Accepted);
    }};
};

PIZARRIN_SCREEN_TEST_MAIN(SpokenStatesTest)
#include "spoken_states_test.moc"
