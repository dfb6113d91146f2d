#pragma once

// A customer-service channel and its work groups. Plain values that are copied freely, on any thread.

#include <QList>
#include <QString>

namespace Json {
class Value;
}

/// A group of agents that serves a channel.
class CSWorkGroupData
{
public:
    /// The group's id.
    QString m_strWorkGroupId;
    /// The shown name.
    QString m_strName;
    /// The id of the channel that the group serves.
    QString m_strChannelId;

    /// True when id, channel id and name are all equal.
    bool operator==(const CSWorkGroupData &other) const;
    /// The opposite of ==.
    bool operator!=(const CSWorkGroupData &other) const { return !(*this == other); }
};

class CSChannelData
{
public:
    /// The channel of the JSON object `value`, whose groups bear its id; its status is 1. A missing key reads as empty,
    /// 0 or false; a value of a wrong type raises the JSON library's own error, but a text or number in the list's
    /// place is one without groups.
    static CSChannelData fromJson(const Json::Value &value);

    /// Compares the version alone, deliberately.
    bool operator==(const CSChannelData &other) const { return m_iVersion == other.m_iVersion; }
    /// The opposite of ==.
    bool operator!=(const CSChannelData &other) const { return !(*this == other); }

    /// The channel's id.
    QString m_strChannelId;
    /// The shown name.
    QString m_strChannelName;
    /// The name of the channel's picture; CSUtils::getChannelIconPath finds the file.
    QString m_strPhotoName;
    /// The greeting of a new session.
    QString m_strWelcome;
    /// The groups that serve the channel, in the server's order.
    QList<CSWorkGroupData> m_listWorkGroup;
    /// 1 for a channel that was received, 0 for a blank one.
    int m_iStatus = 0;
    /// True when an agent may close a session.
    bool m_bAllowClose = false;
    /// The version of the record.
    qint64 m_iVersion = 0;
    /// True when an agent may open a session.
    bool m_bAllowOpen = false;
};
