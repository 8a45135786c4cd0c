// The bank where the program stands in a folder that nobody may write: all that is read and
// saved is in the folder that the users of the computer share.
#include "problems/bank_editor_screen.h"
#include "problems/problem_session_screen.h"
#include "problems/selection_screen.h"
#include "support/bank_folder.h"
#include "support/screen_bench.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QTextEdit>

using namespace Qt::StringLiterals;

class SharedBankTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        writeBank(bench->folder.path(), {"P0|10|u0|*", "P1|11|u1|*"});
        screens = std::make_unique<ui::ScreenSet>(
            bench->random, bench->clock, bench->folder.filePath(u"nada"_s), bench->folder.path());
    }
    void cleanup()
    {
        screens.reset();
        bench.reset();
    }

    void theEditorReadsAndSavesIt()
    {
        auto& editor = open<problems::DLGProblemas>();
        auto& list = find<QListWidget>(editor, u"List1");
        QCOMPARE(list.item(0)->text(), u"P0|10|u0|*"_s);
        list.setCurrentRow(0);
        QTest::mouseClick(&find<QAbstractButton>(editor, u"CBAccion(2)"), Qt::LeftButton);
        QTest::mouseClick(&find<QAbstractButton>(editor, u"OKButton"), Qt::LeftButton);
        QFile bank(bench->folder.filePath(u"Problemas3.dat"_s));
        QVERIFY(bank.open(QIODevice::ReadOnly));
        QCOMPARE(bank.readAll(), QByteArray("P1|11|u1|*\r\n"));
    }

    void theSessionReadsIt()
    {
        bench->random.appendInteger(1, 1, 1);
        QCOMPARE(find<QTextEdit>(open<problems::FormProblemas>(), u"TBEnunciado").toPlainText(),
            u"P1"_s);
    }

    void theSelectionReadsIt()
    {
        auto& dialog = open<problems::DLGSelProb>();
        find<QAbstractButton>(dialog, u"Option1(0)").click();
        QCOMPARE(find<QLineEdit>(dialog, u"Text1").text(), u"2 enunciados disponibles"_s);
    }

private:
    template <typename S> S& open()
    {
        screens->add<S>();
        screens->show(S::screenName());
        return static_cast<S&>(*screens->loaded(S::screenName()));
    }
    template <typename T> static T& find(const QObject& screen, QStringView name)
    {
        return ScreenBench::find<T>(screen, name);
    }

    std::unique_ptr<ScreenBench> bench;
    std::unique_ptr<ui::ScreenSet> screens;
};

PIZARRIN_SCREEN_TEST_MAIN(SharedBankTest)
#include "shared_bank_test.moc"
