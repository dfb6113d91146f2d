#pragma once

#include "client/FileReports.h"

#include <QString>
#include <QStringList>

/// The signed-in user's local store as this client keeps it, from login to quit. The store's own class gives verdicts
/// only; this one has the rule for them: a damaged file is moved aside and never deleted, one that another program
/// holds is left alone, the file of an older client is left as it is, and each of these is told. GUI thread. The shared
/// context must be set before open() and outlive this object; it keeps the connection that plug-ins use.
class HostStore
{
public:
    /// Nothing is opened yet.
    HostStore() = default;

    /// Closes the store.
    ~HostStore();
    HostStore(const HostStore &) = delete;
    HostStore &operator=(const HostStore &) = delete;

    /// Checks and opens the store of the user `strUid` in the folder `strBase`/`strUid`, which is made when it is
    /// missing; an open one is closed first. Returns whether the store is open. Waits some two seconds for a file that
    /// another program holds, and may be called again later.
    bool open(const QString &strUid, const QString &strBase);

    /// Closes the store and takes the connection from the shared context. Without an open store nothing happens.
    void close();

    /// Whether the last open() succeeded and close() has not been called since.
    bool isOpen() const { return m_bOpen; }

    /// Whether another program kept the last open() from the file, or from writing to it: the next one may go better.
    bool isHeldByAnother() const { return m_bHeld; }

    /// What the person has to know of the last open(), a sentence or two each, in the language that the client has now;
    /// empty when all was well. They stand in the log as well.
    QStringList reports() const { return m_reports.texts(); }

private:
    bool putAside(const QString &strFolder, const QString &strFile);
    void reportWriting(const QString &strFile);
    void reportHeld(const QString &strFile);
    void report(const char *words, const QString &strFile);

    bool m_bOpen = false;
    bool m_bHeld = false;
    FileReports m_reports;
};
