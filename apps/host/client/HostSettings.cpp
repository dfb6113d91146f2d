#include "client/HostSettings.h"

#include "client/HostLanguage.h"
#include "client/HostSkins.h"
#include "client/SettingsFile.h"

#include "common/AppInfo.h"
#include "common/AppPaths.h"
#include "common/settings/ConfigFile.h"
#include "model/SystemSetData.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QWidget>

#include <algorithm>

namespace {

const QString cReceiveKey = QLatin1String(SystemSetData::cTransFilePathKey);
const QString cDataKey = QLatin1String(SystemSetData::cMsgFilePathKey);
const QString cLanguageKey = QLatin1String(AppInfo::cLanguageKey);
const QString cSkinKey = QStringLiteral("/skinSetting/skinName");

/// Writes the value to the user's file and has the shared settings take it.
bool writeForUser(const QString &strKey, const QString &strValue)
{
    SystemSetData *settings = SystemSetData::instance();
    if (!SettingsFile::write(settings->m_strUserConfigPath, {{strKey, strValue}})) {
        return false;
    }
    settings->initData(settings->m_strUserName);
    return true;
}

/// Whether the folder is there, or can be made, and takes files.
bool canHold(const QString &strFolder)
{
    return QDir::isAbsolutePath(strFolder) && QDir().mkpath(strFolder) && QFileInfo(strFolder).isWritable();
}

} // namespace

QString HostSettings::userFile()
{
    return SystemSetData::instance()->m_strUserConfigPath;
}

QString HostSettings::commonFile()
{
    return strAPP_INFO_FILE_PATH();
}

bool HostSettings::isSilent()
{
    return SystemSetData::instance()->m_strCloseVoice == QLatin1String("1");
}

bool HostSettings::setSilent(bool bSilent)
{
    return writeForUser(QLatin1String(SystemSetData::cCloseVoiceKey),
                        bSilent ? QStringLiteral("1") : QStringLiteral("0"));
}

QString HostSettings::dataFolder()
{
    const QString stored = SettingsFile::read(commonFile(), cDataKey);
    return stored.isEmpty() ? SystemSetData::instance()->m_strDefaultDataRoot : stored;
}

HostSettings::FolderOutcome HostSettings::setDataFolder(const QString &strFolder)
{
    if (!strFolder.isEmpty() && !canHold(strFolder)) {
        return FolderOutcome::Unusable;
    }
    return SettingsFile::write(commonFile(), {{cDataKey, strFolder}}) ? FolderOutcome::Taken
                                                                      : FolderOutcome::NotWritten;
}

bool HostSettings::isDataFolderPending()
{
    return QDir::cleanPath(dataFolder()) != QDir::cleanPath(SystemSetData::instance()->m_strMsgFilePath);
}

QString HostSettings::receiveFolder()
{
    return SystemSetData::instance()->m_strTransFilePath;
}

HostSettings::FolderOutcome HostSettings::setReceiveFolder(const QString &strFolder)
{
    if (!strFolder.isEmpty() && !canHold(strFolder)) {
        return FolderOutcome::Unusable;
    }
    return writeForUser(cReceiveKey, strFolder) ? FolderOutcome::Taken : FolderOutcome::NotWritten;
}

QString HostSettings::language()
{
    QString language = SettingsFile::read(commonFile(), cLanguageKey);
    if (language.isEmpty()) {
        // Written down, so that everybody who asks the settings finds the language that the windows speak.
        language = HostLanguage::firstLanguage(QLocale::system().name());
        ConfigFile::changeConfigValue(commonFile(), cLanguageKey, language);
    }
    return language;
}

bool HostSettings::setLanguage(const QString &strLanguage)
{
    if (!SettingsFile::write(commonFile(), {{cLanguageKey, strLanguage}})) {
        return false;
    }
    emit languageChanged(strLanguage);
    return true;
}

QString HostSettings::skin()
{
    const QString stored = SettingsFile::read(userFile(), cSkinKey);
    return HostSkins::names().contains(stored) ? stored : HostSkins::standardName();
}

bool HostSettings::setSkin(const QString &strName)
{
    if (!SettingsFile::write(userFile(), {{cSkinKey, strName}})) {
        return false;
    }
    if (HostSkins::use(strName)) {
        emit skinChanged();
        // The plug-in's windows fetch the colour of their frame at each paint.
        const QWidgetList widgets = QApplication::allWidgets();
        std::for_each(widgets.begin(), widgets.end(), [](QWidget *widget) { widget->update(); });
    }
    return true;
}
