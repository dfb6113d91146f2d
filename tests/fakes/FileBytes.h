#pragma once

// Files that a test makes and looks at, as bytes. Paths begin in its working directory unless they say otherwise.

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Writes the file anew, with the folders that lead to it; false when that cannot be done.
[[nodiscard]] inline bool writeFile(const QString &strPath, const QByteArray &bytes)
{
    QFile file(strPath);
    return QDir().mkpath(QFileInfo(strPath).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.flush();
}

/// What the file holds; empty for one that does not open.
inline QByteArray readBytes(const QString &strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
