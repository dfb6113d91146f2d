// Commands that are no step of a call: the user's registration and the device controls of the call window.

#include "common/CLogManger.h"
#include "engine/SdkCommand.h"
#include "engine/VoipManage.h"

void CVoipManage::regeditVoipUser(QString strUserId, QString strNickName, QString strRegValue)
{
    LOG_DEBUG << "regedit userid = " << strUserId << ", nickName = " << strNickName << "\n";
    m_strUserId = strUserId;
    m_strNickName = strNickName;
    m_strRegValue = strRegValue;
    sendIfConnected(SdkCommand::line(SdkCommand::RegeditUser, SdkCommand::json(strUserId),
                                     SdkCommand::json(strNickName), SdkCommand::json(strRegValue), false));
}

void CVoipManage::unRegeditCurrentVoipUser()
{
    LOG_DEBUG << "unregedit current user "
              << "\n";
    sendIfConnected(SdkCommand::line(SdkCommand::UnReg, SdkCommand::json(m_strUserId)));
}

void CVoipManage::slot_SetMicEnable(bool bEnable)
{
    LOG_DEBUG << "SetMicEnable = " << bEnable << "\n";
    sendIfConnected(SdkCommand::line(SdkCommand::SetMicEnable, bEnable));
}

void CVoipManage::slot_SetSpeakerEnable(bool bEnable)
{
    LOG_DEBUG << "SetSpeakerEnable = " << bEnable << "\n";
    sendIfConnected(SdkCommand::line(SdkCommand::SetSpeakerEnable, bEnable));
}

void CVoipManage::slot_SetCameraEnable(bool bEnable)
{
    LOG_DEBUG << "SetCameraEnable = " << bEnable << "\n";
    sendIfConnected(SdkCommand::line(SdkCommand::SetCameraEnable, bEnable));
}

void CVoipManage::slot_SetMicVolume(qlonglong iVolume)
{
    sendIfConnected(SdkCommand::line(SdkCommand::SetMicVolume, Json::Int64(iVolume / 10)));
}

void CVoipManage::slot_SetSpeakerVolume(qlonglong iVolume)
{
    sendIfConnected(SdkCommand::line(SdkCommand::SetSpeakerVolume, Json::Int64(iVolume / 10)));
}
