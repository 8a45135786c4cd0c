#include "shell/exercise_screen.h"

#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

namespace {

class Drill final : public shell::ExerciseScreen {
public:
    static QString screenName() { return u"Drill"_s; }

    explicit Drill(ui::Screens& screens)
        : ExerciseScreen(screens, screenName(), u"Ejercicio"_s, 6000, 3000)
    {
        answer = entryBox(u"Answer"_s, {0, 0, 1500, 510}, ui::look::Instruction, u"Respuesta"_s);
        makeCommands({.check = {0, 600, 1500, 510},
            .next = {1500, 600, 1500, 510},
            .clear = {3000, 600, 1500, 510},
            .solution = {4500, 600, 1500, 510}});
        enterChecks(answer);
    }

    void newExercise() override { calls << u"new"_s; }
    void check() override { calls << u"check"_s; }
    void nextExercise() override { calls << u"next"_s; }
    void clearAnswer() override { calls << u"clear"_s; }
    void showSolution() override { calls << u"solution"_s; }
    using ExerciseScreen::askToRepeat;

    ui::TextBox* answer;
    QStringList calls;
};

} // namespace

class ExerciseScreenTest : public QObject {
    Q_OBJECT

private slots:
    void buttonsCallTheirHandlers()
    {
        ScreenBench bench;
        auto& drill = bench.open<Drill>();
        for (const QString& name :
            {u"Command1"_s, u"Command2(0)"_s, u"Command2(1)"_s, u"Command2(2)"_s})
            bench.click(name);
        QCOMPARE(drill.calls, (QStringList{u"check"_s, u"next"_s, u"clear"_s, u"solution"_s}));
    }

    void enterChecksAndTypesNothing()
    {
        ScreenBench bench;
        auto& drill = bench.open<Drill>();
        QTest::keyClicks(drill.answer, u"12x"_s);
        QTest::keyClick(drill.answer, Qt::Key_Return);
        QTest::keyClick(drill.answer, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(drill.calls, (QStringList{u"check"_s, u"check"_s}));
        QCOMPARE(drill.answer->text(), u"12x"_s);
    }

    void endOfActivityIsAsked()
    {
        ScreenBench bench;
        auto& drill = bench.open<Drill>();
        BoxAnswerer boxes({u"Sí"_s, u"No"_s});
        QVERIFY(drill.askToRepeat());
        QVERIFY(!drill.askToRepeat());
        QCOMPARE(boxes.titles.first(), u"Actividad terminada"_s);
        QCOMPARE(boxes.texts.first(),
            u"La actividad está terminada. Si deseas repetirla pulsa en sí, en caso contrario "
            "pulsa No y entra en el menú opciones para elegir una actividad nueva"_s);
        QCOMPARE(boxes.icons.first(), QMessageBox::NoIcon);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(ExerciseScreenTest)
#include "exercise_screen_test.moc"
