#include "ui/ShownContact.h"

#include "common/BuiltInPictures.h"
#include "common/pictures/ImagePath.h"
#include "model/UserIds.h"
#include "plugin/VoipManageEventProcess.h"

ShownContact ShownContact::ofUser(const QString &strUserID)
{
    const FriendData record = VoipManageEventProcess::getFriendInfoByJid(UserIds::getJidByUid(strUserID));
    return {record, headPathOf(record.m_vcardInfo), strUserID == UserIds::getLoginUID()};
}

QString ShownContact::headPathOf(const VcardInfo &vcard)
{
    return ImagePath::getTrueImagePath(vcard.m_strPhotoPath, strDEFAULT_HEAD_PATH);
}
