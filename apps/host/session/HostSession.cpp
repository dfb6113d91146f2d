#include "session/HostSession.h"

#include "client/ContactBook.h"
#include "traffic/EventWords.h"

#include "model/SharedContext.h"
#include "model/SystemSetData.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"
#include "plugin/PluginInterface.h"
#include "store/DBConfInfo.h"

#include <QCoreApplication>
#include <QPluginLoader>

QString HostSession::loginDomain()
{
    return QStringLiteral("im.example.org");
}

HostSession::HostSession(ContactBook &book, QObject *parent)
    : QObject(parent), m_book(book), m_mailbox(book), m_calls(m_history, [this] {
          // Without the module nobody knows, and what the events have said goes on.
          QByteArray answer;
          return !askQuietly(MSG_IS_EXIST_CALL, &answer) || PayloadReader(answer).take<bool>();
      })
{
    connect(&m_mailbox, &HostMailbox::eventReceived, this,
            [this](int iMsgId, const QString &strWords, const QString &strAnswer, const QByteArray &payload,
                   const QByteArray &reply) { pass(true, iMsgId, strWords, strAnswer, payload, reply); });
    connect(&m_mailbox, &HostMailbox::cardsWanted, this, &HostSession::sendCards);
    connect(&m_calls, &CallWatch::began, this, &HostSession::meet);
    connect(&m_callService, &CallService::lost, this, &HostSession::loseCall);
    connect(&m_callService, &CallService::callConnected, &m_calls, &CallWatch::noteConnected);
}

HostSession::~HostSession()
{
    m_store.close();
    SharedContext::setCommonData(nullptr);
}

bool HostSession::start(const QString &strModule, QString *strError)
{
    m_context.signIn(m_book.ownUid(), loginDomain(), m_book);
    SharedContext::setCommonData(m_context.data());
    m_history.open(SystemSetData::instance()->m_strUserFolder, m_book.ownUid());
    openStore();
    for (const CallEntry &call : m_history.entries()) {
        meet(call);
    }

    QPluginLoader loader(strModule);
    QObject *root = loader.instance();
    auto *plugin = qobject_cast<PluginInterface *>(root);
    if (plugin == nullptr) {
        *strError = strModule + QStringLiteral(": ") +
                    (root == nullptr ? loader.errorString() : tr("not a plug-in of this client"));
        return false;
    }
    plugin->setCommonData(m_context.data());
    plugin->setSendEventHandle(&m_mailbox);
    m_pPlugin = plugin->getReceiveEventHandle();
    m_pPlugin->installEventFilter(this);
    m_strPlugin = plugin->getPluginName() + QLatin1Char(' ') + plugin->getPluginId();
    return true;
}

bool HostSession::openStore()
{
    const bool bOpen = m_store.open(m_book.ownUid(), SystemSetData::instance()->m_strMsgFilePath);
    if (bOpen) {
        m_history.adopt(DBConfInfo::getAllConfInfo());
    }
    return bOpen;
}

void HostSession::pass(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer,
                       const QByteArray &payload, const QByteArray &reply)
{
    m_calls.note(bFromPlugin, iMsgId, payload);
    emit eventPassed(bFromPlugin, iMsgId, strWords, strAnswer, payload, reply);
}

void HostSession::post(EMsgId msgId, const QByteArray &payload)
{
    if (m_pPlugin.isNull()) {
        return;
    }
    QCoreApplication::postEvent(m_pPlugin, new BaseEvent(msgId, sessionPluginId(), voipPluginId(), true, payload));
    // Behind the command, so that whoever looks again from the event loop finds it carried out.
    pass(false, msgId, EventWords::describe(msgId, payload), QString(), payload, QByteArray());
}

bool HostSession::ask(EMsgId msgId)
{
    QByteArray answer;
    if (!askQuietly(msgId, &answer)) {
        return false;
    }
    pass(false, msgId, EventWords::describe(msgId, QByteArray()), EventWords::answer(msgId, answer), QByteArray(),
         answer);
    return PayloadReader(answer).take<bool>();
}

bool HostSession::askQuietly(EMsgId msgId, QByteArray *pAnswer) const
{
    if (m_pPlugin.isNull() || !m_bSpoken) {
        return false;
    }
    BaseEvent event(msgId, sessionPluginId(), voipPluginId(), false);
    QCoreApplication::sendEvent(m_pPlugin, &event);
    *pAnswer = event.data;
    return true;
}

void HostSession::setOnline(bool bOnline)
{
    m_bOnline = bOnline;
    emit onlineChanged(bOnline);
    post(MSG_CLIENT_CONNECT_STATUS, packPayload(bOnline));
    m_callService.setWanted(bOnline && !m_pPlugin.isNull());
}

void HostSession::callUser(const QString &strUid, bool bVideo)
{
    m_book.takeNumber(strUid);
    post(MSG_CALL_SINGLE_USER, packPayload(bVideo, strUid));
}

void HostSession::answerCall(bool bAccept)
{
    post(MSG_RESPONSE_VOIP_REQUEST, packPayload(bAccept));
}

void HostSession::callConference(const ConferenceWish &wish)
{
    for (const QString &uid : wish.uids) {
        m_book.takeNumber(uid);
    }
    post(MSG_CALL_CONFERENCE, packPayload(wish.uids, wish.text, wish.flag));
}

void HostSession::showConferenceCentre()
{
    post(MSG_SHOW_VOICE_CONF, QByteArray());
}

void HostSession::sendCards(const QStringList &uids)
{
    // The card is named by the full jid: that is what the call window compares with.
    for (const QString &uid : uids) {
        m_book.learn(uid);
        const auto address = qint64(reinterpret_cast<quintptr>(m_book.card(uid)));
        post(MSG_UPDATE_USER_INFO, packPayload(m_book.jidOf(uid), address));
    }
}

void HostSession::meet(const CallEntry &call)
{
    if (!call.caller && m_book.meet(call.uid)) {
        emit strangerMet(call.uid);
    }
}

/// The plug-in keeps the call of a call process that has gone. One that still rings is rejected, so that the ring and
/// the prompt end; the window of any other stands until the user hangs up.
void HostSession::loseCall()
{
    const bool bRings = m_calls.isRinging();
    m_calls.lose();
    if (bRings) {
        answerCall(false);
    }
}

void HostSession::takeLanguage()
{
    m_book.takeLanguage();
    m_context.setContacts(m_book);
}

bool HostSession::isExistCall()
{
    return m_bSpoken && ask(MSG_IS_EXIST_CALL);
}

bool HostSession::isVideoCall()
{
    return ask(MSG_IS_VIDEO_CALL);
}

bool HostSession::eventFilter(QObject *watched, QEvent *event)
{
    m_bSpoken = m_bSpoken || event->type() == QEvent::User;
    return QObject::eventFilter(watched, event);
}

void HostSession::quit()
{
    if (m_bQuit || m_pPlugin.isNull()) {
        return;
    }
    m_bQuit = true;
    // What still waits for the plug-in could create its call manager now.
    QCoreApplication::removePostedEvents(m_pPlugin, QEvent::User);
    if (m_bSpoken) {
        takeLeave();
    }
    // The store closes last: the end of a conference still writes its record.
    m_calls.look();
    m_history.close();
    m_store.close();
}

void HostSession::takeLeave()
{
    const bool connected = CallChannel::peer() != 0;
    pass(false, MSG_EXIT_VOIP, EventWords::describe(MSG_EXIT_VOIP, QByteArray()), QString(), QByteArray(),
         QByteArray());
    // Delivered at once: the process may end before the queue is read again.
    BaseEvent event(MSG_EXIT_VOIP, sessionPluginId(), voipPluginId(), false);
    QCoreApplication::sendEvent(m_pPlugin, &event);
    m_callService.end(connected);
}
