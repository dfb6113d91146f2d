#pragma once

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "session/HostSession.h"
#include "traffic/CallRecord.h"

#include "soak/UndeletedEvents.h"

#include <QString>
#include <QTimer>

#include <functional>
#include <stdexcept>

class QWidget;

/// Something did not come about.
class SoakFailure : public std::runtime_error
{
public:
    explicit SoakFailure(const QString &what) : std::runtime_error(what.toStdString()) {}
};

/// The demo's client without its main window, with a user who needs no time to think: it loads the built module, which
/// starts the built call process, and waits for states, never for a length of time. GUI thread; one in a process.
class SoakClient
{
public:
    /// How much faster the day's clock runs where somebody has to answer in time, the call process above all: a minute
    /// is three seconds then, which a busy machine still has.
    static constexpr int workPace = 20;

    /// The call process's robots are to be `speed` times as fast.
    explicit SoakClient(int speed);

    /// Quits, and ends a call process that is still there.
    ~SoakClient();
    SoakClient(const SoakClient &) = delete;
    SoakClient &operator=(const SoakClient &) = delete;

    /// Loads the module and waits until the call process has registered the user. This and all that waits throws
    /// SoakFailure when what is waited for has not come about within half a minute of real time.
    void start();

    /// Places a call; there is one when this returns.
    void call(const QString &uid, bool video = false);

    /// Starts a conference; there is one when this returns.
    void callConference(const QStringList &uids);

    /// Calls a robot that rejects and comes back; waits until the call or the invitation that it makes rings.
    void letCallBack(const QString &uid);

    /// Answers what rings.
    void answer(bool accept);

    /// Waits until one more call has ended, by the host's record, and gives the record.
    CallRecord finished();

    /// Waits until there is no call in any state.
    void waitForNoCall();

    /// Waits until the call window says that the call is connected; false when the call has ended before.
    bool waitForConnection();

    /// Waits until the conference has ended or the member's row in the call window has another status than that of
    /// being called.
    void waitForStatus(const QString &uid);

    /// Waits until the conference has ended or the member's row has this status.
    void waitForStatus(const QString &uid, int status);

    /// Waits until the call process has answered to a registration: nothing that it said before is still on its way.
    void waitForSilence();

    /// Waits until the call process has registered the user once more than when `before` was taken.
    void waitForRegistration(int before);

    /// How often the call process has registered the user.
    int registrations() const;

    /// Clicks on a part of the call window.
    void click(const char *name);

    /// Closes the call window.
    void closeWindow();

    /// Opens the conference centre, moves the mouse over its list and out of it, closes it.
    void visitCentre();

    /// Kills the call process, or starts another one as an operator would.
    void killCallProcess();
    void startCallProcess();

    /// Handles events for this long by the thread's own clock, which runs faster meanwhile. For days alone.
    void pass(qint64 seconds);

    /// Comes to rest before a measurement: deferred deletions done, log written, caches that are bounded by a size of
    /// their own emptied.
    void settle();

    UndeletedEvents undeleted;
    /// How many calls ended before they could go as they should have.
    int givenUp = 0;

private:
    QWidget *window(const char *className) const;
    int statusOf(const QString &uid) const;
    void waitFor(const QString &what, const std::function<bool()> &holds);
    void drainLog();

    ContactBook m_book;
    CallProcess m_process;
    HostSession m_session;
    QTimer m_heartbeat;
    QString m_connectedText;
    int m_incoming = 0;
    int m_finished = 0;
    int m_finishedSeen = 0;
    CallRecord m_record;
};
