#pragma once

// Cuts HTML, well-formed or not, at its tags, in one walk from the front. Any thread; no state.

#include <QString>

struct HtmlTag
{
    /// The position of "<"; -1 when the text has no further tag.
    int iBegin = -1;
    /// The position behind ">", or the end of the text.
    int iEnd = -1;
    /// In lower case; empty for comments, declarations and a "<" without a name.
    QString strName;
    /// "</name>".
    bool bClosing = false;
    /// "<name/>".
    bool bSelfClosing = false;
    /// A comment or a declaration.
    bool bRemark = false;

    /// The tag as it stands in the text.
    QStringRef in(const QString &strHtml) const { return strHtml.midRef(iBegin, iEnd - iBegin); }
};

namespace HtmlTags {

/// The first tag from position `iFrom` on. It ends at the next ">", also one within quotes.
HtmlTag next(const QString &strHtml, int iFrom);

/// The position behind the tag `opening`, or, when the element holds raw text (style, script or title), that of its
/// closing tag; the end of the text when that is missing.
int behind(const QString &strHtml, const HtmlTag &opening);

} // namespace HtmlTags
