#pragma once

#include "client/Presence.h"

#include "model/FriendData.h"
#include "robots/RobotIds.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <map>

/// Who the demo's user knows: the contacts of a made-up company, each named for what happens when one calls it, if
/// robots answer for them.
///
/// It plays the contact plug-in's memory. The records live as long as the book and never move, because their addresses
/// are handed to the call plug-in. GUI thread.
class ContactBook
{
public:
    /// One row of the contact list.
    struct Entry
    {
        QString uid;            ///< user id
        QString nick;           ///< nick name of the card
        const char *habit = ""; ///< what this contact does, in English; alternative() says it
        bool known = true;      ///< false: a stranger of whom the client has nothing but the number
        Presence presence = Presence::Online;
        QString photo; ///< name of the built-in head picture; empty for none

        /// The alternative name of the card, what this contact does, in the client's language.
        QString alternative() const;

        /// The same for a card, which always has one: the number of who does what he likes.
        QString cardAlternative() const { return *habit == '\0' ? uid : alternative(); }

        /// The nick name; of a stranger the number.
        QString shownName() const { return known ? nick : uid; }
    };

    /// User id of the user who signs in where nobody is named.
    static constexpr const char *cOwnId = Robots::cOwnUser;

    /// User id of who is there to be called by one person alone, where people are called.
    static constexpr const char *cEchoId = "echo";

    /// What is behind the contacts: the robots of the stand-in call process, or people, who do what they like, and the
    /// echo.
    enum class World
    {
        Robots,
        People
    };

    /// Builds the records for the login domain `strDomain`, as the user `strOwnUid` has them.
    explicit ContactBook(const QString &strDomain, const QString &strOwnUid = QString::fromLatin1(cOwnId),
                         World world = World::Robots);

    /// The ids of all who may sign in.
    static QStringList users();

    /// User id of the signed-in user.
    QString ownUid() const { return m_strOwnUid; }

    /// Everybody but the own user, in the order of the list.
    const QList<Entry> &entries() const { return m_entries; }

    /// Records by jid of all contacts and of the own user; strangers are left out.
    QMap<QString, FriendData> friendMap() const;

    /// The record of `strJid`; a default record for anybody who is neither a contact nor a stranger whose card has been
    /// fetched nor called by the number. Never null, owned by the book.
    const FriendData *record(const QString &strJid) const;

    /// True for contacts, false for strangers, for the own user's jid and for unknown jids.
    bool isFriend(const QString &strJid) const;

    /// The card of the user, contact or stranger; for anybody else the one that the record has. Never null, owned by
    /// the book.
    const VcardInfo *card(const QString &strUid) const;

    /// The entry of the user; null for the own user and for an unknown id. Valid as long as the book.
    const Entry *entry(const QString &strUid) const;

    /// The user calls somebody by the number: who has no card has a record from now on whose name it is. An empty id
    /// has none.
    void takeNumber(const QString &strUid);

    /// The stranger's card has been fetched: from now on there is a record with it. Others stay as they are.
    void learn(const QString &strUid);

    /// The stranger has called: the entry has name and head from now on, though this is still no contact. False, and
    /// nothing changes, for anybody else.
    bool meet(const QString &strUid);

    /// The client has another language: the cards, where they stand, say in it what the people do.
    void takeLanguage();

    /// Presence of the user; offline for an id that is not in the book.
    Presence presenceOf(const QString &strUid) const;

    /// The nick name of the user, or the id where there is none.
    QString nameOf(const QString &strUid) const;

    /// User jid of a user id. A text with "@" is returned as it is.
    QString jidOf(const QString &strUid) const;

    /// User id of a user jid: what stands before "@".
    static QString uidOf(const QString &strJid);

private:
    void add(const Entry &entry, const char *strSignature);
    static const FriendData *find(const std::map<QString, FriendData> &records, const QString &strJid);

    QString m_strDomain;
    QString m_strOwnUid;
    Entry m_own;
    QList<Entry> m_entries;
    std::map<QString, FriendData> m_friends;
    std::map<QString, FriendData> m_strangers;
    std::map<QString, FriendData> m_numbers; // of whom nothing but the number is known
    std::map<QString, VcardInfo> m_cards;
    FriendData m_unknown;
};
