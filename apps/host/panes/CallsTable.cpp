#include "panes/CallsTable.h"

#include "history/CallHistoryModel.h"
#include "panes/ShorteningDelegate.h"

#include <QHeaderView>

namespace {

// What a cell needs beside its text, with something to spare for letters that lean out.
constexpr int cCellMargin = 16;
// Enough for most names in bold letters.
constexpr int cLeastName = 96;
constexpr int cLeastSection = 36;

struct Column
{
    CallHistoryModel::Column column;
    int width;
};

constexpr Column cColumns[] = {
    {CallHistoryModel::Outcome, 98},
    {CallHistoryModel::Duration, 58},
    {CallHistoryModel::When, 122},
};

} // namespace

CallsTable::CallsTable(QWidget *parent) : QTableView(parent)
{
    setItemDelegate(new ShorteningDelegate(this));
    verticalHeader()->setDefaultSectionSize(32);
}

void CallsTable::showCalls(CallHistoryModel *pModel)
{
    setModel(pModel);
    m_pModel = pModel;
    QHeaderView *header = horizontalHeader();
    header->setSectionResizeMode(CallHistoryModel::Who, QHeaderView::Stretch);
    header->setMinimumSectionSize(cLeastSection);
    // Of the rows that are seen: there may be thousands.
    header->setResizeContentsPrecision(0);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    takeLanguage();
}

void CallsTable::takeLanguage()
{
    if (m_pModel != nullptr) {
        m_iDirections = directionsWidth();
        fit();
    }
}

/// What the longest direction takes in the bold letters of what nobody has seen yet.
int CallsTable::directionsWidth() const
{
    ensurePolished();
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold, this);
    int width = 0;
    for (const QString &text : CallHistoryModel::directions()) {
        width = qMax(width, metrics.horizontalAdvance(text));
    }
    return width + cCellMargin;
}

bool CallsTable::isNarrow() const
{
    int needed = cLeastName + m_iDirections;
    for (const Column &column : cColumns) {
        needed += column.width;
    }
    return viewport()->width() < needed;
}

void CallsTable::fit()
{
    m_bNarrow = isNarrow();
    m_pModel->setArrowsAlone(m_bNarrow);
    QHeaderView *header = horizontalHeader();
    const auto give = [this, header](int iColumn, int iWidth) {
        header->setSectionResizeMode(iColumn, m_bNarrow ? QHeaderView::ResizeToContents : QHeaderView::Interactive);
        if (!m_bNarrow) {
            header->resizeSection(iColumn, iWidth);
        }
    };
    give(CallHistoryModel::Direction, m_iDirections);
    for (const Column &column : cColumns) {
        give(column.column, column.width);
    }
}

void CallsTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    // Otherwise the columns stay as the user may have drawn them.
    if (m_pModel != nullptr && m_bNarrow != isNarrow()) {
        fit();
    }
}
