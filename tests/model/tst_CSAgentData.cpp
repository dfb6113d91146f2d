#include "model/CSAgentData.h"

#include <QTest>

class tst_CSAgentData : public QObject
{
    Q_OBJECT

private slots:
    void freshRecordsAreBlank()
    {
        const CSAgentSessionData session;
        QCOMPARE(session.m_strSessionId + session.m_strAgentSessionId + session.m_strCustomerId + session.m_strAgentId +
                     session.m_strChannelId + session.m_strWorkGroupId,
                 QString());
        QCOMPARE(session.m_iStatus, 0);
        QCOMPARE(session.m_iUnreadCount, 0);
        QCOMPARE(session.m_iStartTime, Q_INT64_C(0));
        QCOMPARE(session.m_iEndTime, Q_INT64_C(0));
        const CSWaitingSessionData waiting;
        QCOMPARE(waiting.m_strSessionId + waiting.m_strCustomerId, QString());
        QCOMPARE(waiting.m_iPosition, 0);
        const CSAgentMessageData message;
        QCOMPARE(message.m_strMessageId + message.m_strSessionId + message.m_strSenderId + message.m_strReceiverId +
                     message.m_strBody,
                 QString());
        QCOMPARE(message.m_iType, 0);
        QCOMPARE(message.m_iTime, Q_INT64_C(0));
        const CSAgentSessionTransferAsk ask;
        QCOMPARE(ask.getSessionId() + ask.getAgentSessionId() + ask.getRequestAgentId() + ask.getTargetAgentId() +
                     ask.getWorkGroupId() + ask.getReason(),
                 QString());
        const CSAgentSessionTransferReply reply;
        QCOMPARE(reply.getSessionId() + reply.getAgentSessionId() + reply.getRequestAgentId() +
                     reply.getTargetAgentId() + reply.getTargetAgentName(),
                 QString());
        QCOMPARE(reply.getResponseCode(), 0);
    }

    void anAskKeepsEachOfItsSixTexts()
    {
        CSAgentSessionTransferAsk ask;
        ask.setSessionId("1");
        ask.setAgentSessionId("2");
        ask.setRequestAgentId("3");
        ask.setTargetAgentId("4");
        ask.setWorkGroupId("5");
        ask.setReason("6");
        const QString strAll = ask.getSessionId() + ask.getAgentSessionId() + ask.getRequestAgentId() +
                               ask.getTargetAgentId() + ask.getWorkGroupId() + ask.getReason();
        QCOMPARE(strAll, QString("123456"));
    }

    void aReplyKeepsItsFiveTextsAndItsCode()
    {
        CSAgentSessionTransferReply reply;
        reply.setSessionId("1");
        reply.setAgentSessionId("2");
        reply.setRequestAgentId("3");
        reply.setTargetAgentId("4");
        reply.setTargetAgentName("5");
        reply.setResponseCode(6);
        const QString strAll = reply.getSessionId() + reply.getAgentSessionId() + reply.getRequestAgentId() +
                               reply.getTargetAgentId() + reply.getTargetAgentName();
        QCOMPARE(strAll, QString("12345"));
        QCOMPARE(reply.getResponseCode(), 6);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CSAgentData, Guiless)
#include "tst_CSAgentData.moc"
