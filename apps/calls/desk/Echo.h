#pragma once

// Somebody who is always there: answers every call, and with the echo's sound card the caller hears himself. Nobody's
// client commands it. Owned by main; main thread.

#include "calls/agent/UserAgent.h"

#include <QObject>
#include <QString>

class Trace;

class Echo : public QObject
{
    Q_OBJECT

public:
    /// Known by this id. All of them outlive the echo.
    Echo(QString userId, Trace &trace, UserAgent &agent, const ExchangeAccess &access, QObject *parent = nullptr);

    /// `access` names the exchange, for the first time or anew: the echo registers there.
    void takeExchange();

    /// The exchange has gone or cannot be started, for this reason.
    void loseExchange(const QString &why);

private:
    void tellLoss(const QString &why);

    QString m_userId;
    Trace &m_trace;
    UserAgent &m_agent;
    const ExchangeAccess &m_access;
    bool m_lossTold = false; // since it was last registered
};
