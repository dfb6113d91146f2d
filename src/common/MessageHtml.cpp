#include "common/MessageHtml.h"

#include "common/DomText.h"
#include "common/HtmlLinks.h"
#include "common/HtmlText.h"
#include "common/Palette.h"
#include "model/SkinContext.h"

#include <QDomDocument>
#include <QStringList>

namespace {

// Each costs a walk over the message. Beyond them a text could only show where an entity stands beside two spaces:
// links take "&nbsp;&nbsp;" and two spaces for the same.
constexpr int MOST_SPACED_TEXTS = 100;

QString linkColour()
{
    const SysUIData *pSkin = SkinContext::getSkinData();
    const bool bGreen =
        pSkin->m_strSkinName == QLatin1String("ThemeGreen") || pSkin->m_strSkinName == QLatin1String("ThemeGrey");
    return bGreen ? strCOLOR_SKINTHEME_GREEN : pSkin->m_strMainColor;
}

QString linkStyle(const QString &strSpanStyle)
{
    QString strStyle = strSpanStyle + QLatin1String("color: @UINT_COLOR@;");
    strStyle.replace(QLatin1String("@UINT_COLOR@"), linkColour());
    return QLatin1String("style=\"") + strStyle + QLatin1String("\" class=\"UNITECLASS\"");
}

/// What the spans in a message's paragraphs say of it.
struct SpanFindings
{
    QString strStyle;
    QStringList listSpacedText;

    void add(const QDomElement &span)
    {
        // Deliberate: the first style is kept for all that follows.
        if (strStyle.isEmpty() && !span.attribute(QStringLiteral("style")).isEmpty())
            strStyle = linkStyle(span.attribute(QStringLiteral("style")));
        const QDomNode first = span.firstChild();
        const QString strText = first.isElement() ? first.toElement().text() : first.nodeValue();
        if (listSpacedText.size() < MOST_SPACED_TEXTS && strText.contains(QLatin1String("  ")))
            listSpacedText.append(strText);
    }
};

SpanFindings spansOf(const QString &strBody)
{
    SpanFindings findings;
    QDomDocument document;
    // Only a whole document has paragraphs to look at; parsing a fragment would be in vain.
    if (!strBody.contains(QLatin1String("<html")) || !DomText::parse(strBody, document))
        return findings;
    const QString strParagraph = QStringLiteral("p");
    const QString strSpan = QStringLiteral("span");
    const QDomElement body =
        document.firstChildElement(QStringLiteral("html")).firstChildElement(QStringLiteral("body"));
    for (auto p = body.firstChildElement(strParagraph); !p.isNull(); p = p.nextSiblingElement(strParagraph))
        for (auto span = p.firstChildElement(strSpan); !span.isNull(); span = span.nextSiblingElement(strSpan))
            findings.add(span);
    return findings;
}

} // namespace

QString MessageHtml::convertMessageBody(const QString &strBody, bool bReplaceSpace)
{
    QString strResult = strBody;
    if (bReplaceSpace)
        HtmlText::replaceSpace(strResult);
    const QString strEnd = QStringLiteral("</p>");
    const int iFirst = strBody.indexOf(QLatin1String("<p"));
    const int iLast = strBody.lastIndexOf(strEnd);
    // Deliberate: the stretch is that of the untouched body, so the spaces replaced above are lost.
    if (iFirst >= 0 && iLast > iFirst)
        strResult = strBody.mid(iFirst, iLast + strEnd.size() - iFirst);
    const SpanFindings findings = spansOf(strBody);
    for (const QString &strText : findings.listSpacedText) {
        QString strSpaced = strText;
        HtmlText::replaceSpace(strSpaced);
        strResult.replace(strText, strSpaced);
    }
    HtmlLinks::convertWebLink(strResult, findings.strStyle);
    return strResult;
}
