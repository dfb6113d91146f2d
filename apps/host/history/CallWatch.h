#pragma once

#include "history/CallEntry.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

class CallHistory;

/// Follows the plug-in's one call by the events that pass between client and plug-in, and writes it into the history
/// from its begin on. The end of a single call is told by the plug-in; that of a conference is not, so the plug-in is
/// asked again and again while there is one, and the record is looked for in the local store. GUI thread; the history
/// must outlive it.
class CallWatch : public QObject
{
    Q_OBJECT

public:
    /// Whether the plug-in has a call; to be asked without anybody being told.
    using Question = std::function<bool()>;

    CallWatch(CallHistory &history, Question question, QObject *parent = nullptr);

    /// Takes an event that has passed, with its payload.
    void note(bool bFromPlugin, int iMsgId, const QByteArray &payload);

    /// Looks whether the call is over, as it does by itself from time to time.
    void look();

    /// The other side has taken the call that is on.
    void noteConnected();

    /// The call process has gone, and with it the call that was on: it has ended here, although the plug-in keeps it
    /// until the user hangs up.
    void lose();

    /// Whether there is a call, or one has been asked for and the plug-in has not decided yet. The plug-in takes no
    /// other one while it has one that is lost.
    bool hasCall() const { return m_bPlacing || m_call.id != 0; }

    /// Whether a call comes in that the user has neither taken nor refused.
    bool isRinging() const { return m_call.outcome == outcomeRunningIn && m_answer == Answer::None; }

    /// The call that is lost, and that the plug-in still has; null while there is none.
    const CallEntry *lostCall() const { return m_bLost ? &m_call : nullptr; }

signals:
    /// hasCall() may answer otherwise.
    void changed();
    /// A call of this user, or one that comes in, is on.
    void began(const CallEntry &call);
    /// The other side has taken the call that is on.
    void connected(const CallEntry &call);
    /// The plug-in has refused a call that was asked for. It says so itself.
    void refused(const CallEntry &wish);
    /// The call is over, and the history says how.
    void ended(const CallEntry &call);

protected:
    /// Sees the user act on the plug-in's windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Answer
    {
        None,
        Taken,
        Refused
    };

    void noteCommand(int iMsgId, const QByteArray &payload);
    void place(CallEntry wish);
    void settle();
    void ring(const QString &strUid, bool bConference, bool bVideo);
    void answer(bool bAccept);
    void begin(CallEntry call);
    void finishSingle(const QByteArray &payload);
    void finishConference();
    int singleOutcome(int iResult) const;
    int conferenceOutcome() const;
    void takeLength(bool bConnected, qint64 iSeconds);
    void cutOff();
    void end(int iOutcome);
    void conclude(int iOutcome);
    bool isUsersDeed() const;

    CallHistory &m_history;
    Question m_question;
    QTimer m_timer;
    CallEntry m_wish;
    CallEntry m_call; // id 0: none
    Answer m_answer = Answer::None;
    bool m_bPlacing = false;
    bool m_bLeaving = false;    // the user has signed out, or quits
    bool m_bLost = false;       // the call is over, and the plug-in still has it
    bool m_bTouched = false;    // the user's last deed on one of the plug-in's windows is still being dealt with
    bool m_bEndTouched = false; // it was when the plug-in ended a conference, which is seen only later
    QElapsedTimer m_sinceConnected;
    QElapsedTimer m_sinceLost;
};
