#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "support/typing.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

QStringList announced; // the name of each control that spoke up, and what it showed then
QStringList spoken; // what was to be read aloud, where the toolkit can ask for that

QString shownBy(QAccessibleInterface& face)
{
    const QString value = face.text(QAccessible::Value);
    return value.isEmpty() ? face.text(QAccessible::Name) : value;
}

void listen(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Alert) {
        announced << event->object()->objectName() + u": "_s
                + shownBy(*event->accessibleInterface());
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement)
        spoken << static_cast<QAccessibleAnnouncementEvent*>(event)->message();
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
        announced.clear();
        spoken.clear();
    }
    void cleanup() { program.reset(); }

    void everyNewExerciseIsAnnounced_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("exercise"); // the control that shows it
        QTest::newRow("Form3") << u"Form3"_s << u"TbFactor(1)"_s;
        QTest::newRow("Form4") << u"Form4"_s << u"TbSuma"_s;
        QTest::newRow("Form6") << u"Form6"_s << u"Text4"_s;
        QTest::newRow("FRMCombi") << u"FRMCombi"_s << u"TBOperación"_s;
        QTest::newRow("FrmMultHuecos") << u"FrmMultHuecos"_s << u"TbTermin(2)"_s;
        QTest::newRow("FrmMultidivi") << u"FrmMultidivi"_s << u"Text2"_s;
        QTest::newRow("FormProblemas") << u"FormProblemas"_s << u"TBEnunciado"_s;
    }
    void everyNewExerciseIsAnnounced()
    {
        QFETCH(QString, exercise);
        ui::Screen& screen = open();
        QVERIFY2(by(exercise) == 1, qPrintable(announced.join(u'\n')));
        click(screen, u"Command2(2)"_s); // some screens go on only from the solution
        announced.clear();
        click(screen, u"Command2(0)"_s);
        QVERIFY2(by(exercise) == 1, qPrintable(announced.join(u'\n')));
        QCOMPARE(announced.filter(exercise + u": "_s).last(),
            exercise + u": "_s
                + shownBy(*QAccessible::queryAccessibleInterface(
                    &ScreenBench::find<QWidget>(screen, exercise))));
    }

    void everyVerdictIsAnnounced_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("told");
        QTest::newRow("Form3") << u"Form3"_s << u"Text1: resultado incorrecto"_s;
        QTest::newRow("Form4") << u"Form4"_s << u"Text1: Respuesta incorrecta"_s;
        QTest::newRow("Form6") << u"Form6"_s << u"Text4: Resultado incorrecto"_s;
        QTest::newRow("FRMCombi") << u"FRMCombi"_s << u"Text1: Resultado incorrecto"_s;
        QTest::newRow("FrmMultHuecos")
            << u"FrmMultHuecos"_s << u"TbResultado: Respuesta incorrecta"_s;
        QTest::newRow("FormProblemas")
            << u"FormProblemas"_s << u"TBCorrecto: Respuesta incorrecta"_s;
    }
    void everyVerdictIsAnnounced()
    {
        QFETCH(QString, told);
        ui::Screen& screen = open();
        announced.clear();
        for (auto* box : screen.findChildren<QLineEdit*>())
            if (!box->isReadOnly())
                typeInto(box, u"-"_s); // wrong, whatever was asked
        click(screen, u"Command1"_s);
        QVERIFY2(announced.contains(told), qPrintable(announced.join(u'\n')));
    }

    void tablesAnnounceQuestionsAndVerdicts()
    {
        ui::Screen& screen = open(u"Form2"_s);
        click(screen, u"Command3(0)"_s); // the table in order
        QCOMPARE(announced, {u"TbOperación(2): 1"_s});
        announced.clear();
        auto& answer = ScreenBench::find<QLineEdit>(screen, u"TbOperación(4)"_s);
        typeInto(&answer, u"7"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(announced, {u"Text1: resultado incorrecto "_s});
        announced.clear();
        typeInto(&answer, u"1"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(
            announced, QStringList({u"Text1: Resultado correcto"_s, u"TbOperación(2): 2"_s}));
    }

    void quickTablesAnnounceOperationsAndVerdicts()
    {
        ui::Screen& screen = open(u"Form8"_s);
        click(screen, u"Command1"_s);
        auto& line = ScreenBench::find<QLabel>(screen, u"LBOperación"_s);
        QCOMPARE(announced, {u"LBOperación: "_s + line.text()});
        announced.clear();
        QTest::keyClick(&ScreenBench::find<QLineEdit>(screen, u"TbDatos(4)"_s), Qt::Key_Return);
        QCOMPARE(announced, QStringList({u"TBResul: MAL"_s, u"LBOperación: "_s + line.text()}));
    }

    void multiplesAnnounceVerdicts()
    {
        ui::Screen& screen = open(u"FrmMultidivi"_s);
        announced.clear();
        for (int i = 0; i < 3; ++i)
            typeInto(&ScreenBench::find<QLineEdit>(screen, u"Text3(%1)"_s.arg(i)), u"1"_s);
        click(screen, u"Command1"_s);
        QCOMPARE(announced, {u"TBMensajes: Resultado incorrecto"_s});
    }

    void rainAnnouncesTheRuleOfThePhase()
    {
        ui::Screen& screen = open(u"Form5"_s);
        const auto& rule = ScreenBench::find<QLineEdit>(screen, u"Text1"_s);
        QVERIFY2(
            announced.contains(u"Text1: "_s + rule.text()), qPrintable(announced.join(u'\n')));
    }

    void raceAnnouncesOperationsAndVerdicts()
    {
        program->screens.show(u"FrmCarrera"_s);
        const ui::Screen& screen = *program->screens.loaded(u"FrmCarrera"_s);
        QTRY_VERIFY(program->screens.loaded(u"DlgCarrera"_s));
        ui::Screen& dialog = *program->screens.loaded(u"DlgCarrera"_s);
        makeActive(dialog);
        click(dialog, u"OKButton"_s);
        const auto& operation = ScreenBench::find<QLineEdit>(screen, u"TBOperación"_s);
        QTRY_COMPARE(announced, QStringList{u"TBOperación: "_s + operation.text()});
        announced.clear();
        auto& answer = ScreenBench::find<QLineEdit>(screen, u"TBResultado"_s);
        QTest::keyClick(&answer, Qt::Key_Return);
        QCOMPARE(announced.size(), 1);
        QVERIFY2(announced.first().startsWith(u"Text4: "_s), qPrintable(announced.first()));
    }

    void announcementsAreReadAloud()
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        ui::Screen& screen = open(u"Form2"_s);
        click(screen, u"Command3(0)"_s);
        QCOMPARE(spoken, {u"1 × 1"_s});
#else
        QSKIP("before 6.8 the toolkit can alert, but not have a text read aloud");
#endif
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
    static qsizetype by(const QString& control)
    {
        return announced
            .filter(QRegularExpression(u'^' + QRegularExpression::escape(control + u": "_s)))
            .size();
    }

    std::unique_ptr<ProgramBench> program;
};

PIZARRIN_SCREEN_TEST_MAIN(AnnouncementsTest)
#include "announcements_test.moc"
