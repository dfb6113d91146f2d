#include "calls/exchange/ExchangeKeeper.h"

#include "calls/exchange/ExchangeFolder.h"

#include "wire/SocketProbe.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QThread>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int cLockWaitMs = 10000;
constexpr int cLockPauseMs = 10;
// Who starts a keeper joins it at once.
constexpr int cLonelyMs = 10000;
constexpr qint64 cLogBytes = 262144;

quint64 numberOf(const QString &file)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : 0;
}

} // namespace

ExchangeKeeper::ExchangeKeeper(QString folder, QString program, QObject *parent)
    : QObject(parent), m_folder(std::move(folder)), m_program(std::move(program)),
      m_log(ExchangeFolder::path(m_folder, ExchangeFolder::cLog), cLogBytes)
{
    connect(&m_server, &QLocalServer::newConnection, this, &ExchangeKeeper::acceptClient);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!isKept()) {
            end();
        }
    });
    for (QTimer *timer : {&m_lonely, &m_knockTimer, &m_startTimer, &m_patience}) {
        timer->setSingleShot(true);
    }
    m_lonely.setInterval(cLonelyMs);
    connect(&m_lonely, &QTimer::timeout, this, &ExchangeKeeper::end);
    connect(&m_knockTimer, &QTimer::timeout, this, &ExchangeKeeper::knock);
    connect(&m_startTimer, &QTimer::timeout, this, &ExchangeKeeper::start);
    connect(&m_patience, &QTimer::timeout, this, [this] { m_child->endGroup(); });
}

ExchangeKeeper::~ExchangeKeeper()
{
    m_server.disconnect(this);
    m_child.reset();
    if (m_lock >= 0) {
        ::close(m_lock);
    }
}

ExchangeKeeper::Begin ExchangeKeeper::begin(QString *error)
{
    const bool locked = takeLock(error);
    if (!locked &&
        Wire::isAnswered(QFile::encodeName(ExchangeFolder::path(m_folder, ExchangeFolder::cKeeper)).toStdString())) {
        return Begin::AnotherLives;
    }
    if (!locked || !openSocket(error)) {
        // Who started it does not read what it says. The log is the holder's of the lock, where there is one.
        if (locked || m_lock < 0) {
            m_log.write(error->toUtf8() + '\n');
        }
        return Begin::Failed;
    }
    m_watcher.addPath(m_folder);
    m_lonely.start();
    start();
    return Begin::Begun;
}

bool ExchangeKeeper::openSocket(QString *error)
{
    ExchangeChild::endRemains(ExchangeFolder::path(m_folder, ExchangeFolder::cConfiguration));
    const QString socketFile = ExchangeFolder::path(m_folder, ExchangeFolder::cKeeper);
    // The server removes the name that it was made with, which by then could be another keeper's.
    const QString madeAs = socketFile + QLatin1Char('.') + QString::number(::getpid());
    QFile::remove(madeAs);
    QFile::remove(socketFile);
    if (!m_server.listen(madeAs)) {
        *error = QStringLiteral("%1: %2").arg(madeAs, m_server.errorString());
        return false;
    }
    if (::rename(QFile::encodeName(madeAs).constData(), QFile::encodeName(socketFile).constData()) != 0) {
        *error = QStringLiteral("%1: %2").arg(socketFile, qt_error_string(errno));
        return false;
    }
    m_socketFile = numberOf(socketFile);
    return true;
}

/// Waits for a keeper that is about to end. False when one lives, or there is no lock.
bool ExchangeKeeper::takeLock(QString *error)
{
    const QString path = ExchangeFolder::path(m_folder, ExchangeFolder::cLock);
    m_lock = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    *error = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
    const QDeadlineTimer deadline(cLockWaitMs);
    const std::string socketFile =
        QFile::encodeName(ExchangeFolder::path(m_folder, ExchangeFolder::cKeeper)).toStdString();
    while (m_lock >= 0 && ::flock(m_lock, LOCK_EX | LOCK_NB) != 0) {
        const bool held = errno == EWOULDBLOCK || errno == EINTR;
        *error = QStringLiteral("%1: %2").arg(path, held ? QStringLiteral("held by a process that answers nobody")
                                                         : qt_error_string(errno));
        if (!held || deadline.hasExpired() || Wire::isAnswered(socketFile)) {
            return false;
        }
        QThread::msleep(cLockPauseMs);
    }
    return m_lock >= 0;
}

/// Whether who looks for the exchange still finds this one.
bool ExchangeKeeper::isKept() const
{
    return numberOf(ExchangeFolder::path(m_folder, ExchangeFolder::cKeeper)) == m_socketFile;
}

void ExchangeKeeper::end()
{
    // Nobody joins any more, so the next one starts a keeper, which waits for this one's lock.
    const bool own = isKept();
    m_server.disconnect(this);
    m_server.close();
    if (own) {
        QFile::remove(ExchangeFolder::path(m_folder, ExchangeFolder::cKeeper));
    }
    for (QTimer *timer : {&m_lonely, &m_knockTimer, &m_startTimer, &m_patience}) {
        timer->stop();
    }
    if (m_child) {
        m_child->disconnect(this);
        m_child.reset();
    }
    QFile::remove(ExchangeFolder::path(m_folder, ExchangeFolder::cConfiguration));
    emit over();
}

void ExchangeKeeper::acceptClient()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        m_lonely.stop();
        m_clients.insert(client);
        client->setParent(this);
        // Clients say nothing.
        connect(client, &QLocalSocket::readyRead, client, [client] { client->readAll(); });
        connect(client, &QLocalSocket::disconnected, this, [this, client] {
            m_clients.remove(client);
            client->deleteLater();
            if (m_clients.isEmpty()) {
                end();
            }
        });
        // What somebody has damaged meanwhile is as it was before the newcomer looks.
        if (m_readySince.isValid()) {
            mendFiles();
        }
        tell(client);
    }
}

void ExchangeKeeper::tell(QLocalSocket *client) const
{
    if (!m_state.isEmpty()) {
        client->write(m_state);
        client->flush();
    }
}

void ExchangeKeeper::tellAll(const QByteArray &state)
{
    if (std::exchange(m_state, state) != state) {
        for (QLocalSocket *client : std::as_const(m_clients)) {
            tell(client);
        }
    }
}
