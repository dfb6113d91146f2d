#include "flow/ScenarioRows.h"

#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"

namespace {

Step until(const QString &name, const std::function<bool(ScenarioRun &)> &condition)
{
    return {"until " + name, [condition](ScenarioRun &r) { return r.waitFor([&] { return condition(r); }); }};
}

} // namespace

Step call(const QString &uid)
{
    return {"call", [uid](ScenarioRun &r) {
                r.command(MSG_CALL_SINGLE_USER, false, uid);
                return r.engine.manager->isExistCall() && r.engine.manager->m_pVoipWidget->isVisible();
            }};
}

Step press(const char *button)
{
    return {QString("press ") + button, [button](ScenarioRun &r) { return r.press(button); }};
}

Step untilConnected()
{
    return until("connected", [](ScenarioRun &r) {
        return r.engine.manager->m_callData.bIsConnected && !r.engine.manager->m_inviteTimer.isActive();
    });
}

Step untilIdle()
{
    return until("idle", [](ScenarioRun &r) {
        return r.engine.state() == "idle" && !r.engine.manager->m_pVoipWidget->isVisible();
    });
}

namespace {

// What the host does.

Step conference(const QStringList &uids)
{
    return {"conference", [uids](ScenarioRun &r) {
                r.command(MSG_CALL_CONFERENCE, uids, QString("talk"), true);
                return r.engine.manager->isExistCall() && r.engine.manager->m_pVoipWidget->isVisible();
            }};
}

Step answer(bool accept)
{
    return {accept ? "accept" : "reject", [accept](ScenarioRun &r) {
                const bool hidden = !r.engine.manager->m_pVoipWidget->isVisible();
                r.command(MSG_RESPONSE_VOIP_REQUEST, accept);
                return hidden && r.engine.manager->m_pVoipWidget->isVisible() == accept;
            }};
}

Step offline()
{
    return {"offline", [](ScenarioRun &r) {
                r.command(MSG_CLIENT_CONNECT_STATUS, false);
                return !r.engine.manager->isExistCall();
            }};
}

// What the user does with the window.

Step closeWindow()
{
    return {"close the window", [](ScenarioRun &r) { return r.engine.manager->m_pVoipWidget->close(); }};
}

/// Clicks on the button of a member's row whose rectangle stands in that role.
Step clickMember(const QString &uid, MemberRole button)
{
    return {"click at " + uid, [uid, button](ScenarioRun &r) { return r.clickMember(uid, button); }};
}

Step callAgain(const QString &uid)
{
    return {"call again " + uid, [uid](ScenarioRun &r) { return r.doubleClickMember(uid); }};
}

/// The user asks for more members, and the host's picker gives these.
Step addMembers(const QStringList &uids)
{
    return {"add " + uids.join(','), [uids](ScenarioRun &r) {
                r.engine.host.membersToAdd = uids;
                return r.press("btnAddMember");
            }};
}

// What the far end and time do.

Step untilRinging(const QString &uid)
{
    return until("ringing", [uid](ScenarioRun &r) {
        return r.engine.manager->m_callData.peerId == uid && r.engine.manager->m_recevieTimer.isActive();
    });
}

Step untilMembers(const QStringList &members)
{
    return until("members " + members.join(','), [members](ScenarioRun &r) { return r.engine.members() == members; });
}

/// The engine has ended a call that was there.
Step untilEnded()
{
    return until("ended", [](ScenarioRun &r) { return !r.engine.host.received(MSG_CLOSE_AV_MSGBOX).isEmpty(); });
}

Step membersWere(const QStringList &members)
{
    return {"members were " + members.join(','), [members](ScenarioRun &r) { return r.membersAtEnd == members; }};
}

Step noCreateTime()
{
    return {"no creation time", [](ScenarioRun &r) { return r.engine.manager->m_callData.createTime.isNull(); }};
}

Step untilLogged(const QString &line, int count)
{
    return until(line, [line, count](ScenarioRun &r) { return r.messages.debugLines.count(line) == count; });
}

/// The channel is lost; whatever call there is stays.
Step untilLost()
{
    return until("lost", [](ScenarioRun &r) {
        return !r.engine.manager->m_bSocketConnected && r.engine.manager->m_reconnectTimer.isActive();
    });
}

Step untilBack()
{
    return {"until back", [](ScenarioRun &r) { return r.connectChannel(); }};
}

Step stillInCall()
{
    return {"still in the call", [](ScenarioRun &r) { return r.engine.manager->isExistCall(); }};
}

Step giveUp(void (CVoipManage::*timeout)())
{
    return {"time is up", [timeout](ScenarioRun &r) {
                (r.engine.manager.get()->*timeout)();
                return !r.engine.manager->isExistCall();
            }};
}

const QStringList cCalled{R"(CallUser "30010001" false)"};
const QStringList cHungUp{"HangUpCall"};
const QStringList cAccepted{"AcceptCall"};
const QStringList cRejected{"RejectCall"};
const QStringList cDevicesOn{"SetMicEnable true", "SetSpeakerEnble true"};

QStringList ended(const QString &uid, int result, bool caller, bool connected)
{
    return {"4345 " + uid + "@kelvar.im", QStringLiteral("4478 false %1 %2 %3 %4")
                                              .arg(uid)
                                              .arg(result)
                                              .arg(caller ? "true" : "false", connected ? "true" : "false")};
}

QStringList rang(const QString &uid)
{
    return {"4639 " + uid + " false false"};
}

// clang-format off
QList<Row> callsOut()
{
    const Step out = call("30010001");
    return {
        {"call-answered", "hung up by the button, the devices are switched on behind the hang-up",
         {out, untilConnected(), press("HangUp"), untilIdle()},
         cCalled + cHungUp + cDevicesOn, ended("30010001", 24, true, true)},
        {"call-answered", "closed by the user, the devices are switched on before the hang-up",
         {out, untilConnected(), closeWindow(), untilIdle()},
         cCalled + cDevicesOn + cHungUp, ended("30010001", 24, true, true)},
        {"call-busy", "", {out, untilIdle()}, cCalled + cDevicesOn, ended("30010001", 25, true, false)},
        {"call-failed", "", {out, untilIdle()}, cCalled + cDevicesOn, ended("30010001", 22, true, false)},
        {"call-rejected", "", {out, untilIdle()}, cCalled + cDevicesOn, ended("30010001", 26, true, false)},
        {"call-hung-up", "", {out, untilIdle()}, cCalled + cDevicesOn, ended("30010001", 24, true, true)},
        {"call-never-answered", "cancelled by the user, the devices are switched on twice",
         {out, press("btnCancelCall"), untilIdle()},
         cCalled + cHungUp + cDevicesOn + cDevicesOn, ended("30010001", 21, true, false)},
        {"call-never-answered", "given up after a minute",
         {out, giveUp(&CVoipManage::slot_inviteCallTimeout), untilIdle()},
         cCalled + cHungUp + cDevicesOn, ended("30010001", 21, true, false)},
        {"call-never-answered", "ended by the host that goes offline, and the user is unregistered last",
         {out, offline(), untilIdle()},
         cCalled + cHungUp + cDevicesOn + QStringList(R"(UnReg "me")"), ended("30010001", 21, true, false)},
    };
}

QList<Row> callsIn()
{
    const QString caller = "30010001";
    const QString second = "30010002";
    return {
        {"incoming-accepted", "", {untilRinging(caller), answer(true), untilIdle()},
         cAccepted + cDevicesOn, rang(caller) + ended(caller, 24, false, true)},
        {"incoming-cancelled", "", {untilEnded(), untilIdle()},
         cDevicesOn, rang(caller) + ended(caller, 21, false, false)},
        {"incoming-rejected", "by the user, a window never shown switches the devices on too",
         {untilRinging(caller), answer(false), untilIdle()},
         cRejected + cDevicesOn, rang(caller) + ended(caller, 26, false, false)},
        {"incoming-rejected", "after a minute without an answer",
         {untilRinging(caller), giveUp(&CVoipManage::slot_recevieCallTimeout), untilIdle()},
         cRejected + cDevicesOn, rang(caller) + ended(caller, 26, false, false)},
        {"second-incoming-call", "the hang-up ends the second one as connected",
         {untilRinging(caller), answer(true), untilConnected(), untilRinging(second), press("HangUp"), untilIdle()},
         cAccepted + cHungUp + cDevicesOn, rang(caller) + rang(second) + ended(second, 24, false, true)},
    };
}

QStringList requested(const QString &uids)
{
    return {R"(RequestConference "me" )" + uids + R"( true "talk")"};
}

QStringList added(const QString &uids, const QString &connected)
{
    return {"Add2Conference " + uids + R"( "me" "me" false "" )" + connected};
}

QStringList invited(const QString &uid)
{
    return {"4639 " + uid + " true false", "4345 " + uid + "@kelvar.im"};
}

QList<Row> conferencesOfMyOwn()
{
    const QStringList closed = cDevicesOn + QStringList("HangupConf");
    return {
        {"conference-created", "closed by the user, the devices are switched on before the leaving",
         {conference({"30010001", "30010002"}), untilConnected(), untilMembers({"30010001 4", "30010002 5"}),
          closeWindow(), untilIdle()},
         requested(R"(["30010001","30010002"])") + closed, {}},
        {"conference-members", "the one who has left is called again",
         {conference({"30010001", "30010002", "30010003", "30010004", "30010009"}),
          untilMembers({"30010001 1", "30010002 5", "30010003 5", "30010004 0", "30010009 4"}), callAgain("30010009"),
          untilMembers({"30010001 1", "30010002 5", "30010003 5", "30010004 0", "30010009 1"}), closeWindow(),
          untilIdle()},
         requested(R"(["30010001","30010002","30010003","30010004","30010009"])") +
             added(R"(["30010009"])", R"(["me","30010001"])") + closed, {}},
        {"conference-added", "one who could not be added is called again",
         {conference({"30010001"}), untilMembers({"30010001 1"}), addMembers({"30010001", "30010004", "30010005"}),
          untilMembers({"30010001 1", "30010004 0", "30010005 2"}), callAgain("30010005"),
          untilMembers({"30010001 1", "30010004 0", "30010005 1"}), closeWindow(), untilIdle()},
         requested(R"(["30010001"])") + added(R"(["30010004","30010005"])", R"(["me","30010001"])") +
             added(R"(["30010005"])", R"(["me","30010001"])") + closed, {}},
        {"conference-controlled", "by the buttons of the list and of the window",
         {conference({"30010001", "30010006"}), untilMembers({"30010001 1", "30010006 1"}),
          clickMember("30010001", ROLE_MUTE_RECT), clickMember("30010001", ROLE_MUTE_RECT), press("btnMuteAll"),
          press("btnMuteAll"), clickMember("30010001", ROLE_REMOVE_RECT), untilMembers({"30010006 1"}), untilIdle()},
         requested(R"(["30010001","30010006"])") +
             QStringList{R"(ControlConf "mute" "30010001")", R"(ControlConf "unmute" "30010001")",
                         R"(ControlConf "mute" "non_moderator")", R"(ControlConf "unmute" "non_moderator")",
                         R"(ControlConf "kick" "30010001")"} + cDevicesOn, {}},
        {"conference-crossed", "the creator loses the right to call again",
         {conference({"30010001", "30010002"}), untilLogged("voipsdk:crossed", 1), callAgain("30010002"),
          untilMembers({"30010001 1", "30010002 5"}), closeWindow(), untilIdle()},
         requested(R"(["30010001","30010002"])") + closed, {}},
        {"conference-refused", "", {conference({"30010001"}), untilIdle()},
         requested(R"(["30010001"])") + cDevicesOn, {}},
    };
}

QList<Row> conferencesOfOthers()
{
    const QStringList joined = QStringList("AcceptConf") + cDevicesOn;
    return {
        {"conference-invited", "",
         {untilRinging("30010008"), answer(true), untilEnded(), membersWere({"30010008 1*", "30010001 1"}),
          untilIdle()},
         joined, invited("30010008")},
        {"conference-invited-untimed", "",
         {untilRinging("30010010"), answer(true), untilConnected(), noCreateTime(), untilEnded(),
          membersWere({"30010010 1*"}), untilIdle()},
         joined, invited("30010010")},
        {"conference-invited-twice", "the second invitation is not heard",
         {untilRinging("30010008"), answer(true), untilEnded(), membersWere({"30010008 1*"}), untilIdle()},
         joined, invited("30010008")},
        {"conference-rejected", "", {untilRinging("30010008"), answer(false), untilIdle()},
         QStringList("RejectConf") + cDevicesOn, invited("30010008")},
    };
}

QList<Row> lostCallProcess()
{
    const Step out = call("30010001");
    const QStringList again{R"(RegeditUser "me" "" "ticket" false)"};
    return {
        {"away-for-a-while", "", {untilLost(), untilBack()}, again, {}},
        {"reconnect", "", {out, untilConnected(), untilLost(), stillInCall(), untilBack(), stillInCall(), untilIdle()},
         cCalled + again + cDevicesOn, ended("30010001", 24, true, true)},
        {"killed-while-calling", "", {out, untilLost(), stillInCall(), press("btnCancelCall"), untilIdle()},
         cCalled, ended("30010001", 21, true, false), 9},
        {"killed-while-connected", "", {out, untilConnected(), untilLost(), stillInCall(), closeWindow(), untilIdle()},
         cCalled, ended("30010001", 24, true, true), 9},
        {"killed-while-ringing", "", {untilRinging("30010001"), untilLost(), stillInCall(), answer(false), untilIdle()},
         {}, rang("30010001") + ended("30010001", 26, false, false), 9},
    };
}

QList<Row> wireInput()
{
    const Step out = call("30010001");
    const QStringList hungUp = cCalled + cHungUp + cDevicesOn;
    return {
        {"garbage", "", {out, untilConnected(), press("HangUp"), untilIdle()},
         hungUp, ended("30010001", 24, true, true)},
        {"split-line", "", {out, untilConnected(), press("HangUp"), untilIdle()},
         hungUp, ended("30010001", 24, true, true)},
        {"two-lines-one-read", "", {out, untilIdle()}, cCalled + cDevicesOn, ended("30010001", 24, true, true)},
        {"same-line-twice", "", {untilLogged("voipsdk:apart", 2), untilLogged("voipsdk:joined", 1)}, {}, {}},
    };
}
// clang-format on

} // namespace

QList<Row> scenarioRows()
{
    return callsOut() + callsIn() + conferencesOfMyOwn() + conferencesOfOthers() + lostCallProcess() + wireInput();
}
