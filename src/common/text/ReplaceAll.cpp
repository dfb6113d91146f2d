#include "common/text/ReplaceAll.h"

#include <QString>
#include <QStringMatcher>

void replaceAll(QString &strText, const QString &strBefore, const QString &strAfter)
{
    const QStringMatcher matcher(strBefore);
    int i = strBefore.isEmpty() ? -1 : matcher.indexIn(strText);
    if (i < 0) {
        return;
    }
    QString strReplaced;
    int iDone = 0;
    for (; i >= 0; i = matcher.indexIn(strText, iDone)) {
        strReplaced += strText.midRef(iDone, i - iDone);
        strReplaced += strAfter;
        iDone = i + strBefore.size();
    }
    strReplaced += strText.midRef(iDone);
    strText = strReplaced;
}
