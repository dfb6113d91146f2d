#include "ui/CallWindowStyle.h"

#include <QWidget>

void applyCallWindowStyle(QWidget *pWindow)
{
    for (const CallWindowStyleRow &row : cCallWindowStyles) {
        if (auto *pPart = pWindow->findChild<QWidget *>(QString::fromLatin1(row.pName))) {
            pPart->setStyleSheet(QString::fromUtf8(row.pStyleSheet));
        }
    }
}
