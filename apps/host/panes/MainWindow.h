#pragma once

#include "panes/CallRecordModel.h"
#include "panes/IncomingPrompt.h"
#include "panes/SettingsPage.h"
#include "panes/SignatureCard.h"

#include <QMainWindow>

#include <memory>

class ContactBook;
class HappeningsDock;
class HostSession;
class WindowPlace;

namespace Ui {
class MainWindow;
}

/// The demo's window: contacts on the left, the records of finished calls on the right, settings and the login switch
/// on top, and below them what has to be told of the local store; rightmost, on demand, what happens, or in a window of its own. It owns the
/// prompt of incoming calls, the signature card and the settings page. Ctrl+F goes to the search field,
/// Ctrl+Shift+H shows and hides what happens. GUI thread; session and book must outlive it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(HostSession &session, const ContactBook &book);
    ~MainWindow() override;

    /// The records shown.
    const CallRecordModel &records() const { return m_records; }
    /// The prompt of incoming calls, hidden while none rings.
    IncomingPrompt &prompt() { return m_prompt; }
    /// The signature card, hidden while none is asked for.
    SignatureCard &signature() { return m_signature; }
    /// The settings page, hidden while it is not asked for.
    SettingsPage &settingsPage() { return m_settingsPage; }

protected:
    void changeEvent(QEvent *event) override;
    /// Tells the plug-in that the client quits.
    void closeEvent(QCloseEvent *event) override;

private:
    void fillHeader();
    void setUpPlace();
    void setUpHappenings();
    void connectParts();
    void connectSession();
    void takeSkin();
    void call(const QString &strUid, bool bVideo);
    /// Lets the user pick people, those named checked from the start, and calls them together.
    void startConference(const QStringList &named);
    void showOnline(bool bOnline);
    void showNotice();
    void tryStoreAgain();
    void showRecord(const CallRecord &record);

    std::unique_ptr<Ui::MainWindow> ui;
    HostSession &m_session;
    const ContactBook &m_book;
    CallRecordModel m_records;
    IncomingPrompt m_prompt;
    SignatureCard m_signature;
    SettingsPage m_settingsPage;
    WindowPlace *m_pPlace = nullptr;
    HappeningsDock *m_pHappenings = nullptr;
};
