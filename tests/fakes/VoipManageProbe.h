#pragma once

// A call manager whose state a test can see. Each test makes its own; use() makes it the one that instance() gives.

#include "engine/VoipManage.h"

class VoipManageProbe : public CVoipManage
{
public:
    ~VoipManageProbe() override
    {
        if (CVoipManage::m_pInstance == this) {
            CVoipManage::m_pInstance = nullptr;
        }
    }

    /// Makes this the process's manager until it is destroyed.
    void use() { CVoipManage::m_pInstance = this; }

    /// Whether the process has a manager.
    static bool exists() { return CVoipManage::m_pInstance != nullptr; }

    /// Lets instance() make a new manager; the old one is the caller's.
    static void forget() { CVoipManage::m_pInstance = nullptr; }

    using CVoipManage::m_bSdkFlag;
    using CVoipManage::m_bSocketConnected;
    using CVoipManage::m_callData;
    using CVoipManage::m_inviteTimer;
    using CVoipManage::m_nReconnectCount;
    using CVoipManage::m_pRingSound;
    using CVoipManage::m_pVoiceConfWidget;
    using CVoipManage::m_pVoipProcess;
    using CVoipManage::m_pVoipSocket;
    using CVoipManage::m_pVoipWidget;
    using CVoipManage::m_recevieTimer;
    using CVoipManage::m_reconnectTimer;
    using CVoipManage::m_strNickName;
    using CVoipManage::m_strRegValue;
    using CVoipManage::m_strUserId;
};
