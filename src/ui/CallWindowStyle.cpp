#include "ui/CallWindowStyle.h"

#include "common/Palette.h"

#include <QPalette>
#include <QWidget>

void applyCallWindowStyle(QWidget *pWindow)
{
    QPalette palette = pWindow->palette();
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base})
        palette.setColor(role, QColor(strCOLOR_WHITE));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(role, QColor(strCOLOR_MAININFO_LIGHT_BLACK));
    pWindow->setPalette(palette);
    for (const CallWindowStyleRow &row : cCallWindowStyles)
        if (auto *pPart = pWindow->findChild<QWidget *>(QString::fromLatin1(row.pName)))
            pPart->setStyleSheet(QString::fromUtf8(row.pStyleSheet));
}
