#pragma once

#include <QFile>
#include <QtTest>

#include <initializer_list>

/// Writes lines, as bytes of Windows-1252, as the problem bank in this folder.
inline void writeBank(const QString& folder, std::initializer_list<QByteArray> lines)
{
    QFile file(folder + QStringLiteral("/Problemas3.dat"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (const QByteArray& line : lines)
        file.write(line + "\r\n");
}
