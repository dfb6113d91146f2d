#pragma once

#include "history/CallEntry.h"

#include <QAbstractTableModel>
#include <QHash>

#include <vector>

class CallHistory;
class ContactBook;

/// The table of calls, newest first: all of them, or those that a filter and a text leave. It reads names from the
/// contact book; history and book must outlive it. A change of what is left costs one pass over the history. GUI
/// thread.
class CallHistoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns, from left to right.
    enum Column
    {
        Who,
        Direction,
        Outcome,
        Duration,
        When,
        ColumnCount
    };

    /// Which calls are left.
    enum Filter
    {
        All,
        Missed,
        Conferences
    };

    CallHistoryModel(const CallHistory &history, const ContactBook &book, QObject *parent = nullptr);

    /// Leaves these calls.
    void setFilter(Filter filter);
    Filter filter() const { return m_filter; }

    /// Leaves of these the calls in which somebody is found by the text, see ContactSearch, and those whose outcome has
    /// it in its word. The empty text leaves all.
    void setSearch(const QString &strText);

    /// Whether a direction is shown as its arrow alone, with the word as its tip. At first it is not.
    void setArrowsAlone(bool bAlone);

    /// Says the words anew after a change of the language or of the day.
    void retranslate();

    /// The entry in that row, which must be there. Valid until the next change.
    const CallEntry &entryAt(int iRow) const;

    /// Who is in the call, in words: the other party, or "Conference: " and its members.
    static QString whoText(const CallEntry &entry, const ContactBook &book);

    /// Day and time in words: "Today 09:08", "Yesterday 09:08", "2024-05-03 09:08"; empty where there is none.
    static QString whenText(const QDateTime &when, const QDate &today);

    /// All that the column of directions can say, in the language of the moment.
    static QStringList directions();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void fill();
    void refresh();
    void takeAdded();
    void takeChanged(int iPlace);
    bool isLeft(const CallEntry &entry) const;
    bool isFound(const QString &strUid) const;
    bool isOutcomeFound(const CallEntry &entry) const;
    static QString directionText(const CallEntry &entry);
    static QString arrow(const CallEntry &entry);
    static QString shownDirection(const CallEntry &entry);
    QString tip(const CallEntry &entry, int column) const;
    QString text(const CallEntry &entry, int column) const;

    const CallHistory &m_history;
    const ContactBook &m_book;
    Filter m_filter = All;
    bool m_bArrowsAlone = false;
    QString m_strSearch;
    mutable QHash<QString, bool> m_found;     // by user id, for the present text
    mutable QHash<int, bool> m_foundOutcomes; // by what became of a call, likewise
    std::vector<int> m_places;                // of what is left in the history, oldest first
};
