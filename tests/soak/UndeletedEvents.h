#pragma once

#include "plugin/EMsgId.h"

#include <QObject>

#include <array>
#include <vector>

class BaseEvent;

/// Follows the two kinds of events that the plug-in by contract leaves undeleted: the withdrawal of an incoming call's
/// prompt and of a signature card. Set on the object that receives the plug-in's events. GUI thread.
class UndeletedEvents : public QObject
{
public:
    /// The commands of these events.
    static constexpr std::array<EMsgId, 2> cKinds{MSG_CLOSE_AV_MSGBOX, MSG_CLOSE_SIGN_LIST};

    /// Deletes those that have come so far, so that they do not count as growth.
    void take();

    /// How many of a kind were taken.
    qint64 taken(EMsgId kind) const;

    /// What all that were taken held on the heap, in bytes.
    qint64 takenBytes() const { return m_bytes; }

    ~UndeletedEvents() override;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    std::vector<BaseEvent *> m_events;
    std::array<qint64, cKinds.size()> m_taken{};
    qint64 m_bytes = 0;
};
