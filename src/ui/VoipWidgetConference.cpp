// The call window's conference side: the members, their count, and what the member list asks for.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include <QStringBuilder>

void CVoipWidget::addConferenceMember(QString strUserID)
{
    if (m_memberIndex.contains(m_memberList, strUserID)) {
        return;
    }
    ui->listView->addUser(strUserID);
    m_memberIndex.append(m_memberList, strUserID);
    refreshMemberCount();
}

void CVoipWidget::removeConferenceMember(QString strUserID)
{
    ui->listView->removeUser(strUserID);
    m_memberIndex.removeOne(m_memberList, strUserID);
    refreshMemberCount();
}

void CVoipWidget::updateConferenceListStatus(QList<QString> list)
{
    ui->listView->updateConferenceListStatus(list);
}

void CVoipWidget::setConferenceCreator(QString strCreator)
{
    m_strCreator = strCreator;
    ui->listView->setConferenceCreator(strCreator);
}

void CVoipWidget::setaddConfFailedList(QList<QString> list)
{
    ui->listView->setAddConfFailedList(list);
}

void CVoipWidget::updateConferenceUserStatus(QString strUserID, qlonglong iStatus)
{
    ui->listView->updateConferenceUserStatus(strUserID, iStatus);
}

void CVoipWidget::refreshMemberCount()
{
    ui->lblListCount->setText(QStringLiteral("参与人员(") % QString::number(m_memberList.size()) % QLatin1Char(')'));
}

void CVoipWidget::slot_AddConferenceMember()
{
    emit signal_AddConferenceMember();
}

void CVoipWidget::slot_RemoveConferenceMember(QString strUserID)
{
    emit signal_RemoveUser(strUserID);
}

void CVoipWidget::slot_MuteConferenceMember(QString strUserID, bool bMute)
{
    emit signal_MuteUser(strUserID, bMute);
}

void CVoipWidget::slot_MuteAll()
{
    m_bMuteAll = !m_bMuteAll;
    setMuteAllButton(m_bMuteAll);
    ui->listView->setMuteAll(m_bMuteAll);
    emit signal_MuteAll(m_bMuteAll);
}

void CVoipWidget::slot_ReInviteConfUser(QString strUserID)
{
    emit signal_ReInviteConfUser(strUserID);
}
