#include "core/bank_folder.h"

#include "core/errors.h"
#include "core/system.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace core {

BankFolder::BankFolder(QString resources, QString shared)
    : m_resources(std::move(resources))
    , m_shared(std::move(shared))
{
}

QString BankFolder::toRead() const
{
    return isShared() && QFile::exists(sharedBank()) ? m_shared : m_resources;
}

QString BankFolder::toSave() const
{
    if (!isShared())
        return m_resources;
    makeShared();
    return m_shared;
}

bool BankFolder::isShared() const
{
    if (!m_isShared)
        m_isShared = !m_shared.isEmpty() && !canWriteIn(m_resources);
    return *m_isShared;
}

QString BankFolder::sharedBank() const
{
    return QDir(m_shared).filePath(BankFile);
}

void BankFolder::makeShared() const
{
    if (QFile::exists(sharedBank()))
        return;
    if (!QDir().mkpath(m_shared))
        throw FileError(
            u"No se puede crear la carpeta «%1».\nCompruebe que tiene permiso para escribir ahí."_s
                .arg(QDir::toNativeSeparators(m_shared)));
    // A starter bank that nobody may write has to become one that can be saved.
    if (QFile::copy(QDir(m_resources).filePath(BankFile), sharedBank()))
        QFile::setPermissions(sharedBank(),
            QFile::permissions(sharedBank()) | QFile::WriteOwner | QFile::WriteUser);
}

} // namespace core
