#pragma once

#include <QByteArray>
#include <QString>

/// The channel between plug-in and call process as the operating system sees it, since the plug-in tells nobody whether
/// it is connected: its connection is one of this process's, known by the name at its far end. No state; GUI thread.
namespace CallChannel {

/// Where the call process listens, for whoever has this process's temporary folder.
QString socketFile();

/// Process id of the call process that the plug-in is connected to; 0 while it is connected to none.
qint64 peer();

/// Whether a call process listens.
bool isListening();

/// Where a call process writes its trace.
struct Trace
{
    enum Kind
    {
        File,          ///< to a file
        StandardError, ///< where nobody can follow it
        None           ///< nowhere, or this user may not ask
    };

    Kind kind = None;
    QString file; ///< the whole path; empty but for File
};

/// What the process was told, by its option or, where that is missing, its environment. Nowhere for one that has gone.
Trace traceOf(qint64 pid);

/// What the variable was in the environment that the process was started with; null where it had none, and for a
/// process that has gone or is another user's.
QByteArray variableOf(qint64 pid, const QByteArray &name);

/// The program that the process runs; empty for one that has gone or is another user's.
QString programOf(qint64 pid);

} // namespace CallChannel
