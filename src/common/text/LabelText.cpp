#include "common/text/LabelText.h"

#include "common/text/SurrogatePairs.h"

#include <QFontMetrics>
#include <QStringList>
#include <QWidget>

namespace {

using SurrogatePairs::before;
using SurrogatePairs::isPairAt;
using SurrogatePairs::unitsAt;

constexpr int cLineSlack = 5;
constexpr int cHeightSlack = 2;
constexpr int cDotsReplace = 2;
// A longer text is never measured whole: the width of millions of characters does not fit into a number.
constexpr int cMeasuredWhole = 10000;

QString dots()
{
    return QStringLiteral("...");
}

int widthAt(const QFontMetrics &metrics, const QString &strText, int i)
{
    return isPairAt(strText, i) ? metrics.horizontalAdvance(strText.mid(i, 2))
                                : metrics.horizontalAdvance(strText.at(i));
}

/// The length of the longest beginning from `iStart` on that fits. The stretch that is looked at doubles until it is
/// too wide, so that a line costs no more than its own length.
int fittingUnits(const QFontMetrics &metrics, const QString &strText, int iStart, int iWidth)
{
    const int iLeft = strText.size() - iStart;
    const auto fits = [&](int iLength) { return metrics.horizontalAdvance(strText.mid(iStart, iLength)) <= iWidth; };
    int iFitting = 0;
    int iTooLong = 1;
    while (iTooLong <= iLeft && fits(iTooLong)) {
        iFitting = iTooLong;
        iTooLong = qMin(iTooLong * 2, iLeft);
        if (iFitting == iLeft) {
            return iLeft;
        }
    }
    while (iTooLong - iFitting > 1) {
        const int iMiddle = iFitting + (iTooLong - iFitting) / 2;
        (fits(iMiddle) ? iFitting : iTooLong) = iMiddle;
    }
    return iFitting;
}

bool fitsWhole(const QFontMetrics &metrics, const QString &strText, int iWidth)
{
    return strText.size() <= cMeasuredWhole ? metrics.horizontalAdvance(strText) <= iWidth
                                            : fittingUnits(metrics, strText, 0, iWidth) == strText.size();
}

/// The length of the line that starts at `iStart`: what fits, at least one character.
int fittingLength(const QFontMetrics &metrics, const QString &strText, int iStart, int iWidth)
{
    int iFitting = fittingUnits(metrics, strText, iStart, iWidth);
    if (isPairAt(strText, iStart + iFitting - 1)) {
        --iFitting;
    }
    return iFitting > 0 ? iFitting : unitsAt(strText, iStart);
}

QStringList fittingLines(const QFontMetrics &metrics, const QString &strText, int iWidth, int iMaxLines)
{
    QStringList listLine;
    for (int iStart = 0; iStart < strText.size();) {
        QString strLine = strText.mid(iStart, fittingLength(metrics, strText, iStart, iWidth));
        iStart += strLine.size();
        if (listLine.size() + 1 == iMaxLines) {
            for (int i = 0; i < cDotsReplace; ++i) {
                strLine.truncate(before(strLine, strLine.size()));
            }
            listLine.append(strLine + dots());
            break;
        }
        listLine.append(strLine);
    }
    return listLine;
}

int paragraphGap(const QString &strText)
{
    const QString strMargin = QStringLiteral("margin:");
    const int iMargin = strText.indexOf(strMargin);
    if (iMargin < 0) {
        return 0;
    }
    const int iNumber = iMargin + strMargin.size();
    return strText.midRef(iNumber, strText.indexOf(QLatin1String("px"), iNumber) - iNumber).toInt();
}

void fixHeight(QWidget *pLabel, qint64 iHeight)
{
    pLabel->setFixedHeight(int(qBound<qint64>(0, iHeight, QWIDGETSIZE_MAX)));
}

} // namespace

QString LabelText::getLineWrapText(int iWidth, const QString &strText, const QFontMetrics &metrics, int iMaxLines)
{
    if (strText.isEmpty() || widthAt(metrics, strText, 0) > iWidth) {
        return strText;
    }
    QString strWrapped;
    int iLines = 0;
    int iSum = 0;
    for (int i = 0; i < strText.size();) {
        const bool bBreak = strText.at(i) == QLatin1Char('\n');
        const int iOwn = bBreak ? 0 : widthAt(metrics, strText, i);
        const bool bOverflow = iSum > 0 && iSum + iOwn > iWidth;
        if (bBreak || bOverflow) {
            if (++iLines == iMaxLines) {
                return strWrapped.left(before(strWrapped, strWrapped.size())) + dots();
            }
            strWrapped += QLatin1Char('\n');
            iSum = 0;
        }
        if (bBreak) {
            ++i;
            continue;
        }
        const int iUnits = unitsAt(strText, i);
        strWrapped += strText.midRef(i, iUnits);
        iSum += iOwn;
        i += iUnits;
    }
    return strWrapped;
}

bool LabelText::stringFormatWithControl(QString strText, QWidget *pLabel, QString &strOut, int iMaxLines)
{
    strOut = strText;
    if (!pLabel) {
        return false;
    }
    const QFontMetrics metrics = pLabel->fontMetrics();
    if (strText.startsWith(QLatin1String("<p"))) {
        const qint64 iParagraphs = strText.count(QLatin1String("</p>"));
        fixHeight(pLabel, (iParagraphs - 1) * paragraphGap(strText) + iParagraphs * metrics.height());
        return true;
    }
    strText.remove(QLatin1Char('\n'));
    const int iWidth = pLabel->rect().width();
    if (fitsWhole(metrics, strText, iWidth)) {
        strOut = strText;
        fixHeight(pLabel, metrics.height() + cHeightSlack);
        return false;
    }
    const QStringList listLine = fittingLines(metrics, strText, iWidth - cLineSlack, iMaxLines);
    strOut = listLine.join(QLatin1Char('\n'));
    fixHeight(pLabel, qint64(metrics.height()) * listLine.size() + cHeightSlack);
    return true;
}
