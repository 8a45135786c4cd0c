#include "core/system.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

#ifdef Q_OS_WIN
#include <windows.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
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

void shareTwoHeaps()
{
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 2);
#endif
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

bool asksForHighContrast()
{
    HIGHCONTRASTW asked{};
    asked.cbSize = sizeof asked;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof asked, &asked, 0) != 0
        && (asked.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool readersUseAtSpi()
{
    return false;
}

#else

QString commonBankFolder()
{
    return {};
}

void writeUtf8ToTerminal() { }

bool asksForHighContrast()
{
    return false;
}

bool readersUseAtSpi()
{
    return true;
}

#endif

} // namespace core
