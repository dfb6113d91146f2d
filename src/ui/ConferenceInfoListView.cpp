#include "ui/ConferenceInfoListView.h"

#include "common/CLogManger.h"
#include "common/Palette.h"
#include "common/system/ScreenPlace.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceInfoItem.h"
#include "ui/ConferenceInfoListViewDelegate.h"
#include "ui/ShownContact.h"
#include "ui/SignCard.h"
#include "widgets/MenuEx.h"

#include <QHash>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QStandardItemModel>

namespace {

/// Where a menu of this length begins along one axis: at its place, or ending there where the screen has no room.
int menuStart(int iPlace, int iMenu, int iScreen)
{
    return iPlace + iMenu > iScreen ? iPlace - 1 - (iMenu - 1) : iPlace;
}

} // namespace

CConferenceInfoListView::CConferenceInfoListView(QWidget *parent)
    : QListView(parent), m_pDelegate(new CConferenceInfoListViewDelegate(this)), m_pModel(new QStandardItemModel(this)),
      m_pMenu(new CMenuEx(this)),
      // The actions belong to the list, not to the menu, which deletes its own actions when it is emptied.
      m_pRecallAction(new QAction(QStringLiteral("再次发起"), this)),
      m_pDeleteAction(new QAction(QStringLiteral("删除"), this)), m_signTimer(this)
{
    setMouseTracking(true);
    // In every style the row under the cursor is painted anew, because it alone shows the detail button.
    viewport()->setAttribute(Qt::WA_Hover);
    setCursor(Qt::ArrowCursor);
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    // All rows have the same size, so that it is asked for once and not for each of a hundred thousand rows.
    setUniformItemSizes(true);
    installEventFilter(this);
    setItemDelegateForColumn(0, m_pDelegate);
    setUpKeys();
    setModel(m_pModel);
    m_pMenu->addAction(m_pRecallAction);
    m_pMenu->addAction(m_pDeleteAction);
    connect(m_pMenu, SIGNAL(triggered(QAction *)), this, SLOT(slot_selectAction(QAction *)));
    connect(&m_signTimer, SIGNAL(timeout()), this, SLOT(slot_ShowSign()));
}

void CConferenceInfoListView::addConfInfoList(QList<ConfInfoData> confInfoList)
{
    m_confInfoList = confInfoList;
    if (confInfoList.isEmpty()) {
        return;
    }
    const QPointer<CConferenceInfoListView> self = this;
    // Deliberate: one request per creator, not per record, of which there may be a hundred thousand.
    QHash<QString, std::shared_ptr<const ConferenceCreator>> creators;
    for (const ConfInfoData &confInfo : qAsConst(confInfoList)) {
        if (creators.contains(confInfo.m_strCreatUserID)) {
            continue;
        }
        creators.insert(confInfo.m_strCreatUserID, creatorOf(confInfo.m_strCreatUserID));
        if (!self) {
            return;
        }
    }
    QList<QStandardItem *> items;
    items.reserve(confInfoList.size());
    for (const ConfInfoData &confInfo : qAsConst(confInfoList)) {
        items.append(creatListItem(confInfo, creators.value(confInfo.m_strCreatUserID)));
        // The store gives the greatest id first: each goes in front of the one before.
        m_confItemMap.insert(m_confItemMap.constBegin(), confInfo.m_strConfID, items.constLast());
    }
    m_pModel->invisibleRootItem()->appendRows(items);
}

void CConferenceInfoListView::addConfInfoData(ConfInfoData confInfo)
{
    if (confInfo.m_strConfID.isEmpty() || m_confItemMap.contains(confInfo.m_strConfID)) {
        return;
    }
    const QPointer<CConferenceInfoListView> self = this;
    const auto pCreator = creatorOf(confInfo.m_strCreatUserID);
    if (!self) {
        return;
    }
    QStandardItem *pItem = creatListItem(confInfo, pCreator);
    m_pModel->insertRow(0, pItem);
    m_confItemMap.insert(confInfo.m_strConfID, pItem);
    // Deliberate: on top of the rows, but at the end of the list.
    m_confInfoList.append(confInfo);
}

void CConferenceInfoListView::removeConfInfoData(QString strConfID)
{
    QStandardItem *pItem = strConfID.isEmpty() ? nullptr : m_confItemMap.value(strConfID);
    if (pItem == nullptr) {
        return;
    }
    // Deliberate: the list keeps the record.
    m_pModel->removeRows(m_pModel->indexFromItem(pItem).row(), 1);
    m_confItemMap.remove(strConfID);
}

std::shared_ptr<const ConferenceCreator> CConferenceInfoListView::creatorOf(const QString &strUserID)
{
    const ShownContact creator = ShownContact::ofUser(strUserID);
    return std::make_shared<const ConferenceCreator>(
        ConferenceCreator{strUserID, creator.record.displayName(), creator.strHeadPath, creator.bIsMe});
}

QStandardItem *CConferenceInfoListView::creatListItem(const ConfInfoData &confInfo,
                                                      const std::shared_ptr<const ConferenceCreator> &pCreator)
{
    // The model takes the item over as soon as it is in a row.
    return new ConferenceInfoItem(confInfo, pCreator);
}

void CConferenceInfoListView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                          const QVector<int> &roles)
{
    // Painting writes the places of heads and buttons into the items. That must not lead to the next painting.
    if (areRolesShown(roles)) {
        QListView::dataChanged(topLeft, bottomRight, roles);
    }
}

void CConferenceInfoListView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    // Everything is painted anew, because painting writes down where heads and buttons stand: scrolling alone only
    // moves the pixels.
    viewport()->update();
}

void CConferenceInfoListView::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void CConferenceInfoListView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->localPos().toPoint();
    const QModelIndex index = indexAt(position);
    // Deliberate: away from all rows nothing changes, so a card that is due still comes.
    const QPointer<CConferenceInfoListView> self = this;
    if (m_pModel->itemFromIndex(index) != nullptr) {
        hoverRow(index, position);
    }
    if (self) {
        QListView::mouseMoveEvent(event);
    }
}

void CConferenceInfoListView::hoverRow(const QModelIndex &index, const QPoint &position)
{
    const QRect head = index.data(ROLE_HEAD_RECT).toRect();
    if (index.data(ROLE_REMOVE_RECT).toRect().contains(position)) {
        setCursor(Qt::PointingHandCursor);
        return;
    }
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

void CConferenceInfoListView::slot_ShowSign()
{
    showSignCard(*this, m_signTimer, m_strSignJid, m_signPos);
}

void CConferenceInfoListView::leaveEvent(QEvent *event)
{
    if (cancelSignCard(*this, m_signTimer)) {
        QListView::leaveEvent(event);
    }
}

void CConferenceInfoListView::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint position = event->localPos().toPoint();
    const QModelIndex index = indexAt(position);
    if (event->button() == Qt::LeftButton && index.isValid()) {
        clickRow(index, position);
        event->accept();
    } else if (event->button() == Qt::RightButton) {
        showMenu(m_pModel->itemFromIndex(index), QCursor::pos());
        event->ignore();
    } else {
        QListView::mouseReleaseEvent(event);
    }
}

void CConferenceInfoListView::clickRow(const QModelIndex &index, const QPoint &position)
{
    const QStandardItem *pItem = m_pModel->itemFromIndex(index);
    if (pItem == nullptr) {
        LOG_DEBUG << "selected is null"
                  << "\n";
        return;
    }
    // The button's place is that of the last painting under the cursor, also when it is no longer shown.
    if (pItem->data(ROLE_REMOVE_RECT).toRect().contains(position)) {
        emit signal_ShowConfDetail(pItem->data(ROLE_CONF_ID).toString());
    }
}

void CConferenceInfoListView::showMenu(const QStandardItem *pItem, const QPoint &place)
{
    if (pItem == nullptr) {
        LOG_DEBUG << "selected is null"
                  << "\n";
        return;
    }
    m_strSelectedConfID = pItem->data(ROLE_CONF_ID).toString();
    m_pMenu->clear();
    // A conference that never connected can only be deleted.
    if (pItem->data(ROLE_CALL_STATUS).toBool()) {
        m_pMenu->addAction(m_pRecallAction);
    }
    m_pMenu->addAction(m_pDeleteAction);
    m_pMenu->show();
    const QSize screen = ScreenPlace::workArea().size();
    m_pMenu->move(menuStart(place.x(), m_pMenu->width(), screen.width()),
                  menuStart(place.y(), m_pMenu->height(), screen.height()));
}

void CConferenceInfoListView::slot_selectAction(QAction *pAction)
{
    if (m_strSelectedConfID.isEmpty()) {
        return;
    }
    // The host may run an event loop in which this list is destroyed, while the menu is still handling the click. So
    // the menu is no child of the list meanwhile, and is deleted by the event loop that brought the click.
    CMenuEx *const pMenu = m_pMenu;
    const QPointer<CConferenceInfoListView> self = this;
    pMenu->setParent(nullptr, pMenu->windowFlags());
    if (pAction == m_pRecallAction) {
        emit signal_ReCallConf(m_strSelectedConfID);
    } else if (pAction == m_pDeleteAction) {
        emit signal_DeleteConfInfo(m_strSelectedConfID);
    }
    if (self) {
        pMenu->setParent(this, pMenu->windowFlags());
    } else {
        pMenu->deleteLater();
    }
}

bool CConferenceInfoListView::eventFilter(QObject *obj, QEvent *event)
{
    if (obj == this && event->type() == QEvent::Leave) {
        setStyleSheet(strVerticalScrollBarNormalStyle);
    } else if (obj == this && event->type() == QEvent::Enter) {
        setStyleSheet(strVerticalScrollBarHoverStyle);
    }
    return QListView::eventFilter(obj, event);
}
