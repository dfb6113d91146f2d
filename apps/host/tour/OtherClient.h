#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

/// Another client, as a process of its own, with what its call process writes. GUI thread; one for the tour.
class OtherClient
{
public:
    OtherClient();

    /// Ends the process where a tour that was cut short has left it.
    ~OtherClient();
    OtherClient(const OtherClient &) = delete;
    OtherClient &operator=(const OtherClient &) = delete;

    /// Starts this program with these arguments; false when it cannot be started.
    bool start(const QStringList &arguments);

    /// Asks the process to end, as a logout does. Always true.
    bool terminate();

    /// Whether it has ended by itself with that exit code.
    bool hasEnded(int iExitCode) const;

    /// Whether its call process has written these words, of one line.
    bool hasTraced(const QByteArray &words) const;

    /// Whether its call process has registered that user.
    bool hasRegistered(const QByteArray &uid) const;

private:
    QProcess m_process;
    QString m_strTrace;
};
