#include "common/html/MessageHtml.h"

#include "common/Palette.h"
#include "common/html/DomText.h"
#include "common/html/HtmlLinks.h"
#include "common/html/HtmlText.h"
#include "common/text/ReplaceAll.h"
#include "model/SkinContext.h"

#include <QDomDocument>
#include <QStringList>

namespace {

// Each text with double spaces is looked for in the whole message. That ends when so many UTF-16 units have been walked
// over, but not before so many texts have been replaced: an ordinary message has all of them replaced, and one of
// megabytes does not take long.
constexpr int cMostWalkedUnits = 100000000;
constexpr int cFewestSpacedTexts = 20;

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
        if (strStyle.isEmpty() && !span.attribute(QStringLiteral("style")).isEmpty()) {
            strStyle = linkStyle(span.attribute(QStringLiteral("style")));
        }
        const QDomNode first = span.firstChild();
        const QString strText = first.isElement() ? first.toElement().text() : first.nodeValue();
        if (strText.contains(QLatin1String("  "))) {
            listSpacedText.append(strText);
        }
    }
};

SpanFindings spansOf(const QString &strBody)
{
    SpanFindings findings;
    QDomDocument document;
    // Only a whole document has paragraphs to look at; parsing a fragment would be in vain.
    if (!strBody.contains(QLatin1String("<html")) || !DomText::parse(strBody, document)) {
        return findings;
    }
    const QString strParagraph = QStringLiteral("p");
    const QString strSpan = QStringLiteral("span");
    const QDomElement body =
        document.firstChildElement(QStringLiteral("html")).firstChildElement(QStringLiteral("body"));
    for (auto p = body.firstChildElement(strParagraph); !p.isNull(); p = p.nextSiblingElement(strParagraph)) {
        for (auto span = p.firstChildElement(strSpan); !span.isNull(); span = span.nextSiblingElement(strSpan)) {
            findings.add(span);
        }
    }
    return findings;
}

// The making of links writes "&nbsp;&nbsp;" for two spaces in any case, so this makes a difference only in a message
// that has an "&nbsp;" already.
void keepSpaces(const QStringList &listSpacedText, QString &strResult)
{
    if (!strResult.contains(QLatin1String("&nbsp;"))) {
        return;
    }
    int iMost = qMax(cFewestSpacedTexts, cMostWalkedUnits / strResult.size());
    for (const QString &strText : listSpacedText) {
        if (iMost-- == 0) {
            return;
        }
        QString strSpaced = strText;
        HtmlText::replaceSpace(strSpaced);
        replaceAll(strResult, strText, strSpaced);
    }
}

} // namespace

QString MessageHtml::convertMessageBody(const QString &strBody, bool bReplaceSpace)
{
    QString strResult = strBody;
    if (bReplaceSpace) {
        HtmlText::replaceSpace(strResult);
    }
    const QString strEnd = QStringLiteral("</p>");
    const int iFirst = strBody.indexOf(QLatin1String("<p"));
    const int iLast = strBody.lastIndexOf(strEnd);
    // Deliberate: the stretch is that of the untouched body, so the spaces replaced above are lost.
    if (iFirst >= 0 && iLast > iFirst) {
        strResult = strBody.mid(iFirst, iLast + strEnd.size() - iFirst);
    }
    const SpanFindings findings = spansOf(strBody);
    keepSpaces(findings.listSpacedText, strResult);
    HtmlLinks::convertWebLink(strResult, findings.strStyle);
    return strResult;
}
