#pragma once

// Keeps the exchange of one Unix user: one keeper at a time runs Kamailio for all call processes of this user, from the
// first that joins to the last that leaves. Each is connected to it, so that the system itself tells when one has gone,
// killed or not. What they are told is a line of JSON each time something changes:
//     {"state":"starting"}   {"state":"ready","port":40001}   {"state":"failed","reason":"..."}
// Main thread, of a process of its own.

#include "calls/exchange/ExchangeChild.h"
#include "calls/exchange/ExchangeLog.h"

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QLatin1String>
#include <QLocalServer>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QSslSocket>
#include <QTimer>

#include <memory>

class QLocalSocket;

class ExchangeKeeper : public QObject
{
    Q_OBJECT

public:
    enum class Begin
    {
        Begun,        ///< the exchange is being started
        AnotherLives, ///< another process keeps it
        Failed        ///< it cannot be kept in this folder
    };

    /// `folder` as ExchangeFolder::take gave it; `program` is Kamailio, empty: looked for.
    ExchangeKeeper(QString folder, QString program, QObject *parent = nullptr);

    /// Ends the exchange.
    ~ExchangeKeeper() override;

    /// Takes the lock, ends what a killed keeper left, opens the socket, starts Kamailio. Waits some seconds for a
    /// keeper that is about to end. On `Failed` `error` has the reason.
    Begin begin(QString *error);

signals:
    /// Nobody is left who needs the exchange, or its folder is no longer this keeper's. Kamailio has ended.
    void over();

private:
    bool takeLock(QString *error);
    bool openSocket(QString *error);
    bool isKept() const;
    void end();

    void acceptClient();
    void tell(QLocalSocket *client) const;
    void tellAll(const QByteArray &state);

    void start();
    void choosePort();
    bool makeFiles(QString *error);
    bool mendFiles() const;
    void fail(const QString &reason, int pauseMs);
    void childEnded();
    void tryAgain();
    void endKnock();
    void knock();
    void answered();

    const QString m_folder;
    const QString m_program;
    int m_lock = -1;
    QLocalServer m_server;
    quint64 m_socketFile = 0; // its number in the file system
    QFileSystemWatcher m_watcher;
    QSet<QLocalSocket *> m_clients;
    QTimer m_lonely;
    QByteArray m_state;

    // What stands in the files that clients and Kamailio read, by their names.
    QMap<QLatin1String, QByteArray> m_files;
    quint16 m_port = 0;
    bool m_alsoIpv6 = false;
    std::unique_ptr<ExchangeChild> m_child;
    ExchangeLog m_log;
    std::unique_ptr<QSslSocket> m_knock;
    QTimer m_knockTimer;
    QTimer m_startTimer;
    QTimer m_patience;
    int m_failures = 0;   // starts in a row without an answer
    int m_shortLives = 0; // ends in a row that came soon
    QElapsedTimer m_readySince;
};
