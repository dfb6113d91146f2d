// A client's user with two hands, for tests that need more than one client: loads the built module, plays one of the
// runs below and ends with 0 when all of it had its effect. The call process is the one that stands beside this
// program.

#include "fakes/Patience.h"
#include "flow/FlowClient.h"

#include <QApplication>
#include <QWidget>
#include <QtTest>

#include <cstdio>
#include <functional>

namespace {

bool waitFor(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, cPatienceMs);
}

/// Calls somebody who answers, and hangs up.
bool single(FlowClient &client)
{
    client.command(MSG_CALL_SINGLE_USER, false, QStringLiteral("30010001"));
    const auto connected = [&] { return client.callWindowText("lblStatus") == QStringLiteral("已接通"); };
    const auto finished = [&] { return !client.host.received(MSG_CALL_FINISHED).isEmpty(); };
    if (!waitFor([&] { return connected() || finished(); }) || finished()) {
        return false;
    }
    QTest::mouseClick(client.callWindowButton("HangUp"), Qt::LeftButton);
    return client.host.received(MSG_CALL_FINISHED).size() == 1 &&
           CallRecord(client.host.received(MSG_CALL_FINISHED).constLast()).bIsConnected;
}

/// Starts a conference in which one joins, one is busy and one rejects, and leaves it.
bool conference(FlowClient &client)
{
    const QStringList members{QStringLiteral("30010001"), QStringLiteral("30010002"), QStringLiteral("30010003")};
    client.command(MSG_CALL_CONFERENCE, members, QStringLiteral("title"), true);
    if (!waitFor([&] {
            const QList<int> codes = client.codesOnWire();
            return codes.count(12) == 2 && codes.contains(5) && codes.contains(25);
        })) {
        return false;
    }
    client.callWindow()->close();
    return !client.ask(MSG_IS_EXIST_CALL);
}

bool play(FlowClient &client, const QString &strRun)
{
    const bool done = strRun == QLatin1String("single") ? single(client) : conference(client);
    const QString last =
        strRun == QLatin1String("single") ? QStringLiteral("HangUpCall") : QStringLiteral("HangupConf");
    return done && waitFor([&] { return client.countOnWire(last) == 1; });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FlowClient client(qgetenv("VOIPSDK_SPEED"));
    if (argc != 2 || !client.load() || !client.goOnline()) {
        std::fputs("cannot sign in\n", stderr);
        return 1;
    }
    const bool good = play(client, QString::fromLocal8Bit(argv[1]));
    client.command(MSG_EXIT_VOIP);
    const bool gone = waitFor([&] { return !client.callProcessLives(); });
    return good && gone ? 0 : 1;
}
