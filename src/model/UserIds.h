#pragma once

// The id rules of the client: how a user id becomes a jid, a jid a session id, and what kind of party a text names.
// Everything else asks here and builds no such text by itself. Stateless; the signed-in identity comes from the
// LoginData of the shared context and reads as empty while there is none. On the GUI thread.
//
// Forms: user jid uid@domain; room id "of..." or "room...", room jid id@c.domain; channel id "KFCNL..."; session id:
// the room id, or the two ids joined by "_", the smaller one (QString's operator<) first.

#include <QString>

class UserIds
{
public:
    /// The uid of the signed-in user; empty when nobody is signed in.
    static QString getLoginUID();

    /// The domain of the signed-in user; empty when nobody is signed in.
    static QString getLoginDomain();

    /// The signed-in user's jid: uid, "@", domain.
    static QString getLoginMyJID();

    /// The signed-in user's own customer-service channel id.
    static QString getMychannelID();

    /// Stores the channel id in the login record; without a record nothing happens.
    static void setMychannelID(const QString &strId);

    /// True when the signed-in user is a customer-service agent.
    static bool getIsAgentUser();

    /// The company code of the signed-in user.
    static QString getLoginCompanyCode();

    /// The company name of the signed-in user.
    static QString getLoginCompanyName();

    /// The jid of a user id or room id on the login domain; a text with "@" comes back unchanged.
    static QString getJidByUid(const QString &strId);

    /// The text left of the first "@"; the whole text when it has none.
    static QString getUidByJid(const QString &strJid);

    /// The session id of a chat with that user or room; the same for both parties of a chat.
    static QString getSessionIdByChatJid(const QString &strJid);

    /// The jid of the other party of a session, or of its room; empty for a text that is not a session id.
    static QString getChatJidBySessionId(const QString &strSessionId);

    /// True when the text starts with "of" or "room", case-sensitive: a room id or a room jid.
    static bool isMucJid(const QString &strJid);

    /// The same rule for a session id.
    static bool isMucSession(const QString &strSessionId);

    /// True for a session of two parties at least one of which is a channel.
    static bool isAgentSession(const QString &strSessionId);

    /// True for a channel session that belongs to another user than the signed-in one, which an agent sees.
    static bool isAgentSystemSession(const QString &strSessionId);

    /// True when the text starts with "KFCNL"; false for an empty one.
    static bool isAgentId(const QString &strId);

    /// True when the text starts with "KFCNL".
    static bool isChannelId(const QString &strId);

    /// The channel of a session of two parties; a null text when there is none.
    static QString getChannelIdBySessionId(const QString &strSessionId);

    /// The session id of the signed-in user and that channel.
    static QString getSessionIdByChannelId(const QString &strChannelId);

    /// The session id of that user and that channel.
    static QString getSessionIdByUserAndChannel(const QString &strUser, const QString &strChannel);

    /// The party opposite the channel of a session; empty, though not null, when there is no channel.
    static QString getCSUserIdBySessionId(const QString &strSessionId);

    /// True when the text starts with "vroom" in any case: a video room.
    static bool isVideoChat(const QString &strId);
};
