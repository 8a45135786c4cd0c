#include "core/system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

bool isWindows()
{
    return QSysInfo::kernelType() == u"winnt"_s;
}

} // namespace

class SystemTest : public QObject {
    Q_OBJECT

private slots:
    void aFolderIsTriedByWritingInIt()
    {
        const QTemporaryDir folder;
        QVERIFY(core::canWriteIn(folder.path()));
        QVERIFY(QDir(folder.path()).isEmpty()); // nothing is left behind
        QVERIFY(!core::canWriteIn(folder.filePath(u"missing"_s)));
    }

    void aFileIsTriedWithoutMakingOrChangingIt()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(u"banco.dat"_s);
        QVERIFY(!core::canWrite(name));
        QVERIFY(!QFile::exists(name));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("8 x 7"), 5);
        file.close();
        QVERIFY(core::canWrite(name));
        QCOMPARE(QFile(name).size(), 5);
    }

    void onlyWindowsKeepsACommonBank()
    {
        const QString folder = core::commonBankFolder();
        QCOMPARE(!folder.isEmpty(), isWindows());
        QCOMPARE(folder.endsWith(u"/Pizarrin/Recursos"_s), isWindows());
    }

    void onlyOnWindowsReadersUseSomethingElse()
    {
        QCOMPARE(core::readersUseAtSpi(), !isWindows());
    }

    void contrastIsAskedOfTheDesktop()
    {
        if (isWindows())
            QSKIP("whoever runs this may have chosen high contrast");
        QVERIFY(!core::asksForHighContrast());
    }
};

QTEST_GUILESS_MAIN(SystemTest)
#include "system_test.moc"
