// kelvarim-exchange: keeps the exchange of one Unix user as long as a call process of his needs it. Call processes
// start it; it is of no use by itself.

#include "calls/exchange/ExchangeFolder.h"
#include "calls/exchange/ExchangeKeeper.h"

#include "endpoint/ProcessFrame.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char *cProgram = "kelvarim-exchange";
constexpr int cExitCannotKeep = 1;

/// What whoever started it has left open (sound devices, connections) is not to stay open as long as the exchange
/// lives, nor are the signals to stay blocked that he waits for in his own way.
void partFromStarter()
{
    ::close_range(STDERR_FILENO + 1, ~0U, 0);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

} // namespace

int main(int argc, char *argv[])
{
    partFromStarter();
    ::umask(S_IRWXG | S_IRWXO);
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Keeps the exchange of a user's own calls. Call processes start it."));
    const QCommandLineOption folderOption(QStringLiteral("folder"), QStringLiteral("where it keeps its files"),
                                          QStringLiteral("FOLDER"));
    const QCommandLineOption programOption(QStringLiteral("kamailio"), QStringLiteral("the server's program"),
                                           QStringLiteral("PROGRAM"));
    const QCommandLineOption helpOption(QStringLiteral("help"), QStringLiteral("print this"));
    parser.addOptions({folderOption, programOption, helpOption});
    if (!parser.parse(QCoreApplication::arguments()) || !parser.positionalArguments().isEmpty()) {
        return complain(cExitBadInput, cProgram, QStringLiteral("bad options; --help tells them"));
    }
    if (parser.isSet(helpOption)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    QString error;
    const QString folder = ExchangeFolder::take(parser.value(folderOption), &error);
    if (folder.isEmpty()) {
        return complain(cExitCannotKeep, cProgram, error);
    }
    ExchangeKeeper keeper(folder, parser.value(programOption));
    QObject::connect(&keeper, &ExchangeKeeper::over, &application, &QCoreApplication::quit);
    switch (keeper.begin(&error)) {
    case ExchangeKeeper::Begin::Begun:
        return QCoreApplication::exec();
    case ExchangeKeeper::Begin::AnotherLives:
        return 0;
    case ExchangeKeeper::Begin::Failed:
        break;
    }
    return complain(cExitCannotKeep, cProgram, error);
}
