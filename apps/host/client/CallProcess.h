#pragma once

#include <QList>
#include <QString>

/// The call process as the operating system sees it: the plug-in starts it detached, so the client has to look for it.
/// It goes by its program's path and by the trace file and the temporary folder in its environment, so that nobody
/// else's is ever taken for it. GUI thread.
class CallProcess
{
public:
    /// `strTraceFile` is the value of TraceFolder::cVariable that the processes were started with.
    explicit CallProcess(const QString &strTraceFile);

    /// Process ids of those that run.
    QList<qint64> pids() const;

    /// Ends them all as a crash would (signal 9).
    void kill() const;

    /// Asks them all to end (signal 15).
    void terminate() const;

    /// Starts one with this process's environment. False when the program cannot be started.
    bool start() const;

    /// The program, beside this one.
    static QString program();

private:
    void signalAll(int iNumber) const;

    QString m_strTraceFile;
};
