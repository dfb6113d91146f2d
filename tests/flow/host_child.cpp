// A client as a process of its own: it loads the built module, opens the user's store and holds one conference after
// the other until it is ended. It says on standard output what it has done, a line each: "begun" when a conference is
// placed, "refused" when none could be, "saved" once its end has been recorded, "unheard" when the call process does
// not answer any more. A line on standard input makes it quit.
//
//   host_child BASE PATIENCE
//
// BASE is the folder with the users' folders. PATIENCE is how many milliseconds a conference may take to connect, since
// a channel that another client has taken answers never.

#include "fakes/GivenContext.h"
#include "fakes/MessageBoxes.h"
#include "flow/FlowClient.h"
#include "model/MemberRoles.h"
#include "store/DB.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSocketNotifier>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int cRetryMs = 50;

// How often the call process has told that it knows this user.
int registrations = 0;

void countRegistrations(QtMsgType, const QMessageLogContext &, const QString &text)
{
    registrations += text.startsWith(QStringLiteral("voipsdk:registered")) ? 1 : 0;
}

void say(const char *line)
{
    std::puts(line);
    std::fflush(stdout);
}

bool areMembersConnected(const FlowClient &client)
{
    const auto *list = client.callWindow()->findChild<QAbstractItemView *>(QStringLiteral("listView"));
    int connected = 0;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        connected += list->model()->index(row, 0).data(ROLE_CALL_STATUS).toInt() == 1 ? 1 : 0;
    }
    return connected == 2;
}

/// Lets all come that the call process has said by now. Until a conference has its id it takes what comes as its own,
/// and that may be what was said in the one before.
void hearOut(FlowClient &client, int iPatienceMs)
{
    const int before = registrations;
    client.command(MSG_CLIENT_CONNECT_STATUS, true);
    if (!QTest::qWaitFor([before] { return registrations > before; }, iPatienceMs)) {
        say("unheard");
    }
}

void holdConference(FlowClient &client, int iPatienceMs)
{
    client.command(MSG_CALL_CONFERENCE, QStringList{QStringLiteral("30010001"), QStringLiteral("30010006")},
                   QStringLiteral("talk"), true);
    if (!client.ask(MSG_IS_EXIST_CALL)) {
        say("refused");
        QTest::qWait(cRetryMs);
        return;
    }
    say("begun");
    const bool connected = QTest::qWaitFor([&] { return areMembersConnected(client); }, iPatienceMs);
    client.callWindow()->close();
    hearOut(client, iPatienceMs);
    say(connected ? "saved" : "saved unconnected");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(countRegistrations);
    FlowClient client("1000");
    const GivenContext given(client.context());
    if (argc != 3 || !DB::initByUserName(QStringLiteral("30010000"), QString::fromLocal8Bit(argv[1]), true) ||
        !client.load()) {
        return EXIT_FAILURE;
    }
    const MessageBoxes boxes;
    bool quit = false;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&quit] { quit = true; });
    client.command(MSG_CLIENT_CONNECT_STATUS, true);
    while (!quit) {
        holdConference(client, QByteArray(argv[2]).toInt());
    }
    client.command(MSG_EXIT_VOIP);
    DB::closeDB();
    return EXIT_SUCCESS;
}
