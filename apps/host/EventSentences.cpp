#include "EventSentences.h"

#include "EventWords.h"

#include <QCoreApplication>

namespace {

constexpr const char *context = "EventSentences";

// The values are the fields of the payload in stream order, then those of the answer.
struct SentenceRow
{
    EMsgId msgId;
    SentenceForm form;
};

constexpr const char *yes = QT_TRANSLATE_NOOP("EventSentences", "yes");
constexpr const char *no = QT_TRANSLATE_NOOP("EventSentences", "no");
constexpr const char *withPicture = QT_TRANSLATE_NOOP("EventSentences", "with picture");
constexpr const char *soundOnly = QT_TRANSLATE_NOOP("EventSentences", "with sound only");

constexpr SentenceRow rows[] = {
    {MSG_UPDATE_USER_INFO, {QT_TRANSLATE_NOOP("EventSentences", "the client gives the plug-in the card of %1")}},
    {MSG_CLIENT_CONNECT_STATUS,
     {QT_TRANSLATE_NOOP("EventSentences", "the client tells the plug-in that the user is %1"),
      {1, QT_TRANSLATE_NOOP("EventSentences", "signed in"), QT_TRANSLATE_NOOP("EventSentences", "signed out")}}},
    {MSG_GET_FRIEND_INFO,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks who %1 is: %2"),
      {2, QT_TRANSLATE_NOOP("EventSentences", "here is the record"),
       QT_TRANSLATE_NOOP("EventSentences", "there is no record")}}},
    {MSG_GET_STRANGER_SMALL_VCARD, {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks for the cards of %1")}},
    {MSG_SHOW_SIGN_LIST,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks to show the signature card of %1 at %2, %3")}},
    {MSG_IS_EXIST_FRIEND,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks whether %1 is a contact: %2"), {2, yes, no}}},
    {MSG_CLOSE_AV_MSGBOX,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks to take away the prompt of the call with %1")}},
    {MSG_CALL_SINGLE_USER,
     {QT_TRANSLATE_NOOP("EventSentences", "the client asks the plug-in to call %2 %1"), {1, withPicture, soundOnly}}},
    {MSG_CALL_FINISHED,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in reports the end of the call with %2: %3; %4, %5, %6 s"),
      {4, QT_TRANSLATE_NOOP("EventSentences", "called by this side"),
       QT_TRANSLATE_NOOP("EventSentences", "called by the other side")},
      {5, QT_TRANSLATE_NOOP("EventSentences", "connected"), QT_TRANSLATE_NOOP("EventSentences", "never connected")}}},
    {MSG_IS_EXIST_CALL,
     {QT_TRANSLATE_NOOP("EventSentences", "the client asks whether there is a call: %1"), {1, yes, no}}},
    {MSG_IS_VIDEO_CALL,
     {QT_TRANSLATE_NOOP("EventSentences", "the client asks whether the call has a picture: %1"), {1, yes, no}}},
    {MSG_CLOSE_SIGN_LIST, {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks to hide the signature card")}},
    {MSG_RECEVIE_VOIP_CALL,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in reports that %1 %2, %3"),
      {2, QT_TRANSLATE_NOOP("EventSentences", "invites to a conference"), QT_TRANSLATE_NOOP("EventSentences", "calls")},
      {3, withPicture, soundOnly}}},
    {MSG_RESPONSE_VOIP_REQUEST,
     {QT_TRANSLATE_NOOP("EventSentences", "the client tells the plug-in that the user %1 the call"),
      {1, QT_TRANSLATE_NOOP("EventSentences", "takes"), QT_TRANSLATE_NOOP("EventSentences", "rejects")}}},
    {MSG_CALL_CONFERENCE,
     {QT_TRANSLATE_NOOP("EventSentences", "the client asks the plug-in to start a conference with %1")}},
    {MSG_CREATE_VOICE_CONFERENCE,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks to pick people for a conference, to begin with %1")}},
    {MSG_ADD_CONFERENCE_MEMBER,
     {QT_TRANSLATE_NOOP("EventSentences", "the plug-in asks whom to add to the conference of %1: %2")}},
    {MSG_SHOW_VOICE_CONF, {QT_TRANSLATE_NOOP("EventSentences", "the client asks for the conference centre")}},
    {MSG_EXIT_VOIP, {QT_TRANSLATE_NOOP("EventSentences", "the client tells the plug-in that it quits")}},
};

constexpr SentenceForm unknownForm = {
    QT_TRANSLATE_NOOP("EventSentences", "a command that is not in the contract, with %1 bytes of payload")};

const SentenceForm *formOf(EMsgId msgId)
{
    for (const SentenceRow &row : rows) {
        if (row.msgId == msgId) {
            return &row.form;
        }
    }
    return nullptr;
}

} // namespace

Sentence EventSentences::say(EMsgId msgId, const QByteArray &payload, const QByteArray &reply)
{
    const SentenceForm *form = formOf(msgId);
    Sentence sentence = form == nullptr ? Sentence(context, unknownForm, {payload.size()})
                                        : Sentence(context, *form, EventWords::values(msgId, payload, reply));
    sentence.setNumber(msgId);
    return sentence;
}

bool EventSentences::isKnown(EMsgId msgId)
{
    return formOf(msgId) != nullptr;
}

int EventSentences::count()
{
    return int(std::size(rows));
}
