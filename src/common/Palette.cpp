#include "common/Palette.h"

namespace {

QString handleHover()
{
    return QStringLiteral(
               "QScrollBar::handle:vertical:hover{background-color:%1;border-radius:3px;width: 6px;min-height: 40px;}")
        .arg(strCOLOR_ICON_MID_GREY);
}

QString transparentRest()
{
    return QStringLiteral("QScrollBar::add-line:vertical{background: transparent;}"
                          "QScrollBar::sub-line:vertical{background: transparent;}"
                          "QScrollBar::up-arrow:vertical{background: transparent;}"
                          "QScrollBar::down-arrow:vertical{background: transparent;}"
                          "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical{background: transparent;}");
}

} // namespace

QString StyleSheets::verticalScrollBarNormal()
{
    return QStringLiteral(
               "QScrollBar:vertical{ border: 0px; width: 6px; margin: 0px 0 0px 0; background: transparent; }") +
           QStringLiteral("QScrollBar:vertical:hover{width: 6px;margin: 0px 0 12px 0; "
                          "background-color:%1;border-radius:3px;}")
               .arg(strCOLOR_BORDER_SELECT_GREY) +
           QStringLiteral("QScrollBar::handle:vertical{background: transparent;border-radius:3px;width: 6px;"
                          "min-height: 40px;}") +
           handleHover() + transparentRest();
}

QString StyleSheets::verticalScrollBarHover()
{
    return QStringLiteral("QScrollBar:vertical{border: 0px;width: 6px;margin: 0px 0 0px 0;background: transparent;}") +
           QStringLiteral("QScrollBar:vertical:hover{width: 6px;margin: 0px 0 0px 0; "
                          "background-color:%1;border-radius:3px;}")
               .arg(strCOLOR_BORDER_SELECT_GREY) +
           QStringLiteral("QScrollBar::handle:vertical{background-color: %1; border-radius:3px;width: 6px;"
                          "min-height: 40px;}")
               .arg(strCOLOR_THIED_MID_GREY) +
           handleHover() + transparentRest();
}

QString StyleSheets::menu()
{
    return QStringLiteral("QMenu{max-width:300px;border-radius:2px;background-color:%1;border: 1px solid %2;"
                          "padding-top:5px;font-size:14px;color:%3;}")
        .arg(strCOLOR_WHITE, strCOLOR_BORDER_SELECT_GREY, strCOLOR_MAININFO_LIGHT_BLACK);
}

QString StyleSheets::menuItem()
{
    return QStringLiteral("QMenu::item{color:%1;height:30px; padding-left:%2px;padding-right:20px;}")
        .arg(strCOLOR_MAININFO_LIGHT_BLACK);
}

QString StyleSheets::menuItemSelect()
{
    return QStringLiteral("QMenu::item:selected{background: %1;color:%2;}")
        .arg(strCOLOR_BORDER_SELECT_GREY, strCOLOR_MAININFO_LIGHT_BLACK);
}

QString StyleSheets::menuItemDisable()
{
    return QStringLiteral("QMenu::item:disabled{color:%1;}").arg(strCOLOT_DISABLE_GREY);
}

QString StyleSheets::menuChecked(const QString &strKind)
{
    return QStringLiteral("QMenu::indicator:%1:checked {margin-left:10px;width:15;height:15;"
                          "border-image:url(Resources/images/CommonCtrls/kvim_list_ic_selected.png);}")
        .arg(strKind);
}
