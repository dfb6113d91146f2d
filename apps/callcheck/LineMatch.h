#pragma once

// Compares what a call process says with what was recorded. What a call process makes up anew in each run may differ:
// a conference's id, as long as one recorded id stands for one id; the time of its creation; the order in which members
// are listed. Values only.

#include <QByteArray>
#include <QHash>
#include <QJsonValue>
#include <QString>

#include <optional>

/// A notification taken apart.
struct Notification
{
    int code = -1;
    QString content;

    /// Nothing for a line that is not an object with just a whole number `resultCode` and a text `content`.
    static std::optional<Notification> read(const QByteArray &line);

    /// The code, its name and the content, for messages.
    QString shown() const;
};

class LineMatch
{
public:
    /// Whether the line, both without a line feed, may stand for the recorded one. Remembers which conference id stands
    /// for which.
    bool matches(const QByteArray &recorded, const QByteArray &line);

    /// The line for messages: a notification taken apart, any other as it stands.
    static QString shown(const QByteArray &line);

    /// Whether the line is a log line of the call process, which may differ, be missing or come at any time.
    static bool isLog(const QByteArray &line);

private:
    bool contentMatches(const QString &recorded, const QString &content);
    bool valueMatches(const QString &key, const QJsonValue &recorded, const QJsonValue &value);
    bool idMatches(const QString &recorded, const QString &id);

    QHash<QString, QString> m_ids; // by the recorded id
};
