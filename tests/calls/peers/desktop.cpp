// Somebody's client as a process of its own: it loads the built module, does what it is told on standard input and says
// on standard output what came of it, a line each. It quits when its standard input ends.
//
//   desktop USER
//
// told     the registration value first; then "online", "call USER", "accept", "hang up"
// says     "rings USER", "finished USER RESULT connected", "finished USER RESULT", and "shows TEXT" for the status
//          in the open call window

#include "flow/FlowClient.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int cLookMs = 20;

void say(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

void sayWhatCame(const ReceivedEvent &event)
{
    if (event.msgId == MSG_RECEVIE_VOIP_CALL) {
        say("rings " + event.reader().take<QString>());
    } else if (event.msgId == MSG_CALL_FINISHED) {
        const CallRecord record(event);
        say(QStringLiteral("finished %1 %2").arg(record.strUserId).arg(record.iResult) +
            (record.bIsConnected ? " connected" : ""));
    }
}

void obey(FlowClient &client, const QString &order)
{
    if (order == QLatin1String("online")) {
        client.command(MSG_CLIENT_CONNECT_STATUS, true);
    } else if (order.startsWith(QLatin1String("call "))) {
        client.command(MSG_CALL_SINGLE_USER, false, order.mid(int(qstrlen("call "))));
    } else if (order == QLatin1String("accept")) {
        client.command(MSG_RESPONSE_VOIP_REQUEST, true);
    } else if (order == QLatin1String("hang up")) {
        QTest::mouseClick(client.callWindowButton("HangUp"), Qt::LeftButton);
    }
}

/// The first line of standard input; what is behind it stays there.
QString firstLine()
{
    QByteArray line;
    char byte = 0;
    while (::read(STDIN_FILENO, &byte, 1) == 1 && byte != '\n') {
        line.append(byte);
    }
    return QString::fromUtf8(line);
}

/// Obeys all whole lines of what was read, and keeps the rest.
void obeyAll(FlowClient &client, QByteArray *pRead)
{
    for (int end = pRead->indexOf('\n'); end >= 0; end = pRead->indexOf('\n')) {
        const QString order = QString::fromUtf8(pRead->left(end));
        pRead->remove(0, end + 1);
        obey(client, order);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    FlowClient client("1", QApplication::arguments().value(1), firstLine());
    client.host.whileHandled = [&client](BaseEvent & /*event*/) { sayWhatCame(client.host.events.constLast()); };
    if (!client.load()) {
        return EXIT_FAILURE;
    }
    QByteArray read;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        char bytes[256];
        const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0) {
            input.setEnabled(false);
            QCoreApplication::quit();
            return;
        }
        read.append(bytes, int(count));
        obeyAll(client, &read);
    });
    QString shown;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        const bool open = client.callWindow() != nullptr && client.callWindow()->isVisible();
        const QString text = open ? client.callWindowText("lblStatus") : QString();
        if (shown != text) {
            shown = text;
            say("shows " + text);
        }
    });
    look.start(cLookMs);
    const int result = QApplication::exec();
    client.command(MSG_EXIT_VOIP);
    return result;
}
