#include "model/ServiceMenu.h"

#include "model/JsonMember.h"

using JsonMember::text;

void ServiceMenu::parseMenu(const Json::Value &value)
{
    ServiceMenu menu(*this);
    menu.m_strName = text(value, "name");
    menu.m_bLeaf = value["leaf"].asBool();
    if (!menu.m_bLeaf) {
        menu.m_listChild += parseList(value["child"]);
    }
    menu.m_iType = value["type"].asInt();
    menu.m_strValue = text(value, "value");
    menu.m_strPcLink = text(value, "pcLink");
    menu.m_strMoLink = text(value, "moLink");
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
