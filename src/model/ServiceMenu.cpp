#include "model/ServiceMenu.h"

#include <json/value.h>

void ServiceMenu::parseMenu(const Json::Value &value)
{
    ServiceMenu menu(*this);
    menu.m_strName = QString::fromStdString(value["name"].asString());
    menu.m_bLeaf = value["leaf"].asBool();
    if (!menu.m_bLeaf) {
        menu.m_listChild += parseList(value["child"]);
    }
    menu.m_iType = value["type"].asInt();
    menu.m_strValue = QString::fromStdString(value["value"].asString());
    menu.m_strPcLink = QString::fromStdString(value["pcLink"].asString());
    menu.m_strMoLink = QString::fromStdString(value["moLink"].asString());
    *this = menu;
}

QList<ServiceMenu> ServiceMenu::parseList(const Json::Value &value)
{
    QList<ServiceMenu> listMenu;
    listMenu.reserve(static_cast<int>(value.size()));
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
        ServiceMenu menu;
        menu.parseMenu(value[i]);
        listMenu.append(menu);
    }
    return listMenu;
}
