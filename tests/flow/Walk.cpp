#include "flow/Walk.h"

#include "fakes/Patience.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/VoipWidget.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QRegularExpression>

#include <numeric>
#include <utility>

namespace {

QString shown(const QString &text)
{
    return text;
}
QString shown(const QStringList &texts)
{
    return texts.isEmpty() ? QStringLiteral("nothing") : texts.join(", ");
}
QString shown(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/// A line of text when the two are not the same.
template <class Value>
QString difference(const char *what, const Value &engineHas, const Value &modelHas)
{
    if (engineHas == modelHas) {
        return {};
    }
    return QStringLiteral("%1: %2 instead of %3\n").arg(QLatin1String(what), shown(engineHas), shown(modelHas));
}

} // namespace

const QList<Walk::Action> &Walk::actions()
{
    static const QList<Action> s_actions{
        {60, &Walk::takeLine},  {6, &Walk::callSingleUser},    {4, &Walk::callConference},
        {5, &Walk::answer},     {2, &Walk::setOnline},         {3, &Walk::query},
        {4, &Walk::updateCard}, {1, &Walk::showCentre},        {1, &Walk::exit},
        {3, &Walk::hangUp},     {6, &Walk::closeWindow},       {4, &Walk::timeouts},
        {4, &Walk::addMembers}, {8, &Walk::changeMember},      {2, &Walk::muteAll},
        {4, &Walk::device},     {4, &Walk::loseOrFindChannel},
    };
    return s_actions;
}

Walk::Walk(quint32 seed) : noise(seed)
{
    // The ring has tests of its own, and a sound that starts and stops a thousand times takes its time.
    engine.settings.m_strCloseVoice = "1";
    engine.host.friendJids = {EngineFixture::jid("anna"), EngineFixture::jid("me")};
    m_card.m_strNickName = "Anna";
    manager().regeditVoipUser("me", QString(), "ticket");
    engine.takeJournal();
}

template <class... Fields>
QByteArray Walk::command(EMsgId id, const Fields &...fields)
{
    BaseEvent event(id, sessionPluginId(), voipPluginId(), false, packPayload(fields...));
    QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
    return event.data;
}

void Walk::step()
{
    static const int s_total = std::accumulate(actions().cbegin(), actions().cend(), 0,
                                               [](int sum, const Action &action) { return sum + action.weight; });
    int pick = noise.below(s_total);
    for (const Action &action : actions()) {
        pick -= action.weight;
        if (pick < 0) {
            return (this->*action.act)();
        }
    }
}

void Walk::takeLine()
{
    const QString line = noise.line();
    last = "line " + line;
    model.receiveLine(line);
    manager().recevieVoipMessage(line);
}

void Walk::callSingleUser()
{
    if (boxIsOpen) {
        return;
    }
    const QString uid = noise.uid();
    const bool video = noise.chance(2);
    last = "call " + uid;
    model.callSingleUser(uid, video);
    command(MSG_CALL_SINGLE_USER, video, uid);
}

void Walk::callConference()
{
    if (boxIsOpen) {
        return;
    }
    const QStringList uids = noise.uids();
    const bool flag = noise.chance(2);
    last = "conference " + uids.join('+');
    model.callConference(uids, flag, "talk");
    command(MSG_CALL_CONFERENCE, uids, QString("talk"), flag);
}

void Walk::answer()
{
    const bool accept = !noise.chance(3);
    last = accept ? "accept" : "reject";
    if (accept) {
        model.accept();
    } else {
        model.reject();
    }
    command(MSG_RESPONSE_VOIP_REQUEST, accept);
}

void Walk::setOnline()
{
    const bool online = noise.chance(2);
    last = online ? "online" : "offline";
    if (online) {
        model.online(QString(), "ticket");
    } else {
        model.offline();
    }
    command(MSG_CLIENT_CONNECT_STATUS, online);
}

void Walk::query()
{
    last = "query";
    m_answer = command(MSG_IS_EXIST_CALL) + command(MSG_IS_VIDEO_CALL);
}

void Walk::updateCard()
{
    last = "card";
    const QString jid = EngineFixture::jid(noise.uid());
    const quintptr address = noise.chance(8) ? 0 : reinterpret_cast<quintptr>(&m_card);
    command(MSG_UPDATE_USER_INFO, jid, static_cast<qint64>(address));
}

void Walk::showCentre()
{
    last = "show the centre";
    command(MSG_SHOW_VOICE_CONF);
}

void Walk::exit()
{
    last = "exit";
    const bool wasUp = model.channelUp;
    model.exit();
    command(MSG_EXIT_VOIP);
    if (wasUp) {
        holdReconnection();
    }
}

void Walk::hangUp()
{
    last = "hang up";
    model.hangUp();
    manager().slot_HangupCurrentCall();
}

void Walk::closeWindow()
{
    if (!manager().m_pVoipWidget->isVisible()) {
        return;
    }
    const bool cancel = noise.chance(2);
    last = cancel ? "cancel" : "close the window";
    if (cancel) {
        model.cancel();
        QMetaObject::invokeMethod(manager().m_pVoipWidget, "slot_CancelVoipCall");
    } else {
        model.closeWindow();
        manager().m_pVoipWidget->close();
    }
}

void Walk::timeouts()
{
    if (manager().m_inviteTimer.isActive() && noise.chance(2)) {
        last = "invite timeout";
        model.inviteTimeout();
        manager().slot_inviteCallTimeout();
    } else if (manager().m_recevieTimer.isActive()) {
        last = "receive timeout";
        model.recevieTimeout();
        manager().slot_recevieCallTimeout();
    }
}

void Walk::addMembers()
{
    engine.host.membersToAdd = noise.uids();
    last = "add " + engine.host.membersToAdd.join('+');
    model.addChosenMembers(engine.host.membersToAdd);
    manager().slot_AddConfMember();
}

void Walk::changeMember()
{
    const QString uid = noise.uid();
    const bool mute = noise.chance(2);
    switch (noise.below(3)) {
    case 0:
        last = "remove " + uid;
        model.removeMember(uid);
        manager().slot_RemoveConferenceMember(uid);
        break;
    case 1:
        last = "invite again " + uid;
        model.inviteAgain(uid);
        manager().slot_ReInviteConfUser(uid);
        break;
    default:
        last = "mute " + uid;
        model.control(mute ? "mute" : "unmute", uid);
        manager().slot_MuteConferenceMember(uid, mute);
        break;
    }
}

void Walk::muteAll()
{
    const bool mute = noise.chance(2);
    last = "mute all";
    model.control(mute ? "mute" : "unmute", "non_moderator");
    manager().slot_MuteAll(mute);
}

void Walk::device()
{
    const qlonglong volume = noise.below(200) - 100;
    last = "device";
    model.device("SetMicVolume " + QString::number(volume / 10));
    model.device("SetCamreraEnable false");
    manager().slot_SetMicVolume(volume);
    manager().slot_SetCameraEnable(false);
}

void Walk::loseOrFindChannel()
{
    if (model.channelUp) {
        last = "lose the channel";
        engine.process.dropClient();
        model.channelUp = manager().m_pVoipSocket && !manager().m_pVoipSocket->waitForDisconnected(cPatienceMs);
        holdReconnection();
    } else {
        last = "find the channel";
        model.channelUp = true;
        model.online(QString(), "ticket");
        manager().slot_ReConnectVoipSDK();
    }
}

/// A back-off that ran out during a step would send a line of its own. The step that lost the channel looks at it; from
/// then on it is the walk that reconnects.
void Walk::holdReconnection()
{
    if (!manager().m_reconnectTimer.isActive()) {
        last += ", and the back-off does not run";
    }
    manager().m_reconnectTimer.stop();
}

QString Walk::fault()
{
    QStringList journal = engine.takeJournal();
    if (!manager().m_pVoipSocket) {
        journal += engine.process.takeLastLines();
    }
    QString fault;
    fault += difference("call", shownCall(manager().m_callData), shownCall(model.call));
    fault += difference("a call exists", manager().isExistCall(), model.exists());
    fault += difference("invite timer", manager().m_inviteTimer.isActive(), model.inviteRuns);
    fault += difference("receive timer", manager().m_recevieTimer.isActive(), model.recevieRuns);
    fault += difference("window shows", manager().m_pVoipWidget->isVisible(), model.windowShows);
    fault += difference("channel", manager().m_bSocketConnected, model.channelUp);
    fault += difference("reconnect timer", manager().m_reconnectTimer.isActive(), false);
    fault += difference("said", journal, std::exchange(model.journal, {}));
    fault += difference("boxes", std::exchange(engine.boxes.texts, {}), std::exchange(model.boxes, {}));
    if (last == "query") {
        fault += difference("answered", m_answer == packPayload(model.exists(), false), true);
    }
    if (journal.filter(QRegularExpression("^4478 ")).size() > 1) {
        fault += "more than one record\n";
    }
    if (last.endsWith("does not run")) {
        fault += last;
    }
    engine.host.events.clear();
    return fault;
}
