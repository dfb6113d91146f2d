#pragma once

// The robots of the exchange: whom one can call and what then happens. Rows of robots/Robots.def. Values only.

#include <QString>

#include <array>

/// What a robot does when it is called.
enum class Reply
{
    Answers,
    Busy,
    Rejects,
    Silent, ///< never does anything
    Fails,  ///< the call to it cannot be set up
};

/// What a robot does of its own accord: the first three after a call that it rejected, the last after a conference
/// that it left.
enum class Return
{
    Nothing,
    Calls,          ///< places a single call
    Invites,        ///< invites to a conference
    InvitesUntimed, ///< the same without a creation time, and lets it hear of another conference
    Rejoins,        ///< joins the conference again
};

struct Robot
{
    const char *id;
    const char *name;
    Reply reply;
    int replyAfterMs;   ///< from the call to the reply
    int hangsUpAfterMs; ///< from the connection to the robot's hang-up; 0: never hangs up
    Return then;
    int thenAfterMs; ///< from the rejection to the robot's own call, or from leaving to joining again
};

/// Every robot, in the order of the table.
inline constexpr std::array cRobots{
#define ROBOT(word, id, name, reply, replyAfter, hangsUpAfter, then, thenAfter)                                        \
    Robot{id, name, Reply::reply, replyAfter, hangsUpAfter, Return::then, thenAfter},
#include "robots/Robots.def"
#undef ROBOT
};

/// How long a robot that calls or invites lets it ring before it gives up.
inline constexpr int cRobotPatienceMs = 30000;

/// The row of an id, null for an id that no robot has.
const Robot *findRobot(const QString &id);
