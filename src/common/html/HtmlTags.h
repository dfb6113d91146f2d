#pragma once

// Cuts HTML, well-formed or not, at its tags, exactly where Qt's rich text does: blanks may stand behind "<", a quoted
// word may hold ">", a comment begins at "<!-", and what stands in a style, script or title is cut as anything else.
// One walk from the front. Any thread; no state.

#include <QString>
#include <QVector>

/// One attribute of a tag.
struct HtmlAttribute
{
    /// In lower case.
    QString strKey;
    /// The part of the text that it takes up, from the key through the value.
    QStringRef source;
    /// The value as it is written, with its quotes; null when it has no value.
    QStringRef value;
};

struct HtmlTag
{
    /// The position of "<"; -1 when the text has no further tag.
    int iBegin = -1;
    /// The position behind ">", or the end of the text.
    int iEnd = -1;
    /// In lower case; empty for remarks and when no name is written.
    QString strName;
    /// The name as it is written.
    QStringRef name;
    QVector<HtmlAttribute> listAttribute;
    /// "</name>".
    bool bClosing = false;
    /// "<name/>".
    bool bSelfClosing = false;
    /// A comment or a declaration.
    bool bRemark = false;
};

namespace HtmlTags {

/// The first tag from position `iFrom` on.
HtmlTag next(const QString &strHtml, int iFrom);

/// The character of the numeric entity whose "&" stands at `iAt`; 0 when no such entity begins there.
uint numericEntity(const QString &strHtml, int iAt);

} // namespace HtmlTags
