#pragma once

// The command numbers that stand in a BaseEvent. The enumeration belongs to the host; these are the commands that this
// plug-in reads or sends. The underlying type is fixed, so any other number of the host can be carried and compared.

#include <QtGlobal>

/// A command number between the host and its plug-ins.
enum EMsgId : qint32
{
    MSG_UPDATE_USER_INFO = 4105,         ///< in: a contact's card has changed
    MSG_CLIENT_CONNECT_STATUS = 4135,    ///< in: the host has logged in or lost its login
    MSG_GET_FRIEND_INFO = 4157,          ///< out, answered: the record of a jid
    MSG_GET_STRANGER_SMALL_VCARD = 4159, ///< out, queued: fetch the cards of unknown users
    MSG_SHOW_SIGN_LIST = 4267,           ///< out: show a signature card
    MSG_IS_EXIST_FRIEND = 4337,          ///< out, answered: whether a jid is a contact
    MSG_CLOSE_AV_MSGBOX = 4345,          ///< out: take away the prompt of a call
    MSG_CALL_SINGLE_USER = 4470,         ///< in: call one user
    MSG_CALL_FINISHED = 4478,            ///< out: a single call has ended
    MSG_IS_EXIST_CALL = 4491,            ///< in, answered: whether there is a call
    MSG_IS_VIDEO_CALL = 4492,            ///< in, answered: whether it is a video call
    MSG_CLOSE_SIGN_LIST = 4540,          ///< out: hide the signature card
    MSG_RECEVIE_VOIP_CALL = 4639,        ///< out: a call comes in, prompt the user
    MSG_RESPONSE_VOIP_REQUEST = 4732,    ///< in: the user's answer to the prompt
    MSG_CALL_CONFERENCE = 4733,          ///< in: start a conference
    MSG_CREATE_VOICE_CONFERENCE = 4734,  ///< out: let the user pick the members of a new conference
    MSG_ADD_CONFERENCE_MEMBER = 4735,    ///< out, answered: let the user pick further members
    MSG_SHOW_VOICE_CONF = 4736,          ///< in: show the conference centre
    MSG_EXIT_VOIP = 4763,                ///< in: the host is about to quit
};
