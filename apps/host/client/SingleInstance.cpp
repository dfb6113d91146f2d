#include "client/SingleInstance.h"

#include "model/SystemSetData.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QSaveFile>
#include <QThread>

namespace {

constexpr int cPatienceMs = 5000;
constexpr int cPauseMs = 50;
constexpr const char *cCome = "front\n";
constexpr const char *cCame = "here\n";

QString folderOf(const QString &strUid)
{
    SystemSetData settings;
    settings.initCommonData();
    settings.initData(strUid);
    QDir().mkpath(settings.m_strUserFolder);
    return settings.m_strUserFolder;
}

/// Where the first client writes its socket's place.
QString addressFile(const QString &strFolder)
{
    return strFolder + QStringLiteral("/client.address");
}

QString addressIn(const QString &strFolder)
{
    QFile file(addressFile(strFolder));
    return file.open(QIODevice::ReadOnly) ? QFile::decodeName(file.readAll()) : QString();
}

} // namespace

SingleInstance::SingleInstance(const QString &strUid)
    : m_strFolder(folderOf(strUid)), m_lock(m_strFolder + QStringLiteral("/client.lock"))
{
    // However long it runs: only the lock of a process that has gone is stale.
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

SingleInstance::~SingleInstance()
{
    release();
}

void SingleInstance::release()
{
    if (m_server.isListening()) {
        QFile::remove(addressFile(m_strFolder));
        m_server.close();
    }
    m_lock.unlock();
}

SingleInstance::Outcome SingleInstance::claim(bool bAsk)
{
    QElapsedTimer clock;
    clock.start();
    do {
        if (m_lock.tryLock(0)) {
            listen();
            return First;
        }
        if (m_lock.error() != QLockFile::LockFailedError) {
            return First;
        }
        QString host;
        QString program;
        m_lock.getLockInfo(&m_iOther, &host, &program);
        if (bAsk && ask()) {
            return Second;
        }
        // It may be about to listen, or about to end.
        QThread::msleep(cPauseMs);
    } while (bAsk && !clock.hasExpired(cPatienceMs));
    return Silent;
}

void SingleInstance::listen()
{
    // What a client that was killed has left.
    const QString left = addressIn(m_strFolder);
    if (!left.isEmpty()) {
        QLocalServer::removeServer(left);
    }
    const QString place =
        QDir(QDir::tempPath()).filePath(QStringLiteral("client-%1").arg(QCoreApplication::applicationPid()));
    QLocalServer::removeServer(place);
    QSaveFile address(addressFile(m_strFolder));
    if (m_server.listen(place) && address.open(QIODevice::WriteOnly)) {
        address.write(QFile::encodeName(place));
        address.commit();
    }
}

bool SingleInstance::ask() const
{
    const QString place = addressIn(m_strFolder);
    if (place.isEmpty()) {
        return false;
    }
    QLocalSocket socket;
    socket.connectToServer(place);
    if (!socket.waitForConnected(cPatienceMs)) {
        return false;
    }
    socket.write(cCome);
    return socket.waitForReadyRead(cPatienceMs) && socket.readAll() == cCame;
}

void SingleInstance::answer()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (socket->readAll().startsWith(cCome)) {
                emit frontWanted();
                socket->write(cCame);
            }
        });
    }
}
