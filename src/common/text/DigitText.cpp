#include "common/text/DigitText.h"

#include <algorithm>

QString DigitText::addZroeSort(int iNumber)
{
    return QString::number(iNumber).rightJustified(4, QLatin1Char('0'));
}

QString DigitText::removeSymbolPrefix(const QString &strNumber)
{
    QString strDigits = strNumber;
    for (const char symbol : {'-', ':', '.', '+'}) {
        strDigits.remove(QLatin1Char(symbol));
    }
    return strDigits;
}

QString DigitText::removePrefix(const QString &strNumber)
{
    const QString strDigits = removeSymbolPrefix(strNumber);
    if (strDigits.startsWith(QStringLiteral("90"))) {
        return strDigits.mid(2);
    }
    return strDigits.startsWith(QLatin1Char('9')) ? strDigits.mid(1) : strDigits;
}

bool DigitText::isDigitalString(const QString &strText)
{
    return std::all_of(strText.begin(), strText.end(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}
