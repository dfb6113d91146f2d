// Checks a call process of the plug-in: records a run of one as a scenario, or replays a scenario against one.

#include "callcheck/CheckOptions.h"
#include "callcheck/RecordingRelay.h"
#include "callcheck/Replay.h"
#include "callcheck/ScenarioWriter.h"
#include "callcheck/Subject.h"
#include "callprocess/Scenario.h"
#include "endpoint/Channel.h"
#include "endpoint/ProcessFrame.h"
#include "endpoint/SocketClaim.h"
#include "endpoint/Streams.h"
#include "endpoint/Trace.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 cRegistrationLimit = 65536;

int complain(CheckExit exitCode, const QString &text)
{
    return complain(static_cast<int>(exitCode), "kelvarim-callcheck", text);
}

/// Takes the registration value from the file that is named, its first line. False with `error` set when there is none.
bool readRegistration(CheckOptions &options, QString *error)
{
    if (options.mode != CheckOptions::Mode::Replay || options.registrationFile.isEmpty()) {
        return true;
    }
    QFile file(options.registrationFile);
    const bool open = options.registrationFile == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                                     : file.open(QIODevice::ReadOnly);
    const QByteArray line = open ? file.readLine(cRegistrationLimit).trimmed() : QByteArray();
    const QString fault = !open                                   ? file.errorString()
                          : line.isEmpty()                        ? QStringLiteral("its first line is empty")
                          : line.size() >= cRegistrationLimit - 1 ? QStringLiteral("its first line is too long")
                                                                  : QString();
    if (!fault.isEmpty()) {
        *error = QStringLiteral("no registration value in %1: %2").arg(options.registrationFile, fault);
        return false;
    }
    options.registration = QString::fromUtf8(line);
    return true;
}

bool makeSubject(const CheckOptions &options, Subject &subject, QString *error)
{
    if (!options.attachTo.isEmpty()) {
        subject.attach(options.attachTo);
        return true;
    }
    return subject.start(options.program, options.arguments, error);
}

/// Makes the file for this user alone: who called whom stands in it.
bool openForOneself(QFile &file)
{
    const mode_t before = ::umask(077);
    const bool open = file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
    ::umask(before);
    return open;
}

/// The call process is asked to end when this process is, so that the recording comes to its end too. The signals must
/// have been blocked.
void obeySignals(const sigset_t &stopSignals, RecordingRelay &relay)
{
    const int descriptor = ::signalfd(-1, &stopSignals, SFD_CLOEXEC | SFD_NONBLOCK);
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, &relay);
    QObject::connect(notifier, &QSocketNotifier::activated, &relay, [&relay, notifier, descriptor] {
        notifier->setEnabled(false);
        ::close(descriptor);
        relay.stop();
    });
}

int record(const CheckOptions &options, Trace &trace)
{
    if (SocketClaim::isAnswered(SocketClaim::socketPath(options.socketName))) {
        return complain(CheckExit::Passed, QStringLiteral("another call process is alive, this one steps back"));
    }
    QFile file(options.output);
    if (!openForOneself(file)) {
        return complain(CheckExit::BadInput,
                        QStringLiteral("cannot write %1: %2").arg(options.output, file.errorString()));
    }
    Subject subject;
    QString error;
    if (!makeSubject(options, subject, &error)) {
        file.remove();
        return complain(CheckExit::CannotStart, error);
    }
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGTERM);
    sigaddset(&stopSignals, SIGINT);
    sigprocmask(SIG_BLOCK, &stopSignals, nullptr);
    ScenarioWriter writer([&file](const QByteArray &text) { file.write(text); });
    Channel channel(options.socketName, trace);
    RecordingRelay relay(subject, channel, writer);
    obeySignals(stopSignals, relay);
    QObject::connect(&relay, &RecordingRelay::failed, qApp,
                     [](const QString &reason) { QCoreApplication::exit(complain(CheckExit::CannotStart, reason)); });
    QObject::connect(&relay, &RecordingRelay::finished, qApp, [&subject](int exitCode, bool died) {
        if (died) {
            // As if this process had died itself: the socket file stays.
            subject.removeFolder();
            std::_Exit(exitCode != 0 ? exitCode : static_cast<int>(CheckExit::DiedByASignal));
        }
        QCoreApplication::exit(exitCode);
    });
    if (options.inPlace) {
        letGoOfStreams(trace.isOnStandardError());
    }
    QTimer::singleShot(0, &relay, &RecordingRelay::start);
    return QCoreApplication::exec();
}

int replay(const CheckOptions &options, Trace &trace)
{
    QString error;
    const std::optional<Scenario> scenario = Scenario::load(options.scenario, &error);
    if (!scenario) {
        return complain(CheckExit::BadInput, error);
    }
    Subject subject;
    if (!makeSubject(options, subject, &error)) {
        return complain(CheckExit::CannotStart, error);
    }
    const PluginUser user{options.userId, options.nickName, options.registration};
    Replay replay(*scenario, subject, trace, static_cast<int>(options.patience * 1000), user);
    if (!replay.run()) {
        trace.complaint(replay.fault());
        return complain(replay.wasUnreachable() ? CheckExit::CannotStart : CheckExit::NotAsRecorded, replay.fault());
    }
    std::printf("as recorded: %d commands, %d notifications\n", replay.commandCount(), replay.notificationCount());
    return static_cast<int>(CheckExit::Passed);
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argc, argv);
    CheckOptions options;
    QString error;
    if (!options.read(QCoreApplication::arguments(), &error) || !readRegistration(options, &error)) {
        return complain(CheckExit::BadInput, error);
    }
    if (options.mode == CheckOptions::Mode::Help) {
        std::fputs(qPrintable(CheckOptions::helpText()), stdout);
        return 0;
    }
    Trace trace;
    if (!trace.open(options.trace, &error)) {
        return complain(CheckExit::BadInput, error);
    }
    return options.mode == CheckOptions::Mode::Record ? record(options, trace) : replay(options, trace);
}
