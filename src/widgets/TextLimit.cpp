#include "widgets/TextLimit.h"

#include "common/text/SurrogatePairs.h"
#include "common/text/TextMeasure.h"

namespace {

// Takes characters of `strText` away backwards from `iEnd`, down to `iBegin` at most, until `excess` columns are gone.
// Gives the position of the last one.
int cutRange(const QString &strText, int iBegin, int iEnd, qint64 &excess)
{
    while (excess > 0 && iEnd > iBegin) {
        const int iFrom = SurrogatePairs::before(strText, iEnd);
        while (iEnd > iFrom) {
            excess -= TextMeasure::columnsOf(strText.at(--iEnd));
        }
    }
    return iEnd;
}

} // namespace

int TextLimit::unitsAt(const QString &strText, int iPosition)
{
    if (iPosition >= strText.size()) {
        return 0;
    }
    return SurrogatePairs::unitsAt(strText, iPosition);
}

int TextLimit::cutBackwards(QString &strText, int iCursor, int iLimit)
{
    int iTo = qBound(0, iCursor, strText.size());
    if (SurrogatePairs::isPairAt(strText, iTo - 1)) {
        ++iTo;
    }
    qint64 excess = qint64(TextMeasure::getStrCounnt(strText)) - iLimit;
    if (excess <= 0) {
        return iTo;
    }
    const int iFrom = cutRange(strText, 0, iTo, excess);
    const int iEnd = cutRange(strText, iTo, strText.size(), excess);
    const bool bCutAtEnd = iEnd < strText.size();
    strText = strText.left(iFrom) + strText.mid(iTo, iEnd - iTo);
    return bCutAtEnd ? strText.size() : iFrom;
}
