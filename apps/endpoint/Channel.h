#pragma once

// The local server and its one client. Cuts what comes in at line feeds, with a buffer between reads, and writes what
// goes out as the plug-in needs it: the plug-in keeps nothing between two reads, so a line is always one write, and the
// next write waits until the one before has been read. Owned by main; main thread.

#include <QByteArray>
#include <QList>
#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QTimer>

class QLocalSocket;
class Trace;

class Channel : public QObject
{
    Q_OBJECT

public:
    enum class Listen
    {
        Listening,    ///< the server is open
        AnotherLives, ///< a live process has the socket file, which is left as it is
        Failed,       ///< the server cannot be opened
    };

    /// `serverName` is the server's name under the temporary directory; `trace` outlives the channel.
    Channel(QString serverName, Trace &trace, QObject *parent = nullptr);
    ~Channel() override;

    /// Opens the server for the same user only. A socket file that nobody answers at is taken away first. On `Failed`
    /// `error` has the reason.
    Listen listen(QString *error);

    /// Closes the server and removes its socket file; a client that is connected stays. Without a server: no effect.
    void stopListening();

    /// Whether a client is connected.
    bool hasClient() const { return m_client != nullptr; }

    /// The process id of the client that came last, be it still connected or not; 0 before the first one.
    qint64 clientProcess() const { return m_clientProcess; }

    /// Closes the client's connection, unwritten bytes with it. Without a client: no effect.
    void drop();

    /// Queues the bytes as one write. False, with a record in the trace, when there is no client.
    bool write(const QByteArray &bytes);

    /// Whether all that was queued has been written. Always true without a client.
    bool isAllWritten() const;

signals:
    /// A client has connected.
    void clientArrived();
    /// The client has gone, was dropped or gave way to another one. Lines it sent before may still follow.
    void clientGone();
    /// What one read has brought from the client, ahead of the lines in it.
    void bytesReceived(const QByteArray &bytes);
    /// One line from the client, without its line feed.
    void lineReceived(const QByteArray &line);
    /// The queue has run empty some time after a `write`. Not given when a write went out at once.
    void allWritten();

private:
    void acceptClient();
    void endClient();
    void releaseClient();
    void readClient();
    void take(const QByteArray &bytes);
    QByteArray readUnseen() const;
    void pump();
    void pumpLater();
    bool isLastWriteTaken() const;

    QString m_serverName;
    Trace &m_trace;
    QLocalServer m_server;
    QLocalSocket *m_client = nullptr;
    // The client's connection once more. A failed write has Qt close its own with the client's last words still unread.
    int m_spareDescriptor = -1;
    qint64 m_clientProcess = 0;
    QByteArray m_input;
    // Read and not handled yet: what a line leads to may bring the next ones in.
    QList<QByteArray> m_lines;
    bool m_handlingLines = false;
    QList<QByteArray> m_output;
    QTimer m_pumpTimer;
};
