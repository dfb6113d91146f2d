#include "common/html/HtmlText.h"

#include "common/text/ReplaceAll.h"

#include <QStringList>

namespace {

struct Escape
{
    char cPlain;
    const char *pEncoded;
};

// The percent sign comes first, so that what the other rows write stays intact.
constexpr Escape cUrlEscapes[] = {
    {'%', "%25"}, {'&', "%26"}, {'+', "%2B"}, {' ', "%20"}, {'/', "%2F"}, {'?', "%3F"}, {'#', "%23"}, {'=', "%3D"},
};

} // namespace

void HtmlText::replaceSpace(QString &strText)
{
    replaceAll(strText, QStringLiteral("  "), QStringLiteral("&nbsp;&nbsp;"));
}

void HtmlText::replaceLineBreak(QString &strText)
{
    replaceAll(strText, QStringLiteral("\n"), QStringLiteral("<br/>"));
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
    replaceAll(strText, QStringLiteral("&lt;"), QStringLiteral("<"));
    replaceAll(strText, QStringLiteral("&gt;"), QStringLiteral(">"));
    replaceAll(strText, QStringLiteral("&quot;"), QStringLiteral("\""));
    return strText;
}

QString HtmlText::getDealWithHtmlText(QString strText)
{
    replaceAll(strText, QStringLiteral("<"), QStringLiteral("&lt;"));
    return strText;
}

void HtmlText::escapeURLChar(QString &strText)
{
    for (const Escape &escape : cUrlEscapes) {
        replaceAll(strText, QString(QLatin1Char(escape.cPlain)), QLatin1String(escape.pEncoded));
    }
}
