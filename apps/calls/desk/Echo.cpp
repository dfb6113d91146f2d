#include "calls/desk/Echo.h"

#include "endpoint/Trace.h"

#include <utility>

Echo::Echo(QString userId, Trace &trace, UserAgent &agent, const ExchangeAccess &access, QObject *parent)
    : QObject(parent), m_userId(std::move(userId)), m_trace(trace), m_agent(agent), m_access(access)
{
    connect(&agent, &UserAgent::registered, this, [this] {
        m_lossTold = false;
        m_trace.event(QStringLiteral("the echo is registered"));
    });
    connect(&agent, &UserAgent::registrationLost, this, &Echo::tellLoss);
    // Queued: the library still reports the call, and must have done so before it is answered.
    connect(
        &agent, &UserAgent::callArrived, this,
        [this](const QString &caller) {
            m_trace.event(QStringLiteral("the echo answers %1").arg(caller));
            m_agent.accept();
        },
        Qt::QueuedConnection);
    connect(&agent, &UserAgent::remarked, this, [this](const QString &text) { m_trace.event(text); });
}

void Echo::takeExchange()
{
    m_agent.takeExchange();
    QString fault;
    const Credentials credentials = m_access.credentials(m_userId, QString(), &fault);
    if (fault.isEmpty()) {
        m_agent.signIn(m_userId, QStringLiteral("Echo"), credentials);
    } else {
        m_trace.complaint(fault);
    }
}

void Echo::loseExchange(const QString &why)
{
    tellLoss(why);
    m_agent.loseExchange();
}

void Echo::tellLoss(const QString &why)
{
    // It is tried again by itself, each second perhaps.
    if (!std::exchange(m_lossTold, true)) {
        m_trace.event(QStringLiteral("the echo is not registered: %1").arg(why));
    }
}
