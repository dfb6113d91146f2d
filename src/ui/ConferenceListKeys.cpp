// The member list by keys: which part of the current row they press, its menu, and what a screen reader calls the list.

#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/RowWords.h"
#include "widgets/FocusRing.h"
#include "widgets/MenuEx.h"

#include <QKeyEvent>
#include <QStandardItemModel>
#include <QToolTip>

namespace {

constexpr int cWholeRow = 0;

} // namespace

void CConferenceListView::setUpKeys()
{
    m_pRing = new FocusRing(this, [this] { return keyPlace(); });
    nameParts();
}

void CConferenceListView::nameParts()
{
    setAccessibleName(tr("Members of the conference"));
}

void CConferenceListView::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        nameParts();
    }
}

QStandardItem *CConferenceListView::currentItem() const
{
    return m_pModel->itemFromIndex(currentIndex());
}

/// The parts of the current row from left to right, as they are painted.
QVector<int> CConferenceListView::keyParts() const
{
    QVector<int> parts{cWholeRow};
    const QStandardItem *pItem = currentItem();
    if (pItem == nullptr || !pItem->data(ROLE_CALL_BY_ME).toBool()) {
        return parts;
    }
    const int iStatus = pItem->data(ROLE_CALL_STATUS).toInt();
    if (canMute(iStatus)) {
        parts.append(ROLE_MUTE_RECT);
    }
    if (canRemove(iStatus)) {
        parts.append(ROLE_REMOVE_RECT);
    }
    return parts;
}

int CConferenceListView::keyPart() const
{
    return keyParts().contains(m_iKeyPart) ? m_iKeyPart : cWholeRow;
}

QRect CConferenceListView::keyPlace() const
{
    const int iPart = keyPart();
    if (iPart == cWholeRow) {
        return visualRect(currentIndex());
    }
    constexpr int cRingWidth = 4;
    return currentIndex().data(iPart).toRect().adjusted(-cRingWidth, -cRingWidth, cRingWidth, cRingWidth);
}

void CConferenceListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    m_iKeyPart = cWholeRow;
}

void CConferenceListView::moveKeyPart(int iSteps)
{
    const QVector<int> parts = keyParts();
    m_iKeyPart = parts.at(qBound(0, parts.indexOf(keyPart()) + iSteps, parts.size() - 1));
    m_pRing->renew();
    const QString strTip = m_iKeyPart == ROLE_MUTE_RECT
                               ? RowWords::muteOrUnmute(currentIndex().data(ROLE_MUTED).toBool())
                           : m_iKeyPart == ROLE_REMOVE_RECT ? RowWords::removal()
                                                            : QString();
    // The glyphs say nothing to who has never had the mouse on them.
    QToolTip::showText(viewport()->mapToGlobal(keyPlace().bottomLeft()), strTip, this);
}

void CConferenceListView::pressKeyPart()
{
    QStandardItem *pItem = currentItem();
    if (pItem == nullptr) {
        return;
    }
    switch (keyPart()) {
    case ROLE_MUTE_RECT:
        muteMember(pItem);
        break;
    case ROLE_REMOVE_RECT:
        removeByKey();
        break;
    default:
        reInviteMember(pItem);
    }
}

void CConferenceListView::removeByKey()
{
    if (keyParts().contains(ROLE_REMOVE_RECT)) {
        emit signal_RemoveUser(currentIndex().data(ROLE_USER_ID).toString());
    }
}

void CConferenceListView::showKeyMenu()
{
    const QStandardItem *pItem = currentItem();
    if (pItem == nullptr) {
        return;
    }
    const QString strUserID = pItem->data(ROLE_USER_ID).toString();
    auto *pMenu = new CMenuEx(this);
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    // When the menu has gone; the member may have gone too by then.
    const auto add = [&](const QString &strText, auto &&act) {
        connect(
            pMenu->addAction(strText), &QAction::triggered, this,
            [this, strUserID, act] {
                if (QStandardItem *pMember = m_userItemMap.value(strUserID)) {
                    act(pMember);
                }
            },
            Qt::QueuedConnection);
    };
    if (canReInvite(pItem->data(ROLE_CALL_STATUS).toInt())) {
        add(RowWords::callAgain(), [this](QStandardItem *pMember) { reInviteMember(pMember); });
    }
    const QVector<int> parts = keyParts();
    if (parts.contains(ROLE_MUTE_RECT)) {
        add(RowWords::muteOrUnmute(pItem->data(ROLE_MUTED).toBool()),
            [this](QStandardItem *pMember) { muteMember(pMember); });
    }
    if (parts.contains(ROLE_REMOVE_RECT)) {
        add(RowWords::removal(),
            [this](QStandardItem *pMember) { emit signal_RemoveUser(pMember->data(ROLE_USER_ID).toString()); });
    }
    if (pMenu->isEmpty()) {
        delete pMenu;
        return;
    }
    pMenu->popup(viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    pMenu->setActiveAction(pMenu->actions().constFirst());
}

void CConferenceListView::keyPressEvent(QKeyEvent *event)
{
    m_pRing->heedKey();
    const bool bMenu =
        event->key() == Qt::Key_Menu || (event->key() == Qt::Key_F10 && event->modifiers().testFlag(Qt::ShiftModifier));
    switch (event->key()) {
    case Qt::Key_Left:
        moveKeyPart(-1);
        return;
    case Qt::Key_Right:
        moveKeyPart(1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        // A key that is held presses once.
        if (!event->isAutoRepeat()) {
            pressKeyPart();
        }
        return;
    case Qt::Key_Delete:
        if (!event->isAutoRepeat()) {
            removeByKey();
        }
        return;
    default:
        break;
    }
    if (bMenu) {
        showKeyMenu();
    } else {
        QListView::keyPressEvent(event);
    }
}
