#include "support/ordinary_user.h"

#include <QFile>

#include <unistd.h>

OrdinaryUser::OrdinaryUser(const QString& folder)
{
    if (geteuid() != 0)
        return;
    constexpr uid_t Nobody = 65534;
    QDir::setCurrent(QStringLiteral("/")); // a folder that anyone may come back to
    m_dropped = chown(QFile::encodeName(folder).constData(), Nobody, Nobody) == 0
        && setresuid(Nobody, Nobody, 0) == 0;
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_dropped && setresuid(0, 0, 0) == 0)
        QDir::setCurrent(m_before);
}
