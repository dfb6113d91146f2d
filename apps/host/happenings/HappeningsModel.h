#pragma once

#include "traffic/Sentence.h"

#include <QAbstractTableModel>
#include <QList>
#include <QSortFilterProxyModel>

#include <deque>

/// One thing that happened between client, plug-in and call process.
struct Happening
{
    /// What it is; the filter goes by it.
    enum Kind
    {
        Event, ///< an event between client and plug-in
        Wire,  ///< a line between plug-in and call process, or a note of the call process
        Error, ///< an event or line that does not follow the contract, or a complaint of the call process
        KindCount
    };

    /// Who tells whom.
    enum Way
    {
        ClientToPlugin,
        PluginToClient,
        PluginToProcess,
        ProcessToPlugin,
        InProcess, ///< the call process about itself
        WayCount
    };

    qint64 time = 0; ///< milliseconds since 1970
    Kind kind = Event;
    Way way = ClientToPlugin;
    Sentence sentence;
    QString raw;   ///< what went over, masked and shortened
    QString words; ///< the sentence in the present language; the model fills it
};

/// The table of what happened, oldest first. It holds a bounded number of rows: the oldest make place for new ones and
/// are counted. GUI thread.
class HappeningsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns, from left to right.
    enum Column
    {
        Time,
        WayGlyph,
        KindWord,
        What,
        ColumnCount
    };

    /// Rows that are kept.
    static constexpr int cCapacity = 10000;
    /// Characters that are kept of a raw text.
    static constexpr int cLongestRaw = 2000;

    using QAbstractTableModel::QAbstractTableModel;

    /// Appends the rows in one step. Rows beyond the capacity go, the oldest first.
    void append(std::deque<Happening> batch);

    /// `iCount` rows went before they came here.
    void countDropped(int iCount) { m_iDropped += iCount; }

    /// Takes all rows away and forgets how many were dropped.
    void clear();

    /// Says all rows anew, after the language has changed.
    void retranslate();

    /// The row, which must exist; it lives until the model changes.
    const Happening &at(int iRow) const { return m_rows[size_t(iRow)]; }

    /// Rows that made place for others since the last clear.
    qint64 dropped() const { return m_iDropped; }

    /// One row as text for the clipboard: time, way, kind, words and raw text, with tabs between them.
    QString line(int iRow) const;

    /// The way, the kind and the time in words: "client → plug-in", "wire line", "2026-05-07 10:11:12.345".
    static QString wayText(Happening::Way way);
    static QString kindText(Happening::Kind kind);
    static QString timeText(qint64 iTime);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const Happening &row, int column);

    std::deque<Happening> m_rows;
    qint64 m_iDropped = 0;
};

/// The rows of a HappeningsModel that are of a wanted kind and hold a wanted text in their words, their raw text or
/// their way, whatever the case. GUI thread.
class HappeningsFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit HappeningsFilter(HappeningsModel &model, QObject *parent = nullptr);

    /// Shows the kind or hides it. All are shown at first.
    void setKindShown(Happening::Kind kind, bool bShown);

    /// Shows only rows with this text; an empty one shows all.
    void setText(const QString &strText);

protected:
    bool filterAcceptsRow(int iRow, const QModelIndex &parent) const override;

private:
    HappeningsModel &m_model;
    bool m_bShown[Happening::KindCount] = {true, true, true};
    QString m_strText;
};
