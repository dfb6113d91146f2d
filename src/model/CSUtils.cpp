#include "model/CSUtils.h"

#include "model/AvatarFiles.h"

QString CSUtils::getChannelIconPath(const QString &photoName)
{
    QString strDefault = QStringLiteral("Resources/images/CommonCtrls/kvim_customer.png");
    if (photoName.isEmpty() || photoName == strDefault) {
        return strDefault;
    }
    const QString strAvatar = AvatarFiles::systemAvatar(AvatarFiles::withSuffix(photoName));
    return strAvatar.isEmpty() ? AvatarFiles::headImageFolder() + photoName : strAvatar;
}
