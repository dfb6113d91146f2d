#include "common/text/TextCompare.h"

#include <QStringList>

namespace {

struct SortRange
{
    ushort last;   ///< the range reaches from behind the row above to this character
    int factor;    ///< a letter leaves room for its other case
    int increment; ///< added behind the multiplication
};

constexpr SortRange cSortRanges[] = {
    {'/', 1, 0},   {'9', 1, 18},   {'@', 1, -10}, {'Z', 2, -53},
    {'`', 1, -36}, {'z', 2, -118}, {127, 1, -62}, {0xFFFF, 1, 0},
};

QChar sortUnit(QChar unit)
{
    const SortRange *pRange = cSortRanges;
    while (unit.unicode() > pRange->last) {
        ++pRange;
    }
    return {unit.unicode() * pRange->factor + pRange->increment};
}

} // namespace

bool TextCompare::compareVersion(const QString &strA, const QString &strB)
{
    const QStringList listA = strA.split(QLatin1Char('.'));
    const QStringList listB = strB.split(QLatin1Char('.'));
    for (int i = 0; i < qMin(listA.size(), listB.size()); ++i) {
        const int iA = listA.at(i).toInt();
        const int iB = listB.at(i).toInt();
        if (iA != iB) {
            return iA < iB;
        }
    }
    return false;
}

bool TextCompare::combareString(const QString &strText, const QString &strSeparator, const QString &strTarget)
{
    const QString strList = strText.trimmed();
    const QString strPart = strTarget.trimmed();
    return !strList.isEmpty() && !strPart.isEmpty() && strList.split(strSeparator).contains(strPart);
}

QString TextCompare::getSortText(const QString &strText)
{
    QString strKey = strText;
    for (QChar &unit : strKey) {
        unit = sortUnit(unit);
    }
    return strKey;
}
