#pragma once

// What Kamailio says on its standard error, in a file that never grows beyond a limit: the file begins anew when it is
// full, and the one before is kept beside it. A flood is cut off and counted. Main thread.

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>

class ExchangeLog
{
public:
    /// The file has at most so many bytes, and takes at most a quarter of them in a second.
    ExchangeLog(const QString &file, qint64 limit);

    /// Writes the bytes, and keeps their last whole line. What the file does not take is dropped.
    void write(const QByteArray &bytes);

    /// The last line that told of an error, from that word on: what stands before it is another number each time. Empty
    /// when none did since the begin or `forgetError`.
    QByteArray lastError() const { return m_lastError; }
    void forgetError() { m_lastError.clear(); }

private:
    void append(const QByteArray &bytes);
    void keepLine(const QByteArray &line);

    QFile m_file;
    const qint64 m_limit;
    QElapsedTimer m_second;
    qint64 m_written = 0;
    qint64 m_dropped = 0;
    QByteArray m_rest;
    QByteArray m_lastError;
};
