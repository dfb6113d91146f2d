#include "common/settings/ConfigFile.h"

#include <QSettings>
#include <QStringList>

namespace {

const char cChatServerHost[] = "im.kelvar.example";

QString shortAddress(QString strAddress)
{
    strAddress.replace(QLatin1String(cChatServerHost), QLatin1String("im"));
    strAddress.replace(QLatin1String("conference"), QLatin1String("c"));
    return strAddress;
}

void copyKey(const QString &strGroup, const QString &strKey, const QSettings &source, QSettings &target)
{
    const QVariant value = source.value(strKey);
    if (strGroup == QLatin1String("DialogOpen")) {
        QStringList items = value.toStringList();
        for (QString &strItem : items) {
            strItem = shortAddress(strItem);
        }
        target.setValue(strKey, items);
    } else if (strGroup == QLatin1String("RoomMsgSet")) {
        target.setValue(shortAddress(strKey), value.toInt());
    } else {
        target.setValue(strKey, value);
    }
}

} // namespace

QVariant ConfigFile::getConfigValue(const QString &strFile, const QString &strKey, const QVariant &defaultValue)
{
    QSettings settings(strFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    return settings.value(strKey, defaultValue);
}

void ConfigFile::changeConfigValue(const QString &strFile, const QString &strKey, const QVariant &value)
{
    QSettings settings(strFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.setValue(strKey, value);
}

void ConfigFile::translateIniToUtf8Code(const QString &strSource, const QString &strTarget)
{
    QSettings source(strSource, QSettings::IniFormat);
    QSettings target(strTarget, QSettings::IniFormat);
    target.setIniCodec("UTF-8");
    const QStringList groups = source.childGroups();
    for (const QString &strGroup : groups) {
        source.beginGroup(strGroup);
        target.beginGroup(strGroup);
        const QStringList keys = source.allKeys();
        for (const QString &strKey : keys) {
            copyKey(strGroup, strKey, source, target);
        }
        target.endGroup();
        source.endGroup();
    }
}
