#pragma once

// A test function in a process of its own, for what is read once for a process: the locale, a cached file.

#include "fakes/Patience.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QtTest>

/// Whether this process was started by failureInOwnProcess.
inline bool inOwnProcess()
{
    return qEnvironmentVariableIsSet("TEST_IN_OWN_PROCESS");
}

/// Runs the current test function and data row again, in another process with these further variables ("NAME=value")
/// and in that folder (empty: the same one). `program` is a copy of this test program that runs in its place. What the
/// process printed when it failed; empty when it passed.
inline QByteArray failureInOwnProcess(const QStringList &variables, const QString &folder = {},
                                      const QString &program = QCoreApplication::applicationFilePath())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TEST_IN_OWN_PROCESS", "1");
    for (const QString &variable : variables) {
        environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
    }
    QString function = QTest::currentTestFunction();
    if (QTest::currentDataTag()) {
        function += QStringLiteral(":") + QTest::currentDataTag();
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, {QTest::testObject()->metaObject()->className(), function});
    if (!process.waitForFinished(cPatienceMs)) {
        return "did not end: " + process.errorString().toUtf8();
    }
    const bool passed = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return passed ? QByteArray() : "failed:\n" + process.readAllStandardOutput();
}
