#pragma once

// A client of a test's own: a folder with a copy of the test program, so that "allurl.ini" can lie beside it.

#include "common/system/OwnProcess.h"
#include "fakes/FileBytes.h"

#include <QDir>
#include <QFileInfo>

/// Runs the rest of the test function in a process of its own whose address file has this text (null: no file).
#define IN_A_CLIENT_WITH(text)                                                                                         \
    if (!inOwnProcess()) {                                                                                             \
        QCOMPARE(failureInAClient(text), QByteArray());                                                                \
        return;                                                                                                        \
    }

/// The address file of the running client.
inline QString addressFile()
{
    return QCoreApplication::applicationDirPath() + "/allurl.ini";
}

/// Runs the test program of the working directory's folder "client" with what lies there.
inline QByteArray failureInTheClient()
{
    const QString program = QDir().absoluteFilePath("client/program");
    if (!QFileInfo::exists(program)) {
        QDir().mkpath("client");
        if (!QFile::copy(QCoreApplication::applicationFilePath(), program)) {
            return "the program cannot be copied";
        }
    }
    return failureInOwnProcess({}, {}, program);
}

/// The same with this text as the address file; null: no file.
inline QByteArray failureInAClient(const QByteArray &text)
{
    QDir().mkpath("client");
    QFile::remove("client/allurl.ini");
    if (!text.isNull() && !writeFile("client/allurl.ini", text)) {
        return "the address file cannot be written";
    }
    return failureInTheClient();
}
