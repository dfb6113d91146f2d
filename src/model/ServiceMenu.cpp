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
    JsonMember::forEachItem(value, [&listMenu](const Json::Value &child) {
        ServiceMenu menu;
        menu.parseMenu(child);
        listMenu.append(menu);
    });
    return listMenu;
}
