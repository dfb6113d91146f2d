#pragma once

// The one event class between the host and its plug-ins: who sends, who receives, which command, and a payload. It is
// used on the GUI thread. An event that is posted belongs to Qt from then on; one that is delivered at once belongs to
// its sender, who reads the answer from `data` and deletes it. The order of the fields is shared with the host.

#include "plugin/EMsgId.h"

#include <QByteArray>
#include <QEvent>
#include <QList>
#include <QString>

/// A command from one plug-in to another. Every such event has the type QEvent::User (1000).
class BaseEvent : public QEvent
{
public:
    /// Builds an event with `bFlag` set and an empty `extraList`. An empty `receiver` means anyone; `queued` becomes
    /// `bAsync`; `payload` becomes `data`.
    BaseEvent(EMsgId command, const QString &sender, const QString &receiver, bool queued,
              const QByteArray &payload = QByteArray());

    /// Frees each element of `extraList` as a plain memory block, then the list.
    ~BaseEvent() override;

    /// The command.
    EMsgId msgId;
    /// The payload, written by a QDataStream with default settings; also the way back for answers.
    QByteArray data;
    /// True on every event that this plug-in builds; never read here.
    bool bFlag = true;
    /// Plug-in id of the sender.
    QString senderId;
    /// Plug-in id of the receiver; empty means anyone.
    QString receiverId;
    /// True: delivered through the event queue. False: delivered at once, and the sender reads the answer afterwards.
    bool bAsync;
    /// Memory blocks from ::operator new that the event owns; always empty on events from this plug-in.
    QList<void *> extraList;

private:
    Q_DISABLE_COPY(BaseEvent)
};
