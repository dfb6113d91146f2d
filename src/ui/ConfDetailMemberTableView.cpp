#include "ui/ConfDetailMemberTableView.h"

#include "common/system/DpiScale.h"
#include "model/MemberRoles.h"
#include "ui/ConfDetailTableViewDelegate.h"
#include "ui/ShownContact.h"
#include "ui/SignCard.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>
#include <QStandardItemModel>

namespace {

constexpr int cColumns = 6;
constexpr int cCellSide = 80;

} // namespace

CConfDetailMemberTableView::CConfDetailMemberTableView(QWidget *parent)
    : QTableView(parent), m_pModel(new QStandardItemModel(this)), m_pDelegate(new CConfDetailTableViewDelegate(this)),
      m_signTimer(this)
{
    initTableView();
}

void CConfDetailMemberTableView::initTableView()
{
    setShowGrid(false);
    setModel(m_pModel);
    for (QHeaderView *pHeader : {horizontalHeader(), verticalHeader()}) {
        pHeader->setDefaultSectionSize(ADAPT_DPI_INT(cCellSide));
        pHeader->hide();
    }
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(m_pDelegate);
    setMouseTracking(true);
    setUpKeys();
    connect(&m_signTimer, SIGNAL(timeout()), this, SLOT(slot_ShowSign()));
}

void CConfDetailMemberTableView::setMemList(QList<QString> list)
{
    if (list.isEmpty()) {
        return;
    }
    m_memberList = list;
    const QPointer<CConfDetailMemberTableView> self = this;
    for (int i = 0; self && i < list.size(); ++i) {
        placeMember(i / cColumns, i % cColumns, list.at(i));
    }
    // The empty grid may have had the focus, without a current cell.
    if (self && hasFocus() && !currentIndex().isValid()) {
        setCurrentIndex(m_pModel->index(0, 0));
    }
}

void CConfDetailMemberTableView::clearData()
{
    m_pModel->clear();
    m_memberItemMap.clear();
    m_memberList.clear();
}

std::unique_ptr<QStandardItem> CConfDetailMemberTableView::creatMemberItem(const QString &strUserID)
{
    const ShownContact member = ShownContact::ofUser(strUserID);
    auto pItem = std::make_unique<QStandardItem>();
    pItem->setData(strUserID, ROLE_USER_ID);
    pItem->setData(member.record.displayName(), ROLE_DISPLAY_NAME);
    pItem->setData(member.strHeadPath, ROLE_HEAD_PATH);
    pItem->setData(member.record.displayName(), Qt::AccessibleTextRole);
    return pItem;
}

void CConfDetailMemberTableView::placeMember(int iRow, int iColumn, const QString &strUserID)
{
    // The host may destroy the grid while it looks the member up.
    const QPointer<CConfDetailMemberTableView> self = this;
    std::unique_ptr<QStandardItem> pItem = creatMemberItem(strUserID);
    if (!self) {
        return;
    }
    if (const QStandardItem *pOld = m_pModel->item(iRow, iColumn)) {
        // The model deletes what stood in the cell.
        const auto known = m_memberItemMap.find(pOld->data(ROLE_USER_ID).toString());
        if (known != m_memberItemMap.end() && *known == pOld) {
            m_memberItemMap.erase(known);
        }
    }
    m_pModel->setItem(iRow, iColumn, pItem.get());
    m_memberItemMap.insert(strUserID, pItem.release());
}

void CConfDetailMemberTableView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                             const QVector<int> &roles)
{
    // Painting writes the places of the heads into the items. That must not lead to the next painting.
    if (areRolesShown(roles)) {
        QTableView::dataChanged(topLeft, bottomRight, roles);
    }
}

void CConfDetailMemberTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    // Everything is painted anew, because painting writes down where the heads stand: scrolling alone only moves the
    // pixels.
    viewport()->update();
}

void CConfDetailMemberTableView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->localPos().toPoint();
    const QModelIndex index = indexAt(position);
    // Deliberate: away from all members nothing changes, so a card that is due still comes.
    const QPointer<CConfDetailMemberTableView> self = this;
    if (m_pModel->item(index.row(), index.column()) != nullptr) {
        hoverItem(index, position);
    }
    if (self) {
        QAbstractItemView::mouseMoveEvent(event);
    }
}

void CConfDetailMemberTableView::hoverItem(const QModelIndex &index, const QPoint &position)
{
    const QRect head = index.data(ROLE_HEAD_RECT).toRect();
    if (head.contains(position)) {
        m_signPos = signCardPlace(*this, head);
        m_strSignJid = signCardJid(index);
        // Each move inside the head starts the delay anew.
        m_signTimer.start(cSignDelay);
    } else if (!cancelSignCard(*this, m_signTimer)) {
        return;
    }
    setCursor(Qt::ArrowCursor);
}

void CConfDetailMemberTableView::slot_ShowSign()
{
    showSignCard(*this, m_signTimer, m_strSignJid, m_signPos);
}

void CConfDetailMemberTableView::leaveEvent(QEvent *event)
{
    if (cancelSignCard(*this, m_signTimer)) {
        QTableView::leaveEvent(event);
    }
}
