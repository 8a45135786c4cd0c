#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "support/speech.h"
#include "support/typing.h"
#include "ui/announcement.h"

#include <QDialog>
#include <QMenuBar>

using namespace Qt::StringLiterals;

/// What a screen reader is told. Only a real desktop hands these events on.
class AnnouncementsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 60000); // the desktop's bus starts
        listenToSpeech();
    }
    void init()
    {
        program = std::make_unique<ProgramBench>();
        spoken.clear();
    }
    void cleanup() { program.reset(); }

    void everyNewExerciseIsSpoken_data()
    {
        QTest::addColumn<QString>("name");
        // The tables go on by themselves from a right answer, quick tables and games have clocks:
        // each is tried by itself below.
        for (const QString& name :
            activityScreensBut({u"Form2"_s, u"Form5"_s, u"Form8"_s, u"FrmCarrera"_s}))
            QTest::newRow(qPrintable(name)) << name;
    }
    void everyNewExerciseIsSpoken()
    {
        ui::Screen& screen = open();
        QCOMPARE(exercisesIn(heard(), screen), 1); // once, though drawn before the screen came up
        click(screen, u"Command2(2)"_s); // some screens go on only from the solution
        heard();
        click(screen, u"Command2(0)"_s);
        QCOMPARE(exercisesIn(heard(), screen), 1);
    }

    void everyVerdictIsSpokenAgainAndAgain_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("verdict");
        const QMap<QString, QString> verdicts{{u"Form3"_s, u"resultado incorrecto"_s},
            {u"Form4"_s, u"Respuesta incorrecta"_s}, {u"Form6"_s, u"Resultado incorrecto"_s},
            {u"FRMCombi"_s, u"Resultado incorrecto"_s},
            {u"FrmMultHuecos"_s, u"Respuesta incorrecta"_s},
            {u"FormProblemas"_s, u"Respuesta incorrecta"_s}};
        // Those left out are tried by themselves below.
        for (const QString& name : activityScreensBut(
                 {u"Form2"_s, u"Form5"_s, u"Form8"_s, u"FrmCarrera"_s, u"FrmMultidivi"_s}))
            QTest::newRow(qPrintable(name)) << name << verdicts.value(name);
    }
    void everyVerdictIsSpokenAgainAndAgain()
    {
        QFETCH(QString, verdict);
        QVERIFY2(!verdict.isEmpty(), "what it says of a wrong answer is to be listed above");
        ui::Screen& screen = open();
        heard();
        for (int times = 0; times < 2; ++times) {
            for (auto* box : screen.findChildren<QLineEdit*>())
                if (!box->isReadOnly())
                    typeInto(box, u"-"_s); // wrong, whatever was asked
            heard(); // where the caret is
            click(screen, u"Command1"_s);
            const QStringList told = heard();
            QCOMPARE(told.filter(verdict).size(), 1);
            QCOMPARE(told.first().trimmed(), verdict);
        }
    }

    void multiplesSpeakVerdicts()
    {
        ui::Screen& screen = open(u"FrmMultidivi"_s);
        heard();
        for (int i = 0; i < 3; ++i)
            typeInto(&ScreenBench::find<QLineEdit>(screen, u"Text3(%1)"_s.arg(i)), u"1"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(heard(), {u"Resultado incorrecto"_s});
    }

    void exercisesAreSpokenAgainByKey_data()
    {
        QTest::addColumn<QString>("name");
        // On squared paper the place is said too; quick tables and games have clocks.
        for (const QString& name :
            activityScreensBut({u"Form3"_s, u"Form5"_s, u"Form6"_s, u"Form8"_s, u"FrmCarrera"_s}))
            QTest::newRow(qPrintable(name)) << name;
    }
    void exercisesAreSpokenAgainByKey()
    {
        ui::Screen& screen = open();
        const QString exercise = screen.spokenExercise();
        QVERIFY(!exercise.isEmpty());
        QCOMPARE(heard(), {exercise});
        for (QWidget* control : screen.findChildren<QWidget*>()) {
            if (!(control->focusPolicy() & Qt::TabFocus) || !control->isEnabled())
                continue;
            control->setFocus();
            QTest::keyClick(control, Qt::Key_F2);
            QVERIFY2(heard() == QStringList{exercise}, qPrintable(control->objectName()));
        }
        QTest::keyClick(&screen, Qt::Key_F2, Qt::ShiftModifier);
        QCOMPARE(heard(), {});
    }

    void gapAndTablesSpeakTheirSolutions()
    {
        ui::Screen& gap = open(u"FrmMultHuecos"_s);
        heard();
        click(gap, u"Command2(2)"_s);
        const auto shown = [&gap](const QString& box) {
            return ScreenBench::find<QLineEdit>(gap, box).text();
        };
        QCOMPARE(heard(),
            {u"%1 por %2 igual a %3"_s.arg(
                shown(u"TbTermin(0)"_s), shown(u"TbTermin(1)"_s), shown(u"TbTermin(2)"_s))});

        ui::Screen& tables = open(u"Form2"_s);
        click(tables, u"Command3(0)"_s);
        typeInto(&ScreenBench::find<QLineEdit>(tables, u"TbOperación(4)"_s), u"7"_s);
        click(tables, u"Command1"_s); // the solution is shown only behind an error
        heard();
        click(tables, u"Command2(2)"_s);
        QCOMPARE(heard(), {u"1 por 1 igual a 1"_s});
    }

    void tablesSpeakQuestionsAndVerdicts()
    {
        ui::Screen& screen = open(u"Form2"_s);
        heard();
        click(screen, u"Command3(0)"_s); // the table in order
        QCOMPARE(heard(), {u"1 por 1"_s});
        auto& answer = ScreenBench::find<QLineEdit>(screen, u"TbOperación(4)"_s);
        typeInto(&answer, u"7"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(heard(), {u"resultado incorrecto "_s});
        typeInto(&answer, u"1"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(heard(), QStringList({u"Resultado correcto"_s, u"1 por 2"_s}));
    }

    void quickTablesSpeakOperationsAndVerdicts()
    {
        ui::Screen& screen = open(u"Form8"_s);
        const QString whatToDo = screen.spokenExercise();
        QCOMPARE(heard(), {whatToDo});
        QTest::keyClick(&screen, Qt::Key_F2);
        QCOMPARE(heard(), {whatToDo});
        click(screen, u"Command1"_s);
        const QString operation = screen.spokenExercise();
        QCOMPARE(heard(), {operation});
        QTest::keyClick(&screen, Qt::Key_F2);
        QCOMPARE(heard(), {operation});
        QTest::keyClick(&ScreenBench::find<QLineEdit>(screen, u"TbDatos(4)"_s), Qt::Key_Return);
        QCOMPARE(heard(), QStringList({u"MAL"_s, screen.spokenExercise()}));
        auto& timer = ScreenBench::find<QTimer>(screen, u"Timer1"_s);
        for (int second = 0; second < 10; ++second)
            QMetaObject::invokeMethod(&timer, "timeout", Qt::DirectConnection);
        QCOMPARE(heard(), QStringList({u"Tiempo agotado"_s, u"MAL"_s, screen.spokenExercise()}));
    }

    void rainSpeaksTheRuleOfThePhase()
    {
        ui::Screen& screen = open(u"Form5"_s);
        const auto& rule = ScreenBench::find<QLineEdit>(screen, u"Text1"_s);
        QVERIFY2(heard().contains(rule.text()), qPrintable(rule.text()));
    }

    void rainSpeaksWhatBecameOfANumber()
    {
        ui::Screen& screen = open(u"Form5"_s);
        click(screen, u"CbEmpezar"_s);
        auto& clock = ScreenBench::find<QTimer>(screen, u"Timer1"_s);
        auto& number = ScreenBench::find<QPushButton>(screen, u"CbNave(0)"_s);
        clock.stop();
        while (!number.isVisible())
            QMetaObject::invokeMethod(&clock, "timeout", Qt::DirectConnection);
        heard();
        const bool target = number.text().toInt() % 2 == 1;
        QTest::mouseClick(&number, Qt::LeftButton);
        QCOMPARE(heard(), {target ? u"Acierto 1"_s : u"Error"_s});
    }

    void rainSpeaksALifeLost()
    {
        ui::Screen& screen = open(u"Form5"_s);
        ScreenBench::find<QAction>(screen, u"MnuOpcMod(2)"_s).trigger();
        click(screen, u"CbEmpezar"_s);
        auto& clock = ScreenBench::find<QTimer>(screen, u"Timer1"_s);
        clock.stop();
        heard();
        BoxAnswerer boxes(u"Aceptar"_s);
        while (boxes.texts.isEmpty()) // until right ones enough have escaped
            QMetaObject::invokeMethod(&clock, "timeout", Qt::DirectConnection);
        QTRY_VERIFY(spoken.contains(u"Vidas: 2"_s)); // once the game is in front again
    }

    void raceSpeaksOperationsAndVerdicts()
    {
        program->screens.show(u"FrmCarrera"_s);
        const ui::Screen& screen = *program->screens.loaded(u"FrmCarrera"_s);
        QTRY_VERIFY(program->screens.loaded(u"DlgCarrera"_s));
        ui::Screen& dialog = *program->screens.loaded(u"DlgCarrera"_s);
        makeActive(dialog);
        click(dialog, u"OKButton"_s);
        const QString operation =
            ScreenBench::find<QLineEdit>(screen, u"TBOperación"_s).text().remove(u" ="_s);
        QTRY_COMPARE(spoken, QStringList{QString(operation).replace(u'×', u"por"_s)});
        spoken.clear();
        auto& answer = ScreenBench::find<QLineEdit>(screen, u"TBResultado"_s);
        QStringList verdicts;
        for (int answers = 1; answers <= 5; ++answers) {
            QTest::keyClick(&answer, Qt::Key_Return);
            verdicts << heard();
        }
        QCOMPARE(verdicts,
            QStringList({u"Error"_s, u" Error"_s, u"Error"_s, u" Error"_s, u"Error"_s,
                u"Tú: 0 de 15. Rival: 0 de 15."_s}));
    }

    void problemsSpeakTheirStatementAndUnitAndTheSolution()
    {
        ui::Screen& screen = open(u"FormProblemas"_s);
        const QString unit = ScreenBench::find<QLabel>(screen, u"LBUnidad"_s).text();
        QCOMPARE(heard(),
            {ScreenBench::find<QTextEdit>(screen, u"TBEnunciado"_s).toPlainText()
                + u" Respuesta en "_s + unit});
        click(screen, u"Command2(2)"_s);
        QCOMPARE(heard(),
            {ScreenBench::find<QLineEdit>(screen, u"TBRespuesta"_s).text() + u' ' + unit});
    }

    void altAloneLeavesTheFocusWhereItIs()
    {
        // A reader has the releases of keys come late: behind the next press of Alt, the one
        // of the Alt before would lead to the menu bar.
        ui::Screen& screen = open(u"Form2"_s);
        QWidget* focused = QApplication::focusWidget();
        QTest::keyPress(focused, Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(focused, Qt::Key_Alt);
        QCOMPARE(QApplication::focusWidget(), focused);
        QVERIFY(!screen.findChild<QMenuBar*>()->hasFocus());
    }

    void textsWaitForTheirWindow()
    {
        ui::Screen& screen = open(u"Form4"_s);
        heard();
        ui::announce(screen, u"antes"_s);
        {
            QDialog box(&screen);
            box.setModal(true);
            box.show();
            makeActive(box);
            QCOMPARE(heard(), {u"antes"_s}); // said by the box in front
            ui::announce(screen, u"encima"_s);
            QCOMPARE(heard(), {u"encima"_s});
        }
        QWidget other;
        other.show();
        makeActive(other);
        ui::announce(screen, u"detrás"_s);
        QCOMPARE(heard(), {});
        makeActive(screen);
        QCOMPARE(heard(), {u"detrás"_s});
    }

    void noNameIsToldWithItsAccessKey_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : {u"Form3"_s, u"FRMCombi"_s, u"DLGProblemas"_s})
            QTest::newRow(qPrintable(name)) << name;
    }
    void noNameIsToldWithItsAccessKey()
    {
        static QStringList names;
        names.clear();
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::NameChanged)
                names << event->accessibleInterface()->text(QAccessible::Name);
        });
        open();
        listenToSpeech();
        QVERIFY(!names.isEmpty());
        QCOMPARE(names.filter(u"&"_s), {});
    }

private:
    ui::Screen& open()
    {
        QFETCH(QString, name);
        return open(name);
    }
    ui::Screen& open(const QString& name)
    {
        program->screens.show(name);
        ui::Screen& screen = *program->screens.loaded(name);
        makeActive(screen);
        return screen;
    }
    static void click(const ui::Screen& screen, const QString& button)
    {
        QTest::mouseClick(&ScreenBench::find<QPushButton>(screen, button), Qt::LeftButton);
    }
    /// How often the exercise of a screen is among what was said; where it has no words of its
    /// own for one, whatever was said.
    static qsizetype exercisesIn(const QStringList& told, const ui::Screen& screen)
    {
        const QString exercise = screen.spokenExercise();
        return exercise.isEmpty() ? told.size() : told.count(exercise);
    }
    std::unique_ptr<ProgramBench> program;
};

PIZARRIN_SCREEN_TEST_MAIN(AnnouncementsTest)
#include "announcements_test.moc"
