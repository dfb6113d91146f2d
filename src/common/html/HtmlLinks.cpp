#include "common/html/HtmlLinks.h"

#include "common/html/HtmlText.h"
#include "common/text/ReplaceAll.h"

#include <QRegExp>
#include <QStringBuilder>

namespace {

QRegExp linkPattern()
{
    return QRegExp(QStringLiteral(R"(((http|https|ftp)://|(www)\.)(\w+)(\.?[\.a-z0-9/:?%&=\-_+#;]*))"),
                   Qt::CaseInsensitive);
}

// Of "https", in characters.
constexpr int LONGEST_SCHEME = 5;

/// Whether "://" begins at `i`, or the "." of a "www." stands there. Every link has one of the two.
bool isMarkOfLink(const QChar *pFirst, int iSize, int i)
{
    const auto isW = [pFirst](int iAt) { return (pFirst[iAt].unicode() | 0x20) == 'w'; };
    if (pFirst[i] == QLatin1Char(':'))
        return i + 2 < iSize && pFirst[i + 1] == QLatin1Char('/') && pFirst[i + 2] == QLatin1Char('/');
    return pFirst[i] == QLatin1Char('.') && i >= 3 && isW(i - 1) && isW(i - 2) && isW(i - 3);
}

/// A position from which the pattern finds the first link at or behind `iFrom`; -1 where no link can follow. The
/// pattern is slow, so it is not tried where no mark is near.
int nextPlaceOfLink(const QString &strText, int iFrom)
{
    for (int i = iFrom; i < strText.size(); ++i) {
        if (isMarkOfLink(strText.constData(), strText.size(), i))
            return qMax(iFrom, i - LONGEST_SCHEME);
    }
    return -1;
}

// The view takes addresses of this private scheme out of its own navigation and opens what follows.
void appendLink(QString &strOutput, const QString &strUrl, const QString &strStyle)
{
    strOutput += QLatin1String("<a onfocus='this.blur()' href='web://urllink//") % strUrl %
                 QLatin1String("' target='_blank' ") % strStyle % QLatin1Char('>') % strUrl % QLatin1String("</a>");
}

} // namespace

void HtmlLinks::convertWebLink(QString &strText, const QString &strStyle)
{
    QString strRest = strText;
    replaceAll(strRest, QStringLiteral("&nbsp;&nbsp;"), QStringLiteral("  "));
    QRegExp pattern; // costly to make, so only once there is a mark
    QString strOutput;
    int iDone = 0;
    for (int iPlace = nextPlaceOfLink(strRest, 0); iPlace >= 0; iPlace = nextPlaceOfLink(strRest, iDone)) {
        if (pattern.isEmpty())
            pattern = linkPattern();
        const int iLink = pattern.indexIn(strRest, iPlace);
        if (iLink < 0)
            break;
        strOutput += strRest.midRef(iDone, iLink - iDone);
        appendLink(strOutput, pattern.cap(0), strStyle);
        iDone = iLink + pattern.matchedLength();
    }
    strOutput += strRest.midRef(iDone);
    HtmlText::replaceSpace(strOutput);
    strText = strOutput;
}
