#pragma once

#include <QDir>
#include <QFile>
#include <QString>

/// Copies the car pictures into the folder of a test.
inline void copyCarPictures(const QString& folder)
{
    const QDir source(QString::fromUtf8(PIZARRIN_RESOURCES));
    for (const QString& name : source.entryList({QStringLiteral("*.jpg")}, QDir::Files))
        QFile::copy(source.filePath(name), QDir(folder).filePath(name));
}
