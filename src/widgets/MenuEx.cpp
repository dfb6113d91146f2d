#include "widgets/MenuEx.h"

#include "common/Palette.h"
#include "common/system/DpiScale.h"

#include <QMouseEvent>

namespace {

constexpr int cMaximumWidth = 300;

// The room left of an entry's text, in pixels.
constexpr int cWideIndent = 35;
constexpr int cNarrowIndent = 15;

QString styleOfIconMenu()
{
    return QStringLiteral("QMenu{max-width:300px;padding: 5px;border-radius:2px;background-color:#ffffff;"
                          "border: 1px solid #585858;padding-top:5px;font-size:14px;color:#322926;}") +
           strMenuItemSelectStyle + strMenuItemDisableStyle + strMenuItemStyle.arg(cWideIndent) + strMenuIconStyle;
}

QString styleOfCheckMenu()
{
    return strMenuStyle + strMenuItemSelectStyle + strMenuItemDisableStyle + strMenuItemStyle.arg(cWideIndent) +
           strMenuNonExclusiveCheckedStyle + strMenuExclusiveCheckeedStyle;
}

QString styleOfPlainMenu()
{
    return strMenuStyle + strMenuItemSelectStyle + strMenuItemDisableStyle + strMenuItemStyle.arg(cNarrowIndent);
}

QString styleOf(CMenuEx::MenuType type)
{
    switch (type) {
    case CMenuEx::IconMenu:
        return styleOfIconMenu();
    case CMenuEx::CheckMenu:
        return styleOfCheckMenu();
    default:
        return styleOfPlainMenu();
    }
}

} // namespace

CMenuEx::CMenuEx(QWidget *parent) : CMenuEx(QString(), parent) {}

CMenuEx::CMenuEx(const QString &title, QWidget *parent) : QMenu(title, parent)
{
    setMaximumWidth(cMaximumWidth);
    setMenuType(PlainMenu);
}

void CMenuEx::setMenuType(MenuType type)
{
    setStyleSheet(ADAPT_DPI_STYLESHEET(styleOf(type)));
}

void CMenuEx::showEvent(QShowEvent *event)
{
    event->accept();
}

void CMenuEx::mousePressEvent(QMouseEvent *event)
{
    QMenu::mousePressEvent(event);
}

void CMenuEx::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        return;
    }
    QMenu::mouseReleaseEvent(event);
}
