#include "common/AccountMap.h"

#include "common/AppInfo.h"
#include "common/settings/ConfigFile.h"

#include <QStringList>
#include <QVariant>

QString AccountMap::getUIDByAccountNo(QString strFile, QString strAccount)
{
    if (!AppInfo::IsPubicVersion()) {
        return strAccount;
    }
    if (strAccount.isEmpty()) {
        return {};
    }
    const QString strSpacer = QStringLiteral("^^");
    const QStringList listItem =
        ConfigFile::getConfigValue(strFile, QStringLiteral("/accounts/accountuidmap"), QVariant()).toStringList();
    QString strSimilar;
    for (const QString &strItem : listItem) {
        QString strUid = strItem.section(strSpacer, 1);
        if (strItem.section(strSpacer, 0, 0) == strAccount) {
            return strUid;
        }
        if (strSimilar.isEmpty() && strItem.contains(strAccount)) {
            strSimilar = strUid;
        }
    }
    return strSimilar;
}
