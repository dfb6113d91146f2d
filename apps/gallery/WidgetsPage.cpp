#include "WidgetsPage.h"

#include "KitButtons.h"
#include "KitFields.h"
#include "KitForms.h"

WidgetsPage::WidgetsPage(QWidget *parent) : Sheet(parent)
{
    KitButtons::addIconButtons(*this);
    KitButtons::addPushButtons(*this);
    KitButtons::addChoices(*this);
    KitFields::addLineEdits(*this);
    KitFields::addTextEdits(*this);
    KitFields::addMenus(*this);
    KitForms::addForms(*this);
    KitForms::addLabels(*this);
    KitForms::addSmallParts(*this);
}
