#pragma once

// How often each uid stands in a list of uids. Kept beside such a list by its owner, so that asking whether a member is
// there costs the same however many there are. A value; any thread.

#include <QHash>
#include <QList>
#include <QString>

class UidCounts
{
public:
    UidCounts() = default;
    /// Counts what `uids` holds.
    explicit UidCounts(const QList<QString> &uids)
    {
        m_counts.reserve(uids.size());
        for (const QString &uid : uids)
            add(uid);
    }

    /// Whether `uid` is there at least once.
    bool contains(const QString &uid) const { return m_counts.contains(uid); }
    /// One more `uid`.
    void add(const QString &uid) { ++m_counts[uid]; }
    /// One `uid` less; nothing when it is not there.
    void remove(const QString &uid)
    {
        const auto count = m_counts.find(uid);
        if (count != m_counts.end() && --*count == 0)
            m_counts.erase(count);
    }
    /// Nothing is there any more.
    void clear() { m_counts.clear(); }

private:
    QHash<QString, int> m_counts;
};
