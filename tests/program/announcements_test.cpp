#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "support/typing.h"
#include "ui/announcement.h"

#include <QAccessible>
#include <QDialog>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QStringList spoken; // what was to be read aloud

void listen(QAccessibleEvent* event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement)
        spoken << static_cast<QAccessibleAnnouncementEvent*>(event)->message();
#else
    const QAccessibleInterface* face = event->accessibleInterface();
    if (event->type() == QAccessible::ObjectShow && face->role() == QAccessible::Notification)
        spoken << face->text(QAccessible::Name);
#endif
}

} // namespace

/// What a screen reader is told. Only a real desktop hands these events on.
class AnnouncementsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTRY_VERIFY(QAccessible::isActive());
        QAccessible::installUpdateHandler(listen);
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
        for (const QString& name : {u"Form3"_s, u"Form4"_s, u"Form6"_s, u"FRMCombi"_s,
                 u"FrmMultHuecos"_s, u"FrmMultidivi"_s, u"FormProblemas"_s})
            QTest::newRow(qPrintable(name)) << name;
    }
    void everyNewExerciseIsSpoken()
    {
        ui::Screen& screen = open();
        QCOMPARE(heard().size(), 1);
        click(screen, u"Command2(2)"_s); // some screens go on only from the solution
        heard();
        click(screen, u"Command2(0)"_s);
        QCOMPARE(heard().size(), 1);
    }

    void everyVerdictIsSpokenAgainAndAgain_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("Form3") << u"Form3"_s << u"resultado incorrecto"_s;
        QTest::newRow("Form4") << u"Form4"_s << u"Respuesta incorrecta"_s;
        QTest::newRow("Form6") << u"Form6"_s << u"Resultado incorrecto"_s;
        QTest::newRow("FRMCombi") << u"FRMCombi"_s << u"Resultado incorrecto"_s;
        QTest::newRow("FrmMultHuecos") << u"FrmMultHuecos"_s << u"Respuesta incorrecta"_s;
        QTest::newRow("FormProblemas") << u"FormProblemas"_s << u"Respuesta incorrecta"_s;
    }
    void everyVerdictIsSpokenAgainAndAgain()
    {
        QFETCH(QString, verdict);
        ui::Screen& screen = open();
        heard();
        for (int times = 0; times < 2; ++times) {
            for (auto* box : screen.findChildren<QLineEdit*>())
                if (!box->isReadOnly())
                    typeInto(box, u"-"_s); // wrong, whatever was asked
            click(screen, u"Command1"_s);
            QStringList told = heard();
            QCOMPARE(told.size(), 1);
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

    void tablesSpeakQuestionsAndVerdicts()
    {
        ui::Screen& screen = open(u"Form2"_s);
        heard();
        click(screen, u"Command3(0)"_s); // the table in order
        QCOMPARE(heard(), {u"1 × 1"_s});
        auto& answer = ScreenBench::find<QLineEdit>(screen, u"TbOperación(4)"_s);
        typeInto(&answer, u"7"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(heard(), {u"resultado incorrecto "_s});
        typeInto(&answer, u"1"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(heard(), QStringList({u"Resultado correcto"_s, u"1 × 2"_s}));
    }

    void quickTablesSpeakOperationsAndVerdicts()
    {
        ui::Screen& screen = open(u"Form8"_s);
        heard();
        click(screen, u"Command1"_s);
        auto& line = ScreenBench::find<QLabel>(screen, u"LBOperación"_s);
        QCOMPARE(heard(), {line.text()});
        QTest::keyClick(&ScreenBench::find<QLineEdit>(screen, u"TbDatos(4)"_s), Qt::Key_Return);
        QCOMPARE(heard(), QStringList({u"MAL"_s, line.text()}));
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
        QVERIFY(heard().contains(u"Vidas: 2"_s));
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

    void textsWaitForTheirWindow()
    {
        ui::Screen& screen = open(u"Form4"_s);
        heard();
        ui::announce(screen, u"antes"_s);
        {
            QDialog box(&screen);
            box.setModal(true);
            box.show();
            ScreenBench::activate(box);
            QCOMPARE(heard(), {u"antes"_s}); // said by the box in front
            ui::announce(screen, u"encima"_s);
            QCOMPARE(heard(), {u"encima"_s});
        }
        QWidget other;
        other.show();
        ScreenBench::activate(other);
        ui::announce(screen, u"detrás"_s);
        QCOMPARE(heard(), {});
        ScreenBench::activate(screen);
        QCOMPARE(heard(), {u"detrás"_s});
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
    /// What was to be read aloud since the last call.
    static QStringList heard()
    {
        QCoreApplication::sendPostedEvents();
        return std::exchange(spoken, {});
    }

    std::unique_ptr<ProgramBench> program;
};

PIZARRIN_SCREEN_TEST_MAIN(AnnouncementsTest)
#include "announcements_test.moc"
