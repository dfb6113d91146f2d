#pragma once

#include "endpoint/EndpointVariables.h"

#include <QString>
#include <QTemporaryDir>

/// Sees to it that the call process, which inherits this process's environment, writes its trace where it can be
/// followed: a place that is named in the environment stays, else it is a temporary folder that goes with this object.
/// What clients that were killed have left in the temporary folder goes too, as soon as no call process writes there
/// any more.
class TraceFolder
{
public:
    /// The variable of the environment in which the call process looks for its trace's file.
    static constexpr const char *cVariable = EndpointVariables::cTrace;

    TraceFolder();
    Q_DISABLE_COPY(TraceFolder)

    /// The file that the environment names; empty when there is none to follow.
    static QString file();

private:
    QTemporaryDir m_folder;
};
