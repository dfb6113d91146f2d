#pragma once

// Estimates how long Qt's rich text takes to read HTML. The tags and texts are handed over one after the other; the
// class keeps the elements that are open then, where the markup is broken in the order in which Qt would close and open
// them, and adds up the microseconds that each takes on a machine of middling speed. The estimate grows faster than the
// length of the HTML wherever Qt's time does: with depth, long lists, wide tables, many formats. It is rather too high
// than too low. Any thread; an object has no state but its own.

#include "common/html/HtmlTags.h"

#include <QHash>
#include <QMap>
#include <QPair>

class HtmlCost
{
public:
    /// How many elements may lie in each other; more are too many, whatever they cost.
    static constexpr int cMostDepth = 256;

    /// What HTML of so many units may cost in all. A short text gets a share for each of its units, so that it cannot
    /// cost as much as a long one; the most that any text gets leaves reading a million units below a second. The
    /// fuzzers give their texts, which are short, no more time than this.
    static constexpr double mostMicroseconds(int iUnits)
    {
        return iUnits < cLongText ? cMostAtOnce + cMostForAUnit * iUnits : cMostAtOnce + cMostForAUnit * cLongText;
    }
    /// How many items a list should have at most. Qt passes all items before it for each item of a list, so several
    /// short lists cost less than a long one.
    static constexpr int cMostItems = 64;

    /// For HTML of so many units.
    explicit HtmlCost(int iUnits);

    /// An opening tag. `strKept` holds those of its attributes that are kept; `strWritten` is the name, in lower case,
    /// that is written for Qt to read.
    void open(const HtmlTag &tag, const QString &strKept, const QString &strWritten);

    /// A closing tag. Gives how many closing tags with the written name of the element have to be written in its place:
    /// 1 and one more for each open element within that has the same written name. 0 when the tag closes no element.
    int close(const QString &strName);

    /// The written name of the element that a closing tag `strName` would close; empty when it would close none.
    QString writtenName(const QString &strName) const;

    /// Text between two tags.
    void text(const QStringRef &text);

    /// A style sheet of `iUnits` characters: Qt tries its rules on each later element. With `bSiblings` its rules
    /// have selectors with + or ~.
    void addSheet(int iUnits, bool bSiblings);

    bool isTooHigh() const { return m_dCost > m_dMost || m_listOpen.size() > cMostDepth; }

    /// Whether a style element is the innermost open one, so that a text is part of a style sheet.
    bool isInStyle() const { return m_listOpen.last().kind == Style && !m_bAfterNameless; }
    bool hasSheets() const { return m_iSheetUnits > 0; }

    /// Whether a text at this place is shown as part of a line. It is not where it is hidden, where it stands in a
    /// table or list outside their cells or items, and within an element that has attributes which were kept.
    bool isPlainLine() const;

    /// Whether the list in which an item would open now has cMostItems items already.
    bool isListFull() const;

    /// The name of the innermost open list and its attributes that were kept; both empty when no list is open.
    QPair<QString, QString> openList() const;

private:
    static constexpr int cLongText = 45000;
    static constexpr double cMostAtOnce = 40000;
    static constexpr double cMostForAUnit = 8;

    enum Kind
    {
        Inline,
        Block,
        Item,
        Paragraph,
        List,
        Table,
        Rows,
        Row,
        Cell,
        Caption,
        Term,
        Terms,
        Void,
        Rule,
        Code,
        Pre,
        Head,
        Body,
        Style,
        None,
        Nameless
    };
    struct Element
    {
        QString strName;
        QString strWritten;
        Kind kind = Inline;
        bool bHidden = false;
        // A number for the attributes of it and of the elements around it, equal for elements with the same ones; 0
        // when there are none.
        int iFormat = 0;
        // The length of its attributes and of those of all elements around it.
        int iUnits = 0;
        QString strKept;
    };
    struct Grid
    {
        qint64 iRows = 0;
        qint64 iCells = 0;
        qint64 iColumns = 0;
        qint64 iPlaces = 0;
        // For cells that reach into rows below: by the last row that they reach, how many columns they take up.
        QMap<qint64, qint64> mapSpan;
        qint64 iSpanned = 0;
    };

    static Kind kindOf(const QString &strName);
    static bool isAllowedIn(Kind kind, Kind parent);
    static bool isBlock(Kind kind);
    bool has(Kind kind) const;
    void push(const QString &strName, Kind kind, const QString &strKept, const QString &strWritten);
    int indexOfOpen(const QString &strName) const;
    void pop();
    void makeRoomFor(const QString &strName, Kind kind);
    void leaveTo(int iParent);
    int formatOf(const QString &strName, const QString &strKept);
    void addElement(const Element &element, const HtmlTag &tag);
    void addShown(const Element &element, const HtmlTag &tag);
    void addRow();
    void addCell(const HtmlTag &tag);
    void addPlaces(Grid &grid);
    void addImage();

    QVector<Element> m_listOpen;
    QVector<Grid> m_listGrid;
    // How many items each open list has.
    QVector<int> m_listItems;
    QHash<QPair<int, QString>, int> m_formats;
    const double m_dMost;
    double m_dCost = 0;
    int m_iSheets = 0;
    int m_iSheetUnits = 0;
    int m_iTables = 0;
    int m_iElements = 0;
    // The length of the block so far in which an image would stand.
    int m_iBlockUnits = 0;
    int m_iPre = 0;
    bool m_bSiblings = false;
    bool m_bStyles = false;
    // Whether a cell may have no place of its own, so that its text goes on in the block of another.
    bool m_bUnevenCells = false;
    bool m_bAfterNameless = false;
};
