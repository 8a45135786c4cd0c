#pragma once

#include <QDir>

/// While it lives, an administrator has no more rights than the owner of the folder has: else
/// permissions would stop nothing. Does nothing where a program cannot become another user.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const QString& folder);
    ~OrdinaryUser();
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    QString m_before = QDir::currentPath();
    bool m_dropped = false;
};
