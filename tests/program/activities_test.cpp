#include "activities.h"

#include "core/random.h"
#include "shell/pictogram_drawings.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

/// The whole program as main() puts it together.
class ActivitiesTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        screens = std::make_unique<ui::ScreenSet>(random, clock, folder.path());
        addScreens(*screens);
        screens->show(u"Form1"_s);
        menu = screens->loaded(u"Form1"_s);
        makeActive(*menu);
    }
    void cleanup() { screens.reset(); }

    void menuHasItsCaptionsInTheirOrder()
    {
        const QStringList captions{u"&Suma repetida"_s, u"&Tablas de multiplicar"_s,
            u"T&ablas rápidas"_s, u"&Completa el hueco"_s, u"&Múltiplos y divisores"_s,
            u"&Multiplicaciones"_s, u"&Divisiones"_s, u"&Problemas"_s,
            u"&Operaciones combinadas"_s, u"&Lluvia de números"_s, u"&La gran carrera"_s,
            u"&Salir"_s};
        for (int i = 0; i < captions.size(); ++i)
            QCOMPARE(button(i).text(), captions.at(i));
        const QString oneMore = u"Command1(%1)"_s.arg(captions.size());
        QCOMPARE(menu->findChild<QPushButton*>(oneMore), nullptr);
    }

    void everyRowIsWhole_data()
    {
        QTest::addColumn<int>("index");
        const auto rows = activities();
        for (std::size_t i = 0; i < rows.size(); ++i)
            QTest::newRow(qPrintable(rows[i].screen)) << static_cast<int>(i);
    }
    void everyRowIsWhole()
    {
        QFETCH(int, index);
        const auto row = activities().at(static_cast<std::size_t>(index));
        const auto holds = [](const QString& file, const QString& text) {
            return contentsOf(file).contains(text);
        };
        for (const QString& file : {u"src/%1.h"_s, u"src/%1_screen.h"_s})
            QVERIFY2(!contentsOf(file.arg(row.source)).isEmpty(),
                qPrintable(u"missing: "_s + file.arg(row.source)));
        const QString tests = u"tests/%1/CMakeLists.txt"_s.arg(row.source.section(u'/', 0, 0));
        for (const QString& test : {u"%1_test.cpp"_s, u"%1_screen_test.cpp"_s}) {
            const QString file = test.arg(row.source.section(u'/', 1));
            QVERIFY2(
                holds(tests, u'(' + file + u')'), qPrintable(u"no test is declared: "_s + file));
        }
        QVERIFY2(holds(u"src/%1_screen.h"_s.arg(row.source), u"spokenExercise() const"_s),
            "a screen reader says nothing: there is no spokenExercise()");
        QVERIFY2(pictogramDrawing(row.pictogram) != pictogramDrawing(shell::Pictogram::Exit),
            "the pictogram is the exit's");
        const QString chapter = u"### "_s + QString(row.caption).remove(u'&');
        QVERIFY2(holds(u"docs/manual.md"_s, u'\n' + chapter + u'\n'),
            qPrintable(u"no chapter in docs/manual.md: "_s + chapter));
        const QString line = u"| `%1` | `%2` |"_s.arg(row.source, row.screen);
        QVERIFY2(holds(u"docs/architecture.md"_s, line),
            qPrintable(u"no row in docs/architecture.md: "_s + line));
    }

    void noTwoRowsShareAScreenOrAPictogram()
    {
        QSet<QString> screenNames;
        QSet<int> pictograms;
        for (const shell::Activity& row : activities()) {
            screenNames << row.screen;
            pictograms << static_cast<int>(row.pictogram);
        }
        const auto rows = static_cast<qsizetype>(activities().size());
        QCOMPARE(screenNames.size(), rows);
        QCOMPARE(pictograms.size(), rows);
    }

    void everyButtonOpensItsScreen_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("screen");
        const QStringList names{u"Form4"_s, u"Form2"_s, u"Form8"_s, u"FrmMultHuecos"_s,
            u"FrmMultidivi"_s, u"Form3"_s, u"Form6"_s, u"FormProblemas"_s, u"FRMCombi"_s,
            u"Form5"_s, u"FrmCarrera"_s};
        for (int i = 0; i < names.size(); ++i)
            QTest::newRow(qPrintable(names.at(i))) << i << names.at(i);
    }
    void everyButtonOpensItsScreen()
    {
        QFETCH(int, index);
        QFETCH(QString, screen);
        QTest::mouseClick(&button(index), Qt::LeftButton);
        ui::Screen* opened = screens->loaded(screen);
        QVERIFY(opened);
        QVERIFY(opened->isVisible());
        QCOMPARE(opened->isModal(), screen != u"FormProblemas"_s);
    }

    void accessKeysOpenOrWalkTheirButtons_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QList<int>>("buttons");
        QTest::newRow("A") << Qt::Key_A << QList<int>{2};
        QTest::newRow("C") << Qt::Key_C << QList<int>{3};
        QTest::newRow("D") << Qt::Key_D << QList<int>{6};
        QTest::newRow("L") << Qt::Key_L << QList<int>{9, 10};
        QTest::newRow("M") << Qt::Key_M << QList<int>{4, 5};
        QTest::newRow("O") << Qt::Key_O << QList<int>{8};
        QTest::newRow("P") << Qt::Key_P << QList<int>{7};
        QTest::newRow("S") << Qt::Key_S << QList<int>{0, 11};
        QTest::newRow("T") << Qt::Key_T << QList<int>{1};
    }
    void accessKeysOpenOrWalkTheirButtons()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QList<int>, buttons);
        QTest::keyClick(menu, key, Qt::AltModifier);
        if (buttons.size() == 1) {
            QVERIFY(screens->loaded(
                activities().at(static_cast<std::size_t>(buttons.first())).screen));
            return;
        }
        // A key that two captions share moves the focus from one to the other.
        QSet<QString> walked{QApplication::focusWidget()->objectName()};
        QTest::keyClick(menu, key, Qt::AltModifier);
        walked << QApplication::focusWidget()->objectName();
        QSet<QString> expected;
        for (int index : buttons)
            expected << button(index).objectName();
        QCOMPARE(walked, expected);
    }

    void problemsAskedForAgainComeBackAsTheyWere()
    {
        QTest::mouseClick(&button(7), Qt::LeftButton);
        ui::Screen* problems = screens->loaded(u"FormProblemas"_s);
        auto& answer = ScreenBench::find<QLineEdit>(*problems, u"TBRespuesta"_s);
        QTest::keyClick(&answer, Qt::Key_7);
        problems->showMinimized();
        makeActive(*menu);
        QTest::mouseClick(&button(7), Qt::LeftButton);
        QCOMPARE(screens->loaded(u"FormProblemas"_s), problems);
        QVERIFY(problems->isVisible() && !problems->isMinimized());
        makeActive(*problems);
        QCOMPARE(answer.text(), u"7"_s);
        QVERIFY(menu->isVisible());
    }

    void everyScreenClosesAndReopens()
    {
        const auto rows = activities();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const QString name = rows[i].screen;
            for (int time = 0; time < 2; ++time) {
                QTest::mouseClick(&button(static_cast<int>(i)), Qt::LeftButton);
                QVERIFY(screens->loaded(name));
                screens->loaded(name)->close();
                QVERIFY2(!screens->loaded(name), qPrintable(name));
            }
        }
    }

private:
    /// Of a file of the source tree; nothing where there is none.
    static QString contentsOf(const QString& name)
    {
        QFile file(QStringLiteral(PIZARRIN_SOURCE) + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QPushButton& button(int index) const
    {
        return ScreenBench::find<QPushButton>(*menu, u"Command1(%1)"_s.arg(index));
    }

    core::SeededRandom random;
    FakeClock clock;
    QTemporaryDir folder;
    std::unique_ptr<ui::ScreenSet> screens;
    ui::Screen* menu = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(ActivitiesTest)
#include "activities_test.moc"
