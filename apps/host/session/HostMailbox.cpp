#include "session/HostMailbox.h"

#include "client/ContactBook.h"
#include "traffic/EventWords.h"

#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/HostEvents.h"
#include "plugin/PluginIds.h"

namespace {

/// Rewrites the payload: that is how a question is answered.
template <typename Value>
void reply(BaseEvent &event, const Value &value)
{
    event.data = packPayload(value);
}

} // namespace

HostMailbox::HostMailbox(const ContactBook &book, QObject *parent) : QObject(parent), m_book(book) {}

void HostMailbox::customEvent(QEvent *event)
{
    struct Row
    {
        const QString &(*receiver)();
        EMsgId msgId;
        void (HostMailbox::*handle)(BaseEvent &);
    };
    static constexpr Row rows[] = {
        {sessionPluginId, MSG_RECEVIE_VOIP_CALL, &HostMailbox::promptCall},
        {sessionPluginId, MSG_CALL_FINISHED, &HostMailbox::writeRecord},
        {sessionPluginId, MSG_CREATE_VOICE_CONFERENCE, &HostMailbox::createConference},
        {sessionPluginId, MSG_ADD_CONFERENCE_MEMBER, &HostMailbox::pickMembers},
        {contactPluginId, MSG_GET_FRIEND_INFO, &HostMailbox::findRecord},
        {contactPluginId, MSG_IS_EXIST_FRIEND, &HostMailbox::testFriend},
        {vcardPluginId, MSG_GET_STRANGER_SMALL_VCARD, &HostMailbox::fetchCards},
        {msgBoxPluginId, MSG_CLOSE_AV_MSGBOX, &HostMailbox::closePrompt},
        {signListPluginId, MSG_SHOW_SIGN_LIST, &HostMailbox::showSignature},
        {signListPluginId, MSG_CLOSE_SIGN_LIST, &HostMailbox::hideSignature},
    };
    static_assert(tellOfEveryEvent(rows, EventWay::Request), "a request that nobody takes");
    if (event->type() != QEvent::User) {
        return;
    }
    auto &message = static_cast<BaseEvent &>(*event);
    const QString words = EventWords::describe(message.msgId, message.data);
    // A question is reported together with its answer, anything else before what it leads to.
    const QByteArray payload = message.data;
    const bool question = EventWords::isQuestion(message.msgId);
    if (!question) {
        emit eventReceived(message.msgId, words, QString(), payload, QByteArray());
    }
    for (const Row &row : rows) {
        if (row.msgId == message.msgId && row.receiver() == message.receiverId) {
            (this->*row.handle)(message);
        }
    }
    if (question) {
        emit eventReceived(message.msgId, words, EventWords::answer(message.msgId, message.data), payload,
                           message.data);
    }
}

void HostMailbox::promptCall(BaseEvent &event)
{
    PayloadReader in(event.data);
    const auto uid = in.take<QString>();
    const auto conference = in.take<bool>();
    const auto video = in.take<bool>();
    emit callIncoming(uid, conference, video);
}

void HostMailbox::writeRecord(BaseEvent &event)
{
    PayloadReader in(event.data);
    CallRecord record;
    record.video = in.take<bool>();
    record.uid = in.take<QString>();
    record.result = in.take<qint32>();
    record.caller = in.take<bool>();
    record.connected = in.take<bool>();
    record.seconds = in.take<qint64>();
    record.endedAt = QDateTime::currentDateTime();
    emit callFinished(record);
}

void HostMailbox::createConference(BaseEvent &event)
{
    // A conference that is called again names everybody by jid, the own user too, who calls and is not called.
    QStringList uids;
    const QStringList asked = PayloadReader(event.data).takeTexts();
    for (const QString &jid : asked) {
        uids << ContactBook::uidOf(jid);
    }
    uids.removeAll(m_book.ownUid());
    uids.removeAll(QString());
    uids.removeDuplicates();
    emit conferenceWanted(uids);
}

void HostMailbox::pickMembers(BaseEvent &event)
{
    const QStringList present = PayloadReader(event.data).takeTexts();
    reply(event, m_picker ? m_picker(present) : QStringList());
}

void HostMailbox::findRecord(BaseEvent &event)
{
    const auto jid = PayloadReader(event.data).take<QString>();
    // The sender copies the record through this address before the delivery returns.
    reply(event, qint64(reinterpret_cast<quintptr>(m_book.record(jid))));
}

void HostMailbox::testFriend(BaseEvent &event)
{
    reply(event, m_book.isFriend(PayloadReader(event.data).take<QString>()));
}

void HostMailbox::fetchCards(BaseEvent &event)
{
    const QStringList uids = PayloadReader(event.data).takeTexts();
    if (!uids.isEmpty()) {
        emit cardsWanted(uids);
    }
}

void HostMailbox::closePrompt(BaseEvent &event)
{
    emit promptWithdrawn(ContactBook::uidOf(PayloadReader(event.data).take<QString>()));
}

void HostMailbox::showSignature(BaseEvent &event)
{
    PayloadReader in(event.data);
    const auto text = in.take<QString>();
    const auto x = in.take<qint32>();
    const auto y = in.take<qint32>();
    // The field is there for a height; the lists fill it with their width.
    const auto listWidth = in.take<qint32>();
    emit signatureShown(text, {x, y}, listWidth);
}

void HostMailbox::hideSignature(BaseEvent &)
{
    emit signatureHidden();
}
