#include "support/sample_screen.h"
#include "support/screen_bench.h"

#include <QLocale>
#include <QMenu>
#include <QStyle>

using namespace Qt::StringLiterals;

class ApplicationTest : public QObject {
    Q_OBJECT

private slots:
    void contextMenusAreSpanish()
    {
        ScreenBench bench;
        auto& screen = bench.open<SampleScreen>();
        const QStringList spanish{u"Deshacer"_s, u"Rehacer"_s, u"Cortar"_s, u"Copiar"_s,
            u"Pegar"_s, u"Eliminar"_s, u"Borrar"_s, u"Seleccionar todo"_s};
        std::unique_ptr<QMenu> lineMenu(screen.entry->createStandardContextMenu());
        std::unique_ptr<QMenu> memoMenu(screen.lines->createStandardContextMenu());
        for (const QMenu* menu : {lineMenu.get(), memoMenu.get()}) {
            int texts = 0;
            for (const QAction* action : menu->actions()) {
                if (action->isSeparator())
                    continue;
                ++texts;
                QString text = action->text().section(u'\t', 0, 0);
                text.remove(u'&');
                QVERIFY2(spanish.contains(text), qPrintable(action->text()));
            }
            QVERIFY(texts >= 5);
        }
    }

    void looksTheSameWhateverTheDesktop()
    {
        QVERIFY(!QApplication::desktopSettingsAware());
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(ui::look::Paper));
        QCOMPARE(QApplication::palette().color(QPalette::Text), QColor(ui::look::Ink));
        ScreenBench bench;
        auto& screen = bench.open<SampleScreen>();
        QCOMPARE(QColor(screen.grab().toImage().pixel(2, 100)), QColor(ui::look::Paper));
    }

    void noMenuBarIsTheDesktops()
    {
        QVERIFY(QApplication::testAttribute(Qt::AA_DontUseNativeMenuBar));
    }

    void windowsCarryTheBoard()
    {
        const QImage icon = QApplication::windowIcon().pixmap(64, 64).toImage();
        QCOMPARE(icon.size(), QSize(64, 64));
        QCOMPARE(icon.pixelColor(32, 1).alpha(), 0); // above the frame
        QCOMPARE(icon.pixelColor(32, 6), QColor(0xD9, 0xA0, 0x5B)); // wood
        QCOMPARE(icon.pixelColor(32, 40), QColor(0x1F, 0x4D, 0x3D)); // board
        QCOMPARE(icon.pixelColor(18, 30), QColor(Qt::white)); // the cross of its times sign
    }

    void closingTheLastWindowDoesNotEndTheProgram()
    {
        QVERIFY(!QApplication::quitOnLastWindowClosed());
    }
};

PIZARRIN_SCREEN_TEST_MAIN(ApplicationTest)
#include "application_test.moc"
