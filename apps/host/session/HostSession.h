#pragma once

#include "client/CallService.h"
#include "client/ConferenceWish.h"
#include "client/HostSettings.h"
#include "client/HostStore.h"
#include "history/CallHistory.h"
#include "history/CallWatch.h"
#include "session/HostContext.h"
#include "session/HostMailbox.h"
#include "sound/SoundChoice.h"

#include "plugin/EMsgId.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QStringList>

class ContactBook;

/// The client's side of the call plug-in: signs the user in, loads the module and speaks to it by the public contract
/// alone, that is by events. GUI thread. The contact book must outlive it. The module stays loaded to the process's
/// end, as its singletons do.
class HostSession : public QObject
{
    Q_OBJECT

public:
    explicit HostSession(ContactBook &book, QObject *parent = nullptr);

    /// Closes the store and takes the shared context away from this client's own code.
    ~HostSession() override;

    /// The domain that this client's users belong to.
    static QString loginDomain();

    /// Signs the user in, opens the user's local store and loads the module at `strModule`. Returns false, with the
    /// reason in `strError`, when the file is not a plug-in of this client. A store that cannot be opened is no reason:
    /// see store().
    bool start(const QString &strModule, QString *strError);

    /// Opens the user's local store anew, to be tried again when another program held it; an open one is closed first.
    /// Returns whether it is open; what has to be told stands in store(). To be used after start.
    bool openStore();

    /// Tells the plug-in that the login came up or went down. The first command makes the plug-in start its call
    /// process, which may take up to a second.
    void setOnline(bool bOnline);

    /// What setOnline() was told last; false before.
    bool isOnline() const { return m_bOnline; }

    /// Calls the user.
    void callUser(const QString &strUid, bool bVideo);

    /// Answers the prompt of an incoming call.
    void answerCall(bool bAccept);

    /// Starts a conference.
    void callConference(const ConferenceWish &wish);

    /// The client has another language, in which from now on the cards of the contacts speak.
    void takeLanguage();

    /// Opens the plug-in's window of past conferences, or brings it to the front.
    void showConferenceCentre();

    /// Whether the plug-in has a call, in any state.
    bool isExistCall();

    /// What the plug-in answers to the question for a video call.
    bool isVideoCall();

    /// Tells the plug-in that the client quits and closes the store behind it. No call process is left behind, however
    /// early this comes. A second call does nothing.
    void quit();

    /// Where the plug-in's events arrive.
    HostMailbox &mailbox() { return m_mailbox; }

    /// The user's local store: whether it is open, and what has to be told of it.
    const HostStore &store() const { return m_store; }

    /// The user's calls, from start on those of the file too.
    CallHistory &history() { return m_history; }

    /// The call that is on.
    const CallWatch &calls() const { return m_calls; }

    /// The watch over the call process.
    CallService &callService() { return m_callService; }

    /// The microphone and the speaker of calls.
    SoundChoice &sound() { return m_sound; }

    /// The user's settings; to be used after start.
    HostSettings &settings() { return m_settings; }

    /// The plug-in's own words about itself, "FileManagePlugin {2EFF...}"; empty before start.
    QString pluginWords() const { return m_strPlugin; }

    /// Path of the client's log file.
    QString logFile() const { return m_context.logFile(); }

signals:
    /// An event has passed: from the plug-in or to it, in words, with the answer where it was a question. `payload` is
    /// what it carried, `reply` what a question carried back.
    void eventPassed(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer,
                     const QByteArray &payload, const QByteArray &reply);
    /// The login came up or went down, by setOnline(). The plug-in is told after this.
    void onlineChanged(bool bOnline);
    /// A stranger calls, and the contact book has the name and the head of that entry from now on. Who called before,
    /// as the history has it, is known from start on.
    void strangerMet(const QString &strUid);

protected:
    /// Sees the plug-in's first command, with which it begins its work.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void post(EMsgId msgId, const QByteArray &payload);
    bool ask(EMsgId msgId);
    bool askQuietly(EMsgId msgId, QByteArray *pAnswer) const;
    void pass(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer,
              const QByteArray &payload, const QByteArray &reply);
    void takeLeave();
    void sendCards(const QStringList &uids);
    void meet(const CallEntry &call);
    void loseCall();

    ContactBook &m_book;
    HostContext m_context;
    HostStore m_store;
    HostMailbox m_mailbox;
    HostSettings m_settings;
    CallHistory m_history;
    CallWatch m_calls;
    CallService m_callService;
    SoundChoice m_sound;
    QPointer<QObject> m_pPlugin;
    QString m_strPlugin;
    bool m_bOnline = false;
    bool m_bSpoken = false; // a command has reached the plug-in; until then a question would create its call manager
    bool m_bQuit = false;
};
