#include "core/system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

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

    void onlyOneSystemKeepsACommonBank()
    {
#ifdef Q_OS_WIN
        QVERIFY(core::commonBankFolder().endsWith(u"/Pizarrin/Recursos"_s));
#else
        QVERIFY(core::commonBankFolder().isEmpty());
#endif
    }

#ifndef Q_OS_WIN // there, whoever runs this may have chosen it
    void contrastIsAskedOfTheDesktop()
    {
        QVERIFY(!core::asksForHighContrast());
    }
#endif
};

QTEST_GUILESS_MAIN(SystemTest)
#include "system_test.moc"
