#pragma once
// Files of a test as bytes, in its working directory unless the path says otherwise.

#include <QByteArray>
#include <QFile>

/// The whole file; empty when it is missing.
inline QByteArray fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes the whole file; false when it cannot be written.
inline bool writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}
