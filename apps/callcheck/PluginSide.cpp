#include "callcheck/PluginSide.h"

#include "endpoint/Trace.h"

#include <QDeadlineTimer>
#include <QThread>

namespace {

constexpr int cTryAgainMs = 5;

int remaining(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

bool PluginSide::connectTo(const QString &path, int milliseconds)
{
    disconnect();
    m_socket = std::make_unique<QLocalSocket>();
    const QDeadlineTimer deadline(milliseconds);
    for (;;) {
        m_socket->connectToServer(path, QIODevice::ReadWrite);
        if (m_socket->waitForConnected(remaining(deadline))) {
            m_trace.event(QStringLiteral("connected"));
            return true;
        }
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(cTryAgainMs);
    }
}

void PluginSide::disconnect()
{
    if (isConnected()) {
        m_trace.event(QStringLiteral("disconnected"));
        m_socket->disconnectFromServer();
    }
    m_socket.reset();
    m_input.clear();
}

bool PluginSide::write(const QByteArray &bytes)
{
    if (!isConnected()) {
        return false;
    }
    m_trace.received(bytes.trimmed());
    m_socket->write(bytes);
    m_socket->flush();
    return true;
}

std::optional<QByteArray> PluginSide::nextLine(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    takeRead();
    while (m_lines.isEmpty() && isConnected() && !deadline.hasExpired()) {
        m_socket->waitForReadyRead(remaining(deadline));
        takeRead();
    }
    return m_lines.isEmpty() ? std::nullopt : std::optional<QByteArray>(m_lines.dequeue());
}

bool PluginSide::waitClosed(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    while (isConnected() && !deadline.hasExpired()) {
        m_socket->waitForReadyRead(remaining(deadline));
        takeRead();
    }
    return !isConnected();
}

void PluginSide::takeRead()
{
    const QByteArray read = m_socket ? m_socket->readAll() : QByteArray();
    if (read.isEmpty()) {
        return;
    }
    m_trace.sent(read);
    m_hasBrokenRead = m_hasBrokenRead || !read.endsWith('\n');
    m_input += read;
    int begin = 0;
    for (int end = m_input.indexOf('\n'); end >= 0; end = m_input.indexOf('\n', begin)) {
        m_lines.enqueue(m_input.mid(begin, end - begin));
        begin = end + 1;
    }
    m_input.remove(0, begin);
}
