#pragma once

// The plug-in's end of the socket, played: connects, writes lines and takes lines, each with a limit of time. It works
// without an event loop. Main thread.

#include <QByteArray>
#include <QLocalSocket>
#include <QQueue>
#include <QString>

#include <memory>
#include <optional>

class Trace;

class PluginSide
{
public:
    /// `trace` outlives this object.
    explicit PluginSide(Trace &trace) : m_trace(trace) {}

    /// Connects anew to the server at `path`, trying again at most so long.
    bool connectTo(const QString &path, int milliseconds);

    /// Closes the connection; lines that have come before can still be taken.
    void disconnect();

    /// Whether the connection stands.
    bool isConnected() const { return m_socket && m_socket->state() == QLocalSocket::ConnectedState; }

    /// Writes the bytes. False without a connection.
    bool write(const QByteArray &bytes);

    /// The next line without its line feed; waits for it at most so long, and not at all without a connection.
    std::optional<QByteArray> nextLine(int milliseconds);

    /// Waits, at most so long, until the far end has closed the connection. True without one.
    bool waitClosed(int milliseconds);

    /// What has come behind the last whole line.
    const QByteArray &rest() const { return m_input; }

    /// Whether a read so far ended inside a line: the plug-in would have lost that line.
    bool hasBrokenRead() const { return m_hasBrokenRead; }

private:
    void takeRead();

    Trace &m_trace;
    std::unique_ptr<QLocalSocket> m_socket;
    QByteArray m_input;
    QQueue<QByteArray> m_lines;
    bool m_hasBrokenRead = false;
};
