#include "ui/ConferenceListView.h"

#include "common/BuiltInPictures.h"
#include "common/CLogManger.h"
#include "common/Palette.h"
#include "common/system/DpiScale.h"
#include "common/system/LocalClock.h"
#include "common/text/ShortText.h"
#include "model/MemberRoles.h"
#include "model/UserIds.h"
#include "ui/ConferenceListViewDelegate.h"
#include "ui/MemberListModel.h"
#include "ui/ShownContact.h"
#include "widgets/FocusRing.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QToolTip>

#include <limits>

namespace {

constexpr QSize cRowSize(500, 38);
constexpr int cTipColumns = 40;

/// A row of whose member nothing is known yet, with each role that a row has before it is painted. All rows begin as
/// copies of it, which cost less than new items to which each role is added.
class BlankRow : public QStandardItem
{
public:
    BlankRow()
    {
        setData(strDEFAULT_HEAD_PATH, ROLE_HEAD_PATH);
        setData(QString(), ROLE_USER_ID);
        setData(QString(), ROLE_DISPLAY_NAME);
        setData(int(ConferenceCalling), ROLE_CALL_STATUS);
        for (const int iRole : {ROLE_REMOVE_HOVER, ROLE_MUTE_HOVER, ROLE_MUTED, ROLE_CALL_BY_ME, ROLE_IS_CREATOR}) {
            setData(false, iRole);
        }
        setData(QTime(), ROLE_INVITE_TIME);
        setData(ADAPT_DPI_SIZE(cRowSize), Qt::SizeHintRole);
    }
};

void showTip(const QString &strTip)
{
    QToolTip::showText(QCursor::pos(), ShortText::getShortString(strTip, cTipColumns));
}

} // namespace

CConferenceListView::CConferenceListView(QWidget *parent)
    : QListView(parent), m_pDelegate(new CConferenceListViewDelegate(this)), m_pModel(new MemberListModel(this)),
      m_statusTimer(this)
{
    setMouseTracking(true);
    setCursor(Qt::ArrowCursor);
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    // All rows have one size, so Qt asks for it once.
    setUniformItemSizes(true);
    installEventFilter(this);
    connect(&m_statusTimer, SIGNAL(timeout()), this, SLOT(slot_UpdateCallStatu()));
    setItemDelegateForColumn(0, m_pDelegate);
    setUpKeys();
    setModel(m_pModel);
}

void CConferenceListView::setIsCallByMe(bool bIsCallByMe)
{
    m_bIsCallByMe = bIsCallByMe;
}

void CConferenceListView::addUserList(QList<QString> userList)
{
    m_userList = userList;
    for (const QString &strUserID : qAsConst(userList)) {
        appendUserItem(strUserID);
    }
}

void CConferenceListView::addUser(QString strUserID)
{
    if (strUserID.isEmpty()) {
        return;
    }
    if (!m_userIndex.contains(m_userList, strUserID)) {
        m_userIndex.append(m_userList, strUserID);
        appendUserItem(strUserID);
    } else if (QStandardItem *pItem = m_userItemMap.value(strUserID)) {
        pItem->setData(LocalClock::now(), ROLE_INVITE_TIME);
    }
}

void CConferenceListView::removeUser(QString strUserID)
{
    if (strUserID.isEmpty() || !m_userIndex.contains(m_userList, strUserID)) {
        return;
    }
    QStandardItem *pItem = m_userItemMap.value(strUserID);
    if (pItem == nullptr) {
        return;
    }
    const int iRow = m_pModel->indexFromItem(pItem).row();
    if (iRow < 0 || iRow >= m_pModel->rowCount()) {
        return;
    }
    m_userItemMap.remove(strUserID);
    m_userIndex.removeOne(m_userList, strUserID);
    m_pModel->removeRows(iRow, 1);
}

void CConferenceListView::clearMembers()
{
    m_pModel->clear();
    m_userList.clear();
    m_userIndex = UidIndex();
    m_userItemMap.clear();
    m_strCreator.clear();
    m_statusTimer.stop();
}

void CConferenceListView::setConferenceCreator(QString strCreator)
{
    m_strCreator = strCreator;
    if (QStandardItem *pItem = m_userItemMap.value(strCreator)) {
        pItem->setData(true, ROLE_IS_CREATOR);
    }
    if (strCreator == UserIds::getLoginUID()) {
        m_statusTimer.start(cInviteCheckInterval);
    }
}

void CConferenceListView::updateConferenceListStatus(QList<QString> list)
{
    if (list == m_connectedList) {
        return;
    }
    for (const QString &strUserID : qAsConst(list)) {
        updateConferenceUserStatus(strUserID, ConferenceConnected);
    }
    m_connectedList = list;
}

void CConferenceListView::setAddConfFailedList(QList<QString> list)
{
    for (const QString &strUserID : qAsConst(list)) {
        updateConferenceUserStatus(strUserID, ConferenceFailed);
    }
}

void CConferenceListView::updateConferenceUserStatus(QString strUserID, qlonglong iStatus)
{
    constexpr qlonglong cLeast = std::numeric_limits<int>::min();
    constexpr qlonglong cGreatest = std::numeric_limits<int>::max();
    QStandardItem *pItem = m_userItemMap.value(strUserID);
    const int iShown = int(qBound(cLeast, iStatus, cGreatest));
    // Most of an update's members are known and connected already.
    if (pItem != nullptr && pItem->data(ROLE_CALL_STATUS) != iShown) {
        pItem->setData(iShown, ROLE_CALL_STATUS);
    }
}

void CConferenceListView::setMuteAll(bool bMute)
{
    for (int iRow = 0; iRow < m_pModel->rowCount(); ++iRow) {
        m_pModel->item(iRow)->setData(bMute, ROLE_MUTED);
    }
}

void CConferenceListView::updateUserInfo(QString strJid, VcardInfo vcard)
{
    QStandardItem *pItem = m_userItemMap.value(UserIds::getUidByJid(strJid));
    if (pItem == nullptr) {
        return;
    }
    pItem->setData(ShownContact::headPathOf(vcard), ROLE_HEAD_PATH);
    // Deliberate: the card's nick name, not the contact's shown name.
    pItem->setData(vcard.m_strNickName, ROLE_DISPLAY_NAME);
}

void CConferenceListView::slot_UpdateCallStatu()
{
    const QTime now = LocalClock::now();
    for (int iRow = 0; iRow < m_pModel->rowCount(); ++iRow) {
        QStandardItem *pItem = m_pModel->item(iRow);
        if (pItem->data(ROLE_CALL_STATUS).toInt() == ConferenceCalling &&
            isInviteOver(pItem->data(ROLE_INVITE_TIME).toTime(), now)) {
            pItem->setData(int(ConferenceFailed), ROLE_CALL_STATUS);
        }
    }
}

void CConferenceListView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                      const QVector<int> &roles)
{
    if (roles.isEmpty() || roles.contains(ROLE_CALL_STATUS)) {
        m_connectedList.clear();
    }
    // The painting itself writes the buttons' places back: they must not call for the next painting.
    if (!areRolesShown(roles)) {
        return;
    }
    // QListView would place all rows anew for each change, and paint them all; only a new size calls for that.
    if (roles.isEmpty() || roles.contains(Qt::SizeHintRole)) {
        QListView::dataChanged(topLeft, bottomRight, roles);
    } else {
        QAbstractItemView::dataChanged(topLeft, bottomRight, roles); // NOLINT(bugprone-parent-virtual-call)
    }
}

void CConferenceListView::mousePressEvent(QMouseEvent *event)
{
    QListView::mousePressEvent(event);
}

void CConferenceListView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->localPos().toPoint();
    if (QStandardItem *pItem = m_pModel->itemFromIndex(indexAt(position))) {
        hoverItem(pItem, position);
    }
    QListView::mouseMoveEvent(event);
}

void CConferenceListView::hoverItem(QStandardItem *pItem, const QPoint &position)
{
    // Deliberate: moving from one button onto the other leaves the first one's flag; only a place beside both clears.
    if (pItem->data(ROLE_REMOVE_RECT).toRect().contains(position)) {
        pItem->setData(true, ROLE_REMOVE_HOVER);
        setCursor(Qt::PointingHandCursor);
        showTip(QStringLiteral("移出会议"));
    } else if (pItem->data(ROLE_MUTE_RECT).toRect().contains(position)) {
        pItem->setData(true, ROLE_MUTE_HOVER);
        setCursor(Qt::PointingHandCursor);
        showTip(pItem->data(ROLE_MUTED).toBool() ? QStringLiteral("取消静音") : QStringLiteral("静音"));
    } else {
        pItem->setData(false, ROLE_REMOVE_HOVER);
        pItem->setData(false, ROLE_MUTE_HOVER);
        setCursor(Qt::ArrowCursor);
        QToolTip::hideText();
    }
}

void CConferenceListView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        event->ignore();
        return;
    }
    const QPoint position = event->localPos().toPoint();
    const QModelIndex index = indexAt(position);
    if (event->button() != Qt::LeftButton || !index.isValid()) {
        QListView::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    if (QStandardItem *pItem = m_pModel->itemFromIndex(index)) {
        clickItem(pItem, position);
        return;
    }
    LOG_DEBUG << "selected is null"
              << "\n";
}

void CConferenceListView::clickItem(QStandardItem *pItem, const QPoint &position)
{
    // The rectangles are those of the last painting, whatever the row's status has become since.
    const QString strUserID = pItem->data(ROLE_USER_ID).toString();
    if (pItem->data(ROLE_REMOVE_RECT).toRect().contains(position)) {
        emit signal_RemoveUser(strUserID);
    } else if (pItem->data(ROLE_MUTE_RECT).toRect().contains(position)) {
        muteMember(pItem);
    }
}

void CConferenceListView::muteMember(QStandardItem *pItem)
{
    const bool bMute = !pItem->data(ROLE_MUTED).toBool();
    pItem->setData(bMute, ROLE_MUTED);
    emit signal_MuteUser(pItem->data(ROLE_USER_ID).toString(), bMute);
}

void CConferenceListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        return;
    }
    const QModelIndex index = indexAt(event->localPos().toPoint());
    if (model() == nullptr) {
        return;
    }
    if (!index.isValid()) {
        repaint();
        return;
    }
    QStandardItem *pItem = m_pModel->itemFromIndex(index);
    if (pItem == nullptr) {
        LOG_DEBUG << "selected is null"
                  << "\n";
        return;
    }
    reInviteMember(pItem);
    QAbstractItemView::mouseDoubleClickEvent(event);
}

void CConferenceListView::reInviteMember(QStandardItem *pItem)
{
    // The status stays until the manager changes it, so the row keeps its failed look while the new call goes out.
    if (canReInvite(pItem->data(ROLE_CALL_STATUS).toInt())) {
        pItem->setData(LocalClock::now(), ROLE_INVITE_TIME);
        emit signal_ReInviteConfUser(pItem->data(ROLE_USER_ID).toString());
    }
}

void CConferenceListView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    // Rows whose pixels are only moved would keep the places of their buttons from before.
    viewport()->update();
}

bool CConferenceListView::eventFilter(QObject *obj, QEvent *event)
{
    if (obj == this && event->type() == QEvent::Leave) {
        setStyleSheet(strVerticalScrollBarNormalStyle);
    } else if (obj == this && event->type() == QEvent::Enter) {
        setStyleSheet(strVerticalScrollBarHoverStyle);
    }
    return QListView::eventFilter(obj, event);
}

void CConferenceListView::appendUserItem(const QString &strUserID)
{
    QStandardItem *pItem = creatUserItem(strUserID);
    m_pModel->appendRow(pItem);
    m_userItemMap.insert(strUserID, pItem);
    m_connectedList.clear();
}

QStandardItem *CConferenceListView::creatUserItem(const QString &strUserID)
{
    const ShownContact member = ShownContact::ofUser(strUserID);
    // The model takes the item over as soon as it is appended.
    static const BlankRow s_blank;
    QStandardItem *pItem = s_blank.clone();
    if (member.strHeadPath != strDEFAULT_HEAD_PATH) {
        pItem->setData(member.strHeadPath, ROLE_HEAD_PATH);
    }
    pItem->setData(strUserID, ROLE_USER_ID);
    pItem->setData(member.record.displayName(), ROLE_DISPLAY_NAME);
    if (m_bIsCallByMe) {
        pItem->setData(true, ROLE_CALL_BY_ME);
    }
    if (strUserID == m_strCreator) {
        pItem->setData(true, ROLE_IS_CREATOR);
    }
    pItem->setData(LocalClock::now(), ROLE_INVITE_TIME);
    return pItem;
}
