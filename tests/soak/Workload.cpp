#include "soak/Workload.h"

#include "model/MemberRoles.h"
#include "robots/RobotIds.h"
#include "soak/SoakClient.h"

#include <QDeadlineTimer>
#include <QTime>

#include <array>

namespace {

const QString cAnswers = QString::fromLatin1(Robots::answers);
const QString cBusy = QString::fromLatin1(Robots::busy);
const QString cRejects = QString::fromLatin1(Robots::rejects);
const QString cNever = QString::fromLatin1(Robots::silent);
const QString cFails = QString::fromLatin1(Robots::fails);
const QString cHangsUp = QString::fromLatin1(Robots::hangsUp);
const QString cCallsBack = QString::fromLatin1(Robots::callsBack);
const QString cInvites = QString::fromLatin1(Robots::invites);
const QString cCrosses = QString::fromLatin1(Robots::crosses);
const QString cNobody = QStringLiteral("39999999");

// Results in a call's record.
constexpr int cCancelled = 21;
constexpr int cFailed = 22;
constexpr int cHungUp = 24;
constexpr int cIsBusy = 25;
constexpr int cRejected = 26;

/// Takes the call's record. Either side may have given the call up first when the machine is busy elsewhere; that is
/// counted.
void expect(SoakClient &client, int result)
{
    const CallRecord record = client.finished();
    if (record.result == cCancelled && result != cCancelled) {
        ++client.givenUp;
        client.waitForSilence();
    } else if (record.result != result) {
        throw SoakFailure(QStringLiteral("the call with %1 ended with %2 and not with %3")
                              .arg(record.uid)
                              .arg(record.result)
                              .arg(result));
    }
}

template <const QString &uid, int result>
int endsByItself(SoakClient &client)
{
    client.call(uid);
    expect(client, result);
    return 1;
}

int cancelledByButton(SoakClient &client)
{
    client.call(cNever, true);
    client.click("btnCancelCall");
    expect(client, cCancelled);
    return 1;
}

int cancelledByClosing(SoakClient &client)
{
    client.call(cNever);
    client.closeWindow();
    expect(client, cCancelled);
    return 1;
}

int hungUpByUser(SoakClient &client)
{
    client.call(cAnswers);
    if (client.waitForConnection()) {
        client.click("btnMic");
        client.click("HangUp");
    }
    expect(client, cHungUp);
    return 1;
}

int acceptedCall(SoakClient &client)
{
    client.letCallBack(cCallsBack);
    client.answer(true);
    expect(client, cHungUp);
    client.waitForSilence();
    return 2;
}

int rejectedCall(SoakClient &client)
{
    client.letCallBack(cCallsBack);
    client.answer(false);
    expect(client, cRejected);
    client.waitForSilence();
    return 2;
}

void ownConference(SoakClient &client)
{
    client.callConference({cAnswers, cBusy, cRejects, cNever, cFails, cNobody});
    for (const QString &uid : {cAnswers, cBusy, cRejects, cFails, cNobody}) {
        client.waitForStatus(uid);
    }
    client.click("btnMuteAll");
    client.closeWindow();
}

void enlargedConference(SoakClient &client)
{
    client.callConference({cAnswers, cHangsUp});
    client.waitForStatus(cAnswers);
    client.waitForStatus(cHangsUp, ConferenceHungUp);
    // The picker gives one who cannot be reached.
    client.click("btnAddMember");
    client.waitForStatus(cFails);
    client.closeWindow();
}

void refusedConference(SoakClient &client)
{
    client.callConference({cFails, cNobody});
}

void acceptedInvitation(SoakClient &client)
{
    client.letCallBack(cInvites);
    client.answer(true);
}

void crossedInvitation(SoakClient &client)
{
    client.letCallBack(cCrosses);
    client.answer(true);
}

void rejectedInvitation(SoakClient &client)
{
    client.letCallBack(cInvites);
    client.answer(false);
}

constexpr std::array<int (*)(SoakClient &), 10> singleCalls{endsByItself<cBusy, cIsBusy>,
                                                            endsByItself<cRejects, cRejected>,
                                                            endsByItself<cFails, cFailed>,
                                                            endsByItself<cHangsUp, cHungUp>,
                                                            endsByItself<cNobody, cFailed>,
                                                            cancelledByButton,
                                                            cancelledByClosing,
                                                            hungUpByUser,
                                                            acceptedCall,
                                                            rejectedCall};
constexpr std::array<void (*)(SoakClient &), 6> conferences{ownConference,      enlargedConference, refusedConference,
                                                            acceptedInvitation, crossedInvitation,  rejectedInvitation};
// The centre is visited after every conference of this number.
constexpr int cBetweenVisits = 5;

constexpr int cSecondsInHour = 3600;
constexpr int cLongCallSeconds = 600;
constexpr int cInvitationSeconds = 60;
constexpr int cAbsenceSeconds = 240;

} // namespace

int Workload::nextCall()
{
    return singleCalls.at(std::size_t(m_call++) % singleCalls.size())(m_client);
}

void Workload::nextConference()
{
    conferences.at(std::size_t(m_conference) % conferences.size())(m_client);
    m_client.waitForNoCall();
    m_client.waitForSilence();
    if (++m_conference % cBetweenVisits == 0) {
        m_client.visitCentre();
    }
}

void Workload::longCall()
{
    m_client.call(cAnswers);
    if (!m_client.waitForConnection()) {
        expect(m_client, cHungUp);
        return;
    }
    m_client.pass(cLongCallSeconds);
    m_client.click("HangUp");
    const CallRecord record = m_client.finished();
    if (record.result != cHungUp || record.seconds < cLongCallSeconds) {
        throw SoakFailure(
            QStringLiteral("a call of ten minutes lasted %1 s, result %2").arg(record.seconds).arg(record.result));
    }
}

void Workload::unansweredCall()
{
    const QDeadlineTimer limit(qint64(cInvitationSeconds) * 1000);
    m_client.call(cNever);
    expect(m_client, cCancelled);
    if (!limit.hasExpired()) {
        throw SoakFailure(QStringLiteral("a call was given up after less than a minute"));
    }
}

void Workload::conferenceWithAbsentMember()
{
    // An invitation before midnight does not run out after it.
    const QTime late(23, 50);
    if (QTime::currentTime() > late) {
        m_client.pass(QTime::currentTime().secsTo(QTime(23, 59, 59)) + 2);
    }
    m_client.callConference({cAnswers, cNever});
    m_client.waitForStatus(cAnswers);
    // The watchdog sees to it.
    m_client.waitForStatus(cNever);
    m_client.closeWindow();
    m_client.waitForNoCall();
    m_client.visitCentre();
}

void Workload::timeWithoutCallProcess()
{
    const int before = m_client.registrations();
    m_client.killCallProcess();
    m_client.pass(cAbsenceSeconds);
    m_client.startCallProcess();
    m_client.waitForRegistration(before);
}

void Workload::hour()
{
    const QDeadlineTimer over(qint64(cSecondsInHour) * 1000);
    longCall();
    unansweredCall();
    conferenceWithAbsentMember();
    timeWithoutCallProcess();
    for (std::size_t kind = 0; kind < singleCalls.size(); ++kind) {
        nextCall();
    }
    nextConference();
    m_client.pass(over.remainingTime() / 1000 + 1);
}
