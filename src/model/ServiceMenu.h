#pragma once

// One node of a service number's menu tree. A plain value that is copied freely, on any thread.

#include <QList>
#include <QString>

namespace Json {
class Value;
}

class ServiceMenu
{
public:
    /// Fills this node from one JSON object: "name", "leaf", "type", "value", "pcLink", "moLink", and the array "child"
    /// when "leaf" is false; what "child" holds for a leaf is ignored, and children that are present already stay. A
    /// missing key reads as empty, 0 or false. A value of a wrong type raises the JSON library's own error, and this
    /// node is then unchanged.
    void parseMenu(const Json::Value &value);

    /// The nodes of the array `value`, in its order; null, a text or a number has none, an object with members raises
    /// the JSON library's error.
    static QList<ServiceMenu> parseList(const Json::Value &value);

    /// The shown name.
    QString m_strName;
    /// True when the node ends the tree here.
    bool m_bLeaf = false;
    /// What a click does; the numbers are the server's.
    int m_iType = 0;
    /// The value sent back on a click.
    QString m_strValue;
    /// The link for desktop clients.
    QString m_strPcLink;
    /// The link for mobile clients.
    QString m_strMoLink;
    /// The nodes below this one, in their order.
    QList<ServiceMenu> m_listChild;
};
