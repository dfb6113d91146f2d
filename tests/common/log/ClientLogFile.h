#pragma once

// The log file of a test in its working directory, its backups and its lines.

#include "fakes/FileBytes.h"

#include <QDir>
#include <QList>
#include <QString>

inline const QString cLog = QStringLiteral("client.log");

/// The file name of a numbered backup.
inline QString backup(int number)
{
    return cLog + '.' + QString::number(number);
}

/// The lines of the log file, without their line feeds.
inline QList<QByteArray> lines()
{
    QList<QByteArray> all = readBytes(cLog).split('\n');
    all.removeLast();
    return all;
}

/// Empties the working directory but for its folders.
inline void removeFiles()
{
    QDir here;
    const QStringList names = here.entryList(QDir::Files);
    for (const QString &name : names) {
        here.remove(name);
    }
}
