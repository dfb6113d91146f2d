#pragma once

#include "client/HostSettings.h"

#include <QDialog>

#include <memory>

class CallService;
class PromptKey;
class QLineEdit;
class SoundChoice;

namespace Ui {
class SettingsPage;
}

/// The window of the settings that the calls and the client's common code read: ring, language, colour, folders, and on
/// pages of their own microphone and speaker, and the keyboard. Each change is written at once and takes effect at
/// once, but for the data folder and the devices, of which the page says so. One that cannot be written has no effect:
/// the page shows what is in force, and says why. It is never larger than the screen. Not modal. GUI thread; the
/// settings must outlive it.
class SettingsPage : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsPage(HostSettings &settings, QWidget *parent = nullptr);
    ~SettingsPage() override;

    /// Adds the page of microphone and speaker; both must outlive this window.
    void addSound(SoundChoice &choice, CallService &service);

    /// Adds the page of the keyboard; the key must outlive this window.
    void addKeys(PromptKey &key);

    /// Shows the settings as they stand in the files, in front of the other windows.
    void open() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    using FolderSetter = HostSettings::FolderOutcome (*)(const QString &);

    void fitScreen();
    void addPage(QWidget *page, const char *strName);
    void namePages();
    void addLanguages();
    void addSkins();
    void orderTabs();
    void connectFolders();
    void nameSkins();
    void showSettings();
    void tellKept(bool bKept, const QString &strFile);
    void clearErrors();
    void takeFolder(const QLineEdit *edit, const QString &strBefore, FolderSetter set, const QString &strFile);
    void browse(QLineEdit *edit);

    std::unique_ptr<Ui::SettingsPage> ui;
    HostSettings &m_settings;
};
