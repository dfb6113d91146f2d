#pragma once

// What the server tells the client about itself after login.
// GUI thread. The host creates, fills and owns it and hands it to the client context (CommonData::setServerSettings).
// Plug-ins read the limits through SharedContext; its getMucRoomMaxMemberSize is the room size to go by when none was
// announced, and only getSupportVoIPFlag of this class tells whether the server offers calls.

#include <QObject>

class CServerSettings : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the server offers calls; true until the server says otherwise.
    void setSupportVoIPFlag(bool bSupport);

    /// Whether the server offers calls, as stored.
    bool getSupportVoIPFlag() const;

    /// Largest file that may be sent, in bytes; 0 when the server said nothing. Values are stored unchecked.
    void setFileTransferMaxSize(qint64 iSize);

    /// The stored size in bytes.
    qint64 getFileTransferMaxSize() const;

    /// Largest number of members of a room; 0 when the server said nothing. Values are stored unchecked.
    void setMaxMucRoomSize(qint64 iSize);

    /// The stored number of members.
    qint64 getMaxMucRoomSize() const;

    /// Whether the user may change the password in the client.
    void setCanModifyPassword(bool bCan);

    /// Whether the password can be changed; false unless set.
    bool getCanModifyPassword() const;

private:
    bool m_bSupportVoIP = true;
    qint64 m_iFileTransferMaxSize = 0;
    qint64 m_iMaxMucRoomSize = 0;
    bool m_bCanModifyPassword = false;
};
