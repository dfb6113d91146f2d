#pragma once

#include "traffic/CallChannel.h"
#include "traffic/WireTrace.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>
#include <utility>
#include <vector>

/// Watches over the call process for a user who is signed in: tells whether the user is registered there, and starts it
/// again where it has gone or never came, which the plug-in, that starts it once, does not do. The pauses between two
/// tries grow, and after the last one it gives up until startNow(). A process that runs for a minute earns all tries
/// anew. GUI thread.
class CallService : public QObject
{
    Q_OBJECT

public:
    enum State
    {
        Off,          ///< nobody is signed in
        Coming,       ///< the call process was just asked for: nothing is wrong yet
        Ready,        ///< the user is registered
        Unregistered, ///< connected, but the registration is refused or not answered
        Lost,         ///< there is no call process; it is started again
        Returning,    ///< a call process runs, and the plug-in is not yet connected to it
        GivenUp       ///< there is no call process, and no try is left
    };

    explicit CallService(QObject *parent = nullptr);

    State state() const { return m_state; }

    /// How many tries were made.
    int attempt() const { return m_iAttempt; }

    /// How many tries there are.
    int attempts() const { return int(m_pauses.size()); }

    /// Sets the pauses before the tries, in milliseconds, as many as there are tries. For tests.
    void setPauses(std::vector<int> pauses) { m_pauses = std::move(pauses); }

    /// Seconds until the next try, rounded up; 0 when none is waited for.
    int secondsToNext() const;

    /// Whether the last try did not even start the program.
    bool isProgramMissing() const { return m_bMissing; }

    /// Process id of the call process that the plug-in is connected to; 0 for none.
    qint64 process() const { return m_iPeer; }

    /// Where the call process writes its trace, whoever started it; where this client's own would, while there is none.
    const CallChannel::Trace &trace() const { return m_place; }

    /// The user is signed in from now on, or no longer.
    void setWanted(bool bWanted);

    /// Starts the call process now and gives it all tries anew; nothing happens while one runs or nobody is signed in.
    void startNow();

    /// Looks at once; a timer does the same four times a second.
    void look();

    /// The plug-in was told of the client's end, `bTold` when it was connected and could pass it on: if not, the call
    /// process that was started for this client is ended here. From here on nothing is watched.
    void end(bool bTold);

signals:
    /// State, tries, seconds or the place of the trace have changed.
    void changed();
    /// The call process that the plug-in was connected to has gone, and with it whatever call it had.
    void lost();
    /// The call process has told the plug-in that the call is on. Not said where its trace cannot be read.
    void callConnected();

private:
    void setState(State state);
    void takePeer();
    void readTrace();
    void heed(WireLine::Direction direction, const QString &strText);
    State connectedState();
    State lonelyState();
    State tryAgain();

    std::vector<int> m_pauses;
    QTimer m_timer;
    QElapsedTimer m_sinceWanted;
    QElapsedTimer m_sinceConnected;
    QElapsedTimer m_sinceTry;
    QElapsedTimer m_sinceReady;
    State m_state = Off;
    bool m_bWanted = false;
    bool m_bFlag = false;   // what notification 17 said last on the present connection
    bool m_bTraced = false; // the trace tells of the present connection
    bool m_bMissing = false;
    int m_iAttempt = 0;
    int m_iSeconds = 0;
    qint64 m_iPeer = 0;
    CallChannel::Trace m_place;
    std::unique_ptr<WireTrace> m_pTrace;
};
