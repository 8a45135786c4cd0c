#include "core/errors.h"
#include "core/folder_scope.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using core::FolderScope;

class FolderScopeTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        QVERIFY(m_folder.isValid());
        m_before = QDir::currentPath();
    }
    void cleanup() { QDir::setCurrent(m_before); }

    void entersTheFolderAndGoesBack()
    {
        {
            const FolderScope scope(m_folder.path());
            QCOMPARE(QDir::current(), QDir(folder()));
        }
        QCOMPARE(QDir::currentPath(), m_before);
    }

    void staysWhenItIsTold()
    {
        {
            FolderScope scope(m_folder.path());
            scope.stay();
        }
        QCOMPARE(QDir::current(), QDir(folder()));
    }

    void aFolderThatIsNotThereChangesNothing()
    {
        const QString missing = m_folder.filePath(u"falta"_s);
        QVERIFY_THROWS_EXCEPTION(core::FileError, FolderScope scope(missing));
        QCOMPARE(QDir::currentPath(), m_before);
    }

private:
    QString folder() const { return QFileInfo(m_folder.path()).canonicalFilePath(); }

    QTemporaryDir m_folder;
    QString m_before;
};

QTEST_GUILESS_MAIN(FolderScopeTest)
#include "folder_scope_test.moc"
