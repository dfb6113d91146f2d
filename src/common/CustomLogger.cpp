#include "common/CustomLogger.h"

#include "common/LogUtils.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMutexLocker>
#include <QTextStream>

CustomLogger::CustomLogger(const QString &strFileName) : m_strFileName(strFileName)
{
    qDebug().noquote().nospace() << QStringLiteral(
        "日志对象构造----------------------------CustomLogger::CustomLogger().");
    reopen();
}

CustomLogger::~CustomLogger()
{
    const QMutexLocker lock(&m_mutex);
    if (m_pStream) {
        // Deliberately not flushed: a host that wants the last lines closes the log first. With this status, the stream
        // does not write its buffer when the file or the stream is destroyed.
        m_pStream->setStatus(QTextStream::WriteFailed);
    }
    m_pStream.reset();
    m_pFile.reset();
    qDebug().noquote().nospace() << QStringLiteral("日志对象析构---------------------CustomLogger::~CustomLogger().");
}

void CustomLogger::setMaxFileSize(long long iKilobytes)
{
    const QMutexLocker lock(&m_mutex);
    m_iMaxFileSize = static_cast<qint64>(static_cast<quint64>(iKilobytes) << 10);
}

void CustomLogger::setMaxBackupIndex(unsigned int iMaxBackupIndex)
{
    const QMutexLocker lock(&m_mutex);
    m_iMaxBackupIndex = iMaxBackupIndex;
}

void CustomLogger::printLog(CustomLog::LogLevel level, const QString &strLocation, const QString &strMessage)
{
    if (!m_bOpened || !isLevelEnabled(level)) {
        return;
    }
    const QString strLevel = getLevelString(level);
    bool bFull = false;
    {
        const QMutexLocker lock(&m_mutex);
        if (m_pFile && m_pStream) {
            *m_pStream << LogUtils::getFormattedLog(currentTime(), strLevel, strLocation, strMessage);
            // A full disk loses lines; without this the stream would keep all further ones in memory.
            m_pStream->resetStatus();
            bFull = fileSize() >= m_iMaxFileSize;
        }
    }
    if (bFull) {
        rollOver();
    }
}

/// The local time in ASCII digits, which the texts of QDateTime do not have under every system locale. Within one
/// second only the milliseconds are made anew, because Qt looks for the time zone in the file system.
const QString &CustomLogger::currentTime()
{
    const qint64 iNow = QDateTime::currentMSecsSinceEpoch();
    if (iNow / 1000 != m_iSecond) {
        m_iSecond = iNow / 1000;
        m_strTime =
            QLocale::c().toString(QDateTime::fromMSecsSinceEpoch(iNow), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    }
    auto iRest = static_cast<ushort>(iNow % 1000);
    for (int i = 1; i <= 3; ++i, iRest /= 10) {
        m_strTime[m_strTime.size() - i] = QChar(static_cast<ushort>(u'0' + iRest % 10));
    }
    return m_strTime;
}

/// The size on the disk. The file is asked only when its position has moved, which happens when the stream hands over
/// its buffer. While a full disk does not take the buffer, the file answers 0; it is then asked at each line, which
/// offers the buffer again.
qint64 CustomLogger::fileSize()
{
    const qint64 iPosition = m_pFile->pos();
    if (iPosition != m_iSizedPosition || m_iFileSize == 0) {
        m_iSizedPosition = iPosition;
        m_iFileSize = m_pFile->size();
    }
    return m_iFileSize;
}

bool CustomLogger::isLevelEnabled(CustomLog::LogLevel level) const
{
    return m_level <= level;
}

QString CustomLogger::getLevelString(CustomLog::LogLevel level)
{
    switch (level) {
    case CustomLog::Trace:
        return strLOG_TRACE;
    case CustomLog::Debug:
        return strLOG_DEBUG;
    case CustomLog::Info:
        return strLOG_INFO;
    case CustomLog::Warn:
        return strLOG_WARN;
    case CustomLog::Error:
        return strLOG_ERROR;
    case CustomLog::Fatal:
        return strLOG_FATAL;
    default:
        return {};
    }
}

void CustomLogger::rollOver()
{
    close();
    shiftBackups();
    clear();
}

/// A rename or removal that fails is ignored: the next open goes on with whatever stands on the disk.
void CustomLogger::shiftBackups()
{
    const QMutexLocker lock(&m_mutex);
    if (m_iMaxBackupIndex == 0) {
        return;
    }
    const QString strPrefix = m_strFileName + QLatin1Char('.');
    QString strTarget = strPrefix + QString::number(m_iMaxBackupIndex);
    QFile::remove(strTarget);
    for (quint32 i = m_iMaxBackupIndex - 1; i >= 1; --i) {
        const QString strSource = strPrefix + QString::number(i);
        if (QFile::exists(strSource)) {
            QFile::rename(strSource, strTarget);
        }
        strTarget = strSource;
    }
    QFile::rename(m_strFileName, strTarget);
}

void CustomLogger::close()
{
    const QMutexLocker lock(&m_mutex);
    if (!m_bOpened) {
        return;
    }
    m_bOpened = false;
    m_pStream->flush();
    m_pFile->close();
    m_pStream.reset();
    m_pFile.reset();
}

void CustomLogger::reopen()
{
    const QMutexLocker lock(&m_mutex);
    m_pStream.reset();
    m_pFile = std::make_unique<QFile>(m_strFileName);
    m_bOpened = m_pFile->open(QIODevice::ReadWrite | QIODevice::Text);
    if (!m_bOpened) {
        return;
    }
    m_pStream = std::make_unique<QTextStream>();
    m_pStream->setDevice(m_pFile.get());
    m_pStream->setCodec("UTF-8");
    // Deliberate, the form of the file that its readers know: new text starts on the last byte of the old, so that the
    // first new line stands directly behind the last one of an earlier run. In an empty file the seek fails and the
    // text begins at the start.
    m_pStream->seek(m_pFile->size() - 1);
    m_iSizedPosition = -1;
}

void CustomLogger::clear()
{
    close();
    QFile::remove(m_strFileName);
    reopen();
}

void CustomLogger::flush()
{
    const QMutexLocker lock(&m_mutex);
    if (m_bOpened) {
        m_pStream->flush();
    }
}

QString CustomLogger::getLogFileName() const
{
    return QFileInfo(m_strFileName).fileName();
}
