#pragma once

#include "client/ContactBook.h"

#include <QList>
#include <QScrollArea>

class ContactRow;
class QVBoxLayout;

/// The rows of the contacts, one below the other. The Tab key stops at one row, the current one; Up, Down, Home and End
/// go from row to row. GUI thread.
class ContactList : public QScrollArea
{
    Q_OBJECT

public:
    explicit ContactList(QWidget *parent = nullptr);

    /// Puts a row for each of these into the list, below those that are there.
    void add(const QList<ContactBook::Entry> &entries);

    /// Leaves the rows that the text finds, see ContactSearch, the first of them as the current one; returns their
    /// number.
    int filter(const QString &strText);

    /// Shows what is known of that person now; returns the number of rows that the last filter() finds.
    int showPerson(const ContactBook::Entry &entry);

    /// Makes the rows follow `before` in the order of the Tab key.
    void followInTabOrder(QWidget *before);

    /// Gives the focus to the current row; false when there is none.
    bool enter();

    /// Says why nobody can be called now; empty when one can be.
    void setObstacle(const QString &strReason);

    /// Draws the rows in the colours of the current skin.
    void takeSkin();

signals:
    /// The user wants to call the contact of a row, by voice or video.
    void callClicked(const QString &strUid, bool bVideo);
    /// Up was pressed in the first row.
    void leftUpwards();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<ContactRow *> shownRows() const;
    void setCurrent(ContactRow *row);
    void go(int iTo);

    QString m_strFilter;
    QVBoxLayout *m_pLayout;
    QList<ContactRow *> m_rows;
    ContactRow *m_pCurrent = nullptr;
};
