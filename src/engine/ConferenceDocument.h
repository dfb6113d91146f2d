#pragma once

// What the call process tells of a conference: the nested documents of its notifications. What is missing or of a wrong
// type reads as absent; a text that does not parse reads as an empty document. Plain values; any thread.

#include <QString>
#include <QStringList>

/// The body of a conference document, the payload of an invitation, an update and a member's leaving.
struct ConferenceDocument
{
    QString from;              ///< user id of whoever caused the notification
    QStringList conventioneer; ///< user ids of the members, as the call process has them
    QString confId;            ///< the conference id; empty when absent
    qint64 createTime = 0;     ///< milliseconds since 1970-01-01, cut to the 64-bit range; 0 when absent

    /// Reads the payload `content`; anything that is no such document gives an empty one.
    static ConferenceDocument read(const QString &content);
};

/// The id in the answer to a conference request; empty when the text does not parse or has none.
QString createdConferenceId(const QString &content);

/// The user ids that could not be added, from the answer to an add request; empty when there are none.
QStringList failedNumbers(const QString &content);
