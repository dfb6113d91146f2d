#pragma once

// The call process's end of the channel, played in the test's own process: a local server of the right name that reads
// whole lines and sends whatever bytes it is told. It reads without an event loop, so that a test can look at what has
// been written so far from inside any handler. GUI thread.

#include "wire/Notifications.h"

#include <QByteArray>
#include <QLocalServer>
#include <QPointer>
#include <QStringList>

class QLocalSocket;

using Wire::Code;

class FakeCallProcess
{
public:
    /// Opens the server.
    FakeCallProcess();
    ~FakeCallProcess();
    FakeCallProcess(const FakeCallProcess &) = delete;
    FakeCallProcess &operator=(const FakeCallProcess &) = delete;

    /// Opens the server again after close().
    void open();

    /// Closes the server and the connection, as the death of the process does.
    void close();

    /// Closes the connection alone.
    void dropClient();

    /// Writes bytes as they stand.
    void send(const QByteArray &bytes);

    /// One notification as a line.
    static QByteArray line(Code code, const QString &content = QString()) { return line(int(code), content); }

    /// The same for any number, also one that no notification has.
    static QByteArray line(int code, const QString &content = QString());

    /// A line from the plug-in, with its line feed, as takeLines() shows it.
    static QString shown(const QByteArray &line);

    /// Waits until `client`, the plug-in's end, has everything written through, and returns the lines of all
    /// connections since the last call. A command is given as its name and its parameters in compact JSON ("CallUser
    /// "anna" false"), any other line as it stands.
    QStringList takeLines(QLocalSocket *client);

    /// The same after the client has closed its end.
    QStringList takeLastLines();

private:
    void acceptClient();
    void readUntil(const QByteArray &end);
    QList<QByteArray> takeRawLines(QLocalSocket *client);

    QLocalServer m_server;
    QPointer<QLocalSocket> m_pClient;
    QByteArray m_buffer;
};
