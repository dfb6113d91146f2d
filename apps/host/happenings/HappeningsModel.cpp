#include "happenings/HappeningsModel.h"

#include <QColor>
#include <QDateTime>

namespace {

struct WayRow
{
    Happening::Way way;
    ushort glyph;
    const char *words;
};

constexpr WayRow cWays[] = {
    {Happening::ClientToPlugin, 0x2192, QT_TRANSLATE_NOOP("HappeningsModel", "client → plug-in")},
    {Happening::PluginToClient, 0x2190, QT_TRANSLATE_NOOP("HappeningsModel", "plug-in → client")},
    {Happening::PluginToProcess, 0x21D2, QT_TRANSLATE_NOOP("HappeningsModel", "plug-in → call process")},
    {Happening::ProcessToPlugin, 0x21D0, QT_TRANSLATE_NOOP("HappeningsModel", "call process → plug-in")},
    {Happening::InProcess, 0x2022, QT_TRANSLATE_NOOP("HappeningsModel", "call process")},
};
static_assert(std::size(cWays) == Happening::WayCount, "every way has a row");

struct KindRow
{
    Happening::Kind kind;
    const char *words;
    QRgb colour;
};

constexpr KindRow cKinds[] = {
    {Happening::Event, QT_TRANSLATE_NOOP("HappeningsModel", "event"), 0xff2f6f9f},
    {Happening::Wire, QT_TRANSLATE_NOOP("HappeningsModel", "wire"), 0xff2f8038},
    {Happening::Error, QT_TRANSLATE_NOOP("HappeningsModel", "error"), 0xffc0392b},
};
static_assert(std::size(cKinds) == Happening::KindCount, "every kind has a row");

} // namespace

void HappeningsModel::append(std::deque<Happening> batch)
{
    if (batch.size() > cCapacity) {
        const auto tooMany = batch.size() - cCapacity;
        batch.erase(batch.begin(), batch.begin() + std::ptrdiff_t(tooMany));
        m_iDropped += qint64(tooMany);
    }
    if (batch.empty()) {
        return;
    }
    const int surplus = int(m_rows.size() + batch.size()) - cCapacity;
    if (surplus > 0) {
        beginRemoveRows(QModelIndex(), 0, surplus - 1);
        m_rows.erase(m_rows.begin(), m_rows.begin() + surplus);
        m_iDropped += surplus;
        endRemoveRows();
    }
    const int first = int(m_rows.size());
    beginInsertRows(QModelIndex(), first, first + int(batch.size()) - 1);
    for (Happening &row : batch) {
        row.words = row.sentence.text();
        m_rows.push_back(std::move(row));
    }
    endInsertRows();
}

void HappeningsModel::clear()
{
    beginResetModel();
    m_rows.clear();
    m_iDropped = 0;
    endResetModel();
}

void HappeningsModel::retranslate()
{
    for (Happening &row : m_rows) {
        row.words = row.sentence.text();
    }
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

QString HappeningsModel::line(int iRow) const
{
    const Happening &row = at(iRow);
    return QStringList{timeText(row.time), wayText(row.way), kindText(row.kind), row.words, row.raw}.join(
        QLatin1Char('\t'));
}

QString HappeningsModel::wayText(Happening::Way way)
{
    return tr(cWays[way].words);
}

QString HappeningsModel::kindText(Happening::Kind kind)
{
    return tr(cKinds[kind].words);
}

QString HappeningsModel::timeText(qint64 iTime)
{
    return QDateTime::fromMSecsSinceEpoch(iTime).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
}

int HappeningsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int HappeningsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant HappeningsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return QVariant();
    }
    const Happening &row = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::AccessibleTextRole:
        return index.column() == WayGlyph ? wayText(row.way) : text(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == WayGlyph ? wayText(row.way) : QVariant();
    case Qt::ForegroundRole:
        if (row.kind == Happening::Error || index.column() == WayGlyph || index.column() == KindWord) {
            return QColor(cKinds[row.kind].colour);
        }
        return QVariant();
    default:
        return QVariant();
    }
}

QString HappeningsModel::text(const Happening &row, int column)
{
    switch (column) {
    case Time:
        return QDateTime::fromMSecsSinceEpoch(row.time).toString(QStringLiteral("hh:mm:ss.zzz"));
    case WayGlyph:
        return QChar(cWays[row.way].glyph);
    case KindWord:
        return kindText(row.kind);
    default:
        return row.words;
    }
}

QVariant HappeningsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    // The glyph's column is too narrow for a title.
    return QStringList{tr("Time"), QString(), tr("Kind"), tr("What happened")}.value(section);
}

HappeningsFilter::HappeningsFilter(HappeningsModel &model, QObject *parent)
    : QSortFilterProxyModel(parent), m_model(model)
{
    setSourceModel(&model);
}

void HappeningsFilter::setKindShown(Happening::Kind kind, bool bShown)
{
    m_bShown[kind] = bShown;
    invalidateFilter();
}

void HappeningsFilter::setText(const QString &strText)
{
    m_strText = strText;
    invalidateFilter();
}

bool HappeningsFilter::filterAcceptsRow(int iRow, const QModelIndex &) const
{
    const Happening &row = m_model.at(iRow);
    if (!m_bShown[row.kind]) {
        return false;
    }
    return m_strText.isEmpty() || row.words.contains(m_strText, Qt::CaseInsensitive) ||
           row.raw.contains(m_strText, Qt::CaseInsensitive) ||
           HappeningsModel::wayText(row.way).contains(m_strText, Qt::CaseInsensitive);
}
