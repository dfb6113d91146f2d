#include "common/html/HtmlTags.h"

namespace {

// The length of the longest entity that Qt reads, with its "&" and ";".
constexpr int cLongestEntity = 10;

/// The position of the ";" of the entity whose "&" stands at `iAt`, or the end of the text when that comes first. -1
/// when no entity begins there.
int endOfEntity(const QString &strHtml, int iAt)
{
    const int iMost = qMin(strHtml.size(), iAt + cLongestEntity);
    for (int i = iAt + 1; i < iMost; ++i) {
        if (strHtml.at(i).isSpace()) {
            return -1;
        }
        if (strHtml.at(i) == QLatin1Char(';')) {
            return i;
        }
    }
    return iMost == strHtml.size() ? iMost : -1;
}

/// Reads one tag, from behind its "<".
class Reader
{
public:
    Reader(const QString &strHtml, int iFrom) : m_strHtml(strHtml), m_i(iFrom) {}

    void read(HtmlTag &tag)
    {
        skipSpace();
        if (isAt('!')) {
            readRemark(tag);
        } else if (isAt('/')) {
            readClosing(tag);
        } else {
            readOpening(tag);
        }
        tag.iEnd = m_i;
    }

private:
    bool isAtEnd() const { return m_i >= m_strHtml.size(); }
    bool isAt(char c) const { return !isAtEnd() && m_strHtml.at(m_i) == QLatin1Char(c); }

    void skipSpace()
    {
        while (!isAtEnd() && m_strHtml.at(m_i).isSpace() && m_strHtml.at(m_i) != QChar::ParagraphSeparator) {
            ++m_i;
        }
    }

    void skipBehind(const QString &strMark)
    {
        const int i = m_strHtml.indexOf(strMark, m_i);
        m_i = i < 0 ? m_strHtml.size() : i + strMark.size();
    }

    void readRemark(HtmlTag &tag)
    {
        tag.bRemark = true;
        ++m_i;
        // Qt takes "<!-" with a single dash for the beginning of a comment.
        const bool bComment = isAt('-') && m_i + 2 < m_strHtml.size();
        m_i += bComment ? 3 : 0;
        skipBehind(bComment ? QStringLiteral("-->") : QStringLiteral(">"));
    }

    void readClosing(HtmlTag &tag)
    {
        tag.bClosing = true;
        ++m_i;
        readName(tag);
        tag.strName = tag.strName.trimmed();
        skipBehind(QStringLiteral(">"));
    }

    void readOpening(HtmlTag &tag)
    {
        readName(tag);
        if (!isAtEnd() && m_strHtml.at(m_i).isSpace()) {
            readAttributes(tag);
        }
        for (; !isAtEnd() && !isAt('>'); ++m_i) {
            tag.bSelfClosing = tag.bSelfClosing || isAt('/');
        }
        m_i = qMin(m_i + 1, m_strHtml.size());
    }

    void readName(HtmlTag &tag)
    {
        const int iName = m_i;
        tag.strName = word().toLower();
        tag.name = m_strHtml.midRef(iName, m_i - iName);
    }

    void readAttributes(HtmlTag &tag)
    {
        while (!isAtEnd()) {
            skipSpace();
            if (isAt('>') || isAt('/')) {
                return;
            }
            HtmlAttribute attribute;
            const int iKey = m_i;
            attribute.strKey = word().toLower();
            if (attribute.strKey.isEmpty()) {
                return;
            }
            int iEnd = m_i;
            skipSpace();
            if (isAt('=')) {
                ++m_i;
                skipSpace();
                const int iValue = m_i;
                word();
                iEnd = m_i;
                attribute.value = m_strHtml.midRef(iValue, iEnd - iValue);
            }
            attribute.source = m_strHtml.midRef(iKey, iEnd - iKey);
            tag.listAttribute.append(attribute);
        }
    }

    QString word()
    {
        if (isAt('"') || isAt('\'')) {
            return quoted(m_strHtml.at(m_i++));
        }
        QString strWord;
        while (!isAtEnd() && !isEndOfWord()) {
            readUnit(strWord);
        }
        return strWord;
    }

    // In single quotes, a quote behind a backslash does not end the word, and entities are not replaced.
    QString quoted(QChar quote)
    {
        QString strWord;
        const bool bSingle = quote == QLatin1Char('\'');
        while (!isAtEnd()) {
            if (m_strHtml.at(m_i) == quote && !(bSingle && m_strHtml.at(m_i - 1) == QLatin1Char('\\'))) {
                ++m_i;
                break;
            }
            if (bSingle) {
                strWord += m_strHtml.at(m_i++);
            } else {
                readUnit(strWord);
            }
        }
        return strWord;
    }

    // A "/" ends a word when ">" follows it, unless that ">" is the last character of the text.
    bool isEndOfWord() const
    {
        const QChar c = m_strHtml.at(m_i);
        const bool bSlash =
            c == QLatin1Char('/') && m_i + 2 < m_strHtml.size() && m_strHtml.at(m_i + 1) == QLatin1Char('>');
        return bSlash || c == QLatin1Char('>') || c == QLatin1Char('<') || c == QLatin1Char('=') || c.isSpace();
    }

    // Only numeric entities are replaced: none with a name stands for a letter of a tag or attribute name.
    void readUnit(QString &strWord)
    {
        const uint uiCode = isAt('&') ? HtmlTags::numericEntity(m_strHtml, m_i) : 0;
        if (uiCode == 0) {
            strWord += m_strHtml.at(m_i++);
            return;
        }
        m_i = qMin(endOfEntity(m_strHtml, m_i) + 1, m_strHtml.size());
        strWord += QString::fromUcs4(&uiCode, 1);
    }

    const QString &m_strHtml;
    int m_i;
};

} // namespace

HtmlTag HtmlTags::next(const QString &strHtml, int iFrom)
{
    HtmlTag tag;
    tag.iBegin = strHtml.indexOf(QLatin1Char('<'), iFrom);
    if (tag.iBegin >= 0) {
        Reader(strHtml, tag.iBegin + 1).read(tag);
    }
    return tag;
}

uint HtmlTags::numericEntity(const QString &strHtml, int iAt)
{
    if (iAt + 1 >= strHtml.size() || strHtml.at(iAt + 1) != QLatin1Char('#')) {
        return 0;
    }
    const int iEnd = endOfEntity(strHtml, iAt);
    if (iEnd < 0) {
        return 0;
    }
    QStringRef number = strHtml.midRef(iAt + 2, iEnd - iAt - 2);
    const bool bHex = number.startsWith(QLatin1Char('x'), Qt::CaseInsensitive);
    return (bHex ? number.mid(1) : number).toUInt(nullptr, bHex ? 16 : 10);
}
