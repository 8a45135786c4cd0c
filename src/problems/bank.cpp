#include "problems/bank.h"

#include "core/bank_folder.h"
#include "core/folder_scope.h"
#include "core/system.h"
#include "problems/windows1252.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

using core::BankFile;
const QString BackupFile = u"Problemas3.bak"_s;

[[noreturn]] void fail(const QString& what, const QString& why)
{
    throw core::FileError(u"%1\n%2"_s.arg(what, why));
}

QByteArray readBytes(const QString& name)
{
    QFile file(name);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        fail(u"No se puede leer «%1»."_s.arg(QDir::toNativeSeparators(QDir(name).absolutePath())),
            u"Compruebe que es un archivo y que tiene permiso para leerlo."_s);
    return bytes;
}

/// The lines between line ends of any kind (CR LF, LF or CR), empty ones left out.
QStringList splitLines(QByteArrayView bytes)
{
    const auto isLineEnd = [](char c) { return c == '\n' || c == '\r'; };
    QStringList lines;
    for (auto start = bytes.begin(); start != bytes.end();) {
        const auto end = std::find_if(start, bytes.end(), isLineEnd);
        if (end != start) {
            if (lines.size() == MostBankLines)
                fail(u"El banco de problemas es demasiado grande."_s,
                    u"Puede tener %1 problemas como mucho."_s.arg(MostBankLines));
            lines.append(fromWindows1252(QByteArrayView(start, end)));
        }
        start = end == bytes.end() ? end : end + 1;
    }
    return lines;
}

void appendLine(QByteArray& bytes, const QString& line, qsizetype number)
{
    if (line.contains(u'\n') || line.contains(u'\r'))
        fail(u"El problema de la línea %1 no se puede guardar."_s.arg(number),
            u"Un problema ocupa una sola línea y este tiene un salto de línea."_s);
    if (const auto at = appendWindows1252(bytes, line)) {
        const bool isPair = line[*at].isHighSurrogate() && *at + 1 < line.size();
        fail(u"El problema de la línea %1 no se puede guardar."_s.arg(number),
            u"El archivo no admite el carácter «%1». Cámbielo o bórrelo."_s.arg(
                line.sliced(*at, isPair ? 2 : 1)));
    }
    bytes.append("\r\n");
}

QByteArray joinLines(const QStringList& lines)
{
    if (lines.size() - lines.count(QString()) > MostBankLines)
        fail(u"Hay demasiados problemas para guardarlos."_s,
            u"El banco puede tener %1 como mucho."_s.arg(MostBankLines));
    QByteArray bytes;
    for (qsizetype at = 0; at < lines.size(); ++at)
        if (!lines[at].isEmpty())
            appendLine(bytes, lines[at], at + 1);
    return bytes;
}

QString reasonNotWritten(const QSaveFile& file)
{
    if (file.error() == QFileDevice::ResourceError)
        return u"El disco está lleno."_s;
    if (!core::canWriteIn(u"."_s))
        return u"No hay permiso para escribir en esa carpeta."_s;
    if (QFile::exists(file.fileName()) && !core::canWrite(file.fileName()))
        return u"El archivo está protegido contra escritura."_s;
    return u"El sistema no ha dejado escribir en esa carpeta. Pruebe a guardar otra vez."_s;
}

bool writeAll(QSaveFile& file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) { // only the write after a short one says that the disk is full
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

/// Writes a file to one side, flushes it to disk and puts it in place of the old one.
void replaceFile(const QString& name, const QByteArray& bytes)
{
    QSaveFile file(name);
    if (file.open(QIODevice::WriteOnly)) {
        // Whoever may replace the bank may replace its backup, whoever made that.
        if (QFile::exists(BankFile))
            file.setPermissions(QFile::permissions(BankFile));
        if (writeAll(file, bytes) && file.commit())
            return;
    }
    fail(u"No se puede guardar «%1»."_s.arg(QDir::toNativeSeparators(QDir(name).absolutePath())),
        reasonNotWritten(file) + u"\nEl banco de problemas anterior sigue como estaba."_s);
}

} // namespace

QStringList readBankFile(const QString& path)
{
    return splitLines(readBytes(path));
}

std::optional<Bank> LeerBanco(const QString& folder, MissingBank missing)
{
    core::FolderScope scope(folder);
    if (!QFile::exists(BankFile)) {
        if (missing == MissingBank::StayInFolder)
            scope.stay();
        return std::nullopt;
    }
    Bank bank{readBankFile(BankFile), {}};
    bank.used.resize(static_cast<std::size_t>(bank.lines.size()), false);
    return bank;
}

void GuardarBanco(const QString& folder, const QStringList& lines)
{
    const QByteArray bytes = joinLines(lines); // whatever is wrong with it, before any writing
    const core::FolderScope scope(folder);
    if (QFile::exists(BankFile))
        replaceFile(BackupFile, readBytes(BankFile));
    replaceFile(BankFile, bytes);
}

} // namespace problems
