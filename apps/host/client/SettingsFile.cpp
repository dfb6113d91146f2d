#include "client/SettingsFile.h"

#include "common/settings/ConfigFile.h"

#include <QSettings>
#include <QVariant>

#include <vector>

QString SettingsFile::read(const QString &strFile, const QString &strKey)
{
    return ConfigFile::getConfigValue(strFile, strKey).toString();
}

bool SettingsFile::write(const QString &strFile, std::initializer_list<Entry> entries)
{
    if (strFile.isEmpty()) {
        return false;
    }
    QSettings settings(strFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    std::vector<QVariant> before;
    before.reserve(entries.size());
    for (const Entry &entry : entries) {
        before.push_back(settings.value(entry.key));
        settings.setValue(entry.key, entry.value);
    }
    settings.sync();
    if (settings.status() == QSettings::NoError) {
        return true;
    }
    // What could not be written stays with Qt, which would give it to the next reader and write it one day.
    auto old = before.begin();
    for (const Entry &entry : entries) {
        if (old->isValid()) {
            settings.setValue(entry.key, *old);
        } else {
            settings.remove(entry.key);
        }
        ++old;
    }
    return false;
}
