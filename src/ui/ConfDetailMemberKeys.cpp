// The grid of members by keys, and what a screen reader calls it.

#include "model/MemberRoles.h"
#include "ui/ConfDetailMemberTableView.h"
#include "ui/SignCard.h"
#include "widgets/FocusRing.h"

#include <QKeyEvent>
#include <QPointer>

void CConfDetailMemberTableView::setUpKeys()
{
    // Tab leaves the grid; the arrows walk in it.
    setTabKeyNavigation(false);
    m_pRing = new FocusRing(this, [this] { return visualRect(currentIndex()); });
    nameParts();
}

void CConfDetailMemberTableView::nameParts()
{
    setAccessibleName(tr("Members of the conference"));
}

void CConfDetailMemberTableView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        nameParts();
    }
}

// Enter brings the signature card that a resting mouse brings; any other key takes it away.
void CConfDetailMemberTableView::keyPressEvent(QKeyEvent *event)
{
    m_pRing->heedKey();
    const bool bEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (bEnter && !currentIndex().data(ROLE_USER_ID).toString().isEmpty()) {
        m_strSignJid = signCardJid(currentIndex());
        m_signPos = signCardPlace(*this, currentIndex().data(ROLE_HEAD_RECT).toRect());
        showSignCard(*this, m_signTimer, m_strSignJid, m_signPos);
    } else if (cancelSignCard(*this, m_signTimer)) {
        QTableView::keyPressEvent(event);
    }
}
