#include "common/html/HtmlCost.h"

#include <algorithm>

namespace {

// What each thing costs, in microseconds.
constexpr double cInline = 3;
constexpr double cBlock = 5;
constexpr double cClosing = 2;
constexpr double cTable = 30;
constexpr double cList = 10;
constexpr double cPlace = 3;
constexpr double cCell = 8;
constexpr double cSpanningCell = 10;
constexpr double cImage = 15;
// High, because Qt asks the system for the fixed font each time.
constexpr double cCode = 300;
constexpr double cNewBlockInText = 6;
constexpr double cUnit = 0.03;
constexpr double cAttributeUnit = 0.2;
constexpr double cEscapeTimesUnit = 0.00004;
constexpr double cInheritedUnit = 0.001;
// For each element that is open around it.
constexpr double cLevel = 0.04;
constexpr double cUnmatchedLevel = 0.02;
constexpr double cTableLevel = 0.25;
constexpr double cSheetUnitLevel = 0.02;
constexpr int cUnitsOfEmptySheet = 2;
constexpr double cSheetUnitLevelSquare = 0.000002;
// For each of the same kind that came before it.
constexpr double cFormatBefore = 0.07;
constexpr double cItemBefore = 0.12;
constexpr double cBlockInList = 0.003;
constexpr double cTableBefore = 0.002;
constexpr double cSiblingBefore = 0.002;
constexpr double cImageUnitBefore = 0.3;
constexpr double cCellBefore = 0.001;
constexpr double cSpannedPlace = 0.5;

// The widest cell that Qt makes, in columns.
constexpr int cMostColumnsOfCell = 20480;

/// Whether Qt begins a new block at this character of a text.
bool isBlockEnd(uint uiCode, bool bKeepsLines)
{
    return uiCode == QChar::ParagraphSeparator || uiCode == 0xFDD0 || uiCode == 0xFDD1 ||
           (bKeepsLines && (uiCode == '\n' || uiCode == '\r'));
}

int spanOf(const HtmlTag &tag, const char *pKey)
{
    int iSpan = 1;
    for (const HtmlAttribute &attribute : tag.listAttribute) {
        if (attribute.strKey != QLatin1String(pKey)) {
            continue;
        }
        QString strValue = attribute.value.toString();
        // A number with an entity in it is not read: it may be the largest.
        if (strValue.contains(QLatin1Char('&'))) {
            return cMostColumnsOfCell;
        }
        strValue.remove(QLatin1Char('"')).remove(QLatin1Char('\''));
        bool bNumber = false;
        const int iValue = strValue.toInt(&bNumber);
        iSpan = bNumber ? qBound(iSpan, iValue, cMostColumnsOfCell) : iSpan;
    }
    return iSpan;
}

} // namespace

HtmlCost::HtmlCost(int iUnits) : m_listOpen(1), m_dMost(mostMicroseconds(iUnits)) {}

HtmlCost::Kind HtmlCost::kindOf(const QString &strName)
{
    static const QHash<QString, Kind> kinds{
        {"p", Paragraph}, {"li", Item},          {"ul", List},      {"ol", List},    {"table", Table},
        {"thead", Rows},  {"tbody", Rows},       {"tfoot", Rows},   {"tr", Row},     {"td", Cell},
        {"th", Cell},     {"caption", Caption},  {"dd", Term},      {"dt", Term},    {"dl", Terms},
        {"div", Block},   {"blockquote", Block}, {"center", Block}, {"h1", Block},   {"h2", Block},
        {"h3", Block},    {"h4", Block},         {"h5", Block},     {"h6", Block},   {"hr", Rule},
        {"br", Void},     {"img", Void},         {"meta", Void},    {"code", Code},  {"tt", Code},
        {"kbd", Code},    {"samp", Code},        {"pre", Pre},      {"head", Head},  {"body", Body},
        {"qt", Body},     {"style", Style},      {"script", None},  {"title", None}, {"link", None},
        {"", Nameless},
    };
    return kinds.value(strName, Inline);
}

bool HtmlCost::isBlock(Kind kind)
{
    return kind == Block || kind == Item || kind == Paragraph || kind == List || kind == Cell || kind == Caption ||
           kind == Term || kind == Terms || kind == Rule || kind == Pre || kind == Body;
}

bool HtmlCost::isAllowedIn(Kind kind, Kind parent)
{
    switch (kind) {
    case Term:
        return parent == Terms;
    case Row:
        return parent == Table || parent == Rows;
    case Cell:
        return parent == Row;
    case Rows:
    case Caption:
        return parent == Table;
    case Body:
        return parent != Head;
    default:
        return true;
    }
}

bool HtmlCost::has(Kind kind) const
{
    return std::any_of(m_listOpen.begin() + 1, m_listOpen.end(), [kind](const Element &e) { return e.kind == kind; });
}

void HtmlCost::leaveTo(int iParent)
{
    while (m_listOpen.size() > iParent + 1) {
        pop();
    }
}

void HtmlCost::pop()
{
    const Element element = m_listOpen.takeLast();
    if (element.kind == List && !m_listItems.isEmpty()) {
        m_listItems.removeLast(); // also at the end of a hidden list, which was never entered here
    } else if (element.kind == Table && !m_listGrid.isEmpty()) {
        m_listGrid.removeLast();
    } else if (element.kind == Pre) {
        --m_iPre;
    }
}

/// Closes and opens the elements that Qt closes and opens before it takes an element of that kind.
void HtmlCost::makeRoomFor(const QString &strName, Kind kind)
{
    if (strName == QLatin1String("td") && !has(Row)) {
        push(QStringLiteral("table"), Table, {}, QStringLiteral("table"));
        push(QStringLiteral("tr"), Row, {}, QStringLiteral("tr"));
    } else if (kind == Row && !has(Table)) {
        push(QStringLiteral("table"), Table, {}, QStringLiteral("table"));
    }
    int iParent = m_listOpen.size() - 1;
    if (kind == Paragraph) {
        while (iParent > 0 && (!isBlock(m_listOpen.at(iParent).kind) || m_listOpen.at(iParent).bHidden)) {
            --iParent;
        }
        if (iParent == 0 || m_listOpen.at(iParent).kind != Paragraph) {
            iParent = m_listOpen.size() - 1;
        }
    }
    if ((kind == Paragraph || kind == Item) && m_listOpen.at(iParent).kind == kind) {
        --iParent;
    }
    while (iParent > 0 && !isAllowedIn(kind, m_listOpen.at(iParent).kind)) {
        --iParent;
    }
    leaveTo(iParent);
}

int HtmlCost::formatOf(const QString &strName, const QString &strKept)
{
    const int iAround = m_listOpen.last().iFormat;
    if (iAround == 0 && strKept.isEmpty()) {
        return 0;
    }
    int &iFormat = m_formats[{iAround, strName + strKept}];
    if (iFormat == 0) {
        iFormat = m_formats.size();
    }
    return iFormat;
}

void HtmlCost::push(const QString &strName, Kind kind, const QString &strKept, const QString &strWritten)
{
    const Element &around = m_listOpen.last();
    Element element;
    element.strName = strName;
    element.strWritten = strWritten;
    element.kind = kind;
    element.bHidden =
        around.bHidden || kind == Head || kind == Style || kind == None || strName == QLatin1String("meta");
    element.iFormat = formatOf(strName, strKept);
    element.iUnits = around.iUnits + strKept.size();
    element.strKept = strKept;
    m_listOpen.append(element);
    if (kind == Pre) {
        ++m_iPre;
    }
    if (kind == List && !element.bHidden) {
        m_listItems.append(0);
    }
    if (kind == Table && !element.bHidden) {
        m_listGrid.append(Grid());
    }
}

void HtmlCost::open(const HtmlTag &tag, const QString &strKept, const QString &strWritten)
{
    const Kind kind = kindOf(tag.strName);
    if (kind == Nameless) {
        // Qt reads a tag without a name as an empty element, and may then count the element that follows it twice.
        m_dCost += cInline + cLevel * m_listOpen.size();
        m_bAfterNameless = true;
        return;
    }
    makeRoomFor(tag.strName, kind);
    m_bStyles = m_bStyles || !strKept.isEmpty();
    push(tag.strName, kind, strKept, strWritten);
    addElement(m_listOpen.last(), tag);
    if (kind == Void || kind == Rule || tag.bSelfClosing) {
        pop();
    }
    m_bAfterNameless = false;
}

void HtmlCost::addElement(const Element &element, const HtmlTag &tag)
{
    const double dDepth = m_listOpen.size();
    const double dRules = dDepth * (m_iSheetUnits + cUnitsOfEmptySheet * m_iSheets);
    const double dEscapes = element.strKept.count(QLatin1Char('\\'));
    m_dCost += (isBlock(element.kind) || element.kind == Void ? cBlock : cInline) + cLevel * dDepth +
               cSheetUnitLevel * dRules + cSheetUnitLevelSquare * dRules * dRules +
               cAttributeUnit * element.strKept.size() + cEscapeTimesUnit * dEscapes * element.strKept.size() +
               cInheritedUnit * element.iUnits * (1 + m_iSheetUnits);
    if (element.iFormat != 0) {
        m_dCost += cFormatBefore * m_formats.size();
    }
    if (m_bSiblings) {
        m_dCost += cSiblingBefore * ++m_iElements * m_iSheetUnits;
    }
    if ((element.kind == Code || element.kind == Pre) && element.strWritten == element.strName) {
        m_dCost += cCode;
    }
    if (!element.bHidden) {
        addShown(element, tag);
    }
}

// Adds the cost of a visible element.
void HtmlCost::addShown(const Element &element, const HtmlTag &tag)
{
    m_bUnevenCells = m_bUnevenCells || (element.kind == Table && !element.strKept.isEmpty());
    const bool bInTable = element.kind != Cell || !m_listGrid.isEmpty();
    if (isBlock(element.kind) && element.kind != List && bInTable && !m_bUnevenCells) {
        m_iBlockUnits = 0;
    }
    if (element.kind == Item && !m_listItems.isEmpty()) {
        m_dCost += cItemBefore * ++m_listItems.last();
    } else if (isBlock(element.kind) && !m_listItems.isEmpty()) {
        m_dCost += cBlockInList * m_listItems.last();
    }
    if (element.kind == List) {
        m_dCost += cList;
    } else if (element.kind == Table) {
        m_dCost += cTable + cTableBefore * ++m_iTables + cTableLevel * m_listOpen.size();
    } else if (element.kind == Row) {
        addRow();
    } else if (element.kind == Cell) {
        addCell(tag);
    } else if (element.strName == QLatin1String("img")) {
        addImage();
    }
}

void HtmlCost::addRow()
{
    if (m_listGrid.isEmpty()) {
        return;
    }
    Grid &grid = m_listGrid.last();
    grid.iRows += m_bAfterNameless ? 2 : 1;
    grid.iCells = 0;
    while (!grid.mapSpan.isEmpty() && grid.mapSpan.firstKey() < grid.iRows) {
        grid.iSpanned -= grid.mapSpan.take(grid.mapSpan.firstKey());
    }
    addPlaces(grid);
}

void HtmlCost::addCell(const HtmlTag &tag)
{
    m_dCost += cCell;
    if (m_listGrid.isEmpty()) {
        return;
    }
    Grid &grid = m_listGrid.last();
    const qint64 iColumns = spanOf(tag, "colspan");
    const qint64 iRows = spanOf(tag, "rowspan");
    grid.iCells += iColumns * (m_bAfterNameless ? 2 : 1);
    if (iRows > 1) {
        grid.mapSpan[grid.iRows + iRows - 1] += iColumns;
        grid.iSpanned += iColumns;
    }
    if (iColumns > 1 || iRows > 1) {
        m_bUnevenCells = true;
        m_dCost += cSpanningCell + cSpannedPlace * double(iColumns * iRows) + cCellBefore * double(grid.iPlaces);
    }
    grid.iColumns = qMax(grid.iColumns, grid.iCells + grid.iSpanned);
    addPlaces(grid);
}

void HtmlCost::addPlaces(Grid &grid)
{
    const qint64 iPlaces = qMax<qint64>(grid.iRows, 1) * grid.iColumns;
    m_dCost += cPlace * double(iPlaces - grid.iPlaces);
    grid.iPlaces = iPlaces;
}

// For each image Qt lays out its block from the beginning up to the image.
void HtmlCost::addImage()
{
    m_dCost += cImage + cImageUnitBefore * ++m_iBlockUnits;
}

int HtmlCost::indexOfOpen(const QString &strName) const
{
    int i = strName.isEmpty() ? 0 : m_listOpen.size() - 1;
    while (i > 0 && m_listOpen.at(i).strName != strName) {
        --i;
    }
    return i;
}

QString HtmlCost::writtenName(const QString &strName) const
{
    return m_listOpen.at(indexOfOpen(strName)).strWritten;
}

int HtmlCost::close(const QString &strName)
{
    const int i = indexOfOpen(strName);
    m_dCost += cUnmatchedLevel * m_listOpen.size();
    if (i == 0) {
        return 0;
    }
    m_dCost += cClosing + cLevel * m_listOpen.size();
    m_iSheets += isInStyle() ? 1 : 0;
    const QString strWritten = m_listOpen.at(i).strWritten;
    const int iTags = int(std::count_if(m_listOpen.cbegin() + i, m_listOpen.cend(),
                                        [&strWritten](const Element &open) { return open.strWritten == strWritten; }));
    leaveTo(i - 1);
    m_bAfterNameless = false;
    return iTags;
}

void HtmlCost::text(const QStringRef &text)
{
    const bool bKeepsLines = m_iPre > 0 || m_bStyles || m_iSheetUnits > 0;
    int iBlocks = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool bEntity = c == QLatin1Char('&');
        const uint uiCode = bEntity ? HtmlTags::numericEntity(*text.string(), text.position() + i) : uint(c.unicode());
        iBlocks += isBlockEnd(uiCode, bKeepsLines) ? 1 : 0;
    }
    m_dCost += cUnit * text.size() + cNewBlockInText * iBlocks;
    m_iBlockUnits += text.size();
}

void HtmlCost::addSheet(int iUnits, bool bSiblings)
{
    m_iSheetUnits += iUnits;
    m_bSiblings = m_bSiblings || bSiblings;
    m_dCost += cAttributeUnit * iUnits + cEscapeTimesUnit * double(iUnits) * iUnits;
}

bool HtmlCost::isPlainLine() const
{
    const Element &last = m_listOpen.last();
    const bool bAstray = last.kind == Table || last.kind == Rows || last.kind == Row || last.kind == List;
    return !last.bHidden && last.iUnits == 0 && !bAstray;
}

bool HtmlCost::isListFull() const
{
    const int iLast = m_listOpen.size() - 1;
    const bool bInItem = m_listOpen.at(iLast).kind == Item && iLast > 0;
    return !m_listOpen.last().bHidden && m_listOpen.at(bInItem ? iLast - 1 : iLast).kind == List &&
           !m_listItems.isEmpty() && m_listItems.last() >= cMostItems;
}

QPair<QString, QString> HtmlCost::openList() const
{
    const auto list = std::find_if(m_listOpen.rbegin(), m_listOpen.rend(),
                                   [](const Element &element) { return element.kind == List; });
    return list == m_listOpen.rend() ? QPair<QString, QString>()
                                     : QPair<QString, QString>(list->strName, list->strKept);
}
