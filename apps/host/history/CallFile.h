#pragma once

#include "client/FileReports.h"
#include "history/CallEntry.h"

#include <QSet>
#include <QSqlDatabase>
#include <QStringList>

#include <functional>
#include <vector>

class QSqlQuery;

/// The file of the signed-in user's calls, "callHistory.db" beside the local store: an SQLite file of this client's
/// own, whose `user_version` says which of its schemas it has. A file of an earlier schema is upgraded in place, a
/// damaged one is moved aside and never deleted, one that another program holds or that a newer client has written is
/// left alone, and each of these is told. Every change is on the disk when its operation returns, so the end of the
/// process takes nothing away. GUI thread.
class CallFile
{
public:
    /// The schema that this client writes.
    static int newestVersion();

    /// Nothing is opened yet.
    CallFile() = default;

    /// Closes the file.
    ~CallFile();
    CallFile(const CallFile &) = delete;
    CallFile &operator=(const CallFile &) = delete;

    /// Opens or makes the file in the folder, which must be there; an open one is closed first. Returns whether it is
    /// open. Waits some two seconds for a file that another program holds.
    bool open(const QString &strFolder);
    void close();
    bool isOpen() const { return m_bOpen; }

    /// What the person has to know of the file, a sentence each, in the language that the client has now; empty when
    /// all is well.
    QStringList reports() const { return m_reports.texts(); }

    /// All calls, oldest first. Those that were running when the client ended have become missed or cut off.
    std::vector<CallEntry> load();

    /// The ids of all conferences that have ever been added.
    QSet<QString> knownConferences();

    // The changes. An id of 0 is replaced by a new one. False, without effect, when the file is not open or cannot be
    // written to; the latter is told once.
    bool add(std::vector<CallEntry> &entries);
    bool change(const CallEntry &entry);
    bool remove(const QSet<qint64> &ids);

    /// Nothing is left that the user has still to be told of.
    bool setAllSeen();

private:
    enum class State
    {
        Sound,
        Damaged,
        Held,
        Newer,
        Unusable
    };

    State tryOpen(const QString &strFile);
    State upgrade();
    State verdict() const;
    bool noted(bool bOk, const QSqlQuery &query);
    bool run(QSqlQuery &query);
    bool run(const QString &strStatement);
    bool noteConference(const QString &strConfId);
    bool inOne(const std::function<bool()> &deed);
    void letGo();
    void reportUnusable(State state, const QString &strFile);
    void report(const char *words, const QString &strFile);

    QSqlDatabase m_db;
    QString m_strFile;
    int m_iError = 0; // SQLite's code of the last statement that failed
    bool m_bOpen = false;
    bool m_bWriteReported = false;
    FileReports m_reports;
};
