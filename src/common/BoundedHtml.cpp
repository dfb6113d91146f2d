#include "common/BoundedHtml.h"

#include "common/HtmlTags.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace {

/// What costs time in HTML, added up tag by tag.
class Load
{
public:
    explicit Load(const QString &strHtml) : m_strHtml(strHtml) {}

    void add(const HtmlTag &tag)
    {
        ++m_iTags;
        m_iNameless += tag.strName.isEmpty() && !tag.bRemark ? 1 : 0;
        if (tag.bClosing)
            close(tag.strName);
        else if (!tag.strName.isEmpty())
            open(tag);
    }

    bool isModest() const
    {
        return m_iTags <= BoundedHtml::MOST_TAGS && m_iDepth <= BoundedHtml::MOST_DEPTH &&
               m_iImages <= BoundedHtml::MOST_IMAGES && m_iStyleUnits <= BoundedHtml::MOST_STYLE_UNITS &&
               qint64(m_iTags) * m_iStyleUnits <= BoundedHtml::MOST_TAGS_TIMES_STYLE_UNITS &&
               m_iStyles <= BoundedHtml::MOST_STYLES && m_iNameless <= BoundedHtml::MOST_NAMELESS && !m_bWideCell &&
               m_iRows * m_iCells <= BoundedHtml::MOST_TABLE_PLACES;
    }

private:
    // These never lie in their like: they are empty, or a further one ends the one before.
    static bool nests(const QString &strName)
    {
        static const QSet<QString> ALONE{"area", "base", "br",    "col",  "dd", "dt", "hr", "img",
                                         "li",   "link", "input", "meta", "p",  "td", "th", "tr"};
        return !ALONE.contains(strName);
    }

    void open(const HtmlTag &tag)
    {
        if (tag.strName == QLatin1String("img"))
            ++m_iImages;
        else if (tag.strName == QLatin1String("style"))
            addStyle(tag);
        else if (tag.strName == QLatin1String("tr"))
            ++m_iRows;
        else if (tag.strName == QLatin1String("td") || tag.strName == QLatin1String("th"))
            addCell(tag);
        if (!tag.bSelfClosing && nests(tag.strName)) {
            ++m_open[tag.strName];
            ++m_iDepth;
        }
    }

    void close(const QString &strName)
    {
        const auto it = m_open.find(strName);
        if (it == m_open.end() || it.value() == 0)
            return;
        --it.value();
        --m_iDepth;
    }

    void addStyle(const HtmlTag &tag)
    {
        ++m_iStyles;
        m_iStyleUnits += HtmlTags::behind(m_strHtml, tag) - tag.iEnd;
    }

    // A span of three digits and more, or one that only shows when an entity is read, is wide; "100%" is no number and
    // counts as one cell.
    void addCell(const HtmlTag &tag)
    {
        static const QRegularExpression spans(R"((?:col|row)span\s*=\s*["']?(?:0*(\d{1,2})[\s"'/>]|\d+%))",
                                              QRegularExpression::CaseInsensitiveOption);
        static const QRegularExpression anySpan("(?:col|row)span", QRegularExpression::CaseInsensitiveOption);
        ++m_iCells;
        QString strTag = tag.in(m_strHtml).toString();
        auto found = spans.globalMatch(strTag);
        while (found.hasNext())
            m_iCells += found.next().captured(1).toInt();
        m_bWideCell = m_bWideCell || strTag.remove(spans).contains(anySpan) || strTag.contains(QLatin1String("&#"));
    }

    const QString &m_strHtml;
    QHash<QString, int> m_open;
    int m_iTags = 0;
    int m_iDepth = 0;
    int m_iImages = 0;
    int m_iStyles = 0;
    int m_iStyleUnits = 0;
    int m_iNameless = 0;
    qint64 m_iRows = 0;
    qint64 m_iCells = 0;
    bool m_bWideCell = false;
};

// How white space counts is up to the sheet.
QString shortStyle(const QString &strHtml)
{
    HtmlTag tag = HtmlTags::next(strHtml, 0);
    while (tag.iBegin >= 0 && tag.strName != QLatin1String("style"))
        tag = HtmlTags::next(strHtml, HtmlTags::behind(strHtml, tag));
    if (tag.iBegin < 0 || tag.bClosing)
        return {};
    const int iUnits = HtmlTags::behind(strHtml, tag) - tag.iEnd;
    if (iUnits > BoundedHtml::MOST_KEPT_STYLE_UNITS)
        return {};
    return QLatin1String("<style>") + strHtml.midRef(tag.iEnd, iUnits) + QLatin1String("</style>");
}

QString bareForm(const HtmlTag &tag)
{
    static const QSet<QString> BLOCKS{"address", "blockquote", "body", "center", "dd", "div", "dl", "dt",
                                      "h1",      "h2",         "h3",   "h4",     "h5", "h6",  "hr", "li",
                                      "ol",      "p",          "pre",  "table",  "td", "th",  "tr", "ul"};
    if (BLOCKS.contains(tag.strName))
        return tag.bClosing ? QStringLiteral("</p>") : QStringLiteral("<p>");
    if (tag.strName == QLatin1String("br"))
        return QStringLiteral("<br/>");
    return tag.strName == QLatin1String("img") ? QString(QChar::ObjectReplacementCharacter) : QString();
}

} // namespace

bool BoundedHtml::isModest(const QString &strHtml)
{
    Load load(strHtml);
    for (HtmlTag tag = HtmlTags::next(strHtml, 0); tag.iBegin >= 0;
         tag = HtmlTags::next(strHtml, HtmlTags::behind(strHtml, tag))) {
        load.add(tag);
        if (!load.isModest())
            return false;
    }
    return true;
}

QString BoundedHtml::modest(const QString &strHtml)
{
    if (isModest(strHtml))
        return strHtml;
    QString strBare = shortStyle(strHtml);
    int iDone = 0;
    for (HtmlTag tag = HtmlTags::next(strHtml, 0); tag.iBegin >= 0; tag = HtmlTags::next(strHtml, iDone)) {
        strBare += strHtml.midRef(iDone, tag.iBegin - iDone);
        strBare += bareForm(tag);
        iDone = HtmlTags::behind(strHtml, tag);
    }
    return strBare + strHtml.midRef(iDone);
}
