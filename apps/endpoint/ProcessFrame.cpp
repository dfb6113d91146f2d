#include "endpoint/ProcessFrame.h"

#include "endpoint/Channel.h"
#include "endpoint/Trace.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <cstdio>
#include <sys/prctl.h>

void takeNameFrom(const char *firstArgument)
{
    ::prctl(PR_SET_NAME, qPrintable(QFileInfo(QFile::decodeName(firstArgument)).fileName()));
}

int complain(int exitCode, const char *program, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", program, qPrintable(text));
    return exitCode;
}

std::optional<int> exitCodeUnlessListening(const char *program, Channel &channel, Trace &trace)
{
    QString error;
    switch (channel.listen(&error)) {
    case Channel::Listen::Listening:
        break;
    case Channel::Listen::AnotherLives:
        trace.event(QStringLiteral("stepped back"));
        return complain(0, program, QStringLiteral("another call process is alive, this one steps back"));
    case Channel::Listen::Failed:
        return complain(cExitCannotListen, program, QStringLiteral("cannot listen: %1").arg(error));
    }
    return std::nullopt;
}

void endWhenIdle(Channel &channel, Trace &trace, double seconds)
{
    auto *timer = new QTimer(&channel);
    timer->setSingleShot(true);
    timer->setInterval(static_cast<int>(seconds * 1000));
    QObject::connect(timer, &QTimer::timeout, qApp, [&trace] {
        trace.event(QStringLiteral("idle"));
        QCoreApplication::exit(0);
    });
    QObject::connect(&channel, &Channel::clientArrived, timer, &QTimer::stop);
    QObject::connect(&channel, &Channel::clientGone, timer, qOverload<>(&QTimer::start));
    timer->start();
}
