#pragma once

// The documents that the content of a notification about conferences is, as texts of compact JSON. Functions; any
// thread.

#include <QString>
#include <QStringList>

/// What notifications 2, 12 and 13 have: whom they are about, who is connected at present, when the conference was
/// created in milliseconds since 1970 (left out where it is 0).
QString conferenceDocument(const QString &confId, const QString &from, const QStringList &connected, qint64 createTime);

/// What notification 20 has where there is a conference.
QString creationDocument(const QString &confId);

/// What notification 21 has: who could not be added.
QString additionDocument(const QStringList &failed);
