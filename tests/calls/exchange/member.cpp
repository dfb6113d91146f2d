// A call process as far as the exchange is concerned: joins, says what it is told, a line each, and leaves when its
// standard input ends. Usage: member FOLDER KEEPER

#include "calls/exchange/EmbeddedExchange.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

namespace {

void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    EmbeddedExchange exchange(arguments.value(1), QString(), arguments.value(2));
    QObject::connect(&exchange, &EmbeddedExchange::ready, [&exchange] { say("ready " + exchange.place().proxy); });
    QObject::connect(&exchange, &EmbeddedExchange::lost, [] { say("lost"); });
    QObject::connect(&exchange, &EmbeddedExchange::failed, [](const QString &reason) { say("failed " + reason); });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    exchange.join();
    return QCoreApplication::exec();
}
