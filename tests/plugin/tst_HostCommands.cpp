// Each command goes through the real mailbox to the real call manager; a socket of the test stands for the call
// process, so that what the command led to can be read off the wire.

#include "engine/VoipManage.h"
#include "fakes/FakeHost.h"
#include "fakes/LogCapture.h"
#include "fakes/Patience.h"
#include "model/LoginData.h"
#include "plugin/EventPayload.h"
#include "plugin/HostCommands.h"
#include "plugin/HostEvents.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/VoipWidget.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTest>

#include <algorithm>
#include <random>

namespace {

// Opens the call manager's record of the call.
class ManagerState : public CVoipManage
{
public:
    static CallData &call() { return m_pInstance->*(&ManagerState::m_callData); }
    static CVoipWidget *window() { return m_pInstance->*(&ManagerState::m_pVoipWidget); }
};

const QString cPeer = QStringLiteral("u1");

bool callWindowShows(const QString &text)
{
    const auto labels = ManagerState::window()->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [&text](const QLabel *label) {
        return label->text().contains(text) || label->toolTip().contains(text);
    });
}

qint64 addressOf(const VcardInfo &card)
{
    return static_cast<qint64>(reinterpret_cast<quintptr>(&card));
}

// Bytes with many zeros and small numbers, so that counts and lengths often fit.
QByteArray randomPayload(std::mt19937 &random)
{
    QByteArray payload(static_cast<int>(random() % 40), '\0');
    for (char &byte : payload) {
        byte = static_cast<char>(random() % 2 == 0 ? random() % 9 : random() % 256);
    }
    return payload;
}

// The host vouches for the address of a card, so only a payload without one may hold any bytes.
bool holdsAnAddress(const QByteArray &payload)
{
    PayloadReader reader(payload);
    reader.take<QString>();
    return reader.take<qint64>() != 0;
}

} // namespace

class tst_HostCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(m_server.listen(QStringLiteral("VoipSDK")), qPrintable(m_server.errorString()));
        m_login.m_strUid = QStringLiteral("me");
        m_login.m_strDomain = QStringLiteral("d");
        m_login.m_strRegValue = QStringLiteral("value");
        m_log.context.setLoginData(&m_login);
        VoipManageMessageProcess::instance()->setSendEvent(&m_host);
        // The first command creates the manager and its link, so that each test finds both, whichever is chosen.
        query(MSG_IS_EXIST_CALL, QByteArray());
        QTRY_VERIFY_WITH_TIMEOUT(m_server.hasPendingConnections(), cPatienceMs);
        m_link = m_server.nextPendingConnection();
    }

    void init()
    {
        m_host.events.clear();
        m_log.take();
    }

    void cleanup()
    {
        CVoipManage::instance()->hangupVoipCall();
        if (m_link != nullptr) {
            // Nothing of this test may be taken for a line of the next.
            CVoipManage::instance()->sendVoipMessage(QStringLiteral("{\"messagetype\":\"end of test\"}\n"));
            QVERIFY(!nextLine(QStringLiteral("end of test")).isEmpty());
        }
    }

    void everyCommandAndNoOtherNumberIsFound()
    {
        for (int msgId = -1; msgId < 20000; ++msgId) {
            const HostEvent *event = findHostEvent(msgId);
            const HostCommand *row = findHostCommand(msgId);
            QCOMPARE(row != nullptr, event != nullptr && event->way == EventWay::Command);
            QCOMPARE(row != nullptr ? static_cast<int>(row->msgId) : msgId, msgId);
        }
    }

    void existCallAnswersExactlyOneBool()
    {
        QCOMPARE(query(MSG_IS_EXIST_CALL, "whatever it held before"), packPayload(false));
        ManagerState::call().peerId = cPeer;
        QCOMPARE(query(MSG_IS_EXIST_CALL, QByteArray()), packPayload(true));
        QCOMPARE(packPayload(true).size(), 1);
    }

    void videoCallIsFalseAlsoDuringAVideoCall()
    {
        command(MSG_CALL_SINGLE_USER, packPayload(true, cPeer));
        QVERIFY(ManagerState::call().bIsVideo);
        QCOMPARE(query(MSG_IS_VIDEO_CALL, "whatever it held before"), packPayload(false));
    }

    void callSingleUserReadsTheFlagBeforeTheUser_data()
    {
        QTest::addColumn<bool>("bVideo");
        QTest::newRow("voice") << false;
        QTest::newRow("video") << true;
    }

    void callSingleUserReadsTheFlagBeforeTheUser()
    {
        QFETCH(bool, bVideo);
        command(MSG_CALL_SINGLE_USER, packPayload(bVideo, cPeer));
        const QJsonObject line = nextLine(QStringLiteral("CallUser"));
        QCOMPARE(line.value(QStringLiteral("param1")).toString(), cPeer);
        QCOMPARE(line.value(QStringLiteral("param2")), QJsonValue(bVideo));
    }

    void callConferenceReadsTheTextBeforeTheFlag()
    {
        const QStringList members{QStringLiteral("u2"), QStringLiteral("u3")};
        command(MSG_CALL_CONFERENCE, packPayload(members, QStringLiteral("题目"), true));
        const QJsonObject line = nextLine(QStringLiteral("RequestConference"));
        QCOMPARE(line.value(QStringLiteral("param2")).toArray(), QJsonArray::fromStringList(members));
        QCOMPARE(line.value(QStringLiteral("param3")), QJsonValue(true));
        QCOMPARE(line.value(QStringLiteral("param4")).toString(), QStringLiteral("题目"));
    }

    void callConferenceTakesAListWrittenByHand()
    {
        command(MSG_CALL_CONFERENCE,
                packPayload(2, QStringLiteral("u2"), QStringLiteral("u3"), QStringLiteral("t"), false));
        const QJsonObject line = nextLine(QStringLiteral("RequestConference"));
        QCOMPARE(line.value(QStringLiteral("param2")).toArray().size(), 2);
        QCOMPARE(line.value(QStringLiteral("param3")), QJsonValue(false));
        QCOMPARE(line.value(QStringLiteral("param4")).toString(), QStringLiteral("t"));
    }

    void callConferenceWithAHostileCountEndsAtThePayloadsEnd()
    {
        command(MSG_CALL_CONFERENCE, packPayload(0x7fffffff, QStringLiteral("u2")));
        const QJsonObject line = nextLine(QStringLiteral("RequestConference"));
        QCOMPARE(line.value(QStringLiteral("param2")).toArray(), QJsonArray{QStringLiteral("u2")});
        QCOMPARE(line.value(QStringLiteral("param3")), QJsonValue(false));
        QCOMPARE(line.value(QStringLiteral("param4")), QJsonValue(QString()));
    }

    void responseIsPassedOn_data()
    {
        QTest::addColumn<bool>("bAccept");
        QTest::addColumn<QString>("messageType");
        QTest::newRow("accept") << true << "AcceptCall";
        QTest::newRow("reject") << false << "RejectCall";
    }

    void responseIsPassedOn()
    {
        QFETCH(bool, bAccept);
        QFETCH(QString, messageType);
        ManagerState::call().peerId = cPeer;
        command(MSG_RESPONSE_VOIP_REQUEST, packPayload(bAccept));
        QVERIFY(!nextLine(messageType).isEmpty());
    }

    void connectStatusIsPassedOn()
    {
        command(MSG_CLIENT_CONNECT_STATUS, packPayload(true));
        QCOMPARE(nextLine(QStringLiteral("RegeditUser")).value(QStringLiteral("param1")).toString(),
                 QStringLiteral("me"));
        command(MSG_CLIENT_CONNECT_STATUS, packPayload(false));
        QCOMPARE(nextLine(QStringLiteral("UnReg")).value(QStringLiteral("param1")).toString(), QStringLiteral("me"));
    }

    void userInfoReachesTheCallWindow()
    {
        command(MSG_CALL_SINGLE_USER, packPayload(false, cPeer));
        VcardInfo card;
        card.m_strNickName = QStringLiteral("甲");
        command(MSG_UPDATE_USER_INFO, packPayload(cPeer + QStringLiteral("@d"), addressOf(card)));
        QVERIFY(logText().contains(QStringLiteral("updateUserInfo userID = u1@d")));
        QVERIFY(callWindowShows(QStringLiteral("甲")));
    }

    void cardIsReadWhileTheEventIsHandledOnly()
    {
        command(MSG_CALL_SINGLE_USER, packPayload(false, cPeer));
        VcardInfo card;
        card.m_strNickName = QStringLiteral("丙");
        command(MSG_UPDATE_USER_INFO, packPayload(cPeer + QStringLiteral("@d"), addressOf(card)));
        // From here on the host may do with its record as it likes.
        card.m_strNickName = QStringLiteral("丁");
        QCoreApplication::processEvents();
        QVERIFY(callWindowShows(QStringLiteral("丙")));
        QVERIFY(!callWindowShows(QStringLiteral("丁")));
    }

    void userInfoWithZeroAddressStandsForADefaultCard_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QString>("user");
        QTest::newRow("zero") << packPayload(cPeer, qint64(0)) << cPeer;
        QTest::newRow("no address") << packPayload(cPeer) << cPeer;
        QTest::newRow("half an address") << packPayload(cPeer, qint32(-1)) << cPeer;
        QTest::newRow("nothing") << QByteArray() << QString();
    }

    void userInfoWithZeroAddressStandsForADefaultCard()
    {
        QFETCH(QByteArray, payload);
        QFETCH(QString, user);
        command(MSG_UPDATE_USER_INFO, payload);
        QVERIFY(logText().endsWith(QStringLiteral("updateUserInfo userID = ") + user));
    }

    void showVoiceConfIsPassedOn()
    {
        command(MSG_SHOW_VOICE_CONF);
        QVERIFY(logText().contains(QStringLiteral("show voice conf detaileInfo!")));
    }

    void shortPayloadsReadAsDefaults()
    {
        command(MSG_CALL_SINGLE_USER);
        QJsonObject line = nextLine(QStringLiteral("CallUser"));
        QCOMPARE(line.value(QStringLiteral("param1")), QJsonValue(QString()));
        QCOMPARE(line.value(QStringLiteral("param2")), QJsonValue(false));

        command(MSG_CALL_SINGLE_USER, packPayload(true));
        line = nextLine(QStringLiteral("CallUser"));
        QCOMPARE(line.value(QStringLiteral("param1")), QJsonValue(QString()));
        QCOMPARE(line.value(QStringLiteral("param2")), QJsonValue(true));

        command(MSG_RESPONSE_VOIP_REQUEST);
        QVERIFY(!nextLine(QStringLiteral("RejectCall")).isEmpty());

        command(MSG_CLIENT_CONNECT_STATUS);
        QVERIFY(!nextLine(QStringLiteral("UnReg")).isEmpty());
    }

    void truncatedAndRandomPayloadsDoNoHarm_data()
    {
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QByteArray>("whole");
        QTest::addColumn<int>("randomCount");
        const QStringList members{cPeer, QStringLiteral("u2")};
        // Each call shows a window, which takes its time.
        constexpr int few = 4;
        constexpr int many = 40;
        QTest::newRow("updateUserInfo") << int(MSG_UPDATE_USER_INFO) << packPayload(cPeer, qint64(0)) << many;
        QTest::newRow("clientConnectStatus") << int(MSG_CLIENT_CONNECT_STATUS) << packPayload(true) << many;
        QTest::newRow("callSingleUser") << int(MSG_CALL_SINGLE_USER) << packPayload(true, cPeer) << few;
        QTest::newRow("isExistCall") << int(MSG_IS_EXIST_CALL) << QByteArray() << many;
        QTest::newRow("isVideoCall") << int(MSG_IS_VIDEO_CALL) << QByteArray() << many;
        QTest::newRow("responseVoipRequest") << int(MSG_RESPONSE_VOIP_REQUEST) << packPayload(true) << few;
        QTest::newRow("callConference") << int(MSG_CALL_CONFERENCE) << packPayload(members, QStringLiteral("t"), true)
                                        << few;
        QTest::newRow("showVoiceConf") << int(MSG_SHOW_VOICE_CONF) << QByteArray() << many;
    }

    void truncatedAndRandomPayloadsDoNoHarm()
    {
        QFETCH(int, msgId);
        QFETCH(QByteArray, whole);
        QFETCH(int, randomCount);
        QList<QByteArray> payloads;
        for (int size = 0; size <= whole.size(); ++size) {
            payloads.append(whole.left(size));
        }
        std::mt19937 random(static_cast<std::mt19937::result_type>(msgId));
        const int count = payloads.size() + randomCount;
        while (payloads.size() < count) {
            const QByteArray payload = randomPayload(random);
            if (msgId != MSG_UPDATE_USER_INFO || !holdsAnAddress(payload)) {
                payloads.append(payload);
            }
        }
        for (const QByteArray &payload : qAsConst(payloads)) {
            query(static_cast<EMsgId>(msgId), payload);
            CVoipManage::instance()->hangupVoipCall();
            QCOMPARE(query(MSG_IS_EXIST_CALL, payload), packPayload(false));
        }
    }

    void exitEndsTheLink()
    {
        command(MSG_EXIT_VOIP, "bytes that nobody reads");
        QTRY_COMPARE_WITH_TIMEOUT(m_link->state(), QLocalSocket::UnconnectedState, cPatienceMs);
        QVERIFY(m_link->readAll().endsWith("quit\n"));
        m_link = nullptr;
    }

private:
    void command(EMsgId msgId, const QByteArray &payload = QByteArray())
    {
        BaseEvent event(msgId, sessionPluginId(), voipPluginId(), false, payload);
        QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
        QCOMPARE(event.data, payload);
    }

    QByteArray query(EMsgId msgId, const QByteArray &payload)
    {
        BaseEvent event(msgId, sessionPluginId(), voipPluginId(), false, payload);
        QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
        return event.data;
    }

    // The next line of that type on the wire; an empty object when none comes.
    QJsonObject nextLine(const QString &messageType)
    {
        QJsonObject found;
        const bool came = QTest::qWaitFor(
            [&] {
                while (m_link->canReadLine()) {
                    found = QJsonDocument::fromJson(m_link->readLine()).object();
                    if (found.value(QStringLiteral("messagetype")).toString() == messageType) {
                        return true;
                    }
                }
                return false;
            },
            cPatienceMs);
        return came ? found : QJsonObject();
    }

    QString logText() { return m_log.take().join(QLatin1Char('\n')); }

    LogCapture m_log;
    LoginData m_login;
    FakeHost m_host;
    QLocalServer m_server;
    QLocalSocket *m_link = nullptr;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostCommands, Widgets)
#include "tst_HostCommands.moc"
