#include "client/ContactBook.h"
#include "session/HostMailbox.h"

#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QSignalSpy>
#include <QTest>

class tst_HostMailbox : public QObject
{
    Q_OBJECT

private slots:
    void contactQueryIsAnsweredWithTheRecordsAddress()
    {
        const QString known = QStringLiteral("30010001@example.org");
        const QByteArray answer = deliver(MSG_GET_FRIEND_INFO, contactPluginId(), packPayload(known));
        QCOMPARE(recordAt<FriendData>(PayloadReader(answer).take<qint64>()).m_strJid, known);

        const QByteArray other = deliver(MSG_GET_FRIEND_INFO, contactPluginId(), packPayload(QStringLiteral("x@y")));
        const auto address = PayloadReader(other).take<qint64>();
        QVERIFY(address != 0);
        QVERIFY(recordAt<FriendData>(address).m_strJid.isEmpty());
    }

    void friendQueryIsAnswered()
    {
        const QByteArray yes =
            deliver(MSG_IS_EXIST_FRIEND, contactPluginId(), packPayload(QStringLiteral("30010001@example.org")));
        QCOMPARE(yes, packPayload(true));
        const QByteArray no =
            deliver(MSG_IS_EXIST_FRIEND, contactPluginId(), packPayload(QStringLiteral("30010007@example.org")));
        QCOMPARE(no, packPayload(false));
    }

    void memberPickerAnswersWithinTheDelivery()
    {
        HostMailbox mailbox(m_book);
        QStringList shown;
        mailbox.setMemberPicker([&shown](const QStringList &present) {
            shown = present;
            return QStringList{QStringLiteral("30010002")};
        });
        const QStringList present{QStringLiteral("30010001")};
        BaseEvent event(MSG_ADD_CONFERENCE_MEMBER, voipPluginId(), sessionPluginId(), false, packPayload(present));
        QCoreApplication::sendEvent(&mailbox, &event);
        QCOMPARE(shown, present);
        QCOMPARE(PayloadReader(event.data).takeTexts(), QStringList{QStringLiteral("30010002")});
    }

    void withoutAPickerNobodyIsAdded()
    {
        const QByteArray answer =
            deliver(MSG_ADD_CONFERENCE_MEMBER, sessionPluginId(), packPayload(QStringList{QStringLiteral("30010001")}));
        QVERIFY(PayloadReader(answer).takeTexts().isEmpty());
    }

    void finishedCallBecomesARecord()
    {
        QSignalSpy finished(&m_mailbox, &HostMailbox::callFinished);
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(true, QStringLiteral("30010001"), qint32(24), true, true, qint64(61)));
        QCOMPARE(finished.count(), 1);
        const auto record = finished.at(0).at(0).value<CallRecord>();
        QCOMPARE(record.video, true);
        QCOMPARE(record.uid, QStringLiteral("30010001"));
        QCOMPARE(record.result, 24);
        QCOMPARE(record.caller, true);
        QCOMPARE(record.connected, true);
        QCOMPARE(record.seconds, qint64(61));
        QVERIFY(record.endedAt.isValid());
    }

    void incomingCallPrompts()
    {
        QSignalSpy incoming(&m_mailbox, &HostMailbox::callIncoming);
        deliver(MSG_RECEVIE_VOIP_CALL, sessionPluginId(), packPayload(QStringLiteral("30010006"), true, false));
        QCOMPARE(incoming.count(), 1);
        QCOMPARE(incoming.at(0), (QList<QVariant>{QStringLiteral("30010006"), true, false}));
    }

    void promptIsWithdrawnByUserId()
    {
        QSignalSpy withdrawn(&m_mailbox, &HostMailbox::promptWithdrawn);
        deliver(MSG_CLOSE_AV_MSGBOX, msgBoxPluginId(), packPayload(QStringLiteral("30010006@example.org")));
        QCOMPARE(withdrawn.count(), 1);
        QCOMPARE(withdrawn.at(0).at(0).toString(), QStringLiteral("30010006"));
    }

    void strangersCardsAreWanted()
    {
        QSignalSpy wanted(&m_mailbox, &HostMailbox::cardsWanted);
        const QStringList uids{QStringLiteral("30010007")};
        deliver(MSG_GET_STRANGER_SMALL_VCARD, vcardPluginId(),
                packPayload(uids, QStringList{QStringLiteral("-1")}, true));
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(wanted.at(0).at(0).toStringList(), uids);
    }

    void noStrangersMeansNoCards()
    {
        QSignalSpy wanted(&m_mailbox, &HostMailbox::cardsWanted);
        deliver(MSG_GET_STRANGER_SMALL_VCARD, vcardPluginId(), packPayload(QStringList(), QStringList(), true));
        QCOMPARE(wanted.count(), 0);
    }

    void conferenceCalledAgainLeavesTheOwnUserOut()
    {
        QSignalSpy wanted(&m_mailbox, &HostMailbox::conferenceWanted);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(),
                packPayload(QStringList{QStringLiteral("30010001@example.org"), QStringLiteral("30010000@example.org"),
                                        QStringLiteral("4711"), QString(), QStringLiteral("30010001@example.org")}));
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(wanted.at(0).at(0).toStringList(), (QStringList{QStringLiteral("30010001"), QStringLiteral("4711")}));
    }

    void newConferenceNamesNobody()
    {
        QSignalSpy wanted(&m_mailbox, &HostMailbox::conferenceWanted);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(QStringList()));
        QCOMPARE(wanted.count(), 1);
        QVERIFY(wanted.at(0).at(0).toStringList().isEmpty());
    }

    void signatureCardComesAndGoes()
    {
        QSignalSpy shown(&m_mailbox, &HostMailbox::signatureShown);
        QSignalSpy hidden(&m_mailbox, &HostMailbox::signatureHidden);
        deliver(MSG_SHOW_SIGN_LIST, signListPluginId(),
                packPayload(QStringLiteral("30010001@example.org"), qint32(10), qint32(20), qint32(30), true, false));
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        QCOMPARE(shown.count(), 1);
        QCOMPARE(shown.at(0), (QList<QVariant>{QStringLiteral("30010001@example.org"), QPoint(10, 20), 30}));
        QCOMPARE(hidden.count(), 1);
    }

    void commandForAnotherRoleIsOnlyReported()
    {
        QSignalSpy incoming(&m_mailbox, &HostMailbox::callIncoming);
        QSignalSpy received(&m_mailbox, &HostMailbox::eventReceived);
        deliver(MSG_RECEVIE_VOIP_CALL, contactPluginId(), packPayload(QStringLiteral("30010006"), false, false));
        QCOMPARE(incoming.count(), 0);
        QCOMPARE(received.count(), 1);
    }

    void questionAndAnswerAreReported()
    {
        QSignalSpy received(&m_mailbox, &HostMailbox::eventReceived);
        deliver(MSG_IS_EXIST_FRIEND, contactPluginId(), packPayload(QStringLiteral("30010001@example.org")));
        QCOMPARE(received.count(), 1);
        QCOMPARE(received.at(0).at(0).toInt(), int(MSG_IS_EXIST_FRIEND));
        QCOMPARE(received.at(0).at(1).toString(), QStringLiteral("4337 is a contact: jid=30010001@example.org"));
        QCOMPARE(received.at(0).at(2).toString(), QStringLiteral("known=yes"));
    }

private:
    QByteArray deliver(EMsgId msgId, const QString &receiver, const QByteArray &payload)
    {
        BaseEvent event(msgId, voipPluginId(), receiver, false, payload);
        QCoreApplication::sendEvent(&m_mailbox, &event);
        return event.data;
    }

    ContactBook m_book{QStringLiteral("example.org")};
    HostMailbox m_mailbox{m_book};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostMailbox, Guiless)
#include "tst_HostMailbox.moc"
