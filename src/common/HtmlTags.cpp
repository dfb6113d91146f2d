#include "common/HtmlTags.h"

namespace {

bool isNameUnit(QChar unit)
{
    return unit < QChar(0x80) && (unit.isLetterOrNumber() || unit == QLatin1Char(':') || unit == QLatin1Char('_') ||
                                  unit == QLatin1Char('-'));
}

int endOf(const QString &strHtml, const QString &strMark, int iFrom)
{
    const int i = strHtml.indexOf(strMark, iFrom);
    return i < 0 ? strHtml.size() : i + strMark.size();
}

} // namespace

HtmlTag HtmlTags::next(const QString &strHtml, int iFrom)
{
    HtmlTag tag;
    tag.iBegin = strHtml.indexOf(QLatin1Char('<'), iFrom);
    if (tag.iBegin < 0)
        return tag;
    int i = tag.iBegin + 1;
    tag.bRemark = i < strHtml.size() && strHtml.at(i) == QLatin1Char('!');
    if (tag.bRemark) {
        const bool bComment = strHtml.midRef(i, 3) == QLatin1String("!--");
        tag.iEnd = endOf(strHtml, bComment ? QStringLiteral("-->") : QStringLiteral(">"), i);
        return tag;
    }
    tag.bClosing = i < strHtml.size() && strHtml.at(i) == QLatin1Char('/');
    const int iName = tag.bClosing ? i + 1 : i;
    for (i = iName; i < strHtml.size() && isNameUnit(strHtml.at(i));)
        ++i;
    tag.strName = strHtml.mid(iName, i - iName).toLower();
    tag.iEnd = endOf(strHtml, QStringLiteral(">"), i);
    tag.bSelfClosing = tag.in(strHtml).endsWith(QLatin1String("/>"));
    return tag;
}

int HtmlTags::behind(const QString &strHtml, const HtmlTag &opening)
{
    const bool bRaw = opening.strName == QLatin1String("style") || opening.strName == QLatin1String("script") ||
                      opening.strName == QLatin1String("title");
    if (!bRaw || opening.bClosing || opening.bSelfClosing)
        return opening.iEnd;
    const int iClosing = strHtml.indexOf(QLatin1String("</") + opening.strName, opening.iEnd, Qt::CaseInsensitive);
    return iClosing < 0 ? strHtml.size() : iClosing;
}
