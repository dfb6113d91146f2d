#pragma once

// The exchange of one's own, as a call process sees it: where no server is set, all call processes of one Unix user
// meet at a Kamailio on the loopback that a keeper of theirs runs (see ExchangeKeeper). Main thread, in an event loop.

#include <QByteArray>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QObject>
#include <QString>
#include <QTimer>

/// Where users sign in, and as whom.
struct ExchangePlace
{
    QString proxy;  ///< "sip:localhost:40001;transport=tls"
    QString caFile; ///< who vouches for its certificate, in PEM; read it anew each time
    QString domain; ///< what stands behind the @ of everybody
    QByteArray secret;

    /// The password of this user, whose name is his id as it stands in From.
    QString passwordOf(const QString &user) const;
};

class EmbeddedExchange : public QObject
{
    Q_OBJECT

public:
    /// `folder` and `kamailio` as calls.ini has them, empty: by itself; `keeper` is the program kelvarim-exchange.
    EmbeddedExchange(QString folder, QString kamailio, QString keeper, QObject *parent = nullptr);

    /// Leaves. The last one that leaves ends the exchange, and so does its death.
    ~EmbeddedExchange() override;

    /// Joins the exchange, which is started where there is none, and stays in it: whoever ends it, it comes anew. Said
    /// again it has no effect.
    void join();

    /// Whether `ready` was the last that was said.
    bool isReady() const { return m_ready; }

    /// Where it was when it last was ready.
    const ExchangePlace &place() const { return m_place; }

signals:
    /// It answers at `place`, for the first time or anew: register now. All of the place may be other than before.
    void ready();
    /// It has gone: who was registered no longer is. It is being started anew.
    void lost();
    /// It cannot be started, for this reason, which is said once. It goes on being tried.
    void failed(const QString &reason);

private:
    void connectToKeeper();
    void startKeeper();
    void loseKeeper();
    void readLines();
    void take(const QByteArray &line);
    void takeReady(quint16 port);
    void lose();
    void complainOfKeeper();
    void complain(const QString &reason);

    const QString m_set;
    const QString m_kamailio;
    const QString m_keeper;
    QString m_folder;
    QLocalSocket m_socket;
    QTimer m_retry;
    QElapsedTimer m_started;     // since a keeper was last started, until it is joined
    QElapsedTimer m_joinedSince; // the last keeper
    int m_shortLives = 0;        // of keepers in a row
    int m_patienceMs = 0;        // with the one that was started
    int m_lookMs = 0;            // until it is looked for the next time
    bool m_joined = false;
    bool m_ready = false;
    ExchangePlace m_place;
    QString m_reason;
};
