#pragma once

// What the tests with a running call process share: none of them finds the socket of another. Derive the test class
// from it.

#include "callprocess/CallProcess.h"

#include <QFile>
#include <QObject>

class CallProcessTest : public QObject
{
    Q_OBJECT

protected:
    /// Calls a user by voice; the next notification.
    static QString call(CallProcess &peer, const QString &id)
    {
        peer.command(QStringLiteral("CallUser"), {id, false});
        return peer.nextNotification();
    }

private slots:
    // The killed child of the test before left it.
    void init() { QFile::remove(CallProcess::socketPath()); }
};
