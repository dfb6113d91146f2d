#include "panes/CallRecordModel.h"

#include "client/ContactBook.h"

#include <QColor>

CallRecordModel::CallRecordModel(const ContactBook &book, QObject *parent) : QAbstractTableModel(parent), m_book(book)
{
}

void CallRecordModel::add(const CallRecord &record)
{
    beginInsertRows(QModelIndex(), 0, 0);
    m_records.prepend(record);
    endInsertRows();
}

void CallRecordModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_records.isEmpty()) {
        emit dataChanged(index(0, 0), index(m_records.size() - 1, ColumnCount - 1));
    }
}

int CallRecordModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_records.size();
}

int CallRecordModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CallRecordModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_records.size()) {
        return QVariant();
    }
    const CallRecord &record = m_records.at(index.row());
    if (role == Qt::DisplayRole) {
        return text(record, index.column());
    }
    if (role == Qt::ForegroundRole && index.column() == Outcome && !record.connected) {
        return QColor(0xc0, 0x39, 0x2b);
    }
    if (role == Qt::TextAlignmentRole && index.column() >= Connected) {
        return int(Qt::AlignCenter);
    }
    return QVariant();
}

QString CallRecordModel::directionText(const CallRecord &record)
{
    const QString arrow(record.caller ? QChar(0x2192) : QChar(0x2190));
    const QString words = record.video ? (record.caller ? tr("outgoing video") : tr("incoming video"))
                                       : (record.caller ? tr("outgoing") : tr("incoming"));
    return arrow + QLatin1Char(' ') + words;
}

QString CallRecordModel::text(const CallRecord &record, int column) const
{
    switch (column) {
    case Who:
        return m_book.nameOf(record.uid);
    case Direction:
        return directionText(record);
    case Outcome:
        return outcomeWord(record.result);
    case Connected:
        return record.connected ? tr("yes") : tr("no");
    case Duration:
        return record.connected ? durationText(record.seconds) : QString();
    case EndedAt:
        return record.endedAt.toString(QStringLiteral("hh:mm:ss"));
    default:
        return QString();
    }
}

QVariant CallRecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QStringList titles = {tr("Who"), tr("Call"), tr("Outcome"), tr("Connected"), tr("Duration"), tr("Ended at")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return titles.value(section);
}
