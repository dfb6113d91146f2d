#pragma once

// One log record on its way from the caller to the writer thread, and the levels of records.
// A plain value that is copied freely between threads.

#include <QString>

namespace CustomLog {

/// The weight of a record, and the threshold of a log file: All is a threshold that admits everything, not a record's
/// level.
enum LogLevel : int
{
    All = 0,
    Trace = 1,
    Debug = 2,
    Info = 3,
    Warn = 4,
    Error = 5,
    Fatal = 6
};

} // namespace CustomLog

struct CustomLogData
{
    /// The record's weight.
    CustomLog::LogLevel level = CustomLog::Debug;

    /// Source file name, colon, line number; may be empty.
    QString location;

    /// The text of the record; a line feed in it makes a line break in the file.
    QString message;
};
