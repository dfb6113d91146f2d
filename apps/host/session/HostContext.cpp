#include "session/HostContext.h"

#include "client/ContactBook.h"
#include "client/HostSettings.h"
#include "client/HostSkins.h"

#include "model/SystemSetData.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

namespace {

constexpr int cDrainMs = 2000;

/// Makes the user's folder for its owner alone, whatever an earlier run or another client has left.
void closeFolder(const QString &strFolder)
{
    QDir().mkpath(strFolder);
    QFile::setPermissions(strFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

HostContext::~HostContext()
{
    if (!m_logThread.isRunning()) {
        return;
    }
    const QString lastWords = QStringLiteral("client closes %1").arg(QDateTime::currentMSecsSinceEpoch());
    m_logThread.printLog(CustomLog::Info, QStringLiteral("HostContext"), lastWords);
    // What is still queued when the thread is stopped stays unwritten, so the queue is given time to run empty.
    QElapsedTimer clock;
    clock.start();
    while (!isInLog(lastWords) && !clock.hasExpired(cDrainMs)) {
        QThread::msleep(1);
    }
    m_logThread.stop();
    // A writer that waits on an empty queue leaves only after one more record.
    m_logThread.printLog(CustomLog::Info, QStringLiteral("HostContext"), QStringLiteral("log closed"));
    m_logThread.wait();
    m_pLogger->close();
}

bool HostContext::isInLog(const QString &strWords) const
{
    constexpr qint64 tail = 1024;
    m_pLogger->flush();
    QFile file(m_strLogFile);
    return file.open(QIODevice::ReadOnly) && file.seek(qMax<qint64>(0, file.size() - tail)) &&
           file.readAll().contains(strWords.toUtf8());
}

void HostContext::signIn(const QString &strUid, const QString &strDomain, const ContactBook &book)
{
    SystemSetData *settings = SystemSetData::instance();
    settings->initCommonData();
    settings->initData(strUid);
    closeFolder(settings->m_strUserFolder);
    m_data.setSystemSetData(settings);
    m_data.setNetWorkManager(&m_network);
    m_data.setServerSettings(&m_server);
    fillLogin(strUid, strDomain);
    fillSkins();
    startLog(settings->m_strUserFolder + QStringLiteral("/log"));
    fillContacts(book);
}

void HostContext::fillLogin(const QString &strUid, const QString &strDomain)
{
    m_login.m_strUid = strUid;
    m_login.m_strDomain = strDomain;
    m_login.m_strCompanyCode = QStringLiteral("kelvar");
    m_login.m_strCompanyName = QStringLiteral("Kelvar");
    m_login.m_strRegValue = QStringLiteral("demo-registration");
    m_data.setLoginData(&m_login);
}

void HostContext::fillSkins()
{
    m_skins = HostSkins::makeAll();
    m_skin = m_skins.at(HostSkins::names().indexOf(HostSettings::skin()));
    m_data.setListSysUIData(&m_skins);
    m_data.setSkinData(&m_skin);
}

void HostContext::startLog(const QString &strFolder)
{
    QDir().mkpath(strFolder);
    m_strLogFile = strFolder + QStringLiteral("/kelvarim-demo.log");
    m_pLogger = std::make_unique<CustomLogger>(m_strLogFile);
    m_logThread.setCustomLogger(m_pLogger.get());
    m_data.setCustomLogger(m_pLogger.get());
    m_data.setCustomLogThread(&m_logThread);
    m_logThread.start();
}

void HostContext::setContacts(const ContactBook &book)
{
    m_data.setFriendDataMap(book.friendMap());
}

void HostContext::fillContacts(const ContactBook &book)
{
    QMap<QString, PresenceData> presence;
    for (const ContactBook::Entry &entry : book.entries()) {
        PresenceData data;
        data.m_strJid = book.jidOf(entry.uid);
        data.m_iStateA = presenceState(entry.presence);
        presence.insert(data.m_strJid, data);
    }
    setContacts(book);
    m_data.setPresenceDataMap(presence);
}
