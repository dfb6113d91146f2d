#pragma once

// The log facade that all callers use: LOG_DEBUG << "text" << number << "\n"; queues one record for the log thread.
// The item "\n" ends the record; nothing else does. Level, location and text stand in plain fields without a lock, so
// two threads that log at once can mix their texts in one record; the queue behind them is thread-safe. One object for
// the process, made at the first statement and never destroyed. The host owns the log file and the thread; without them
// records are dropped.

#include "common/LogUtils.h" // its separators are for every source that logs
#include "common/log/CustomLogData.h"
#include "common/log/LogLocation.h"

#include <QObject>
#include <QTextStream>

#include <memory>

class CLogThread;
class CustomLogger;

class CLogManger : public QObject
{
    Q_OBJECT

public:
    /// The process's log facade, created at the first call.
    static CLogManger *instance();

    /// Takes the log file and the log thread from the client context, once and for all: what the host sets later is not
    /// seen. Gives the log file to the thread.
    CLogManger();

    /// The log file; null when there was none. It belongs to the host.
    CustomLogger *getLogger() const;

    /// Queues a whole record; an empty location or text is written as such.
    void printLog(CustomLog::LogLevel level, const QString &strLocation, const QString &strMessage);

    /// Writes the buffered lines of the log file to the disk.
    void flushLog();

    /// Empties the log file.
    void clearLog();

    /// Sets level and location of the record to come. For the macros below.
    CLogManger &startRecord(CustomLog::LogLevel level, const QString &strLocation);

    /// Adds UTF-8 text to the record, or, for exactly "\n", queues the record and starts an empty one. Null counts as
    /// empty.
    CLogManger &operator<<(const char *szText);

    /// The same for text in a buffer.
    CLogManger &operator<<(char *szText) { return *this << static_cast<const char *>(szText); }

    /// Adds a number as the text stream writes it.
    CLogManger &operator<<(int iNumber);

    /// Adds text, also when it is "\n".
    CLogManger &operator<<(const QString &strText);

    /// Adds any other item as a text stream writes it: a bool as 1 or 0.
    template <typename Item>
    CLogManger &operator<<(const Item &item)
    {
        *m_pTextStream << item;
        return *this;
    }

    /// The text of the record so far.
    QString m_strMessage;

    /// The stream that writes to it.
    std::unique_ptr<QTextStream> m_pTextStream;

private:
    template <typename Text>
    void add(const Text &text);
    void closeRecord();

    static CLogManger *m_pInstance;

    CustomLogger *m_pLogger = nullptr;
    CLogThread *m_pLogThread = nullptr;
    CustomLog::LogLevel m_level = CustomLog::All;
    QString m_strLocation;
};

/// Starts a record of level 2 or 4 at the place where it stands; items and a closing "\n" follow with <<.
#define LOG_DEBUG CLogManger::instance()->startRecord(CustomLog::Debug, LOG_LOCATION)
#define LOG_WARN CLogManger::instance()->startRecord(CustomLog::Warn, LOG_LOCATION)
