#include "callprocess/CallProcess.h"

#include <QtTest>

class tst_Robots : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void outcomeOfACall_data();
    void outcomeOfACall();
    void silentRobotNeverSpeaks();
    void hangUpCancelsTheAnswer();
    void robotCallsBackAndHangsUpAfterTheAccept();
    void robotCallsBackAndIsRejected();
    void robotCallsBackAndGivesUp();
    void robotFindsABusyLine();
    void callOutlastsALostConnection();
    void newCallReplacesAForgottenOne();
    void unregisteredCallerFails();
    void unregisterEndsTheCall();
    void registrationWithoutAnIdIsRefused();
    void deviceCommandsAreTakenInSilence();
    void robotsJoinAConference();
    void conferenceOfNobody();
    void addedMembersJoinAndFailedOnesAreNamed();
    void addWithoutUsersNamesNoFailure();
    void kickedMemberLeaves();
    void hangupConfEndsTheConference();
    void robotInvitesAndEndsTheConference();
    void rejectedInvitationIsOver();
    void unregisteredCreatorGetsNoConference();

private:
    static QString call(CallProcess &peer, const QString &id);
    static QJsonObject document(const QString &notification, int code);
    static QStringList members(const QJsonObject &document);
};

void tst_Robots::init()
{
    // The killed child of the test before left it.
    QFile::remove(CallProcess::socketPath());
}

QString tst_Robots::call(CallProcess &peer, const QString &id)
{
    peer.command(QStringLiteral("CallUser"), {id, false});
    return peer.nextNotification();
}

QJsonObject tst_Robots::document(const QString &notification, int code)
{
    const QString prefix = QString::number(code) + QLatin1Char(' ');
    if (!notification.startsWith(prefix)) {
        qWarning("not of code %d: %s", code, qPrintable(notification));
        return {};
    }
    return QJsonDocument::fromJson(notification.mid(prefix.size()).toUtf8()).object();
}

QStringList tst_Robots::members(const QJsonObject &document)
{
    QStringList list;
    const QJsonArray array =
        document.value(QStringLiteral("content")).toObject().value(QStringLiteral("conventioneer")).toArray();
    for (const QJsonValue &value : array) {
        list.append(value.toString());
    }
    return list;
}

void tst_Robots::outcomeOfACall_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("video");
    QTest::addColumn<QStringList>("notifications");
    const auto row = [](const char *name, const char *id, bool video, const QStringList &notifications) {
        QTest::newRow(name) << QString::fromLatin1(id) << video << notifications;
    };
    row("answers", "30010001", false, {QStringLiteral("18")});
    row("answers video", "30010001", true, {QStringLiteral("18")});
    row("busy", "30010002", false, {QStringLiteral("22")});
    row("rejects", "30010003", false, {QStringLiteral("10")});
    row("fails", "30010005", false, {QStringLiteral("19")});
    row("hangs up", "30010006", false, {QStringLiteral("18"), QStringLiteral("8")});
    row("calls you", "30010007", false, {QStringLiteral("10"), QStringLiteral("0 30010007")});
    row("unknown", "nobody", false, {QStringLiteral("19")});
}

void tst_Robots::outcomeOfACall()
{
    QFETCH(QString, id);
    QFETCH(bool, video);
    QFETCH(QStringList, notifications);
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    peer.command(QStringLiteral("CallUser"), {id, video});
    for (const QString &notification : notifications) {
        QCOMPARE(peer.nextNotification(), notification);
    }
}

void tst_Robots::silentRobotNeverSpeaks()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("100000")}));
    peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010004"), false});
    // Whatever the robot had to say would be due before the next one's word.
    QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
}

void tst_Robots::hangUpCancelsTheAnswer()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    // In one write, so that the hang-up comes before the answer.
    peer.write(CallProcess::line(QStringLiteral("CallUser"), {QStringLiteral("30010001"), false}) +
               CallProcess::line(QStringLiteral("HangUpCall")));
    peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010003"), false});
    QCOMPARE(peer.nextNotification(), QStringLiteral("10"));
}

void tst_Robots::robotCallsBackAndHangsUpAfterTheAccept()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("10")}));
    QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("0 30010007"));
    peer.command(QStringLiteral("AcceptCall"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("8"));
}

void tst_Robots::robotCallsBackAndIsRejected()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("10")}));
    QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("0 30010007"));
    peer.command(QStringLiteral("RejectCall"));
    // A second answer finds nothing, and the line is free again.
    peer.command(QStringLiteral("AcceptCall"));
    QVERIFY(peer.waitTrace(QStringLiteral("= no call to accept")));
    QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
}

void tst_Robots::robotCallsBackAndGivesUp()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("0 30010007"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("4"));
}

void tst_Robots::robotFindsABusyLine()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("3")}));
    QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
    peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010004"), false});
    QVERIFY(peer.waitTrace(QStringLiteral("= robot-calls-you finds the line busy or away")));
    QCOMPARE(peer.trace().filter(QStringLiteral("\"resultCode\":0}")).size(), 0);
}

void tst_Robots::callOutlastsALostConnection()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("5")}));
    QCOMPARE(call(peer, QStringLiteral("30010006")), QStringLiteral("18"));
    QVERIFY(peer.connectClient());
    peer.command(QStringLiteral("RegeditUser"),
                 {QStringLiteral("100"), QStringLiteral("Me"), QStringLiteral("r"), false});
    QCOMPARE(peer.nextNotification(), QStringLiteral("17 true"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("999 registered 100"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("8"));
}

void tst_Robots::newCallReplacesAForgottenOne()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    QCOMPARE(call(peer, QStringLiteral("30010006")), QStringLiteral("18"));
    QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
}

void tst_Robots::unregisteredCallerFails()
{
    CallProcess peer;
    peer.start();
    QVERIFY(peer.connectClient());
    QCOMPARE(call(peer, QStringLiteral("30010001")), QStringLiteral("19"));
}

void tst_Robots::unregisterEndsTheCall()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("3")}));
    QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
    peer.write(CallProcess::line(QStringLiteral("CallUser"), {QStringLiteral("30010001"), false}) +
               CallProcess::line(QStringLiteral("UnReg"), {QStringLiteral("100")}));
    // Neither the answer nor the call back comes to someone who is away.
    QVERIFY(peer.waitTrace(QStringLiteral("= robot-calls-you finds the line busy or away")));
    QCOMPARE(peer.trace().filter(QStringLiteral("\"resultCode\":18}")).size(), 0);
}

void tst_Robots::registrationWithoutAnIdIsRefused()
{
    CallProcess peer;
    peer.start();
    QVERIFY(peer.connectClient());
    peer.command(QStringLiteral("RegeditUser"), {QString(), QString(), QString(), false});
    QCOMPARE(peer.nextNotification(), QStringLiteral("17 false"));
}

void tst_Robots::deviceCommandsAreTakenInSilence()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    for (const char *name : {"SetMicEnable", "SetSpeakerEnble", "SetCamreraEnable"}) {
        peer.command(QString::fromLatin1(name), {true});
    }
    peer.command(QStringLiteral("SetMicVolume"), {5});
    peer.command(QStringLiteral("SetSpeakerVolume"), {0});
    QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
    QCOMPARE(peer.trace().filter(QRegularExpression(QStringLiteral("^!"))).size(), 0);
}

void tst_Robots::robotsJoinAConference()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("20")}));
    const QJsonArray called{QStringLiteral("30010001"), QStringLiteral("30010002"), QStringLiteral("30010003"),
                            QStringLiteral("30010004"), QStringLiteral("30010005"), QStringLiteral("30010006")};
    peer.command(QStringLiteral("RequestConference"), {QStringLiteral("100"), called, false, QString()});
    const QJsonObject created = document(peer.nextNotification(), 20);
    const QString confId =
        created.value(QStringLiteral("result")).toObject().value(QStringLiteral("confId")).toString();
    QVERIFY(!confId.isEmpty());
    QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
    const QJsonObject own = document(peer.nextNotification(), 12);
    const QJsonObject body = own.value(QStringLiteral("content")).toObject();
    QCOMPARE(body.value(QStringLiteral("from")).toString(), QStringLiteral("100"));
    QCOMPARE(body.value(QStringLiteral("confId")).toString(), confId);
    QVERIFY(body.value(QStringLiteral("createTime")).toDouble() > 1e12);
    QCOMPARE(members(own), QStringList{QStringLiteral("100")});
    QCOMPARE(peer.nextNotification(), QStringLiteral("21 {\"result\":{\"failedNums\":[\"30010005\"]},\"status\":0}"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("25 30010002"));
    const QStringList first = members(document(peer.nextNotification(), 12));
    QCOMPARE(first.size(), 2);
    const QStringList both = members(document(peer.nextNotification(), 12));
    QCOMPARE(both.size(), 3);
    QCOMPARE(both.constFirst(), QStringLiteral("100"));
    QVERIFY(both.contains(QStringLiteral("30010001")) && both.contains(QStringLiteral("30010006")));
    QCOMPARE(peer.nextNotification(), QStringLiteral("5 30010003"));
    const QJsonObject left = document(peer.nextNotification(), 13);
    QCOMPARE(left.value(QStringLiteral("content")).toObject().value(QStringLiteral("from")).toString(),
             QStringLiteral("30010006"));
    QCOMPARE(members(left), (QStringList{QStringLiteral("100"), QStringLiteral("30010001")}));
}

void tst_Robots::conferenceOfNobody()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    peer.command(QStringLiteral("RequestConference"), {QStringLiteral("100"), QJsonValue(), false, QString()});
    QVERIFY(!document(peer.nextNotification(), 20).isEmpty());
    QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
    QCOMPARE(members(document(peer.nextNotification(), 12)), QStringList{QStringLiteral("100")});
    QCOMPARE(peer.trace().filter(QRegularExpression(QStringLiteral("^!"))).size(), 0);
}

namespace {

bool joinConference(CallProcess &peer)
{
    peer.command(QStringLiteral("RequestConference"),
                 {QStringLiteral("100"), QJsonArray{QStringLiteral("30010001")}, true, QStringLiteral("text")});
    return peer.nextNotification().startsWith(QLatin1String("20 ")) && peer.nextNotification() == QLatin1String("18") &&
           peer.nextNotification().startsWith(QLatin1String("12 ")) &&
           peer.nextNotification().startsWith(QLatin1String("12 "));
}

QByteArray addLine(const QJsonValue &users)
{
    return CallProcess::line(QStringLiteral("Add2Conference"),
                             {users, QStringLiteral("100"), QStringLiteral("100"), false, QString(),
                              QJsonArray{QStringLiteral("100"), QStringLiteral("30010001")}});
}

} // namespace

void tst_Robots::addedMembersJoinAndFailedOnesAreNamed()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    QVERIFY(joinConference(peer));
    peer.write(addLine(QJsonArray{QStringLiteral("30010001"), QStringLiteral("30010005"), QStringLiteral("nobody"),
                                  QStringLiteral("30010006")}));
    QCOMPARE(peer.nextNotification(),
             QStringLiteral("21 {\"result\":{\"failedNums\":[\"30010005\",\"nobody\"]},\"status\":0}"));
    QCOMPARE(members(document(peer.nextNotification(), 12)).size(), 3);
}

void tst_Robots::addWithoutUsersNamesNoFailure()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    QVERIFY(joinConference(peer));
    peer.write(addLine(QJsonValue()));
    QCOMPARE(peer.nextNotification(), QStringLiteral("21 {\"result\":{\"failedNums\":[]},\"status\":0}"));
}

void tst_Robots::kickedMemberLeaves()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    QVERIFY(joinConference(peer));
    for (const char *operation : {"mute", "unmute"}) {
        peer.command(QStringLiteral("ControlConf"), {QString::fromLatin1(operation), QStringLiteral("non_moderator")});
    }
    peer.command(QStringLiteral("ControlConf"), {QStringLiteral("kick"), QStringLiteral("30010004")});
    peer.command(QStringLiteral("ControlConf"), {QStringLiteral("kick"), QStringLiteral("30010001")});
    const QJsonObject left = document(peer.nextNotification(), 13);
    QCOMPARE(left.value(QStringLiteral("content")).toObject().value(QStringLiteral("from")).toString(),
             QStringLiteral("30010001"));
    QCOMPARE(members(left), QStringList{QStringLiteral("100")});
}

void tst_Robots::hangupConfEndsTheConference()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered());
    QVERIFY(joinConference(peer));
    peer.write(addLine(QJsonArray{QStringLiteral("30010006")}) + CallProcess::line(QStringLiteral("HangupConf")) +
               addLine(QJsonArray{QStringLiteral("30010001")}));
    QVERIFY(peer.nextNotification().startsWith(QLatin1String("21 ")));
    QVERIFY(peer.waitTrace(QStringLiteral("= no conference to add to")));
    // The member who was being called does not join what is over.
    QCOMPARE(call(peer, QStringLiteral("30010003")), QStringLiteral("10"));
}

void tst_Robots::robotInvitesAndEndsTheConference()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("20")}));
    QCOMPARE(call(peer, QStringLiteral("30010008")), QStringLiteral("10"));
    const QJsonObject invitation = document(peer.nextNotification(), 2);
    QCOMPARE(members(invitation), QStringList{QStringLiteral("30010008")});
    peer.command(QStringLiteral("AcceptConf"));
    QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
    const QJsonObject joined = document(peer.nextNotification(), 12);
    QCOMPARE(members(joined), (QStringList{QStringLiteral("30010008"), QStringLiteral("100")}));
    const QString id = QStringLiteral("confId");
    QCOMPARE(joined.value(QStringLiteral("content")).toObject().value(id),
             invitation.value(QStringLiteral("content")).toObject().value(id));
    QCOMPARE(members(document(peer.nextNotification(), 12)).size(), 3);
    QCOMPARE(peer.nextNotification(), QStringLiteral("7"));
}

void tst_Robots::rejectedInvitationIsOver()
{
    CallProcess peer;
    QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("10")}));
    QCOMPARE(call(peer, QStringLiteral("30010008")), QStringLiteral("10"));
    QVERIFY(peer.nextNotification().startsWith(QLatin1String("2 ")));
    peer.command(QStringLiteral("RejectConf"));
    peer.command(QStringLiteral("AcceptConf"));
    QVERIFY(peer.waitTrace(QStringLiteral("= no conference to accept")));
    QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
}

void tst_Robots::unregisteredCreatorGetsNoConference()
{
    CallProcess peer;
    peer.start();
    QVERIFY(peer.connectClient());
    peer.command(QStringLiteral("RequestConference"), {QStringLiteral("100"), QJsonValue(), false, QString()});
    QCOMPARE(peer.nextNotification(), QStringLiteral("20"));
}

QTEST_GUILESS_MAIN(tst_Robots)
#include "tst_Robots.moc"
