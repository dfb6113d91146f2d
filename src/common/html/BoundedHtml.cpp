#include "common/html/BoundedHtml.h"

#include "common/html/HtmlCost.h"
#include "common/html/HtmlTags.h"

#include <QSet>

#include <algorithm>

namespace {

const QString cFragmentBegin = QStringLiteral("<!--StartFragment-->");
const QString cFragmentEnd = QStringLiteral("<!--EndFragment-->");
const QString cOldEditorMark = QStringLiteral("<meta name=\"qrichtext\" content=\"1\" />");

/// What Qt reads of HTML that came from a clipboard: what stands between the two marks of the fragment. The mark of
/// Qt's own editor, which may stand outside them, is kept, because it changes how Qt reads the rest.
QString fragmentOf(const QString &strHtml)
{
    const int iBegin = strHtml.indexOf(cFragmentBegin);
    if (iBegin < 0) {
        return strHtml;
    }
    const int iEnd = strHtml.indexOf(cFragmentEnd);
    const QString strFragment = strHtml.mid(iBegin, iEnd > iBegin ? iEnd - iBegin : -1);
    return strHtml.contains(cOldEditorMark) ? cOldEditorMark + strFragment : strFragment;
}

/// Whether style rules may change the text: by telling how white space counts, that a paragraph is empty or that a
/// table is a frame. Rules with a backslash or "&" in them count as such, because an escape may hide any of these
/// words.
bool canChangeText(const QStringRef &css)
{
    return css.contains(QLatin1String("space"), Qt::CaseInsensitive) ||
           css.contains(QLatin1String("-qt-paragraph"), Qt::CaseInsensitive) ||
           css.contains(QLatin1String("-qt-table"), Qt::CaseInsensitive) || css.contains(QLatin1Char('\\')) ||
           css.contains(QLatin1Char('&'));
}

/// Whether one of the characters `marks` stands in a selector of the sheet, that is outside its braces.
bool selectsBy(const QStringRef &css, QLatin1String marks)
{
    int iDepth = 0;
    for (const QChar c : css) {
        iDepth += c == QLatin1Char('{') ? 1 : 0;
        iDepth -= c == QLatin1Char('}') ? 1 : 0;
        if (iDepth <= 0 && std::find(marks.begin(), marks.end(), c) != marks.end()) {
            return true;
        }
    }
    return false;
}

/// Writes the lean form of HTML.
class LeanWriter
{
public:
    /// With `bAll` all attributes and element names are kept, because a style sheet selects elements by them.
    LeanWriter(const QString &strHtml, bool bAll) : m_strHtml(strHtml), m_bAll(bAll), m_cost(strHtml.size()) {}

    /// False when the result would cost too much, or when needsAll() tells that a writer with `bAll` has to do it.
    bool write()
    {
        int iDone = 0;
        for (HtmlTag tag = HtmlTags::next(m_strHtml, 0); tag.iBegin >= 0; tag = HtmlTags::next(m_strHtml, iDone)) {
            addText(m_strHtml.midRef(iDone, tag.iBegin - iDone));
            addTag(tag);
            if (m_cost.isTooHigh() || needsAll()) {
                return false;
            }
            iDone = tag.iEnd;
        }
        addText(m_strHtml.midRef(iDone));
        return !m_cost.isTooHigh() && !needsAll();
    }

    bool needsAll() const { return m_bNeedsAll && !m_bAll; }
    QString written() const { return m_strLean; }

private:
    void addText(const QStringRef &text)
    {
        if (text.isEmpty()) {
            return;
        }
        if (m_cost.isInStyle()) {
            addStyle(text);
            return;
        }
        m_strLean += text;
        m_cost.text(text);
        const QChar last = text.at(text.size() - 1);
        // A ";" may end an entity that stands for a space, so it counts as one.
        m_bInLine = !m_bJustOpened && !last.isSpace() && last != QLatin1Char(';');
    }

    void addStyle(const QStringRef &css)
    {
        if (!canChangeText(css)) {
            return;
        }
        m_strLean += css;
        m_cost.addSheet(css.size(), selectsBy(css, QLatin1String("+~")));
        m_bNeedsAll = m_bNeedsAll || m_bRenamed || selectsBy(css, QLatin1String(".#[:\\&@"));
    }

    void addTag(const HtmlTag &tag)
    {
        if (tag.bRemark) {
            m_strLean += QLatin1String("<!>");
        } else if (tag.bClosing) {
            addClosing(tag.strName, tag.name.toString());
        } else if (tag.strName == QLatin1String("img") && m_bInLine && m_cost.isPlainLine()) {
            m_strLean += QChar::ObjectReplacementCharacter; // gives the same text as the image, without its layout
        } else {
            addOpening(tag);
        }
    }

    void addClosing(const QString &strName, const QString &strSource)
    {
        const QString strWritten = m_cost.writtenName(strName);
        const QString strTag = strWritten == strName ? strSource : strWritten;
        for (int i = m_cost.close(strName); i > 0; --i) {
            m_strLean += QLatin1String("</") + strTag + endOf(strTag);
            m_bInLine = false;
            m_bJustOpened = false;
        }
    }

    void addOpening(const HtmlTag &tag)
    {
        if (tag.strName == QLatin1String("li") && m_cost.isListFull()) {
            cutList();
        }
        addElement(tag, kept(tag));
        m_bInLine = tag.strName == QLatin1String("img") || tag.strName == QLatin1String("br");
        m_bJustOpened = !m_bInLine;
    }

    void addElement(const HtmlTag &tag, const QString &strKept)
    {
        const QString strWritten = writtenName(tag.strName);
        m_bRenamed = m_bRenamed || strWritten != tag.strName;
        m_cost.open(tag, strKept, strWritten);
        // An element without a name gets the name "=". Qt would otherwise read what follows as the name.
        const QString strName = tag.name.isEmpty() ? QStringLiteral("=") : tag.name.toString();
        const QString strTag = (strWritten == tag.strName ? strName : nameAndStyle(strWritten)) + strKept;
        m_strLean += QLatin1Char('<') + strTag + (tag.bSelfClosing ? QLatin1String(" />") : endOf(strTag));
    }

    // Qt asks the system for the fixed font anew at each element that is set in it. Such an element is written as one
    // that differs from it in the looks alone, unless there is a style sheet, whose rules could tell the two apart.
    QString writtenName(const QString &strName) const
    {
        static const QSet<QString> fixedPitch{"code", "tt", "kbd", "samp"};
        if (m_bAll || m_cost.hasSheets()) {
            return strName;
        }
        if (fixedPitch.contains(strName)) {
            return QStringLiteral("var");
        }
        return strName == QLatin1String("pre") ? QStringLiteral("center") : strName;
    }

    static QString nameAndStyle(const QString &strWritten)
    {
        return strWritten == QLatin1String("center") ? strWritten + QLatin1String(" style=white-space:pre")
                                                     : strWritten;
    }

    // With a blank behind it, a "/" at the tag's end does not make the element one that closes itself.
    static QLatin1String endOf(const QString &strTag)
    {
        return QLatin1String(strTag.endsWith(QLatin1Char('/')) ? " >" : ">");
    }

    // Closes the list and opens another like it: two lists give the same text as one.
    void cutList()
    {
        const QPair<QString, QString> list = m_cost.openList();
        addClosing(list.first, list.first);
        HtmlTag tag;
        tag.strName = list.first;
        tag.name = QStringRef(&list.first);
        addElement(tag, list.second);
    }

    QString kept(const HtmlTag &tag) const
    {
        QString strKept;
        for (const HtmlAttribute &attribute : tag.listAttribute) {
            if (m_bAll || isKept(tag.strName, attribute)) {
                strKept += QLatin1Char(' ') + attribute.source;
            }
        }
        return strKept;
    }

    static bool isKept(const QString &strTag, const HtmlAttribute &attribute)
    {
        const QString &strKey = attribute.strKey;
        if (strTag == QLatin1String("meta")) {
            return strKey == QLatin1String("name") || strKey == QLatin1String("content");
        }
        if (strTag == QLatin1String("td") || strTag == QLatin1String("th")) {
            if (strKey == QLatin1String("colspan") || strKey == QLatin1String("rowspan")) {
                return true;
            }
        }
        return strKey == QLatin1String("style") && canChangeText(attribute.value);
    }

    const QString &m_strHtml;
    const bool m_bAll;
    HtmlCost m_cost;
    QString m_strLean = QLatin1String("");
    bool m_bRenamed = false;
    bool m_bNeedsAll = false;
    // Whether what was written last was text, an image or a line break.
    bool m_bInLine = false;
    // Whether the last tag opened an element other than an image or a break. A block that was closed just before that
    // tag still ends the line then.
    bool m_bJustOpened = false;
};

/// Writes the bare form of HTML.
class BareWriter
{
public:
    QString write(const QString &strHtml)
    {
        int iDone = 0;
        for (HtmlTag tag = HtmlTags::next(strHtml, 0); tag.iBegin >= 0; tag = HtmlTags::next(strHtml, iDone)) {
            addText(strHtml.midRef(iDone, tag.iBegin - iDone));
            if (!tag.bRemark) {
                addTag(tag);
            }
            iDone = tag.iEnd;
        }
        addText(strHtml.midRef(iDone));
        return QLatin1String("<pre>") + m_strBare;
    }

private:
    void addTag(const HtmlTag &tag)
    {
        static const QSet<QString> hidden{"script", "style", "title"};
        static const QSet<QString> blocks{"address", "blockquote", "body", "center", "dd", "div", "dl", "dt",
                                          "h1",      "h2",         "h3",   "h4",     "h5", "h6",  "hr", "li",
                                          "ol",      "p",          "pre",  "table",  "td", "th",  "tr", "ul"};
        if (!m_strHidden.isEmpty()) {
            if (tag.bClosing && tag.strName == m_strHidden) {
                m_strHidden.clear();
            }
            return;
        }
        if (!tag.bClosing && !tag.bSelfClosing && hidden.contains(tag.strName)) {
            m_strHidden = tag.strName;
        } else if (tag.strName == QLatin1String("br") && !tag.bClosing) {
            breakLine();
        } else if (tag.strName == QLatin1String("img") && !tag.bClosing) {
            addUnit(QChar::ObjectReplacementCharacter);
        } else if (blocks.contains(tag.strName)) {
            m_bNewBlock = true;
        }
        if (tag.strName == QLatin1String("pre")) {
            m_bPre = !tag.bClosing && !tag.bSelfClosing;
        }
    }

    void breakLine()
    {
        addUnit(QChar::LineSeparator);
        m_bAfterSpace = true;
    }

    void addText(const QStringRef &text)
    {
        if (!m_strHidden.isEmpty()) {
            return;
        }
        for (int i = 0; i < text.size(); ++i) {
            const uint uiCode =
                text.at(i) == QLatin1Char('&') ? HtmlTags::numericEntity(*text.string(), text.position() + i) : 0;
            if (!isSpace(uiCode != 0 ? uiCode : text.at(i).unicode())) {
                addUnit(text.at(i));
                continue;
            }
            addSpace(uiCode != 0 ? QChar::Space : text.at(i));
            while (uiCode != 0 && i + 1 < text.size() && text.at(i) != QLatin1Char(';')) {
                ++i;
            }
        }
    }

    // The two marks by which Qt begins and ends a frame count as spaces too: each would begin a new block in Qt's text.
    static bool isSpace(uint uiCode)
    {
        return uiCode == 0xFDD0 || uiCode == 0xFDD1 || (uiCode != 0xA0 && QChar::isSpace(uiCode));
    }

    void addSpace(QChar c)
    {
        if (m_bPre && c == QLatin1Char('\n')) {
            breakLine();
        } else if (m_bPre) {
            addUnit(QLatin1Char(' '));
        } else if (!m_bAfterSpace && !m_bNewBlock) {
            addUnit(QLatin1Char(' '));
        }
        m_bAfterSpace = true;
    }

    void addUnit(QChar c)
    {
        if (m_bNewBlock && !m_strBare.isEmpty()) {
            m_strBare += QChar(QChar::LineSeparator);
        }
        m_bNewBlock = false;
        m_bAfterSpace = false;
        m_strBare += c;
    }

    QString m_strBare;
    QString m_strHidden;
    bool m_bPre = false;
    bool m_bNewBlock = true;
    bool m_bAfterSpace = false;
};

} // namespace

QString BoundedHtml::lean(const QString &strHtml)
{
    const QString strRead = fragmentOf(strHtml);
    LeanWriter writer(strRead, false);
    if (writer.write()) {
        return writer.written();
    }
    if (!writer.needsAll()) {
        return {};
    }
    LeanWriter whole(strRead, true);
    return whole.write() ? whole.written() : QString();
}

QString BoundedHtml::bare(const QString &strHtml)
{
    return BareWriter().write(fragmentOf(strHtml));
}

QString BoundedHtml::modest(const QString &strHtml)
{
    const QString strLean = lean(strHtml);
    return strLean.isNull() ? bare(strHtml) : strLean;
}
