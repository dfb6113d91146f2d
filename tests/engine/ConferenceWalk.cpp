// What a walk around conferences does.

#include "engine/ConferenceWalk.h"

#include "fakes/Patience.h"
#include "model/VcardInfo.h"

#include <QTest>

namespace {

/// A member as a document of the conference `conf` names it; the name tells where it belongs.
QString memberOf(const QString &conf, int number)
{
    return conf + ':' + QString::number(number);
}

} // namespace

const QList<ConferenceWalk::Action> &ConferenceWalk::actions()
{
    static const QList<Action> s_actions{
        {20, &ConferenceWalk::update},  {12, &ConferenceWalk::left},          {8, &ConferenceWalk::invitation},
        {5, &ConferenceWalk::created},  {5, &ConferenceWalk::addResult},      {5, &ConferenceWalk::connected},
        {4, &ConferenceWalk::end},      {5, &ConferenceWalk::rejection},      {6, &ConferenceWalk::noise},
        {1, &ConferenceWalk::single},   {6, &ConferenceWalk::callConference}, {3, &ConferenceWalk::answer},
        {1, &ConferenceWalk::goOnline}, {3, &ConferenceWalk::card},           {6, &ConferenceWalk::pick},
        {10, &ConferenceWalk::member},  {3, &ConferenceWalk::muteAll},        {1, &ConferenceWalk::closeWindow},
        {1, &ConferenceWalk::timeout},  {1, &ConferenceWalk::loseChannel},
    };
    return s_actions;
}

/// Mostly the conference that is on, sometimes a neighbour of it or none.
QString ConferenceWalk::someConf()
{
    const int dice = upTo(20);
    if (dice == 0) {
        return {};
    }
    if (dice > 3 && !call().confId.isEmpty()) {
        return call().confId;
    }
    return "c" + QString::number(m_conf + (dice == 1 ? 1 : dice == 2 ? -1 : 0));
}

QString ConferenceWalk::someMember()
{
    const QStringList &members = call().memberList;
    if (!members.isEmpty() && upTo(4) != 0) {
        return members.at(upTo(members.size()));
    }
    return upTo(4) == 0 ? QString("me") : "h" + QString::number(upTo(8));
}

/// With repeats and with the own id, as a careless host would send them.
QStringList ConferenceWalk::someHostIds()
{
    QStringList ids;
    for (int left = upTo(5); left > 0; --left) {
        ids << (upTo(6) == 0 ? QString("me") : "h" + QString::number(upTo(8)));
    }
    return ids;
}

void ConferenceWalk::line(int code, const QString &content)
{
    last = QString::number(code) + ' ' + content;
    engine.manager->recevieVoipMessage(QString::fromUtf8(FakeCallProcess::line(code, content)));
}

void ConferenceWalk::document(Code code)
{
    const QString conf = someConf();
    QStringList members;
    for (int left = upTo(6); left > 0; --left) {
        members << (upTo(5) == 0 ? QString("me") : memberOf(conf, upTo(12)));
    }
    const QString list = members.isEmpty() ? QString() : R"(")" + members.join(R"(",")") + R"(")";
    const QString from = upTo(5) == 0 ? QString() : memberOf(conf, upTo(12));
    // Times of day differ by conference, so that a foreign one would show.
    const QString time = upTo(2) == 0 ? "0" : QString::number(1700000000000 + 1000 * conf.mid(1).toLongLong());
    const bool ours = !conf.isEmpty() && (call().confId.isEmpty() || call().confId == conf);
    if (ours) {
        m_confs.insert(conf);
        if (code != Code::IncomingConf) {
            m_connected = members;
        }
    }
    line(code, QString(R"({"content":{"confId":"%1","from":"%2","createTime":%3,"conventioneer":[%4]}})")
                   .arg(conf, from, time, list));
}

void ConferenceWalk::created()
{
    const int dice = upTo(10);
    if (dice == 0) {
        line(Code::ConfCreated);
        return;
    }
    const QString conf = dice == 1 ? QString() : someConf();
    m_confs.insert(conf);
    line(Code::ConfCreated, dice == 1 ? QString("no document") : QString(R"({"result":{"confId":"%1"}})").arg(conf));
}

void ConferenceWalk::addResult()
{
    line(Code::ConfAddResult,
         upTo(4) == 0 ? QString() : QString(R"({"status":1,"result":{"failedNums":["%1"]}})").arg(someMember()));
}

void ConferenceWalk::end()
{
    static const QList<Code> s_codes{Code::RejectRequest, Code::PeerCanceled,  Code::CallEnded,  Code::PeerHangup,
                                     Code::PeerHangupAlt, Code::PeerRejected,  Code::CallFailed, Code::PeerBusy,
                                     Code::CallFailedAlt, Code::CallFailedAlt2};
    if (upTo(4) == 0) {
        engine.manager->hangupVoipCall();
    } else {
        line(s_codes.at(upTo(s_codes.size())));
    }
}

void ConferenceWalk::rejection()
{
    line(upTo(2) == 0 ? Code::UserRejected : Code::ConfMemberRejected, upTo(8) == 0 ? QString("me") : someMember());
}

void ConferenceWalk::noise()
{
    static const QStringList s_contents{"",
                                        "{}",
                                        "[",
                                        R"({"content":{}})",
                                        R"({"content":{"confId":7}})",
                                        R"({"content":{"conventioneer":["zoe"],"from":"zoe"}})"};
    static const QList<int> s_codes{2, 6, 11, 12, 13, 14, 15, 16, 17, 26, 999};
    line(s_codes.at(upTo(s_codes.size())), s_contents.at(upTo(s_contents.size())));
}

void ConferenceWalk::single()
{
    if (upTo(2) == 0) {
        line(upTo(2) == 0 ? Code::IncomingCall : Code::IncomingCallAlt, "p1");
    } else {
        engine.manager->callSingleUser("p2", upTo(2) == 0);
    }
}

void ConferenceWalk::callConference()
{
    // Each refusal costs a message box, so that they are few.
    if (engine.manager->isExistCall() && upTo(10) != 0) {
        return;
    }
    const QStringList ids = someHostIds();
    if (!engine.manager->isExistCall() && engine.manager->m_bSocketConnected) {
        m_sentByHost = ids;
    }
    engine.manager->callConference(ids, upTo(2) == 0, "");
}

void ConferenceWalk::answer()
{
    engine.manager->responseVoipRequest(upTo(5) != 0);
}

void ConferenceWalk::goOnline()
{
    engine.manager->clientConnectStatus(upTo(2) == 0);
}

void ConferenceWalk::card()
{
    VcardInfo card;
    card.m_strNickName = "nick";
    engine.manager->updateUserInfo(EngineFixture::jid(someMember()), card);
}

void ConferenceWalk::pick()
{
    engine.host.membersToAdd = someHostIds();
    engine.manager->slot_AddConfMember();
}

void ConferenceWalk::member()
{
    const QString id = someMember();
    switch (upTo(3)) {
    case 0:
        // Taking the last member away leaves a conference without anybody, which is no end.
        m_isEnd = false;
        engine.manager->slot_RemoveConferenceMember(id);
        break;
    case 1:
        engine.manager->slot_MuteConferenceMember(id, upTo(2) == 0);
        break;
    default:
        engine.manager->slot_ReInviteConfUser(id);
        break;
    }
}

void ConferenceWalk::timeout()
{
    if (upTo(2) == 0) {
        engine.manager->slot_inviteCallTimeout();
    } else {
        engine.manager->slot_recevieCallTimeout();
    }
}

void ConferenceWalk::loseChannel()
{
    if (engine.manager->m_bSocketConnected) {
        engine.process.dropClient();
        QTRY_VERIFY_WITH_TIMEOUT(!engine.manager->m_bSocketConnected, cPatienceMs);
        // The reconnection comes when the walk says so.
        engine.manager->m_reconnectTimer.stop();
    } else {
        engine.manager->slot_ReConnectVoipSDK();
    }
}

QString ConferenceWalk::step()
{
    const CallData before = call();
    const bool existed = engine.manager->isExistCall();
    int weights = 0;
    for (const Action &action : actions()) {
        weights += action.weight;
    }
    int dice = upTo(weights);
    for (const Action &action : actions()) {
        dice -= action.weight;
        if (dice < 0) {
            last = "a command or a click";
            m_isEnd = true;
            (this->*action.act)();
            break;
        }
    }
    engine.host.events.clear();
    const bool ended = m_isEnd && existed && !engine.manager->isExistCall();
    if (ended) {
        noteEnd(before);
    }
    const QString fault = listFault();
    return fault.isEmpty() && ended ? endFault() : fault;
}
