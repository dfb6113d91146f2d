// The channel to the call process: starting it, the socket with its back-off, one line of JSON at a time in both
// directions.

#include "common/CLogManger.h"
#include "engine/LineCutter.h"
#include "engine/SdkLine.h"
#include "engine/VoipManage.h"

#include <QCoreApplication>
#include <QDebug>
#include <QProcess>

namespace {

constexpr int cConnectWaitMs = 1000;
constexpr int cQuitWriteWaitMs = 1000;
constexpr qint64 cBackOffLimitSeconds = 60;

QString serverName()
{
    return QString::fromLatin1(Wire::cServerName);
}

QString programPath()
{
    return QCoreApplication::applicationDirPath() + QLatin1String(Wire::cProgram);
}

} // namespace

void CVoipManage::creatVoipSDK()
{
    const QString program = programPath();
    CLogManger::instance()->printLog(CustomLog::Info, LOG_LOCATION, program);
    m_pVoipProcess = new QProcess;
    const bool bResult = QProcess::startDetached(program, QStringList());
    qDebug().noquote().nospace() << "voip startDetached,bResult: " << (bResult ? "true" : "false");
}

void CVoipManage::creatVoipSDKSocket()
{
    if (!m_pVoipSocket) {
        m_pVoipSocket = new QLocalSocket(this);
        connect(m_pVoipSocket, SIGNAL(readyRead()), this, SLOT(slot_VoipSDKDataRecevie()));
        connect(m_pVoipSocket, SIGNAL(error(QLocalSocket::LocalSocketError)), this,
                SLOT(slot_DisplayError(QLocalSocket::LocalSocketError)));
        connect(m_pVoipSocket, SIGNAL(disconnected()), this, SLOT(slot_VoipSDKDisConnected()));
    }
    LOG_DEBUG << "creat sdk socket connect"
              << "\n";
    m_pVoipSocket->connectToServer(serverName(), QIODevice::ReadWrite);
    if (m_pVoipSocket->waitForConnected(cConnectWaitMs)) {
        slot_VoipSDKConnected();
    } else {
        slot_VoipSDKDisConnected();
    }
}

void CVoipManage::slot_VoipSDKConnected()
{
    LOG_DEBUG << "sdk socket connected!"
              << "\n";
    m_bSocketConnected = true;
    m_nReconnectCount = 0;
    if (!m_strUserId.isEmpty() && !m_strRegValue.isEmpty()) {
        regeditVoipUser(m_strUserId, m_strNickName, m_strRegValue);
    }
}

void CVoipManage::slot_VoipSDKDisConnected()
{
    LOG_DEBUG << "sdk socket disconnect error" << (m_pVoipSocket ? m_pVoipSocket->errorString() : QString()) << "\n";
    m_bSocketConnected = false;
    reconnectVoipSDK();
}

void CVoipManage::reconnectVoipSDK()
{
    qint64 seconds = 1;
    if (m_nReconnectCount == 0) {
        m_nReconnectCount = 1;
    } else {
        ++m_nReconnectCount;
        seconds = m_nReconnectCount * m_nReconnectCount;
        if (seconds > cBackOffLimitSeconds) {
            m_nReconnectCount = 0;
            seconds = cBackOffLimitSeconds;
        }
    }
    m_reconnectTimer.start(static_cast<int>(seconds * 1000));
}

void CVoipManage::slot_ReConnectVoipSDK()
{
    m_reconnectTimer.stop();
    creatVoipSDKSocket();
}

void CVoipManage::slot_DisplayError(QLocalSocket::LocalSocketError socketError)
{
    const int number = static_cast<int>(socketError);
    qDebug().noquote().nospace() << number;
    LOG_DEBUG << "sdk socket error = " << number << "\n";
}

void CVoipManage::sendVoipMessage(QString strMessage)
{
    LOG_DEBUG << "sendVoipMsg = " << strMessage << "\n";
    // Qt warns about a write to a socket that is not open.
    if (m_pVoipSocket && m_pVoipSocket->isOpen()) {
        m_pVoipSocket->write(strMessage.toUtf8());
    }
}

void CVoipManage::sendIfConnected(const QString &line)
{
    if (m_bSocketConnected) {
        sendVoipMessage(line);
    }
}

void CVoipManage::slot_VoipSDKDataRecevie()
{
    if (!m_pVoipSocket || m_pVoipSocket->bytesAvailable() == 0) {
        return;
    }
    const QByteArray bytes = m_pVoipSocket->readAll();
    qDebug().noquote().nospace() << "Voip返回数据" << bytes;

    // Deliberate: a NUL byte hides what is behind it, and nothing is kept for the next read.
    const auto length = qstrnlen(bytes.constData(), static_cast<uint>(bytes.size()));
    const QStringList lines = cutLines(QString::fromUtf8(bytes.constData(), static_cast<int>(length)));
    for (const QString &line : lines) {
        recevieVoipMessage(line);
    }

    // What came while a handler ran an event loop of its own gave no signal.
    if (m_pVoipSocket && m_pVoipSocket->bytesAvailable() > 0) {
        QMetaObject::invokeMethod(this, "slot_VoipSDKDataRecevie", Qt::QueuedConnection);
    }
}

void CVoipManage::recevieVoipMessage(QString strLine)
{
    const SdkLine::Notification line = SdkLine::read(strLine);
    if (line.code >= 0) {
        callbackMessage(line.code, line.content);
    }
}

void CVoipManage::disconnectVoipSDKSocket()
{
    LOG_DEBUG << "disconnenct voipsdk socket!"
              << "\n";
    if (m_pVoipSocket) {
        // Each step looks at the socket anew, since the one before may have found the far side gone.
        if (m_pVoipSocket->isOpen()) {
            m_pVoipSocket->write(QByteArray(Wire::cQuitLine) + '\n');
        }
        m_pVoipSocket->flush();
        if (m_pVoipSocket->state() == QLocalSocket::ConnectedState) {
            m_pVoipSocket->waitForBytesWritten(cQuitWriteWaitMs);
        }
        // Deliberate order: the socket still reports its end, which arms the back-off timer once more.
        m_pVoipSocket->disconnectFromServer();
        disconnect(m_pVoipSocket, SIGNAL(readyRead()), this, SLOT(slot_VoipSDKDataRecevie()));
        disconnect(m_pVoipSocket, SIGNAL(error(QLocalSocket::LocalSocketError)), this,
                   SLOT(slot_DisplayError(QLocalSocket::LocalSocketError)));
        disconnect(m_pVoipSocket, SIGNAL(disconnected()), this, SLOT(slot_VoipSDKDisConnected()));
        m_pVoipSocket->deleteLater();
        m_pVoipSocket = nullptr;
    }
    m_bSocketConnected = false;
}
