#include "engine/VoipManage.h"

#include "common/CLogManger.h"
#include "engine/AudioInputs.h"
#include "engine/CallRing.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"

#include <QProcess>
#include <QSound>

CVoipManage *CVoipManage::m_pInstance = nullptr;

CVoipManage *CVoipManage::instance()
{
    if (!m_pInstance) {
        m_pInstance = new CVoipManage;
    }
    return m_pInstance;
}

CVoipManage::CVoipManage(QObject *parent) : QObject(parent)
{
    m_pRingSound = CallRing::player();
    connect(m_pRingSound, &QObject::destroyed, this, [this] { m_pRingSound = nullptr; });

    connect(&m_reconnectTimer, SIGNAL(timeout()), this, SLOT(slot_ReConnectVoipSDK()));
    connect(&m_inviteTimer, SIGNAL(timeout()), this, SLOT(slot_inviteCallTimeout()));
    connect(&m_recevieTimer, SIGNAL(timeout()), this, SLOT(slot_recevieCallTimeout()));

    initVoipSDK();
    initVoipWidget();
}

CVoipManage::~CVoipManage()
{
    disconnectVoipSDKSocket();
    // The player stays for the next engine and would ring on.
    if (m_pRingSound) {
        m_pRingSound->stop();
    }
    delete m_pVoiceConfWidget;
    delete m_pVoipWidget;
    delete m_pVoipProcess;
}

void CVoipManage::initVoipSDK()
{
    LOG_DEBUG << "init VoipSDK"
              << "\n";
    creatVoipSDK();
    creatVoipSDKSocket();
}

void CVoipManage::initVoipWidget()
{
    m_pVoipWidget = new CVoipWidget;
    connectVoipWidget();
}

void CVoipManage::connectVoipWidget()
{
    connect(m_pVoipWidget, SIGNAL(signal_SetMicEnable(bool)), this, SLOT(slot_SetMicEnable(bool)));
    connect(m_pVoipWidget, SIGNAL(signal_SetSpeakerEnable(bool)), this, SLOT(slot_SetSpeakerEnable(bool)));
    connect(m_pVoipWidget, SIGNAL(signal_SetCameraEnable(bool)), this, SLOT(slot_SetCameraEnable(bool)));
    connect(m_pVoipWidget, SIGNAL(signal_SetMicVolume(qlonglong)), this, SLOT(slot_SetMicVolume(qlonglong)));
    connect(m_pVoipWidget, SIGNAL(signal_SetSpeakerVolume(qlonglong)), this, SLOT(slot_SetSpeakerVolume(qlonglong)));
    connect(m_pVoipWidget, SIGNAL(signal_HangupCurrentCall()), this, SLOT(slot_HangupCurrentCall()));
    connect(m_pVoipWidget, SIGNAL(signal_AddConferenceMember()), this, SLOT(slot_AddConfMember()));
    connect(m_pVoipWidget, SIGNAL(signal_RemoveUser(QString)), this, SLOT(slot_RemoveConferenceMember(QString)));
    connect(m_pVoipWidget, SIGNAL(signal_MuteUser(QString, bool)), this,
            SLOT(slot_MuteConferenceMember(QString, bool)));
    connect(m_pVoipWidget, SIGNAL(signal_MuteAll(bool)), this, SLOT(slot_MuteAll(bool)));
    // Deliberate: Qt refuses this one with its warning, since the receiver is no slot. Call data are cleared only by
    // callFinished(), never by the window.
    connect(m_pVoipWidget, SIGNAL(signal_ClearCallData()), this, SLOT(clearLocalCallData()));
    connect(m_pVoipWidget, SIGNAL(signal_ReInviteConfUser(QString)), this, SLOT(slot_ReInviteConfUser(QString)));
}

void CVoipManage::exitVoip()
{
    LOG_DEBUG << "exit voip when client exit!"
              << "\n";
    hangupVoipCall();
    disconnectVoipSDKSocket();
    if (m_pVoipProcess) {
        m_pVoipProcess->kill();
        m_pVoipProcess->deleteLater();
        m_pVoipProcess = nullptr;
    }
}

void CVoipManage::clearLocalCallData()
{
    LOG_DEBUG << "clear call data!"
              << "\n";
    m_callData = CallData();
    m_memberIndex = UidIndex();
}

bool CVoipManage::getIsHasAudioInputDevice()
{
    return AudioInputs::exist();
}

bool CVoipManage::isExistCall()
{
    return !m_callData.peerId.isEmpty() || !m_callData.memberList.isEmpty();
}

void CVoipManage::playReceviceCall()
{
    LOG_DEBUG << "play call ring"
              << "\n";
    if (!m_pRingSound) {
        return;
    }
    const SystemSetData *settings = SharedContext::getSystemSetData();
    if (settings && settings->m_strCloseVoice == QLatin1String("1")) {
        return;
    }
    m_pRingSound->play();
}

void CVoipManage::stopRinging()
{
    LOG_DEBUG << "stop ring!"
              << "\n";
    if (m_pRingSound) {
        m_pRingSound->stop();
    }
}

void CVoipManage::slot_inviteCallTimeout()
{
    LOG_DEBUG << "invite call time out!"
              << "\n";
    m_inviteTimer.stop();
    if (m_callData.bIsCaller) {
        hangupVoipCall();
    }
}

void CVoipManage::slot_recevieCallTimeout()
{
    LOG_DEBUG << "recevie call connect time out!"
              << "\n";
    m_recevieTimer.stop();
    if (!m_callData.bIsCaller) {
        hangupVoipCall();
    }
}
