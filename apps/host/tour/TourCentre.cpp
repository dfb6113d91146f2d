#include "tour/TourCentre.h"

#include "client/ContactBook.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include "model/MemberRoles.h"
#include "plugin/EMsgId.h"
#include "store/DBConfInfo.h"

#include <algorithm>
#include <memory>

using namespace TourCast;
using Wire::Code;
using Wire::Command;

namespace {

using Steps = QList<TourStep>;

constexpr const char *cAgain = "再次发起";
constexpr const char *cRemove = "删除";

/// The ids of the conferences in the user's store, newest first.
QStringList storedIds()
{
    QStringList ids;
    const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
    std::transform(records.begin(), records.end(), std::back_inserter(ids),
                   [](const ConfInfoData &record) { return record.m_strConfID; });
    return ids;
}

Steps list(const TourScript &s)
{
    return {
        {u("Open the conference centre"),
         s.pressMain("btnCentre"),
         {s.asked(MSG_SHOW_VOICE_CONF), s.centreShows("lblVoipTipMsg", u("语音会议")), s.recordCount(2),
          s.recordHas(ContactBook::cOwnId, ROLE_HEAD_RECT, u("the own head"))}},
        {u("Rest the mouse on the creator's head: the plug-in asks the client for the signature card"),
         s.hoverRecordHead(invites),
         {s.told(MSG_SHOW_SIGN_LIST, QLatin1String(invites)), s.card("lblName", u("Ivan Petrov")),
          s.card("lblSignature", u("One meeting a day keeps the mail away"))},
         cUsualLimitMs,
         u("centre-card"),
         {}},
        {u("Take the mouse away: the card goes"), s.leave(), {s.told(MSG_CLOSE_SIGN_LIST), s.cardGone()}},
        {u("Move over the own conference: its row shows the button for the details"),
         s.hoverRecord(ContactBook::cOwnId),
         {s.recordHas(ContactBook::cOwnId, ROLE_REMOVE_RECT, u("the button for the details"))},
         cUsualLimitMs,
         u("centre-list"),
         s.centre()},
    };
}

Steps detail(const TourScript &s)
{
    return {
        {u("Click on it"),
         s.pressRecord(ContactBook::cOwnId, ROLE_REMOVE_RECT),
         {s.centreShows("CreatName", u("小明")), s.centreShows("lblCreateTime", u("【语音会议】")),
          s.centreShows("lblTableViewTitle", u("参与人员")), s.detailCount(7)},
         cUsualLimitMs,
         u("centre-detail"),
         s.centre()},
        {u("Rest the mouse on the head of 林涛"),
         s.hoverDetailHead(comesBack),
         {s.told(MSG_SHOW_SIGN_LIST, QLatin1String(comesBack)), s.card("lblName", u("林涛"))}},
        {u("Take the mouse away"), s.leave(), {s.told(MSG_CLOSE_SIGN_LIST), s.cardGone()}},
        {u("Go back to the list"), s.pressCentre("backBtn"), {s.recordCount(2)}},
    };
}

/// Asks for the own conference once more, by the menu of its row.
Steps askAgain(const TourScript &s, const QString &strPicture)
{
    return {
        {u("Press the right button on the own conference"),
         s.rightPressRecord(ContactBook::cOwnId),
         {s.menuOffers({u(cAgain), u(cRemove)})},
         cUsualLimitMs,
         strPicture,
         strPicture.isEmpty() ? TourScript::Window() : s.menu()},
        {u("Choose to call it again: the client asks who shall be called, without oneself"),
         s.choose(cAgain),
         {s.told(MSG_CREATE_VOICE_CONFERENCE, QLatin1String(ContactBook::cOwnId)),
          s.pickerSays("btnInvite", u("Invite (6)"))}},
    };
}

Steps callAgain(const TourScript &s)
{
    return askAgain(s, u("centre-menu")) +
           Steps{{u("Decline: nothing happens"), s.pressPicker("btnCancel"), {s.pickerGone(), s.recordCount(2)}}} +
           askAgain(s, QString()) +
           Steps{
               {u("Invite them: the conference runs once more"),
                s.pressPicker("btnInvite"),
                {s.pickerGone(), s.asked(MSG_CALL_CONFERENCE), s.command(Command::RequestConference), s.memberCount(6),
                 s.code(Code::CallConnected, "connected"), s.member(busy, "Maria Silva", ConferenceRejected),
                 s.member(hangsUp, "Anna Novak", ConferenceConnected), s.clockRuns()}},
               {u("Hang up: the centre, still open, has the new conference on top"),
                s.pressCallWindow("HangUp"),
                {s.command(Command::HangupConf), s.windowGone(), s.recordCount(3)}},
           };
}

Steps removeNewest(const TourScript &s)
{
    // What the store held before is known only when the tour has come here.
    const auto before = std::make_shared<QStringList>();
    const TourStep look{u("Look into the user's store"),
                        [before] {
                            *before = storedIds();
                            return true;
                        },
                        {{u("it has three conferences"), [before] { return before->size() == 3; }}}};
    const TourCheck removed{u("the user's store has lost that conference and kept the others"),
                            [before] { return storedIds() == before->mid(1); }};
    return {
        look,
        {u("Press the right button on the newest conference"),
         s.rightPressRecord(ContactBook::cOwnId),
         {s.menuOffers({u(cAgain), u(cRemove)})}},
        {u("Delete it"), s.choose(cRemove), {s.recordCount(2), removed}},
    };
}

Steps startAndClose(const TourScript &s)
{
    return {
        {u("Ask the centre for a new conference: the client lets one pick people"),
         s.pressCentre("creatConferenceBtn"),
         {s.told(MSG_CREATE_VOICE_CONFERENCE, u("users=[]")), s.pickerSays("lblAsked", u("Whom to call together?"))}},
        {u("Decline"), s.pressPicker("btnCancel"), {s.pickerGone()}},
        {u("Close the centre"), s.pressCentre("btnClose"), {s.centreGone()}},
        {u("Open it once more: it shows what the store has"), s.pressMain("btnCentre"), {s.recordCount(2)}},
        {u("Close it"), s.pressCentre("btnClose"), {s.centreGone()}},
    };
}

} // namespace

QList<TourStep> centreSteps(const TourStage &stage)
{
    const TourScript s(stage);
    return list(s) + detail(s) + callAgain(s) + removeNewest(s) + startAndClose(s);
}
