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
        const QString caption = QString(row.caption).remove(u'&');
        const QString name = row.source.section(u'/', 1);
        const QString tests = u"tests/%1/CMakeLists.txt"_s.arg(row.source.section(u'/', 0, 0));
        const std::vector<std::pair<QString, QString>> parts{
            {u"src/%1.h"_s.arg(row.source), u"class "_s},
            {u"src/%1_screen.h"_s.arg(row.source), u"spokenExercise() const"_s},
            {tests, u"(%1_test.cpp)"_s.arg(name)},
            {tests, u"(%1_screen_test.cpp)"_s.arg(name)},
            {u"tests/orca"_s, u"open(\"%1\""_s.arg(caption)},
            {u"docs/manual.md"_s, u"\n### %1\n"_s.arg(caption)},
            {u"docs/architecture.md"_s, u"| `%1` | `%2` |"_s.arg(row.source, row.screen)},
        };
        for (const auto& [file, text] : parts)
            QVERIFY2(contentsOf(file).contains(text),
                qPrintable(u"%1 lacks %2"_s.arg(file, text.trimmed())));
        QVERIFY2(pictogramDrawing(row.pictogram) != pictogramDrawing(shell::Pictogram::Exit),
            "the pictogram is the exit's");
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
    /// Of a file of the source tree, or of all in a folder; nothing where there is none.
    static QString contentsOf(const QString& name)
    {
        const QString path = QStringLiteral(PIZARRIN_SOURCE) + u'/' + name;
        QString contents;
        for (const QString& inFolder : QDir(path).entryList(QDir::Files))
            contents += contentsOf(name + u'/' + inFolder);
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : contents;
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
