// The call window's controls: the faces of the toggles and what each click does.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/CLogManger.h"
#include "common/CommonFun.h"
#include "widgets/ErrorMessage.h"

#include <QDebug>

namespace {

using Symbol = SymbolButton::Symbol;

const QColor cToggleColor(184, 184, 184);
const QColor cMuteAllColor(255, 96, 88);

const char *boolText(bool bValue)
{
    return bValue ? "true" : "false";
}

} // namespace

void CVoipWidget::SetMicButton(bool bMute)
{
    LOG_DEBUG << "setmic bMute = " << bMute << "\n";
    ui->btnMic->setSymbol(bMute ? Symbol::MicrophoneOff : Symbol::Microphone, cToggleColor);
    ui->btnMic->setToolTip(bMute ? tr("openmic") : tr("closemic"));
}

void CVoipWidget::SetSpeakerButton(bool bMute)
{
    LOG_DEBUG << "set speaker bMute = " << bMute << "\n";
    ui->btnSpeaker->setSymbol(bMute ? Symbol::SpeakerOff : Symbol::Speaker, cToggleColor);
    ui->btnSpeaker->setToolTip(bMute ? tr("openvioce") : tr("silence"));
}

void CVoipWidget::SetCameraButton(bool bEnable)
{
    LOG_DEBUG << "set camera bEnable = " << bEnable << "\n";
    ui->btnCamera->setSymbol(bEnable ? Symbol::Camera : Symbol::CameraOff, cToggleColor);
}

void CVoipWidget::setMuteAllButton(bool bMute)
{
    ui->btnMuteAll->setSymbol(Symbol::SpeakerOff, bMute ? cMuteAllColor : cToggleColor);
    ui->btnMuteAll->setToolTip(bMute ? QStringLiteral("取消全体静音") : QStringLiteral("全体静音"));
}

void CVoipWidget::SetMicEnable(bool bEnable)
{
    qDebug().noquote().nospace() << "SetMicEnable = " << boolText(bEnable);
    emit signal_SetMicEnable(bEnable);
}

void CVoipWidget::SetSpeakerEnable(bool bEnable)
{
    // The microphone's words: deliberate, the debug log has always read so.
    qDebug().noquote().nospace() << "SetMicEnable = " << boolText(bEnable);
    emit signal_SetSpeakerEnable(bEnable);
}

void CVoipWidget::SetCamreraEnable(bool bEnable)
{
    qDebug().noquote().nospace() << "SetCamreraEnable = " << boolText(bEnable);
    emit signal_SetCameraEnable(bEnable);
}

void CVoipWidget::SetMicVolume(qlonglong iVolume)
{
    qDebug().noquote().nospace() << "SetMicVolume = " << iVolume;
    emit signal_SetMicVolume(iVolume);
}

void CVoipWidget::SetSpeakerVolume(qlonglong iVolume)
{
    qDebug().noquote().nospace() << "SetSpeakerVolume = " << iVolume;
    emit signal_SetSpeakerVolume(iVolume);
}

void CVoipWidget::slot_HangUpCall()
{
    LOG_DEBUG << "click hangup button!"
              << "\n";
    emit signal_HangupCurrentCall();
}

void CVoipWidget::slot_close()
{
    LOG_DEBUG << "click close button!"
              << "\n";
    ErrorMessage question(QString(), QStringLiteral("确定"), nullptr);
    question.setBtnText(tr("sure"), tr("cancel"));
    question.chooseMsgShow(tr("tip"), tr("beSureToCloseCalling"));
    if (question.m_bAccepted)
        close();
}

void CVoipWidget::slot_RefreshTime()
{
    // On the time of day, so that a call across midnight runs negative: deliberate and left uncorrected.
    const int iSeconds = m_callStartTime.secsTo(QTime::currentTime());
    ui->currentPlayTimeLabel->setText(CommonFun::GetTimeString(iSeconds));
}

void CVoipWidget::slot_MicButtonClicked()
{
    LOG_DEBUG << "click mic button!"
              << "\n";
    m_bMicMute = !m_bMicMute;
    SetMicButton(m_bMicMute);
    SetMicEnable(!m_bMicMute);
}

void CVoipWidget::slot_SpeakerButtonClicked()
{
    LOG_DEBUG << "click speaker button!"
              << "\n";
    m_bSpeakerMute = !m_bSpeakerMute;
    SetSpeakerButton(m_bSpeakerMute);
    SetSpeakerEnable(!m_bSpeakerMute);
}

void CVoipWidget::slot_CameraButtonClicked()
{
    LOG_DEBUG << "click camera button!"
              << "\n";
    m_bCameraEnable = !m_bCameraEnable;
    SetCameraButton(m_bCameraEnable);
    SetCamreraEnable(m_bCameraEnable);
}

void CVoipWidget::slot_CancelVoipCall()
{
    LOG_DEBUG << "cancel button click!"
              << "\n";
    emit signal_HangupCurrentCall();
    // The close path sends it a second time: deliberate, the manager ends a call once and ignores the rest.
    close();
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
