#pragma once

#include "client/CallRecord.h"

#include <QAbstractTableModel>
#include <QList>

class ContactBook;

/// The table of finished calls, newest first. It reads names from the contact book, which must outlive it. GUI thread.
class CallRecordModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns, from left to right.
    enum Column
    {
        Who,
        Direction,
        Outcome,
        Connected,
        Duration,
        EndedAt,
        ColumnCount
    };

    explicit CallRecordModel(const ContactBook &book, QObject *parent = nullptr);

    /// Puts the record on top.
    void add(const CallRecord &record);

    /// Says the words anew after a change of the language.
    void retranslate();

    /// All records, newest first.
    const QList<CallRecord> &records() const { return m_records; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString directionText(const CallRecord &record);
    QString text(const CallRecord &record, int column) const;

    const ContactBook &m_book;
    QList<CallRecord> m_records;
};
