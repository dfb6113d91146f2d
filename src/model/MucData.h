#pragma once

// A chat room. MucData is a plain value that is copied freely, on any thread; the host keeps the records in
// CommonData's room map under their room jids. MucDataUtils holds the rules about them.

#include <QString>

class MucData
{
public:
    /// The jid of the room's owner.
    QString m_strOwnerJid;
    /// The room jid, the room's key.
    QString m_strRoomJid;
    /// The jids of the room's managers.
    QString m_strManagerJid;
    /// The number of members, as text.
    QString m_strMemberCount;
    /// When the room was made.
    QString m_strCreateTime;
    /// A jid that the store keeps beside the room's own.
    QString m_strJid;
    /// The room's name.
    QString m_strRoomName;
    /// Two switches of the host, carried along and not read.
    bool m_bHostFlag1 = false;
    bool m_bHostFlag2 = false;
    /// A name that takes the place of the room's name; empty: none.
    QString m_strRoomNameOverride;
    /// The greatest number of members.
    int m_iMaxMemberCount = 1500;
    /// The version of the record; "-1": never received.
    QString m_strVersion = QStringLiteral("-1");
    /// The class that the room is filed under.
    QString m_strClassify;
    /// How the room is kept at the top of the list; 0: not at all.
    int m_iTopSignType = 0;
    /// Since when it is kept there.
    QString m_strTopSignDate;
    /// The text of the room's notice.
    QString m_strNoticeContent;
    /// True while the room is in the user's own list.
    bool m_bLocalExist = true;
    /// True while the room exists at the server.
    bool m_bExist = true;
    /// The picture of the room.
    QString m_strHeadImage = QStringLiteral("Resources/images/CommonCtrls/kvim_muchead_max.png");
    /// The title of the room's notice.
    QString m_strNoticeSubject;
    /// True when the room may be joined by its bar code.
    bool m_bIsOpenBarCode = false;
    /// True when joining needs a manager's consent.
    bool m_bIsOpenJoinValidate = false;
    /// True when the room ends by itself.
    bool m_bIsAutoRelease = false;
    /// True when the room's windows show a water mark.
    bool m_bIsOpenWaterMark = false;
    /// True for a room within the company.
    bool m_bIsInnerMuc = false;
    /// The code of the room's company.
    QString m_strCompanyCode;

    /// A room with no jid and the default picture.
    MucData() = default;

    /// The room of that jid, taken as it is. The head image stays empty, deliberately.
    MucData(const QString &strRoomJid);

    /// True when the room jids are equal, whatever else differs.
    bool operator==(const MucData &other) const { return m_strRoomJid == other.m_strRoomJid; }
    /// False when the room jids are equal.
    bool operator!=(const MucData &other) const { return !(*this == other); }
};

class MucDataUtils
{
public:
    /// The store's text for the local exist flag: "T" or "F".
    static QString getLocalExistString(bool bExist);

    /// True exactly for "T".
    static bool getLocalExistFlag(const QString &strExist);

    /// True when both rooms have the same owner, managers, names, member count, head image, notice title, place at the
    /// top and switches. The rest does not take part: a new version alone is no change.
    static bool compareMucInfo(const MucData &first, const MucData &second);
};
