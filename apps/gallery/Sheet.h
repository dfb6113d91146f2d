#pragma once

// A page of the gallery: sections one below the other, each with a heading and a grid of specimens under column titles.
// GUI thread; Qt's ownership by parent applies.

#include <QIcon>
#include <QStringList>
#include <QWidget>

class QGridLayout;
class QVBoxLayout;

class Sheet : public QWidget
{
    Q_OBJECT

public:
    /// An empty page. `parent` may be null.
    explicit Sheet(QWidget *parent = nullptr);

    /// Starts a section. `columns` are the titles above the specimens; an empty list leaves the line out.
    void section(const QString &strTitle, const QStringList &columns = QStringList());

    /// Adds a row to the section: its name, and its specimens, which then belong to the page. With `bDark` they stand
    /// on a dark ground.
    void row(const QString &strName, const QList<QWidget *> &specimens, bool bDark = false);

    /// A line of small grey text, as the page's titles are.
    static QWidget *caption(const QString &strText);

    /// A label that shows the picture.
    static QWidget *picture(const QPixmap &pixmap);

    /// The glyph in the colour of the skin's icons, `iSide` pixels high and wide.
    static QIcon glyphIcon(ushort glyph, int iSide);

    /// Lets the widget and all within it look as if the mouse stood over them. Returns the widget.
    static QWidget *hovered(QWidget *widget);

    /// Lets the button within the widget look as if it were held down. Returns the widget.
    static QWidget *pressed(QWidget *widget);

private:
    QVBoxLayout *m_pSections;
    QGridLayout *m_pGrid = nullptr;
    int m_iRow = 0;
};
