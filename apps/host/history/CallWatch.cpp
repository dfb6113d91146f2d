#include "history/CallWatch.h"

#include "history/CallHistory.h"

#include "plugin/EMsgId.h"
#include "plugin/EventPayload.h"
#include "store/DBConfInfo.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int cLookEveryMs = 250;

bool isPluginWindow(const QWidget *window)
{
    return window->inherits("CVoipWidget") || window->inherits("ErrorMessage");
}

} // namespace

CallWatch::CallWatch(CallHistory &history, Question question, QObject *parent)
    : QObject(parent), m_history(history), m_question(std::move(question))
{
    m_timer.setInterval(cLookEveryMs);
    connect(&m_timer, &QTimer::timeout, this, &CallWatch::look);
    QCoreApplication::instance()->installEventFilter(this);
    // A call that the user ends is over before the click or the key that did it has been dealt with: before the event
    // loop, be it that of a box which has asked back, waits for something new.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] { m_bTouched = false; });
}

bool CallWatch::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool touch = type == QEvent::MouseButtonRelease || type == QEvent::KeyPress || type == QEvent::Shortcut ||
                       (type == QEvent::Close && event->spontaneous());
    if (touch && watched->isWidgetType() && isPluginWindow(static_cast<const QWidget *>(watched)->window())) {
        m_bTouched = true;
    }
    return QObject::eventFilter(watched, event);
}

bool CallWatch::isUsersDeed() const
{
    return m_bLeaving || m_answer == Answer::Refused || m_bTouched || m_bEndTouched;
}

void CallWatch::note(bool bFromPlugin, int iMsgId, const QByteArray &payload)
{
    if (!bFromPlugin) {
        noteCommand(iMsgId, payload);
    } else if (iMsgId == MSG_RECEVIE_VOIP_CALL) {
        PayloadReader in(payload);
        const auto uid = in.take<QString>();
        const auto conference = in.take<bool>();
        ring(uid, conference, in.take<bool>());
    } else if (iMsgId == MSG_CALL_FINISHED) {
        finishSingle(payload);
    } else if (iMsgId == MSG_CLOSE_AV_MSGBOX) {
        // The prompt is withdrawn before the conference's record is written, so that is looked for later.
        m_bEndTouched = m_bTouched;
        QMetaObject::invokeMethod(this, &CallWatch::look, Qt::QueuedConnection);
    }
}

void CallWatch::noteCommand(int iMsgId, const QByteArray &payload)
{
    PayloadReader in(payload);
    CallEntry wish;
    wish.caller = true;
    switch (iMsgId) {
    case MSG_CALL_SINGLE_USER:
        wish.video = in.take<bool>();
        wish.uid = in.take<QString>();
        place(wish);
        break;
    case MSG_CALL_CONFERENCE:
        wish.conference = true;
        wish.uid = m_history.owner();
        wish.members = in.takeTexts();
        place(wish);
        break;
    case MSG_RESPONSE_VOIP_REQUEST:
        answer(in.take<bool>());
        break;
    case MSG_CLIENT_CONNECT_STATUS:
        m_bLeaving = !in.take<bool>();
        break;
    case MSG_EXIT_VOIP:
        m_bLeaving = true;
        break;
    default:
        break;
    }
}

/// A call is asked for. Whether the plug-in takes it shows when the command has been carried out, or while the box that
/// refuses it is open.
void CallWatch::place(CallEntry wish)
{
    if (hasCall()) {
        return;
    }
    m_wish = std::move(wish);
    m_bPlacing = true;
    QMetaObject::invokeMethod(this, &CallWatch::settle, Qt::QueuedConnection);
    emit changed();
}

void CallWatch::settle()
{
    if (!std::exchange(m_bPlacing, false)) {
        return;
    }
    if (m_question()) {
        begin(m_wish);
    } else {
        emit changed();
        emit refused(m_wish);
    }
}

void CallWatch::ring(const QString &strUid, bool bConference, bool bVideo)
{
    // The call process may repeat the invitation to the conference that is on.
    if (m_call.id != 0 && !m_bLost && bConference && m_call.conference && m_call.uid == strUid) {
        return;
    }
    if (m_call.id != 0) {
        // The plug-in has forgotten the call that was on.
        cutOff();
    }
    m_bPlacing = false;
    CallEntry call;
    call.uid = strUid;
    call.conference = bConference;
    call.video = bVideo;
    begin(call);
}

void CallWatch::begin(CallEntry call)
{
    call.begun = QDateTime::currentDateTime();
    call.outcome = call.caller ? outcomeRunning : outcomeRunningIn;
    call.id = m_history.add(call);
    m_call = call;
    m_answer = Answer::None;
    m_bTouched = false;
    m_bEndTouched = false;
    m_sinceConnected.invalidate();
    m_timer.start();
    emit changed();
    emit began(m_call);
}

void CallWatch::answer(bool bAccept)
{
    if (m_call.id == 0 || m_call.caller || m_bLost) {
        return;
    }
    m_answer = bAccept ? Answer::Taken : Answer::Refused;
    if (bAccept) {
        m_call.outcome = outcomeRunning;
        m_history.change(m_call);
    }
}

void CallWatch::look()
{
    if (m_call.id == 0 || m_question()) {
        return;
    }
    if (m_call.conference) {
        finishConference();
    } else {
        cutOff();
    }
}

void CallWatch::finishSingle(const QByteArray &payload)
{
    PayloadReader in(payload);
    const auto video = in.take<bool>();
    const auto uid = in.take<QString>();
    const auto result = in.take<qint32>();
    const auto caller = in.take<bool>();
    const auto connected = in.take<bool>();
    const auto seconds = in.take<qint64>();
    if (m_call.id != 0 && (m_call.conference || m_call.uid != uid)) {
        cutOff();
    }
    m_bPlacing = false;
    if (m_call.id == 0) {
        CallEntry call;
        call.uid = uid;
        call.caller = caller;
        begin(call);
    }
    m_call.video = video;
    m_call.caller = caller;
    takeLength(connected, seconds);
    end(singleOutcome(result));
}

int CallWatch::singleOutcome(int iResult) const
{
    if (m_call.connected) {
        return iResult;
    }
    if (m_call.caller) {
        // Cancelled, but not by the user: the plug-in's own limit has run out.
        return iResult == resultCancelled && !isUsersDeed() ? int(outcomeNoAnswer) : iResult;
    }
    switch (m_answer) {
    case Answer::Refused:
        return resultRejected;
    case Answer::Taken:
        return iResult == resultRejected && !isUsersDeed() ? int(resultFailed) : iResult;
    default:
        return m_bLeaving ? int(resultRejected) : int(outcomeMissed);
    }
}

void CallWatch::finishConference()
{
    // The plug-in writes the record before it forgets the call.
    const QList<ConfInfoData> records = m_history.unknown(DBConfInfo::getAllConfInfo());
    const auto own = std::find_if(records.begin(), records.end(),
                                  [this](const ConfInfoData &record) { return record.m_strCreatUserID == m_call.uid; });
    if (own != records.end()) {
        m_call.confId = own->m_strConfID;
        takeLength(own->m_bIsConnect, own->m_strCallTime.toLongLong());
        m_call.members = m_history.others(own->m_listMember);
    }
    end(conferenceOutcome());
}

int CallWatch::conferenceOutcome() const
{
    if (m_call.connected) {
        return resultHungUp;
    }
    if (m_call.caller) {
        return isUsersDeed() ? resultCancelled : m_call.confId.isEmpty() ? int(resultFailed) : int(outcomeNoAnswer);
    }
    switch (m_answer) {
    case Answer::Refused:
        return resultRejected;
    case Answer::Taken:
        return isUsersDeed() ? resultCancelled : resultFailed;
    default:
        return m_bLeaving ? int(resultRejected) : int(outcomeMissed);
    }
}

void CallWatch::noteConnected()
{
    if (m_call.id != 0 && !m_bLost) {
        m_sinceConnected.start();
        emit connected(m_call);
    }
}

void CallWatch::lose()
{
    if (m_call.id == 0 || m_bLost) {
        return;
    }
    m_call.connected = m_sinceConnected.isValid();
    m_call.seconds = m_call.connected ? m_sinceConnected.elapsed() / 1000 : 0;
    m_sinceLost.start();
    m_bLost = true;
    conclude(isRinging() ? outcomeMissed : outcomeCutOff);
    emit changed();
    emit ended(CallEntry(m_call));
}

/// Takes what the plug-in says of the length, without what has passed since the call was lost.
void CallWatch::takeLength(bool bConnected, qint64 iSeconds)
{
    const qint64 lost = m_bLost ? m_sinceLost.elapsed() / 1000 : 0;
    if (!m_bLost || !m_call.connected) {
        m_call.connected = bConnected;
        m_call.seconds = qMax<qint64>(0, iSeconds - lost);
    }
}

/// The call is gone, and nobody has said how.
void CallWatch::cutOff()
{
    end(isRinging() ? outcomeMissed : outcomeCutOff);
}

/// Writes down how the call has ended.
void CallWatch::conclude(int iOutcome)
{
    m_call.outcome = iOutcome;
    m_call.seen = isUsersDeed();
    m_history.change(m_call);
}

void CallWatch::end(int iOutcome)
{
    const bool bTold = std::exchange(m_bLost, false);
    if (bTold) {
        // The history was told when the call process died; what the plug-in knows of the call comes only now.
        const CallEntry *kept = m_history.find(m_call.id);
        m_call.seen = kept == nullptr || kept->seen;
        m_history.change(m_call);
    } else {
        conclude(iOutcome);
    }
    m_timer.stop();
    const CallEntry call = std::exchange(m_call, CallEntry());
    m_answer = Answer::None;
    emit changed();
    if (!bTold) {
        emit ended(call);
    }
}
