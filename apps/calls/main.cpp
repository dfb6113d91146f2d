// Starts the call process for calls between people: reads what it is set to, steps back when another one lives, and
// serves its client until it is told to quit. Without a server it is one of those who share this user's own exchange.

#include "calls/CallsOptions.h"
#include "calls/ProcessFolder.h"
#include "calls/agent/UserAgent.h"
#include "calls/desk/Desk.h"
#include "calls/desk/Echo.h"
#include "calls/exchange/EmbeddedExchange.h"
#include "calls/settings/CallsSettings.h"

#include "endpoint/Channel.h"
#include "endpoint/ProcessFrame.h"
#include "endpoint/SecretVeil.h"
#include "endpoint/Streams.h"
#include "endpoint/Trace.h"

#include <QCoreApplication>
#include <QDir>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/signalfd.h>
#include <sys/stat.h>

namespace {

constexpr const char *cProgram = "kelvarim-calls";
constexpr int cFirstPauseMs = 1000;
constexpr int cLongestPauseMs = 60000;

bool readSettings(const CallsOptions &options, CallsSettings *settings, QString *error)
{
    // The client's, as the front takes it.
    const std::string folder =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../../..")).toStdString();
    const auto files = options.settings.isEmpty() ? CallsSettings::files(folder)
                                                  : std::vector<std::string>{options.settings.toStdString()};
    std::string fault;
    const bool read = settings->read(files, &fault);
    *error = QString::fromStdString(fault);
    return read;
}

ExchangeAccess accessOf(const CallsSettings &settings)
{
    ExchangeAccess access;
    for (const CallsServer &server : settings.servers) {
        access.servers
            << QStringLiteral("sip:%1:%2;transport=tls").arg(QString::fromStdString(server.written())).arg(server.port);
    }
    access.caFile = QString::fromStdString(settings.caFile);
    access.domain = QString::fromStdString(
        settings.domain.empty() && !settings.servers.empty() ? settings.servers.front().written() : settings.domain);
    const QString secretFile = QString::fromStdString(settings.secretFile);
    if (settings.secret == "token") {
        access.credentials = tokenCredentials;
    } else if (settings.secret == "file") {
        access.credentials = [secretFile](const QString &userId, const QString & /*value*/, QString *fault) {
            return fileCredentials(userId, secretFile, fault);
        };
    } else {
        access.credentials = passwordCredentials;
    }
    return access;
}

/// Where no server is set, `access` follows the exchange of this user's own, wherever it is, and the desk or the echo
/// is told.
template <class Told>
void follow(EmbeddedExchange &exchange, ExchangeAccess &access, Told &told)
{
    access.credentials = [&exchange](const QString &userId, const QString & /*value*/, QString *fault) {
        fault->clear();
        return Credentials{userId, exchange.place().passwordOf(userId)};
    };
    QObject::connect(&exchange, &EmbeddedExchange::ready, &told, [&] {
        access.servers = QStringList{exchange.place().proxy};
        access.caFile = exchange.place().caFile;
        access.domain = exchange.place().domain;
        told.takeExchange();
    });
    QObject::connect(&exchange, &EmbeddedExchange::lost, &told, [&] {
        access.servers.clear();
        told.loseExchange(QStringLiteral("the exchange has gone"));
    });
    QObject::connect(&exchange, &EmbeddedExchange::failed, &told, &Told::loseExchange);
    exchange.join();
}

/// The signals that ask the process to end come by descriptor alone. Before any thread: each inherits it.
sigset_t blockStopSignals()
{
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGTERM);
    sigaddset(&stopSignals, SIGINT);
    ::sigprocmask(SIG_BLOCK, &stopSignals, nullptr);
    return stopSignals;
}

/// The event loop ends when the process is asked to. The signals must have been blocked.
void obeySignals(const sigset_t &stopSignals)
{
    const int descriptor = ::signalfd(-1, &stopSignals, SFD_CLOEXEC | SFD_NONBLOCK);
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::exit(0);
    });
}

std::unique_ptr<EmbeddedExchange> exchangeOf(const CallsSettings &settings)
{
    return std::make_unique<EmbeddedExchange>(
        QString::fromStdString(settings.exchangeFolder), QString::fromStdString(settings.exchangeProgram),
        QCoreApplication::applicationDirPath() + QLatin1String("/kelvarim-exchange"));
}

/// Starts the agent. Where it cannot be, the desk is told, and it is tried again with growing pauses: what is missing
/// may come, and the client starts no other call process while this one lives.
void startAgent(UserAgent &agent, Desk &desk, Trace &trace, int pauseMs = cFirstPauseMs)
{
    QString error;
    if (agent.start(&error)) {
        desk.takeAgent();
        return;
    }
    trace.complaint(error);
    desk.lackAgent(error);
    QTimer::singleShot(pauseMs, &desk, [&agent, &desk, &trace, pauseMs] {
        startAgent(agent, desk, trace, qMin(2 * pauseMs, cLongestPauseMs));
    });
}

int serve(const CallsSettings &settings, Channel &channel, Trace &trace)
{
    const auto exchange = exchangeOf(settings);
    ExchangeAccess access = accessOf(settings);
    const ProcessFolder folder;
    if (!folder.isValid()) {
        trace.complaint(folder.fault());
        return cExitCannotListen;
    }
    UserAgent agent(settings, access, folder.path());
    Desk desk(channel, trace, agent, access);
    startAgent(agent, desk, trace);
    QObject::connect(&channel, &Channel::lineReceived, &desk, [&](const QByteArray &line) {
        if (line == Wire::cQuitLine) {
            trace.event(QStringLiteral("quit"));
            QCoreApplication::exit(0);
        } else {
            desk.handleLine(line);
        }
    });
    if (settings.servers.empty()) {
        follow(*exchange, access, desk);
    }
    const int exitCode = QCoreApplication::exec();
    channel.stopListening();
    agent.stop();
    return exitCode;
}

int echo(const QString &userId, CallsSettings settings, Trace &trace)
{
    // What comes back is what was said.
    settings.echoCancelling = false;
    settings.noiseHandling = false;
    settings.wavIn.clear();
    settings.wavOut.clear();
    const auto exchange = exchangeOf(settings);
    ExchangeAccess access = accessOf(settings);
    if (!settings.servers.empty()) {
        // No client brings one: account/secret has to be file, which is read this once.
        QString fault;
        Credentials own = access.credentials(userId, QString(), &fault);
        if (!fault.isEmpty()) {
            return complain(cExitBadInput, cProgram, QStringLiteral("the echo cannot sign in: %1").arg(fault));
        }
        access.credentials = [own](const QString & /*userId*/, const QString & /*value*/, QString *none) {
            none->clear();
            return own;
        };
    }
    const ProcessFolder folder;
    if (!folder.isValid()) {
        return complain(cExitCannotListen, cProgram, folder.fault());
    }
    UserAgent agent(settings, access, folder.path(), UserAgent::Sound::Echo);
    Echo echo(userId, trace, agent, access);
    QString error;
    if (!agent.start(&error)) {
        return complain(cExitCannotListen, cProgram, error);
    }
    if (settings.servers.empty()) {
        follow(*exchange, access, echo);
    } else {
        echo.takeExchange();
    }
    const int exitCode = QCoreApplication::exec();
    agent.stop();
    return exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGPIPE, SIG_IGN);
    takeNameFrom(argv[0]);
    const sigset_t stopSignals = blockStopSignals();
    ::umask(S_IRWXG | S_IRWXO);
    const QCoreApplication application(argc, argv);
    CallsOptions options;
    QString error;
    if (!options.read(QCoreApplication::arguments(), &error)) {
        return complain(cExitBadInput, cProgram, error);
    }
    if (options.help) {
        std::fputs(qPrintable(CallsOptions::helpText()), stdout);
        return 0;
    }
    CallsSettings settings;
    if (!readSettings(options, &settings, &error)) {
        return complain(cExitBadInput, cProgram, error);
    }
    Trace trace;
    trace.setVeil(&withoutSecret);
    if (!trace.open(options.trace, &error)) {
        return complain(cExitBadInput, cProgram, error);
    }
    trace.event(QStringLiteral("started, process %1").arg(QCoreApplication::applicationPid()));
    if (!options.echo.isEmpty()) {
        obeySignals(stopSignals);
        return echo(options.echo, settings, trace);
    }
    Channel channel(options.socketName, trace);
    if (const std::optional<int> exitCode = exitCodeUnlessListening(cProgram, channel, trace)) {
        return *exitCode;
    }
    letGoOfStreams(trace.isOnStandardError());
    obeySignals(stopSignals);
    endWhenIdle(channel, trace, options.idleSeconds);
    return serve(settings, channel, trace);
}
