#include "client/ContactBook.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

struct Row
{
    const char *uid;
    const char *nick;
    const char *habit;
    const char *signature;
    bool known;
    Presence presence;
    const char *photo;
};

// The robots of the stand-in call process, in the order of their ids.
constexpr Row cRows[] = {
    {Robots::answers, "李雷", QT_TRANSLATE_NOOP("ContactBook", "Answers"), "学而时习之，不亦说乎", true,
     Presence::Online, "1.jpg"},
    {Robots::busy, "Maria Silva", QT_TRANSLATE_NOOP("ContactBook", "Busy"), "Back in five minutes", true,
     Presence::Busy, "15.jpg"},
    {Robots::rejects, "王芳", QT_TRANSLATE_NOOP("ContactBook", "Rejects"), "Please write instead", true,
     Presence::Online, "11.jpg"},
    {Robots::silent, "Tom Baker", QT_TRANSLATE_NOOP("ContactBook", "Never answers"), "Counting clouds", true,
     Presence::Away, "10.jpg"},
    {Robots::fails, "赵强", QT_TRANSLATE_NOOP("ContactBook", "Call fails"), "出差中，下周回来", true, Presence::Offline,
     "7.jpg"},
    {Robots::hangsUp, "Anna Novak", QT_TRANSLATE_NOOP("ContactBook", "Hangs up after 10 s"), "Short and sweet", true,
     Presence::Online, "6.jpg"},
    {Robots::callsBack, "韩梅梅", QT_TRANSLATE_NOOP("ContactBook", "Calls you back"), "", false, Presence::Online,
     "9.jpg"},
    {Robots::invites, "Ivan Petrov", QT_TRANSLATE_NOOP("ContactBook", "Invites you"),
     "One meeting a day keeps the mail away", true, Presence::Online, "19.jpg"},
    {Robots::comesBack, "林涛", QT_TRANSLATE_NOOP("ContactBook", "Leaves and returns"), "去去就来", true,
     Presence::Online, "4.jpg"},
    {Robots::crosses, "Sara Klein", QT_TRANSLATE_NOOP("ContactBook", "Invites, lines crossed"), "Crossing the streams",
     true, Presence::Online, "17.jpg"},
};

constexpr bool everyRobotIsThere()
{
    std::size_t place = 0;
    for (const Row &row : cRows) {
        if (place == Robots::cIds.size() || row.uid != std::string_view(Robots::cIds.at(place++))) {
            return false;
        }
    }
    return place == Robots::cIds.size();
}
static_assert(everyRobotIsThere(), "a robot that is in nobody's list of contacts");

// Who signs in where nobody is named: no robot, so nobody takes a call there.
constexpr Row cOwner{
    ContactBook::cOwnId, "小明",  QT_TRANSLATE_NOOP("ContactBook", "Takes no calls"), "每天都是新的一天", true,
    Presence::Offline,   "16.jpg"};
// Who is there to be called by one person alone, beside people.
constexpr Row cEcho{
    ContactBook::cEchoId, "Echo", QT_TRANSLATE_NOOP("ContactBook", "Repeats what it hears"), "...", true,
    Presence::Online,     ""};
constexpr const char *cOwnHabit = QT_TRANSLATE_NOOP("ContactBook", "You");

ContactBook::Entry entryOf(const Row &row)
{
    return {QString::fromLatin1(row.uid),  QString::fromUtf8(row.nick), row.habit, row.known, row.presence,
            QString::fromLatin1(row.photo)};
}

/// The same person, as seen by oneself.
ContactBook::Entry ownEntryOf(const Row &row)
{
    ContactBook::Entry entry = entryOf(row);
    entry.habit = cOwnHabit;
    entry.known = true;
    entry.presence = Presence::Online;
    return entry;
}

/// Stands behind the number of whom nothing else is known.
QString numberWords()
{
    return QCoreApplication::translate("ContactRow", "not a contact");
}

/// The same person in a world of people, of whom nobody knows what they do and whether they are there.
Row asPerson(Row row)
{
    row.habit = "";
    row.known = true;
    row.presence = Presence::Unknown;
    return row;
}

VcardInfo makeCard(const ContactBook::Entry &entry, const char *strSignature)
{
    VcardInfo card;
    card.m_strNickName = entry.nick;
    card.m_strAlternativeName = entry.cardAlternative();
    card.m_strSignature = QString::fromUtf8(strSignature);
    card.m_iSmallVersion = 1;
    card.m_iFullVersion = 1;
    card.setPhotoName(entry.photo);
    return card;
}

} // namespace

QString ContactBook::Entry::alternative() const
{
    return *habit == '\0' ? QString() : QCoreApplication::translate("ContactBook", habit);
}

ContactBook::ContactBook(const QString &strDomain, const QString &strOwnUid, World world)
    : m_strDomain(strDomain), m_strOwnUid(strOwnUid)
{
    const auto take = [this](const Row &row) {
        if (m_strOwnUid == QLatin1String(row.uid)) {
            m_own = ownEntryOf(row);
            add(m_own, row.signature);
        } else {
            m_entries.append(entryOf(row));
            add(m_entries.constLast(), row.signature);
        }
    };
    if (world == World::Robots) {
        std::for_each(std::begin(cRows), std::end(cRows), take);
        take(cOwner);
        return;
    }
    take(cEcho);
    take(asPerson(cOwner));
    for (const Row &row : cRows) {
        take(asPerson(row));
    }
}

QStringList ContactBook::users()
{
    QStringList uids{QString::fromLatin1(cOwner.uid)};
    for (const Row &row : cRows) {
        uids << QString::fromLatin1(row.uid);
    }
    return uids;
}

void ContactBook::add(const Entry &entry, const char *strSignature)
{
    const VcardInfo card = makeCard(entry, strSignature);
    m_cards.emplace(entry.uid, card);
    if (!entry.known) {
        return;
    }
    FriendData record(jidOf(entry.uid));
    record.setVcardInfo(card);
    m_friends.emplace(jidOf(entry.uid), record);
}

QMap<QString, FriendData> ContactBook::friendMap() const
{
    return QMap<QString, FriendData>(m_friends);
}

const FriendData *ContactBook::find(const std::map<QString, FriendData> &records, const QString &strJid)
{
    const auto found = records.find(strJid);
    return found == records.end() ? nullptr : &found->second;
}

const FriendData *ContactBook::record(const QString &strJid) const
{
    for (const auto *records : {&m_friends, &m_strangers, &m_numbers}) {
        const FriendData *found = find(*records, strJid);
        if (found != nullptr) {
            return found;
        }
    }
    return &m_unknown;
}

void ContactBook::takeNumber(const QString &strUid)
{
    const QString jid = jidOf(strUid);
    if (strUid.isEmpty() || record(jid) != &m_unknown) {
        return;
    }
    VcardInfo card;
    card.m_strNickName = strUid;
    card.m_strAlternativeName = numberWords();
    m_numbers.try_emplace(jid, jid).first->second.setVcardInfo(card);
}

void ContactBook::learn(const QString &strUid)
{
    const QString jid = jidOf(strUid);
    const auto found = m_cards.find(strUid);
    if (found == m_cards.end() || find(m_friends, jid) != nullptr) {
        return;
    }
    FriendData record(jid);
    record.setVcardInfo(found->second);
    m_strangers.emplace(jid, record);
}

const ContactBook::Entry *ContactBook::entry(const QString &strUid) const
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) { return entry.uid == strUid; });
    return found == m_entries.end() ? nullptr : &*found;
}

bool ContactBook::meet(const QString &strUid)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry &entry) { return entry.uid == strUid && !entry.known; });
    const bool isNew = found != m_entries.end();
    if (isNew) {
        found->known = true;
    }
    return isNew;
}

void ContactBook::takeLanguage()
{
    const auto say = [this](const Entry &entry) {
        const QString words = entry.cardAlternative();
        m_cards[entry.uid].m_strAlternativeName = words;
        for (std::map<QString, FriendData> *records : {&m_friends, &m_strangers}) {
            const auto found = records->find(jidOf(entry.uid));
            if (found != records->end()) {
                found->second.m_vcardInfo.m_strAlternativeName = words;
            }
        }
    };
    std::for_each(m_entries.cbegin(), m_entries.cend(), say);
    say(m_own);
    for (auto &[jid, record] : m_numbers) {
        record.m_vcardInfo.m_strAlternativeName = numberWords();
    }
}

bool ContactBook::isFriend(const QString &strJid) const
{
    return uidOf(strJid) != ownUid() && m_friends.count(strJid) != 0;
}

const VcardInfo *ContactBook::card(const QString &strUid) const
{
    const auto found = m_cards.find(strUid);
    return found == m_cards.end() ? &record(jidOf(strUid))->m_vcardInfo : &found->second;
}

Presence ContactBook::presenceOf(const QString &strUid) const
{
    const Entry *found = entry(strUid);
    return strUid == ownUid() ? Presence::Online : found == nullptr ? Presence::Offline : found->presence;
}

QString ContactBook::nameOf(const QString &strUid) const
{
    const auto found = m_cards.find(strUid);
    return found == m_cards.end() || found->second.m_strNickName.isEmpty() ? strUid : found->second.m_strNickName;
}

QString ContactBook::jidOf(const QString &strUid) const
{
    return strUid.contains(QLatin1Char('@')) ? strUid : strUid + QLatin1Char('@') + m_strDomain;
}

QString ContactBook::uidOf(const QString &strJid)
{
    return strJid.section(QLatin1Char('@'), 0, 0);
}
