#include "common/CServerSettings.h"

void CServerSettings::setSupportVoIPFlag(bool bSupport)
{
    m_bSupportVoIP = bSupport;
}

bool CServerSettings::getSupportVoIPFlag() const
{
    return m_bSupportVoIP;
}

void CServerSettings::setFileTransferMaxSize(qint64 iSize)
{
    m_iFileTransferMaxSize = iSize;
}

qint64 CServerSettings::getFileTransferMaxSize() const
{
    return m_iFileTransferMaxSize;
}

void CServerSettings::setMaxMucRoomSize(qint64 iSize)
{
    m_iMaxMucRoomSize = iSize;
}

qint64 CServerSettings::getMaxMucRoomSize() const
{
    return m_iMaxMucRoomSize;
}

void CServerSettings::setCanModifyPassword(bool bCan)
{
    m_bCanModifyPassword = bCan;
}

bool CServerSettings::getCanModifyPassword() const
{
    return m_bCanModifyPassword;
}
