#pragma once

// A service number, one of the client's official accounts: its icon, its menu tree and perhaps its customer-service
// channel, read from the server's JSON. A plain value that is copied freely, on any thread; the host keeps the records
// in CommonData's service number map under their codes.
//
// Reading: a missing key reads as empty, 0 or false, whatever the field held before. A value of a wrong type raises the
// JSON library's own error (Json::LogicError); the record is then as it was, so that nothing half-read is ever kept.

#include "model/CSChannelData.h"
#include "model/ServiceMenu.h"

#include <QList>
#include <QMetaType>
#include <QString>

class CServiceNumData
{
public:
    /// Fills the record from the JSON object `value`: all fields, the menu tree (added behind the present one) and,
    /// when "channel" is there, the channel. When the menu list has nodes then, the menu text becomes that of the
    /// "menuList" in `value`, also where the nodes were there before; else it stays. So read a new version of an
    /// account into a fresh record.
    void parseFromJson(Json::Value value);

    /// Appends the nodes of the array `value` to the menu list; what is there stays. Null, a text
    /// or a number has none.
    void parseServiceMenu(const Json::Value &value);

    /// Reads a menu from its JSON text, as the `menu` column stores it: the text becomes the menu text and its nodes go
    /// to parseServiceMenu. Text that is no JSON or nests too deep changes nothing.
    void parseServiceMenuFromString(const QString &strMenu);

    /// Replaces the channel by that of the JSON object `value`.
    void parseChannel(const Json::Value &value);

    /// Replaces the channel.
    void setChannelData(const CSChannelData &channel);

    /// Stores the icon's name and derives its path. Empty, or the built-in service head: the name itself. Else a system
    /// avatar of that name (".jpg" is added to a name without "."), or the file of that name in the folder of head
    /// images.
    void setServiceIconName(const QString &strName);

    /// The code, the record's key.
    QString m_strServiceCode;
    /// The shown name.
    QString m_strName;
    /// What the account is about.
    QString m_strDescription;
    /// The icon's name as the server gives it; set by setServiceIconName.
    QString m_strIconName;
    /// The icon's file; derived by setServiceIconName.
    QString m_strIconPath;
    /// The kind of account; the numbers are the server's.
    int m_iSubType = 0;
    /// True when an application stands behind the account.
    bool m_bBindApp = false;
    /// True when the user has subscribed to it.
    bool m_bSubscribed = false;
    /// True when the user can write to it.
    bool m_bInteractive = false;
    /// The body that runs the account.
    QString m_strSubject;
    /// How to reach it.
    QString m_strContactWay;
    /// The menu's top nodes, in their order.
    QList<ServiceMenu> m_listMenu;
    /// The menu as JSON text, the value of the `menu` column.
    QString m_strMenuText;
    /// True when the account is shown folded.
    bool m_bFold = false;
    /// The account's state; the numbers are the server's.
    int m_iStatus = 0;
    /// The customer-service channel; a blank one when the account has none.
    CSChannelData m_channel;
    /// The version of the record; "-1": never received. JSON without "version" makes it empty.
    QString m_strVersion = QStringLiteral("-1");

private:
    void readTexts(const Json::Value &value);
};

Q_DECLARE_METATYPE(CServiceNumData)
