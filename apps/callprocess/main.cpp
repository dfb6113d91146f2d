// Starts the call process: reads what it is told, steps back when another one lives, and serves its client as the
// exchange of robots or by a scenario until it is told to quit.

#include "callprocess/Exchange.h"
#include "callprocess/Options.h"
#include "callprocess/Scenario.h"
#include "callprocess/ScenarioPlayer.h"
#include "endpoint/Channel.h"
#include "endpoint/ProcessFrame.h"
#include "endpoint/SecretVeil.h"
#include "endpoint/Streams.h"
#include "endpoint/Trace.h"

#include <QCoreApplication>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <sys/stat.h>

namespace {

constexpr const char *cProgram = "VoipSDK";

int serve(const Options &options, std::optional<Scenario> scenario, Channel &channel, Trace &trace)
{
    endWhenIdle(channel, trace, options.idleSeconds);
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
    takeNameFrom(argv[0]);
    // The trace holds what clients sign in with.
    ::umask(S_IRWXG | S_IRWXO);
    const QCoreApplication application(argc, argv);
    Options options;
    QString error;
    if (!options.read(QCoreApplication::arguments(), &error)) {
        return complain(cExitBadInput, cProgram, error);
    }
    if (options.help) {
        std::fputs(qPrintable(Options::helpText()), stdout);
        return 0;
    }
    std::optional<Scenario> scenario;
    if (!options.scenario.isEmpty()) {
        scenario = Scenario::load(options.scenario, &error);
        if (!scenario) {
            return complain(cExitBadInput, cProgram, error);
        }
    }
    Trace trace;
    if (options.hideSecrets) {
        trace.setVeil(&withoutSecret);
    }
    if (!trace.open(options.trace, &error)) {
        return complain(cExitBadInput, cProgram, error);
    }
    trace.event(QStringLiteral("started, process %1").arg(QCoreApplication::applicationPid()));
    Channel channel(options.socketName, trace);
    if (const std::optional<int> exitCode = exitCodeUnlessListening(cProgram, channel, trace)) {
        return *exitCode;
    }
    letGoOfStreams(trace.isOnStandardError());
    return serve(options, std::move(scenario), channel, trace);
}
