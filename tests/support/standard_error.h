#pragma once

#include <QTemporaryFile>

#include <unistd.h>

#include <cstdio>

/// Keeps what the program writes to its standard error as long as it lives.
class StandardError {
public:
    StandardError()
        : m_before(dup(fileno(stderr)))
    {
        if (!m_kept.open())
            qFatal("nothing keeps the standard error");
        dup2(m_kept.handle(), fileno(stderr));
    }
    ~StandardError()
    {
        std::fflush(stderr);
        dup2(m_before, fileno(stderr));
        close(m_before);
    }
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;

    QString text() const
    {
        std::fflush(stderr); // it has a buffer in some systems' runtime, when it is a file
        QFile file(m_kept.fileName());
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            qFatal("%s cannot be read", qPrintable(file.fileName()));
        return QString::fromUtf8(file.readAll());
    }

private:
    int m_before;
    QTemporaryFile m_kept;
};
