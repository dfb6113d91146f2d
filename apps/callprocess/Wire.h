#pragma once

// The two vocabularies of the wire as the call process sees them: the commands that come in and the notifications that
// go out, each one line of compact JSON ended by a line feed, besides the plain line "quit". The catalogues are rows;
// docs/wire-protocol.md tells them in words. Values only, no thread of their own.

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <array>
#include <optional>
#include <string_view>

/// A notification's number on the wire.
enum class Code : int
{
    IncomingCall = 0,
    IncomingCallAlt = 1,
    IncomingConf = 2,
    RejectRequest = 3,
    PeerCanceled = 4,
    UserRejected = 5,
    Open6 = 6,
    CallEnded = 7,
    PeerHangup = 8,
    PeerHangupAlt = 9,
    PeerRejected = 10,
    Open11 = 11,
    ConfUpdate = 12,
    ConfMemberLeft = 13,
    Open14 = 14,
    Open15 = 15,
    Open16 = 16,
    SdkFlag = 17,
    CallConnected = 18,
    CallFailed = 19,
    ConfCreated = 20,
    ConfAddResult = 21,
    PeerBusy = 22,
    CallFailedAlt = 23,
    CallFailedAlt2 = 24,
    ConfMemberRejected = 25,
    SdkLog = 999,
};

/// One row of the notifications.
struct NotificationRow
{
    Code code;
    const char *name; ///< the name used in documents and messages; empty for a code without one
};

// clang-format off
/// Every notification that a call process sends, in number order.
inline constexpr std::array<NotificationRow, 27> NOTIFICATIONS{{
    {Code::IncomingCall,       "IncomingCall"},
    {Code::IncomingCallAlt,    "IncomingCallAlt"},
    {Code::IncomingConf,       "IncomingConf"},
    {Code::RejectRequest,      "RejectRequest"},
    {Code::PeerCanceled,       "PeerCanceled"},
    {Code::UserRejected,       "UserRejected"},
    {Code::Open6,              ""},
    {Code::CallEnded,          "CallEnded"},
    {Code::PeerHangup,         "PeerHangup"},
    {Code::PeerHangupAlt,      "PeerHangupAlt"},
    {Code::PeerRejected,       "PeerRejected"},
    {Code::Open11,             ""},
    {Code::ConfUpdate,         "ConfUpdate"},
    {Code::ConfMemberLeft,     "ConfMemberLeft"},
    {Code::Open14,             ""},
    {Code::Open15,             ""},
    {Code::Open16,             ""},
    {Code::SdkFlag,            "SdkFlag"},
    {Code::CallConnected,      "CallConnected"},
    {Code::CallFailed,         "CallFailed"},
    {Code::ConfCreated,        "ConfCreated"},
    {Code::ConfAddResult,      "ConfAddResult"},
    {Code::PeerBusy,           "PeerBusy"},
    {Code::CallFailedAlt,      "CallFailedAlt"},
    {Code::CallFailedAlt2,     "CallFailedAlt2"},
    {Code::ConfMemberRejected, "ConfMemberRejected"},
    {Code::SdkLog,             "SdkLog"},
}};
// clang-format on

/// One row of the commands. `parameters` has one letter for each of param1, param2, ...: s text, b bool, i integer,
/// a array of texts or null.
struct CommandRow
{
    const char *name;
    const char *parameters;
};

// clang-format off
/// Every command that the plug-in sends. The spellings are the wire's own, "SetSpeakerEnble" and "SetCamreraEnable"
/// included.
inline constexpr std::array<CommandRow, 17> COMMANDS{{
    {"RegeditUser",       "sssb"},
    {"UnReg",             "s"},
    {"CallUser",          "sb"},
    {"RequestConference", "sabs"},
    {"Add2Conference",    "assbsa"},
    {"AcceptCall",        ""},
    {"AcceptConf",        ""},
    {"RejectCall",        ""},
    {"RejectConf",        ""},
    {"HangUpCall",        ""},
    {"HangupConf",        ""},
    {"ControlConf",       "ss"},
    {"SetMicEnable",      "b"},
    {"SetSpeakerEnble",   "b"},
    {"SetCamreraEnable",  "b"},
    {"SetMicVolume",      "i"},
    {"SetSpeakerVolume",  "i"},
}};
// clang-format on

/// The one line that is no JSON, without its line feed.
inline constexpr const char *QUIT_LINE = "quit";

/// How many of param1, param2, ... the command has.
constexpr int parameterCount(const CommandRow &row)
{
    return static_cast<int>(std::string_view(row.parameters).size());
}

/// The key of a parameter, counted from 1: "param<number>".
QString parameterKey(int number);

/// Whether the bytes are UTF-8 from begin to end.
bool isUtf8(const QByteArray &bytes);

/// A command as it came in.
struct Command
{
    QString name;       ///< "messagetype"
    QJsonObject object; ///< the whole line

    /// The value of "param<number>"; undefined when the key is absent.
    QJsonValue parameter(int number) const;
    /// "param<number>" as text, empty when it is no text.
    QString text(int number) const;
    /// "param<number>" as a list of texts, empty when it is null or no array; entries that are no texts are left out.
    QStringList texts(int number) const;
};

/// The row of a command, null for a name that is not in the catalogue.
const CommandRow *findCommand(const QString &name);

/// Whether the catalogue of notifications has this number.
bool isNotification(int code);

/// Reads one line (without its line feed). Nothing for a line that is no JSON object with a text "messagetype"; the
/// reason is then in `reason`.
std::optional<Command> parseCommand(const QByteArray &line, QString *reason);

/// What is wrong with the command's parameters, empty when they are as the catalogue has them: an unknown name, a
/// missing, wrongly typed or superfluous key.
QString shapeFault(const Command &command);

/// One notification as a whole line with its line feed.
QByteArray notificationLine(int code, const QString &content);
