#pragma once

#include "plugin/EMsgId.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/// Says in words what an event between host and plug-in carries: for the status line, the log and the guided tour.
///
/// It knows each command's name and the fields of its payload and of its answer, as one table. No state.
class EventWords
{
public:
    /// "4470 call a user: video=no, user=30010001". An unknown command is its number alone; fields that the payload is
    /// too short for read as empty, 0 or "no".
    static QString describe(EMsgId msgId, const QByteArray &payload);

    /// The answer of a synchronous command, "known=yes"; empty for a command that is not answered.
    static QString answer(EMsgId msgId, const QByteArray &payload);

    /// The fields of the payload and, of a question, those of its answer: truth values (of an address: whether there is
    /// one), numbers, texts, lists of texts, a call's end as its word. Empty for an unknown command.
    static QVariantList values(EMsgId msgId, const QByteArray &payload, const QByteArray &reply);

    /// Whether the command is a question, answered within its delivery.
    static bool isQuestion(EMsgId msgId);

    /// Number of commands in the table. For tests.
    static int count();
};
