#include "callprocess/CallProcessTest.h"
#include "callprocess/RobotTable.h"

#include <QtTest>

class tst_Robots : public CallProcessTest
{
    Q_OBJECT

private slots:
    void robotIdsArePlainUserIds()
    {
        QSet<QString> ids;
        for (const Robot &robot : cRobots) {
            const QString id = QString::fromLatin1(robot.id);
            QVERIFY(id.contains(QRegularExpression(QStringLiteral("^300100(0[1-9]|10)$"))));
            QCOMPARE(findRobot(id), &robot);
            ids.insert(id);
        }
        QCOMPARE(ids.size(), 10);
        QVERIFY(findRobot(QStringLiteral("30010011")) == nullptr);
    }

    void outcomeOfACall_data()
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

    void outcomeOfACall()
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

    void silentRobotNeverSpeaks()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("100000")}));
        peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010004"), false});
        // Whatever the robot had to say would be due before the next one's word.
        QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
    }

    void hangUpCancelsTheAnswer()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        // In one write, so that the hang-up comes before the answer.
        peer.write(CallProcess::line(QStringLiteral("CallUser"), {QStringLiteral("30010001"), false}) +
                   CallProcess::line(QStringLiteral("HangUpCall")));
        peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010003"), false});
        QCOMPARE(peer.nextNotification(), QStringLiteral("10"));
    }

    void robotCallsBackAndHangsUpAfterTheAccept()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("10")}));
        QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("0 30010007"));
        peer.command(QStringLiteral("AcceptCall"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("8"));
    }

    void robotCallsBackAndIsRejected()
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

    void robotCallsBackAndGivesUp()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("0 30010007"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("4"));
    }

    void robotFindsABusyLine()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("3")}));
        QCOMPARE(call(peer, QStringLiteral("30010007")), QStringLiteral("10"));
        peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010004"), false});
        QVERIFY(peer.waitTrace(QStringLiteral("= robot-calls-you finds the line busy or away")));
        QCOMPARE(peer.trace().filter(QStringLiteral("\"resultCode\":0}")).size(), 0);
    }

    void callOutlastsALostConnection()
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

    void newCallReplacesAForgottenOne()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QCOMPARE(call(peer, QStringLiteral("30010006")), QStringLiteral("18"));
        QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
    }

    void unregisteredCallerFails()
    {
        CallProcess peer;
        peer.start();
        QVERIFY(peer.connectClient());
        QCOMPARE(call(peer, QStringLiteral("30010001")), QStringLiteral("19"));
    }

    void unregisterEndsTheCall()
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

    void registrationWithoutAnIdIsRefused()
    {
        CallProcess peer;
        peer.start();
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("RegeditUser"), {QString(), QString(), QString(), false});
        QCOMPARE(peer.nextNotification(), QStringLiteral("17 false"));
    }

    void deviceCommandsAreTakenInSilence()
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Robots, Guiless)
#include "tst_Robots.moc"
