#pragma once

#include "common/CLogThread.h"
#include "common/CServerSettings.h"
#include "common/CustomLogger.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SysUIData.h"

#include <QList>
#include <QNetworkAccessManager>
#include <QString>

#include <memory>

class ContactBook;

/// The shared client context as a real client fills it: log file and its thread, login record, settings, skins,
/// network, friends and presence. It owns all that the `CommonData` points to; the plug-in only borrows. GUI thread.
class HostContext
{
public:
    /// Nothing is opened yet.
    HostContext() = default;

    /// Lets the log thread write what is queued, for two seconds at most, stops it and closes the log file.
    ~HostContext();
    HostContext(const HostContext &) = delete;
    HostContext &operator=(const HostContext &) = delete;

    /// Signs the user in: reads the settings, opens the log file in the user's folder, starts the log thread and fills
    /// the context from the book.
    void signIn(const QString &strUid, const QString &strDomain, const ContactBook &book);

    /// The records of the contacts are those of the book now, where they have changed.
    void setContacts(const ContactBook &book);

    /// The context to hand to plug-ins; owned here.
    CommonData *data() { return &m_data; }

    /// Path of the log file; empty before signIn.
    QString logFile() const { return m_strLogFile; }

private:
    bool isInLog(const QString &strWords) const;
    void fillLogin(const QString &strUid, const QString &strDomain);
    void fillSkins();
    void startLog(const QString &strFolder);
    void fillContacts(const ContactBook &book);

    QNetworkAccessManager m_network;
    LoginData m_login;
    CServerSettings m_server;
    QList<SysUIData> m_skins;
    SysUIData m_skin;
    QString m_strLogFile;
    std::unique_ptr<CustomLogger> m_pLogger;
    CLogThread m_logThread;
    CommonData m_data;
};
