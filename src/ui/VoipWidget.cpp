// The call window's call: what it shows of it, the buttons of its bar, and the one way in which it closes.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/CLogManger.h"
#include "common/pictures/IconGlyphs.h"
#include "common/text/TimeText.h"
#include "model/UserIds.h"
#include "ui/ShownContact.h"
#include "widgets/ErrorMessage.h"

#include <QCloseEvent>
#include <QEvent>
#include <QSlider>

namespace {

constexpr int cClockInterval = 1000;

// Pages of the two stacks, in the form's order.
constexpr int cVoicePage = 0;
constexpr int cVideoPage = 1;
constexpr int cConferencePage = 2;
constexpr int cRequestPage = 0;
constexpr int cCallingPage = 1;

// The colours of the toggle buttons.
const QString cToggleColor = QStringLiteral("184,184,184");
const QString cMuteAllColor = QStringLiteral("255, 96, 88");

// The name that a card shows in the call window. A card without any name gives an empty text.
QString cardName(const VcardInfo &vcard)
{
    if (vcard.m_strNickName.isEmpty() && vcard.m_strAlternativeName.isEmpty()) {
        return {};
    }
    return vcard.m_strNickName + QLatin1Char('(') + vcard.m_strAlternativeName + QLatin1Char(')');
}

void setFace(CIconButtonEx *pButton, ushort glyph)
{
    pButton->setIconFont(IconGlyph::text(glyph), CIconButtonEx::LargeGlyph, CIconButtonEx::HoverStyle);
    pButton->setIconColor(cToggleColor);
}

QString micTip(bool bMute)
{
    return bMute ? CVoipWidget::tr("openmic") : CVoipWidget::tr("closemic");
}

QString speakerTip(bool bMute)
{
    return bMute ? CVoipWidget::tr("openvioce") : CVoipWidget::tr("silence");
}

} // namespace

void CVoipWidget::show()
{
    showNormal();
}

void CVoipWidget::setVoipCallInfo(QList<QString> userList, VoipType iType, bool bMyCall, bool bConnected)
{
    LOG_DEBUG << "userlist = " << QStringList(userList).join(QLatin1Char(',')) << ", iType = " << int(iType)
              << ", bMyCall = " << bMyCall << "\n";
    if ((iType == Voice || iType == Video) && userList.isEmpty()) {
        return;
    }
    if (iType == Voice) {
        setWindowTitle(QStringLiteral("语音通话"));
        ui->displayPane->setCurrentIndex(cVoicePage);
        m_strPeerUid = userList.first();
    } else if (iType == Video) {
        setWindowTitle(QStringLiteral("视频通话"));
        ui->displayPane->setCurrentIndex(cVideoPage);
        m_strPeerUid = userList.first();
    } else if (iType == Conference) {
        setWindowTitle(QStringLiteral("语音会议"));
        ui->displayPane->setCurrentIndex(cConferencePage);
        m_memberList = userList;
    }
    ui->controlPane->setCurrentIndex(bConnected ? cCallingPage : cRequestPage);
    m_bConnected = bConnected;
    m_bIsMyCall = bMyCall;
    m_iVoipType = iType;
    if (iType == Conference) {
        showConference();
    } else {
        showPeer();
    }
}

void CVoipWidget::showConference()
{
    ui->listView->setIsCallByMe(m_bIsMyCall);
    ui->listView->addUserList(m_memberList);
    ui->lblVoipTipMsg->setText(QStringLiteral("语音会议通话中"));
    ui->btnMuteAll->setVisible(m_bIsMyCall);
    ui->btnAddMember->setVisible(m_bIsMyCall);
    ui->lblListCount->clear();
    refreshMemberCount();
}

void CVoipWidget::showPeer()
{
    const ShownContact peer = ShownContact::ofUser(m_strPeerUid);
    const QString strShownName = showPeerCard(peer.record.m_vcardInfo, peer.strHeadPath);
    ui->lblStatus->setText(m_bIsMyCall ? QStringLiteral("正在呼叫...") : QStringLiteral("正在连接..."));
    showPeerTitle(strShownName);
    ui->btnMuteAll->hide();
}

QString CVoipWidget::showPeerCard(const VcardInfo &vcard, const QString &strPhotoPath)
{
    QString strShownName = cardName(vcard);
    LOG_DEBUG << "voip userName=" << strShownName << "\n";
    LOG_DEBUG << "voip photourl = " << strPhotoPath << "\n";
    ui->lblPhotoIcon->setHeadPictrue(strPhotoPath);
    if (!strShownName.isEmpty()) {
        ui->lblUserName->setText(strShownName);
    }
    return strShownName;
}

void CVoipWidget::showPeerTitle(const QString &strShownName)
{
    // Deliberate: a voice call shows the plain title and never the name.
    if (m_iVoipType == Voice) {
        ui->lblVoipTipMsg->setText(QStringLiteral("语音通话"));
    } else {
        ui->lblVoipTipMsg->setText(QStringLiteral("与%1(%2)通话中").arg(strShownName, m_strPeerUid));
    }
}

void CVoipWidget::setVoipCallStatus(bool bConnect)
{
    LOG_DEBUG << "setVoipConnect statu = " << bConnect << "\n";
    m_bConnected = bConnect;
    if (bConnect) {
        m_callTimeTimer.start(cClockInterval);
        ui->currentPlayTimeLabel->show();
        ui->controlPane->setCurrentIndex(cCallingPage);
        ui->lblStatus->setText(QStringLiteral("已接通"));
        m_callStartTime = QTime::currentTime();
    } else {
        ui->controlPane->setCurrentIndex(cRequestPage);
        ui->lblStatus->setText(QStringLiteral("正在呼叫..."));
    }
}

void CVoipWidget::ClearCallInfoData()
{
    LOG_DEBUG << "clear call info!"
              << "\n";
    m_bCallFlag = false;
    m_bIsMyCall = false;
    m_bMicMute = false;
    m_bSpeakerMute = false;
    m_bMuteAll = false;
    m_bCameraEnable = true;
    m_bLeftPressed = false;
    m_bResized = false;
    m_bGeometryLocked = false;
    m_bFullScreen = false;
    m_bConnected = false;
    m_memberList.clear();
    m_memberIndex = UidIndex();
    m_strPeerUid.clear();
    m_strCreator.clear();
    SetMicButton(false);
    SetMicEnable(true);
    SetSpeakerButton(false);
    SetSpeakerEnable(true);
    setMuteAllButton(false);
}

void CVoipWidget::clearUI()
{
    LOG_DEBUG << "clear voipwidget ui!"
              << "\n";
    ui->lblVoipTipMsg->clear();
    ui->lblListCount->clear();
    ui->currentPlayTimeLabel->clear();
    ui->lblUserName->clear();
    ui->lblStatus->clear();
    ui->listView->clearMembers();
    ui->lblPhotoIcon->clear();
}

void CVoipWidget::updateUserInfo(QString strJid, VcardInfo vcard)
{
    if (m_iVoipType == Conference) {
        ui->listView->updateUserInfo(strJid, vcard);
        return;
    }
    if (strJid != UserIds::getJidByUid(m_strPeerUid)) {
        return;
    }
    showPeerTitle(showPeerCard(vcard, ShownContact::headPathOf(vcard)));
}

void CVoipWidget::SetMicButton(bool bMute)
{
    LOG_DEBUG << "setmic bMute = " << bMute << "\n";
    setFace(ui->btnMic, bMute ? IconGlyph::MicOff : IconGlyph::MicOn);
    ui->btnMic->setToolTip(micTip(bMute));
}

void CVoipWidget::SetSpeakerButton(bool bMute)
{
    LOG_DEBUG << "set speaker bMute = " << bMute << "\n";
    setFace(ui->btnSpeaker, bMute ? IconGlyph::SpeakerOff : IconGlyph::SpeakerOn);
    ui->btnSpeaker->setToolTip(speakerTip(bMute));
}

void CVoipWidget::SetCameraButton(bool bEnable)
{
    LOG_DEBUG << "set camera bEnable = " << bEnable << "\n";
    setFace(ui->btnCamera, bEnable ? IconGlyph::CameraOn : IconGlyph::CameraOff);
    nameParts();
}

void CVoipWidget::setMuteAllButton(bool bMute)
{
    // Colour before glyph, the other way round than the toggles above.
    ui->btnMuteAll->setIconColor(bMute ? cMuteAllColor : cToggleColor);
    ui->btnMuteAll->setIconFont(IconGlyph::text(bMute ? IconGlyph::MuteAllOn : IconGlyph::SpeakerOff),
                                CIconButtonEx::LargeGlyph,
                                bMute ? CIconButtonEx::StillStyle : CIconButtonEx::HoverStyle);
    ui->btnMuteAll->setToolTip(bMute ? QStringLiteral("取消全体静音") : QStringLiteral("全体静音"));
    nameParts();
}

// The window lives as long as the host, which may change its language at any time.
void CVoipWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) {
        return;
    }
    const QString strTime = ui->currentPlayTimeLabel->text();
    ui->retranslateUi(this);
    ui->currentPlayTimeLabel->setText(strTime);
    ui->btnClose->setToolTip(tr("close"));
    ui->btnMic->setToolTip(micTip(m_bMicMute));
    ui->btnSpeaker->setToolTip(speakerTip(m_bSpeakerMute));
    // It has a tip only once it has been pressed.
    if (!ui->btnChangeWindow->toolTip().isEmpty()) {
        ui->btnChangeWindow->setToolTip(m_bFullScreen ? tr("restore") : tr("fullscreen"));
    }
    nameParts();
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
    if (askToEndTheCall()) {
        close();
    }
}

bool CVoipWidget::askToEndTheCall()
{
    ErrorMessage question(QString(), QStringLiteral("确定"), nullptr);
    question.setBtnText(tr("sure"), tr("cancel"));
    question.chooseMsgShow(tr("tip"), tr("beSureToCloseCalling"));
    return question.m_bAccepted;
}

void CVoipWidget::slot_RefreshTime()
{
    // On the time of day, so that a call across midnight runs negative: deliberate and left uncorrected.
    const int iSeconds = m_callStartTime.secsTo(QTime::currentTime());
    ui->currentPlayTimeLabel->setText(TimeText::GetTimeString(iSeconds));
}

void CVoipWidget::slot_MicButtonClicked()
{
    LOG_DEBUG << "click mic button!"
              << "\n";
    m_pMicSlider->hide();
    m_bMicMute = !m_bMicMute;
    SetMicButton(m_bMicMute);
    SetMicEnable(!m_bMicMute);
}

void CVoipWidget::slot_SpeakerButtonClicked()
{
    LOG_DEBUG << "click speaker button!"
              << "\n";
    m_pSpeakerSlider->hide();
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

void CVoipWidget::slot_CaptureButtonClicked()
{
    LOG_DEBUG << "click capture button!"
              << "\n";
    savePicture();
}

void CVoipWidget::closeEvent(QCloseEvent *event)
{
    ClearCallInfoData();
    clearUI();
    emit signal_HangupCurrentCall();
    emit signal_ClearCallData();
    QWidget::closeEvent(event);
}

void CVoipWidget::UserOffline()
{
    close();
}

void CVoipWidget::SetVoipCallHangUpMessage()
{
    ClearCallInfoData();
}

int CVoipWidget::GetCurrentCallStatus() const
{
    return m_iCallStatus;
}

QString CVoipWidget::GetCallTimeString(qulonglong iSeconds) const
{
    const auto twoDigits = [](qulonglong iPart) { return QStringLiteral("%1").arg(iPart, 2, 10, QLatin1Char('0')); };
    return twoDigits(iSeconds / 3600) + QLatin1Char(':') + twoDigits(iSeconds / 60 % 60) + QLatin1Char(':') +
           twoDigits(iSeconds % 60);
}
