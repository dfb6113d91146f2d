#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/CLogManger.h"
#include "common/CommonFun.h"
#include "common/DpiScale.h"
#include "common/Palette.h"
#include "model/FriendData.h"
#include "plugin/VoipManageEventProcess.h"
#include "ui/CallWindowStyle.h"
#include "widgets/HeadPicture.h"

#include <QCloseEvent>

namespace {

constexpr int cWindowWidth = 523;
constexpr int cWindowHeight = 403;
constexpr int cClockInterval = 1000;

// Pages of the two stacks, in the form's order.
constexpr int cVoicePage = 0;
constexpr int cVideoPage = 1;
constexpr int cConferencePage = 2;
constexpr int cRequestPage = 0;
constexpr int cCallingPage = 1;

// The name that a card shows in the call window. A card without any name gives an empty text.
QString cardName(const VcardInfo &vcard)
{
    if (vcard.m_strNickName.isEmpty() && vcard.m_strAlternativeName.isEmpty())
        return {};
    return vcard.m_strNickName + QLatin1Char('(') + vcard.m_strAlternativeName + QLatin1Char(')');
}

} // namespace

CVoipWidget::CVoipWidget(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::CVoipWidget>()), m_callTimeTimer(this)
{
    ui->setupUi(this);
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    setFixedHeight(cWindowHeight);
    setFixedWidth(cWindowWidth);
    ui->btnCamera->hide();
    applyCallWindowStyle(this);
    ui->btnClose->setSymbol(SymbolButton::Symbol::Close, QColor(strCOLOR_ICON_MID_GREY));
    ui->btnClose->setHoverColor(QColor(strCOLOR_BRIGHT_RED));
    ui->btnClose->setToolTip(tr("close"));
    ui->currentPlayTimeLabel->hide();
    ui->currentPlayTimeLabel->clear();
    connectControls();
    SetMicButton(m_bMicMute);
    SetSpeakerButton(m_bSpeakerMute);
    SetCameraButton(m_bCameraEnable);
    setMuteAllButton(m_bMuteAll);
    ADAPT_DPI_WIDGET(this);
}

CVoipWidget::~CVoipWidget() = default;

void CVoipWidget::connectControls()
{
    connect(ui->HangUp, &QPushButton::clicked, this, &CVoipWidget::slot_HangUpCall);
    connect(ui->btnClose, &QPushButton::clicked, this, &CVoipWidget::slot_close);
    connect(ui->btnMic, &QPushButton::clicked, this, &CVoipWidget::slot_MicButtonClicked);
    connect(ui->btnSpeaker, &QPushButton::clicked, this, &CVoipWidget::slot_SpeakerButtonClicked);
    connect(ui->btnCamera, &QPushButton::clicked, this, &CVoipWidget::slot_CameraButtonClicked);
    connect(&m_callTimeTimer, &QTimer::timeout, this, &CVoipWidget::slot_RefreshTime);
    connect(ui->btnCancelCall, &QPushButton::clicked, this, &CVoipWidget::slot_CancelVoipCall);
    connect(ui->btnAddMember, &QPushButton::clicked, this, &CVoipWidget::slot_AddConferenceMember);
    connect(ui->btnMuteAll, &QPushButton::clicked, this, &CVoipWidget::slot_MuteAll);
    connect(ui->listView, &CConferenceListView::signal_RemoveUser, this, &CVoipWidget::slot_RemoveConferenceMember);
    connect(ui->listView, &CConferenceListView::signal_MuteUser, this, &CVoipWidget::slot_MuteConferenceMember);
    connect(ui->listView, &CConferenceListView::signal_ReInviteConfUser, this, &CVoipWidget::slot_ReInviteConfUser);
}

void CVoipWidget::setVoipCallInfo(QList<QString> userList, VoipType iType, bool bMyCall, bool bConnected)
{
    LOG_DEBUG << "userlist = " << QStringList(userList).join(QLatin1Char(',')) << ", iType = " << int(iType)
              << ", bMyCall = " << bMyCall << "\n";
    if ((iType == Voice || iType == Video) && userList.isEmpty())
        return;
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
    if (iType == Conference)
        showConference();
    else
        showPeer();
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
    const FriendData peer = VoipManageEventProcess::getFriendInfoByJid(CommonFun::getJidByUid(m_strPeerUid));
    const QString strShownName = showPeerCard(peer.m_vcardInfo);
    ui->lblStatus->setText(m_bIsMyCall ? QStringLiteral("正在呼叫...") : QStringLiteral("正在连接..."));
    showPeerTitle(strShownName);
    ui->btnMuteAll->hide();
}

QString CVoipWidget::showPeerCard(const VcardInfo &vcard)
{
    const QString strShownName = cardName(vcard);
    const QString strPhotoPath = HeadPicture::readablePath(vcard.m_strPhotoPath);
    LOG_DEBUG << "voip userName=" << strShownName << "\n";
    LOG_DEBUG << "voip photourl = " << strPhotoPath << "\n";
    ui->lblPhotoIcon->setHeadPictrue(strPhotoPath);
    if (!strShownName.isEmpty())
        ui->lblUserName->setText(strShownName);
    return strShownName;
}

void CVoipWidget::showPeerTitle(const QString &strShownName)
{
    // A voice call shows the plain title and never the name: deliberate, the name stands below the head picture.
    if (m_iVoipType == Voice)
        ui->lblVoipTipMsg->setText(QStringLiteral("语音通话"));
    else
        ui->lblVoipTipMsg->setText(QStringLiteral("与%1(%2)通话中").arg(strShownName, m_strPeerUid));
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

void CVoipWidget::show()
{
    showNormal();
}

void CVoipWidget::UserOffline()
{
    close();
}

void CVoipWidget::SetVoipCallHangUpMessage()
{
    ClearCallInfoData();
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
    m_bConnected = false;
    m_memberList.clear();
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

void CVoipWidget::SetVoipMicVolume(qlonglong iVolume)
{
    m_iMicVolume = static_cast<int>(iVolume);
    SetMicVolume(iVolume);
}

void CVoipWidget::SetVoipSpeakerVolume(qlonglong iVolume)
{
    m_iSpeakerVolume = static_cast<int>(iVolume);
    SetSpeakerVolume(iVolume);
}

int CVoipWidget::GetCurrentCallStatus() const
{
    return m_iCallStatus;
}

QWidget *CVoipWidget::getWebEngineView() const
{
    return nullptr;
}

void CVoipWidget::addVoipWidget(QWidget *pWidget)
{
    if (pWidget != nullptr)
        ui->WebViewLayout->addWidget(pWidget);
}

void CVoipWidget::addConferenceMember(QString strUserID)
{
    if (m_memberList.contains(strUserID))
        return;
    ui->listView->addUser(strUserID);
    m_memberList.append(strUserID);
    refreshMemberCount();
}

void CVoipWidget::removeConferenceMember(QString strUserID)
{
    ui->listView->removeUser(strUserID);
    m_memberList.removeOne(strUserID);
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

void CVoipWidget::updateUserInfo(QString strJid, VcardInfo vcard)
{
    if (m_iVoipType == Conference) {
        ui->listView->updateUserInfo(strJid, vcard);
        return;
    }
    if (strJid != CommonFun::getJidByUid(m_strPeerUid))
        return;
    showPeerTitle(showPeerCard(vcard));
}

QString CVoipWidget::GetCallTimeString(qulonglong iSeconds) const
{
    const auto twoDigits = [](qulonglong iPart) { return QStringLiteral("%1").arg(iPart, 2, 10, QLatin1Char('0')); };
    return twoDigits(iSeconds / 3600) + QLatin1Char(':') + twoDigits(iSeconds / 60 % 60) + QLatin1Char(':') +
           twoDigits(iSeconds % 60);
}

void CVoipWidget::closeEvent(QCloseEvent *event)
{
    ClearCallInfoData();
    clearUI();
    emit signal_HangupCurrentCall();
    emit signal_ClearCallData();
    QWidget::closeEvent(event);
}

void CVoipWidget::refreshMemberCount()
{
    ui->lblListCount->setText(QStringLiteral("参与人员(%1)").arg(m_memberList.size()));
}
