#include "common/HtmlText.h"

#include <QStringList>

namespace {

struct Escape
{
    char cPlain;
    const char *pEncoded;
};

// The percent sign comes first, so that what the other rows write stays intact.
constexpr Escape URL_ESCAPES[] = {
    {'%', "%25"}, {'&', "%26"}, {'+', "%2B"}, {' ', "%20"}, {'/', "%2F"}, {'?', "%3F"}, {'#', "%23"}, {'=', "%3D"},
};

} // namespace

void HtmlText::replaceSpace(QString &strText)
{
    strText.replace(QLatin1String("  "), QLatin1String("&nbsp;&nbsp;"));
}

void HtmlText::replaceLineBreak(QString &strText)
{
    strText.replace(QLatin1Char('\n'), QLatin1String("<br/>"));
}

void HtmlText::replaceLineBreakToParagraph(QString &strText)
{
    const QStringList listLine = strText.split(QLatin1Char('\n'), Qt::KeepEmptyParts);
    strText.clear();
    for (const QString &strLine : listLine) {
        const QString strContent = strLine.isEmpty() ? QStringLiteral("<br/>") : strLine;
        strText += QLatin1String("<p>") + strContent + QLatin1String("</p>\n");
    }
}

QString HtmlText::regainHtmlText(QString strText)
{
    strText.replace(QLatin1String("&lt;"), QLatin1String("<"));
    strText.replace(QLatin1String("&gt;"), QLatin1String(">"));
    strText.replace(QLatin1String("&quot;"), QLatin1String("\""));
    return strText;
}

QString HtmlText::getDealWithHtmlText(QString strText)
{
    strText.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    return strText;
}

void HtmlText::escapeURLChar(QString &strText)
{
    for (const Escape &escape : URL_ESCAPES)
        strText.replace(QLatin1Char(escape.cPlain), QLatin1String(escape.pEncoded));
}
