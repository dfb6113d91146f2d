#include "callprocess/ConferenceTest.h"

#include <QtTest>

namespace {

/// Takes the lines up to the one of this code about this member; false when none comes.
bool waitForMember(CallProcess &peer, const char *code, const char *user)
{
    const QString about = QStringLiteral("\"from\":\"%1\"").arg(QLatin1String(user));
    for (QString line = peer.nextNotification(); !line.isEmpty(); line = peer.nextNotification()) {
        if (line.startsWith(QLatin1String(code) + QLatin1Char(' ')) && line.contains(about)) {
            return true;
        }
    }
    return false;
}

} // namespace

/// Who is muted and who is put out of a conference of the exchange.
class tst_ConferenceControl : public ConferenceTest
{
    Q_OBJECT

private slots:
    void controlIsObeyedAndTraced_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("done");
        QTest::addColumn<QString>("muted");
        const auto row = [](const char *name, const char *operation, const char *user, const char *done,
                            const char *muted) {
            QTest::newRow(name) << QString::fromLatin1(operation) << QString::fromLatin1(user)
                                << QString::fromLatin1(done) << QString::fromLatin1(muted);
        };
        row("mute", "mute", "30010001", "muted 30010001", "muted now: [30010001]");
        row("unmute", "unmute", "30010001", "unmuted 30010001", "muted now: []");
        row("mute all", "mute", "non_moderator", "muted 30010001", "muted now: [30010001]");
        row("unmute all", "unmute", "non_moderator", "unmuted 30010001", "muted now: []");
        row("kick", "kick", "30010001", "kicked 30010001", "muted now: []");
    }

    void controlIsObeyedAndTraced()
    {
        QFETCH(QString, operation);
        QFETCH(QString, user);
        QFETCH(QString, done);
        QFETCH(QString, muted);
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QVERIFY(joinConference(peer));
        control(peer, operation.toLatin1(), user.toLatin1());
        QVERIFY(peer.waitTrace(QStringLiteral("= ") + done));
        QVERIFY(peer.waitTrace(QStringLiteral("= ") + muted));
    }

    void unmuteTakesOneOutOfTheMuted()
    {
        CallProcess peer;
        // The second one stays for as long as this takes on a busy machine.
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("1")}));
        QVERIFY(requestConference(peer, {QStringLiteral("30010001"), QStringLiteral("30010006")}));
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("12 ")));
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("12 ")));
        control(peer, "mute", "non_moderator");
        QVERIFY(peer.waitTrace(QStringLiteral("= muted now: [30010001 30010006]")));
        control(peer, "unmute", "30010001");
        QVERIFY(peer.waitTrace(QStringLiteral("= muted now: [30010006]")));
    }

    void memberWhoLeavesIsNotMutedAnyMore()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QVERIFY(joinConference(peer));
        control(peer, "mute", "30010001");
        QVERIFY(peer.waitTrace(QStringLiteral("= muted now: [30010001]")));
        control(peer, "kick", "30010001");
        QVERIFY(peer.waitTrace(QStringLiteral("= muted now: []")));
    }

    void mutedMemberWhoComesBackIsNotMutedAnyMore()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("10")}));
        QVERIFY(requestConference(peer, {QStringLiteral("30010001"), QStringLiteral("30010009")}));
        QVERIFY(waitForMember(peer, "12", "30010001"));
        // The member comes and goes: on a busy machine the word of control may find it gone.
        int tries = 0;
        do {
            QVERIFY(waitForMember(peer, "12", "30010009"));
            control(peer, "mute", "30010009");
            ++tries;
            const auto told = [&] {
                const QStringList trace = peer.trace();
                return trace.filter(QStringLiteral("= nobody to mute: ")).size() +
                       trace.filter(QStringLiteral("= muted now: ")).size();
            };
            QVERIFY(QTest::qWaitFor([&] { return told() == tries; }, CallProcess::cWaitMs));
        } while (peer.trace().filter(QStringLiteral("= muted now: [30010009]")).isEmpty());
        QVERIFY(waitForMember(peer, "13", "30010009"));
        QVERIFY(waitForMember(peer, "12", "30010009"));
        control(peer, "unmute", "30010001");
        QVERIFY(peer.waitTrace(QStringLiteral("= unmuted 30010001")));
        QVERIFY(peer.waitTrace(QStringLiteral("= muted now: []")));
    }

    void controlOfNobodyIsTracedAndTellsNothing()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QVERIFY(joinConference(peer));
        control(peer, "kick", "30010004");
        QVERIFY(peer.waitTrace(QStringLiteral("= nobody to kick: 30010004")));
        control(peer, "kick", "100");
        QVERIFY(peer.waitTrace(QStringLiteral("= nobody to kick: 100")));
        control(peer, "praise", "30010001");
        QVERIFY(peer.waitTrace(QStringLiteral("= nobody to praise: 30010001")));
        peer.write(addLine(QJsonValue()));
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("21 ")));
    }

    void creatorIsNotMutedWithEverybody()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered({QStringLiteral("--speed"), QStringLiteral("20")}));
        QCOMPARE(call(peer, QStringLiteral("30010008")), QStringLiteral("10"));
        QVERIFY(peer.nextNotification().startsWith(QLatin1String("2 ")));
        peer.command(QStringLiteral("AcceptConf"));
        for (const char *code : {"18", "12", "12"}) {
            QVERIFY(peer.nextNotification().startsWith(QLatin1String(code)));
        }
        control(peer, "mute", "non_moderator");
        QVERIFY(peer.waitTrace(QStringLiteral("= muted now: [30010001]")));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceControl, Guiless)
#include "tst_ConferenceControl.moc"
