#include "problems/selection_screen.h"

#include "core/errors.h"
#include "support/bank_folder.h"
#include "support/screen_bench.h"

#include <QAbstractButton>
#include <QGroupBox>

using namespace Qt::StringLiterals;
using problems::DLGSelProb;

class SelectionScreenTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        writeBank(bench->folder.path(),
            {"a|1||*", "b|2||/", "c|3||*/", "d|4||+", "e|5||-", "f|6||*+-"});
    }
    void cleanup() { bench.reset(); }

    void comesUpWithNothingChosen()
    {
        open();
        QCOMPARE(dialog->windowTitle(), u"Selección de problemas"_s);
        QCOMPARE(bench->text(u"Text1"_s), u"0 tipos seleccionados"_s);
        QVERIFY(bench->control<QLineEdit>(u"Text1"_s).isReadOnly());
        for (const QString& name : choices())
            QVERIFY2(!isChecked(name), qPrintable(name));
    }

    void captionsAreExact()
    {
        open();
        const QMap<QString, QString> captions{{u"Option1(0)"_s, u"Todos los tipos"_s},
            {u"Option1(1)"_s, u"Con alguna de las seleccionadas"_s},
            {u"Option1(2)"_s, u"Con todas las seleccionadas"_s},
            {u"Check1(0)"_s, u"&Multiplic"_s}, {u"Check1(1)"_s, u"&Divisiones"_s},
            {u"Check1(2)"_s, u"&Sumas"_s}, {u"Check1(3)"_s, u"&Restas"_s},
            {u"OKButton"_s, u"Aceptar"_s}, {u"CancelButton"_s, u"Cancelar"_s}};
        for (const auto& [name, caption] : captions.asKeyValueRange())
            QCOMPARE(bench->control<QAbstractButton>(name).text(), caption);
        QCOMPARE(bench->control<QGroupBox>(u"Frame1"_s).title(), u"&Tipo de problemas"_s);
        QCOMPARE(bench->control<QGroupBox>(u"Frame2"_s).title(), u"&Operaciones"_s);
    }

    void framesHoldTheirChoices()
    {
        open();
        for (const QString& name : choices()) {
            const bool isOption = name.startsWith(u"Option1"_s);
            const auto& frame = bench->control<QGroupBox>(isOption ? u"Frame1"_s : u"Frame2"_s);
            QVERIFY2(frame.isAncestorOf(&bench->control<QWidget>(name)), qPrintable(name));
        }
    }

    void everyClickCounts()
    {
        open();
        choose(u"Option1(0)"_s);
        verifyCount(6);
        choose(u"Option1(1)"_s);
        verifyCount(0);
        choose(u"Check1(3)"_s);
        verifyCount(2);
        choose(u"Check1(1)"_s);
        verifyCount(4);
        choose(u"Option1(2)"_s);
        verifyCount(0);
        choose(u"Check1(1)"_s); // unchecked again
        verifyCount(2);
        choose(u"Check1(3)"_s);
        verifyCount(6);
    }

    void withoutAnOptionNothingCounts()
    {
        open();
        choose(u"Check1(0)"_s);
        verifyCount(0);
    }

    void spaceAndArrowKeysCountToo()
    {
        open();
        bench->control<QWidget>(u"Option1(0)"_s).setFocus();
        bench->key(u"Option1(0)"_s, Qt::Key_Space);
        verifyCount(6);
        bench->key(u"Option1(0)"_s, Qt::Key_Down);
        QVERIFY(isChecked(u"Option1(1)"_s));
        QVERIFY(!isChecked(u"Option1(0)"_s));
        verifyCount(0);
        bench->control<QWidget>(u"Check1(2)"_s).setFocus();
        bench->key(u"Check1(2)"_s, Qt::Key_Space);
        verifyCount(2);
    }

    void accessKeysCheck()
    {
        open();
        choose(u"Option1(1)"_s);
        for (const Qt::Key key : {Qt::Key_M, Qt::Key_D, Qt::Key_S, Qt::Key_R})
            QTest::keyClick(dialog, key, Qt::AltModifier);
        for (int k = 0; k < 4; ++k) // a check box shows itself pressed first
            QTRY_VERIFY2(isChecked(u"Check1(%1)"_s.arg(k)), qPrintable(QString::number(k)));
        verifyCount(6);
    }

    void acceptHandsTheChoiceBack_data()
    {
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<int>("selection");
        QTest::addColumn<int>("mask");
        QTest::newRow("nothing") << QStringList() << 0 << 0;
        QTest::newRow("all") << QStringList{u"Option1(0)"_s} << 0 << 0;
        QTest::newRow("any") << QStringList{u"Option1(1)"_s, u"Check1(0)"_s} << 1 << 1;
        QTest::newRow("any: subtraction")
            << QStringList{u"Option1(1)"_s, u"Check1(3)"_s} << 1 << 8;
        QTest::newRow("both") << QStringList{u"Check1(0)"_s, u"Check1(1)"_s, u"Option1(2)"_s} << 2
                              << 3;
        QTest::newRow("all types, checked")
            << QStringList{u"Option1(0)"_s, u"Check1(1)"_s, u"Check1(2)"_s} << 0 << 6;
    }
    void acceptHandsTheChoiceBack()
    {
        QFETCH(QStringList, chosen);
        open();
        for (const QString& name : chosen)
            choose(name);
        bench->click(u"OKButton"_s);
        QCOMPARE(handed.size(), 1u);
        QTEST(handed.front().first, "selection");
        QTEST(handed.front().second, "mask");
        QVERIFY(!bench->screens.loaded(u"DLGSelProb"_s));
    }

    void cancelHandsNothingBack()
    {
        open();
        choose(u"Option1(0)"_s);
        bench->click(u"CancelButton"_s);
        QVERIFY(handed.empty());
        QVERIFY(!bench->screens.loaded(u"DLGSelProb"_s));
    }

    void closeBoxHandsNothingBack()
    {
        open();
        choose(u"Option1(0)"_s);
        dialog->close();
        QVERIFY(handed.empty());
        QVERIFY(!bench->screens.loaded(u"DLGSelProb"_s));
    }

    void escapeDoesNothing()
    {
        open();
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(dialog->isVisible());
    }

    void missingBankIsAnEmptyOne()
    {
        QVERIFY(QFile::remove(bench->folder.filePath(u"Problemas3.dat"_s)));
        const QString before = QDir::currentPath();
        open();
        QCOMPARE(QDir::currentPath(), before);
        choose(u"Option1(0)"_s);
        verifyCount(0);
    }

    void aBankThatCannotBeReadOpensNothing_data()
    {
        QTest::addColumn<bool>("folder");
        QTest::addColumn<QString>("text");
        QTest::newRow("not a file") << true << u"No se puede leer «"_s;
        QTest::newRow("no folder") << false << u"No se puede abrir la carpeta «"_s;
    }
    void aBankThatCannotBeReadOpensNothing()
    {
        QFETCH(bool, folder);
        QFETCH(QString, text);
        const QString before = QDir::currentPath();
        spoilBank(folder);
        bench->screens.add<DLGSelProb>();
        try {
            bench->screens.show(DLGSelProb::screenName());
            QFAIL("opened");
        } catch (const core::FileError& error) {
            QVERIFY2(error.text().startsWith(text), qPrintable(error.text()));
        }
        QVERIFY(!bench->screens.loaded(u"DLGSelProb"_s));
        QCOMPARE(QDir::currentPath(), before);

        if (!folder)
            QVERIFY(QDir().mkdir(bench->folder.path()));
        else
            QVERIFY(QDir(bench->folder.path()).rmdir(u"Problemas3.dat"_s));
        writeBank(bench->folder.path(), {"a|1||*"});
        open(); // mended, it opens
        choose(u"Option1(0)"_s);
        verifyCount(1);
    }

    void tabGoesThroughEveryControl()
    {
        open();
        choose(u"Option1(0)"_s); // Tab stops at the option that is chosen
        bench->control<QWidget>(u"Option1(0)"_s).setFocus();
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            order << bench->focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
            (QStringList{u"Option1(0)"_s, u"Check1(0)"_s, u"Check1(1)"_s, u"Check1(2)"_s,
                u"Check1(3)"_s, u"OKButton"_s, u"CancelButton"_s}));
        QCOMPARE(bench->focusName(), u"Option1(0)"_s);
    }

private:
    static QStringList choices()
    {
        return {u"Option1(0)"_s, u"Option1(1)"_s, u"Option1(2)"_s, u"Check1(0)"_s, u"Check1(1)"_s,
            u"Check1(2)"_s, u"Check1(3)"_s};
    }

    void open()
    {
        dialog = &bench->open<DLGSelProb>();
        handed.clear();
        connect(dialog, &ui::Screen::unloaded, this, [this] {
            if (const auto& choice = dialog->choice())
                handed.emplace_back(choice->Seleccion.value(), int(choice->MaskOpera));
        });
    }

    /// Leaves the folder without a bank that can be read, or no folder.
    void spoilBank(bool folder) const
    {
        QVERIFY(QFile::remove(bench->folder.filePath(u"Problemas3.dat"_s)));
        if (folder)
            QVERIFY(QDir(bench->folder.path()).mkdir(u"Problemas3.dat"_s));
        else
            QVERIFY(QDir().rmdir(bench->folder.path()));
    }

    void choose(const QString& name) const
    {
        auto& control = bench->control<QAbstractButton>(name);
        QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(12, control.height() / 2));
    }

    bool isChecked(const QString& name) const
    {
        return bench->control<QAbstractButton>(name).isChecked();
    }

    void verifyCount(int count) const
    {
        QCOMPARE(bench->text(u"Text1"_s), u"%1 enunciados disponibles"_s.arg(count));
        QCOMPARE(bench->control<QWidget>(u"OKButton"_s).isEnabled(), count >= 1);
    }

    std::unique_ptr<ScreenBench> bench;
    DLGSelProb* dialog = nullptr;
    std::vector<std::pair<int, int>> handed;
};

PIZARRIN_SCREEN_TEST_MAIN(SelectionScreenTest)
#include "selection_screen_test.moc"
