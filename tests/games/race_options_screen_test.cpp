#include "games/race_options_screen.h"

#include "support/car_folder.h"
#include "support/screen_bench.h"

#include <QListWidget>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using games::DlgCarrera;

namespace {

constexpr QSizeF DesignSize(884, 470); // pixels at factor 1

} // namespace

class RaceOptionsScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        copyCarPictures(bench->folder.path());
    }
    void cleanup() { bench.reset(); }

    void comesUpWithItsListsAndTheFirstOfEach()
    {
        open();
        QCOMPARE(dialog->windowTitle(), u"Opciones"_s);
        QCOMPARE(bench->control<QLabel>(u"Label1"_s).text(), u"Selecciona tu &coche"_s);
        QCOMPARE(
            bench->control<QLabel>(u"Label2"_s).text(), u"Selecciona el coche de tu rival"_s);
        QCOMPARE(bench->control<QLabel>(u"Label3"_s).text(), u"Selecciona el &tipo de carrera"_s);
        QCOMPARE(bench->control<QPushButton>(u"OKButton"_s).text(), u"Aceptar"_s);
        const QStringList cars{u"Swift rojo"_s, u"Coche blanco"_s, u"Coche azul"_s,
            u"Furgoneta blanca"_s, u"Furgoneta negra"_s, u"Todo-terreno rojo"_s,
            u"Skoda octavia amarillo"_s, u"Alfa romeo"_s, u"Coche blanco tunning"_s,
            u"Fórmula 1"_s};
        QCOMPARE(texts(u"List1"_s), cars);
        QCOMPARE(texts(u"List2"_s), cars);
        QCOMPARE(texts(u"List3"_s),
            (QStringList{u"Multiplicaciones"_s, u"Divisiones"_s, u"Combinaciones x+-"_s,
                u"Combinaciones /+-"_s}));
        for (const QString& name : {u"List1"_s, u"List2"_s, u"List3"_s}) {
            QCOMPARE(list(name).currentRow(), 0);
            QVERIFY(list(name).item(0)->isSelected());
        }
        QVERIFY(!shown(u"Image1"_s).isNull());
        QVERIFY(!shown(u"Image2"_s).isNull());
        QCOMPARE(bench->focusName(), u"List1"_s);
    }

    void allCarsAreSeenWithoutScrolling()
    {
        open();
        for (int percent = 70; percent <= 400; percent += 7) { // any, in a maximised window
            const double factor = percent / 100.0;
            dialog->resize((DesignSize * factor).toSize());
            for (const QString& name : {u"List1"_s, u"List2"_s, u"List3"_s})
                QVERIFY2(!list(name).verticalScrollBar()->isVisible(),
                    qPrintable(QString::number(factor)));
        }
    }

    void everyCarIsSeenInItsLine()
    {
        open();
        for (const QString& name : {u"List1"_s, u"List2"_s}) {
            const QSize wanted = QSize(84, 36) * dialog->factor();
            QCOMPARE(list(name).iconSize(), wanted);
            for (int row = 0; row < list(name).count(); ++row) {
                const QSize shown = list(name).item(row)->icon().actualSize(wanted);
                QVERIFY(shown.width() >= wanted.width() - 1 && !shown.isEmpty());
                QVERIFY(
                    list(name).visualItemRect(list(name).item(row)).height() >= wanted.height());
            }
        }
        QVERIFY(list(u"List3"_s).item(0)->icon().isNull());
    }

    void acceptStandsAtTheBottomRight()
    {
        open();
        const QRect accept = bench->control<QPushButton>(u"OKButton"_s).geometry();
        for (const auto* other : dialog->findChildren<QListWidget*>())
            QVERIFY(accept.bottom() >= other->geometry().bottom());
        QVERIFY(accept.right() >= list(u"List3"_s).geometry().right());
    }

    void untouchedItGivesTheFirstOfEach()
    {
        open();
        bench->click(u"OKButton"_s);
        verifyAccepted(0, 0, 0);
    }

    void acceptStoresTheChoicesAndHides()
    {
        open();
        choose(u"List1"_s, 2);
        choose(u"List2"_s, 9);
        choose(u"List3"_s, 3);
        verifyAccepted(0, 0, 0); // not stored before "Aceptar"
        bench->click(u"OKButton"_s);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(bench->screens.loaded(u"DlgCarrera"_s), dialog);
        verifyAccepted(2, 9, 3);
    }

    void sameCarForBothIsAllowed()
    {
        open();
        choose(u"List1"_s, 4);
        choose(u"List2"_s, 4);
        bench->click(u"OKButton"_s);
        verifyAccepted(4, 4, 0);
    }

    void closingHidesAndKeepsWhatWasAcceptedLast()
    {
        open();
        choose(u"List1"_s, 5);
        bench->click(u"OKButton"_s);
        dialog->show();
        choose(u"List1"_s, 7);
        dialog->close();
        QVERIFY(!dialog->isVisible());
        QCOMPARE(bench->screens.loaded(u"DlgCarrera"_s), dialog);
        verifyAccepted(5, 0, 0);
    }

    void nothingSelectedIsStoredAsMinusOne()
    {
        open();
        list(u"List2"_s).setCurrentRow(-1); // no box: the rival's picture is left as it is
        list(u"List3"_s).setCurrentRow(-1);
        bench->click(u"OKButton"_s);
        verifyAccepted(0, -1, -1);
    }

    void ctrlClickTakesNoSelectionAway()
    {
        open();
        clickRow(u"List1"_s, 3);
        clickRow(u"List1"_s, 3, Qt::ControlModifier);
        QVERIFY(list(u"List1"_s).item(3)->isSelected());
        QCOMPARE(list(u"List1"_s).currentRow(), 3);
    }

    void eachListShowsItsPicture()
    {
        open();
        const QImage swift = shown(u"Image1"_s);
        clickRow(u"List1"_s, 8);
        const QImage tuned = shown(u"Image1"_s);
        QVERIFY(tuned != swift);
        QCOMPARE(shown(u"Image2"_s), swift);
        QTest::keyClick(&list(u"List2"_s), Qt::Key_End);
        QTest::keyClick(&list(u"List2"_s), Qt::Key_Up);
        QCOMPARE(shown(u"Image2"_s), tuned);
        QCOMPARE(shown(u"Image1"_s), tuned);
    }

    void widePictureIsShown540TwipsWide()
    {
        open();
        for (const QString& name : {u"Image1"_s, u"Image2"_s}) {
            const QSize size = bench->control<QLabel>(name).size();
            QCOMPARE(size.width(), qRound(540 * dialog->factor() / 15));
            QVERIFY(qAbs(size.height() - 540 * dialog->factor() / 15 * 340 / 800) <= 1);
        }
    }

    void smallPictureKeepsItsSize()
    {
        QImage small(20, 10, QImage::Format_RGB32);
        small.fill(Qt::red);
        QVERIFY(small.save(bench->folder.filePath(u"01 _ Swift rojo.jpg"_s), "JPG"));
        open();
        const QSize size = bench->control<QLabel>(u"Image1"_s).size();
        QCOMPARE(size, (QSizeF(20, 10) * dialog->factor()).toSize());
    }

    void missingPictureIsToldByNameAndTheDialogGoesOn()
    {
        QVERIFY(QFile::remove(bench->folder.filePath(u"03 _ Azul.jpg"_s)));
        open();
        QTest::keyClick(&list(u"List1"_s), Qt::Key_Down);
        const QImage white = shown(u"Image1"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        QTest::keyClick(&list(u"List1"_s), Qt::Key_Down);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().contains(u"«03 _ Azul.jpg»"_s));
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QCOMPARE(shown(u"Image1"_s), white); // stays as it was
        QTest::keyClick(&list(u"List1"_s), Qt::Key_Down);
        QVERIFY(shown(u"Image1"_s) != white);
        bench->click(u"OKButton"_s);
        verifyAccepted(3, 0, 0);
    }

    void brokenPictureIsToldByNameAtAClickOnce()
    {
        QFile file(bench->folder.filePath(u"10 _ Formula 1.jpg"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        open();
        BoxAnswerer boxes(u"Aceptar"_s);
        clickRow(u"List2"_s, 9);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().contains(u"«10 _ Formula 1.jpg»"_s));
        clickRow(u"List2"_s, 1);
        QCOMPARE(list(u"List2"_s).currentRow(), 1);
    }

    void missingFirstPictureDoesNotKeepTheDialogAway()
    {
        QVERIFY(QFile::remove(bench->folder.filePath(u"01 _ Swift rojo.jpg"_s)));
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s}); // one for each car
        open();
        QVERIFY(dialog->isVisible());
        choose(u"List1"_s, 1);
        QVERIFY(!shown(u"Image1"_s).isNull());
    }

    void accessKeysLeadToTheLists()
    {
        open();
        QTest::keyClick(dialog, Qt::Key_T, Qt::AltModifier);
        QCOMPARE(bench->focusName(), u"List3"_s);
        QTest::keyClick(dialog, Qt::Key_C, Qt::AltModifier);
        QCOMPARE(bench->focusName(), u"List1"_s);
        QTest::keyClick(dialog, Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"List2"_s);
        QTest::keyClick(dialog, Qt::Key_Tab);
        QTest::keyClick(dialog, Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"OKButton"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
    }

    void escapeDoesNothing()
    {
        open();
        QTest::keyClick(&list(u"List1"_s), Qt::Key_Escape);
        QVERIFY(dialog->isVisible());
    }

private:
    void open() { dialog = &bench->open<DlgCarrera>(); }

    QListWidget& list(const QString& name) const { return bench->control<QListWidget>(name); }

    QStringList texts(const QString& name) const
    {
        QStringList result;
        for (int row = 0; row < list(name).count(); ++row)
            result << list(name).item(row)->text();
        return result;
    }

    QImage shown(const QString& name) const
    {
        return bench->control<QLabel>(name).pixmap(Qt::ReturnByValue).toImage();
    }

    void choose(const QString& name, int row)
    {
        QTest::keyClick(&list(name), Qt::Key_Home);
        for (int step = 0; step < row; ++step)
            QTest::keyClick(&list(name), Qt::Key_Down);
        QCOMPARE(list(name).currentRow(), row);
    }

    void clickRow(const QString& name, int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QPoint centre = list(name).visualItemRect(list(name).item(row)).center();
        QTest::mouseClick(list(name).viewport(), Qt::LeftButton, modifiers, centre);
    }

    void verifyAccepted(int player, int rival, int type)
    {
        QCOMPARE(dialog->Personaje().value(), player);
        QCOMPARE(dialog->Rival().value(), rival);
        QCOMPARE(dialog->Tipo().value(), type);
    }

    std::unique_ptr<ScreenBench> bench;
    DlgCarrera* dialog = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(RaceOptionsScreenTest)
#include "race_options_screen_test.moc"
