#pragma once

// What the client knows of itself: version, window title, language, and a few facts of the platform.
// Any thread; no state but the fixed build flag. Nothing here reports a failure.

#include <QLocale>
#include <QString>

class AppInfo
{
public:
    /// The key of the language in the common settings file.
    static constexpr const char *cLanguageKey = "/languageSetting/language";

    /// The client's version number, a constant and not a value read from a file.
    static QString getIMVertion();

    /// Writes `strVersion` to the version file and to the native settings.
    static void setIMVertion(const QString &strVersion);

    /// The title in the version file; without one, the translation of "tarvoShowName".
    static QString getIMWindowTitle();

    /// Whether this is the build for the public: always true.
    static bool IsPubicVersion();

    /// The language set in the common settings file, as it stands there; without one, the system locale's suffix.
    static QString getApplicationLanguage();

    /// The suffix of the translation files: "zh_TW" for Chinese in Taiwan or Hong Kong, else "zh_CN".
    static QString getLanguageFileSuffix(QLocale::Language language, QLocale::Country country);

    /// `strPath` as an address for a web view; an empty path gives the bare "file:///".
    static QString getAbsoluteWebviewFilePath(const QString &strPath);

    /// Free bytes on the disk of `strPath`: a constant, the disk is not measured on this platform.
    static qint64 GetRemainDiskSpace(const QString &strPath);

private:
    static constexpr bool m_bIsPublicVersion = true;
};
