#include "tour/TourPeople.h"

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/ScreenKeys.h"
#include "tour/TourCast.h"
#include "tour/TourEar.h"
#include "tour/TourHand.h"
#include "tour/TourScript.h"
#include "tour/TourTurns.h"
#include "traffic/CallRecord.h"

#include <algorithm>
#include <array>
#include <memory>

using namespace TourCast;
using Wire::Code;
using Wire::Command;

namespace {

enum Person
{
    First, ///< in the left half of the screen
    Second,
    Third ///< who finds them busy; the window is put away while it is not needed
};

constexpr std::array<const char *, 3> cUids{ContactBook::cOwnId, Robots::answers, Robots::busy};
constexpr std::array<const char *, 3> cNames{"小明", "李雷", "Maria Silva"};
constexpr int cFirstHz = 440;
constexpr int cSecondHz = 660;
constexpr int cRingBackHz = 425;
// A step also waits for what the other clients see.
constexpr int cSharedLimitMs = 3 * cUsualLimitMs;
constexpr const char *cCalling = "正在呼叫...";
constexpr const char *cConnected = "已接通";

/// A step as all of them have it.
struct SharedStep
{
    QString title;
    Person actor;
    TourScript::Action act;
    /// What each of them must see.
    std::array<QList<TourCheck>, 3> seen;
    /// Of the whole screen, which the first one takes.
    QString picture = QString();
};

/// The words of this tour beside those of every tour.
class Words
{
public:
    Words(const TourStage &stage, const QString &strFolder, const char *strUid)
        : m_stage(stage), m_script(stage),
          m_ear(QStringLiteral("%1/heard-%2.raw").arg(strFolder, QLatin1String(strUid)))
    {
    }

    const TourEar &ear() const { return m_ear; }
    QList<SharedStep> all() const
    {
        return signIns() + answered() + muted() + hungUp() + rejected() + busyLine() + cancelled() + killed() +
               afterwards();
    }

private:
    using Steps = QList<SharedStep>;

    TourCheck hears(int hertz) const
    {
        return {QStringLiteral("the loudspeaker gets the %1 Hz of the other").arg(hertz),
                [ear = m_ear, hertz] { return ear.hears(hertz); }};
    }
    TourCheck hearsNothingOf(int hertz) const
    {
        return {QStringLiteral("nothing of %1 Hz comes from the loudspeaker").arg(hertz),
                [ear = m_ear, hertz] { return ear.hearsNothingOf(hertz); }};
    }
    TourCheck hearsSoftly(int hertz) const
    {
        return {QStringLiteral("the loudspeaker gets %1 Hz, softly").arg(hertz),
                [ear = m_ear, hertz] { return !ear.hears(hertz) && !ear.hearsNothingOf(hertz); }};
    }

    /// Ctrl and an arrow, so many times, on the call window.
    TourScript::Action turnSpeaker(bool bUp, int iTimes) const
    {
        return [hand = &m_stage.hand, bUp, iTimes, bAsked = false]() mutable {
            QWidget *window = WindowProbe::callWindow();
            if (!bAsked && window != nullptr) {
                bAsked = true;
                hand->click([] { return WindowProbe::button(WindowProbe::callWindow(), "lblUserName"); });
            }
            return bAsked && hand->isIdle() && window->isActiveWindow() && ScreenKeys().turn(bUp, iTimes);
        };
    }

    TourScript::Action inFront(const TourScript::Action &act) const
    {
        return [window = &m_stage.window, act] {
            window->comeToFront();
            return act();
        };
    }
    SharedStep putAway() const
    {
        const auto away = [window = &m_stage.window] {
            window->showMinimized();
            return true;
        };
        const TourCheck gone{u("its window is away"), [window = &m_stage.window] { return window->isMinimized(); }};
        return {u("Maria Silva puts the client away"), Third, away, {{{}, {}, {gone}}}};
    }

    SharedStep signIn(Person person) const
    {
        SharedStep step{
            QStringLiteral("%1 signs in").arg(u(cNames.at(person))), person, m_script.pressMain("btnOnline"), {}};
        step.seen.at(person) = {m_script.command(Command::RegeditUser, QLatin1String(cUids.at(person))),
                                m_script.code(Code::SdkFlag, "registered"),
                                m_script.mainSays("btnOnline", u("Online"))};
        return step;
    }
    Steps signIns() const { return {signIn(Third), putAway(), signIn(First), signIn(Second)}; }

    /// The first one calls the second, who is rung.
    SharedStep call(const char *strTitle, const QString &strPicture = QString()) const
    {
        return {u(strTitle),
                First,
                m_script.pressContact(cUids.at(Second), "btnCall"),
                {{{m_script.command(Command::CallUser, QLatin1String(cUids.at(Second))),
                   m_script.shows("lblStatus", u(cCalling)), hears(cRingBackHz)},
                  {m_script.code(Code::IncomingCall, "incoming call"), m_script.prompted(u(cNames.at(First)))},
                  {}}},
                strPicture};
    }
    SharedStep answer(const QString &strPicture = QString()) const
    {
        return {u("李雷 answers: they hear one another, and neither himself"),
                Second,
                m_script.pressPrompt("btnAccept"),
                {{{m_script.code(Code::CallConnected, "connected"), m_script.shows("lblStatus", u(cConnected)),
                   m_script.clockRuns(), hears(cSecondHz), hearsNothingOf(cFirstHz)},
                  {m_script.command(Command::AcceptCall), m_script.code(Code::CallConnected, "connected"),
                   m_script.promptGone(), m_script.clockRuns(), hears(cFirstHz), hearsNothingOf(cSecondHz)},
                  {}}},
                strPicture};
    }
    SharedStep hangUp() const
    {
        return {u("小明 hangs up: it is quiet"),
                First,
                m_script.pressCallWindow("HangUp"),
                {{{m_script.command(Command::HangUpCall), m_script.record(resultHungUp, true, true),
                   m_script.windowGone(), hearsNothingOf(cSecondHz)},
                  {m_script.code(Code::PeerHangup, "hung up by the other side"),
                   m_script.record(resultHungUp, false, true), m_script.windowGone(), hearsNothingOf(cFirstHz)},
                  {}}}};
    }

    Steps answered() const { return {call("小明 calls 李雷", u("ringing")), answer(u("connected"))}; }

    Steps muted() const
    {
        return {{u("小明 switches the microphone off"),
                 First,
                 m_script.pressCallWindow("btnMic"),
                 {{{m_script.command(Command::SetMicEnable, u("\"param1\":false")), hears(cSecondHz)},
                   {hearsNothingOf(cFirstHz)},
                   {}}}},
                {u("小明 switches it on again"),
                 First,
                 m_script.pressCallWindow("btnMic"),
                 {{{m_script.command(Command::SetMicEnable, u("\"param1\":true"))}, {hears(cFirstHz)}, {}}}},
                {u("李雷 switches the loudspeaker off"),
                 Second,
                 m_script.pressCallWindow("btnSpeaker"),
                 {{{hears(cSecondHz)},
                   {m_script.command(Command::SetSpeakerEnble, u("\"param1\":false")), hearsNothingOf(cFirstHz)},
                   {}}}},
                {u("李雷 switches it on again"),
                 Second,
                 m_script.pressCallWindow("btnSpeaker"),
                 {{{}, {m_script.command(Command::SetSpeakerEnble, u("\"param1\":true")), hears(cFirstHz)}, {}}}}};
    }

    Steps volume() const
    {
        // The window begins at 5 of 10, and the plug-in hands on a tenth: 0 or 1.
        return {
            {u("李雷 turns the loudspeaker down: it is quiet"),
             Second,
             turnSpeaker(false, 1),
             {{{}, {m_script.command(Command::SetSpeakerVolume, u("\"param1\":0")), hearsNothingOf(cFirstHz)}, {}}}},
            {u("李雷 turns it up: something is heard"),
             Second,
             turnSpeaker(true, 6),
             {{{}, {m_script.command(Command::SetSpeakerVolume, u("\"param1\":1")), hearsSoftly(cFirstHz)}, {}}}}};
    }

    Steps hungUp() const { return {hangUp()}; }

    Steps rejected() const
    {
        return {{u("李雷 calls 小明"),
                 Second,
                 m_script.pressContact(cUids.at(First), "btnCall"),
                 {{{m_script.code(Code::IncomingCall, "incoming call"), m_script.prompted(u(cNames.at(Second)))},
                   {m_script.command(Command::CallUser), m_script.shows("lblStatus", u(cCalling))},
                   {}}}},
                {u("小明 rejects"),
                 First,
                 m_script.pressPrompt("btnReject"),
                 {{{m_script.command(Command::RejectCall), m_script.promptGone(),
                    m_script.record(resultRejected, false, false)},
                   {m_script.code(Code::PeerRejected, "rejected"), m_script.record(resultRejected, true, false),
                    m_script.windowGone()},
                   {}}}}};
    }

    Steps busyLine() const
    {
        return {call("小明 calls 李雷 again"), answer(),
                SharedStep{u("Maria Silva calls 李雷, who is in a call and hears nothing of it"),
                           Third,
                           inFront(m_script.pressContact(cUids.at(Second), "btnCall")),
                           {{{hears(cSecondHz)},
                             {hears(cFirstHz), m_script.promptGone()},
                             {m_script.command(Command::CallUser), m_script.code(Code::PeerBusy, "busy"),
                              m_script.record(resultBusy, true, false), m_script.windowGone()}}}},
                putAway(), hangUp()};
    }

    Steps cancelled() const
    {
        return {call("小明 calls once more"),
                {u("小明 thinks better of it"),
                 First,
                 m_script.pressCallWindow("btnCancelCall"),
                 {{{m_script.command(Command::HangUpCall), m_script.record(resultCancelled, true, false),
                    m_script.windowGone()},
                   {m_script.code(Code::PeerCanceled, "cancelled"), m_script.promptGone(),
                    m_script.record(resultCancelled, false, false)},
                   {}}}}};
    }

    Steps killed() const
    {
        const auto kill = [process = &m_stage.process] {
            process->kill();
            return true;
        };
        // The new process has the volumes at their full again.
        return Steps{call("小明 calls 李雷"), answer()} + volume() +
               Steps{SharedStep{u("李雷's call process is killed: it is quiet, and a new one comes"),
                                Second,
                                kill,
                                {{{m_script.code(Code::PeerHangupAlt, "no sound any more"),
                                   m_script.record(resultHungUp, true, true), m_script.windowGone(),
                                   hearsNothingOf(cSecondHz)},
                                  {m_script.command(Command::RegeditUser), m_script.code(Code::SdkFlag, "registered"),
                                   m_script.processes(1), hearsNothingOf(cFirstHz)},
                                  {}}},
                                u("killed")},
                     {u("李雷 hangs up what is left on the screen"),
                      Second,
                      m_script.pressCallWindow("HangUp"),
                      {{{}, {m_script.record(resultHungUp, false, true), m_script.windowGone()}, {}}}}};
    }

    Steps afterwards() const { return {call("小明 calls over the new call process"), answer(), hangUp()}; }

    TourStage m_stage;
    TourScript m_script;
    TourEar m_ear;
};

} // namespace

QList<TourStep> TourPeople::steps(const TourStage &stage, const QString &strUid, const QString &strFolder)
{
    const auto *const own =
        std::find_if(cUids.begin(), cUids.end(), [&](const char *uid) { return strUid == QLatin1String(uid); });
    if (own == cUids.end()) {
        return {};
    }
    const auto person = static_cast<Person>(own - cUids.begin());
    const Words words(stage, strFolder, *own);
    const auto turns = std::make_shared<TourTurns>(strFolder, strUid, QStringList(cUids.begin(), cUids.end()));
    QList<TourStep> steps;
    for (const SharedStep &step : words.all()) {
        const int number = steps.size();
        const bool acts = step.actor == person;
        const TourCheck together{u("everybody is at this step"), [turns, number] { return turns->areAllAt(number); }};
        const auto act = [=, ear = words.ear(), began = false]() mutable {
            turns->arrive(number);
            if (acts && !began && turns->areAllAt(number)) {
                began = true;
                turns->mark(ear.seconds(), step.title);
            }
            return !acts || (began && step.act());
        };
        steps.append({step.title,
                      act,
                      QList<TourCheck>{together} + step.seen.at(person),
                      cSharedLimitMs,
                      person == First ? step.picture : QString(),
                      {}});
    }
    const int end = steps.size();
    steps.append({u("Everybody has come to the end"),
                  [turns, end] {
                      turns->arrive(end);
                      return true;
                  },
                  {{u("all are there"), [turns, end] { return turns->areAllAt(end); }}},
                  cSharedLimitMs});
    return steps;
}
