#pragma once

#include <QObject>
#include <QString>

/// The user's settings as this client writes them: to the INI files that the plug-in and the common code read, and
/// nowhere else. What the plug-in reads from the shared context follows at once, but for the data folder, in which
/// files are open. A choice whose file cannot be written to has no effect at all: what is in force stays what the files
/// say. To be used after the user's settings have been read (`SystemSetData::initData`). GUI thread.
class HostSettings : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What became of a folder that was set.
    enum class FolderOutcome
    {
        Taken,
        Unusable,  ///< it is no absolute path, or it cannot be made or written to
        NotWritten ///< the settings cannot be written to
    };

    /// The file of the signed-in user's settings.
    static QString userFile();

    /// The file of the settings that all users of this computer share.
    static QString commonFile();

    /// Whether the ring of an incoming call is kept silent.
    static bool isSilent();

    /// Writes it; the plug-in follows with the next call. False where it cannot be written.
    static bool setSilent(bool bSilent);

    /// The root of all users' folders from the next start on.
    static QString dataFolder();

    /// Sets it; the empty text means the default one. Nothing is changed where it is not taken.
    static FolderOutcome setDataFolder(const QString &strFolder);

    /// Whether dataFolder() is another one than the folder in use.
    static bool isDataFolderPending();

    /// The folder for received files.
    static QString receiveFolder();

    /// Sets it, as setDataFolder does.
    static FolderOutcome setReceiveFolder(const QString &strFolder);

    /// The language in the settings. At the very first start there is none, and one is chosen and written.
    static QString language();

    /// Writes it and says so by languageChanged(). False where it cannot be written.
    bool setLanguage(const QString &strLanguage);

    /// The name of the skin in the settings; the standard one where they name none that there is.
    static QString skin();

    /// Writes it and makes it the current skin of the shared context, for the plug-in's windows too. False where it
    /// cannot be written.
    bool setSkin(const QString &strName);

signals:
    /// setLanguage() has written this language; the windows are still to follow.
    void languageChanged(const QString &strLanguage);
    /// The shared context has another skin.
    void skinChanged();
};
