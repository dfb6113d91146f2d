#include "common/HtmlLinks.h"

#include "common/HtmlText.h"
#include "common/ReplaceAll.h"

#include <QRegExp>

namespace {

// The view takes addresses of this private scheme out of its own navigation and opens what follows.
QString linkTemplate()
{
    return QStringLiteral("<a onfocus='this.blur()' href='web://urllink//@URL@' target='_blank' @STYLE@>@URL@</a>");
}

QRegExp linkPattern()
{
    return QRegExp(QStringLiteral(R"(((http|https|ftp)://|(www)\.)(\w+)(\.?[\.a-z0-9/:?%&=\-_+#;]*))"),
                   Qt::CaseInsensitive);
}

QString link(const QString &strUrl, const QString &strStyle)
{
    return linkTemplate().replace(QLatin1String("@URL@"), strUrl).replace(QLatin1String("@STYLE@"), strStyle);
}

} // namespace

void HtmlLinks::convertWebLink(QString &strText, const QString &strStyle)
{
    QString strRest = strText;
    replaceAll(strRest, QStringLiteral("&nbsp;&nbsp;"), QStringLiteral("  "));
    const QRegExp pattern = linkPattern();
    QString strOutput;
    int iDone = 0;
    for (int i = pattern.indexIn(strRest); i >= 0; i = pattern.indexIn(strRest, iDone)) {
        strOutput += strRest.midRef(iDone, i - iDone);
        strOutput += link(pattern.cap(0), strStyle);
        iDone = i + pattern.matchedLength();
    }
    strOutput += strRest.midRef(iDone);
    HtmlText::replaceSpace(strOutput);
    strText = strOutput;
}
