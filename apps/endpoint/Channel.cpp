#include "endpoint/Channel.h"

#include "endpoint/SocketClaim.h"
#include "endpoint/Trace.h"

#include <QLocalSocket>
#include <QScopedValueRollback>

#include <fcntl.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int cPumpIntervalMs = 1;
constexpr int cInputLimit = 64 * 1024 * 1024;

/// The process at the other end of a socket, 0 when it cannot be told.
qint64 peerOf(int descriptor)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 ? peer.pid : 0;
}

} // namespace

Channel::Channel(QString serverName, Trace &trace, QObject *parent)
    : QObject(parent), m_serverName(std::move(serverName)), m_trace(trace)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_pumpTimer.setSingleShot(true);
    m_pumpTimer.setInterval(cPumpIntervalMs);
    connect(&m_server, &QLocalServer::newConnection, this, &Channel::acceptClient);
    connect(&m_pumpTimer, &QTimer::timeout, this, &Channel::pumpLater);
}

Channel::~Channel()
{
    drop();
    stopListening();
}

Channel::Listen Channel::listen(QString *error)
{
    const SocketClaim claim(m_serverName);
    if (m_server.isListening()) {
        return Listen::Listening;
    }
    if (claim.isTaken()) {
        return Listen::AnotherLives;
    }
    QLocalServer::removeServer(m_serverName);
    if (!m_server.listen(m_serverName)) {
        *error = m_server.errorString();
        return Listen::Failed;
    }
    m_trace.event(QStringLiteral("listening at %1").arg(m_server.fullServerName()));
    return Listen::Listening;
}

void Channel::stopListening()
{
    if (m_server.isListening()) {
        // Closing removes the file by its path: under the lock, or a successor's file could go with it.
        const SocketClaim claim(m_serverName);
        m_server.close();
        m_trace.event(QStringLiteral("stopped listening"));
    }
}

void Channel::drop()
{
    if (m_client != nullptr) {
        m_trace.event(QStringLiteral("dropped the client"));
        releaseClient();
        emit clientGone();
    }
}

bool Channel::write(const QByteArray &bytes)
{
    if (m_client == nullptr || !m_client->isOpen()) {
        m_trace.event(QStringLiteral("nobody to tell: ") + Trace::printable(bytes));
        return false;
    }
    m_output.append(bytes);
    pump();
    return true;
}

bool Channel::isAllWritten() const
{
    return m_client == nullptr || (m_output.isEmpty() && m_client->bytesToWrite() == 0);
}

void Channel::acceptClient()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        if (m_client != nullptr) {
            m_trace.event(QStringLiteral("client replaced"));
            releaseClient();
            emit clientGone();
        }
        m_client = client;
        connect(client, &QLocalSocket::readyRead, this, &Channel::readClient);
        connect(client, &QLocalSocket::disconnected, this, &Channel::endClient);
        m_spareDescriptor = ::fcntl(static_cast<int>(client->socketDescriptor()), F_DUPFD_CLOEXEC, 0);
        m_clientProcess = peerOf(m_spareDescriptor);
        m_trace.event(QStringLiteral("connected"));
        emit clientArrived();
        readClient();
    }
}

void Channel::endClient()
{
    const QByteArray seen = m_client->bytesAvailable() > 0 ? m_client->readAll() : QByteArray();
    take(seen + readUnseen());
    if (m_client == nullptr) {
        return;
    }
    m_trace.event(QStringLiteral("disconnected"));
    releaseClient();
    emit clientGone();
}

void Channel::releaseClient()
{
    if (!m_input.isEmpty()) {
        m_trace.receivedHalf(m_input);
    }
    m_input.clear();
    m_output.clear();
    QLocalSocket *client = std::exchange(m_client, nullptr);
    if (client != nullptr) {
        client->disconnect(this);
        client->abort();
        client->deleteLater();
    }
    if (m_spareDescriptor >= 0) {
        ::close(std::exchange(m_spareDescriptor, -1));
    }
    if (m_pumpTimer.isActive()) {
        m_pumpTimer.start();
    }
}

void Channel::readClient()
{
    if (m_client != nullptr) {
        take(m_client->readAll());
    }
}

QByteArray Channel::readUnseen() const
{
    QByteArray unseen;
    char bytes[4096];
    for (;;) {
        const ssize_t count = ::recv(m_spareDescriptor, bytes, sizeof bytes, MSG_DONTWAIT);
        if (count <= 0) {
            return unseen;
        }
        unseen.append(bytes, static_cast<int>(count));
    }
}

void Channel::take(const QByteArray &bytes)
{
    int searchFrom = m_input.size();
    if (!bytes.isEmpty()) {
        emit bytesReceived(bytes);
    }
    m_input += bytes;
    int begin = 0;
    for (int end = m_input.indexOf('\n', searchFrom); end >= 0; end = m_input.indexOf('\n', begin)) {
        m_lines.append(m_input.mid(begin, end - begin));
        begin = end + 1;
    }
    m_input.remove(0, begin);
    if (m_input.size() > cInputLimit) {
        m_trace.complaint(QStringLiteral("%1 bytes without a line feed were dropped").arg(m_input.size()));
        m_input.clear();
    }
    if (m_handlingLines) {
        return;
    }
    const QScopedValueRollback<bool> handling(m_handlingLines, true);
    while (!m_lines.isEmpty()) {
        const QByteArray line = m_lines.takeFirst();
        m_trace.received(line);
        emit lineReceived(line);
    }
}

void Channel::pump()
{
    while (!m_output.isEmpty() && isLastWriteTaken()) {
        const QByteArray bytes = m_output.takeFirst();
        m_trace.sent(bytes);
        m_client->write(bytes);
        m_client->flush();
    }
    if (!isAllWritten()) {
        m_pumpTimer.start();
    }
}

void Channel::pumpLater()
{
    if (m_client != nullptr) {
        pump();
    }
    if (isAllWritten()) {
        emit allWritten();
    }
}

bool Channel::isLastWriteTaken() const
{
    if (m_client->bytesToWrite() > 0) {
        return false;
    }
    int unread = 0;
    return ::ioctl(static_cast<int>(m_client->socketDescriptor()), SIOCOUTQ, &unread) != 0 || unread == 0;
}
