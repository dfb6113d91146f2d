#include "soak/Workload.h"

#include "soak/SoakClient.h"

#include "model/MemberRoles.h"
#include "robots/RobotIds.h"

#include <QDeadlineTimer>
#include <QTime>

#include <array>

namespace {

const QString answers = QString::fromLatin1(Robots::answers);
const QString busy = QString::fromLatin1(Robots::busy);
const QString rejects = QString::fromLatin1(Robots::rejects);
const QString never = QString::fromLatin1(Robots::silent);
const QString fails = QString::fromLatin1(Robots::fails);
const QString hangsUp = QString::fromLatin1(Robots::hangsUp);
const QString callsBack = QString::fromLatin1(Robots::callsBack);
const QString invites = QString::fromLatin1(Robots::invites);
const QString crosses = QString::fromLatin1(Robots::crosses);
const QString nobody = QStringLiteral("39999999");

// Results in a call's record.
constexpr int cancelled = 21;
constexpr int failed = 22;
constexpr int hungUp = 24;
constexpr int isBusy = 25;
constexpr int rejected = 26;

/// Takes the call's record. Either side may have given the call up first when the machine is busy elsewhere; that is
/// counted.
void expect(SoakClient &client, int result)
{
    const CallRecord record = client.finished();
    if (record.result == cancelled && result != cancelled) {
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
    client.call(never, true);
    client.click("btnCancelCall");
    expect(client, cancelled);
    return 1;
}

int cancelledByClosing(SoakClient &client)
{
    client.call(never);
    client.closeWindow();
    expect(client, cancelled);
    return 1;
}

int hungUpByUser(SoakClient &client)
{
    client.call(answers);
    if (client.waitForConnection()) {
        client.click("btnMic");
        client.click("HangUp");
    }
    expect(client, hungUp);
    return 1;
}

int acceptedCall(SoakClient &client)
{
    client.letCallBack(callsBack);
    client.answer(true);
    expect(client, hungUp);
    client.waitForSilence();
    return 2;
}

int rejectedCall(SoakClient &client)
{
    client.letCallBack(callsBack);
    client.answer(false);
    expect(client, rejected);
    client.waitForSilence();
    return 2;
}

void ownConference(SoakClient &client)
{
    client.callConference({answers, busy, rejects, never, fails, nobody});
    for (const QString &uid : {answers, busy, rejects, fails, nobody}) {
        client.waitForStatus(uid);
    }
    client.click("btnMuteAll");
    client.closeWindow();
}

void enlargedConference(SoakClient &client)
{
    client.callConference({answers, hangsUp});
    client.waitForStatus(answers);
    client.waitForStatus(hangsUp, ConferenceHungUp);
    // The picker gives one who cannot be reached.
    client.click("btnAddMember");
    client.waitForStatus(fails);
    client.closeWindow();
}

void refusedConference(SoakClient &client)
{
    client.callConference({fails, nobody});
}

void acceptedInvitation(SoakClient &client)
{
    client.letCallBack(invites);
    client.answer(true);
}

void crossedInvitation(SoakClient &client)
{
    client.letCallBack(crosses);
    client.answer(true);
}

void rejectedInvitation(SoakClient &client)
{
    client.letCallBack(invites);
    client.answer(false);
}

constexpr std::array<int (*)(SoakClient &), 10> singleCalls{endsByItself<busy, isBusy>,
                                                            endsByItself<rejects, rejected>,
                                                            endsByItself<fails, failed>,
                                                            endsByItself<hangsUp, hungUp>,
                                                            endsByItself<nobody, failed>,
                                                            cancelledByButton,
                                                            cancelledByClosing,
                                                            hungUpByUser,
                                                            acceptedCall,
                                                            rejectedCall};
constexpr std::array<void (*)(SoakClient &), 6> conferences{ownConference,      enlargedConference, refusedConference,
                                                            acceptedInvitation, crossedInvitation,  rejectedInvitation};
// The centre is visited after every conference of this number.
constexpr int betweenVisits = 5;

constexpr int secondsInHour = 3600;
constexpr int longCallSeconds = 600;
constexpr int invitationSeconds = 60;
constexpr int absenceSeconds = 240;

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
    if (++m_conference % betweenVisits == 0) {
        m_client.visitCentre();
    }
}

void Workload::longCall()
{
    m_client.call(answers);
    if (!m_client.waitForConnection()) {
        expect(m_client, hungUp);
        return;
    }
    m_client.pass(longCallSeconds);
    m_client.click("HangUp");
    const CallRecord record = m_client.finished();
    if (record.result != hungUp || record.seconds < longCallSeconds) {
        throw SoakFailure(
            QStringLiteral("a call of ten minutes lasted %1 s, result %2").arg(record.seconds).arg(record.result));
    }
}

void Workload::unansweredCall()
{
    const QDeadlineTimer limit(qint64(invitationSeconds) * 1000);
    m_client.call(never);
    expect(m_client, cancelled);
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
    m_client.callConference({answers, never});
    m_client.waitForStatus(answers);
    // The watchdog sees to it.
    m_client.waitForStatus(never);
    m_client.closeWindow();
    m_client.waitForNoCall();
    m_client.visitCentre();
}

void Workload::timeWithoutCallProcess()
{
    const int before = m_client.registrations();
    m_client.killCallProcess();
    m_client.pass(absenceSeconds);
    m_client.startCallProcess();
    m_client.waitForRegistration(before);
}

void Workload::hour()
{
    const QDeadlineTimer over(qint64(secondsInHour) * 1000);
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
