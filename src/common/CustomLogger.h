#pragma once

// The log file: UTF-8 lines, a size limit, numbered backups.
// The writer thread calls printLog; the other operations may come from any thread. The mutex is not recursive and is
// never held across close() or reopen(). The host creates and owns the object. No failure is ever reported: a file that
// cannot be opened makes the logger silent.

#include "common/log/CustomLogData.h"

#include <QMutex>
#include <QString>

#include <atomic>
#include <memory>

class QFile;
class QTextStream;

class CustomLogger
{
public:
    /// Opens `strFileName` for writing from the last byte of what it holds on, which is overwritten; the file is
    /// created when missing, folders are not.
    explicit CustomLogger(const QString &strFileName);

    /// Closes the file. Text that was neither flushed nor closed before is lost.
    ~CustomLogger();

    CustomLogger(const CustomLogger &) = delete;
    CustomLogger &operator=(const CustomLogger &) = delete;

    /// Size limit of the file, in KiB: at or above it the file is rolled over. 10 MiB unless set.
    void setMaxFileSize(long long iKilobytes);

    /// How many numbered backups are kept; 0 keeps none, and a roll-over then empties the log. 10 unless set.
    void setMaxBackupIndex(unsigned int iMaxBackupIndex);

    /// Writes one line to the file's text buffer, with the present local time, and rolls over when the file on disk has
    /// reached its limit. Nothing is written while the logger is closed.
    void printLog(CustomLog::LogLevel level, const QString &strLocation, const QString &strMessage);

    /// Whether a record of this level is written. The threshold is All, so this holds for every level from 0 up.
    bool isLevelEnabled(CustomLog::LogLevel level) const;

    /// The level's text as it stands in a line; empty for a value outside 1 to 6.
    static QString getLevelString(CustomLog::LogLevel level);

    /// Moves the file to backup 1, each backup one number up, drops the oldest and starts a new file.
    void rollOver();

    /// Writes out what is buffered and closes the file; records are dropped until reopen().
    void close();

    /// Opens the file again, as the constructor does.
    void reopen();

    /// Empties the log: removes the file and starts a new one. Backups stay.
    void clear();

    /// Writes the buffered lines to the disk.
    void flush();

    /// The log file's name without its folders.
    QString getLogFileName() const;

private:
    void shiftBackups();
    const QString &currentTime();
    qint64 fileSize();

    const QString m_strFileName;
    const CustomLog::LogLevel m_level = CustomLog::All;
    qint64 m_iMaxFileSize = Q_INT64_C(0xa00000);
    quint32 m_iMaxBackupIndex = 10;
    std::unique_ptr<QFile> m_pFile;
    std::unique_ptr<QTextStream> m_pStream;
    std::atomic<bool> m_bOpened{false};
    QMutex m_mutex;
    qint64 m_iSecond = -1;        ///< the second since 1970 that m_strTime tells
    QString m_strTime;            ///< time of the last line
    qint64 m_iSizedPosition = -1; ///< the file's position when its size was asked for; -1 before
    qint64 m_iFileSize = 0;
};
