#include "history/CallHistory.h"

#include "store/DBConfInfo.h"

#include <algorithm>
#include <iterator>

namespace {

bool isOlder(const CallEntry &one, const CallEntry &other)
{
    return one.begun < other.begun || (!(other.begun < one.begun) && one.id < other.id);
}

} // namespace

QStringList CallHistory::others(QStringList members) const
{
    members.removeAll(m_strOwner);
    return members;
}

CallEntry CallHistory::entryOf(const ConfInfoData &record) const
{
    CallEntry entry;
    entry.conference = true;
    entry.confId = record.m_strConfID;
    entry.uid = record.m_strCreatUserID;
    entry.caller = record.m_strCreatUserID == m_strOwner;
    entry.begun = QDateTime::fromString(record.m_strCreatTime, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    entry.seconds = record.m_strCallTime.toLongLong();
    entry.members = others(record.m_listMember);
    entry.connected = record.m_bIsConnect;
    entry.outcome = record.m_bIsConnect ? int(resultHungUp) : int(outcomeNoAnswer);
    return entry;
}

bool CallHistory::open(const QString &strFolder, const QString &strOwner)
{
    m_strOwner = strOwner;
    const bool ok = m_file.open(strFolder);
    m_entries = m_file.load();
    m_conferences = m_file.knownConferences();
    m_removed.clear();
    emit reset();
    emit reported();
    return ok;
}

int CallHistory::placeOf(qint64 id) const
{
    // Recent calls are asked for most, so the search begins at the end.
    const auto found =
        std::find_if(m_entries.rbegin(), m_entries.rend(), [id](const CallEntry &entry) { return entry.id == id; });
    return int(std::distance(found, m_entries.rend())) - 1;
}

const CallEntry *CallHistory::find(qint64 id) const
{
    const int place = placeOf(id);
    return place < 0 ? nullptr : &m_entries[size_t(place)];
}

/// Writes to the file, and says so when that has something to report. Returns whether it is written.
bool CallHistory::write(const std::function<bool()> &deed)
{
    const int before = reports().size();
    const bool ok = deed();
    if (reports().size() != before) {
        emit reported();
    }
    return ok;
}

/// Writes them into the file and gives each its id.
void CallHistory::keep(std::vector<CallEntry> &entries)
{
    if (!write([&] { return m_file.add(entries); })) {
        for (CallEntry &entry : entries) {
            entry.id = entry.id == 0 ? --m_iUnkept : entry.id;
        }
    }
}

qint64 CallHistory::add(CallEntry entry)
{
    std::vector<CallEntry> one{std::move(entry)};
    keep(one);
    m_entries.push_back(std::move(one.front()));
    emit added();
    return m_entries.back().id;
}

void CallHistory::change(const CallEntry &entry)
{
    const int place = placeOf(entry.id);
    if (place < 0) {
        return;
    }
    m_entries[size_t(place)] = entry;
    write([&] { return m_file.change(entry); });
    if (!entry.confId.isEmpty()) {
        m_conferences.insert(entry.confId);
    }
    emit changed(place);
}

QList<ConfInfoData> CallHistory::unknown(const QList<ConfInfoData> &records) const
{
    QList<ConfInfoData> found;
    std::copy_if(records.begin(), records.end(), std::back_inserter(found), [this](const ConfInfoData &record) {
        return !record.m_strConfID.isEmpty() && !m_conferences.contains(record.m_strConfID);
    });
    return found;
}

void CallHistory::adopt(const QList<ConfInfoData> &records)
{
    const QList<ConfInfoData> fresh = unknown(records);
    std::vector<CallEntry> entries;
    for (const ConfInfoData &record : fresh) {
        entries.push_back(entryOf(record));
        m_conferences.insert(record.m_strConfID);
    }
    if (!entries.empty()) {
        put(std::move(entries));
    }
}

/// Adds entries of any time.
void CallHistory::put(std::vector<CallEntry> entries)
{
    keep(entries);
    std::move(entries.begin(), entries.end(), std::back_inserter(m_entries));
    std::sort(m_entries.begin(), m_entries.end(), isOlder);
    emit reset();
}

int CallHistory::remove(const QSet<qint64> &ids)
{
    const auto goes = [&](const CallEntry &entry) { return ids.contains(entry.id) && !entry.isRunning(); };
    const auto first =
        std::stable_partition(m_entries.begin(), m_entries.end(), [&](const CallEntry &entry) { return !goes(entry); });
    if (first == m_entries.end()) {
        return 0;
    }
    m_removed.emplace_back(std::make_move_iterator(first), std::make_move_iterator(m_entries.end()));
    m_entries.erase(first, m_entries.end());
    QSet<qint64> gone;
    for (const CallEntry &entry : m_removed.back()) {
        gone.insert(entry.id);
    }
    write([&] { return m_file.remove(gone); });
    emit reset();
    return gone.size();
}

void CallHistory::restore()
{
    if (!m_removed.empty()) {
        std::vector<CallEntry> back = std::move(m_removed.back());
        m_removed.pop_back();
        put(std::move(back));
    }
}

void CallHistory::setAllSeen()
{
    bool any = false;
    for (CallEntry &entry : m_entries) {
        any = any || !entry.seen;
        entry.seen = true;
    }
    // What is brought back later has been seen as well.
    for (std::vector<CallEntry> &entries : m_removed) {
        for (CallEntry &entry : entries) {
            entry.seen = true;
        }
    }
    if (any) {
        write([this] { return m_file.setAllSeen(); });
        emit allSeen();
    }
}

std::vector<CallEntry> CallHistory::unseen() const
{
    std::vector<CallEntry> found;
    std::copy_if(m_entries.rbegin(), m_entries.rend(), std::back_inserter(found),
                 [](const CallEntry &entry) { return !entry.seen && !entry.isRunning(); });
    return found;
}
