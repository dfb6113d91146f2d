#pragma once

// The settings object of "allurl.ini", the client's address file, which lies beside the executable.
// One for the process and never deleted, so that other plug-ins may read addresses while the client ends. It is created
// without a lock: call instance() once, after the application object stands, before threads do. Then any thread reads.
// The addresses themselves are asked of CUrlInfo; this class is for who wants to take notice of an edited file.

#include <QSettings>

#include <memory>

class CSettingsManager
{
public:
    /// The process's object. The first call reads the file; a missing or unreadable one has no keys.
    static CSettingsManager *instance();

    /// The address file, read as UTF-8; owned by this object, never null. An edit of the file is seen after sync() on
    /// it, not before.
    QSettings *getUrlSettings() const { return m_pUrlSettings.get(); }

    CSettingsManager(const CSettingsManager &) = delete;
    CSettingsManager &operator=(const CSettingsManager &) = delete;

protected:
    CSettingsManager();
    ~CSettingsManager() = default;

private:
    static CSettingsManager *m_pInstance;

    std::unique_ptr<QSettings> m_pUrlSettings;
};
