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

// The length of "https".
constexpr int cLongestScheme = 5;

/// Whether the ":" of "://" or the "." of "www." stands at `i`. Every address has one of the two near its beginning.
bool isMarkOfLink(const QChar *pFirst, int iSize, int i)
{
    const auto isW = [pFirst](int iAt) { return (pFirst[iAt].unicode() | 0x20) == 'w'; };
    if (pFirst[i] == QLatin1Char(':')) {
        return i + 2 < iSize && pFirst[i + 1] == QLatin1Char('/') && pFirst[i + 2] == QLatin1Char('/');
    }
    return pFirst[i] == QLatin1Char('.') && i >= 3 && isW(i - 1) && isW(i - 2) && isW(i - 3);
}

/// The position from which to try the pattern, so that it finds the first link at or behind `iFrom`; -1 when no link
/// can follow. The pattern is slow, so it is tried only near such a mark.
int nextPlaceOfLink(const QString &strText, int iFrom)
{
    for (int i = iFrom; i < strText.size(); ++i) {
        if (isMarkOfLink(strText.constData(), strText.size(), i)) {
            return qMax(iFrom, i - cLongestScheme);
        }
    }
    return -1;
}

// The chat view does not go to an address of the scheme "web" itself: it hands what follows to a browser.
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
    QRegExp pattern; // made below, once it is needed: that is costly
    QString strOutput;
    int iDone = 0;
    for (int iPlace = nextPlaceOfLink(strRest, 0); iPlace >= 0; iPlace = nextPlaceOfLink(strRest, iDone)) {
        if (pattern.isEmpty()) {
            pattern = linkPattern();
        }
        const int iLink = pattern.indexIn(strRest, iPlace);
        if (iLink < 0) {
            break;
        }
        strOutput += strRest.midRef(iDone, iLink - iDone);
        appendLink(strOutput, pattern.cap(0), strStyle);
        iDone = iLink + pattern.matchedLength();
    }
    strOutput += strRest.midRef(iDone);
    HtmlText::replaceSpace(strOutput);
    strText = strOutput;
}
