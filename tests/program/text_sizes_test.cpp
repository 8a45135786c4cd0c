#include "support/display.h"
#include "support/painted_text.h"
#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "support/text_fit.h"
#include "support/typing.h"
#include "ui/squared_box.h"
#include "ui/verdict_box.h"
#include "written/work_area.h"

#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QRadioButton>
#include <QTextEdit>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// What a text is for decides how large it must be.
enum class Class {
    Work, ///< read or written by the child: operation, instruction, statement, verdict, caption
    Aside, ///< counters, units, settings, menus, dialogs for teachers
    Squared ///< figures on squared paper
};
constexpr std::array ClassNames{"work", "aside", "squared"};

/// What stands aside on the screens of activities.
const QStringList Asides{u"Form3.Text2"_s, u"Form4.tbResultados"_s,
    u"Form6.tbResultados"_s, // counters
    u"FrmMultHuecos.TbEjercicios"_s, u"FrmMultidivi.TbResultados"_s, u"FormProblemas.LBEstado"_s,
    u"Form5.Text2(0)"_s, u"Form5.Text2(1)"_s, // points and lives
    u"FrmCarrera.raceTime"_s, u"FrmCarrera.Text2(0)"_s, u"FrmCarrera.Text2(1)"_s,
    u"FrmCarrera.Text2(2)"_s, u"FrmCarrera.Text2(3)"_s, u"FrmCarrera.Text2(4)"_s,
    u"FormProblemas.LBUnidad"_s, // a unit
    u"Form3.LabX"_s, // quiet beside the sign that counts, in front of factor 2
    u"Form8.Frame1"_s, u"Form8.Option1(0)"_s, u"Form8.Option1(1)"_s, // settings
    u"Form8.Option1(2)"_s, u"Form8.Label1"_s, u"Form8.Text1"_s};

struct Smallest {
    double pixels = INFINITY;
    QString where;

    void take(double other, const QString& control)
    {
        if (other < pixels)
            *this = {other, control};
    }
};

/// The type whose figures are so many pixels high, where they are written on the squares of a
/// screen: the faces fill their size differently, and there the figures are fitted to the
/// squares.
double typeWithFigures(double height, const ui::Screen& screen)
{
    constexpr int Reference = 1000;
    QFont face = ScreenBench::find<QLineEdit>(screen, u"TBResultado"_s).font();
    face.setPixelSize(Reference);
    face.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    return height * Reference / QFontMetricsF(face).tightBoundingRect(u"0"_s).height();
}

using SmallestByClass = std::array<Smallest, ClassNames.size()>;

/// The name of a control, or of what it is a part of.
QString nameOf(const QWidget& part)
{
    if (qobject_cast<const QMenuBar*>(&part) != nullptr)
        return u"menu bar"_s;
    for (const QWidget* widget = &part; widget != nullptr; widget = widget->parentWidget()) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && !name.startsWith(u"qt_"_s))
            return name;
    }
    return {};
}

Class classOf(const ui::Screen& screen, const QWidget& part)
{
    if (dynamic_cast<const ui::SquaredBox*>(&part) != nullptr
        || dynamic_cast<const written::WorkArea*>(&part) != nullptr)
        return Class::Squared;
    const bool aside = qobject_cast<const QMenuBar*>(&part) != nullptr
        || dialogs().contains(screen.objectName())
        || Asides.contains(screen.objectName() + u'.' + nameOf(part));
    return aside ? Class::Aside : Class::Work;
}

SmallestByClass smallestTexts(ui::Screen& screen)
{
    SmallestByClass found;
    for (QWidget* part : screen.findChildren<QWidget*>()) {
        if (!part->isVisible() || part->window() != &screen)
            continue;
        for (const PaintedText& painted : textsPaintedBy(*part))
            found.at(static_cast<std::size_t>(classOf(screen, *part)))
                .take(painted.pixels, nameOf(*part) + u" «"_s + painted.text + u'»');
    }
    for (const QMenu* menu : screen.findChildren<QMenu*>())
        found.at(static_cast<std::size_t>(Class::Aside))
            .take(QFontInfo(menu->font()).pixelSize(), menu->objectName());
    return found;
}

/// The height of what can be clicked or written in, where it is least.
Smallest lowestTarget(const ui::Screen& screen)
{
    Smallest lowest;
    for (const QWidget* part : screen.findChildren<QWidget*>()) {
        const auto* box = qobject_cast<const QLineEdit*>(part);
        const bool isTarget = qobject_cast<const QPushButton*>(part) != nullptr
            || (box != nullptr && !box->isReadOnly());
        if (isTarget && part->isVisible() && part->window() == &screen)
            lowest.take(part->height(), nameOf(*part));
    }
    return lowest;
}

/// Paints a text at twice the size of its font.
class Enlarged : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.scale(2, 2);
        painter.drawText(10, 10, u"Hola"_s);
    }
};

enum class State { Opening, Wrong, Right, Filled, Largest };

} // namespace

/// The size of every text of every screen on a display of a given size, and the height of what
/// is to be hit, in pixels of the display: as it opens, after a wrong and after a right answer,
/// and with the largest exercise that its options draw.
class TextSizesTest : public QObject {
    Q_OBJECT

private slots:
    void init() { program = std::make_unique<ProgramBench>(); }
    void cleanup() { program.reset(); }

    void whatIsPaintedIsMeasured()
    {
        QFont font;
        font.setPixelSize(13);
        QLabel label(u"Hola"_s);
        label.setFont(font);
        QCOMPARE(textsPaintedBy(label).size(), 1);
        QCOMPARE(textsPaintedBy(label).first().pixels, 13);

        Enlarged enlarged;
        enlarged.setFont(font);
        QCOMPARE(textsPaintedBy(enlarged).first().text, u"Hola"_s);
        QCOMPARE(textsPaintedBy(enlarged).first().pixels, 26);
    }

    void textsAreLargeEnough_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<State>("state");
        for (const QString& name : screenNames())
            QTest::addRow("%s", qPrintable(name)) << name << State::Opening;
        for (const QString& name : {u"DLGProblemas"_s, u"DLGSelProb"_s})
            QTest::addRow("%s, filled", qPrintable(name)) << name << State::Filled;
        for (const QString& name : {u"Form3"_s, u"Form6"_s, u"FormProblemas"_s})
            QTest::addRow("%s, largest", qPrintable(name)) << name << State::Largest;
        for (const QString& name : activityScreens()) {
            QTest::addRow("%s, wrong", qPrintable(name)) << name << State::Wrong;
            QTest::addRow("%s, right", qPrintable(name)) << name << State::Right;
        }
    }
    void textsAreLargeEnough()
    {
        QFETCH(State, state);
        open();
        if (QTest::currentTestFailed())
            return;
        if (state == State::Filled)
            fill();
        else if (state == State::Largest)
            enlarge();
        else if (state != State::Opening)
            answer(state);
        if (QTest::currentTestFailed())
            return;
        if (screen->objectName() != u"Form3"_s) // whose digits shrink with their squares
            QCOMPARE(textsCutOff(*screen).join(u' '), QString());
        const Smallest lowest = lowestTarget(*screen);
        QVERIFY2(!isLaptop() || lowest.pixels >= EasyToHit,
            qPrintable(u"%1: %2 px"_s.arg(lowest.where).arg(lowest.pixels)));
        const SmallestByClass found = smallestTexts(*screen);
        print(found);
        for (std::size_t i = 0; i < found.size(); ++i)
            QVERIFY2(found.at(i).pixels >= limits(state).at(i),
                qPrintable(u"%1: %2 px"_s.arg(found.at(i).where).arg(found.at(i).pixels)));
    }

private:
    using Limits = std::array<double, ClassNames.size()>;
    static constexpr int EasyToHit = 40; // pixels, for a child

    /// A laptop at school, or what is larger.
    static bool isLaptop()
    {
        const QSize display = QGuiApplication::primaryScreen()->size();
        return display.width() >= 1366 && display.height() >= 768;
    }

    /// On a laptop a child reads its work at a glance. On a netbook nothing is too small to read.
    Limits limits(State state) const
    {
        QFETCH(QString, name);
        const bool laptop = isLaptop();
        const bool netbook = QGuiApplication::primaryScreen()->size().height() >= 600;
        Limits least = laptop ? Limits{18, 15, 24}
            : netbook         ? Limits{15, 15, 15}
                              : Limits{13, 13, 13};
        // Twenty figures side by side in rows of the given width and height, ten of which must
        // stand one above the other: the screen then fills the display from top to bottom.
        if (state == State::Largest && name == u"Form3"_s)
            least = laptop ? Limits{17, 14, typeWithFigures(10, *screen)}
                : netbook  ? Limits{13, 11, typeWithFigures(8, *screen)}
                           : Limits{11, 10, typeWithFigures(6.75, *screen)};
        // Zoomed until there is less room than on any, it is as sharp as before.
        if (QGuiApplication::primaryScreen()->size().width() < 1024)
            for (double& pixels : least)
                pixels /= QGuiApplication::primaryScreen()->devicePixelRatio();
        return least;
    }

    void open()
    {
        QFETCH(QString, name);
        program->screens.show(u"Form1"_s);
        ui::Screen& menu = *program->screens.loaded(u"Form1"_s);
        const QMap<QString, QString> owners{{u"Dialog"_s, u"Form3"_s},
            {u"DLGProblemas"_s, u"FormProblemas"_s}, {u"DLGSelProb"_s, u"FormProblemas"_s},
            {u"DlgCarrera"_s, u"FrmCarrera"_s}};
        const QString activity = owners.value(name, name);
        if (activity != u"Form1"_s)
            program->screens.showModal(activity, menu);
        if (const auto item = Openers.value(name); !item.isEmpty())
            ScreenBench::find<QAction>(*program->screens.loaded(activity), item).trigger();
        if (activity == u"FrmCarrera"_s)
            QTRY_VERIFY(program->screens.loaded(u"DlgCarrera"_s));
        if (name == u"FrmCarrera"_s)
            click(*program->screens.loaded(u"DlgCarrera"_s), u"OKButton"_s);
        screen = program->screens.loaded(name);
        QVERIFY(screen);
        QTRY_VERIFY(screen->isVisible());
        makeActive(*screen);
    }

    const QMap<QString, QString> Openers{{u"Dialog"_s, u"MnuOpcSelLis(1)"_s},
        {u"DLGProblemas"_s, u"MnuOpcGes"_s}, {u"DLGSelProb"_s, u"MnuOpcSel"_s}};

    /// The most digits and decimals that can be chosen; of many statements the longest.
    void enlarge()
    {
        QFETCH(QString, name);
        const QMap<QString, QStringList> most{
            {u"Form3"_s, {u"MnuOpcCi1Lis(9)"_s, u"MnuOpcCi2Lis(9)"_s}},
            {u"Form6"_s, {u"MnuOpcDivLis(5)"_s, u"MnuOpcDisLis(5)"_s, u"MnuOpcDecLis(5)"_s}}};
        for (const QString& item : most.value(name))
            ScreenBench::find<QAction>(*screen, item).trigger();
        click(*screen, u"Command2(0)"_s);
        if (name != u"FormProblemas"_s) {
            click(*screen, u"Command2(2)"_s);
            return;
        }
        screen->setUpdatesEnabled(false); // hundreds of them would be painted
        const auto& statement = ScreenBench::find<QTextEdit>(*screen, u"TBEnunciado"_s);
        const auto length = [&] { return statement.toPlainText().size(); };
        qsizetype longest = length();
        for (int i = 0; i < 200; ++i, longest = std::max(longest, length()))
            click(*screen, u"Command2(0)"_s);
        for (int i = 0; i < 2000 && length() < longest; ++i)
            click(*screen, u"Command2(0)"_s);
        screen->setUpdatesEnabled(true);
        QVERIFY(length() >= longest);
    }

    void fill()
    {
        QFETCH(QString, name);
        if (name == u"DLGSelProb"_s)
            ScreenBench::find<QRadioButton>(*screen, u"Option1(0)"_s).click();
        else
            QTest::keyClick(&ScreenBench::find<QListWidget>(*screen, u"List1"_s), Qt::Key_Home);
    }

    void answer(State state)
    {
        QFETCH(QString, name);
        if (name == u"Form5"_s)
            shoot(state == State::Right);
        else if (name == u"Form2"_s || name == u"Form8"_s || name == u"FrmCarrera"_s)
            answerInRow(state == State::Right);
        else
            answerDrill(state == State::Right);
        if (name != u"Form5"_s && name != u"Form8"_s) // they tell it otherwise
            QVERIFY(marks().contains(state == State::Right ? ui::VerdictBox::Mark::Right
                                                           : ui::VerdictBox::Mark::Wrong));
    }

    QList<ui::VerdictBox::Mark> marks() const
    {
        QList<ui::VerdictBox::Mark> shown;
        for (const QLineEdit* box : screen->findChildren<QLineEdit*>())
            if (const auto* verdict = dynamic_cast<const ui::VerdictBox*>(box))
                shown << verdict->mark();
        return shown;
    }

    void answerDrill(bool right)
    {
        if (right)
            click(*screen, u"Command2(2)"_s); // the solution
        else
            for (auto* box : screen->findChildren<QLineEdit*>())
                if (!box->isReadOnly() && box->isVisible())
                    typeInto(box, u"1"_s);
        click(*screen, u"Command1"_s);
    }

    /// Where an operation stands in a row with one answer, which Enter checks.
    void answerInRow(bool right)
    {
        QFETCH(QString, name);
        if (name == u"Form2"_s)
            click(*screen, u"Command3(0)"_s); // the first table: 1 × 1
        if (name == u"Form8"_s)
            click(*screen, u"Command1"_s);
        auto& box = ScreenBench::find<QLineEdit>(*screen,
            name == u"Form2"_s       ? u"TbOperación(4)"_s
                : name == u"Form8"_s ? u"TbDatos(4)"_s
                                     : u"TBResultado"_s);
        typeInto(&box, right ? QString::number(solution()) : u"999"_s);
        QTest::keyClick(&box, Qt::Key_Return);
    }

    int solution() const
    {
        QFETCH(QString, name);
        const auto shown = [this](const QString& control) {
            return ScreenBench::find<QLineEdit>(*screen, control).text();
        };
        if (name == u"Form2"_s)
            return 1;
        if (name == u"Form8"_s)
            return shown(u"TbDatos(0)"_s).toInt() * shown(u"TbDatos(2)"_s).toInt();
        const QStringList parts = shown(u"TBOperación"_s).split(u' ');
        const int a = parts.at(0).toInt();
        const int b = parts.at(2).toInt();
        return parts.at(1) == u"×"_s ? a * b : a / b;
    }

    /// Lets it rain until a number of this kind can be shot, and shoots it.
    void shoot(bool right)
    {
        click(*screen, u"CbEmpezar"_s);
        auto& timer = ScreenBench::find<QTimer>(*screen, u"Timer1"_s);
        timer.stop();
        for (int ticks = 0; ticks < 200; ++ticks) {
            for (auto* drop : screen->findChildren<QPushButton*>()) {
                if (!drop->objectName().startsWith(u"CbNave"_s) || !drop->isVisible()
                    || (drop->text().toInt() % 2 == 1) != right) // the first phase: odd ones
                    continue;
                QTest::mouseClick(drop, Qt::LeftButton);
                return;
            }
            QMetaObject::invokeMethod(&timer, "timeout", Qt::DirectConnection);
        }
        QFAIL("no such number has fallen");
    }

    static void click(ui::Screen& on, const QString& button)
    {
        QTest::mouseClick(&ScreenBench::find<QPushButton>(on, button), Qt::LeftButton);
    }

    void print(const SmallestByClass& found) const
    {
        std::printf("%-24s x%-5.2f", QTest::currentDataTag(), screen->factor());
        for (std::size_t i = 0; i < found.size(); ++i) {
            const Smallest& least = found.at(i);
            if (std::isinf(least.pixels))
                std::printf(" %-7s  - %-28s", ClassNames.at(i), "");
            else
                std::printf(" %-7s %2.0f %-28s", ClassNames.at(i), least.pixels,
                    qPrintable(least.where.left(28)));
        }
        std::printf("\n");
    }

    std::unique_ptr<ProgramBench> program;
    ui::Screen* screen = nullptr;
};

DISPLAY_TEST_MAIN(TextSizesTest)
#include "text_sizes_test.moc"
