#include "common/CLogThread.h"

#include "common/CustomLogger.h"

#include <QMutexLocker>

#include <utility>

namespace {

const int cRecordsBetweenRests = 100;
const unsigned long cRestMs = 10;

} // namespace

void CLogThread::run()
{
    static std::atomic<int> iWritten{0};
    while (!m_bStop) {
        CustomLogger *pLogger = nullptr;
        const CustomLogData data = takeRecord(pLogger);
        if (pLogger) {
            pLogger->printLog(data.level, data.location, data.message);
        }
        if (iWritten++ >= cRecordsBetweenRests - 1) {
            iWritten = 0;
            msleep(cRestMs);
        }
    }
}

/// Waits for a record and takes it, with the log file to write it to: both under one lock, because callers wait for
/// that lock.
CustomLogData CLogThread::takeRecord(CustomLogger *&pLogger)
{
    const QMutexLocker lock(&m_mutex);
    while (m_queue.isEmpty()) {
        m_condition.wait(&m_mutex);
    }
    pLogger = m_pLogger;
    return m_queue.takeFirst();
}

void CLogThread::stop()
{
    // Deliberately wakes nobody: the host ends a waiting writer with one more record.
    const QMutexLocker lock(&m_mutex);
    m_bStop = true;
}

void CLogThread::printLog(const CustomLogData &data)
{
    printLog(CustomLogData(data));
}

void CLogThread::printLog(CustomLogData &&data)
{
    const QMutexLocker lock(&m_mutex);
    // The writer waits only while the queue is empty.
    const bool bWriterMayWait = m_queue.isEmpty();
    // The list would copy the record that is appended; this way its texts are moved.
    m_queue.append(CustomLogData());
    m_queue.last() = std::move(data);
    if (bWriterMayWait) {
        m_condition.wakeAll();
    }
}

void CLogThread::printLog(CustomLog::LogLevel level, const QString &strLocation, const QString &strMessage)
{
    printLog(CustomLogData{level, strLocation, strMessage});
}

void CLogThread::setCustomLogger(CustomLogger *pLogger)
{
    const QMutexLocker lock(&m_mutex);
    m_pLogger = pLogger;
}

CustomLogger *CLogThread::getCustomLogger()
{
    const QMutexLocker lock(&m_mutex);
    return m_pLogger;
}
