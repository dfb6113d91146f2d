#pragma once

#include "traffic/Sentence.h"

#include "plugin/EMsgId.h"

#include <QByteArray>
#include <QString>

/// Says in words what an event between host and plug-in carries, for the status line, the log and the guided tour, and
/// in a sentence what it means.
///
/// One table has both for each event; the fields are those of plugin/HostEvents.h. No state.
class EventWords
{
public:
    /// "4470 call a user: video=no, user=30010001". An unknown command is its number alone; fields that the payload is
    /// too short for read as empty, 0 or "no".
    static QString describe(EMsgId msgId, const QByteArray &payload);

    /// The answer of a synchronous command, "known=yes"; empty for a command that is not answered.
    static QString answer(EMsgId msgId, const QByteArray &payload);

    /// The sentence of a command with its payload; `reply` is the payload that a question was answered with.
    static Sentence say(EMsgId msgId, const QByteArray &payload, const QByteArray &reply);

    /// Whether the command is a question, answered within its delivery.
    static bool isQuestion(EMsgId msgId);

    /// Whether the command is one of the contract.
    static bool isKnown(EMsgId msgId);
};
