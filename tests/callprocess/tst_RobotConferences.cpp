#include "callprocess/ConferenceTest.h"

#include <QtTest>

/// The exchange's conferences, as creator and as invited member.
class tst_RobotConferences : public ConferenceTest
{
    Q_OBJECT

private slots:
    void robotsJoinAConference()
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
        QCOMPARE(peer.nextNotification(),
                 QStringLiteral("21 {\"result\":{\"failedNums\":[\"30010005\"]},\"status\":0}"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("5 30010002"));
        const QStringList first = members(document(peer.nextNotification(), 12));
        QCOMPARE(first.size(), 2);
        const QStringList both = members(document(peer.nextNotification(), 12));
        QCOMPARE(both.size(), 3);
        QCOMPARE(both.constFirst(), QStringLiteral("100"));
        QVERIFY(both.contains(QStringLiteral("30010001")) && both.contains(QStringLiteral("30010006")));
        QCOMPARE(peer.nextNotification(), QStringLiteral("25 30010003"));
        const QJsonObject left = document(peer.nextNotification(), 13);
        QCOMPARE(left.value(QStringLiteral("content")).toObject().value(QStringLiteral("from")).toString(),
                 QStringLiteral("30010006"));
        QCOMPARE(members(left), (QStringList{QStringLiteral("100"), QStringLiteral("30010001")}));
    }

    void conferenceOfNobody()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        peer.command(QStringLiteral("RequestConference"), {QStringLiteral("100"), QJsonValue(), false, QString()});
        QVERIFY(!document(peer.nextNotification(), 20).isEmpty());
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        QCOMPARE(members(document(peer.nextNotification(), 12)), QStringList{QStringLiteral("100")});
        QCOMPARE(peer.trace().filter(QRegularExpression(QStringLiteral("^!"))).size(), 0);
    }

    void addedMembersJoinAndFailedOnesAreNamed()
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

    void addWithoutUsersNamesNoFailure()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QVERIFY(joinConference(peer));
        peer.write(addLine(QJsonValue()));
        QCOMPARE(peer.nextNotification(), QStringLiteral("21 {\"result\":{\"failedNums\":[]},\"status\":0}"));
    }

    void kickedMemberLeaves()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QVERIFY(joinConference(peer));
        for (const char *operation : {"mute", "unmute"}) {
            peer.command(QStringLiteral("ControlConf"),
                         {QString::fromLatin1(operation), QStringLiteral("non_moderator")});
        }
        peer.command(QStringLiteral("ControlConf"), {QStringLiteral("kick"), QStringLiteral("30010004")});
        peer.command(QStringLiteral("ControlConf"), {QStringLiteral("kick"), QStringLiteral("30010001")});
        const QJsonObject left = document(peer.nextNotification(), 13);
        QCOMPARE(left.value(QStringLiteral("content")).toObject().value(QStringLiteral("from")).toString(),
                 QStringLiteral("30010001"));
        QCOMPARE(members(left), QStringList{QStringLiteral("100")});
    }

    void hangupConfEndsTheConference()
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

    void robotInvitesAndEndsTheConference()
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

    void rejectedInvitationIsOver()
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

    void unregisteredCreatorGetsNoConference()
    {
        CallProcess peer;
        peer.start();
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("RequestConference"), {QStringLiteral("100"), QJsonValue(), false, QString()});
        QCOMPARE(peer.nextNotification(), QStringLiteral("20"));
    }

    void memberComesBackAfterLeaving()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QVERIFY(requestConference(peer, {QStringLiteral("30010009")}));
        const QStringList both{QStringLiteral("100"), QStringLiteral("30010009")};
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(members(document(peer.nextNotification(), 12)), both);
            const QJsonObject left = document(peer.nextNotification(), 13);
            QCOMPARE(text(left, "from"), both.last());
            QCOMPARE(members(left), QStringList{QStringLiteral("100")});
        }
    }

    void kickedMemberDoesNotComeBack()
    {
        CallProcess peer;
        // The member would leave by itself after a while, which on a busy machine must not be before it is told to.
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("3")}));
        QVERIFY(requestConference(peer, {QStringLiteral("30010009")}));
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("12 ")));
        control(peer, "kick", "30010009");
        QVERIFY(peer.waitTrace(QStringLiteral("= kicked 30010009")));
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("13 ")));
        // The one who comes back would do so before the added one leaves again.
        peer.command(QStringLiteral("Add2Conference"),
                     {QJsonArray{QStringLiteral("30010006")}, QStringLiteral("100"), QStringLiteral("100"), false,
                      QString(), QJsonArray{QStringLiteral("100")}});
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("21 ")));
        QCOMPARE(text(document(peer.nextNotification(), 12), "from"), QStringLiteral("30010006"));
        QCOMPARE(text(document(peer.nextNotification(), 13), "from"), QStringLiteral("30010006"));
    }

    void conferenceWithoutAReachableMemberIsNotCreated()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        peer.command(QStringLiteral("RequestConference"),
                     {QStringLiteral("100"), QJsonArray{QStringLiteral("30010005"), QStringLiteral("nobody")}, false,
                      QString()});
        QCOMPARE(peer.nextNotification(), QStringLiteral("20"));
        // It is over: nothing is there to add to, and the line is free.
        peer.write(addLine(QJsonArray{QStringLiteral("30010001")}));
        QVERIFY(peer.waitTrace(QStringLiteral("= no conference to add to")));
        QCOMPARE(call(peer, QStringLiteral("30010002")), QStringLiteral("22"));
    }

    void invitationWithoutACreationTimeAndLinesOfAnotherConference()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("20")}));
        QCOMPARE(call(peer, QStringLiteral("30010010")), QStringLiteral("10"));
        const QJsonObject invitation = document(peer.nextNotification(), 2);
        QVERIFY(!invitation.value(QStringLiteral("content")).toObject().contains(QStringLiteral("createTime")));
        const QString confId = text(invitation, "confId");
        peer.command(QStringLiteral("AcceptConf"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        const QJsonObject joined = document(peer.nextNotification(), 12);
        QCOMPARE(text(joined, "confId"), confId);
        QVERIFY(!joined.value(QStringLiteral("content")).toObject().contains(QStringLiteral("createTime")));
        for (const int code : {12, 13, 2}) {
            const QString other = text(document(peer.nextNotification(), code), "confId");
            QVERIFY(!other.isEmpty() && other != confId);
        }
        QCOMPARE(text(document(peer.nextNotification(), 12), "confId"), confId);
        QCOMPARE(peer.nextNotification(), QStringLiteral("7"));
    }

private:
    static QJsonObject document(const QString &notification, int code)
    {
        const QString prefix = QString::number(code) + QLatin1Char(' ');
        if (!notification.startsWith(prefix)) {
            qWarning("not of code %d: %s", code, qPrintable(notification));
            return {};
        }
        return QJsonDocument::fromJson(notification.mid(prefix.size()).toUtf8()).object();
    }

    static QString text(const QJsonObject &document, const char *key)
    {
        return document.value(QStringLiteral("content")).toObject().value(QLatin1String(key)).toString();
    }

    static QStringList members(const QJsonObject &document)
    {
        QStringList list;
        const QJsonArray array =
            document.value(QStringLiteral("content")).toObject().value(QStringLiteral("conventioneer")).toArray();
        for (const QJsonValue &value : array) {
            list.append(value.toString());
        }
        return list;
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_RobotConferences, Guiless)
#include "tst_RobotConferences.moc"
