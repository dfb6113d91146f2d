#include "tour/TourConference.h"

#include "client/ContactBook.h"
#include "tour/TourCast.h"
#include "tour/TourCentre.h"
#include "tour/TourScript.h"
#include "tour/TourWatch.h"

#include "model/MemberRoles.h"
#include "plugin/EMsgId.h"
#include "store/DBConfInfo.h"
#include "wire/Commands.h"

using namespace TourCast;
using Wire::Code;
using Wire::Command;

namespace {

using Steps = QList<TourStep>;

/// A list with this one text, as it stands on the wire.
QString only(const char *strUid)
{
    return u(R"(["%1"])", strUid);
}

/// What ControlConf says to or of this user, as it stands on the wire.
QString controlOf(const char *strWord, const char *strUid)
{
    return u(R"("param1":"%1","param2":"%2")").arg(QLatin1String(strWord), QLatin1String(strUid));
}

Steps start(const TourScript &s)
{
    return {
        {u("Start a conference: the client lets one pick people"),
         s.pressMain("btnConference"),
         {s.pickerSays("lblAsked", u("Whom to call together?"))}},
        {u("Pick six people"),
         s.pick({answers, busy, rejects, silent, fails, hangsUp}),
         {s.pickerSays("btnInvite", u("Invite (6)"))},
         cUsualLimitMs,
         u("conference-picker"),
         s.picker()},
        {u("Invite them: some join, one is busy, one rejects, one never answers, one cannot be reached"),
         s.pressPicker("btnInvite"),
         {s.pickerGone(), s.asked(MSG_CALL_CONFERENCE, u("members=[%1, ", answers) + QLatin1String(busy)),
          s.command(Command::RequestConference), s.memberCount(6), s.code(Code::ConfCreated, "conference created"),
          s.code(Code::CallConnected, "connected"), s.code(Code::ConfUpdate, "members"),
          s.code(Code::ConfAddResult, "result of adding"), s.member(fails, "赵强", ConferenceFailed),
          s.member(busy, "Maria Silva", ConferenceRejected), s.member(rejects, "王芳", ConferenceRejected),
          s.member(silent, "Tom Baker", ConferenceCalling), s.member(answers, "李雷", ConferenceConnected),
          s.member(hangsUp, "Anna Novak", ConferenceConnected)}},
        {u("Wait for Anna Novak to leave"),
         {},
         {s.code(Code::ConfMemberLeft, "a member has left"), s.member(hangsUp, "Anna Novak", ConferenceHungUp)},
         cUsualLimitMs,
         u("conference"),
         s.callWindow()},
    };
}

Steps control(const TourScript &s)
{
    return {
        {u("Mute everybody"),
         s.pressCallWindow("btnMuteAll"),
         {s.command(Command::ControlConf, controlOf(Wire::cMute, Wire::cEverybody)),
          s.happened(u("muted now: [%1]", answers))},
         cUsualLimitMs,
         u("conference-muted"),
         s.callWindow()},
        {u("Let 李雷 speak again, by the button of the row"),
         s.pressMember(answers, ROLE_MUTE_RECT),
         {s.command(Command::ControlConf, controlOf(Wire::cUnmute, answers)), s.happened(u("unmuted %1", answers))}},
        {u("Call Anna Novak again, by a double click on her row"),
         s.doubleClickMember(hangsUp),
         {s.command(Command::Add2Conference, only(hangsUp)), s.member(hangsUp, "Anna Novak", ConferenceCalling),
          s.code(Code::ConfAddResult, "result of adding"), s.member(hangsUp, "Anna Novak", ConferenceConnected)}},
        {u("Remove 李雷, by the button of the row"),
         s.pressMember(answers, ROLE_REMOVE_RECT),
         {s.command(Command::ControlConf, controlOf(Wire::cKick, answers)), s.happened(u("kicked %1", answers)),
          s.code(Code::ConfMemberLeft, "a member has left"), s.memberGone(answers, "李雷"), s.memberCount(5)}},
    };
}

Steps addMore(const TourScript &s)
{
    return {
        {u("Ask for more members: the plug-in asks the client, which lets one pick people"),
         s.pressCallWindow("btnAddMember"),
         {s.pickerSays("lblAsked", u("Already in the conference: Maria Silva, 王芳, Tom Baker, 赵强, Anna Novak"))},
         cUsualLimitMs,
         u("conference-more"),
         s.picker()},
        {u("Pick 林涛"), s.pick({comesBack}), {s.pickerSays("btnInvite", u("Invite (1)"))}},
        {u("Invite: the picker's answer goes back within the question"),
         s.pressPicker("btnInvite"),
         {s.pickerGone(), s.told(MSG_ADD_CONFERENCE_MEMBER, u("users=[%1]", comesBack)),
          s.command(Command::Add2Conference, only(comesBack)), s.memberCount(6),
          s.member(comesBack, "林涛", ConferenceConnected)}},
    };
}

/// The newest record of the user's store: ids grow with time.
ConfInfoData newestRecord()
{
    return DBConfInfo::getAllConfInfo().value(0);
}

bool sayRecords()
{
    const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
    for (const ConfInfoData &record : records) {
        TourWatch::say(QStringLiteral("        store               conference %1 of %2, created %3, %4 s, %5: %6")
                           .arg(record.m_strConfID, record.m_strCreatUserID, record.m_strCreatTime,
                                record.m_strCallTime,
                                record.m_bIsConnect ? QStringLiteral("connected") : QStringLiteral("not connected"),
                                QStringList(record.m_listMember).join(QLatin1Char(','))));
    }
    return true;
}

Steps stored(const char *strTitle, const QString &strCreator, const QStringList &members)
{
    return {{u(strTitle),
             sayRecords,
             {{u("the user's store has the record of a connected conference of %1 with %2")
                   .arg(strCreator, members.join(QLatin1Char(','))),
               [strCreator, members] {
                   const ConfInfoData record = newestRecord();
                   return !record.m_strConfID.isEmpty() && record.m_strCreatUserID == strCreator &&
                          record.m_bIsConnect && record.m_strCallTime.toInt() > 0 && !record.m_strCreatTime.isEmpty() &&
                          record.m_listMember == members;
               }}}}};
}

Steps end(const TourScript &s)
{
    return Steps{{u("Hang up: the conference is over for this side"),
                  s.pressCallWindow("HangUp"),
                  {s.command(Command::HangupConf), s.windowGone()}}} +
           stored("Look into the user's store", QLatin1String(ContactBook::cOwnId),
                  {busy, rejects, silent, fails, hangsUp, QLatin1String(ContactBook::cOwnId), comesBack});
}

Steps invited(const TourScript &s)
{
    return Steps{
               {u("Call Ivan Petrov, who rejects and invites to a conference of his own"),
                s.pressContact(invites, "btnCall"),
                {s.code(Code::PeerRejected, "rejected"), s.code(Code::IncomingConf, "invitation"),
                 s.told(MSG_RECEVIE_VOIP_CALL, u("conference=yes")), s.prompted(u("Ivan Petrov"))}},
               {u("Accept"),
                s.pressPrompt("btnAccept"),
                {s.command(Command::AcceptConf), s.promptGone(), s.code(Code::CallConnected, "connected"),
                 s.member(invites, "Ivan Petrov", ConferenceConnected), s.member(answers, "李雷", ConferenceConnected),
                 s.clockRuns()},
                cUsualLimitMs,
                u("conference-invited"),
                s.callWindow()},
               {u("Wait for Ivan Petrov to end it"), {}, {s.code(Code::CallEnded, "ended"), s.windowGone()}},
           } +
           stored("Look into the user's store again", invites, {invites, QLatin1String(ContactBook::cOwnId), answers});
}

Steps refused(const TourScript &s)
{
    return {
        {u("Start a conference once more"), s.pressMain("btnConference"), {s.pickerSays("btnInvite", u("Invite"))}},
        {u("Pick nobody but 赵强, who cannot be reached"),
         s.pick({fails}),
         {s.pickerSays("btnInvite", u("Invite (1)"))}},
        {u("Invite: there is no conference"),
         s.pressPicker("btnInvite"),
         {s.pickerGone(), s.command(Command::RequestConference, only(fails)),
          s.code(Code::ConfCreated, "no conference"), s.windowGone()}},
    };
}

} // namespace

QList<TourStep> conferenceSteps(const TourStage &stage)
{
    const TourScript s(stage);
    return start(s) + control(s) + addMore(s) + end(s) + invited(s) + centreSteps(stage) + refused(s);
}
