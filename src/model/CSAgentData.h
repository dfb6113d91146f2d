#pragma once

// The plain records of the customer-service agents' desk. The plug-in only carries them; a fresh one holds empty texts
// and zeros. Copied freely, on any thread.

#include <QString>

/// A session between an agent and a customer.
class CSAgentSessionData
{
public:
    /// The session's id.
    QString m_strSessionId;
    /// The id of the agent's side of it.
    QString m_strAgentSessionId;
    /// The customer's id.
    QString m_strCustomerId;
    /// The agent's id.
    QString m_strAgentId;
    /// The session's state.
    int m_iStatus = 0;
    /// How many messages the agent has not read.
    int m_iUnreadCount = 0;
    /// When the session began, in milliseconds since the epoch.
    qint64 m_iStartTime = 0;
    /// When it ended, in milliseconds since the epoch; 0 while it runs.
    qint64 m_iEndTime = 0;
    /// The channel through which the customer came.
    QString m_strChannelId;
    /// The work group that serves the session.
    QString m_strWorkGroupId;
};

/// A customer who waits for an agent.
class CSWaitingSessionData
{
public:
    /// The session's id.
    QString m_strSessionId;
    /// The customer's id.
    QString m_strCustomerId;
    /// The place in the queue.
    int m_iPosition = 0;
};

/// A message of a session.
class CSAgentMessageData
{
public:
    /// The message's id.
    QString m_strMessageId;
    /// The session it belongs to.
    QString m_strSessionId;
    /// Who sent it.
    QString m_strSenderId;
    /// Who receives it.
    QString m_strReceiverId;
    /// Its text.
    QString m_strBody;
    /// The kind of message.
    int m_iType = 0;
    /// When it was sent, in milliseconds since the epoch.
    qint64 m_iTime = 0;
};

/// What the question and its answer have in common: which session goes from whom to whom.
class CSAgentSessionTransfer
{
public:
    /// The session's id.
    const QString &getSessionId() const { return m_strSessionId; }

    /// Sets the session's id.
    void setSessionId(const QString &strId) { m_strSessionId = strId; }

    /// The id of the asking agent's side of the session.
    const QString &getAgentSessionId() const { return m_strAgentSessionId; }

    /// Sets the id of the asking agent's side of the session.
    void setAgentSessionId(const QString &strId) { m_strAgentSessionId = strId; }

    /// The agent who asks.
    const QString &getRequestAgentId() const { return m_strRequestAgentId; }

    /// Sets the agent who asks.
    void setRequestAgentId(const QString &strId) { m_strRequestAgentId = strId; }

    /// The agent who is asked.
    const QString &getTargetAgentId() const { return m_strTargetAgentId; }

    /// Sets the agent who is asked.
    void setTargetAgentId(const QString &strId) { m_strTargetAgentId = strId; }

private:
    QString m_strSessionId;
    QString m_strAgentSessionId;
    QString m_strRequestAgentId;
    QString m_strTargetAgentId;
};

/// An agent's question whether another takes a session over.
class CSAgentSessionTransferAsk : public CSAgentSessionTransfer
{
public:
    /// The work group that serves the session.
    const QString &getWorkGroupId() const { return m_strWorkGroupId; }

    /// Sets the work group that serves the session.
    void setWorkGroupId(const QString &strId) { m_strWorkGroupId = strId; }

    /// Why the session is to be handed over.
    const QString &getReason() const { return m_strReason; }

    /// Sets why the session is to be handed over.
    void setReason(const QString &strReason) { m_strReason = strReason; }

private:
    QString m_strWorkGroupId;
    QString m_strReason;
};

/// The answer to such a question.
class CSAgentSessionTransferReply : public CSAgentSessionTransfer
{
public:
    /// The shown name of the agent who was asked.
    const QString &getTargetAgentName() const { return m_strTargetAgentName; }

    /// Sets the shown name of the agent who was asked.
    void setTargetAgentName(const QString &strName) { m_strTargetAgentName = strName; }

    /// The server's code of the answer.
    int getResponseCode() const { return m_iResponseCode; }

    /// Sets the server's code of the answer.
    void setResponseCode(int iCode) { m_iResponseCode = iCode; }

private:
    QString m_strTargetAgentName;
    int m_iResponseCode = 0;
};
