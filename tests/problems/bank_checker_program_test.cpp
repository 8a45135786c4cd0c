#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The program for whoever shares banks, run as they run it.
class BankCheckerProgramTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString out;
    QString err;

    /// With the line ends of every system.
    static QString text(const QByteArray& written)
    {
        return QString::fromUtf8(written).replace(u"\r\n"_s, u"\n"_s);
    }

    /// The exit status.
    int run(const QStringList& arguments, const QString& program)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        if (!process.waitForFinished(-1)) // the test's own time limit is enough
            return -1;
        out = text(process.readAllStandardOutput());
        err = text(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    int run(const QStringList& arguments)
    {
        return run(arguments, QString::fromUtf8(PIZARRIN_BANCO));
    }

    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return file.fileName();
    }

private slots:
    void initTestCase()
    {
        // A terminal without a language, where the toolkit would have something to say.
        environment.insert(u"LC_ALL"_s, u"C"_s);
    }

    void findsTheStarterBankClean()
    {
        QCOMPARE(run({QString::fromUtf8(PIZARRIN_RESOURCES) + u"/Problemas3.dat"_s}), 0);
        QVERIFY2(out.endsWith(u"Con faltas: 0.\n"_s), qPrintable(out));
        QCOMPARE(out.count(u'\n'), 1);
        QCOMPARE(err, QString());
    }

    void tellsFaultsAndEndsWithOne()
    {
        const QString bank =
            write(u"otro nombre.dat"_s, "Bien [2_9]|{&1+1}||+\r\n\r\nM\xE1s [2_9]|{&1/2}||/\r\n");
        QCOMPARE(run({bank}), 1);
        QVERIFY2(
            out.startsWith(u"Línea 2: Más [2_9]|{&1/2}||/\n  - {&1/2} da "_s), qPrintable(out));
        QVERIFY2(out.endsWith(u"\nProblemas leídos: 2. Con faltas: 1.\n"_s), qPrintable(out));
        QCOMPARE(err, QString());
        const QString before = out;
        QCOMPARE(run({bank}), 1);
        QCOMPARE(out, before); // the same draws every time
    }

    void endsWithTwoWhereItCannotRead()
    {
        const QString missing = folder.filePath(u"no está.dat"_s);
        QCOMPARE(run({missing}), 2);
        QCOMPARE(out, QString());
        QVERIFY2(err.startsWith(u"No se puede leer «"_s), qPrintable(err));
        QCOMPARE(run({missing, missing}), 2);
        QVERIFY2(err.startsWith(u"Uso: pizarrin-banco [ARCHIVO]\n"_s), qPrintable(err));
        QCOMPARE(run({u"--help"_s}), 0);
        QVERIFY2(out.startsWith(u"Uso: pizarrin-banco [ARCHIVO]\n"_s), qPrintable(out));
    }

    void takesTheBankBesideItWithoutAnArgument()
    {
        const QFileInfo program(QString::fromUtf8(PIZARRIN_BANCO));
        const QString copy = folder.filePath(program.fileName());
        QVERIFY(QFile::copy(program.filePath(), copy));
        QVERIFY(QDir(folder.path()).mkdir(u"Recursos"_s));
        QVERIFY(!write(u"Recursos/Problemas3.dat"_s, "Bien [2_9]|{&1+1}||+\r\n").isEmpty());
        QCOMPARE(run({}, copy), 0);
        QCOMPARE(out, u"Problemas leídos: 1. Con faltas: 0.\n"_s);
    }
};

QTEST_GUILESS_MAIN(BankCheckerProgramTest)
#include "bank_checker_program_test.moc"
