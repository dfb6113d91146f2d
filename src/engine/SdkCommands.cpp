// Commands that are no step of a call: the user's registration and the device controls of the call window.

#include "common/CLogManger.h"
#include "engine/SdkLine.h"
#include "engine/VoipManage.h"

void CVoipManage::regeditVoipUser(QString strUserId, QString strNickName, QString strRegValue)
{
    LOG_DEBUG << "regedit userid = " << strUserId << ", nickName = " << strNickName << "\n";
    m_strUserId = strUserId;
    m_strNickName = strNickName;
    m_strRegValue = strRegValue;
    sendIfConnected(SdkLine::of<Wire::Command::RegeditUser>(strUserId, strNickName, strRegValue, false));
}

void CVoipManage::unRegeditCurrentVoipUser()
{
    LOG_DEBUG << "unregedit current user "
              << "\n";
    sendIfConnected(SdkLine::of<Wire::Command::UnReg>(m_strUserId));
}

void CVoipManage::slot_SetMicEnable(bool bEnable)
{
    LOG_DEBUG << "SetMicEnable = " << bEnable << "\n";
    sendIfConnected(SdkLine::of<Wire::Command::SetMicEnable>(bEnable));
}

void CVoipManage::slot_SetSpeakerEnable(bool bEnable)
{
    LOG_DEBUG << "SetSpeakerEnable = " << bEnable << "\n";
    sendIfConnected(SdkLine::of<Wire::Command::SetSpeakerEnble>(bEnable));
}

void CVoipManage::slot_SetCameraEnable(bool bEnable)
{
    LOG_DEBUG << "SetCameraEnable = " << bEnable << "\n";
    sendIfConnected(SdkLine::of<Wire::Command::SetCamreraEnable>(bEnable));
}

void CVoipManage::slot_SetMicVolume(qlonglong iVolume)
{
    sendIfConnected(SdkLine::of<Wire::Command::SetMicVolume>(iVolume / 10));
}

void CVoipManage::slot_SetSpeakerVolume(qlonglong iVolume)
{
    sendIfConnected(SdkLine::of<Wire::Command::SetSpeakerVolume>(iVolume / 10));
}
