#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

/// A source of what may come over the wire or from a host, sensible and not: ids, documents, whole lines, broken ones.
/// The same seed gives the same sequence. A plain value.
class WireNoise
{
public:
    explicit WireNoise(quint32 seed) : m_random(seed) {}

    /// From 0 up to `limit`, itself left out.
    int below(int limit) { return static_cast<int>(m_random.bounded(limit)); }
    bool chance(int outOf) { return below(outOf) == 0; }

    /// A user id: the own one, one of a few others, now and then an odd one.
    QString uid();

    /// Up to five user ids; one may stand twice.
    QStringList uids();

    /// A document of the kind that the code carries, or something else.
    QString content(int code);

    /// A line with its line feed: a notification, or something broken.
    QString line();

private:
    int code();
    QString conferenceDocument();
    QString text();
    QString broken(QString line);

    QRandomGenerator m_random;
};
