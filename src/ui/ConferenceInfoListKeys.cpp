// The history list by keys, and what a screen reader calls it.

#include "model/MemberRoles.h"
#include "ui/ConferenceInfoListView.h"
#include "widgets/FocusRing.h"
#include "widgets/MenuEx.h"

#include <QKeyEvent>
#include <QStandardItemModel>

void CConferenceInfoListView::setUpKeys()
{
    m_pRing = new FocusRing(this, [this] { return visualRect(currentIndex()); });
    nameParts();
}

void CConferenceInfoListView::nameParts()
{
    setAccessibleName(tr("Past conferences"));
}

void CConferenceInfoListView::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        nameParts();
    }
}

void CConferenceInfoListView::showKeyMenu(const QModelIndex &index)
{
    showMenu(m_pModel->itemFromIndex(index), viewport()->mapToGlobal(visualRect(index).center()));
    m_pMenu->setActiveAction(m_pMenu->actions().constFirst());
}

// The details, as the button that comes up under the mouse, are those of a conference that connected.
void CConferenceInfoListView::keyPressEvent(QKeyEvent *event)
{
    m_pRing->heedKey();
    const QModelIndex index = currentIndex();
    const bool bPressed = index.isValid() && !event->isAutoRepeat();
    const QString strConfID = index.data(ROLE_CONF_ID).toString();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (bPressed && index.data(ROLE_CALL_STATUS).toBool()) {
            emit signal_ShowConfDetail(strConfID);
        }
        return;
    case Qt::Key_Delete:
        if (bPressed) {
            emit signal_DeleteConfInfo(strConfID);
        }
        return;
    case Qt::Key_Menu:
        if (bPressed) {
            showKeyMenu(index);
        }
        return;
    case Qt::Key_F10:
        if (bPressed && event->modifiers().testFlag(Qt::ShiftModifier)) {
            showKeyMenu(index);
            return;
        }
        break;
    default:
        break;
    }
    QListView::keyPressEvent(event);
}
