#include "model/MucData.h"

#include <tuple>

namespace {

const QString cExistText = QStringLiteral("T");
const QString cNotExistText = QStringLiteral("F");

const QString &effectiveName(const MucData &room)
{
    return room.m_strRoomNameOverride.isEmpty() ? room.m_strRoomName : room.m_strRoomNameOverride;
}

auto comparedFields(const MucData &room)
{
    return std::tie(room.m_strOwnerJid, effectiveName(room), room.m_iTopSignType, room.m_strManagerJid,
                    room.m_strHeadImage, room.m_strMemberCount, room.m_strRoomName, room.m_strNoticeSubject,
                    room.m_bIsOpenBarCode, room.m_bIsOpenJoinValidate, room.m_bIsAutoRelease, room.m_bIsOpenWaterMark,
                    room.m_bIsInnerMuc);
}

} // namespace

MucData::MucData(const QString &strRoomJid) : m_strRoomJid(strRoomJid), m_strHeadImage() {}

QString MucDataUtils::getLocalExistString(bool bExist)
{
    return bExist ? cExistText : cNotExistText;
}

bool MucDataUtils::getLocalExistFlag(const QString &strExist)
{
    return strExist == cExistText;
}

bool MucDataUtils::compareMucInfo(const MucData &first, const MucData &second)
{
    return comparedFields(first) == comparedFields(second);
}
