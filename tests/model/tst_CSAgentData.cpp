#include "model/CSAgentData.h"

#include <QTest>

class tst_CSAgentData : public QObject
{
    Q_OBJECT

private slots:
    void freshRecordsAreBlank()
    {
        const CSAgentSessionData session;
        QVERIFY(session.m_strSessionId.isEmpty() && session.m_strWorkGroupId.isEmpty());
        QCOMPARE(session.m_iStatus + session.m_iUnreadCount + session.m_iStartTime + session.m_iEndTime, Q_INT64_C(0));
        QCOMPARE(CSWaitingSessionData().m_iPosition, 0);
        QCOMPARE(CSAgentMessageData().m_iTime, Q_INT64_C(0));
        QCOMPARE(CSAgentSessionTransferReply().getResponseCode(), 0);
        QVERIFY(CSAgentSessionTransferAsk().getReason().isEmpty());
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

QTEST_GUILESS_MAIN(tst_CSAgentData)
#include "tst_CSAgentData.moc"
