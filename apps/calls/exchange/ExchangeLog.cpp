#include "calls/exchange/ExchangeLog.h"

#include <utility>

namespace {

constexpr int cLongestLine = 1000;
constexpr int cSecondMs = 1000;

} // namespace

ExchangeLog::ExchangeLog(const QString &file, qint64 limit) : m_file(file), m_limit(limit)
{
    m_second.start();
}

void ExchangeLog::write(const QByteArray &bytes)
{
    m_rest += bytes;
    int begin = 0;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', begin)) {
        keepLine(m_rest.mid(begin, end - begin));
        begin = end + 1;
    }
    m_rest = m_rest.mid(begin).right(cLongestLine);
    if (m_second.elapsed() >= cSecondMs) {
        m_second.start();
        m_written = 0;
        if (m_dropped > 0) {
            append("... " + QByteArray::number(std::exchange(m_dropped, 0)) + " bytes left out\n");
        }
    }
    const qint64 room = qMax<qint64>(0, m_limit / 4 - m_written);
    append(bytes.left(int(qMin<qint64>(room, bytes.size()))));
    m_dropped += qMax<qint64>(0, bytes.size() - room);
}

void ExchangeLog::append(const QByteArray &bytes)
{
    if (!m_file.isOpen() && !m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        return;
    }
    if (m_file.size() + bytes.size() > m_limit) {
        const QString before = m_file.fileName() + QStringLiteral(".1");
        m_file.close();
        QFile::remove(before);
        QFile::rename(m_file.fileName(), before);
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
            return;
        }
    }
    m_written += qMax<qint64>(0, m_file.write(bytes));
}

void ExchangeLog::keepLine(const QByteArray &line)
{
    for (const char *word : {"CRITICAL", "ERROR"}) {
        const int begin = line.indexOf(word);
        if (begin >= 0) {
            m_lastError = line.mid(begin, cLongestLine);
            return;
        }
    }
}
