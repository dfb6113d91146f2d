#pragma once

// What Qt's rich text spends on HTML, added up tag by tag in one walk: which elements are open, in which order it makes
// a tree of broken markup, and the time that it takes for each, in microseconds of a machine of middling speed. Where
// its time grows faster than the text, as with depth, long lists, wide tables or many formats, so does the cost. The
// estimate is rather too high than too low. Any thread; no state but its own.

#include "common/html/HtmlTags.h"

#include <QHash>
#include <QMap>
#include <QPair>

class HtmlCost
{
public:
    /// Elements in each other beyond this are too many, whatever they cost.
    static constexpr int MOST_DEPTH = 256;
    /// What HTML of so many units may cost in all: a share for each, so that a short text is not let cost what only a
    /// long one has reason to, and what leaves reading a million units below a second. The fuzzers hold their texts,
    /// which are short, to no more time than this grants them.
    static constexpr double mostMicroseconds(int iUnits)
    {
        return iUnits < LONG_TEXT ? MOST_AT_ONCE + MOST_FOR_A_UNIT * iUnits
                                  : MOST_AT_ONCE + MOST_FOR_A_UNIT * LONG_TEXT;
    }
    /// Each item of a list costs as much as all before it together, so a longer list is better cut.
    static constexpr int MOST_ITEMS = 64;

    /// For HTML of so many units.
    explicit HtmlCost(int iUnits);

    /// `strKept` is what is kept of the tag's attributes; `strWritten` the name, in lower case, that Qt is to read.
    void open(const HtmlTag &tag, const QString &strKept, const QString &strWritten);
    /// How many closing tags with the written name of the element do what the one with its own name did; 0 when it
    /// closes nothing, and Qt passes it over.
    int close(const QString &strName);
    /// The written name of the element that a closing tag would close; empty where it closes none.
    QString writtenName(const QString &strName) const;
    /// Text between tags.
    void text(const QStringRef &text);
    /// A style sheet, whose rules every later element is held against; `bSiblings`: also against those before it.
    void addSheet(int iUnits, bool bSiblings);

    bool isTooHigh() const { return m_dCost > m_dMost || m_listOpen.size() > MOST_DEPTH; }
    /// Whether all that is open lies in a style element directly.
    bool isInStyle() const { return m_listOpen.last().kind == Style && !m_bAfterNameless; }
    bool hasSheets() const { return m_iSheetUnits > 0; }
    /// Whether what stands here is shown as a line of text: not hidden, nor astray in a table or list, nor within an
    /// element with attributes that were kept.
    bool isPlainLine() const;
    /// Whether an item that opens now is one of a list that has MOST_ITEMS.
    bool isListFull() const;
    /// The name of the innermost open list, and what was kept of its attributes; both are empty where none is open.
    QPair<QString, QString> openList() const;

private:
    static constexpr int LONG_TEXT = 45000;
    static constexpr double MOST_AT_ONCE = 40000;
    static constexpr double MOST_FOR_A_UNIT = 8;

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
        // Of the way through the elements that set formats; 0 where none does.
        int iFormat = 0;
        // Of the attributes of it and all around it.
        int iUnits = 0;
        QString strKept;
    };
    struct Grid
    {
        qint64 iRows = 0;
        qint64 iCells = 0;
        qint64 iColumns = 0;
        qint64 iPlaces = 0;
        // Cells that reach into further rows: the columns they take, by their last row.
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
    // Of the block that an image would stand in.
    int m_iBlockUnits = 0;
    int m_iPre = 0;
    bool m_bSiblings = false;
    bool m_bStyles = false;
    // Whether a cell may have no place of its own, so that its text goes on in the block of another.
    bool m_bUnevenCells = false;
    bool m_bAfterNameless = false;
};
