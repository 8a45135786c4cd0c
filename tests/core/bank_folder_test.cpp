#include "core/bank_folder.h"

#include "core/errors.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using core::BankFolder;

namespace {

/// Compiled into this program: a folder with a starter bank that no system lets anyone write.
const QString Installed = u":/Recursos"_s;

} // namespace

class BankFolderTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        shared = folder->filePath(u"Datos comunes/Pizarrín/Recursos"_s);
    }
    void cleanup() { folder.reset(); }

    void isBesideTheProgram()
    {
        const BankFolder bank(folder->path(), shared);
        QCOMPARE(bank.toRead(), folder->path());
        QCOMPARE(bank.toSave(), folder->path());
        QVERIFY(!QFile::exists(shared));
        QVERIFY(QDir(folder->path()).isEmpty()); // trying leaves nothing behind
    }

    void aBankBesideTheProgramIgnoresTheSharedOne()
    {
        write("de todos\r\n");
        const BankFolder bank(folder->path(), shared);
        QCOMPARE(bank.toRead(), folder->path());
        QCOMPARE(bank.toSave(), folder->path());
    }

    void withoutASharedFolderItIsBesideTheProgramAnyway()
    {
        const BankFolder bank(Installed);
        QCOMPARE(bank.toRead(), Installed);
        QCOMPARE(bank.toSave(), Installed);
    }

    void isReadBesideTheProgramUntilTheFirstSave()
    {
        const BankFolder bank(Installed, shared);
        QCOMPARE(bank.toRead(), Installed);
        QVERIFY(!QFile::exists(shared));
    }

    void theFirstSaveMakesTheSharedFolderFromTheStarterBank()
    {
        const BankFolder bank(Installed, shared);
        QCOMPARE(bank.toSave(), shared);
        QFile starter(Installed + u"/Problemas3.dat"_s);
        QVERIFY(starter.open(QIODevice::ReadOnly));
        QCOMPARE(contents(), starter.readAll());
        QVERIFY(QFileInfo(shared + u"/Problemas3.dat"_s).isWritable());
        QCOMPARE(bank.toRead(), shared);
        QCOMPARE(BankFolder(Installed, shared).toRead(), shared); // and the next time
    }

    void laterSavesFindTheSharedBankAsItIs()
    {
        write("de todos\r\n");
        const BankFolder bank(Installed, shared);
        QCOMPARE(bank.toRead(), shared);
        QCOMPARE(bank.toSave(), shared);
        QCOMPARE(contents(), QByteArray("de todos\r\n"));
    }

    void withoutAStarterBankTheSharedFolderIsEmpty()
    {
        const BankFolder bank(u":/nada"_s, shared);
        QCOMPARE(bank.toSave(), shared);
        QVERIFY(QDir(shared).exists());
        QVERIFY(QDir(shared).isEmpty());
        QCOMPARE(bank.toRead(), u":/nada"_s);
    }

    void aSharedFolderThatCannotBeMadeIsTold()
    {
        QFile file(folder->filePath(u"archivo"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString inFile = folder->filePath(u"archivo/Recursos"_s);
        try {
            BankFolder(Installed, inFile).toSave();
            QFAIL("nothing was wrong");
        } catch (const core::FileError& error) {
            QCOMPARE(error.text(),
                u"No se puede crear la carpeta «%1».\n"
                "Compruebe que tiene permiso para escribir ahí."_s.arg(
                    QDir::toNativeSeparators(inFile)));
        }
    }

private:
    void write(const QByteArray& bytes)
    {
        QVERIFY(QDir().mkpath(shared));
        QFile file(shared + u"/Problemas3.dat"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }
    QByteArray contents() const
    {
        QFile file(shared + u"/Problemas3.dat"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString shared;
};

QTEST_GUILESS_MAIN(BankFolderTest)
#include "bank_folder_test.moc"
