#pragma once

// The queue of log records and the thread that takes them to the log file, so that no caller waits for the disk.
// printLog and the two accessors of the logger may be called from any thread. The queue has no limit and drops nothing.
// The host creates, starts, stops and destroys the object.

#include "common/log/CustomLogData.h"

#include <QList>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>

class CustomLogger;

class CLogThread : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;

    /// Frees the records that are still queued, unwritten. The thread must have ended.
    ~CLogThread() override = default;

    /// Writes records until stop(); the body of the thread.
    void run() override;

    /// Asks the writer to leave after its next record: one that waits on an empty queue stays until another record has
    /// come and is written. What else is queued stays unwritten, and the thread cannot be run again.
    void stop();

    /// Queues a record.
    void printLog(const CustomLogData &data);

    /// Queues a record that the caller needs no more.
    void printLog(CustomLogData &&data);

    /// Queues a record of these three parts.
    void printLog(CustomLog::LogLevel level, const QString &strLocation, const QString &strMessage);

    /// The log file to write to; it stays the caller's. With null, records are taken from the queue and lost.
    void setCustomLogger(CustomLogger *pLogger);

    /// The log file in use; null until one is set.
    CustomLogger *getCustomLogger();

private:
    CustomLogData takeRecord(CustomLogger *&pLogger);

    std::atomic<bool> m_bStop{false};
    QMutex m_mutex;
    QWaitCondition m_condition;
    QList<CustomLogData> m_queue;
    CustomLogger *m_pLogger = nullptr;
};
