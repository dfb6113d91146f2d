#include "HostMailbox.h"

#include "ContactBook.h"
#include "EventWords.h"

#include "plugin/BaseEvent.h"
#include "plugin/PluginIds.h"

#include <QDataStream>

namespace {

template <typename... T>
void read(const BaseEvent &event, T &...fields)
{
    QDataStream in(event.data);
    (in >> ... >> fields);
}

template <typename T>
void reply(BaseEvent &event, const T &value)
{
    event.data.clear();
    QDataStream out(&event.data, QIODevice::WriteOnly);
    out << value;
}

} // namespace

HostMailbox::HostMailbox(const ContactBook &book, QObject *parent) : QObject(parent), m_book(book) {}

void HostMailbox::customEvent(QEvent *event)
{
    struct Row
    {
        const QString &receiver;
        EMsgId msgId;
        void (HostMailbox::*handle)(BaseEvent &);
    };
    static const Row rows[] = {
        {sessionPluginId(), MSG_RECEVIE_VOIP_CALL, &HostMailbox::promptCall},
        {sessionPluginId(), MSG_CALL_FINISHED, &HostMailbox::writeRecord},
        {sessionPluginId(), MSG_CREATE_VOICE_CONFERENCE, &HostMailbox::createConference},
        {sessionPluginId(), MSG_ADD_CONFERENCE_MEMBER, &HostMailbox::pickMembers},
        {contactPluginId(), MSG_GET_FRIEND_INFO, &HostMailbox::findRecord},
        {contactPluginId(), MSG_IS_EXIST_FRIEND, &HostMailbox::testFriend},
        {vcardPluginId(), MSG_GET_STRANGER_SMALL_VCARD, &HostMailbox::fetchCards},
        {msgBoxPluginId(), MSG_CLOSE_AV_MSGBOX, &HostMailbox::closePrompt},
        {signListPluginId(), MSG_SHOW_SIGN_LIST, &HostMailbox::showSignature},
        {signListPluginId(), MSG_CLOSE_SIGN_LIST, &HostMailbox::hideSignature},
    };
    if (event->type() != QEvent::User)
        return;
    auto &message = static_cast<BaseEvent &>(*event);
    const QString words = EventWords::describe(message.msgId, message.data);
    const QByteArray question = message.data;
    for (const Row &row : rows) {
        if (row.msgId == message.msgId && row.receiver == message.receiverId)
            (this->*row.handle)(message);
    }
    const bool answered = message.data != question;
    emit eventReceived(message.msgId, words, answered ? EventWords::answer(message.msgId, message.data) : QString());
}

void HostMailbox::promptCall(BaseEvent &event)
{
    QString uid;
    bool conference = false;
    bool video = false;
    read(event, uid, conference, video);
    emit callIncoming(uid, conference, video);
}

void HostMailbox::writeRecord(BaseEvent &event)
{
    CallRecord record;
    qint32 result = 0;
    read(event, record.video, record.uid, result, record.caller, record.connected, record.seconds);
    record.result = result;
    record.endedAt = QDateTime::currentDateTime();
    emit callFinished(record);
}

void HostMailbox::createConference(BaseEvent &event)
{
    QStringList uids;
    read(event, uids);
    emit conferenceWanted(uids);
}

void HostMailbox::pickMembers(BaseEvent &event)
{
    QStringList present;
    read(event, present);
    reply(event, m_picker ? m_picker(present) : QStringList());
}

void HostMailbox::findRecord(BaseEvent &event)
{
    QString jid;
    read(event, jid);
    // The receiver copies the record through this address before the delivery returns.
    reply(event, qint64(reinterpret_cast<quintptr>(m_book.record(jid))));
}

void HostMailbox::testFriend(BaseEvent &event)
{
    QString jid;
    read(event, jid);
    reply(event, m_book.isFriend(jid));
}

void HostMailbox::fetchCards(BaseEvent &event)
{
    QStringList uids;
    read(event, uids);
    if (!uids.isEmpty())
        emit cardsWanted(uids);
}

void HostMailbox::closePrompt(BaseEvent &event)
{
    QString jid;
    read(event, jid);
    emit promptWithdrawn(ContactBook::uidOf(jid));
}

void HostMailbox::showSignature(BaseEvent &event)
{
    QString text;
    qint32 x = 0;
    qint32 y = 0;
    qint32 height = 0;
    read(event, text, x, y, height);
    emit signatureShown(text, x, y, height);
}

void HostMailbox::hideSignature(BaseEvent &)
{
    emit signatureHidden();
}
