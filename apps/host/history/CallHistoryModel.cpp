#include "history/CallHistoryModel.h"

#include "client/ContactBook.h"
#include "client/ContactSearch.h"
#include "history/CallHistory.h"

#include <QColor>
#include <QFont>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace {

// More names than this nobody reads in a row; a conference may have thousands.
constexpr int cMostNames = 20;

} // namespace

CallHistoryModel::CallHistoryModel(const CallHistory &history, const ContactBook &book, QObject *parent)
    : QAbstractTableModel(parent), m_history(history), m_book(book)
{
    connect(&history, &CallHistory::added, this, &CallHistoryModel::takeAdded);
    connect(&history, &CallHistory::changed, this, &CallHistoryModel::takeChanged);
    connect(&history, &CallHistory::reset, this, &CallHistoryModel::fill);
    connect(&history, &CallHistory::allSeen, this, &CallHistoryModel::refresh);
    fill();
}

void CallHistoryModel::setFilter(Filter filter)
{
    if (m_filter != filter) {
        m_filter = filter;
        fill();
    }
}

void CallHistoryModel::setSearch(const QString &strText)
{
    const QString wanted = strText.trimmed();
    if (m_strSearch != wanted) {
        m_strSearch = wanted;
        m_found.clear();
        m_foundOutcomes.clear();
        fill();
    }
}

void CallHistoryModel::fill()
{
    beginResetModel();
    m_places.clear();
    const std::vector<CallEntry> &entries = m_history.entries();
    for (size_t place = 0; place < entries.size(); ++place) {
        if (isLeft(entries[place])) {
            m_places.push_back(int(place));
        }
    }
    endResetModel();
}

void CallHistoryModel::takeAdded()
{
    const std::vector<CallEntry> &entries = m_history.entries();
    if (isLeft(entries.back())) {
        beginInsertRows(QModelIndex(), 0, 0);
        m_places.push_back(int(entries.size()) - 1);
        endInsertRows();
    }
}

void CallHistoryModel::takeChanged(int iPlace)
{
    const auto found = std::lower_bound(m_places.begin(), m_places.end(), iPlace);
    const bool shown = found != m_places.end() && *found == iPlace;
    const int row = int(std::distance(found, m_places.end())) - (shown ? 1 : 0);
    const bool left = isLeft(m_history.entries()[size_t(iPlace)]);
    if (shown && left) {
        emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    } else if (shown) {
        beginRemoveRows(QModelIndex(), row, row);
        m_places.erase(found);
        endRemoveRows();
    } else if (left) {
        beginInsertRows(QModelIndex(), row, row);
        m_places.insert(found, iPlace);
        endInsertRows();
    }
}

bool CallHistoryModel::isLeft(const CallEntry &entry) const
{
    if ((m_filter == Missed && !entry.isMissed()) || (m_filter == Conferences && !entry.conference)) {
        return false;
    }
    return m_strSearch.isEmpty() || isFound(entry.uid) || isOutcomeFound(entry) ||
           std::any_of(entry.members.begin(), entry.members.end(), [this](const QString &uid) { return isFound(uid); });
}

bool CallHistoryModel::isFound(const QString &strUid) const
{
    const auto known = m_found.constFind(strUid);
    if (known != m_found.constEnd()) {
        return *known;
    }
    ContactBook::Entry person;
    person.uid = strUid;
    person.nick = m_book.nameOf(strUid);
    const bool found = ContactSearch::finds(person, m_strSearch);
    m_found.insert(strUid, found);
    return found;
}

bool CallHistoryModel::isOutcomeFound(const CallEntry &entry) const
{
    auto known = m_foundOutcomes.constFind(entry.outcome);
    if (known == m_foundOutcomes.constEnd()) {
        known = m_foundOutcomes.insert(entry.outcome, historyWord(entry).contains(m_strSearch, Qt::CaseInsensitive));
    }
    return *known;
}

void CallHistoryModel::setArrowsAlone(bool bAlone)
{
    if (m_bArrowsAlone != bAlone) {
        m_bArrowsAlone = bAlone;
        refresh();
    }
}

void CallHistoryModel::retranslate()
{
    if (!m_strSearch.isEmpty()) {
        m_foundOutcomes.clear();
        fill();
    }
    refresh();
}

void CallHistoryModel::refresh()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_places.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

const CallEntry &CallHistoryModel::entryAt(int iRow) const
{
    return m_history.entries()[size_t(m_places[m_places.size() - 1 - size_t(iRow)])];
}

int CallHistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_places.size());
}

int CallHistoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CallHistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return QVariant();
    }
    const CallEntry &entry = entryAt(index.row());
    const bool lost = !entry.isRunning() && !entry.connected;
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case Qt::ToolTipRole:
        return tip(entry, index.column());
    case Qt::AccessibleTextRole:
        if (index.column() == Who) {
            // The row in one sentence: a screen reader may stop at its first cell.
            QStringList words;
            for (int column = 0; column < ColumnCount; ++column) {
                words << (column == Direction ? directionText(entry) : text(entry, column));
            }
            words.removeAll(QString());
            return words.join(QStringLiteral(", "));
        }
        return index.column() == Direction ? directionText(entry) : text(entry, index.column());
    case Qt::ForegroundRole:
        return index.column() == Outcome && lost ? QVariant(QColor(0xc0, 0x39, 0x2b)) : QVariant();
    case Qt::FontRole:
        if (!entry.seen) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return QVariant();
    default:
        return QVariant();
    }
}

QString CallHistoryModel::whoText(const CallEntry &entry, const ContactBook &book)
{
    if (!entry.conference) {
        return book.nameOf(entry.uid);
    }
    QStringList names;
    if (!entry.caller) {
        names << book.nameOf(entry.uid);
    }
    for (const QString &uid : entry.members) {
        if (names.size() == cMostNames) {
            names << QString(QChar(0x2026));
            break;
        }
        if (uid != entry.uid) {
            names << book.nameOf(uid);
        }
    }
    return names.isEmpty() ? tr("Conference") : tr("Conference: %1").arg(names.join(QStringLiteral(", ")));
}

QString CallHistoryModel::whenText(const QDateTime &when, const QDate &today)
{
    if (!when.isValid()) {
        return QString();
    }
    const QString time = when.toString(QStringLiteral("hh:mm"));
    const qint64 days = when.date().daysTo(today);
    return days == 0   ? tr("Today %1").arg(time)
           : days == 1 ? tr("Yesterday %1").arg(time)
                       : when.toString(QStringLiteral("yyyy-MM-dd hh:mm"));
}

QString CallHistoryModel::directionText(const CallEntry &entry)
{
    if (entry.video) {
        return entry.caller ? tr("outgoing video") : tr("incoming video");
    }
    return entry.caller ? tr("outgoing") : tr("incoming");
}

QString CallHistoryModel::arrow(const CallEntry &entry)
{
    return QString(QChar(entry.caller ? 0x2192 : 0x2190));
}

QString CallHistoryModel::shownDirection(const CallEntry &entry)
{
    return arrow(entry) + QLatin1Char(' ') + directionText(entry);
}

QStringList CallHistoryModel::directions()
{
    QStringList texts;
    for (const bool video : {false, true}) {
        for (const bool caller : {false, true}) {
            CallEntry entry;
            entry.video = video;
            entry.caller = caller;
            texts << shownDirection(entry);
        }
    }
    return texts;
}

QString CallHistoryModel::tip(const CallEntry &entry, int column) const
{
    if (column == Direction) {
        return m_bArrowsAlone ? directionText(entry) : QString();
    }
    // Names come from anywhere, and a tip would take some of them for more than text.
    const QString who = text(entry, Who);
    return column == Who && !Qt::mightBeRichText(who) ? who : QString();
}

QString CallHistoryModel::text(const CallEntry &entry, int column) const
{
    switch (column) {
    case Who:
        return whoText(entry, m_book);
    case Direction:
        return m_bArrowsAlone ? arrow(entry) : shownDirection(entry);
    case Outcome:
        return historyWord(entry);
    case Duration:
        return entry.connected ? durationText(entry.seconds) : QString();
    case When:
        return whenText(entry.begun, QDate::currentDate());
    default:
        return QString();
    }
}

QVariant CallHistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    const QStringList titles = {tr("Who"), tr("Call"), tr("Outcome"), tr("Length"), tr("When")};
    return titles.value(section);
}
