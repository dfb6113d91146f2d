#include "common/text/TextMeasure.h"

int TextMeasure::getStrCounnt(const QString &strText)
{
    int iColumns = 0;
    for (const QChar unit : strText) {
        iColumns += columnsOf(unit);
    }
    return iColumns;
}

int TextMeasure::getLimitPosition(const QString &strText, int iLimit)
{
    int iColumns = 0;
    for (int i = 0; i < strText.size(); ++i) {
        iColumns += columnsOf(strText.at(i));
        if (iColumns == iLimit) {
            return i + 1;
        }
        if (iColumns - 1 == iLimit) {
            return i;
        }
    }
    // Deliberate: the columns, not the position; edit fields compare it with their limit.
    return iColumns;
}

QString TextMeasure::getStringByLen(const QString &strText, int iLimit)
{
    int iColumns = 0;
    for (int i = 0; i < strText.size(); ++i) {
        iColumns += columnsOf(strText.at(i));
        if (iColumns > iLimit) {
            return strText.left(i);
        }
    }
    return strText;
}
