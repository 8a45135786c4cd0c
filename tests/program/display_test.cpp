#include "support/display.h"
#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "support/text_fit.h"
#include "ui/opening_factor.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;

/// Every screen on a display of a given size.
class DisplayTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        program = std::make_unique<ProgramBench>();
        program->screens.show(u"Form1"_s);
    }
    void cleanup() { program.reset(); }

    void everyScreenStandsWholeInTheMiddle_data() { addScreenRows(); }
    void everyScreenStandsWholeInTheMiddle()
    {
        const ui::Screen& screen = open();
        verifyOnDisplay(screen);
        const QRect free = display();
        const int left = screen.x() - free.left();
        const int right = free.width() - left - screen.width();
        QVERIFY2(std::abs(left - right) <= 1, qPrintable(u"%1, %2"_s.arg(left).arg(right)));
        const int above = screen.y() - free.top();
        const int below = free.height() - above - Frame - screen.height();
        QVERIFY2(std::abs(above - below) <= 1, qPrintable(u"%1, %2"_s.arg(above).arg(below)));
    }

    void everyScreenIsAsLargeAsItsDisplayAllows_data() { addScreenRows(); }
    void everyScreenIsAsLargeAsItsDisplayAllows()
    {
        const ui::Screen& screen = open();
        const double twentieths = 20 * screen.factor();
        QVERIFY2(std::abs(twentieths - std::round(twentieths)) < 1e-6,
            qPrintable(QString::number(screen.factor())));
        const QSizeF larger = QSizeF(screen.size()) * (screen.factor() + 0.05) / screen.factor();
        const QSize room = display().size() - QSize(0, Frame);
        QVERIFY(larger.width() > room.width() || larger.height() > room.height());
    }

    void nothingIsCutOff_data()
    {
        addScreenRows(u"Form3"_s); // whose digits shrink with their squares
    }
    void nothingIsCutOff() { QCOMPARE(textsCutOff(open()).join(u' '), QString()); }

    void aScreenThatGrowsStaysOnTheDisplay()
    {
        program->screens.show(u"Form3"_s);
        const ui::Screen& screen = *program->screens.loaded(u"Form3"_s);
        const double before = screen.factor();
        for (const int digits : {10, 2}) {
            ScreenBench::find<QAction>(screen, u"MnuOpcCi2Lis(%1)"_s.arg(digits - 1)).trigger();
            ScreenBench::find<QPushButton>(screen, u"Command2(0)"_s).click();
            ScreenBench::find<QLineEdit>(screen, u"TbParcial(%1)"_s.arg(digits - 1));
            QVERIFY(display().contains(screen.frameGeometry()));
        }
        QCOMPARE(screen.factor(), before);
    }

    void dialogsAreLeftAtTheBottomRight_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : {u"Dialog"_s, u"DLGProblemas"_s, u"DLGSelProb"_s})
            QTest::newRow(qPrintable(name)) << name;
    }
    void dialogsAreLeftAtTheBottomRight()
    {
        const ui::Screen& dialog = open();
        const auto& accept = ScreenBench::find<QPushButton>(dialog, u"OKButton"_s);
        const auto& cancel = ScreenBench::find<QPushButton>(dialog, u"CancelButton"_s);
        const int near = qRound(16 * dialog.factor()) + 1;
        const QRect corner = placeIn(dialog, cancel);
        QVERIFY(dialog.width() - corner.right() - 1 <= near);
        QVERIFY(dialog.height() - corner.bottom() - 1 <= near);
        const QRect beside = placeIn(dialog, accept);
        QCOMPARE(beside.top(), corner.top());
        QCOMPARE(beside.height(), corner.height());
        QVERIFY(std::abs(beside.width() - corner.width()) <= 1);
        QVERIFY(corner.left() > beside.right() && corner.left() - beside.right() <= near);
        QVERIFY(ui::Tray::holds(accept) && ui::Tray::holds(cancel));
    }

    void raceIsChosenAtTheBottomRight()
    {
        program->screens.show(u"DlgCarrera"_s);
        const ui::Screen& dialog = *program->screens.loaded(u"DlgCarrera"_s);
        const auto& accept = ScreenBench::find<QPushButton>(dialog, u"OKButton"_s);
        const int near = qRound(16 * dialog.factor()) + 1;
        const QRect corner = placeIn(dialog, accept);
        QVERIFY(dialog.width() - corner.right() - 1 <= near);
        QVERIFY(dialog.height() - corner.bottom() - 1 <= near);
        QVERIFY(ui::Tray::holds(accept));
    }

    void boxesFit()
    {
        QStringList report{u"Número de operaciones: 500. Número total de errores: 500."_s,
            u"Errores cometidos al usar cada número y porcentaje: "_s};
        for (int number = 1; number <= 10; ++number)
            report << u"número %1: 100 errores. (33,3333333333333 %)"_s.arg(number);
        report << u"Errores por tiempo: 500."_s;

        ui::Screen& owner = *program->screens.loaded(u"Form1"_s);
        BoxAnswerer boxes({u"Aceptar"_s, u"Sí"_s, u"Cancelar"_s});
        boxes.whileOpen = [&](QDialog& box) {
            const int aside = box.geometry().center().x() - owner.geometry().center().x();
            constexpr int FrameGuess = 12; // the toolkit leaves room for the box's frame
            QVERIFY2(std::abs(aside) <= FrameGuess, qPrintable(QString::number(aside)));
            QVERIFY2(display().contains(box.frameGeometry()), qPrintable(box.windowTitle()));
            QVERIFY2(box.width() <= 0.7 * display().width(), qPrintable(box.windowTitle()));
            for (const QPushButton* button : box.findChildren<QPushButton*>()) {
                QVERIFY(button->height() >= qRound(44 * owner.factor()));
                QCOMPARE(button->font().pixelSize(), static_cast<int>(18 * owner.factor()));
            }
            for (const QWidget* part : box.findChildren<QWidget*>())
                QVERIFY2(!part->isVisible() || box.rect().contains(placeIn(box, *part)),
                    part->metaObject()->className());
        };
        ui::MessageBox::show(owner, report.join(u"\r\n"_s));
        ui::MessageBox::ask(owner, QString(60, u'a') + u' ' + QString(400, u'b'), u"Pregunta"_s);
        ui::InputBox::ask(
            owner, u"Introduzca el primer factor de la multiplicación:"_s, u"Multiplicaciones"_s);
    }

private:
    static constexpr int Frame = ui::FrameHeight;

    static QRect display() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    static void addScreenRows(const QString& butFor = {})
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : screenNames()) {
            if (name != butFor)
                QTest::newRow(qPrintable(name)) << name;
        }
    }

    ui::Screen& open()
    {
        QFETCH(QString, name);
        program->screens.show(name);
        return *program->screens.loaded(name);
    }

    static QRect placeIn(const QWidget& window, const QWidget& part)
    {
        return {part.mapTo(&window, QPoint()), part.size()};
    }

    static void verifyOnDisplay(const ui::Screen& screen)
    {
        const QRect place(screen.pos(), screen.size() + QSize(0, Frame));
        // Window sizes are rounded up to whole pixels.
        QVERIFY2(display().adjusted(0, 0, 1, 1).contains(place),
            qPrintable(u"%1,%2 %3x%4"_s.arg(place.x())
                           .arg(place.y())
                           .arg(place.width())
                           .arg(place.height())));
    }

    std::unique_ptr<ProgramBench> program;
};

DISPLAY_TEST_MAIN(DisplayTest)
#include "display_test.moc"
