#pragma once

#include "Sentence.h"

#include "plugin/EMsgId.h"

#include <QByteArray>

/// Says in a sentence what an event between client and plug-in means, where EventWords lists its fields. No state.
class EventSentences
{
public:
    /// The sentence of a command with its payload; `reply` is the payload that a question was answered with.
    static Sentence say(EMsgId msgId, const QByteArray &payload, const QByteArray &reply);

    /// Whether the command has a sentence of its own.
    static bool isKnown(EMsgId msgId);

    /// Number of commands in the table. For tests.
    static int count();
};
