#pragma once

// Files that a test makes and looks at, as bytes.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

/// Writes the file anew, with the folders that lead to it; the test fails where that cannot be done.
inline void writeFile(const QString &strPath, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(strPath).path()));
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

/// What the file holds; empty for one that does not open.
inline QByteArray readBytes(const QString &strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
