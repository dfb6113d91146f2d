#pragma once

// What the delegates of the member list, the history list and the detail page paint alike: one-line texts, the line
// below a row, and the way a hit rectangle goes back into its item. What they draw again and again is laid out by
// LineCache. No state; GUI thread only.

#include <QColor>
#include <QFont>
#include <QPen>
#include <QString>

class QFontMetrics;
class QModelIndex;
class QPainter;
class QRect;
class QStaticText;

/// Gives a painter its font and pen back when it goes out of scope.
class KeptPenAndFont
{
public:
    /// Keeps what `pPainter` has now. The painter is the caller's and outlives this object.
    explicit KeptPenAndFont(QPainter *pPainter);
    ~KeptPenAndFont();
    KeptPenAndFont(const KeptPenAndFont &) = delete;
    KeptPenAndFont &operator=(const KeptPenAndFont &) = delete;

private:
    QPainter *m_pPainter;
    QFont m_font;
    QPen m_pen;
};

class RowPainter
{
public:
    /// The text font of the lists and of the conference centre's buttons, 12 pixels high.
    static QFont textFont();

    /// `strText` as one line of plain text that ends in "…" where it is wider than `iWidth` pixels. Line feeds and
    /// other control characters become blanks. Costs as much as fits into the line, however long the text is. A width
    /// below 1 gives an empty text.
    static QString elidedLine(const QFontMetrics &metrics, const QString &strText, int iWidth);

    /// The width of that line before it is cut, or `iWidth` where that is smaller; 0 for a width below 1.
    static int lineWidth(const QFontMetrics &metrics, const QString &strText, int iWidth);

    /// Draws one line from `place`'s top left corner with the painter's font and pen. Nothing in it is interpreted.
    static void drawLine(QPainter &painter, const QRect &place, const QString &strText);

    /// The same with a line that is laid out already.
    static void drawLine(QPainter &painter, const QRect &place, const QStaticText &line);

    /// The line below a row: from `iLeft` to `iRight`, both covered, at the height `iBottom`.
    static void drawBottomLine(QPainter &painter, int iLeft, int iRight, int iBottom);

    /// Stores where something was painted in the row's item, where the mouse handlers of its list find it. A rectangle
    /// that is there already changes nothing.
    static void keepRect(const QModelIndex &index, int iRole, const QRect &place);
};
