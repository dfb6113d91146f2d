#pragma once

// The host's side of logging for a test: a log file in the working directory, its writer thread, and a client context
// that holds both. Create one before the first log statement of the program and keep it to the end: the log manager
// takes both once, when it is made, which is here. GUI thread.

#include "common/CLogThread.h"
#include "common/CustomLogger.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"

#include <QStringList>

/// Reads back what has been logged.
class LogCapture
{
public:
    /// Starts the writer, sets `context` as the shared client context and makes the log manager.
    LogCapture();

    /// Stops the writer.
    ~LogCapture();

    /// The lines written since the last call, each without its time: "[WARN][File.cpp:12]: text". Records that are on
    /// their way are waited for.
    QStringList take();

    /// The same as "LEVEL text", without the place.
    QStringList takeTexts();

    /// The whole log as it stands in the file; what is still on its way is not in it.
    QString written();

    /// The shared client context; a test may fill in more.
    CommonData context;

private:
    CustomLogger m_logger;
    CLogThread m_thread;
    int m_takeCount = 0;
    int m_readLines = 0;
    GivenContext m_given{context};
};
