#include "shell/main_menu_screen.h"

#include "support/screen_bench.h"

using namespace Qt::StringLiterals;
using shell::Activity;
using shell::Form1;

namespace {

/// Stands for an activity and writes down when it goes.
class Spy final : public ui::Screen {
public:
    Spy(ui::Screens& screens, const QString& name, QStringList& log)
        : Screen(screens, name, name, 3000, 3000)
        , m_log(log)
    {
    }

protected:
    void Form_QueryUnload() override { m_log << objectName(); }

private:
    QStringList& m_log;
};

/// An entry of the menu; the bench knows its screen already.
Activity entry(const QString& caption, const QString& screen, Activity::Shown shown)
{
    return {caption, screen, shown, shell::Pictogram::Gap, {}, nullptr};
}

const std::vector<Activity> Entries{
    entry(u"&Suma repetida"_s, u"Form4"_s, Activity::Shown::Modal),
    entry(u"&Tablas de multiplicar"_s, u"Form2"_s, Activity::Shown::Modal),
    entry(u"&Problemas"_s, u"FormProblemas"_s, Activity::Shown::Modeless),
};

const QStringList SpiedScreens{u"Form2"_s, u"Form3"_s, u"Form4"_s, u"Form5"_s, u"Form6"_s,
    u"Form8"_s, u"FormProblemas"_s, u"Dialog"_s, u"FrmCarrera"_s};

} // namespace

class MainMenuScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        log.clear();
        for (const QString& name : SpiedScreens) {
            bench->screens.add(name, [this, name](ui::Screens& screens) -> ui::Screen* {
                return new Spy(screens, name, log);
            });
        }
        bench->screens.add(u"Form1"_s,
            [](ui::Screens& screens) -> ui::Screen* { return new Form1(screens, Entries); });
        bench->screens.setMainScreen(u"Form1"_s);
        bench->screens.show(u"Form1"_s);
        menu = bench->screens.loaded(u"Form1"_s);
        makeActive(*menu);
    }
    void cleanup() { bench.reset(); }

    void highestButtonIsRedAndTheOthersGreen()
    {
        for (int i = 0; i < 4; ++i) {
            const QPalette palette = button(i).palette();
            QCOMPARE(palette.color(QPalette::Active, QPalette::Button),
                i < 3 ? QColor(0, 255, 0) : QColor(255, 0, 0));
        }
        QCOMPARE(button(3).text(), u"&Salir"_s);
        QCOMPARE(button(0).text(), u"&Suma repetida"_s);
        QCOMPARE(menu->windowTitle(), u"PIZARRIN"_s);
        QCOMPARE(button(0).font().pixelSize(), int(16 * menu->factor())); // 12 points
    }

    void windowIs8700TwipsHigh()
    {
        const double pixels = menu->factor() / ui::TwipsPerPixel;
        QVERIFY(std::abs(menu->height() - 8700 * pixels) < 1);
        QVERIFY(std::abs(menu->width() - 11000 * pixels) < 1);
    }

    void buttonsStandInTwoColumns()
    {
        constexpr double Row = 4140; // half of what the menu bar leaves of the height
        for (int i = 0; i < 4; ++i)
            QCOMPARE(button(i).geometry(),
                ui::toPixels({500.0 + 5000 * (i % 2), Row * (i / 2) + Row / 10, 5000, Row * 0.8},
                    menu->factor()));
    }

    void comingUpSeedsAndDrawsNothing()
    {
        QVERIFY(bench->random.seeds.empty()); // a draw would have ended the test: there is none
    }

    void activitiesOpenModallyAndProblemsBeside()
    {
        QTest::mouseClick(&button(0), Qt::LeftButton);
        QVERIFY(bench->screens.loaded(u"Form4"_s)->isModal());
        bench->screens.unload(u"Form4"_s);
        QTest::mouseClick(&button(2), Qt::LeftButton);
        ui::Screen* problems = bench->screens.loaded(u"FormProblemas"_s);
        QVERIFY(problems->isVisible() && !problems->isModal());
        QTest::mouseClick(&button(2), Qt::LeftButton);
        QCOMPARE(bench->screens.loaded(u"FormProblemas"_s), problems);
    }

    void exitUnloadsTheScreensInTheirOrder()
    {
        for (const QString& name : SpiedScreens)
            bench->screens.show(name);
        QTimer::singleShot(0, [&] { QTest::mouseClick(&button(3), Qt::LeftButton); });
        QCOMPARE(QApplication::exec(), 0);
        // The dialog is unloaded by the menu's own unloading, the last one by the program's end.
        QCOMPARE(log,
            (QStringList{u"FormProblemas"_s, u"Form8"_s, u"Form6"_s, u"Form5"_s, u"Form4"_s,
                u"Form3"_s, u"Form2"_s, u"Dialog"_s, u"FrmCarrera"_s}));
    }

    void closeBoxUnloadsThreeInTheirOrderAndEndsTheProgram()
    {
        for (const QString& name : {u"Form2"_s, u"Form3"_s, u"Dialog"_s, u"FormProblemas"_s})
            bench->screens.show(name);
        QTimer::singleShot(0, [&] { menu->close(); });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(log, (QStringList{u"Dialog"_s, u"Form3"_s, u"Form2"_s, u"FormProblemas"_s}));
    }

    void aboutBoxHasTwoLinesAndNoVersion()
    {
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [](QDialog& box) { // both lines are seen whole
            const auto& label = ScreenBench::find<QLabel>(box, u"qt_msgbox_label"_s);
            for (const QString& line : label.text().split(u"\r\n"_s))
                QVERIFY2(label.fontMetrics().horizontalAdvance(line) <= label.width(),
                    qPrintable(line));
        };
        menu->findChild<QAction*>(u"MnuAce"_s)->trigger();
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QCOMPARE(boxes.texts.first().count(u"\r\n"_s), 1);
        QVERIFY(!boxes.texts.first().contains(QRegularExpression(u"[0-9]"_s)));
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
    }

    void aboutItemStandsAlone()
    {
        const auto* about = menu->findChild<QAction*>(u"MnuAce"_s);
        QCOMPARE(about->text(), u"Acerca de..."_s);
        QCOMPARE(about->menu(), nullptr);
    }

    void itsPictogramsAreDrawnAheadAtTheSideThatItNeeds()
    {
        const QImage expected = menu->grab().toImage();
        const int side = Form1::pictogramSide(*menu->screen());
        shell::PictogramsAhead ahead(side, QThread::NormalPriority);
        QTRY_VERIFY(ahead.has(shell::Pictogram::Exit, side)); // the last one
        ScreenBench other;
        other.screens.add(u"Form1"_s, [&](ui::Screens& screens) -> ui::Screen* {
            return new Form1(screens, Entries, &ahead);
        });
        other.screens.show(u"Form1"_s);
        ui::Screen& same = *other.screens.loaded(u"Form1"_s);
        makeActive(same);
        QCOMPARE(same.grab().toImage(), expected);
        QVERIFY(!ahead.has(shell::Pictogram::Gap, side)); // taken
        QVERIFY(!ahead.has(shell::Pictogram::Exit, side));
        QVERIFY(ahead.has(shell::Pictogram::Race, side)); // the menu has none here
    }

private:
    QPushButton& button(int index) const
    {
        return ScreenBench::find<QPushButton>(*menu, u"Command1(%1)"_s.arg(index));
    }

    std::unique_ptr<ScreenBench> bench;
    ui::Screen* menu = nullptr;
    QStringList log;
};

PIZARRIN_SCREEN_TEST_MAIN(MainMenuScreenTest)
#include "main_menu_screen_test.moc"
