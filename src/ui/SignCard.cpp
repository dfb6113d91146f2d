#include "ui/SignCard.h"

#include "model/MemberRoles.h"
#include "model/UserIds.h"
#include "plugin/VoipManageEventProcess.h"

#include <QModelIndex>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QWidget>

QString signCardJid(const QModelIndex &index)
{
    return UserIds::getJidByUid(index.data(ROLE_USER_ID).toString());
}

QPoint signCardPlace(const QWidget &view, const QRect &head)
{
    constexpr int cFromLeft = 2;
    return view.mapToGlobal(head.topLeft()) + QPoint(cFromLeft - head.left(), 0);
}

void showSignCard(const QWidget &view, QTimer &delay, const QString &strJid, const QPoint &place)
{
    const QPointer<const QWidget> pView = &view;
    // Deliberate: the card's host takes the view's width where it asks for a height.
    VoipManageEventProcess::showSignList(strJid, place.x(), place.y(), view.width(), true, false);
    if (pView) {
        delay.stop();
    }
}

bool cancelSignCard(const QWidget &view, QTimer &delay)
{
    const QPointer<const QWidget> pView = &view;
    delay.stop();
    VoipManageEventProcess::closeSignList();
    return !pView.isNull();
}
