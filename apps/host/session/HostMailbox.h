#pragma once

#include "traffic/CallRecord.h"

#include <QObject>
#include <QPoint>
#include <QStringList>

#include <functional>

class BaseEvent;
class ContactBook;

/// Receives what the call plug-in sends and plays the other plug-ins of the client: session, contact, vCard,
/// message-box and signature-list. Questions are answered within the delivery, by rewriting the event's payload.
///
/// GUI thread. It keeps no state; the contact book must outlive it. Synchronous events belong to their sender, posted
/// ones to Qt, so nothing is deleted here.
class HostMailbox : public QObject
{
    Q_OBJECT

public:
    explicit HostMailbox(const ContactBook &book, QObject *parent = nullptr);

    /// Picks people (user ids) for a conference; the argument holds those already in it. Runs modal.
    using MemberPicker = std::function<QStringList(const QStringList &)>;

    /// Sets the picker; without one nobody is picked.
    void setMemberPicker(MemberPicker picker) { m_picker = std::move(picker); }

signals:
    /// An event came; `strAnswer` is what a synchronous question was answered with, else empty. `payload` is what the
    /// event carried, `reply` what a question carried back.
    void eventReceived(int iMsgId, const QString &strWords, const QString &strAnswer, const QByteArray &payload,
                       const QByteArray &reply);
    /// A call rings: prompt the user.
    void callIncoming(const QString &strUid, bool bConference, bool bVideo);
    /// The prompt of the call with this user is to go away.
    void promptWithdrawn(const QString &strUid);
    /// A call has ended.
    void callFinished(const CallRecord &record);
    /// The cards of these users are wanted; they go out one by one as command 4105.
    void cardsWanted(const QStringList &uids);
    /// A new conference with these users, without oneself, and whom else the user picks is wanted.
    void conferenceWanted(const QStringList &uids);
    /// The signature card of `strJid` is to be shown beside the list that begins at `place` on the screen and is
    /// `iListWidth` wide, or hidden again.
    void signatureShown(const QString &strJid, const QPoint &place, int iListWidth);
    void signatureHidden();

protected:
    /// Runs the row of the event's receiver and command; anything else is only reported by eventReceived.
    void customEvent(QEvent *event) override;

private:
    void promptCall(BaseEvent &event);
    void writeRecord(BaseEvent &event);
    void createConference(BaseEvent &event);
    void pickMembers(BaseEvent &event);
    void findRecord(BaseEvent &event);
    void testFriend(BaseEvent &event);
    void fetchCards(BaseEvent &event);
    void closePrompt(BaseEvent &event);
    void showSignature(BaseEvent &event);
    void hideSignature(BaseEvent &event);

    const ContactBook &m_book;
    MemberPicker m_picker;
};
