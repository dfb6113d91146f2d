#include "tour/TourSteps.h"

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "happenings/DebugChannel.h"
#include "happenings/HappeningsPanel.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "tour/TourCast.h"
#include "tour/TourConference.h"
#include "tour/TourHistory.h"
#include "tour/TourScript.h"
#include "tour/TourService.h"
#include "tour/TourSettings.h"
#include "tour/TourUsers.h"
#include "tour/TourWatch.h"
#include "traffic/CallRecord.h"

#include "plugin/EMsgId.h"

#include <QTreeView>

using namespace TourCast;
using Wire::Code;
using Wire::Command;

namespace {

// The texts of the windows, as a person sees them.
constexpr const char *cVoiceTitle = "语音通话";
constexpr const char *cCalling = "正在呼叫...";
constexpr const char *cConnected = "已接通";
constexpr const char *cNoService = "The call service cannot be reached.";
constexpr const char *cLineInUse = "You are in a call. End it first.";
constexpr const char *cNoProcess = "音频通话初始化失败，请尝试重启客户端解决";
constexpr const char *cSureToClose = "Do you want to end this call?";

QString param1(const char *strUid)
{
    return QStringLiteral("\"param1\":\"%1\"").arg(QLatin1String(strUid));
}

TourCheck onlyKnownWarnings()
{
    return {u("Qt has warned of nothing but what is known"), [] { return DebugChannel::warnings().isEmpty(); }};
}

using Steps = QList<TourStep>;

/// An action that always succeeds.
TourScript::Action done(const std::function<void()> &act)
{
    return [act] {
        act();
        return true;
    };
}

Steps signIn(const TourScript &s, const TourStage &stage)
{
    return {
        {u("The client has loaded the plug-in and not spoken to it yet"),
         {},
         {{QStringLiteral("it is %1").arg(stage.session.pluginWords()), [] { return true; }},
          {u("the user's local store is open"), [session = &stage.session] { return session->store().isOpen(); }},
          s.processes(0),
          {u("it has made no window"), [] { return WindowProbe::callWindow() == nullptr; }}}},
        {u("Sign in"),
         s.pressMain("btnOnline"),
         {s.asked(MSG_CLIENT_CONNECT_STATUS, u("connected=yes")), s.processes(1),
          s.command(Command::RegeditUser, param1(ContactBook::cOwnId)),
          s.command(Command::RegeditUser, u("\"param4\":false"))},
         cUsualLimitMs,
         u("demo-window"),
         s.mainWindow()},
        {u("Ask the plug-in whether there is a call"),
         done([session = &stage.session] { session->isExistCall(); }),
         {s.asked(MSG_IS_EXIST_CALL, u("call=no"))}},
    };
}

Steps unanswered(const TourScript &s, const char *strUid, const char *strTitle, Code code, const char *strMeaning,
                 int iResult)
{
    return {{u(strTitle),
             s.pressContact(strUid, "btnCall"),
             {s.command(Command::CallUser, param1(strUid)), s.shows("lblStatus", u(cCalling)), s.code(code, strMeaning),
              s.told(MSG_CLOSE_AV_MSGBOX), s.record(iResult, true, false), s.windowGone()}}};
}

Steps cancel(const TourScript &s)
{
    return {
        {u("Call Tom Baker, who never answers"),
         s.pressContact(silent, "btnCall"),
         {s.asked(MSG_CALL_SINGLE_USER), s.command(Command::CallUser, param1(silent)),
          s.shows("lblVoipTipMsg", u(cVoiceTitle)), s.shows("lblUserName", u("Tom Baker(Never answers)")),
          s.shows("lblStatus", u(cCalling))},
         cUsualLimitMs,
         u("call-outgoing"),
         s.callWindow()},
        {u("Cancel it"),
         s.pressCallWindow("btnCancelCall"),
         {s.command(Command::HangUpCall), s.record(resultCancelled, true, false), s.windowGone()}},
    };
}

Steps call(const TourScript &s, const char *strTitle, const QString &strPicture = QString())
{
    return {{u(strTitle),
             s.pressContact(answers, "btnCall"),
             {s.command(Command::CallUser, param1(answers)), s.code(Code::CallConnected, "connected"),
              s.shows("lblStatus", u(cConnected)), s.clockRuns()},
             cUsualLimitMs,
             strPicture,
             strPicture.isEmpty() ? TourScript::Window() : s.callWindow()}};
}

Steps hangUp(const TourScript &s, const char *strTitle)
{
    return {{u(strTitle),
             s.pressCallWindow("HangUp"),
             {s.command(Command::HangUpCall), s.order(Command::HangUpCall, Command::SetMicEnable),
              s.command(Command::SetSpeakerEnble, u("\"param1\":true")), s.record(resultHungUp, true, true),
              s.windowGone()}}};
}

Steps duringCall(const TourScript &s)
{
    return {
        {u("The demo with the call on the screen"),
         {},
         {s.shows("lblStatus", u(cConnected))},
         cUsualLimitMs,
         u("desktop"),
         {}},
        {u("Switch the microphone off"),
         s.pressCallWindow("btnMic"),
         {s.command(Command::SetMicEnable, u("\"param1\":false"))}},
        {u("Rest the mouse on Maria Silva's phone: its tip says why nobody can be called now"),
         s.hoverContact(busy, "btnCall"),
         {s.tipSays(u(cLineInUse))},
         cUsualLimitMs,
         u("second-call"),
         s.mainWindow()},
        {u("Take the mouse away; the call goes on"), s.leave(), {s.shows("lblStatus", u(cConnected))}},
    };
}

Steps video(const TourScript &s, const TourStage &stage)
{
    return {
        {u("Call 李雷 by video"),
         s.pressContact(answers, "btnVideo"),
         {s.command(Command::CallUser, u("\"param2\":true")), s.code(Code::CallConnected, "connected"),
          s.shows("lblVoipTipMsg", u("与李雷(Answers)(%1)通话中", answers)), s.clockRuns()},
         cUsualLimitMs,
         u("call-video"),
         s.callWindow()},
        {u("Ask the plug-in whether it is a video call: it always says no"),
         done([session = &stage.session] { session->isVideoCall(); }),
         {s.asked(MSG_IS_VIDEO_CALL, u("video=no"))}},
        {u("Close the call window: it asks first"),
         s.pressCallWindow("btnClose"),
         {s.boxSays(u(cSureToClose))},
         cUsualLimitMs,
         u("close-question"),
         s.messageBox()},
        {u("Confirm"),
         s.pressBox("acceptBtn"),
         {s.order(Command::SetMicEnable, Command::HangUpCall), s.told(MSG_CALL_FINISHED, u("video=yes")),
          s.record(resultHungUp, true, true), s.windowGone()}},
    };
}

Steps farEnd(const TourScript &s)
{
    return {
        {u("Call Anna Novak, who hangs up after a while"),
         s.pressContact(hangsUp, "btnCall"),
         {s.code(Code::CallConnected, "connected"), s.code(Code::PeerHangup, "hung up by the other side"),
          s.record(resultHungUp, true, true), s.windowGone()}},
    };
}

Steps callBack(const TourScript &s, const QString &strTitle, const QString &strPicture)
{
    return {{strTitle,
             s.pressContact(callsBack, "btnCall"),
             {s.told(MSG_GET_STRANGER_SMALL_VCARD, QLatin1String(callsBack)), s.asked(MSG_UPDATE_USER_INFO),
              s.shows("lblUserName", u("韩梅梅(Calls you back)")), s.code(Code::PeerRejected, "rejected"),
              s.record(resultRejected, true, false), s.code(Code::IncomingCall, "incoming call"),
              s.told(MSG_RECEVIE_VOIP_CALL), s.prompted(u("韩梅梅"))},
             cUsualLimitMs,
             strPicture,
             strPicture.isEmpty() ? TourScript::Window() : s.prompt()}};
}

Steps incoming(const TourScript &s)
{
    return callBack(
               s,
               u("Call the stranger %1: a card is fetched, the call rejected, and the stranger calls back", callsBack),
               u("incoming-prompt")) +
           Steps{
               {u("Accept"),
                s.pressPrompt("btnAccept"),
                {s.asked(MSG_RESPONSE_VOIP_REQUEST, u("accept=yes")), s.command(Command::AcceptCall), s.promptGone(),
                 s.shows("lblUserName", u("韩梅梅(Calls you back)")), s.code(Code::CallConnected, "connected"),
                 s.shows("lblStatus", u(cConnected)), s.clockRuns()},
                cUsualLimitMs,
                u("call-incoming"),
                s.callWindow()},
               {u("Wait for the other side to hang up"),
                {},
                {s.code(Code::PeerHangup, "hung up by the other side"), s.record(resultHungUp, false, true),
                 s.windowGone()}},
           } +
           callBack(s, u("Let the stranger call once more"), QString()) +
           Steps{{u("Reject"),
                  s.pressPrompt("btnReject"),
                  {s.asked(MSG_RESPONSE_VOIP_REQUEST, u("accept=no")), s.command(Command::RejectCall), s.promptGone(),
                   s.record(resultRejected, false, false), s.windowGone()}}};
}

/// The stranger is called behind the dialog, as no person could, so that the answer comes while it is open, however
/// slow the machine.
Steps overDialog(const TourScript &s, const TourStage &stage)
{
    const TourCheck asBefore = s.pickerSays("btnInvite", u("Invite (1)"));
    return {
        {u("Begin to pick people for a conference"),
         s.pressMain("btnConference"),
         {s.pickerSays("lblAsked", u("Whom to call together?"))}},
        {u("Pick Tom Baker"), s.pick({silent}), {asBefore}},
        {u("Let the stranger call while the dialog is open: the prompt stands over it"),
         done([session = &stage.session] { session->callUser(callsBack, false); }),
         {s.record(resultRejected, true, false), s.code(Code::IncomingCall, "incoming call"), s.prompted(u("韩梅梅")),
          asBefore},
         cUsualLimitMs,
         u("prompt-over-dialog"),
         {}},
        {u("Accept: the call is there, and the dialog stays as it was"),
         s.pressPrompt("btnAccept"),
         {s.asked(MSG_RESPONSE_VOIP_REQUEST, u("accept=yes")), s.command(Command::AcceptCall), s.promptGone(),
          s.code(Code::CallConnected, "connected"), s.clockRuns(), asBefore},
         cUsualLimitMs,
         u("answered-over-dialog"),
         {}},
        {u("Leave the dialog, and wait for the other side to hang up"),
         s.pressPicker("btnCancel"),
         {s.pickerGone(), s.code(Code::PeerHangup, "hung up by the other side"), s.record(resultHungUp, false, true),
          s.windowGone()}},
    };
}

Steps offline(const TourScript &s)
{
    return call(s, "Call 李雷 again") +
           Steps{
               {u("Lose the login during the call"),
                s.pressMain("btnOnline"),
                {s.asked(MSG_CLIENT_CONNECT_STATUS, u("connected=no")), s.order(Command::HangUpCall, Command::UnReg),
                 s.command(Command::UnReg, param1(ContactBook::cOwnId)), s.record(resultHungUp, true, true),
                 s.windowGone()}},
               {u("Sign in again"),
                s.pressMain("btnOnline"),
                {s.asked(MSG_CLIENT_CONNECT_STATUS, u("connected=yes")),
                 s.command(Command::RegeditUser, param1(ContactBook::cOwnId))}},
           };
}

Steps killed(const TourScript &s, const TourStage &stage)
{
    return call(s, "Call 李雷 once more") +
           Steps{
               {u("Kill the call process, and let none stay: the call stays on the screen and its clock runs on"),
                done([process = &stage.process] {
                    TourService::refuseToStart();
                    process->kill();
                }),
                {s.processes(0), s.shows("lblStatus", u(cConnected)), s.clockRuns(),
                 s.mainSays("btnOnline", u("No call service")), s.mainShows("CallServiceBar", true)}},
               {u("Hang up: the call is over although nobody hears of it"),
                s.pressCallWindow("HangUp"),
                {s.record(resultHungUp, true, true), s.windowGone()}},
               {u("Rest the mouse on 李雷's phone: its tip says that nobody can be called now"),
                s.hoverContact(answers, "btnCall"),
                {s.tipSays(u(cNoService))}},
               {u("A call that the client places all the same is refused by the plug-in"),
                done([session = &stage.session] { session->callUser(answers, false); }),
                {s.boxSays(u(cNoProcess))},
                cUsualLimitMs,
                u("message-no-process"),
                s.messageBox()},
               {u("Close the message"), s.pressBox("closeBtn"), {s.boxGone()}},
           } +
           TourService::steps(stage);
}

TourCheck onlyMatchesShown(const TourStage &stage)
{
    return {u("the panel shows the lines that hold the text and no other"), [window = &stage.window] {
                const auto *view = window->findChild<QTreeView *>(u("viewHappenings"));
                const auto *panel = window->findChild<HappeningsPanel *>();
                const int shown = view->model()->rowCount();
                return shown > 0 && shown < panel->model().rowCount();
            }};
}

Steps happenings(const TourScript &s, const TourStage &stage)
{
    return {
        {u("Look at what has happened so far"),
         s.pressMain("happeningsButton"),
         {s.mainShows("HappeningsPanel", true)},
         cUsualLimitMs,
         u("happenings"),
         s.mainWindow()},
        {u("Look for the conferences in it"),
         s.typeInto("editFilter", u("conf")),
         {onlyMatchesShown(stage)},
         cUsualLimitMs,
         u("happenings-conference"),
         s.mainWindow()},
        {u("Close that panel"), s.pressMain("happeningsButton"), {s.mainShows("HappeningsPanel", false)}},
    };
}

Steps leave(const TourScript &s, const TourStage &stage)
{
    return {{u("Close the client"),
             [window = &stage.window] { return window->close(); },
             {s.asked(MSG_EXIT_VOIP),
              {u("the plug-in has written the line quit"), [watch = &stage.watch] { return watch->quitLine(); }},
              s.processes(0),
              onlyKnownWarnings()}}};
}

} // namespace

QList<TourStep> tourSteps(const TourStage &stage)
{
    const TourScript s(stage);
    return signIn(s, stage) + searchSteps(stage) + cancel(s) +
           unanswered(s, busy, "Call Maria Silva, who is busy", Code::PeerBusy, "busy", resultBusy) +
           unanswered(s, rejects, "Call 王芳, who rejects", Code::PeerRejected, "rejected", resultRejected) +
           unanswered(s, fails, "Call 赵强: the call fails", Code::CallFailed, "failed", resultFailed) +
           call(s, "Call 李雷, who answers", u("call-voice")) + duringCall(s) + hangUp(s, "Hang up") + video(s, stage) +
           farEnd(s) + incoming(s) + overDialog(s, stage) + conferenceSteps(stage) + offline(s) + killed(s, stage) +
           call(s, "Call 李雷 over the new call process") + hangUp(s, "Hang up") + historySteps(stage) +
           happenings(s, stage) + settingsSteps(stage) + userSteps(stage) + leave(s, stage) + restartSteps(stage);
}
