#include "common/CSettingsManager.h"

#include <QCoreApplication>

CSettingsManager *CSettingsManager::m_pInstance = nullptr;

CSettingsManager::CSettingsManager()
    : m_pUrlSettings(std::make_unique<QSettings>(QCoreApplication::applicationDirPath() + "/" + "allurl.ini",
                                                 QSettings::IniFormat))
{
    m_pUrlSettings->setIniCodec("UTF-8");
}

CSettingsManager *CSettingsManager::instance()
{
    if (m_pInstance == nullptr) {
        m_pInstance = new CSettingsManager;
    }
    return m_pInstance;
}
