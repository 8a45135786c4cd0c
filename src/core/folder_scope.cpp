#include "core/folder_scope.h"

#include "core/errors.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace core {

FolderScope::FolderScope(const QString& folder)
    : m_previous(QDir::currentPath())
{
    if (!QDir::setCurrent(folder))
        throw FileError(
            u"No se puede abrir la carpeta «%1». Compruebe que existe y que se puede leer."_s.arg(
                QDir::toNativeSeparators(folder)));
}

FolderScope::~FolderScope()
{
    if (!m_stays)
        QDir::setCurrent(m_previous);
}

} // namespace core
