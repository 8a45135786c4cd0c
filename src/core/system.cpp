#include "core/system.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace core {

bool canWriteIn(const QString& folder)
{
    QTemporaryFile file(folder + u"/pizarrin-XXXXXX"_s);
    return file.open();
}

bool canWrite(const QString& file)
{
    return QFile(file).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
}

#ifdef Q_OS_WIN

QString commonBankFolder()
{
    // The person's own folder comes first, the one of all users behind it.
    return QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation).value(1)
        + u"/Pizarrin/Recursos"_s;
}

void writeUtf8ToTerminal()
{
    SetConsoleOutputCP(CP_UTF8);
}

#else

QString commonBankFolder()
{
    return {};
}

void writeUtf8ToTerminal() { }

#endif

} // namespace core
