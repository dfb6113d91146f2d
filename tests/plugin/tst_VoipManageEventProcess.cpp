#include "fakes/FakeHost.h"
#include "fakes/FreedBlocks.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "plugin/HostRequests.h"
#include "plugin/VoipManageEventProcess.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QCoreApplication>
#include <QTest>

#include <functional>
#include <iterator>
#include <limits>
#include <optional>

using Requests = VoipManageEventProcess;

namespace {

const QString cJid = QStringLiteral("u1@d");

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

class tst_VoipManageEventProcess : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<FakeHost>();
        VoipManageMessageProcess::instance()->setSendEvent(host());
        m_context.setFriendDataMap({});
        m_given.emplace(m_context);
    }

    void cleanup()
    {
        m_host.reset();
        m_given.reset();
    }

    void thereAreTenRequests()
    {
        QCOMPARE(static_cast<int>(std::size(cHostRequests)), 10);
        QSet<int> numbers;
        for (const HostRequest &row : cHostRequests) {
            numbers.insert(row.msgId);
        }
        QCOMPARE(numbers.size(), 10);
    }

    void declaresNoSignalsSlotsOrPropertiesOfItsOwn()
    {
        const QMetaObject &meta = VoipManageEventProcess::staticMetaObject;
        QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    }

    void eachRequestIsBuiltAsTheHostExpects_data()
    {
        QTest::addColumn<std::function<void()>>("operation");
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QString>("receiver");
        QTest::addColumn<bool>("bAsync");
        QTest::addColumn<QByteArray>("payload");

        using Operation = std::function<void()>;
        const QString session = QStringLiteral("{FE9829B7-5267-D9AA-3917-514F39C709F0}");
        const QString contact = QStringLiteral("{7123C2B9-E89C-0CC5-5B1E-9496BB7427C8}");
        const QString vcard = QStringLiteral("{5EE3221F-AC38-4b54-9DDF-83773A91981B}");
        const QString msgBox = QStringLiteral("{D2421E81-FC91-45ce-BA71-7116B45D04B1}");
        const QString signList = QStringLiteral("{77CCE3F9-79F5-C5E8-17E7-F6B7389AAA6E}");
        const QString a = QStringLiteral("a");
        const QString b = QStringLiteral("乙");
        const QString c = QStringLiteral("-1");

        QTest::newRow("notifyRecevieVoipCall") << Operation([=] { Requests::notifyRecevieVoipCall(a, true, false); })
                                               << 4639 << session << false << packPayload(a, true, false);
        QTest::newRow("notifyCallFinished")
            << Operation([=] { Requests::notifyCallFinished(true, a, 22, false, true, 5000000000LL); }) << 4478
            << session << false << packPayload(true, a, qint32(22), false, true, qint64(5000000000LL));
        QTest::newRow("notifyCreateVoiceConference") << Operation([=] {
            Requests::notifyCreateVoiceConference({a, b});
        }) << 4734 << session << false << packPayload(qint32(2), a, b);
        QTest::newRow("notifyCreateVoiceConference of nobody")
            << Operation([] { Requests::notifyCreateVoiceConference({}); }) << 4734 << session << false
            << packPayload(qint32(0));
        QTest::newRow("addMemberToConference") << Operation([=] {
            Requests::addMemberToConference({a, b});
        }) << 4735 << session << false << packPayload(qint32(2), a, b);
        QTest::newRow("getFriendInfoByJid")
            << Operation([] { Requests::getFriendInfoByJid(cJid); }) << 4157 << contact << false << packPayload(cJid);
        QTest::newRow("isExistFriend") << Operation([] { Requests::isExistFriend(cJid); }) << 4337 << contact << false
                                       << packPayload(cJid);
        QTest::newRow("getStrangerSmallVCard") << Operation([=] {
            Requests::getStrangerSmallVCard({a, b}, {c}, true);
        }) << 4159 << vcard << true << packPayload(qint32(2), a, b, qint32(1), c, true);
        QTest::newRow("closeAVMsgBox") << Operation([] { Requests::closeAVMsgBox(cJid); }) << 4345 << msgBox << false
                                       << packPayload(cJid);
        QTest::newRow("showSignList") << Operation([] { Requests::showSignList(cJid, -7, 20, 300, true, false); })
                                      << 4267 << signList << false
                                      << packPayload(cJid, qint32(-7), qint32(20), qint32(300), true, false);
        QTest::newRow("closeSignList") << Operation([] { Requests::closeSignList(); }) << 4540 << signList << false
                                       << QByteArray();
    }

    void eachRequestIsBuiltAsTheHostExpects()
    {
        QFETCH(std::function<void()>, operation);
        QFETCH(int, msgId);
        QFETCH(QString, receiver);
        QFETCH(bool, bAsync);
        QFETCH(QByteArray, payload);
        operation();
        QCOMPARE(host()->events.size(), bAsync ? 0 : 1);
        QCoreApplication::sendPostedEvents(host());
        QCOMPARE(host()->events.size(), 1);
        const ReceivedEvent &event = host()->events.first();
        QCOMPARE(event.msgId, msgId);
        QCOMPARE(event.receiverId, receiver);
        const bool bOtherSender = msgId == 4734;
        QCOMPARE(event.senderId, bOtherSender ? QStringLiteral("{5EE3221F-AC38-4b54-9DDF-83773A91981B}")
                                              : QStringLiteral("{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}"));
        QCOMPARE(event.bAsync, bAsync);
        QVERIFY(event.bFlag);
        QCOMPARE(event.extraCount, 0);
        QCOMPARE(event.type, 1000);
        QCOMPARE(event.payload.toHex(), payload.toHex());
    }

    void callFinishedBeginsWithTheFlagThenTheUser()
    {
        Requests::notifyCallFinished(true, cJid, 21, true, false, 3);
        PayloadReader reader = host()->received(MSG_CALL_FINISHED).first().reader();
        QCOMPARE(reader.take<bool>(), true);
        QCOMPARE(reader.take<QString>(), cJid);
        QCOMPARE(reader.take<qint32>(), 21);
        QCOMPARE(reader.take<bool>(), true);
        QCOMPARE(reader.take<bool>(), false);
        QCOMPARE(reader.take<qint64>(), qint64(3));
    }

    void createConferenceNamesTheVcardPluginAsSender()
    {
        for (const HostRequest &row : cHostRequests) {
            QCOMPARE(row.senderId(), row.msgId == MSG_CREATE_VOICE_CONFERENCE ? vcardPluginId() : voipPluginId());
        }
    }

    void strangerCardsArePostedNotSent()
    {
        void *block = FreedBlocks::watched();
        host()->whileHandled = [block](BaseEvent &event) { event.extraList << block; };
        Requests::getStrangerSmallVCard({}, {}, true);
        QVERIFY(host()->events.isEmpty());
        QCoreApplication::sendPostedEvents(host());
        QCOMPARE(host()->commands(), QList<int>{4159});
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void synchronousEventsAreFreedAfterDelivery_data()
    {
        QTest::addColumn<std::function<void()>>("operation");
        using Operation = std::function<void()>;
        QTest::newRow("4639") << Operation([] { Requests::notifyRecevieVoipCall(cJid, false, false); });
        QTest::newRow("4478") << Operation([] { Requests::notifyCallFinished(false, cJid, 21, false, false, 0); });
        QTest::newRow("4734") << Operation([] { Requests::notifyCreateVoiceConference({}); });
        QTest::newRow("4735") << Operation([] { Requests::addMemberToConference({}); });
        QTest::newRow("4157") << Operation([] { Requests::getFriendInfoByJid(cJid); });
        QTest::newRow("4337") << Operation([] { Requests::isExistFriend(cJid); });
        QTest::newRow("4267") << Operation([] { Requests::showSignList(cJid, 0, 0, 0, true, false); });
    }

    void synchronousEventsAreFreedAfterDelivery()
    {
        QFETCH(std::function<void()>, operation);
        void *block = FreedBlocks::watched();
        host()->whileHandled = [block](BaseEvent &event) { event.extraList << block; };
        operation();
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void closingEventsStayUndeleted_data()
    {
        QTest::addColumn<std::function<void()>>("operation");
        using Operation = std::function<void()>;
        QTest::newRow("4345") << Operation([] { Requests::closeAVMsgBox(cJid); });
        QTest::newRow("4540") << Operation([] { Requests::closeSignList(); });
    }

    void closingEventsStayUndeleted()
    {
        QFETCH(std::function<void()>, operation);
        void *block = FreedBlocks::watched();
        host()->whileHandled = [block](BaseEvent &event) { event.extraList << block; };
        operation();
        QCOMPARE(host()->events.size(), 1);
        QCoreApplication::processEvents();
        QVERIFY(!FreedBlocks::isFreed(block));
        delete host()->events.first().event;
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void friendOfTheSharedMapIsNeverAskedFor()
    {
        FriendData record;
        record.m_strJid = cJid;
        record.m_vcardInfo.m_strNickName = QStringLiteral("甲");
        m_context.setFriendDataMap({{cJid, record}});
        QCOMPARE(Requests::getFriendInfoByJid(cJid).m_vcardInfo.m_strNickName, QStringLiteral("甲"));
        QVERIFY(host()->events.isEmpty());
    }

    void friendOfTheSharedMapIsACopy()
    {
        m_context.setFriendDataMap({{cJid, FriendData()}});
        FriendData copy = Requests::getFriendInfoByJid(cJid);
        copy.m_vcardInfo.m_strNickName = QStringLiteral("changed");
        QVERIFY(m_context.getFriendDataMap().value(cJid).m_vcardInfo.m_strNickName.isEmpty());
    }

    void friendIsAskedForWhenTheMapHasAnother()
    {
        m_context.setFriendDataMap({{QStringLiteral("U1@d"), FriendData()}});
        Requests::getFriendInfoByJid(cJid);
        QCOMPARE(host()->commands(), QList<int>{4157});
        m_context.setFriendDataMap({{cJid, FriendData()}});
        Requests::getFriendInfoByJid(QStringLiteral("U1@d"));
        QCOMPARE(host()->commands(), (QList<int>{4157, 4157}));
    }

    void unknownFriendIsCopiedFromTheAnsweredAddress()
    {
        FriendData record;
        record.m_strJid = cJid;
        record.m_vcardInfo.m_iSmallVersion = 12;
        host()->setRecord(cJid, record);
        const FriendData answered = Requests::getFriendInfoByJid(cJid);
        host()->setRecord(cJid, FriendData());
        QCOMPARE(answered.m_strJid, cJid);
        QCOMPARE(answered.m_vcardInfo.m_iSmallVersion, 12);
    }

    void unansweredFriendIsADefaultRecord_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("unchanged") << cJid << packPayload(cJid);
        // Two characters fill as many bytes as an address.
        QTest::newRow("unchanged, as long as an address") << QStringLiteral("ab") << packPayload(QStringLiteral("ab"));
        QTest::newRow("unchanged null jid") << QString() << packPayload(QString());
        QTest::newRow("unchanged long jid")
            << QString(100, QLatin1Char('x')) << packPayload(QString(100, QLatin1Char('x')));
        QTest::newRow("zero address") << cJid << packPayload(qint64(0));
        QTest::newRow("emptied") << cJid << QByteArray();
        QTest::newRow("half an address") << cJid << QByteArray(7, '\1');
    }

    void unansweredFriendIsADefaultRecord()
    {
        QFETCH(QString, asked);
        QFETCH(QByteArray, answer);
        host()->rawAnswers[MSG_GET_FRIEND_INFO] = answer;
        const FriendData record = Requests::getFriendInfoByJid(asked);
        QCOMPARE(host()->commands(), QList<int>{4157});
        QVERIFY(record.m_strJid.isEmpty());
        QCOMPARE(record.m_vcardInfo.m_iSmallVersion, -1);
    }

    void existenceIsReadFromTheAnswer()
    {
        host()->friendJids.insert(cJid);
        QVERIFY(Requests::isExistFriend(cJid));
        QVERIFY(!Requests::isExistFriend(QStringLiteral("u2@d")));
        m_context.setFriendDataMap({{QStringLiteral("u2@d"), FriendData()}});
        QVERIFY(!Requests::isExistFriend(QStringLiteral("u2@d")));
        QCOMPARE(host()->received(MSG_IS_EXIST_FRIEND).size(), 3);
    }

    void unansweredExistenceReadsItsOwnQuestion()
    {
        host()->bAnswers = false;
        QVERIFY(!Requests::isExistFriend(cJid));
        QVERIFY(!Requests::isExistFriend(QStringLiteral("")));
        // A null text is written with four bytes of ones, the first of which reads as true.
        QVERIFY(Requests::isExistFriend(QString()));
    }

    void membersToAddAreReadFromTheAnswer()
    {
        host()->membersToAdd = QStringList{QStringLiteral("u2"), QStringLiteral("u3")};
        QCOMPARE(Requests::addMemberToConference({QStringLiteral("u1")}), host()->membersToAdd);
        host()->membersToAdd.clear();
        QCOMPARE(Requests::addMemberToConference({QStringLiteral("u1")}), QStringList());
    }

    void unansweredMembersAreThoseOfTheQuestion()
    {
        host()->bAnswers = false;
        const QStringList present{QStringLiteral("u1"), QStringLiteral("u2")};
        QCOMPARE(Requests::addMemberToConference(present), present);
    }

    void hostileMemberAnswerGivesAnEmptyList_data()
    {
        QTest::addColumn<QByteArray>("answer");
        const QString user = QStringLiteral("u2");
        QTest::newRow("emptied") << QByteArray();
        QTest::newRow("greatest count") << packPayload(std::numeric_limits<qint32>::max(), user);
        QTest::newRow("negative count") << packPayload(-1, user);
        QTest::newRow("one string short") << packPayload(2, user);
        QTest::newRow("string cut off") << packPayload(1, user).chopped(1);
    }

    void hostileMemberAnswerGivesAnEmptyList()
    {
        QFETCH(QByteArray, answer);
        host()->rawAnswers[MSG_ADD_CONFERENCE_MEMBER] = answer;
        QCOMPARE(Requests::addMemberToConference({QStringLiteral("u1")}), QStringList());
    }

    void requestsWithoutHostReturnDefaults()
    {
        VoipManageMessageProcess::instance()->setSendEvent(nullptr);
        m_given.reset();
        QVERIFY(Requests::getFriendInfoByJid(cJid).m_strJid.isEmpty());
        QVERIFY(!Requests::isExistFriend(cJid));
        QCOMPARE(Requests::addMemberToConference({}), QStringList());
        Requests::notifyRecevieVoipCall(cJid, false, false);
        Requests::getStrangerSmallVCard({cJid}, {QStringLiteral("1")}, true);
        Requests::closeAVMsgBox(cJid);
        QVERIFY(host()->events.isEmpty());
    }

    void receiverMayDeliverFurtherRequestsMeanwhile()
    {
        FriendData outer;
        outer.m_strJid = cJid;
        host()->setRecord(cJid, outer);
        bool bNested = false;
        host()->whileHandled = [&bNested](BaseEvent &event) {
            if (event.msgId == MSG_GET_FRIEND_INFO && !bNested) {
                bNested = true;
                QVERIFY(Requests::getFriendInfoByJid(QStringLiteral("u9@d")).m_strJid.isEmpty());
            }
        };
        QCOMPARE(Requests::getFriendInfoByJid(cJid).m_strJid, cJid);
        QCOMPARE(host()->commands(), (QList<int>{4157, 4157}));
    }

private:
    FakeHost *host() { return m_host.get(); }

    std::unique_ptr<FakeHost> m_host;
    CommonData m_context;
    std::optional<GivenContext> m_given;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipManageEventProcess, Guiless)
#include "tst_VoipManageEventProcess.moc"
