// Starts the call process: reads what it is told, steps back when another one lives, and serves its client as the
// exchange of robots or by a scenario until it is told to quit.

#include "callprocess/Channel.h"
#include "callprocess/Exchange.h"
#include "callprocess/Options.h"
#include "callprocess/Scenario.h"
#include "callprocess/ScenarioPlayer.h"
#include "callprocess/Streams.h"
#include "callprocess/Trace.h"

#include <QCoreApplication>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <sys/stat.h>

namespace {

constexpr int cExitCannotListen = 1;
constexpr int cExitBadInput = 2;

int complain(int exitCode, const QString &text)
{
    std::fprintf(stderr, "VoipSDK: %s\n", qPrintable(text));
    return exitCode;
}

/// Ends the process when it has had no client for the given time.
void watchIdleness(const Channel &channel, Trace &trace, double seconds, QTimer &timer)
{
    timer.setSingleShot(true);
    timer.setInterval(static_cast<int>(seconds * 1000));
    QObject::connect(&timer, &QTimer::timeout, qApp, [&trace] {
        trace.event(QStringLiteral("idle"));
        QCoreApplication::exit(0);
    });
    QObject::connect(&channel, &Channel::clientArrived, &timer, &QTimer::stop);
    QObject::connect(&channel, &Channel::clientGone, &timer, qOverload<>(&QTimer::start));
    timer.start();
}

int serve(const Options &options, std::optional<Scenario> scenario, Channel &channel, Trace &trace)
{
    QTimer idleTimer;
    watchIdleness(channel, trace, options.idleSeconds, idleTimer);
    if (!scenario) {
        Exchange exchange(channel, trace, options.speed);
        QObject::connect(&channel, &Channel::lineReceived, &exchange, [&](const QByteArray &line) {
            if (line == Wire::cQuitLine) {
                trace.event(QStringLiteral("quit"));
                QCoreApplication::exit(0);
            } else {
                exchange.handleLine(line);
            }
        });
        return QCoreApplication::exec();
    }
    ScenarioPlayer player(std::move(*scenario), channel, trace, options.speed);
    QObject::connect(&player, &ScenarioPlayer::finished, qApp, &QCoreApplication::exit);
    QObject::connect(&channel, &Channel::lineReceived, &player, [&](const QByteArray &line) {
        if (line == Wire::cQuitLine) {
            player.handleQuit();
        } else {
            player.handleLine(line);
        }
    });
    QTimer::singleShot(0, &player, &ScenarioPlayer::start);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGPIPE, SIG_IGN);
    // The trace holds what clients sign in with.
    ::umask(S_IRWXG | S_IRWXO);
    const QCoreApplication application(argc, argv);
    Options options;
    QString error;
    if (!options.read(QCoreApplication::arguments(), &error)) {
        return complain(cExitBadInput, error);
    }
    if (options.help) {
        std::fputs(qPrintable(Options::helpText()), stdout);
        return 0;
    }
    std::optional<Scenario> scenario;
    if (!options.scenario.isEmpty()) {
        scenario = Scenario::load(options.scenario, &error);
        if (!scenario) {
            return complain(cExitBadInput, error);
        }
    }
    Trace trace;
    if (!trace.open(options.trace, &error)) {
        return complain(cExitBadInput, error);
    }
    trace.event(QStringLiteral("started, process %1").arg(QCoreApplication::applicationPid()));
    Channel channel(options.socketName, trace);
    switch (channel.listen(&error)) {
    case Channel::Listen::Listening:
        break;
    case Channel::Listen::AnotherLives:
        trace.event(QStringLiteral("stepped back"));
        return complain(0, QStringLiteral("another call process is alive, this one steps back"));
    case Channel::Listen::Failed:
        return complain(cExitCannotListen, QStringLiteral("cannot listen: %1").arg(error));
    }
    letGoOfStreams(trace.isOnStandardError());
    return serve(options, std::move(scenario), channel, trace);
}
