#pragma once

// The host and its other plug-ins as the plug-in sees them: one object that receives every outbound event, sent or
// posted, keeps a copy of it, and answers the queries as told. GUI thread; give it to the mailbox by setSendEvent.

#include "model/FriendData.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>

#include <functional>
#include <map>

/// One received event, copied before it was answered.
struct ReceivedEvent
{
    int msgId = 0;
    QString senderId;
    QString receiverId;
    bool bAsync = false;
    bool bFlag = false;
    QByteArray payload;
    int extraCount = 0;
    int type = 0;
    /// The event itself, valid only while it is handled or when nobody deletes it.
    BaseEvent *event = nullptr;

    /// Reads the payload's fields in their order.
    PayloadReader reader() const { return PayloadReader(payload); }
};

/// Records events and plays the contact and the session plug-in.
class FakeHost : public QObject
{
public:
    /// Receives a sent or a posted event.
    void customEvent(QEvent *event) override;

    /// The record that 4157 answers for `jid`; every other jid gets a default record.
    void setRecord(const QString &jid, const FriendData &record) { m_records[jid] = record; }

    /// The events of the command `msgId`, oldest first.
    QList<ReceivedEvent> received(int msgId) const;

    /// The command numbers received, oldest first.
    QList<int> commands() const;

    /// All events received, oldest first.
    QList<ReceivedEvent> events;
    /// The jids that 4337 answers true for.
    QSet<QString> friendJids;
    /// What 4735 answers.
    QStringList membersToAdd;
    /// False: events are answered and not kept, as by a host whose answers cost it nothing.
    bool bRecords = true;
    /// False: no query is answered, as with a host whose other plug-ins are not loaded.
    bool bAnswers = true;
    /// Takes the place of the answer to a command: bytes as they stand.
    QHash<int, QByteArray> rawAnswers;
    /// Runs at the end of each event's handling, for what a host may do meanwhile. May be empty.
    std::function<void(BaseEvent &)> whileHandled;

private:
    void answer(BaseEvent &event);

    std::map<QString, FriendData> m_records;
    FriendData m_unknown;
};
