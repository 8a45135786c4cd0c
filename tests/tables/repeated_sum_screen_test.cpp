#include "tables/repeated_sum_screen.h"

#include "support/screen_bench.h"
#include "support/text_fit.h"

using namespace Qt::StringLiterals;
using tables::Form4;
using Mark = ui::VerdictBox::Mark;

class RepeatedSumScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        appendSum(3, 5);
        screen = &bench->open<Form4>();
    }
    void cleanup() { bench.reset(); }

    void seedsWithTheSecondsReadTwice()
    {
        screen->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        bench->clock.readings = {QTime(9, 8, 7), QTime(9, 8, 59), QTime(10, 9, 0)};
        bench->random.seeds.clear();
        appendSum(3, 5);
        bench->screens.show(Form4::screenName());
        QCOMPARE(bench->random.seeds, std::vector<double>{8.0 * 9 * 1});
        QVERIFY(bench->clock.readings.empty());
    }

    void comesUpWithAnExercise()
    {
        QCOMPARE(screen->windowTitle(), u"SUMA REPETIDA"_s);
        QCOMPARE(bench->text(u"TbMensaje"_s), u"Escribe esta suma en forma de multiplicación."_s);
        QCOMPARE(sum(), u"3 + 3 + 3 + 3 + 3\n"_s);
        QCOMPARE(answer(), QStringList({QString(), u"X"_s, QString()}));
        QCOMPARE(bench->text(u"Text1"_s), QString());
        QCOMPARE(counters(), u"Ejercicios:  0; Errores:  0"_s);
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
        for (const QString& name : buttons)
            QVERIFY2(bench->control<QPushButton>(name).isEnabled(), qPrintable(name));
    }

    void captionsAndColoursAreExact()
    {
        verifyButton(u"Command1"_s, u"&Hecho"_s, QColor(255, 255, 0));
        verifyButton(u"Command2(0)"_s, u"&Continuar"_s, QColor(0, 255, 255));
        verifyButton(u"Command2(1)"_s, u"&Borrar"_s, QColor(0, 255, 0));
        verifyButton(u"Command2(2)"_s, u"&Ver solución"_s, QColor(255, 0, 0));
    }

    void controlsStandInTheirPlaces_data()
    {
        QTest::addColumn<QRectF>("twips");

        QTest::newRow("TbMensaje") << QRectF(200, 500, 4400, 500);
        QTest::newRow("TbSuma") << QRectF(500, 1500, 3800, 800);
        QTest::newRow("Text3(0)") << QRectF(1200, 2800, 1000, 500);
        QTest::newRow("Text3(1)") << QRectF(1900, 2800, 1000, 500);
        QTest::newRow("Text3(2)") << QRectF(3100, 2800, 1000, 500);
        QTest::newRow("Command1") << QRectF(1650, 4000, 1500, 500);
        QTest::newRow("Text1") << QRectF(900, 5000, 3000, 500);
        QTest::newRow("Command2(1)") << QRectF(400, 6000, 1200, 500);
        QTest::newRow("Command2(0)") << QRectF(1800, 6000, 1200, 500);
        QTest::newRow("Command2(2)") << QRectF(3200, 6000, 1200, 500);
        QTest::newRow("tbResultados") << QRectF(900, 7000, 3000, 500);
    }
    void controlsStandInTheirPlaces()
    {
        QFETCH(QRectF, twips);
        const auto& control =
            bench->control<QWidget>(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(control.geometry(),
            ui::toPixels(
                {twips.x(), twips.y(), twips.width(), twips.height()}, screen->factor()));
        QCOMPARE(control.parentWidget()->size(),
            ui::toPixels({0, 0, 4680, 7590}, screen->factor()).size());
    }

    void theSignStandsHalfwayBetweenTheFactors()
    {
        auto& sign = bench->control<ui::TextBox>(u"Text3(1)"_s);
        QVERIFY(!sign.hasFrame());
        const QRect first = bench->control<QWidget>(u"Text3(0)"_s).geometry();
        const QRect second = bench->control<QWidget>(u"Text3(2)"_s).geometry();
        const int text = sign.geometry().marginsRemoved(sign.textMargins()).center().x();
        QVERIFY2(qAbs(text - (first.right() + second.left()) / 2) <= 1,
            qPrintable(QString::number(text)));
        const QPoint shared(qRound(2050 / 15.0 * screen->factor()), sign.geometry().center().y());
        QCOMPARE(sign.parentWidget()->childAt(shared)->objectName(), u"Text3(0)"_s);
    }

    void theVerdictEdgesBothFactorsUntilTheyAreTypedInto()
    {
        type(u"3"_s, u"4"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(edge(u"Text3(0)"_s), QColor(ui::look::Wrong));
        QCOMPARE(edge(u"Text3(2)"_s), QColor(ui::look::Wrong));
        QTest::keyClick(&bench->control<QWidget>(u"Text3(2)"_s), Qt::Key_Backspace);
        QCOMPARE(edge(u"Text3(0)"_s), QColor(ui::look::Wrong));
        QCOMPARE(edge(u"Text3(2)"_s), std::nullopt);
        bench->type(u"Text3(2)"_s, u"5"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(edge(u"Text3(2)"_s), QColor(ui::look::Right));
    }

    void tabGoesFromLeftToRightAndDown()
    {
        QStringList order;
        for (int i = 0; i < 6; ++i) {
            order << bench->focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
            QStringList({u"Text3(0)"_s, u"Text3(2)"_s, u"Command1"_s, u"Command2(1)"_s,
                u"Command2(0)"_s, u"Command2(2)"_s}));
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
    }

    void aRightAnswerLeadsToContinuar_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");

        QTest::newRow("addend and times") << u"3"_s << u"5"_s;
        QTest::newRow("times and addend") << u"5"_s << u"3"_s;
        QTest::newRow("numbers, not texts") << u" 03"_s << u"5,0 veces"_s;
    }
    void aRightAnswerLeadsToContinuar()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        type(first, second);
        bench->click(u"Command1"_s);
        verifyVerdict(u"Respuesta correcta"_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  0"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
        QCOMPARE(answer(), QStringList({first, u"X"_s, second})); // it stays to be seen
        bench->click(u"Command1"_s);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  0"_s);
    }

    void aWrongAnswerDisablesContinuar()
    {
        type(u"3"_s, u"4"_s);
        bench->key(u"Text3(2)"_s, Qt::Key_Return);
        verifyVerdict(u"Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  1"_s);
        QVERIFY(!bench->control<QPushButton>(u"Command2(0)"_s).isEnabled());
        QCOMPARE(bench->focusName(), u"Text3(2)"_s);
        QCOMPARE(answer(), QStringList({u"3"_s, u"X"_s, u"4"_s}));
    }

    void everyWrongAttemptCounts()
    {
        for (int attempt = 0; attempt < 10; ++attempt)
            bench->key(u"Text3(0)"_s, Qt::Key_Return);
        QCOMPARE(counters(), u"Ejercicios: 10; Errores: 10"_s);
    }

    void afterAWrongAndARightAnswerOnlyTheSolutionLeadsOn()
    {
        bench->click(u"Command1"_s);
        type(u"3"_s, u"5"_s);
        bench->key(u"Text3(2)"_s, Qt::Key_Return);
        verifyVerdict(u"Respuesta correcta"_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios:  2; Errores:  1"_s);
        QVERIFY(!bench->control<QPushButton>(u"Command2(0)"_s).isEnabled());
        QCOMPARE(bench->focusName(), u"Text3(2)"_s); // not on a disabled button
        bench->click(u"Command2(2)"_s);
        QVERIFY(bench->control<QPushButton>(u"Command2(0)"_s).isEnabled());
    }

    void enterChecksInEveryBox_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<Qt::Key>("key");

        for (const QString& box : {u"Text3(0)"_s, u"Text3(1)"_s, u"Text3(2)"_s}) {
            QTest::addRow("%s, Enter", qPrintable(box)) << box << Qt::Key_Return;
            QTest::addRow("%s, keypad", qPrintable(box)) << box << Qt::Key_Enter;
        }
    }
    void enterChecksInEveryBox()
    {
        QFETCH(QString, box);
        QFETCH(Qt::Key, key);
        type(u"5"_s, u"3"_s);
        bench->key(box, key);
        verifyVerdict(u"Respuesta correcta"_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  0"_s);
        QCOMPARE(answer(), QStringList({u"5"_s, u"X"_s, u"3"_s}));
    }

    void noKeyIsFilteredNorClosesTheScreen()
    {
        bench->type(u"Text3(0)"_s, u"a b-3"_s);
        bench->key(u"Text3(0)"_s, Qt::Key_Escape);
        QCOMPARE(bench->text(u"Text3(0)"_s), u"a b-3"_s);
        QVERIFY(screen->isVisible());
    }

    void continuarBringsTheNextExercise()
    {
        type(u"3"_s, u"5"_s);
        bench->click(u"Command1"_s);
        appendSum(10, 7);
        QStringList focus;
        connect(qApp, &QApplication::focusChanged, this, [&](QWidget*, QWidget* now) {
            if (now != nullptr)
                focus << now->objectName();
        });
        bench->key(u"Command2(0)"_s, Qt::Key_Enter);
        disconnect(qApp, nullptr, this, nullptr);
        QCOMPARE(focus, QStringList({u"TbSuma"_s, u"Text3(0)"_s}));
        QCOMPARE(sum(), u"10 + 10 + 10 + 10 + 10\n + 10 + 10"_s);
        QCOMPARE(answer(), QStringList({QString(), u"X"_s, QString()}));
        verifyVerdict({}, Mark::None);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  0"_s);
        type(u"7"_s, u"10"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(counters(), u"Ejercicios:  2; Errores:  0"_s);
    }

    void continuarMayDiscardAnExercise()
    {
        appendSum(3, 5); // the same again
        bench->click(u"Command2(0)"_s);
        QCOMPARE(sum(), u"3 + 3 + 3 + 3 + 3\n"_s);
        QCOMPARE(counters(), u"Ejercicios:  0; Errores:  0"_s);
        QCOMPARE(bench->random.left(), 0u);
    }

    void borrarEmptiesTheFactors()
    {
        type(u"3"_s, u"4"_s);
        bench->click(u"Command1"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(answer(), QStringList({QString(), u"X"_s, QString()}));
        verifyVerdict(u"Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  1"_s);
        QCOMPARE(bench->focusName(), u"Text3(0)"_s);
    }

    void theSolutionIsShownAndEndsTheCounting()
    {
        bench->click(u"Command1"_s); // wrong
        bench->click(u"Command2(2)"_s);
        QCOMPARE(answer(), QStringList({u"3"_s, u"X"_s, u"5"_s}));
        verifyVerdict(u"3 por 5"_s, Mark::None);
        QVERIFY(bench->control<QPushButton>(u"Command2(0)"_s).isEnabled());
        bench->click(u"Command1"_s);
        verifyVerdict(u"Respuesta correcta"_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  1"_s);
        bench->click(u"Command2(1)"_s);
        bench->click(u"Command1"_s);
        verifyVerdict(u"Respuesta incorrecta"_s, Mark::Wrong);
        QCOMPARE(counters(), u"Ejercicios:  1; Errores:  1"_s);
    }

    void fullCountersShowNoBox()
    {
        BoxAnswerer noBox;
        auto& check = bench->control<QPushButton>(u"Command1"_s);
        for (int i = 0; i < 32767; ++i)
            check.click();
        QCOMPARE(counters(), u"Ejercicios:32767; Errores:32767"_s);
        type(u"3"_s, u"5"_s);
        check.click();
        verifyVerdict(u"Respuesta correcta"_s, Mark::Right);
        QCOMPARE(counters(), u"Ejercicios:32767; Errores:32767"_s);
        runPendingEvents();
    }

    void aFreshScreenCountsFromZero()
    {
        bench->click(u"Command1"_s);
        screen->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        appendSum(2, 2);
        screen = &bench->open<Form4>();
        QCOMPARE(counters(), u"Ejercicios:  0; Errores:  0"_s);
        QVERIFY(bench->control<QPushButton>(u"Command2(0)"_s).isEnabled());
    }

    void nothingIsCutOff_data() { theSumFitsTheBoard_data(); }
    void nothingIsCutOff()
    {
        QFETCH(double, factor);
        screen->resize(qCeil(312 * factor), qCeil(506 * factor));
        type(u"100"_s, u"100"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(textsCutOff(*screen).join(u' '), QString());
    }

    void theSumFitsTheBoard_data()
    {
        QTest::addColumn<double>("factor");

        for (double factor : {0.8, 1.0, 1.25, 1.5, 2.3, 4.0})
            QTest::addRow("factor %g", factor) << factor;
    }
    void theSumFitsTheBoard()
    {
        QFETCH(double, factor);
        appendSum(10, 10);
        bench->click(u"Command2(0)"_s);
        screen->resize(qCeil(312 * factor), qCeil(506 * factor));
        const auto& box = bench->control<QPlainTextEdit>(u"TbSuma"_s);
        const QFontMetrics metrics = box.fontMetrics();
        const QRect room = box.viewport()->rect();
        for (const QString& line : sum().split(u'\n'))
            QVERIFY(metrics.horizontalAdvance(line) <= room.width());
        QVERIFY(2 * metrics.lineSpacing() <= room.height());
    }

private:
    void appendSum(int addend, int times)
    {
        bench->random.appendInteger(addend, 10, 1);
        bench->random.appendInteger(times, 9, 2);
    }
    void type(const QString& first, const QString& second) const
    {
        bench->click(u"Command2(1)"_s);
        bench->type(u"Text3(0)"_s, first);
        bench->control<QWidget>(u"Text3(2)"_s).setFocus();
        bench->type(u"Text3(2)"_s, second);
    }
    QString sum() const { return bench->control<QPlainTextEdit>(u"TbSuma"_s).toPlainText(); }
    QString counters() const { return bench->text(u"tbResultados"_s); }
    std::optional<QColor> edge(const QString& name) const
    {
        return bench->control<ui::TextBox>(name).edge();
    }
    QStringList answer() const
    {
        return {
            bench->text(u"Text3(0)"_s), bench->text(u"Text3(1)"_s), bench->text(u"Text3(2)"_s)};
    }
    void verifyVerdict(const QString& text, Mark mark) const
    {
        QCOMPARE(bench->text(u"Text1"_s), text);
        QCOMPARE(bench->control<ui::VerdictBox>(u"Text1"_s).mark(), mark);
    }
    void verifyButton(const QString& name, const QString& caption, const QColor& fill) const
    {
        QCOMPARE(bench->control<QPushButton>(name).text(), caption);
        QCOMPARE(bench->fill(name), fill);
    }

    const QStringList buttons{
        u"Command1"_s, u"Command2(0)"_s, u"Command2(1)"_s, u"Command2(2)"_s};
    std::unique_ptr<ScreenBench> bench;
    Form4* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(RepeatedSumScreenTest)
#include "repeated_sum_screen_test.moc"
