#include "core/folders.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

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

QString commonBankFolder()
{
#ifdef Q_OS_WIN
    // The person's own folder comes first, the one of all users behind it.
    return QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation).value(1)
        + u"/Pizarrin/Recursos"_s;
#else
    return {};
#endif
}

} // namespace core
