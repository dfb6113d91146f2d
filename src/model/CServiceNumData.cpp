#include "model/CServiceNumData.h"

#include "model/AvatarFiles.h"
#include "model/JsonMember.h"

#include <json/reader.h>
#include <json/writer.h>

// The menu column is defined by the output and the leniency of these two classes, so their deprecation does not matter.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

using JsonMember::text;

void CServiceNumData::parseFromJson(Json::Value value)
{
    // Read into a copy: a value of a wrong type leaves by an exception and must not leave half a record behind.
    CServiceNumData data(*this);
    data.readTexts(value);
    data.m_bFold = value["fold"].asBool();
    data.parseServiceMenu(value["menuList"]);
    data.m_iStatus = value["status"].asInt();
    data.m_strVersion = text(value, "version");
    if (!data.m_listMenu.isEmpty()) {
        data.m_strMenuText = QString::fromStdString(Json::StyledWriter().write(value["menuList"]));
    }
    if (!value["channel"].isNull()) {
        data.parseChannel(value["channel"]);
    }
    *this = data;
}

void CServiceNumData::readTexts(const Json::Value &value)
{
    m_strServiceCode = text(value, "iServiceCode");
    m_strName = text(value, "name");
    m_strDescription = text(value, "description");
    setServiceIconName(text(value, "icon"));
    m_iSubType = value["subType"].asInt();
    m_bBindApp = value["isBindApp"].asBool();
    m_bSubscribed = value["isSub"].asBool();
    m_bInteractive = value["isInteractive"].asBool();
    m_strSubject = text(value, "subject");
    m_strContactWay = text(value, "contactWay");
}

void CServiceNumData::parseServiceMenu(const Json::Value &value)
{
    m_listMenu += ServiceMenu::parseList(value);
}

void CServiceNumData::parseServiceMenuFromString(const QString &strMenu)
{
    Json::Value root;
    try {
        const bool bCollectComments = true;
        if (!Json::Reader().parse(strMenu.toStdString(), root, bCollectComments)) {
            return;
        }
    } catch (const Json::RuntimeError &) {
        return; // nested deeper than the parser goes
    }
    parseServiceMenu(root);
    m_strMenuText = strMenu;
}

void CServiceNumData::parseChannel(const Json::Value &value)
{
    setChannelData(CSChannelData::fromJson(value));
}

void CServiceNumData::setChannelData(const CSChannelData &channel)
{
    m_channel = channel;
}

void CServiceNumData::setServiceIconName(const QString &strName)
{
    m_strIconName = strName;
    if (strName.isEmpty() || strName == AvatarFiles::cServiceHead) {
        m_strIconPath = strName;
        return;
    }
    const QString strFile = AvatarFiles::withSuffix(strName);
    const QString strAvatar = AvatarFiles::systemAvatar(strFile);
    m_strIconPath = strAvatar.isEmpty() ? AvatarFiles::headImageFolder() + strFile : strAvatar;
}
