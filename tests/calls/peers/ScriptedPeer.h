#pragma once

// Somebody who speaks SIP by hand, with an account at the exchange and any intention. Main thread.

#include "calls/peers/TestExchange.h"

#include <QByteArray>
#include <QSslSocket>

class ScriptedPeer
{
public:
    /// Has the account of this id.
    ScriptedPeer(const TestExchange &exchange, QString id);

    /// Connects to the exchange. Whether it has.
    bool connect();

    /// How he calls himself in From instead of his id and the exchange's domain.
    void setFrom(const QString &user, const QString &domain);

    /// Sends a request to a user, signs it when asked to, and waits for the last answer. Its status, 0 when none comes.
    int request(const QString &method, const QString &to, const QByteArray &contentType, const QByteArray &body);

private:
    QByteArray message(const QString &method, const QString &to, const QByteArray &more, const QByteArray &body);
    QByteArray signature(const QByteArray &challenge, const QString &method, const QString &uri) const;
    QByteArray nextAnswer();

    const TestExchange &m_exchange;
    QString m_id;
    QString m_fromUser;
    QString m_fromDomain;
    QSslSocket m_socket;
    QByteArray m_input;
    int m_number; // of the request: no other peer at the exchange has it, or the answer would go to that one
};
