#include "common/HtmlLinks.h"

#include "common/HtmlText.h"
#include "common/ReplaceAll.h"

#include <QRegExp>
#include <QStringBuilder>

namespace {

QRegExp linkPattern()
{
    return QRegExp(QStringLiteral(R"(((http|https|ftp)://|(www)\.)(\w+)(\.?[\.a-z0-9/:?%&=\-_+#;]*))"),
                   Qt::CaseInsensitive);
}

// What every link begins with at most so many characters before, and has: the end of a scheme, or "www.".
constexpr int LONGEST_SCHEME = 5;

bool isMarkOfLink(const QChar *pFirst, int iSize, int i)
{
    const auto isW = [pFirst](int iAt) { return (pFirst[iAt].unicode() | 0x20) == 'w'; };
    if (pFirst[i] == QLatin1Char(':'))
        return i + 2 < iSize && pFirst[i + 1] == QLatin1Char('/') && pFirst[i + 2] == QLatin1Char('/');
    return pFirst[i] == QLatin1Char('.') && i >= 3 && isW(i - 1) && isW(i - 2) && isW(i - 3);
}

/// Where the pattern's search may begin so that it finds the next link from `iFrom` on; -1 where there is none. Looking
/// for the marks costs a small part of what the pattern does.
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
    QRegExp pattern; // made for a text that may have a link only
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
