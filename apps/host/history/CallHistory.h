#pragma once

#include "history/CallEntry.h"
#include "history/CallFile.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <vector>

struct ConfInfoData;

/// The signed-in user's calls, single ones and conferences, as they stand in the user's file; without a file, those of
/// this session. Made for tens of thousands. GUI thread.
class CallHistory : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Reads the file, in the folder, of the user `strOwner` (an id); see CallFile::open. What it cannot keep is kept
    /// until the end of the session.
    bool open(const QString &strFolder, const QString &strOwner);

    /// Closes the file. The entries stay.
    void close() { m_file.close(); }

    /// What the person has to know of the file; see CallFile::reports.
    QStringList reports() const { return m_file.reports(); }

    /// The user id given to open(); empty before.
    QString owner() const { return m_strOwner; }

    /// A conference's members without the user.
    QStringList others(QStringList members) const;

    /// All calls, oldest first.
    const std::vector<CallEntry> &entries() const { return m_entries; }

    /// The entry with that id; null when there is none. Valid until the next change.
    const CallEntry *find(qint64 id) const;

    /// Where the entry stands in entries(); -1 when there is none.
    int placeOf(qint64 id) const;

    /// Adds the call as the newest and returns its id.
    qint64 add(CallEntry entry);

    /// Writes the entry over the one with its id, whose begin must stay. Nothing happens when there is none.
    void change(const CallEntry &entry);

    /// Adds those conferences of the store that have never been here; with them comes what was held before there was a
    /// history. They count as seen.
    void adopt(const QList<ConfInfoData> &records);

    /// Those of the store's records that have never been here, in their order.
    QList<ConfInfoData> unknown(const QList<ConfInfoData> &records) const;

    /// Deletes the entries with these ids, but for a call that is not over. Returns how many.
    int remove(const QSet<qint64> &ids);

    /// Brings back what the last remove() took; called again, what the one before took, until all of this session is
    /// back.
    void restore();

    /// How many entries restore() would bring back; 0 when nothing is deleted.
    int restorable() const { return m_removed.empty() ? 0 : int(m_removed.back().size()); }

    /// Nothing is left that the user has still to be told of.
    void setAllSeen();

    /// The entries that the user has still to be told of, newest first.
    std::vector<CallEntry> unseen() const;

signals:
    /// An entry was put behind the others.
    void added();
    /// The entry at that place of entries() has changed.
    void changed(int iPlace);
    /// Every entry counts as seen from now on.
    void allSeen();
    /// Entries came or went elsewhere.
    void reset();
    /// What the person has to know of the file has changed.
    void reported();

private:
    CallEntry entryOf(const ConfInfoData &record) const;
    void put(std::vector<CallEntry> entries);
    bool write(const std::function<bool()> &deed);
    void keep(std::vector<CallEntry> &entries);

    QString m_strOwner;
    CallFile m_file;
    std::vector<CallEntry> m_entries;
    std::vector<std::vector<CallEntry>> m_removed; // what each remove() took, the last one at the end
    QSet<QString> m_conferences;
    qint64 m_iUnkept = 0; // ids of entries that are not in the file count down from here
};
