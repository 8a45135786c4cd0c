#include "tables/fill_the_gap_screen.h"

#include "support/screen_bench.h"
#include "support/text_fit.h"

using namespace Qt::StringLiterals;
using tables::FrmMultHuecos;
using Mark = ui::VerdictBox::Mark;

class FillTheGapScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        appendFactors(7, 4);
        screen = &bench->open<FrmMultHuecos>();
    }
    void cleanup() { bench.reset(); }

    void comesUpWithAnExercise()
    {
        QCOMPARE(bench->random.seeds, std::vector<double>{37230.5}); // 10:20:30,5
        QCOMPARE(screen->windowTitle(), u"Completa el hueco"_s);
        QCOMPARE(bench->text(u"TbInstruc"_s), u"Completa el Cuadro vacío "_s);
        QCOMPARE(row(), u"4 x  = 28"_s);
        QCOMPARE(bench->text(u"TbResultado"_s), QString());
        QCOMPARE(counters(), u"Ejercicios: 0 Errores: 0"_s);
        QCOMPARE(bench->focusName(), u"TbTermin(1)"_s);
        verifyShownSelected();
    }

    void theCanvasHasItsSize()
    {
        QCOMPARE(bench->control<QWidget>(u"TbInstruc"_s).parentWidget()->size(),
            ui::toPixels({0, 0, 4680, 4590}, screen->factor()).size());
    }

    void captionsAndColoursAreExact()
    {
        verifyButton(u"Command1"_s, u"&Hecho"_s, QColor(255, 255, 0));
        verifyButton(u"Command2(0)"_s, u"&Continuar"_s, QColor(0, 255, 255));
        verifyButton(u"Command2(1)"_s, u"&Borrar"_s, QColor(0, 255, 0));
        verifyButton(u"Command2(2)"_s, u"&Ver solución"_s, QColor(255, 0, 0));
    }

    void tabGoesFromLeftToRightAndDown()
    {
        QStringList order;
        for (int i = 0; i < 5; ++i) {
            order << bench->focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
            QStringList({u"TbTermin(1)"_s, u"Command1"_s, u"Command2(1)"_s, u"Command2(0)"_s,
                u"Command2(2)"_s}));
        QCOMPARE(bench->focusName(), u"TbTermin(1)"_s);
    }

    void aRightAnswerLeadsToContinuar()
    {
        answer(u"7"_s);
        verifyVerdict(u"Respuesta correcta "_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 0"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(row(), u"4 x 7 = 28"_s);
    }

    void theVerdictEdgesTheGap()
    {
        const auto& gap = bench->control<ui::TextBox>(u"TbTermin(1)"_s);
        answer(u"8"_s);
        QCOMPARE(gap.edge(), QColor(ui::look::Wrong));
        bench->type(u"TbTermin(1)"_s, u"7"_s);
        QCOMPARE(gap.edge(), std::nullopt);
        bench->key(u"TbTermin(1)"_s, Qt::Key_Return);
        QCOMPARE(gap.edge(), QColor(ui::look::Right));
        appendFactors(5, 8);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(gap.edge(), std::nullopt);
    }

    void theOperationStandsInOneLineOnTheBoard()
    {
        const QRect gap = placeOf(u"TbTermin(1)"_s);
        for (const QString& name :
            {u"TbTermin(0)"_s, u"TbSignos(0)"_s, u"TbSignos(1)"_s, u"TbTermin(2)"_s})
            QVERIFY2(qAbs(placeOf(name).center().y() - gap.center().y()) <= 1, qPrintable(name));
        const int beforeGap = gap.left() - placeOf(u"TbSignos(0)"_s).right();
        const int behindGap = placeOf(u"TbSignos(1)"_s).left() - gap.right();
        QVERIFY2(qAbs(beforeGap - behindGap) <= 1, qPrintable(QString::number(beforeGap)));
    }

    void theMarksOfTheGapLieOnPaper()
    {
        const QImage picture = screen->grab().toImage();
        const QWidget& canvas = *bench->control<QWidget>(u"TbTermin(1)"_s).parentWidget();
        const QRect gap = placeOf(u"TbTermin(1)"_s).translated(canvas.pos());
        const int beyondRing = ui::look::RingWidth + 2;
        for (const QPoint& at : {QPoint(gap.left() - beyondRing, gap.center().y()),
                 QPoint(gap.right() + beyondRing, gap.center().y()),
                 QPoint(gap.center().x(), gap.top() - beyondRing),
                 QPoint(gap.center().x(), gap.bottom() + beyondRing)})
            QCOMPARE(picture.pixelColor(at), QColor(ui::look::Paper));
    }

    void aRightAnswerIsCountedOnce()
    {
        answer(u"7"_s);
        bench->click(u"Command1"_s);
        bench->click(u"Command1"_s);
        verifyVerdict(u"Respuesta correcta "_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 0"_s);
    }

    void aWrongAnswerEmptiesTheGap()
    {
        answer(u"8"_s);
        verifyVerdict(u"Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 1"_s);
        QCOMPARE(row(), u"4 x  = 28"_s);
        QCOMPARE(bench->focusName(), u"TbTermin(1)"_s);
        QVERIFY(bench->control<QPushButton>(u"Command2(0)"_s).isEnabled());
    }

    void aRepeatedWrongVerdictGetsABlankInFront()
    {
        answer(u"8"_s);
        answer(u"9"_s);
        verifyVerdict(u" Respuesta incorrecta"_s, Mark::Wrong);
        answer({});
        verifyVerdict(u" Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios: 3 Errores: 3"_s);
        answer(u"7"_s);
        verifyVerdict(u"Respuesta correcta "_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios: 4 Errores: 3"_s);
        bench->click(u"Command2(1)"_s);
        bench->click(u"Command1"_s);
        verifyVerdict(u" Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios: 5 Errores: 4"_s);
    }

    void answersAreReadAsNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");

        QTest::newRow("leading blank and zero") << u" 07"_s << true;
        QTest::newRow("decimals") << u"7,0"_s << true;
        QTest::newRow("a word behind") << u"7 manzanas"_s << true;
        QTest::newRow("a word in front") << u"es 7"_s << false;
        QTest::newRow("fraction") << u"7,5"_s << false;
        QTest::newRow("word") << u"siete"_s << false;
        QTest::newRow("shown factor") << u"4"_s << false;
    }
    void answersAreReadAsNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(bool, right);
        answer(typed);
        verifyVerdict(right ? u"Respuesta correcta "_s : u"Respuesta incorrecta"_s,
            right ? Mark::Right : Mark::Wrong);
    }

    void enterChecksInEveryBox_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<Qt::Key>("key");

        for (const QString& box : {u"TbTermin(0)"_s, u"TbTermin(1)"_s, u"TbTermin(2)"_s}) {
            QTest::addRow("%s, Enter", qPrintable(box)) << box << Qt::Key_Return;
            QTest::addRow("%s, keypad", qPrintable(box)) << box << Qt::Key_Enter;
        }
    }
    void enterChecksInEveryBox()
    {
        QFETCH(QString, box);
        QFETCH(Qt::Key, key);
        bench->type(u"TbTermin(1)"_s, u"7"_s);
        bench->key(box, key);
        verifyVerdict(u"Respuesta correcta "_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 0"_s);
        QCOMPARE(row(), u"4 x 7 = 28"_s);
    }

    void anEnterHeldDownDoesNotRunOnToTheNextExercise()
    {
        bench->type(u"TbTermin(1)"_s, u"7"_s);
        bench->key(u"TbTermin(1)"_s, Qt::Key_Return);
        QTest::simulateEvent(QGuiApplication::focusWindow(), true, Qt::Key_Return, Qt::NoModifier,
            u"\r"_s, true); // to the window, as the display sends keys
        QCOMPARE(row(), u"4 x 7 = 28"_s);
    }

    void noKeyIsFilteredNorClosesTheScreen()
    {
        bench->type(u"TbTermin(1)"_s, u"a b-3"_s);
        bench->key(u"TbTermin(1)"_s, Qt::Key_Escape);
        QCOMPARE(bench->text(u"TbTermin(1)"_s), u"a b-3"_s);
        QVERIFY(screen->isVisible());
    }

    void continuarBringsTheNextExercise()
    {
        answer(u"7"_s);
        appendFactors(9, 4); // shares the 4
        appendFactors(2, 7); // shares the 7
        appendFactors(10, 10);
        bench->key(u"Command2(0)"_s, Qt::Key_Return);
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(row(), u"10 x  = 100"_s);
        verifyShownSelected();
        verifyVerdict({}, Mark::None);
        QCOMPARE(bench->focusName(), u"TbTermin(1)"_s);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 0"_s);
        answer(u"10"_s);
        QCOMPARE(counters(), u"Ejercicios: 2 Errores: 0"_s);
    }

    void afterContinuarTheFirstWrongVerdictHasNoBlank()
    {
        answer(u"8"_s);
        appendFactors(5, 8);
        bench->click(u"Command2(0)"_s);
        answer(u"9"_s);
        verifyVerdict(u"Respuesta incorrecta"_s, Mark::Wrong);
    }

    void borrarEmptiesTheGapAndLeavesTheVerdict()
    {
        answer(u"8"_s);
        bench->type(u"TbTermin(1)"_s, u"12"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(row(), u"4 x  = 28"_s);
        QCOMPARE(bench->focusName(), u"TbTermin(1)"_s);
        verifyVerdict(u"Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 1"_s);
    }

    void theSolutionFillsTheGapAndStillCounts()
    {
        bench->click(u"Command2(2)"_s);
        QCOMPARE(row(), u"4 x 7 = 28"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        verifyVerdict({}, Mark::None);
        QCOMPARE(counters(), u"Ejercicios: 0 Errores: 0"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 0"_s);
        bench->click(u"Command2(2)"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(counters(), u"Ejercicios: 1 Errores: 0"_s);
    }

    void fullCountersShowNoBox()
    {
        BoxAnswerer noBox;
        auto& check = bench->control<QPushButton>(u"Command1"_s);
        for (int i = 0; i < 32767; ++i)
            check.click();
        QCOMPARE(counters(), u"Ejercicios: 32767 Errores: 32767"_s);
        check.click();
        verifyVerdict(u" Respuesta incorrecta"_s, Mark::Wrong);
        answer(u"7"_s);
        verifyVerdict(u"Respuesta correcta "_s, Mark::Right);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(counters(), u"Ejercicios: 32767 Errores: 32767"_s);
        runPendingEvents();
        for (double factor : {0.8, 1.0, 2.3}) {
            screen->resize(qCeil(312 * factor), qCeil(306 * factor));
            QCOMPARE(textsCutOff(*screen).join(u' '), QString());
        }
    }

    void theShownSelectionOutlivesTheFocusAndTheWindow()
    {
        answer(u"8"_s);
        makeActive(*screen);
        verifyShownSelected();
    }

    void aFreshScreenCountsFromZero()
    {
        answer(u"8"_s);
        screen->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        appendFactors(4, 7); // nothing is remembered of the last one
        screen = &bench->open<FrmMultHuecos>();
        QCOMPARE(row(), u"4 x  = 28"_s);
        QCOMPARE(counters(), u"Ejercicios: 0 Errores: 0"_s);
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<double>("factor");

        for (double factor : {0.8, 1.0, 1.25, 1.5, 2.3, 4.0})
            QTest::addRow("factor %g", factor) << factor;
    }
    void nothingIsCutOff()
    {
        QFETCH(double, factor);
        appendFactors(10, 10);
        bench->click(u"Command2(0)"_s);
        screen->resize(qCeil(312 * factor), qCeil(306 * factor));
        answer(u"1"_s);
        answer(u"1"_s);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
        answer(u"10"_s);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
    }

private:
    void appendFactors(int a, int b)
    {
        bench->random.appendInteger(a, 9, 2);
        bench->random.appendInteger(b, 9, 2);
    }
    void answer(const QString& typed) const
    {
        bench->type(u"TbTermin(1)"_s, typed);
        bench->key(u"TbTermin(1)"_s, Qt::Key_Return);
    }
    QString row() const
    {
        return QStringList{bench->text(u"TbTermin(0)"_s), bench->text(u"TbSignos(0)"_s),
            bench->text(u"TbTermin(1)"_s), bench->text(u"TbSignos(1)"_s),
            bench->text(u"TbTermin(2)"_s)}
            .join(u' ');
    }
    QRect placeOf(const QString& name) const { return bench->control<QWidget>(name).geometry(); }
    QString counters() const { return bench->text(u"TbEjercicios"_s); }
    void verifyShownSelected() const
    {
        for (const QString& name :
            {u"TbTermin(0)"_s, u"TbSignos(0)"_s, u"TbSignos(1)"_s, u"TbTermin(2)"_s}) {
            const auto& box = bench->control<QLineEdit>(name);
            QVERIFY(!box.text().isEmpty());
            QCOMPARE(box.selectedText(), box.text());
        }
    }
    void verifyVerdict(const QString& text, Mark mark) const
    {
        QCOMPARE(bench->text(u"TbResultado"_s), text);
        QCOMPARE(bench->control<ui::VerdictBox>(u"TbResultado"_s).mark(), mark);
    }
    void verifyButton(const QString& name, const QString& caption, const QColor& fill) const
    {
        const auto& button = bench->control<QPushButton>(name);
        QCOMPARE(button.text(), caption);
        QCOMPARE(button.palette().color(QPalette::Active, QPalette::Button), fill);
    }

    std::unique_ptr<ScreenBench> bench;
    FrmMultHuecos* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(FillTheGapScreenTest)
#include "fill_the_gap_screen_test.moc"
