#pragma once

// The index of a list of user ids: whether one is there costs the same however long the list is. The list stays its
// owner's, who changes it through here; a change made elsewhere is noticed and costs one walk over it. An id may stand
// in it several times. A value, kept beside one list; any thread.

#include <QHash>
#include <QList>
#include <QString>

class UidIndex
{
public:
    /// Whether `uid` stands in `uids`.
    bool contains(const QList<QString> &uids, const QString &uid)
    {
        follow(uids);
        return isNext(uids, uid) || m_counts.contains(uid);
    }

    /// Appends `uid`, whether or not it is there already.
    void append(QList<QString> &uids, const QString &uid)
    {
        follow(uids);
        // A hash that grows moves all its nodes: it does so half as often as it would by itself.
        if (m_counts.size() >= m_counts.capacity()) {
            m_counts.reserve(4 * m_counts.size());
        }
        ++m_counts[uid];
        // Else the change would copy the whole list.
        m_seen.clear();
        uids.append(uid);
        m_seen = uids;
    }

    /// Removes the first `uid`; false when there is none.
    bool removeOne(QList<QString> &uids, const QString &uid)
    {
        follow(uids);
        const auto count = m_counts.find(uid);
        if (count == m_counts.end()) {
            return false;
        }
        if (--*count == 0) {
            m_counts.erase(count);
        }
        // Else the change would copy the whole list.
        m_seen.clear();
        uids.removeOne(uid);
        m_seen = uids;
        return true;
    }

private:
    /// Tries the place behind the last hit, the one after it and the first: ids are mostly asked for in the list's own
    /// order, which spares their look-up.
    bool isNext(const QList<QString> &uids, const QString &uid)
    {
        for (const int place : {m_next, m_next + 1, 0}) {
            if (place < uids.size() && uids.at(place) == uid) {
                m_next = place + 1;
                return true;
            }
        }
        return false;
    }
    void follow(const QList<QString> &uids)
    {
        // A list that has been changed shares its data with what was seen no longer.
        if (m_seen.isSharedWith(uids)) {
            return;
        }
        m_seen = uids;
        m_counts.clear();
        m_counts.reserve(uids.size());
        for (const QString &uid : uids) {
            ++m_counts[uid];
        }
    }

    QList<QString> m_seen; ///< what is counted; cleared before a change, since data that is shared would be copied
    QHash<QString, int> m_counts;
    int m_next = 0; ///< place behind the id that was last found in the list's order
};
