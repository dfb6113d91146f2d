#include "client/UserSetting.h"

#include "client/HostSettings.h"

#include "common/settings/ConfigFile.h"

#include <QSettings>

QString UserSetting::read(const QString &strKey)
{
    return ConfigFile::getConfigValue(HostSettings::userFile(), strKey).toString();
}

bool UserSetting::write(const QString &strKey, const QString &strValue)
{
    if (HostSettings::userFile().isEmpty()) {
        return false;
    }
    QSettings settings(HostSettings::userFile(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const QVariant before = settings.value(strKey);
    settings.setValue(strKey, strValue);
    settings.sync();
    if (settings.status() == QSettings::NoError) {
        return true;
    }
    // What could not be written stays with Qt, which would give it to the next reader and write it one day.
    if (before.isValid()) {
        settings.setValue(strKey, before);
    } else {
        settings.remove(strKey);
    }
    return false;
}
