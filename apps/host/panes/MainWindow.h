#pragma once

#include "desktop/PromptKey.h"
#include "history/CallReadiness.h"
#include "panes/CallStatusLine.h"
#include "panes/CallWindowSide.h"
#include "panes/IncomingPrompt.h"
#include "panes/PromptNotice.h"
#include "panes/SettingsPage.h"
#include "panes/SignatureCard.h"
#include "panes/VideoCard.h"
#include "panes/WindowPlace.h"

#include <QMainWindow>

#include <memory>

class ContactBook;
class HappeningsDock;
class HostSession;

namespace Ui {
class MainWindow;
}

/// The demo's window: contacts on the left, the history of calls on the right, settings and the login switch on top,
/// and below them what has to be told of the local store; rightmost, on demand, what happens, or in a window of its
/// own. It owns the prompt of incoming calls, the signature card, the card of video calls without a picture and the
/// settings page. Ctrl+F goes to the search field, Ctrl+Shift+H shows and hides what happens. GUI thread; session and
/// book must outlive it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `side` is the part of the screen that it and the prompt keep to.
    MainWindow(HostSession &session, const ContactBook &book, WindowPlace::Side side = WindowPlace::Side::Whole);
    ~MainWindow() override;

    /// Whether calls can be placed, which the controls show.
    CallReadiness &readiness() { return m_readiness; }

    /// The prompt of incoming calls, hidden while none rings.
    IncomingPrompt &prompt() { return m_prompt; }

    /// The signature card, hidden while none is asked for.
    SignatureCard &signature() { return m_signature; }

    /// The settings page, hidden while it is not asked for.
    SettingsPage &settingsPage() { return m_settingsPage; }

    /// The card over the call window, hidden while no video call without a picture is on.
    VideoCard &videoCard() { return m_videoCard; }

    /// Keeps place and size for the next start, as closing the window does; nothing happens while it is hidden.
    void rememberPlace() const;

    /// Shows the window above the others, out of the task bar where it was minimized, and asks for the keyboard.
    void comeToFront();

protected:
    void changeEvent(QEvent *event) override;

    /// Tells the plug-in that the client quits; where a call is on, only when the person agrees.
    void closeEvent(QCloseEvent *event) override;

private:
    void fillHeader();
    void setUpPlace(WindowPlace::Side side);
    void setUpHappenings();
    void connectParts();
    void connectSession();
    void takeSkin();
    void call(const QString &strUid, bool bVideo);

    /// Lets the user pick people, those named checked from the start, and calls them together.
    /// `bFromPlugin`: one of its windows has asked for it.
    void startConference(const QStringList &named, bool bFromPlugin);
    void setUpCallService();
    void showOnline(bool bOnline);

    /// Shows in the header whether the user is registered.
    void showService();
    void showNotice();
    void tryStoreAgain();
    void connectCalls();
    void showCall();
    void showReadiness();

    /// Says why no call can be placed now, in a box where the user looks elsewhere; false when one can.
    bool refuses(bool bInBox);
    bool mayQuit();

    std::unique_ptr<Ui::MainWindow> ui;
    HostSession &m_session;
    const ContactBook &m_book;
    CallReadiness m_readiness;
    CallStatusLine m_status;
    IncomingPrompt m_prompt;
    PromptNotice m_promptNotice;
    PromptKey m_promptKey;
    SignatureCard m_signature;
    VideoCard m_videoCard;
    CallWindowSide m_callWindowSide;
    SettingsPage m_settingsPage;
    WindowPlace *m_pPlace = nullptr;
    HappeningsDock *m_pHappenings = nullptr;
    bool m_bQuitAgreed = false;
};
