#include "problems/bank.h"

#include "support/ordinary_user.h"

#include <QtTest>

#include <cstdio>
#include <filesystem>

using namespace Qt::StringLiterals;
using problems::Bank;
using problems::GuardarBanco;
using problems::LeerBanco;
using problems::MissingBank;

namespace {

/// The arguments with which this program, run again, is the one that saves.
const QString SaveForever = u"--save-forever"_s;
const QString SaveOnce = u"--save-once"_s;

constexpr quint32 KillSeed = 20'240'901; // of the moments at which savers are killed

/// A bank that is told from every other by each of its lines.
QStringList manyLines(int generation)
{
    QStringList lines;
    for (int number = 0; number < 2'000; ++number)
        lines.append(u"Generación %1, problema %2: ¿cuántos años?|%2|años|*"_s.arg(generation)
                         .arg(number));
    return lines;
}

/// Prints a line before every save.
int saveForever(const QString& folder)
{
    for (int generation = 1;; ++generation) {
        std::puts("saving");
        std::fflush(stdout);
        GuardarBanco(folder, manyLines(generation));
    }
}

/// Waits until a saver has begun this many saves.
bool waitForSaves(QProcess& saver, int saves)
{
    for (qsizetype begun = 0; begun < saves;) {
        if (!saver.canReadLine() && !saver.waitForReadyRead())
            return false;
        begun += saver.readAllStandardOutput().count('\n');
    }
    return true;
}

/// Saves 2,000 lines and prints what was wrong with it.
int saveOnce(const QString& folder)
{
    try {
        GuardarBanco(folder, manyLines(9));
    } catch (const core::FileError& error) {
        std::fputs(error.what(), stdout);
        return 1;
    }
    return 0;
}

} // namespace

class BankTest : public QObject {
    Q_OBJECT

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    QByteArray contents(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    QStringList read() const { return LeerBanco(m_folder->path()).value_or(Bank{}).lines; }

    /// Of an octal mode, for the owner, the group and all others.
    static QFile::Permissions permissions(unsigned mode)
    {
        const unsigned digits = (mode & 0700) << 6 | (mode & 0070) << 1 | (mode & 0007);
        return QFile::Permissions::fromInt(digits);
    }

    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    QString savingFails(const QStringList& lines) const
    {
        try {
            GuardarBanco(m_folder->path(), lines);
        } catch (const core::FileError& error) {
            return error.text();
        }
        return u"saved"_s;
    }

    /// Runs shell commands as root of a namespace of their own, where $1 is this program
    /// and $2 the folder. Nothing when the system allows no such namespace.
    std::optional<QString> runInNamespace(const QString& commands) const
    {
        QProcess process;
        process.start(u"unshare"_s,
            {u"--user"_s, u"--map-root-user"_s, u"--mount"_s, u"sh"_s, u"-c"_s,
                u"mount -t tmpfs -o size=512k tmpfs \"$2\" || exit 99\n"_s + commands, u"sh"_s,
                QCoreApplication::applicationFilePath(), m_folder->path()});
        if (!process.waitForStarted() || !process.waitForFinished())
            return std::nullopt;
        const QByteArray errors = process.readAllStandardError();
        if (process.exitCode() == 99 || errors.startsWith("unshare:"))
            return std::nullopt;
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_previous;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_previous = QDir::currentPath();
    }

    void cleanup()
    {
        QCOMPARE(QDir::currentPath(), m_previous); // restored by whatever the test did
    }

    void reads_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("empty") << QByteArray() << QStringList();
        QTest::newRow("one line") << QByteArray("a|1||*\r\n") << QStringList{u"a|1||*"_s};
        QTest::newRow("in order")
            << QByteArray("b\r\na\r\nc\r\n") << QStringList{u"b"_s, u"a"_s, u"c"_s};
        QTest::newRow("no last line end") << QByteArray("a\r\nb") << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("LF") << QByteArray("a\nb\n") << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("CR") << QByteArray("a\rb\r") << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("empty lines")
            << QByteArray("\r\na\r\n\r\n\n\r\nb\r\n\r\n") << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("line ends alone") << QByteArray("\r\n\r\n\n") << QStringList();
        QTest::newRow("blanks are no empty line")
            << QByteArray(" \r\n a \r\n\t\r\n") << QStringList{u" "_s, u" a "_s, u"\t"_s};
        QTest::newRow("Windows-1252")
            << QByteArray("\xBF\x80 a\xF1os?|1|\x80|+\r\n") << QStringList{u"¿€ años?|1|€|+"_s};
        QTest::newRow("undefined bytes") << QByteArray("\x81\x8D\x8F\x90\x9D\r\n")
                                         << QStringList{u"\u0081\u008D\u008F\u0090\u009D"_s};
        QTest::newRow("end-of-file sign")
            << QByteArray("a\x1A\r\nb\r\n") << QStringList{u"a\u001A"_s, u"b"_s};
        QTest::newRow("NUL") << QByteArray("a\0b\r\n", 5) << QStringList{u"a\0b"_s};
    }
    void reads()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, lines);
        write(u"Problemas3.dat"_s, bytes);
        const auto bank = LeerBanco(m_folder->path());
        QVERIFY(bank);
        QCOMPARE(bank->lines, lines);
        QCOMPARE(bank->used, std::vector<bool>(std::size_t(lines.size()), false));
        QCOMPARE(contents(u"Problemas3.dat"_s), bytes);
        QCOMPARE(files(), QStringList{u"Problemas3.dat"_s});
    }

    void takes32767LinesAndNoMore()
    {
        const QByteArray lines = QByteArray("a|1||*\r\n").repeated(32'767);
        write(u"Problemas3.dat"_s, lines + "\r\n\r\n");
        QCOMPARE(read().size(), 32'767);
        write(u"Problemas3.dat"_s, lines + "\r\nb");
        try {
            LeerBanco(m_folder->path());
            QFAIL("read");
        } catch (const core::FileError& error) {
            QCOMPARE(error.text(),
                u"El banco de problemas es demasiado grande.\n"
                "Puede tener 32767 problemas como mucho."_s);
        }
    }

    void aMissingBankIsNoBank()
    {
        QVERIFY(!LeerBanco(m_folder->path()));
        QCOMPARE(QDir::currentPath(), m_previous);
        QVERIFY(files().isEmpty());
    }

    void aMissingBankMayLeaveTheFolderCurrent()
    {
        QVERIFY(!LeerBanco(m_folder->path(), MissingBank::StayInFolder));
        QCOMPARE(QDir::currentPath(), QDir(m_folder->path()).canonicalPath());
        QVERIFY(QDir::setCurrent(m_previous));
        write(u"Problemas3.dat"_s, "a");
        QVERIFY(LeerBanco(m_folder->path(), MissingBank::StayInFolder));
        QCOMPARE(QDir::currentPath(), m_previous); // a bank that is there restores it
    }

    void saysThatTheFolderIsMissing()
    {
        const QString missing = path(u"Recursos"_s);
        const QString message =
            u"No se puede abrir la carpeta «%1». Compruebe que existe y que se puede leer."_s.arg(
                QDir::toNativeSeparators(missing));
        for (const auto& access :
            std::initializer_list<std::function<void()>>{[&] { LeerBanco(missing); },
                [&] { LeerBanco(missing, MissingBank::StayInFolder); },
                [&] { GuardarBanco(missing, {u"a"_s}); }}) {
            try {
                access();
                QFAIL("done");
            } catch (const core::FileError& error) {
                QCOMPARE(error.text(), message);
            }
            QCOMPARE(QDir::currentPath(), m_previous);
        }
        QVERIFY(!QFileInfo::exists(missing));
    }

    void saysThatTheBankCannotBeRead()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"Problemas3.dat"_s));
        try {
            LeerBanco(m_folder->path());
            QFAIL("read");
        } catch (const core::FileError& error) {
            QCOMPARE(error.text(),
                u"No se puede leer «%1».\nCompruebe que es un archivo y que tiene permiso para leerlo."_s
                    .arg(QDir::toNativeSeparators(path(u"Problemas3.dat"_s))));
        }
        QVERIFY(savingFails({u"a"_s}).startsWith(u"No se puede leer «"));
    }

    void savesLinesWithTheirEnds()
    {
        GuardarBanco(m_folder->path(), {u"¿€ años?|1|€|+"_s, QString(), u" b "_s, u""_s});
        QCOMPARE(
            contents(u"Problemas3.dat"_s), QByteArray("\xBF\x80 a\xF1os?|1|\x80|+\r\n b \r\n"));
        QCOMPARE(files(), QStringList{u"Problemas3.dat"_s}); // nothing to back up
        QCOMPARE(read(), (QStringList{u"¿€ años?|1|€|+"_s, u" b "_s}));
    }

    void savesAnEmptyBank()
    {
        GuardarBanco(m_folder->path(), {});
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray());
        QCOMPARE(LeerBanco(m_folder->path())->lines, QStringList());
    }

    void keepsOneBackup()
    {
        const QByteArray first("primero\nsin acabar"); // copied as it is, byte by byte
        write(u"Problemas3.dat"_s, first);
        GuardarBanco(m_folder->path(), {u"segundo"_s});
        QCOMPARE(contents(u"Problemas3.bak"_s), first);
        GuardarBanco(m_folder->path(), {u"tercero"_s});
        QCOMPARE(contents(u"Problemas3.bak"_s), QByteArray("segundo\r\n"));
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray("tercero\r\n"));
        QCOMPARE(files(), (QStringList{u"Problemas3.bak"_s, u"Problemas3.dat"_s}));
    }

    void bankAndBackupKeepTheBanksPermissions_data()
    {
        QTest::addColumn<unsigned>("mode");
        QTest::newRow("a class shares it") << 0664U;
        QTest::newRow("one person's") << 0600U;
        QTest::newRow("everybody's") << 0666U;
    }
    void bankAndBackupKeepTheBanksPermissions()
    {
        QFETCH(unsigned, mode);
        write(u"Problemas3.dat"_s, "antes\r\n");
        write(u"Problemas3.bak"_s, "otro\r\n"); // somebody else's, of before
        QVERIFY(QFile::setPermissions(path(u"Problemas3.dat"_s), permissions(mode)));
        QVERIFY(QFile::setPermissions(path(u"Problemas3.bak"_s), permissions(0640)));
        if ((QFile::permissions(path(u"Problemas3.bak"_s)) & permissions(0777))
            != permissions(0640))
            QSKIP("files have no such permissions here");
        GuardarBanco(m_folder->path(), {u"a"_s});
        QCOMPARE(contents(u"Problemas3.bak"_s), QByteArray("antes\r\n"));
        for (const QString& name : {u"Problemas3.dat"_s, u"Problemas3.bak"_s})
            QCOMPARE(QFile::permissions(path(name)) & permissions(0777), permissions(mode));
    }

    void aBankOfUndefinedBytesSurvivesReadingAndSaving()
    {
        QByteArray bytes;
        for (int code = 0; code < 0x100; ++code)
            if (code != '\r' && code != '\n')
                bytes.append(static_cast<char>(code));
        bytes.append("\r\n");
        write(u"Problemas3.dat"_s, bytes);
        GuardarBanco(m_folder->path(), read());
        QCOMPARE(contents(u"Problemas3.dat"_s), bytes);
    }

    void savesAMaximalBankButNoMore()
    {
        QStringList lines(32'767, u"a"_s);
        lines.append(QString()); // is not written
        GuardarBanco(m_folder->path(), lines);
        QCOMPARE(read().size(), 32'767);
        QCOMPARE(savingFails(lines << u"b"_s),
            u"Hay demasiados problemas para guardarlos.\n"
            "El banco puede tener 32767 como mucho."_s);
        QCOMPARE(read().size(), 32'767);
    }

    void namesWhatTheFileCannotHold_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("why");
        const QString character = u"El archivo no admite el carácter «%1». Cámbielo o bórrelo."_s;
        QTest::newRow("arrow") << u"a → b|1||+"_s << character.arg(u"→"_s);
        QTest::newRow("pair") << u"¡Bien! 💥|1||+"_s << character.arg(u"💥"_s);
        QTest::newRow("pair at the end") << u"a|1|💥"_s << character.arg(u"💥"_s);
        const QString half(QChar(QChar::highSurrogate(0x1F4A5)));
        QTest::newRow("half a pair at the end") << u"a|1|"_s + half << character.arg(half);
        const QString lineBreak =
            u"Un problema ocupa una sola línea y este tiene un salto de línea."_s;
        QTest::newRow("LF") << u"a\nb|1||+"_s << lineBreak;
        QTest::newRow("CR") << u"a|1||+\r"_s << lineBreak;
    }
    void namesWhatTheFileCannotHold()
    {
        QFETCH(QString, line);
        QFETCH(QString, why);
        write(u"Problemas3.dat"_s, "antes\r\n");
        write(u"Problemas3.bak"_s, "mucho antes\r\n");
        QCOMPARE(savingFails({u"a"_s, u"b"_s, line, u"d"_s}),
            u"El problema de la línea 3 no se puede guardar.\n"_s + why);
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray("antes\r\n"));
        QCOMPARE(contents(u"Problemas3.bak"_s), QByteArray("mucho antes\r\n"));
    }

    void saysThatTheDiskIsFull()
    {
        // 2,000 lines take about 110 kB: 512 kB hold the bank, its backup and little more.
        const auto output =
            runInNamespace(u"cd \"$2\"\n"
                           "head -c 200000 /dev/zero | tr '\\0' a > Problemas3.dat\n"
                           "echo antes > Problemas3.bak\n"
                           "head -c 250000 /dev/zero > otro\n"
                           "cp Problemas3.dat /tmp/before.$$\n"
                           "\"$1\" --save-once \"$2\"; echo \" = $?\"\n"
                           "cmp Problemas3.dat /tmp/before.$$ && cat Problemas3.bak\n"
                           "rm /tmp/before.$$; ls\n"_s);
        if (!output)
            QSKIP("this system lets no one mount a small disk for the test");
        QCOMPARE(*output,
            u"No se puede guardar «%1».\nEl disco está lleno.\n"
            "El banco de problemas anterior sigue como estaba. = 1\n"
            "antes\nProblemas3.bak\nProblemas3.dat\notro\n"_s.arg(
                QDir::toNativeSeparators(path(u"Problemas3.bak"_s))));
    }

    void saysThatTheDiskIsFullForTheBankItself()
    {
        const auto output = runInNamespace(u"cd \"$2\"\n"
                                           "echo antes > Problemas3.dat\n"
                                           "head -c 450000 /dev/zero > otro\n"
                                           "\"$1\" --save-once \"$2\"; echo \" = $?\"\n"
                                           "cat Problemas3.dat Problemas3.bak; ls\n"_s);
        if (!output)
            QSKIP("this system lets no one mount a small disk for the test");
        QCOMPARE(*output,
            u"No se puede guardar «%1».\nEl disco está lleno.\n"
            "El banco de problemas anterior sigue como estaba. = 1\n"
            "antes\nantes\nProblemas3.bak\nProblemas3.dat\notro\n"_s.arg(
                QDir::toNativeSeparators(path(u"Problemas3.dat"_s))));
    }

    void saysThatTheFolderIsReadOnly()
    {
        const auto output =
            runInNamespace(u"cd \"$2\"\n"
                           "echo antes > Problemas3.dat\n"
                           "mount -o remount,ro \"$2\" || mount -o remount,bind,ro \"$2\""
                           " || exit 99\n"
                           "\"$1\" --save-once \"$2\"; echo \" = $?\"\n"
                           "cat Problemas3.dat; ls\n"_s);
        if (!output)
            QSKIP("this system lets no one mount a small disk for the test");
        QCOMPARE(*output,
            u"No se puede guardar «%1».\nNo hay permiso para escribir en esa carpeta.\n"
            "El banco de problemas anterior sigue como estaba. = 1\n"
            "antes\nProblemas3.dat\n"_s.arg(QDir::toNativeSeparators(path(u"Problemas3.bak"_s))));
    }

    void aFolderWithoutPermissionKeepsItsBank()
    {
        write(u"Problemas3.dat"_s, "antes\r\n");
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
        const auto restore = qScopeGuard([&] {
            QFile::setPermissions(
                m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        });
        QString failure;
        {
            const OrdinaryUser user(m_folder->path());
            if (QFileInfo(m_folder->path()).isWritable())
                QSKIP("this system knows no user who may not write");
            failure = savingFails({u"a"_s});
        }
        QVERIFY2(failure.contains(u"No hay permiso para escribir en esa carpeta."),
            qPrintable(failure));
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray("antes\r\n"));
    }

    void aBackupThatCannotBeMadeKeepsTheBank()
    {
        write(u"Problemas3.dat"_s, "antes\r\n");
        std::error_code failed;
        std::filesystem::create_symlink("no/tal/archivo",
            std::filesystem::path(m_folder->filePath(u"Problemas3.bak"_s).toStdU16String()),
            failed);
        if (failed)
            QSKIP("nobody may make links here");
        QVERIFY(
            savingFails({u"a"_s}).contains(u"\nEl sistema no ha dejado escribir en esa carpeta. "
                                           "Pruebe a guardar otra vez.\n"_s));
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray("antes\r\n"));
    }

    void aFolderInPlaceOfTheBackupKeepsTheBank()
    {
        write(u"Problemas3.dat"_s, "antes\r\n");
        QVERIFY(QDir(m_folder->path()).mkdir(u"Problemas3.bak"_s));
        QCOMPARE(savingFails({u"a"_s}),
            u"No se puede guardar «%1».\nEl archivo está protegido contra escritura.\n"
            "El banco de problemas anterior sigue como estaba."_s.arg(
                QDir::toNativeSeparators(path(u"Problemas3.bak"_s))));
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray("antes\r\n"));
    }

    void aKillAtAnyMomentLeavesAWholeBank()
    {
        GuardarBanco(m_folder->path(), manyLines(0));
        QRandomGenerator random(KillSeed);
        QSet<QString> generations;
        for (int round = 0; round < 60; ++round) {
            QProcess saver;
            saver.start(QCoreApplication::applicationFilePath(), {SaveForever, m_folder->path()});
            QVERIFY(waitForSaves(saver, 1 + random.bounded(4)));
            QThread::usleep(random.bounded(20'000u));
            saver.kill();
            QVERIFY(saver.waitForFinished());
            QCOMPARE(saver.exitStatus(), QProcess::CrashExit);

            const QStringList lines = read();
            QVERIFY(!lines.isEmpty());
            const int generation = lines.front().section(u' ', 1).section(u',', 0, 0).toInt();
            QCOMPARE(lines, manyLines(generation));
            QVERIFY(contents(u"Problemas3.bak"_s) == "(none)"
                || contents(u"Problemas3.bak"_s).endsWith("1999|a\xF1os|*\r\n"));
            generations.insert(lines.front());
        }
        QVERIFY(generations.size() > 1); // the kills did not all come before a save
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.value(1) == SaveForever)
        return saveForever(arguments.value(2));
    if (arguments.value(1) == SaveOnce)
        return saveOnce(arguments.value(2));
    BankTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "bank_test.moc"
