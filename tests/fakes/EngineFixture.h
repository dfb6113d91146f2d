#pragma once

// One call engine, freshly made, with everything around it played by the test: a signed-in user, a host that answers,
// the call process's end of the channel, a user who closes message boxes. Build one in each test function. GUI thread.

#include "fakes/FakeCallProcess.h"
#include "fakes/FakeHost.h"
#include "fakes/GivenContext.h"
#include "fakes/MessageBoxes.h"
#include "fakes/VoipManageProbe.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SystemSetData.h"

#include <functional>
#include <memory>
#include <optional>

class EngineFixture
{
public:
    /// What the engine finds when it is made.
    enum Start
    {
        WithCallProcess, ///< the channel is up
        NoCallProcess,   ///< the first attempt to connect fails
        RealCallProcess, ///< nobody yet: the engine has started a process and connects once that listens
    };

    explicit EngineFixture(Start start = WithCallProcess);
    ~EngineFixture();
    EngineFixture(const EngineFixture &) = delete;
    EngineFixture &operator=(const EngineFixture &) = delete;

    /// The user jid of `uid` in the user's own domain.
    static QString jid(const QString &uid) { return uid + QStringLiteral("@kelvar.im"); }

    /// Sends a notification straight into the engine.
    void notify(Code code, const QString &content = QString()) { notify(int(code), content); }

    /// The same for any number, also one that no notification has.
    void notify(int code, const QString &content = QString()) { manager->callbackMessage(code, content); }

    /// Lets the user "me" create the conference c1 with anna and bert, and forgets what went out for it.
    void createConference();

    /// Everything the call data hold, as one text.
    QString callText() const;

    /// The lines written to the call process since the last call, as FakeCallProcess shows them.
    QStringList takeLines();

    /// What has gone out since the last call, in its order: the lines to the call process, unless that is a real one,
    /// and the host events of a call's course ("4639 ...", "4345 ...", "4478 ...") with their fields, the length of the
    /// call left out.
    QStringList takeJournal();

    /// The call's state as the call data and the timers tell it: "idle", "outgoing anna", "incoming bert", "connected
    /// bert", and behind a comma what runs: "invite", "receive", "ring".
    QString state() const;

    /// The member list of the call window: each row's uid and status code, and "*" for the creator.
    QStringList members() const;

    /// Seconds in the last 4478 event; -1 when there was none.
    qint64 lastSeconds() const;

    /// Delivers what is posted.
    static void deliverPosted();

    CommonData context;
    std::optional<GivenContext> given; ///< a test may take the context away
    LoginData login;
    SystemSetData settings;
    FakeHost host;
    MessageBoxes boxes;
    FakeCallProcess process;
    std::unique_ptr<VoipManageProbe> manager;
    /// Qt's warnings while the engine was made.
    QStringList startWarnings;
    /// Runs at the end of each host event's handling. May be empty.
    std::function<void(BaseEvent &)> whileHandled;

private:
    void noteEvent(const BaseEvent &event);

    const Start m_start;
    QStringList m_journal;
};
