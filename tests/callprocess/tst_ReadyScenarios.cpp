// Scenarios that come with the call process: what each of them sends, and that those of a killed process end by a kill.

#include "callprocess/CallProcessTest.h"

#include <QtTest>

namespace {

/// Lets the call process play a scenario at a hundred times its speed, and registers as its client.
bool isRegistered(CallProcess &peer, const QString &scenario)
{
    peer.start({QStringLiteral("--speed"), QStringLiteral("100"), QStringLiteral("--scenario"),
                QStringLiteral(VOIPSDK_SCENARIOS "/") + scenario + QStringLiteral(".scn")});
    if (!peer.connectClient()) {
        return false;
    }
    peer.command(QStringLiteral("RegeditUser"),
                 {QStringLiteral("100"), QStringLiteral("Me"), QStringLiteral("r"), false});
    return peer.nextNotification() == QStringLiteral("17 true");
}

} // namespace

class tst_ReadyScenarios : public CallProcessTest
{
    Q_OBJECT

private slots:
    void readyScenarioPlays_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("commands");
        QTest::addColumn<QString>("notifications");
        const auto row = [](const char *scenario, const char *commands, const char *notifications) {
            QTest::newRow(scenario) << QString::fromLatin1(scenario) << QString::fromLatin1(commands)
                                    << QString::fromLatin1(notifications);
        };
        row("call-answered", "CallUser HangUpCall", "18");
        row("call-hung-up", "CallUser", "18 8");
        row("call-busy", "CallUser", "22");
        row("call-rejected", "CallUser", "10");
        row("call-failed", "CallUser", "19");
        row("call-never-answered", "CallUser HangUpCall", "");
        row("incoming-accepted", "AcceptCall", "0 18 8");
        row("incoming-rejected", "RejectCall", "0");
        row("incoming-cancelled", "", "0 4");
        row("second-incoming-call", "AcceptCall", "0 18 0");
        row("conference-created", "RequestConference HangupConf", "20 18 12 25 13");
        row("conference-refused", "RequestConference", "20");
        row("conference-invited", "AcceptConf", "2 18 12 7");
        row("split-line", "CallUser HangUpCall", "22 18");
        row("two-lines-one-read", "CallUser", "18 8");
        row("same-line-twice", "", "999 999 999 999");
    }

    void readyScenarioPlays()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, commands);
        QFETCH(QString, notifications);
        const QMap<QString, QJsonArray> parameters{
            {QStringLiteral("CallUser"), CallProcess::callParameters()},
            {QStringLiteral("RequestConference"), {QStringLiteral("100"), QJsonValue(), false, QString()}}};
        CallProcess peer;
        QVERIFY(isRegistered(peer, scenario));
        const QStringList names = commands.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &name : names) {
            peer.command(name, parameters.value(name));
        }
        const QStringList codes = notifications.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &code : codes) {
            QCOMPARE(peer.nextNotification().section(QLatin1Char(' '), 0, 0), code);
        }
        QVERIFY(peer.waitTrace(QStringLiteral("= scenario played")));
        peer.write("quit\n");
        QCOMPARE(peer.exitCode(), 0);
        QCOMPARE(peer.trace().filter(QRegularExpression(QStringLiteral("^!"))).size(), 0);
    }

    void killedScenarioDies_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("notification");
        QTest::newRow("calling") << QStringLiteral("killed-while-calling") << QStringLiteral("CallUser") << QString();
        QTest::newRow("ringing") << QStringLiteral("killed-while-ringing") << QString() << QStringLiteral("0 30010001");
        QTest::newRow("connected") << QStringLiteral("killed-while-connected") << QStringLiteral("CallUser")
                                   << QStringLiteral("18");
    }

    void killedScenarioDies()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, command);
        QFETCH(QString, notification);
        CallProcess peer;
        QVERIFY(isRegistered(peer, scenario));
        if (!command.isEmpty()) {
            peer.command(command, CallProcess::callParameters());
        }
        if (!notification.isEmpty()) {
            QCOMPARE(peer.nextNotification(), notification);
        }
        QCOMPARE(peer.exitCode(), 9);
        QVERIFY(QFile::exists(CallProcess::socketPath()));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ReadyScenarios, Guiless)
#include "tst_ReadyScenarios.moc"
