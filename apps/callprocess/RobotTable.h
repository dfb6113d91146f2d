#pragma once

// The robots of the exchange, one row each: whom one can call and what then happens. Ids are plain user ids. A robot's
// answer to a call is also its answer to a conference. Values only.

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

// clang-format off
inline constexpr std::array<Robot, 10> ROBOTS{{
    // id         name               reply           after  hangs up  then                    after
    {"30010001", "robot-answers",    Reply::Answers, 1500,      0,    Return::Nothing,           0},
    {"30010002", "robot-busy",       Reply::Busy,    1000,      0,    Return::Nothing,           0},
    {"30010003", "robot-rejects",    Reply::Rejects, 2000,      0,    Return::Nothing,           0},
    {"30010004", "robot-never",      Reply::Silent,     0,      0,    Return::Nothing,           0},
    {"30010005", "robot-fails",      Reply::Fails,    500,      0,    Return::Nothing,           0},
    {"30010006", "robot-hangs-up",   Reply::Answers, 1500,  10000,    Return::Nothing,           0},
    {"30010007", "robot-calls-you",  Reply::Rejects, 1000,  20000,    Return::Calls,          3000},
    {"30010008", "robot-invites",    Reply::Rejects, 1000,  30000,    Return::Invites,        3000},
    {"30010009", "robot-comes-back", Reply::Answers, 2500,   6000,    Return::Rejoins,        4000},
    {"30010010", "robot-crosses",    Reply::Rejects, 1000,  30000,    Return::InvitesUntimed, 3000},
}};
// clang-format on

/// How long a robot that calls or invites lets it ring before it gives up.
inline constexpr int ROBOT_PATIENCE_MS = 30000;

/// The row of an id, null for an id that no robot has.
const Robot *findRobot(const QString &id);
